// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStringList>
#include <QTimer>
#include <QWidget>
#include <optional>

#include "views/lot/lot_run.h"

namespace vexa {

class LightPanel;
class LotSide;
class VerdictPanel;

/// A lot while it is measured. The entry of the number has the focus whatever happens: Return (or a
/// scanner, which types the number and Return) measures the next lens, and so does Space where no
/// number is typed, which then gets the next one. What is typed while the instrument works is the
/// number of a later lens.
class LotPage : public QWidget {
  Q_OBJECT

 public:
  LotPage(LotRun& run, Session& session, InstrumentDesk& desk, MessageService& messages,
          QWidget* parent = nullptr);

  /// Shows the light no more: what is closed measures none.
  void EndLight();

 signals:
  void ReportRequested();
  void EndRequested();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  [[nodiscard]] QPushButton* CommandButton(const char* name, const QString& caption, int key,
                                           void (LotPage::*act)());
  [[nodiscard]] QWidget* MakeButtons();
  void Return();
  bool Space();
  void Escape();
  void Begin(const QString& number);
  void AskToRepeat(const QString& number);
  void StepReason(int by);
  void MeasureBackground();
  void MeasureReference();
  void RepeatLast();
  void ToggleLight();
  void ShowRun();
  void ShowFrames();
  void TakeNextScanned();
  void PutBack();
  void Say(const QString& text);
  [[nodiscard]] bool IsToBeMeasuredAgain() const;
  [[nodiscard]] QString Hint() const;
  QCoro::Task<> Watch();

  LotRun& run_;
  Session& session_;
  InstrumentDesk& desk_;
  MessageService& messages_;
  VerdictPanel* verdict_;
  LotSide* side_;
  LightPanel* light_;
  QLabel* said_;
  QLabel* hint_;
  QLineEdit* number_;
  QPushButton* lightButton_ = nullptr;
  bool offered_ = false;          ///< the field holds a number that had waited, as it was scanned
  QStringList scanned_;           ///< numbers entered while the instrument worked
  std::optional<QString> asked_;  ///< measured already: whether it is to be measured again
  int reason_ = 0;
  bool measuring_ = false;  ///< as shown last
  QTimer ages_;
};

}  // namespace vexa
