// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "measurement/vexatype.h"
#include "views/colour/background_picture.h"
#include "views/colour/diagram_marks.h"
#include "views/colour/locus_drawing.h"
#include "views/colour/tolerance_drawing.h"
#include "views/common/colour_kind.h"
#include "views/common/plot.h"

namespace vexa {

/// A chromaticity diagram: the xy diagram from 0 to 0.8 with its coloured background, or the a*b*
/// plane with the tolerances of the standards. The axes always form a square. Esc in its window or
/// a click on it, while the background is built, asks whether to stop that.
class ChromaticityDiagram : public Plot {
  Q_OBJECT

 public:
  explicit ChromaticityDiagram(std::shared_ptr<BackgroundPicture> picture,
                               QWidget* parent = nullptr);

  /// Whose colours the slots are shown with from now on; `named`: the diagram says whose. Without a
  /// call the instrument's own, unnamed.
  void SetKind(ColourKind kind, bool named);

  /// The valid slots that have a colour, under the display conditions; with them, while colours are
  /// accumulated, the points that were taken under these conditions. Accumulated points and the
  /// tolerances of the standards are of the instrument's own colours, and not shown with the CIE
  /// ones.
  void ShowSlots(const VEXATYPE& state, int selectedSlot);
  /// The accumulated points under the conditions of their accumulation, the last one marked.
  void ShowStock(const VEXATYPE& state);

  [[nodiscard]] const DiagramMarks& Marks() const { return *marks_; }

  /// Makes the axes the square of a diagram of this size; for one that is drawn without being
  /// shown.
  void Fit(QSize size);

  /// As wide and high as a panel shows it where there is room.
  [[nodiscard]] QSize sizeHint() const override;

  /// The height at which the axes of a diagram of this width fill it.
  [[nodiscard]] static int HeightFor(int width);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  void ShowFrame(const StockConditions& conditions, const VEXATYPE& state, ColourKind kind);
  void ShowConditions();
  void ShowAxes(int labScale, ColourKind kind);
  void DrawPicture();
  void RequestPicture();

  std::shared_ptr<BackgroundPicture> picture_;
  LocusDrawing locus_;
  ToleranceDrawing tolerance_;
  QCPItemPixmap* background_;
  QCPItemText* conditionsText_;
  QString conditions_;
  QString range_;  ///< what is said of it; empty for the instrument's own colours
  QCPGraph* points_;
  QCPGraph* lastPoint_;
  DiagramMarks* marks_;
  ColourKind kind_ = ColourKind::kInstrument;
  bool named_ = false;
  bool xyMode_ = true;
  int labReach_ = 40;
  int side_ = 400;  ///< of the axes, in pixels; until the first Fit that of a large diagram
};

}  // namespace vexa
