// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qcustomplot.h>

#include <optional>
#include <vector>

namespace vexa {

/// A slot on a diagram, at its colour coordinates.
struct SlotMark {
  int slot = 0;
  QPointF at;
  bool selected = false;
};

/// The white point and the slots of a diagram: a disc in the slot's colour where it is, and its
/// number in a badge beside it, moved aside where badges would cover one another. The selected slot
/// lies on top, larger, its badge filled. A slot outside the axes is an arrow at their border,
/// which points to where it is from their middle.
class DiagramMarks : public QCPAbstractItem {
  Q_OBJECT

 public:
  explicit DiagramMarks(QCustomPlot* plot);

  void SetWhitePoint(std::optional<QPointF> at, const QString& name);
  /// The selected slot, if there is one, is to be the last.
  void SetSlots(std::vector<SlotMark> marks) { slots_ = std::move(marks); }
  [[nodiscard]] const std::vector<SlotMark>& Slots() const { return slots_; }

  double selectTest(const QPointF& /*pos*/, bool /*onlySelectable*/,
                    QVariant* /*details*/) const override {
    return -1.0;
  }

 protected:
  void draw(QCPPainter* painter) override;

 private:
  [[nodiscard]] QPointF PixelOf(QPointF coordinates) const;
  QRectF DrawWhitePoint(QCPPainter& painter) const;

  std::optional<QPointF> white_;
  QString whiteName_;
  std::vector<SlotMark> slots_;
};

}  // namespace vexa
