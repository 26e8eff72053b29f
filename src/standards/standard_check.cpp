// SPDX-License-Identifier: GPL-3.0-or-later
#include "standards/standard_check.h"

#include <algorithm>

#include "base/spectrum.h"

namespace vexa {
namespace {

const QString kOutOfRange = QStringLiteral("波長範囲外エラー");
const QString kNegative = QStringLiteral("規格マイナス指定エラー");
const QString kReversed = QStringLiteral("大小反転エラー");
const QString kSameWavelength = QStringLiteral("同一波長指定エラー");
const QString kHueOutOfRange = QStringLiteral("範囲外エラー<範囲:0°-360°>");

/// The name of an error; empty when there is none.
using ErrorName = QString;

bool Within(double value, double first, double last) {
  return value >= first && value <= last;
}

ErrorName OrderError(const StandardLimits& limits) {
  return limits.lower <= limits.upper ? ErrorName() : kReversed;
}

ErrorName QuantityError(const StandardLimits& limits) {
  return limits.upper >= 0.0 && limits.lower >= 0.0 ? OrderError(limits) : kNegative;
}

ErrorName WavelengthError(const StandardLimits& limits) {
  const bool inRange =
      Within(limits.upper, ReflectanceSpectrum::kFirstNm, ReflectanceSpectrum::kLastNm) &&
      Within(limits.lower, ReflectanceSpectrum::kFirstNm, ReflectanceSpectrum::kLastNm);
  return inRange ? OrderError(limits) : kOutOfRange;
}

ErrorName HueError(const StandardLimits& limits) {
  return Within(limits.upper, 0.0, 360.0) && Within(limits.lower, 0.0, 360.0) ? ErrorName()
                                                                              : kHueOutOfRange;
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

ErrorName BandError(const StandardSet& standard) {
  for (std::size_t k = 0; k < kConditionCount; ++k) {
    if (!standard.conditions[k].enabled) {
      continue;
    }
    if (!ReflectanceSpectrum::Contains(standard.wavelengths[k])) {
      return kOutOfRange;
    }
    if (ErrorName error = QuantityError(standard.conditions[k]); !error.isEmpty()) {
      return error;
    }
    if (SharesWavelength(standard, k)) {
      return kSameWavelength;
    }
  }
  return {};
}

ErrorName IfOn(const StandardLimits& limits, ErrorName (*check)(const StandardLimits&)) {
  return limits.enabled ? check(limits) : ErrorName();
}

}  // namespace

std::optional<QString> CheckStandardSet(const StandardSet& standard) {
  const struct {
    QString group;
    ErrorName error;
  } groups[] = {
      {QStringLiteral("反射率規格"), standard.useReflectance ? BandError(standard) : ErrorName()},
      {QStringLiteral("平均反射率規格"), IfOn(standard.averageReflectance, QuantityError)},
      {QStringLiteral("波長値規格"), IfOn(standard.wavelengthValue.limits, WavelengthError)},
      {QStringLiteral("クロマ規格"), IfOn(standard.chroma, QuantityError)},
      {QStringLiteral("色相角規格"), IfOn(standard.hueAngle, HueError)},
      {QStringLiteral("視感反射率規格"), IfOn(standard.luminousReflectance, QuantityError)},
  };
  const auto faulty = std::find_if(std::begin(groups), std::end(groups),
                                   [](const auto& group) { return !group.error.isEmpty(); });
  return faulty == std::end(groups) ? std::nullopt : std::optional(faulty->group + faulty->error);
}

}  // namespace vexa
