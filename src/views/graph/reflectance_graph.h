// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "standards/reflectance_band.h"
#include "views/graph/spectrum_graph.h"

namespace vexa {

class BandDrawing;
class MinimumMark;
class SpreadDrawing;

/// The reflectance of all valid slots, the limits of the standard behind them, and a mark at the
/// minimum of the selected slot when the settings want it.
class ReflectanceGraph : public SpectrumGraph {
  Q_OBJECT

 public:
  explicit ReflectanceGraph(Abscissa abscissa = Abscissa::kWavelength, QWidget* parent = nullptr);
  ~ReflectanceGraph() override;

  void Show(const VEXATYPE& state, int selectedSlot) override;

  /// Draws the limits of the reflectance behind the curves; an empty list takes them away.
  void ShowBand(const std::vector<std::vector<BandPoint>>& band);

  /// Draws mean, standard deviation and envelope of the valid ones of these slots; nothing of fewer
  /// than two.
  void ShowSpread(const VEXATYPE& state, const std::vector<int>& slotNumbers);

 protected:
  /// By the settings, or from 0 to the next round number above all curves, and above the limits
  /// unless these are far above the curves.
  void ScaleOrdinate(const DisplaySettings& display) override;

 private:
  void MarkMinimum();
  [[nodiscard]] double LargestReflectance() const;

  std::unique_ptr<BandDrawing> band_;
  std::unique_ptr<MinimumMark> minimum_;
  std::unique_ptr<SpreadDrawing> spread_;
  std::optional<ReflectanceSpectrum> marked_;
};

}  // namespace vexa
