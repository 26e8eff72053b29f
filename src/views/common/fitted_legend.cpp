// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/fitted_legend.h"

#include <algorithm>
#include <numeric>

namespace vexa {
namespace {

constexpr int kUsualRows = 3;
constexpr int kMostRows = 5;
constexpr double kEnough = 90.0;

// The number of a slot stays.
QString Shortened(const QString& name, const QFontMetricsF& metrics, double room) {
  const QString number = name.left(name.indexOf(u' ') + 1);
  const double left = std::max(room - metrics.horizontalAdvance(number), 0.0);
  return number + metrics.elidedText(name.mid(number.size()), Qt::ElideMiddle, left);
}

}  // namespace

void FittedLegend::SetEntries(const std::vector<std::pair<QCPGraph*, QString>>& entries) {
  entries_ = entries;
  fittedWidth_ = 0.0;
  clearItems();
  for (const auto& [graph, name] : entries_) {
    graph->setName(name);
    addItem(new QCPPlottableLegendItem(this, graph));
  }
}

void FittedLegend::update(UpdatePhase phase) {
  if (phase == upPreparation && parentPlot() != nullptr) {
    const QMargins around = margins();
    const double width = parentPlot()->viewport().width() - around.left() - around.right();
    if (width != fittedWidth_) {
      fittedWidth_ = width;
      Fit(width);
    }
  }
  QCPLegend::update(phase);
}

void FittedLegend::Fit(double width) {
  if (entries_.empty()) {
    return;
  }
  const QFontMetricsF metrics(font());
  const double besidesName = iconSize().width() + iconTextPadding() + 2.0;
  const int count = static_cast<int>(entries_.size());
  // As few rows as hold the names whole, else as many as leave enough of each.
  int columns = count;
  double room = 0.0;
  bool whole = false;
  for (int rows = 1; !whole && rows <= std::min(kMostRows, count); ++rows) {
    columns = (count + rows - 1) / rows;
    std::vector<double> widths(static_cast<std::size_t>(columns));
    for (int i = 0; i < count; ++i) {
      double& widest = widths[static_cast<std::size_t>(i % columns)];
      widest =
          std::max(widest, metrics.horizontalAdvance(entries_[static_cast<std::size_t>(i)].second));
    }
    const double besides = columns * besidesName + (columns - 1) * columnSpacing();
    whole = std::accumulate(widths.begin(), widths.end(), besides) <= width;
    room = std::max((width - besides) / columns, 0.0);
    if (rows >= kUsualRows && room >= kEnough) {
      break;
    }
  }
  for (const auto& [graph, name] : entries_) {
    graph->setName(whole ? name : Shortened(name, metrics, room));
  }
  setWrap(columns);
  setFillOrder(foColumnsFirst, true);
}

}  // namespace vexa
