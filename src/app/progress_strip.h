// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QWidget>

#include "instrument/controller.h"

namespace vexa {

/// One line that tells what the controller is being waited for, and for how long already. It is
/// blank, in the same place, while nothing is awaited.
class ProgressStrip : public QWidget {
  Q_OBJECT

 public:
  explicit ProgressStrip(QWidget* parent = nullptr);

  void BeginWait(AwaitedStep step, int expectedMs, int limitMs);
  void EndWait();

  /// `connected`: the controller is there, or may be yet; otherwise the strip says that it is not.
  /// `busy`: something runs that can be cancelled.
  void ShowLink(bool connected, bool busy);

  bool eventFilter(QObject* watched, QEvent* event) override;

 signals:
  void CancelRequested();

 private:
  void Refresh();

  QLabel* text_;
  QProgressBar* bar_;
  QPushButton* cancel_;
  QTimer ticks_;
  QElapsedTimer elapsed_;
  AwaitedStep step_{};
  int expectedMs_ = 0;
  int limitMs_ = 0;
  QString idleText_;
};

}  // namespace vexa
