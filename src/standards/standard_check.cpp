// SPDX-License-Identifier: GPL-3.0-or-later
#include "standards/standard_check.h"

#include "base/spectrum.h"
#include "base/translation.h"

namespace vexa {
namespace {

/// The message of an error; nothing when there is none.
using Error = std::optional<Message>;

bool Within(double value, double first, double last) {
  return value >= first && value <= last;
}

Error OrderError(const StandardLimits& limits) {
  return limits.lower <= limits.upper ? Error() : Message::kStandardReversed;
}

Error QuantityError(const StandardLimits& limits) {
  return limits.upper >= 0.0 && limits.lower >= 0.0 ? OrderError(limits)
                                                    : Message::kStandardNegative;
}

Error WavelengthError(const StandardLimits& limits) {
  const bool inRange =
      Within(limits.upper, ReflectanceSpectrum::kFirstNm, ReflectanceSpectrum::kLastNm) &&
      Within(limits.lower, ReflectanceSpectrum::kFirstNm, ReflectanceSpectrum::kLastNm);
  return inRange ? OrderError(limits) : Message::kStandardOutOfRange;
}

Error HueError(const StandardLimits& limits) {
  return Within(limits.upper, 0.0, 360.0) && Within(limits.lower, 0.0, 360.0)
             ? Error()
             : Message::kStandardHueOutOfRange;
}

bool SharesWavelength(const StandardSet& standard, std::size_t condition) {
  for (std::size_t k = 0; k < condition; ++k) {
    if (standard.conditions[k].enabled &&
        standard.wavelengths[k] == standard.wavelengths[condition]) {
      return true;
    }
  }
  return false;
}

Error BandError(const StandardSet& standard) {
  for (std::size_t k = 0; k < kConditionCount; ++k) {
    if (!standard.conditions[k].enabled) {
      continue;
    }
    if (!ReflectanceSpectrum::Contains(standard.wavelengths[k])) {
      return Message::kStandardOutOfRange;
    }
    if (const Error error = QuantityError(standard.conditions[k])) {
      return error;
    }
    if (SharesWavelength(standard, k)) {
      return Message::kStandardSameWavelength;
    }
  }
  return {};
}

Error IfOn(const StandardLimits& limits, Error (*check)(const StandardLimits&)) {
  return limits.enabled ? check(limits) : Error();
}

}  // namespace

std::optional<MessageCall> CheckStandardSet(const StandardSet& standard) {
  const struct {
    const char* group;
    Error error;
  } groups[] = {
      {QT_TRANSLATE_NOOP("Text", "反射率規格"),
       standard.useReflectance ? BandError(standard) : Error()},
      {QT_TRANSLATE_NOOP("Text", "平均反射率規格"),
       IfOn(standard.averageReflectance, QuantityError)},
      {QT_TRANSLATE_NOOP("Text", "波長値規格"),
       IfOn(standard.wavelengthValue.limits, WavelengthError)},
      {QT_TRANSLATE_NOOP("Text", "クロマ規格"), IfOn(standard.chroma, QuantityError)},
      {QT_TRANSLATE_NOOP("Text", "色相角規格"), IfOn(standard.hueAngle, HueError)},
      {QT_TRANSLATE_NOOP("Text", "視感反射率規格"),
       IfOn(standard.luminousReflectance, QuantityError)},
  };
  for (const auto& [group, error] : groups) {
    if (error) {
      return MessageCall{*error, {Text::tr(group)}};
    }
  }
  return std::nullopt;
}

}  // namespace vexa
