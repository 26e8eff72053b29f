// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "views/graph/spectrum_graph.h"

namespace vexa {

/// The light amounts of background, reference and last sample in detector counts, and the level
/// above which the detector is saturated.
class LightGraph : public SpectrumGraph {
  Q_OBJECT

 public:
  explicit LightGraph(QWidget* parent = nullptr);

  void Show(const VEXATYPE& state, int selectedSlot) override;

 protected:
  /// The whole range of the detector, so that the distance to saturation is seen.
  void ScaleOrdinate(const DisplaySettings& display) override;
};

}  // namespace vexa
