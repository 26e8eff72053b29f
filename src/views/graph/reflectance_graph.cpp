// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/graph/reflectance_graph.h"

#include <algorithm>

#include "base/translation.h"
#include "statistics/spectrum_statistics.h"
#include "views/common/axis_scale.h"
#include "views/graph/band_drawing.h"
#include "views/graph/minimum_mark.h"
#include "views/graph/spread_drawing.h"

namespace vexa {
namespace {

constexpr double kEmptyMaximumPercent = 4.0;
constexpr double kHeadroom = 1.05;
// Limits further above the curves than this would press them flat.
constexpr double kFarLimit = 3.0;

}  // namespace

ReflectanceGraph::ReflectanceGraph(Abscissa abscissa, QWidget* parent)
    : SpectrumGraph(abscissa, Text::tr("反射率 [%]"), parent),
      band_(std::make_unique<BandDrawing>(*this, abscissa)),
      minimum_(std::make_unique<MinimumMark>(*this, abscissa)),
      spread_(std::make_unique<SpreadDrawing>(*this, abscissa)) {
  setObjectName(abscissa == Abscissa::kWavelength ? QStringLiteral("ReflectanceGraph")
                                                  : QStringLiteral("ReciprocalGraph"));
  connect(xAxis, qOverload<const QCPRange&>(&QCPAxis::rangeChanged), this,
          &ReflectanceGraph::MarkMinimum);
  ShowFullView();
}

ReflectanceGraph::~ReflectanceGraph() = default;

void ReflectanceGraph::Show(const VEXATYPE& state, int selectedSlot) {
  const MeasurementSlot* selected = state.Slot(selectedSlot);
  marked_.reset();
  if (state.display.showMinimum && selected != nullptr && selected->valid) {
    marked_ = selected->reflectance;
  }
  ShowCurves(ReflectanceCurves(state, selectedSlot), state.display);
  MarkMinimum();
}

void ReflectanceGraph::ShowBand(const std::vector<std::vector<BandPoint>>& band) {
  band_->Show(band);
  RefreshFullView();
}

void ReflectanceGraph::ShowSpread(const VEXATYPE& state, const std::vector<int>& slotNumbers) {
  std::vector<ReflectanceSpectrum> spectra;
  spectra.reserve(slotNumbers.size());
  for (const int number : slotNumbers) {
    if (const MeasurementSlot* slot = state.Slot(number); slot != nullptr && slot->valid) {
      spectra.push_back(slot->reflectance);
    }
  }
  const auto spread = statistics::ComputeSpectrumStatistics(spectra);
  spread_->Show(spread ? &*spread : nullptr);
  RefreshFullView();
}

void ReflectanceGraph::ScaleOrdinate(const DisplaySettings& display) {
  if (display.autoScale) {
    const double largest = LargestReflectance();
    yAxis->setRange(0.0, largest > 0.0 ? RoundedUp(largest * kHeadroom) : kEmptyMaximumPercent);
  } else {
    yAxis->setRange(display.minimumPercent, display.maximumPercent);
  }
  SetTicks(*yAxis, display.autoTicks ? 0.0 : display.tickPercent);
}

void ReflectanceGraph::MarkMinimum() {
  minimum_->Show(marked_ ? &*marked_ : nullptr);
}

double ReflectanceGraph::LargestReflectance() const {
  double largest = 0.0;
  for (const SpectrumCurve& curve : Curves()) {
    largest = std::max(largest, std::ranges::max(curve.values.Values()));
  }
  const double limit = band_->HighestLimit();
  return largest > 0.0 && limit > kFarLimit * largest ? largest : std::max(largest, limit);
}

}  // namespace vexa
