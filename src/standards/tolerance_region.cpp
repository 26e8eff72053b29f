// SPDX-License-Identifier: GPL-3.0-or-later
#include "standards/tolerance_region.h"

#include <cmath>

namespace vexa {

ToleranceRegion ToleranceRegionOf(const StandardSet& standard, const ReferenceMarker& chromaMarker,
                                  const ReferenceMarker& hueMarker) {
  ToleranceRegion region;
  if (standard.chroma.enabled) {
    region.chromaRadii = {std::abs(standard.chroma.upper), std::abs(standard.chroma.lower)};
  }
  if (standard.hueAngle.enabled) {
    region.hueAnglesDeg = {standard.hueAngle.upper, standard.hueAngle.lower};
  }
  if (chromaMarker.shown) {
    region.referenceChroma = std::abs(chromaMarker.value);
  }
  if (hueMarker.shown) {
    region.referenceHueDeg = hueMarker.value;
  }
  return region;
}

}  // namespace vexa
