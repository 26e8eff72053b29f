// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <cmath>
#include <functional>
#include <numbers>
#include <optional>
#include <vector>

#include "records/record_source.h"
#include "standards/cie_limits.h"
#include "standards/standard_set.h"
#include "statistics/capability.h"

namespace vexa {

/// What of a record a statistic is about. The Cie ones are those that another floor has written
/// beside the instrument's own, and are there only where it has.
enum class Quantity {
  kLuminousReflectance,
  kAverageReflectance,
  kL,
  kA,
  kB,
  kChroma,
  kHue,
  kThickness,
  kFitThickness,  ///< of the first layer, where the film fit is ok
  kReflectance,   ///< at a wavelength
  kCieLuminousReflectance,
  kCieL,
  kCieA,
  kCieB,
  kCieChroma,
  kCieHue,
  kCieDeltaE00,  ///< to the target that the recipe of the record names
};
inline constexpr int kQuantityCount = static_cast<int>(Quantity::kCieDeltaE00) + 1;

/// True for the values of the CIE colour, false for the instrument's own.
[[nodiscard]] constexpr bool IsCie(Quantity quantity) {
  return quantity >= Quantity::kCieLuminousReflectance;
}
[[nodiscard]] constexpr bool IsHue(Quantity quantity) {
  return quantity == Quantity::kHue || quantity == Quantity::kCieHue;
}

/// A quantity, with its wavelength (440..840 nm) where it has one.
struct RecordValue {
  Quantity quantity = Quantity::kLuminousReflectance;
  int nm = 550;

  bool operator==(const RecordValue&) const = default;
};

/// The name of a quantity, and its unit ("%", "nm", "°" or nothing).
[[nodiscard]] QString QuantityName(Quantity quantity);
[[nodiscard]] QString QuantityUnit(Quantity quantity);
/// Name with wavelength and unit, as "反射率 550 nm [%]".
[[nodiscard]] QString ValueTitle(const RecordValue& value);
/// A key of files, the same in every language.
[[nodiscard]] QString QuantityKey(Quantity quantity);
[[nodiscard]] std::optional<Quantity> QuantityOf(const QString& key);

/// The value of a sample; nothing where it was not computed.
[[nodiscard]] std::optional<double> ValueOf(const SampleRecord& sample, const RecordValue& value);

/// The value that none can fall below; nothing where there is none.
[[nodiscard]] std::optional<double> PhysicalBound(Quantity quantity);

/// The limits that the standard sets for the value; a lower one at or below the physical bound is
/// none, hues through 0 begin below it. Limits of the instrument's own values are none
/// for the Cie ones. Those of a reflectance are the ones of a condition at exactly its wavelength.
[[nodiscard]] statistics::SpecificationLimits LimitsOf(const StandardSet& standard,
                                                       const RecordValue& value);

/// Likewise those that a recipe sets for a CIE value.
[[nodiscard]] statistics::SpecificationLimits LimitsOf(const CieLimits& limits, Quantity quantity);

/// One point of a chart, and the record that it stands for.
struct ValuePoint {
  QString id;
  qint64 utcMs = 0;
  QString time;  ///< ISO 8601 with offset
  QString station;
  QString lot;
  QString operatorName;
  QString sampleNumber;
  double value = 0.0;
};

struct ValueSeries {
  std::vector<ValuePoint> points;  ///< the oldest first
  qsizetype without = 0;           ///< records that do not have the value
  bool more = false;               ///< older ones were left out beyond the limit of the query
  CieLimits cieLimits = {};        ///< what the newest record was judged by
  bool severalCieLimits = false;   ///< others were judged by other ones
  QStringList recipes = {};        ///< of the points, each once, the newest first
  QStringList cieConditions = {};  ///< under which the CIE colours were computed, each once

  [[nodiscard]] std::vector<double> Values() const;
};

/// The value of every sample that the query finds, the newest `query.limit` of them. Hues are taken
/// on from one another, so that a series about 0 degrees does not break: each lies within 180
/// degrees of the mean direction, and may be below 0 or above 360.
[[nodiscard]] Answer<ValueSeries> LoadSeries(const RecordSource& source, RecordQuery query,
                                             const RecordValue& value);

/// Limits of a hue, moved by whole turns to where `hue` lies.
[[nodiscard]] statistics::SpecificationLimits NearestTurn(statistics::SpecificationLimits limits,
                                                          double hue);

/// The direction of a sum of unit vectors, in degrees from 0 to 360.
[[nodiscard]] double MeanHue(double sines, double cosines);

/// Hue angles in degrees put beside their mean direction, as LoadSeries does.
template <typename Point>
void JoinHues(std::vector<Point>& points, double Point::*hue) {
  constexpr double kRadian = std::numbers::pi / 180.0;
  double sines = 0.0;
  double cosines = 0.0;
  for (const Point& point : points) {
    sines += std::sin(point.*hue * kRadian);
    cosines += std::cos(point.*hue * kRadian);
  }
  const double mean = MeanHue(sines, cosines);
  for (Point& point : points) {
    point.*hue -= 360.0 * std::round((point.*hue - mean) / 360.0);
  }
}

}  // namespace vexa
