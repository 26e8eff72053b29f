// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/graph/index_graph.h"

#include <algorithm>

#include "base/translation.h"
#include "views/common/axis_scale.h"

namespace vexa {

IndexGraph::IndexGraph(QWidget* parent)
    : SpectrumGraph(Abscissa::kWavelength, Text::tr("屈折率"), parent) {
  setObjectName(QStringLiteral("IndexGraph"));
  ShowFullView();
}

void IndexGraph::Show(const VEXATYPE& state, int selectedSlot) {
  ShowCurves(IndexCurves(state, selectedSlot), state.display);
}

void IndexGraph::ScaleOrdinate(const DisplaySettings& /*display*/) {
  constexpr double kLeastSpan = 0.02;
  constexpr double kMargin = 0.1;
  QCPRange span(1.0, 2.0);
  for (const SpectrumCurve& curve : Curves()) {
    const auto [least, most] = std::ranges::minmax(curve.values.Values());
    const QCPRange own(least, most);
    span = &curve == &Curves().front() ? own : span.expanded(own);
  }
  const double margin = std::max(kMargin * span.size(), kLeastSpan);
  yAxis->setRange(span.lower - margin, span.upper + margin);
  SetTicks(*yAxis, 0.0);
}

}  // namespace vexa
