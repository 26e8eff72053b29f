// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QStatusBar>
#include <array>

namespace vexa {

/// The seven panels of the status bar: the environment file name, and one panel for the verdict of
/// each group of standards.
class StatusPanels : public QStatusBar {
  Q_OBJECT

 public:
  explicit StatusPanels(QWidget* parent = nullptr);

  void ShowEnvironmentName(const QString& name);

 private:
  std::array<QLabel*, 7> panels_{};
};

}  // namespace vexa
