// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "measurement/vexatype.h"
#include "views/common/plot.h"
#include "views/graph/abscissa.h"
#include "views/graph/spectrum_curves.h"

namespace vexa {

/// Curves over the wavelength or its reciprocal with a legend above them, and a cursor at a whole
/// nanometre. What is drawn, and its scale, is the matter of the derived graphs. PlotNavigation
/// zooms and moves; a changed view stays until it is left. A click, Left and Right move the cursor;
/// "J" or the context menu asks for a jump.
class SpectrumGraph : public Plot {
  Q_OBJECT

 public:
  /// Takes over what it shows of the state and draws it.
  virtual void Show(const VEXATYPE& state, int selectedSlot) = 0;

  /// The ranges and ticks of the settings.
  void ShowFullView();

  /// Moves the cursor to a whole nanometre, limited to 440..840; where that is not shown, the view
  /// follows by as little as shows it.
  void MoveCursor(int nm);
  /// Likewise with the view as it is.
  void SetCursor(int nm);
  [[nodiscard]] int CursorNm() const { return cursorNm_; }

  [[nodiscard]] const std::vector<SpectrumCurve>& Curves() const { return curves_; }

 signals:
  /// The cursor stands elsewhere, moved by the user or by MoveCursor.
  void CursorMoved(int nm);
  /// The user wants to enter the wavelength of the cursor.
  void JumpRequested();

 protected:
  SpectrumGraph(Abscissa abscissa, const QString& ordinateLabel, QWidget* parent);

  void ShowCurves(std::vector<SpectrumCurve> curves, const DisplaySettings& display);
  /// Sets the range and ticks of the vertical axis of the full view.
  virtual void ScaleOrdinate(const DisplaySettings& display) = 0;
  /// Draws again, at the scale of the settings unless the user has changed the view.
  void RefreshFullView();
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void BuildCursor();
  void PlaceCursor();
  void LeaveFullView();
  void ScaleAbscissa();
  void TickWavelengths();

  Abscissa abscissa_;
  std::vector<SpectrumCurve> curves_;
  std::vector<QCPGraph*> lines_;
  DisplaySettings display_;
  FittedLegend* legend_ = nullptr;
  QCPItemStraightLine* cursor_;
  int cursorNm_ = 550;
  bool fullView_ = true;
};

}  // namespace vexa
