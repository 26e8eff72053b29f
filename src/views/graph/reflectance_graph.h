// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qcustomplot.h>

#include <array>

#include "measurement/vexatype.h"

namespace vexa {

/// The reflectance of all valid slots over the wavelength, each slot with its own line and an entry
/// in the legend. Wheel and drag zoom and move, a double click (or Home) goes back to the full
/// view,
/// "+" and "-" zoom, and Ctrl with an arrow key moves. A changed view stays until it is left.
class ReflectanceGraph : public QCustomPlot {
  Q_OBJECT

 public:
  explicit ReflectanceGraph(QWidget* parent = nullptr);

  /// Takes over the valid slots and draws them.
  void Show(const VEXATYPE& state, int selectedSlot);

  /// The full wavelength range, and reflectance from 0 to the next round number.
  void ShowFullView();

 signals:
  /// The graph was drawn with the data of the last Show.
  void Drawn();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Zoom(double factor);
  void Move(double wavelengthPart, double reflectancePart);
  [[nodiscard]] double LargestReflectance() const;

  std::array<QCPGraph*, kSlotCount> lines_{};
  bool fullView_ = true;
};

}  // namespace vexa
