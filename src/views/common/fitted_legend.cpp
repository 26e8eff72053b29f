// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/fitted_legend.h"

#include <algorithm>

namespace vexa {
namespace {

constexpr int kMostRows = 3;

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
  const double besides = iconSize().width() + iconTextPadding() + 2.0;
  const int count = static_cast<int>(entries_.size());
  int columns = count;
  double wanted = 0.0;
  for (int rows = 1; rows <= std::min(kMostRows, count); ++rows) {
    columns = (count + rows - 1) / rows;
    std::vector<double> widths(static_cast<std::size_t>(columns));
    for (int i = 0; i < count; ++i) {
      double& widest = widths[static_cast<std::size_t>(i % columns)];
      widest =
          std::max(widest, metrics.horizontalAdvance(entries_[static_cast<std::size_t>(i)].second));
    }
    wanted = (columns - 1) * columnSpacing();
    for (const double widest : widths) {
      wanted += widest + besides;
    }
    if (wanted <= width) {
      break;
    }
  }
  const double room = (width - (columns - 1) * columnSpacing()) / columns - besides;
  for (const auto& [graph, name] : entries_) {
    graph->setName(
        wanted <= width ? name : metrics.elidedText(name, Qt::ElideMiddle, std::max(room, 0.0)));
  }
  setWrap(columns);
  setFillOrder(foColumnsFirst, true);
}

}  // namespace vexa
