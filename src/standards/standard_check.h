// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "base/message.h"
#include "standards/standard_set.h"

namespace vexa {

/// The message of the first fault of the groups that are switched on, or nothing: wavelengths out
/// of 440..840 nm, negative limits, a lower limit above its upper one (but for the hue), a hue out
/// of 0..360 degrees, two enabled conditions of the same wavelength. The conditions are looked at
/// one after another; one that is off is not looked at.
[[nodiscard]] std::optional<MessageCall> CheckStandardSet(const StandardSet& standard);

}  // namespace vexa
