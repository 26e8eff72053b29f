// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <array>

class QCustomPlot;

namespace vexa {

/// The chromaticity diagram and the colour values of the selected slot.
class ColourPanel : public QWidget {
  Q_OBJECT

 public:
  explicit ColourPanel(QWidget* parent = nullptr);

 private:
  QWidget* BuildDiagram();
  QWidget* BuildValues();
};

}  // namespace vexa
