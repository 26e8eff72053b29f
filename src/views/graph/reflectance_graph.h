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
class WavelengthCursor;

/// The reflectance of all valid slots over the wavelength, each slot with its own line and an entry
/// in the legend, and a cursor with the values of all slots. Wheel and drag zoom and move, a double
/// click (or Home) goes back to the full view; the keys "+" and "-" zoom, Ctrl with an arrow moves.
/// A changed view stays until it is left. A click, Left and Right move the cursor; "J" or the
/// context menu asks for a jump.
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

  /// Moves the cursor to a whole nanometre, limited to 440..840.
  void MoveCursor(int nm);
  [[nodiscard]] int CursorNm() const;

 signals:
  /// The user wants to enter the wavelength of the cursor.
  void JumpRequested();
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
  std::unique_ptr<WavelengthCursor> cursor_;
  QPoint pressedAt_;
  DisplaySettings display_;
  bool fullView_ = true;
};

}  // namespace vexa
