// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/settings/display_check.h"

#include "base/number_text.h"
#include "base/spectrum.h"

namespace vexa {
namespace {

using Entry = DisplayEntries::Entry;

constexpr double kFirstNm = ReflectanceSpectrum::kFirstNm;
constexpr double kLastNm = ReflectanceSpectrum::kLastNm;
constexpr double kSmallestMaximum = 0.00999999999;  // an entered 0.01 passes
constexpr double kMostTicks = 100.0;

bool Within(const Entry& entry, double minimum, double maximum) {
  return entry && *entry >= minimum && *entry <= maximum;
}

MessageCall OutOfBounds(Message id, double lower, double upper) {
  return {id, {FormatNumber(lower, u"##0.###"), FormatNumber(upper, u"##0.###")}};
}

std::optional<MessageCall> CheckWavelengths(const DisplayEntries& entries) {
  if (!Within(entries.shortestNm, kFirstNm, kLastNm)) {
    return OutOfBounds(Message::kShortestOutOfRange, kFirstNm, kLastNm);
  }
  if (!Within(entries.longestNm, *entries.shortestNm, kLastNm)) {
    return OutOfBounds(Message::kLongestOutOfRange, *entries.shortestNm, kLastNm);
  }
  if (*entries.longestNm - *entries.shortestNm < 20.0) {
    return MessageCall{Message::kWidthOutOfRange};
  }
  return std::nullopt;
}

std::optional<MessageCall> CheckReflectance(const DisplayEntries& entries) {
  if (!Within(entries.minimumPercent, 0.0, 100.0)) {
    return MessageCall{Message::kMinimumOutOfRange};
  }
  if (!Within(entries.maximumPercent, kSmallestMaximum, 100.0) ||
      *entries.maximumPercent <= *entries.minimumPercent) {
    return MessageCall{Message::kMaximumOutOfRange};
  }
  return std::nullopt;
}

bool TicksFit(const DisplayEntries& entries) {
  if (!entries.tickPercent || *entries.tickPercent <= 0.0) {
    return false;
  }
  const bool rangeKnown = entries.maximumPercent && entries.minimumPercent;
  return entries.autoScale || !rangeKnown ||
         (*entries.maximumPercent - *entries.minimumPercent) / *entries.tickPercent <= kMostTicks;
}

std::optional<MessageCall> CheckAverage(const DisplayEntries& entries) {
  if (!Within(entries.averageShortestNm, kFirstNm, kLastNm)) {
    return OutOfBounds(Message::kAverageShortestOutOfRange, kFirstNm, kLastNm);
  }
  if (!Within(entries.averageLongestNm, kFirstNm, kLastNm)) {
    return OutOfBounds(Message::kAverageLongestOutOfRange, kFirstNm, kLastNm);
  }
  if (*entries.averageLongestNm < *entries.averageShortestNm) {
    return MessageCall{Message::kAverageWidthOutOfRange};
  }
  return std::nullopt;
}

}  // namespace

std::optional<MessageCall> CheckDisplayEntries(const DisplayEntries& entries) {
  if (!entries.fullScale) {
    if (auto fault = CheckWavelengths(entries)) {
      return fault;
    }
  }
  if (!Within(entries.wavelengthTickNm, 5.0, 1000.0)) {
    return MessageCall{Message::kWavelengthTickOutOfRange};
  }
  if (!entries.autoScale) {
    if (auto fault = CheckReflectance(entries)) {
      return fault;
    }
  }
  if (!entries.autoTicks && !TicksFit(entries)) {
    return MessageCall{Message::kTickOutOfRange};
  }
  if (!entries.textStepNm) {
    return MessageCall{Message::kTextStepNotANumber};
  }
  if (!Within(entries.textStepNm, 1.0, 100.0)) {
    return MessageCall{Message::kTextStepOutOfRange};
  }
  return CheckAverage(entries);
}

}  // namespace vexa
