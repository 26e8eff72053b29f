// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoroTask>
#include <QDialog>
#include <QLabel>
#include <vector>

#include "measurement/instrument_desk.h"
#include "views/common/file_dialogs.h"
#include "views/statistics/repeat_study.h"

class QCheckBox;
class QListWidget;
class QPushButton;
class QSpinBox;
class QTableWidget;

namespace vexa {

class CurrentPrinter;

/// The statistics of the slots that are ticked, which the reflectance graph shows too when asked;
/// and of one lens that is measured again and again.
class SlotStatisticsWindow : public QDialog {
  Q_OBJECT

 public:
  struct Parts {
    Session& session;
    InstrumentDesk& desk;
    CurrentPrinter& printer;
    MessageService& messages;
    FileDialogs& dialogs;
  };

  explicit SlotStatisticsWindow(const Parts& parts, QWidget* parent = nullptr);

 signals:
  /// The slots whose mean and spread the graph is to show; empty: none.
  void SpreadWanted(const std::vector<int>& slotNumbers);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  QWidget* BuildChoice();
  void FillSlots();
  [[nodiscard]] std::vector<int> TickedSlots() const;
  void ShowSlots();
  void ShowTable();
  void ShowAvailable();
  QCoro::Task<> MeasureRepeats();
  void Print();
  void Save();

  Parts parts_;
  const VEXATYPE& state_;
  std::vector<StudiedSample> studied_;
  bool measured_ = false;
  bool busy_ = false;
  bool stop_ = false;
  QListWidget* slots_;
  QCheckBox* inGraph_;
  QSpinBox* count_;
  QPushButton* measure_;
  QLabel* about_;
  QLabel* note_;  ///< on the CIE values of the table
  QTableWidget* table_;
};

}  // namespace vexa
