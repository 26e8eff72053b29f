// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QPlainTextEdit>
#include <QStringList>
#include <QTableWidget>
#include <QWidget>
#include <map>

#include "measurement/vexatype.h"

namespace vexa {

/// The fits of the slots in a table, and all that one of them says in words.
class FilmFitResults : public QWidget {
  Q_OBJECT

 public:
  explicit FilmFitResults(QWidget* parent = nullptr);

  /// Shows the valid slots, and the fit of one of them in words. Fits of another setting than
  /// `entered` are told apart, all of them where it is null. `refused` are the slots that the last
  /// fit took no spectrum of.
  void Show(const VEXATYPE& state, int slot, const std::map<int, FilmFitFault>& refused,
            const FilmStackSetting* entered);

  /// The table with its headings, and when each slot was measured.
  [[nodiscard]] QList<QStringList> Rows() const;
  /// What is said of the slot shown.
  [[nodiscard]] QString Words() const { return outcome_->text() + u'\n' + words_->toPlainText(); }

 signals:
  void SlotChosen(int slot);

 private:
  QTableWidget* table_;
  QLabel* mark_;
  QLabel* outcome_;
  QPlainTextEdit* words_;
  QStringList measuredAt_;  ///< a row each
  bool filling_ = false;
};

}  // namespace vexa
