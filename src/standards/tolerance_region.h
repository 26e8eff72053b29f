// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "colour/chromaticity_diagram.h"
#include "standards/standard_set.h"

namespace vexa {

/// What the a*b* diagram shows of a standard: the limits of chroma and hue, each when its group is
/// on, and the markers that are shown. Radii are absolute values.
[[nodiscard]] ToleranceRegion ToleranceRegionOf(const StandardSet& standard,
                                                const ReferenceMarker& chromaMarker,
                                                const ReferenceMarker& hueMarker);

}  // namespace vexa
