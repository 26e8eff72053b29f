// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <functional>

#include "base/message.h"
#include "measurement/session.h"
#include "views/common/file_dialogs.h"

namespace vexa {

class CurrentPrinter;
class HistoryPlot;

/// The window of the thickness history: its graph with a cursor over the points.
class ThickGraph : public QMainWindow {
  Q_OBJECT

 public:
  /// `selectedSlot` tells the slot (1..10) whose thickness the add button appends.
  ThickGraph(Session& session, MessageService& messages, FileDialogs& dialogs,
             CurrentPrinter& printer, std::function<int()> selectedSlot, QWidget* parent = nullptr);

 private:
  void BuildMenus();
  QLayout* BuildInformation();
  void AddCurrent();
  void DeletePoint();
  QCoro::Task<> ClearAll();
  void MoveCursor(int by);
  QCoro::Task<> Save();
  void Print();
  void AskScale();
  void RecomputeScale();
  void ShowHistory();
  void ShowChange();

  Session& session_;
  const VEXATYPE& state_;
  MessageService& messages_;
  FileDialogs& dialogs_;
  CurrentPrinter& printer_;
  std::function<int()> selectedSlot_;
  int shownCount_ = 0;
  int cursor_;  ///< 1..count, 0 without points
  bool autoScale_ = true;
  ThicknessScale scale_;
  HistoryPlot* plot_;
  QLabel* count_;
  QLabel* thickness_;
  QLabel* index_;
  QLabel* kind_;
  QLabel* fit_;
  QLabel* doubt_;
  QPlainTextEdit* doubts_;  ///< in words
};

}  // namespace vexa
