// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/chromaticity_diagram.h"

#include "base/arithmetic.h"
#include "colour/colour_tables.h"

namespace vexa {
namespace {

constexpr int kLocusLastNm = 700;

Chromaticity ChromaticityOf(double x, double y, double z) {
  return {Divide(x, x + y + z), Divide(y, x + y + z)};
}

}  // namespace

std::vector<LocusPoint> SpectralLocus(Flag observer2Deg) {
  const ObserverTables& observer = ObserverTable(observer2Deg);
  std::vector<LocusPoint> locus;
  for (int nm = kTableFirstNm; nm <= kLocusLastNm; nm += kTableStepNm) {
    const auto i = static_cast<std::size_t>((nm - kTableFirstNm) / kTableStepNm);
    locus.push_back({nm, ChromaticityOf(observer.x[i], observer.y[i], observer.z[i])});
  }
  return locus;
}

std::optional<Chromaticity> WhitePointOf(int illuminant, Flag observer2Deg) {
  try {
    const ColourTable& power = IlluminantTable(illuminant);
    const ObserverTables& observer = ObserverTable(observer2Deg);
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    for (std::size_t i = 0; i < power.size(); ++i) {
      x += power[i] * observer.x[i];
      y += power[i] * observer.y[i];
      z += power[i] * observer.z[i];
    }
    return ChromaticityOf(x, y, z);
  } catch (const ArithmeticFault&) {
    return std::nullopt;
  }
}

}  // namespace vexa
