// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "views/graph/spectrum_graph.h"

namespace vexa {

/// Refractive indices over the wavelength: of the slots, of film and substrate.
class IndexGraph : public SpectrumGraph {
  Q_OBJECT

 public:
  explicit IndexGraph(QWidget* parent = nullptr);

  void Show(const VEXATYPE& state, int selectedSlot) override;

 protected:
  /// A little more than what the curves span.
  void ScaleOrdinate(const DisplaySettings& display) override;
};

}  // namespace vexa
