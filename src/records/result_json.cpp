// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/result_json.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "colour/cie_parts.h"
#include "colour/colour_tables.h"
#include "colour/colour_values.h"

namespace vexa {
namespace {

constexpr std::array<const char*, kStandardGroupCount> kGroupNames{
    "reflectance", "averageReflectance", "luminousReflectance", "wavelengthValue", "chroma",
    "hueAngle"};

QJsonObject PointJson(const ExtremumPoint& point, double index) {
  return {{QStringLiteral("wavelength"), NumberJson(point.wavelengthNm)},
          {QStringLiteral("value"), NumberJson(point.reflectance)},
          {QStringLiteral("index"), NumberJson(index)}};
}

void TakePoint(const QJsonObject& object, ExtremumPoint& point, double& index) {
  point = {NumberOf(object[QStringLiteral("wavelength")]),
           NumberOf(object[QStringLiteral("value")])};
  index = NumberOf(object[QStringLiteral("index")]);
}

QString PassedWord(const std::optional<bool>& passed) {
  if (!passed) {
    return QStringLiteral("none");
  }
  return *passed ? QStringLiteral("OK") : QStringLiteral("NG");
}

const QString kLimits = QStringLiteral("limits");
const QString kTarget = QStringLiteral("target");
const QString kLower = QStringLiteral("lower");
const QString kUpper = QStringLiteral("upper");

std::array<const char*, kCieGroupCount> CieGroupNames() {
  std::array<const char*, kCieGroupCount> names{};
  std::ranges::transform(kCieLimitsEntries, names.begin(), &CieLimitsEntry::name);
  return names;
}

template <std::size_t kCount>
QJsonArray Json(const std::array<GroupJudgement, kCount>& groups,
                const std::array<const char*, kCount>& names) {
  QJsonArray array;
  for (std::size_t i = 0; i < kCount; ++i) {
    const std::optional<double> margin = groups[i].margin;
    array.append(
        QJsonObject{{QStringLiteral("group"), QLatin1String(names[i])},
                    {QStringLiteral("verdict"), PassedWord(groups[i].passed)},
                    {QStringLiteral("margin"), margin ? NumberJson(*margin) : QJsonValue()}});
  }
  return array;
}

template <std::size_t kCount>
std::array<GroupJudgement, kCount> JudgementsOf(const QJsonArray& array,
                                                const std::array<const char*, kCount>& names) {
  std::array<GroupJudgement, kCount> groups;
  for (const auto& value : array) {
    const QJsonObject object = value.toObject();
    const auto name = std::ranges::find_if(names, [&object](const char* known) {
      return object[QStringLiteral("group")] == QLatin1String(known);
    });
    if (name == names.end()) {
      continue;
    }
    GroupJudgement& group = groups[static_cast<std::size_t>(name - names.begin())];
    if (const QString word = object[QStringLiteral("verdict")].toString();
        word == QLatin1String("OK") || word == QLatin1String("NG")) {
      group.passed = word == QLatin1String("OK");
    }
    if (const QJsonValue margin = object[QStringLiteral("margin")]; margin.isDouble()) {
      group.margin = margin.toDouble();
    }
  }
  return groups;
}

}  // namespace

QJsonValue NumberJson(double value) {
  return std::isfinite(value) ? QJsonValue(value) : QJsonValue();
}

double NumberOf(const QJsonValue& value) {
  return value.toDouble(std::numeric_limits<double>::quiet_NaN());
}

QJsonArray NumbersJson(std::span<const double> values) {
  QJsonArray array;
  for (const double value : values) {
    array.append(NumberJson(value));
  }
  return array;
}

QJsonObject ColourJson(const ColourResult& colour) {
  QJsonObject object;
  for (const ColourValue& part : kColourValues) {
    object[QLatin1String(part.name)] = NumberJson(colour.*part.member);
  }
  return object;
}

ColourResult ColourOf(const QJsonObject& object) {
  ColourResult colour;
  for (const ColourValue& part : kColourValues) {
    colour.*part.member = NumberOf(object[QLatin1String(part.name)]);
  }
  return colour;
}

QJsonObject ThicknessJson(const ThicknessResult& result, const QStringList& doubts) {
  QJsonArray extrema;
  for (const Extremum& extremum : result.extrema.Found()) {
    extrema.append(QJsonObject{
        {QStringLiteral("wavelength"), NumberJson(extremum.point.wavelengthNm)},
        {QStringLiteral("reflectance"), NumberJson(extremum.point.reflectance)},
        {QStringLiteral("kind"), extremum.maximum ? QStringLiteral("P") : QStringLiteral("V")}});
  }
  return {{QStringLiteral("thickness"), NumberJson(result.thicknessNm)},
          {QStringLiteral("kind"),
           result.physical ? QStringLiteral("physical") : QStringLiteral("optical")},
          {QStringLiteral("first"), PointJson(result.first, result.firstIndex)},
          {QStringLiteral("second"), PointJson(result.second, result.secondIndex)},
          {QStringLiteral("extrema"), extrema},
          {QStringLiteral("doubts"), QJsonArray::fromStringList(doubts)}};
}

ThicknessResult ThicknessOf(const QJsonObject& object) {
  ThicknessResult result;
  result.thicknessNm = NumberOf(object[QStringLiteral("thickness")]);
  result.physical = object[QStringLiteral("kind")] == QStringLiteral("physical");
  TakePoint(object[QStringLiteral("first")].toObject(), result.first, result.firstIndex);
  TakePoint(object[QStringLiteral("second")].toObject(), result.second, result.secondIndex);
  for (const auto& value : object[QStringLiteral("extrema")].toArray()) {
    if (static_cast<std::size_t>(result.extrema.count) == result.extrema.entries.size()) {
      break;
    }
    const QJsonObject entry = value.toObject();
    result.extrema.entries[static_cast<std::size_t>(result.extrema.count++)] = {
        {NumberOf(entry[QStringLiteral("wavelength")]),
         NumberOf(entry[QStringLiteral("reflectance")])},
        entry[QStringLiteral("kind")] == QStringLiteral("P")};
  }
  return result;
}

QJsonObject FilmFitJson(const FilmFit& fit) {
  QJsonArray layers;
  for (const FittedLayer& layer : fit.layers) {
    layers.append(QJsonObject{{QStringLiteral("thickness"), NumberJson(layer.thicknessNm)},
                              {QStringLiteral("uncertainty"), NumberJson(layer.uncertaintyNm)},
                              {QStringLiteral("statistical"), NumberJson(layer.statisticalNm)}});
  }
  QJsonArray alternatives;
  for (const FitAlternative& alternative : fit.alternatives) {
    alternatives.append(
        QJsonObject{{QStringLiteral("layers"), NumbersJson(alternative.thicknessesNm)},
                    {QStringLiteral("rms"), NumberJson(alternative.rms)}});
  }
  return {{QStringLiteral("outcome"), FitOutcomeName(fit.outcome)},
          {QStringLiteral("layers"), layers},
          {QStringLiteral("scale"), NumberJson(fit.scale)},
          {QStringLiteral("offset"), NumberJson(fit.offset)},
          {QStringLiteral("spread"), NumberJson(fit.spread)},
          {QStringLiteral("index"), NumberJson(fit.index)},
          {QStringLiteral("rms"), NumberJson(fit.rms)},
          {QStringLiteral("noise"), NumberJson(fit.noise)},
          {QStringLiteral("alternatives"), alternatives},
          {QStringLiteral("warnings"), QJsonArray::fromStringList(fit.warnings)}};
}

QJsonArray GroupsJson(const GroupJudgements& groups) {
  return Json(groups, kGroupNames);
}

GroupJudgements GroupsOf(const QJsonArray& array) {
  return JudgementsOf(array, kGroupNames);
}

QJsonObject CieJson(const std::optional<CieColour>& colour, const ColourSettings& settings) {
  QJsonObject object{{QStringLiteral("observer"), settings.observer2Deg ? 2 : 10},
                     {QStringLiteral("illuminant"), IlluminantText(settings.illuminant)}};
  for (const CiePart& part : kCieParts) {
    object[QLatin1String(part.name)] = colour ? NumberJson((*colour).*part.value) : QJsonValue();
  }
  return object;
}

std::optional<CieColour> CieOf(const std::optional<QJsonObject>& object) {
  if (!object) {
    return std::nullopt;
  }
  CieColour colour;
  for (const CiePart& part : kCieParts) {
    colour.*part.value = NumberOf((*object)[QLatin1String(part.name)]);
  }
  return colour;
}

QString CieConditionsOf(const std::optional<QJsonObject>& object) {
  return object ? QStringLiteral("%1 / %2°")
                      .arg((*object)[QStringLiteral("illuminant")].toString())
                      .arg((*object)[QStringLiteral("observer")].toInt())
                : QString();
}

void AddCieConditions(const std::optional<QJsonObject>& object, QStringList& known) {
  if (const QString conditions = CieConditionsOf(object);
      !conditions.isEmpty() && !known.contains(conditions)) {
    known << conditions;
  }
}

QJsonObject CieLimitsJson(const CieLimits& limits) {
  QJsonObject ranges;
  for (const CieLimitsEntry& entry : kCieLimitsEntries) {
    if (const StandardLimits& range = limits.*entry.limits; range.enabled) {
      QJsonObject sides;
      for (const auto& [name, limit] :
           {std::pair(kLower, range.lower), std::pair(kUpper, range.upper)}) {
        if (std::isfinite(limit)) {
          sides[name] = limit;
        }
      }
      ranges[QLatin1String(entry.name)] = sides;
    }
  }
  QJsonObject object{{kLimits, ranges}};
  if (limits.deltaE00.enabled) {
    object[kTarget] = QJsonObject{{QStringLiteral("L"), limits.target.L},
                                  {QStringLiteral("a"), limits.target.a},
                                  {QStringLiteral("b"), limits.target.b}};
  }
  return object;
}

CieLimits CieLimitsOf(const QJsonObject& object) {
  CieLimits limits;
  const QJsonObject ranges = object[kLimits].toObject();
  for (const CieLimitsEntry& entry : kCieLimitsEntries) {
    const QJsonValue range = ranges[QLatin1String(entry.name)];
    StandardLimits& named = limits.*entry.limits;
    named = {range.isObject(), range[kUpper].toDouble(named.upper),
             range[kLower].toDouble(named.lower)};
  }
  const QJsonValue target = object[kTarget];
  limits.target = {target[QStringLiteral("L")].toDouble(), target[QStringLiteral("a")].toDouble(),
                   target[QStringLiteral("b")].toDouble()};
  return limits;
}

QJsonArray CieGroupsJson(const CieJudgement& groups) {
  return Json(groups, CieGroupNames());
}

CieJudgement CieGroupsOf(const QJsonArray& array) {
  return JudgementsOf(array, CieGroupNames());
}

}  // namespace vexa
