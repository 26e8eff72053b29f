// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/record_value.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

#include "base/translation.h"
#include "colour/colour_difference.h"
#include "records/result_json.h"

namespace vexa {
namespace {

/// What a quantity is called, and where it stands in a record.
struct QuantityEntry {
  Quantity quantity;
  const char* key;
  const char* name;
  const char* unit;
  double ColourResult::*colour;
  const char* cie;
  bool bounded;  // by 0
};

constexpr const char* kPercent = "%";
constexpr const char* kNm = "nm";
constexpr const char* kDegrees = "°";

constexpr std::array<QuantityEntry, kQuantityCount> kQuantities{{
    {Quantity::kLuminousReflectance, "Y", QT_TRANSLATE_NOOP("Text", "視感反射率 Y (装置固有)"),
     kPercent, &ColourResult::Y, nullptr, true},
    {Quantity::kAverageReflectance, "Rm", QT_TRANSLATE_NOOP("Text", "平均反射率"), kPercent,
     &ColourResult::Rm, nullptr, true},
    {Quantity::kL, "L", "L*", "", &ColourResult::L, nullptr, true},
    {Quantity::kA, "a", "a*", "", &ColourResult::a, nullptr, false},
    {Quantity::kB, "b", "b*", "", &ColourResult::b, nullptr, false},
    {Quantity::kChroma, "C", "C*", "", &ColourResult::C, nullptr, true},
    {Quantity::kHue, "h", QT_TRANSLATE_NOOP("Text", "色相角 h"), kDegrees, &ColourResult::h,
     nullptr, false},
    {Quantity::kThickness, "thickness", QT_TRANSLATE_NOOP("Text", "膜厚"), kNm, nullptr, nullptr,
     true},
    {Quantity::kFitThickness, "fitThickness", QT_TRANSLATE_NOOP("Text", "膜厚ﾌｨｯﾄ (層1)"), kNm,
     nullptr, nullptr, true},
    {Quantity::kReflectance, "reflectance", QT_TRANSLATE_NOOP("Text", "反射率"), kPercent, nullptr,
     nullptr, true},
    {Quantity::kCieLuminousReflectance, "cieRv", "CIE Rv", kPercent, nullptr, "Rv", true},
    {Quantity::kCieL, "cieL", "CIE L*", "", nullptr, "L", true},
    {Quantity::kCieA, "cieA", "CIE a*", "", nullptr, "a", false},
    {Quantity::kCieB, "cieB", "CIE b*", "", nullptr, "b", false},
    {Quantity::kCieChroma, "cieC", "CIE C*", "", nullptr, "C", true},
    {Quantity::kCieHue, "cieH", "CIE h", kDegrees, nullptr, "h", false},
    {Quantity::kCieDeltaE00, "cieDeltaE00", "CIE ΔE00", "", nullptr, nullptr, true},
}};

const QuantityEntry& EntryOf(Quantity quantity) {
  return kQuantities[static_cast<std::size_t>(quantity)];
}

// A lower limit that no value can fall below is none.
statistics::SpecificationLimits Limits(const StandardLimits& limits,
                                       const std::optional<double>& bound) {
  if (!limits.enabled) {
    return {};
  }
  const auto finite = [](double limit) {
    return std::isfinite(limit) ? std::optional(limit) : std::nullopt;
  };
  return {bound && limits.lower <= *bound ? std::nullopt : finite(limits.lower),
          finite(limits.upper)};
}

std::optional<double> FittedThickness(const SampleRecord& sample) {
  const QJsonObject fit = sample.fit.value_or(QJsonObject());
  if (fit[QLatin1String("outcome")].toString() != FitOutcomeName(FitOutcome::kOk)) {
    return std::nullopt;
  }
  return NumberOf(fit[QLatin1String("layers")][0][QLatin1String("thickness")]);
}

std::optional<double> DifferenceToTarget(const SampleRecord& sample) {
  const std::optional<CieColour> colour = CieOf(sample.cie);
  ColourDifference difference;
  const bool found =
      sample.cieLimits.deltaE00.enabled && colour &&
      CompareColours(sample.cieLimits.target, {colour->L, colour->a, colour->b}, difference);
  return found ? std::optional(difference.deltaE00) : std::nullopt;
}

// Limits through 0 begin below it; none on the whole circle.
statistics::SpecificationLimits HueLimits(const StandardLimits& limits) {
  constexpr double kCircle = 360.0;
  if (!limits.enabled || limits.upper - limits.lower >= kCircle) {
    return {};
  }
  return {limits.upper < limits.lower ? limits.lower - kCircle : limits.lower, limits.upper};
}

void TakeCie(const SampleRecord& sample, bool newest, ValueSeries& series) {
  if (newest) {
    series.cieLimits = sample.cieLimits;
  }
  series.severalCieLimits = series.severalCieLimits || sample.cieLimits != series.cieLimits;
  AddCieConditions(sample.cie, series.cieConditions);
}

}  // namespace

QString QuantityName(Quantity quantity) {
  return Text::tr(EntryOf(quantity).name);
}

QString QuantityUnit(Quantity quantity) {
  return QString::fromUtf8(EntryOf(quantity).unit);
}

QString ValueTitle(const RecordValue& value) {
  QString title = QuantityName(value.quantity);
  if (value.quantity == Quantity::kReflectance) {
    title += QStringLiteral(" %1 nm").arg(value.nm);
  }
  const QString unit = QuantityUnit(value.quantity);
  return unit.isEmpty() ? title : title + QStringLiteral(" [%1]").arg(unit);
}

QString QuantityKey(Quantity quantity) {
  return QLatin1String(EntryOf(quantity).key);
}

std::optional<Quantity> QuantityOf(const QString& key) {
  const auto entry = std::ranges::find_if(
      kQuantities, [&key](const QuantityEntry& known) { return key == QLatin1String(known.key); });
  return entry == kQuantities.end() ? std::nullopt : std::optional(entry->quantity);
}

std::optional<double> ValueOf(const SampleRecord& sample, const RecordValue& value) {
  const QuantityEntry& entry = EntryOf(value.quantity);
  std::optional<double> found;
  if (entry.colour != nullptr) {
    found = sample.colour.*entry.colour;
  } else if (entry.cie != nullptr) {
    found = sample.cie ? std::optional(NumberOf((*sample.cie)[QLatin1String(entry.cie)]))
                       : std::nullopt;
  } else if (value.quantity == Quantity::kCieDeltaE00) {
    found = DifferenceToTarget(sample);
  } else if (value.quantity == Quantity::kThickness) {
    found = sample.thickness ? std::optional(sample.thickness->thicknessNm) : std::nullopt;
  } else if (value.quantity == Quantity::kFitThickness) {
    found = FittedThickness(sample);
  } else if (ReflectanceSpectrum::Contains(value.nm)) {
    found = sample.reflectance[value.nm];
  }
  return found && std::isfinite(*found) ? found : std::nullopt;
}

std::optional<double> PhysicalBound(Quantity quantity) {
  return EntryOf(quantity).bounded ? std::optional(0.0) : std::nullopt;
}

statistics::SpecificationLimits LimitsOf(const StandardSet& standard, const RecordValue& value) {
  const std::optional<double> bound = PhysicalBound(value.quantity);
  switch (value.quantity) {
    case Quantity::kLuminousReflectance:
      return Limits(standard.luminousReflectance, bound);
    case Quantity::kAverageReflectance:
      return Limits(standard.averageReflectance, bound);
    case Quantity::kChroma:
      return Limits(standard.chroma, bound);
    case Quantity::kHue:
      return HueLimits(standard.hueAngle);
    case Quantity::kReflectance:
      for (std::size_t i = 0; standard.useReflectance && i < kConditionCount; ++i) {
        if (standard.conditions[i].enabled && standard.wavelengths[i] == value.nm) {
          return Limits(standard.conditions[i], bound);
        }
      }
      return {};
    default:
      return {};
  }
}

statistics::SpecificationLimits LimitsOf(const CieLimits& limits, Quantity quantity) {
  if (!IsCie(quantity)) {
    return {};
  }
  if (quantity == Quantity::kCieHue) {
    return HueLimits(limits.hueAngle);
  }
  constexpr std::array kGroups{
      std::pair{Quantity::kCieLuminousReflectance, &CieLimits::luminousReflectance},
      std::pair{Quantity::kCieL, &CieLimits::L},
      std::pair{Quantity::kCieA, &CieLimits::a},
      std::pair{Quantity::kCieB, &CieLimits::b},
      std::pair{Quantity::kCieChroma, &CieLimits::chroma},
      std::pair{Quantity::kCieDeltaE00, &CieLimits::deltaE00}};
  const auto group =
      std::ranges::find(kGroups, quantity, [](const auto& each) { return each.first; });
  return Limits(limits.*group->second, PhysicalBound(quantity));
}

std::vector<double> ValueSeries::Values() const {
  std::vector<double> values;
  values.reserve(points.size());
  for (const ValuePoint& point : points) {
    values.push_back(point.value);
  }
  return values;
}

Answer<ValueSeries> LoadSeries(const RecordSource& source, RecordQuery query,
                               const RecordValue& value) {
  Answer<ValueSeries> series;
  const int limit = query.limit;
  ++query.limit;  // one more tells whether there are more
  int found = 0;
  series.fault = source.Visit(query, [&](const StoredRow& row) {
    if (++found > limit) {
      series.value.more = true;
      return;
    }
    const std::optional<SampleRecord> sample = ToSample(row.row);
    if (sample && IsCie(value.quantity)) {
      TakeCie(*sample, found == 1, series.value);
    }
    const std::optional<double> number = sample ? ValueOf(*sample, value) : std::nullopt;
    if (!number) {
      ++series.value.without;
      return;
    }
    if (!series.value.recipes.contains(sample->recipe)) {
      series.value.recipes << sample->recipe;
    }
    series.value.points.push_back({row.row.id, sample->measuredAt.toMSecsSinceEpoch(),
                                   TimeWithOffset(sample->measuredAt), sample->station, sample->lot,
                                   sample->operatorName, sample->sampleNumber, *number});
  });
  std::ranges::reverse(series.value.points);
  if (IsHue(value.quantity)) {
    JoinHues(series.value.points, &ValuePoint::value);
  }
  return series;
}

statistics::SpecificationLimits NearestTurn(statistics::SpecificationLimits limits, double hue) {
  constexpr double kCircle = 360.0;
  if (limits.lower && limits.upper) {
    const double turn =
        kCircle * std::round((hue - 0.5 * (*limits.lower + *limits.upper)) / kCircle);
    *limits.lower += turn;
    *limits.upper += turn;
  }
  return limits;
}

double MeanHue(double sines, double cosines) {
  const double mean = std::atan2(sines, cosines) * 180.0 / std::numbers::pi;
  return mean < 0.0 ? mean + 360.0 : mean;
}

}  // namespace vexa
