// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/graph/light_graph.h"

#include "base/translation.h"
#include "instrument/wavelength_mapping.h"
#include "views/common/axis_scale.h"

namespace vexa {
namespace {

const QColor kSaturationColour(0xb0, 0x3a, 0x2e);

}  // namespace

LightGraph::LightGraph(QWidget* parent)
    : SpectrumGraph(Abscissa::kWavelength, Text::tr("光量 [count]"), parent) {
  setObjectName(QStringLiteral("LightGraph"));
  auto* level = new QCPItemStraightLine(this);
  level->point1->setCoords(0.0, kLargestUnsaturated);
  level->point2->setCoords(1.0, kLargestUnsaturated);
  level->setPen(QPen(kSaturationColour, 1.2, Qt::DashLine));
  level->setSelectable(false);
  auto* text = new QCPItemText(this);
  text->position->setTypeX(QCPItemPosition::ptAxisRectRatio);
  text->position->setCoords(0.99, kLargestUnsaturated);
  text->setPositionAlignment(Qt::AlignRight | Qt::AlignBottom);
  text->setFont(font());
  text->setColor(kSaturationColour);
  text->setText(Text::tr("飽和 %1").arg(kLargestUnsaturated));
  text->setSelectable(false);
  ShowFullView();
}

void LightGraph::Show(const VEXATYPE& state, int /*selectedSlot*/) {
  ShowCurves(LightCurves(state), state.display);
}

void LightGraph::ScaleOrdinate(const DisplaySettings& /*display*/) {
  constexpr double kTop = 4500.0;
  yAxis->setRange(0.0, kTop);
  SetTicks(*yAxis, 0.0);
}

}  // namespace vexa
