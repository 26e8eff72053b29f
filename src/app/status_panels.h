// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QPixmap>
#include <QStatusBar>
#include <QTimer>
#include <array>

#include "records/shared_store.h"
#include "standards/judgement.h"

namespace vexa {

/// The seven panels of the status bar: the environment file name, and one panel for the verdict of
/// each group of standards; and what waits for the shared store.
class StatusPanels : public QStatusBar {
  Q_OBJECT

 public:
  explicit StatusPanels(QWidget* parent = nullptr);

  void ShowEnvironmentName(const QString& name);

  /// Shows the verdicts, each with a mark of its own for OK and NG, and in a panel's tip its
  /// margin.
  void ShowJudgement(const Judgement& judgement);

  /// Shows how many records wait to be sent to the shared store, and why; nothing when none does.
  void ShowShared(const SharedStatus& status);

 private:
  void AddEnvironmentPanel();
  void AddVerdictPanel(std::size_t group);

  // Made once: the program keeps a scaled copy of every icon that it has ever drawn.
  QPixmap passedMark_;
  QPixmap failedMark_;
  QLabel* environment_ = nullptr;
  QLabel* shared_ = nullptr;
  QTimer sharedSoon_;
  struct VerdictPanel {
    QLabel* text;
    QLabel* mark;
  };
  std::array<VerdictPanel, kStandardGroupCount> verdicts_{};
};

}  // namespace vexa
