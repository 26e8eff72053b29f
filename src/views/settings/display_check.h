// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "base/flag.h"
#include "base/message.h"

namespace vexa {

/// The numbers entered in the display settings; nothing where an entry is no number.
struct DisplayEntries {
  using Entry = std::optional<double>;

  Flag fullScale;  ///< replaces the two wavelengths
  Entry shortestNm;
  Entry longestNm;
  Entry wavelengthTickNm;
  Flag autoScale;  ///< replaces maximum and minimum
  Entry maximumPercent;
  Entry minimumPercent;
  Flag autoTicks;  ///< replaces the tick interval
  Entry tickPercent;
  Entry textStepNm;
  Entry averageShortestNm;
  Entry averageLongestNm;
};

/// The message of the first entry that is refused; nothing when all are accepted. Wavelengths lie
/// within 440..840 nm, at least 20 nm apart for the axis; ticks every 5..1000 nm; reflectance
/// within 0..100 % with the maximum above the minimum and at most 100 ticks; text steps of 1..100
/// nm.
[[nodiscard]] std::optional<MessageCall> CheckDisplayEntries(const DisplayEntries& entries);

}  // namespace vexa
