// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/result_json.h"

#include <algorithm>
#include <cmath>
#include <limits>

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

QJsonArray GroupsJson(const GroupJudgements& groups) {
  QJsonArray array;
  for (std::size_t i = 0; i < groups.size(); ++i) {
    const std::optional<double> margin = groups[i].margin;
    array.append(
        QJsonObject{{QStringLiteral("group"), QLatin1String(kGroupNames[i])},
                    {QStringLiteral("verdict"), PassedWord(groups[i].passed)},
                    {QStringLiteral("margin"), margin ? NumberJson(*margin) : QJsonValue()}});
  }
  return array;
}

GroupJudgements GroupsOf(const QJsonArray& array) {
  GroupJudgements groups;
  for (const auto& value : array) {
    const QJsonObject object = value.toObject();
    const auto name = std::ranges::find_if(kGroupNames, [&object](const char* known) {
      return object[QStringLiteral("group")] == QLatin1String(known);
    });
    if (name == kGroupNames.end()) {
      continue;
    }
    GroupJudgement& group = groups[static_cast<std::size_t>(name - kGroupNames.begin())];
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

}  // namespace vexa
