// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QMainWindow>

#include "base/message.h"
#include "measurement/vexatype.h"
#include "views/common/file_dialogs.h"

namespace vexa {

class CurrentPrinter;
class HistoryPlot;

/// The window of the thickness history: its graph with a cursor over the points.
class ThickGraph : public QMainWindow {
  Q_OBJECT

 public:
  ThickGraph(VEXATYPE& state, MessageService& messages, FileDialogs& dialogs,
             CurrentPrinter& printer, QWidget* parent = nullptr);

  /// The slot (1..10) whose thickness the add button appends.
  void SetCurrentSlot(int slot) { slot_ = slot; }

  /// Appends a thickness and moves the cursor to it. The first point makes the history one of
  /// physical or of optical thicknesses; a point of the other kind is refused, and so is one past
  /// the fiftieth, both with a message.
  void AddPointProc(double thicknessNm, Flag physical);

 private:
  void BuildMenus();
  QWidget* BuildInformation();
  void AddCurrent();
  void DeletePoint();
  QCoro::Task<> ClearAll();
  void MoveCursor(int by);
  QCoro::Task<> Save();
  void Print();
  void AskScale();
  void RecomputeScale();
  void ShowHistory();

  VEXATYPE& state_;
  MessageService& messages_;
  FileDialogs& dialogs_;
  CurrentPrinter& printer_;
  int slot_ = 1;
  int cursor_;  ///< 1..count, 0 without points
  bool autoScale_ = true;
  ThicknessScale scale_;
  HistoryPlot* plot_;
  QLabel* count_;
  QLabel* thickness_;
  QLabel* index_;
};

}  // namespace vexa
