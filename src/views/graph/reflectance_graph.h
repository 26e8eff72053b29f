// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qcustomplot.h>

#include <array>
#include <memory>
#include <vector>

#include "measurement/vexatype.h"
#include "standards/reflectance_band.h"

namespace vexa {

class BandDrawing;

/// The reflectance of all valid slots over the wavelength, each slot with its own line and an entry
/// in the legend. Wheel and drag zoom and move, a double click (or Home) goes back to the full
/// view,
/// "+" and "-" zoom, and Ctrl with an arrow key moves. A changed view stays until it is left.
class ReflectanceGraph : public QCustomPlot {
  Q_OBJECT

 public:
  explicit ReflectanceGraph(QWidget* parent = nullptr);
  ~ReflectanceGraph() override;

  /// Takes over the valid slots and draws them.
  void Show(const VEXATYPE& state, int selectedSlot);

  /// Draws the limits of the reflectance behind the curves; an empty list takes them away.
  void ShowBand(const std::vector<std::vector<BandPoint>>& band);

  /// The full wavelength range, and reflectance from 0 to the next round number above all curves,
  /// and above the limits unless these are far above the curves.
  void ShowFullView();

 signals:
  /// The graph was drawn with the data of the last Show.
  void Drawn();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void LeaveFullView();
  void Zoom(double factor);
  void Move(double wavelengthPart, double reflectancePart);
  [[nodiscard]] double LargestReflectance() const;

  std::array<QCPGraph*, kSlotCount> lines_{};
  std::unique_ptr<BandDrawing> band_;
  DisplaySettings display_;
  bool fullView_ = true;
};

}  // namespace vexa
