// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <vector>

#include "statistics/capability.h"
#include "statistics/control_chart.h"
#include "views/common/plot.h"

namespace vexa {

/// What a chart of individuals shows.
struct XmrPicture {
  QString title;  ///< of the axis of the values
  std::vector<double> values;
  std::vector<int> groups;  ///< of each value, from 0; empty: all in one
  std::optional<statistics::ChartLimits> limits;
  statistics::SpecificationLimits tolerance;
  std::vector<std::size_t> broken;  ///< points, from 1, that a rule marks
  std::vector<QString> hints;       ///< of each value, while the mouse is over it; may be empty
};

/// A control chart: individuals above, their moving ranges below, over the number of the point.
/// Points of a group have a colour, those that break a rule a ring. A click, Left and Right choose
/// a point; the wheel zooms the points, a drag moves them, a double click shows all again.
class XmrPlot : public Plot {
  Q_OBJECT

 public:
  enum class Panes { kValues, kValuesAndRanges };

  explicit XmrPlot(Panes panes, QWidget* parent = nullptr);

  void Show(XmrPicture picture);

  /// Marks point 1..n; 0 for none.
  void Choose(int point);
  [[nodiscard]] int Chosen() const { return chosen_; }

 signals:
  void PointChosen(int point);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  [[nodiscard]] int PointAt(const QPointF& position) const;
  void Pick(int point);
  void ShowAll();
  void ShowValues();
  void ShowRanges();
  void ShowLines(QCPAxisRect& pane, const std::vector<std::pair<QString, double>>& lines,
                 const QPen& pen);

  XmrPicture picture_;
  QCPAxisRect* ranges_ = nullptr;
  QCPGraph* mark_;
  QPoint pressed_;
  int chosen_ = 0;
};

}  // namespace vexa
