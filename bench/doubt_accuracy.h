// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace vexa {

/// Prints how often a result of the peak/valley method is wrong without a doubt, and how often a
/// right one stands without one. False when that is worse than 0.5 % of the wrong or 80 % of the
/// right.
[[nodiscard]] bool PrintDoubts();

}  // namespace vexa
