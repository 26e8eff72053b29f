// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/lot_content.h"
#include "views/graph/reflectance_graph.h"

namespace vexa {

/// The reflectances of a lot over each other: each curve of a small lot; of a larger one the mean,
/// the highest and the lowest at each wavelength; and those of lenses that are NG. The limits of
/// the standard lie behind them.
class LotCurves : public ReflectanceGraph {
  Q_OBJECT

 public:
  LotCurves() = default;

  /// Curves of a small lot, and most that are drawn of NG lenses in a larger one.
  static constexpr int kMostCurves = 30;

  using ReflectanceGraph::Show;
  void Show(const LotContent& lot);
};

}  // namespace vexa
