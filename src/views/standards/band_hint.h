// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "standards/standard_set.h"

namespace vexa {

/// What an operator may not expect of the conditions of the reflectance: none is judged without
/// condition 1, a segment that runs backwards passes untested, a condition behind a gap is joined
/// to one that is off. The first such remark; empty when there is none.
[[nodiscard]] QString BandHint(const StandardSet& standard);

}  // namespace vexa
