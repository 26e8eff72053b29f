// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>
#include <optional>
#include <span>

#include "colour/cie_colour.h"
#include "colour/colorimetry.h"
#include "optics/film_fit.h"
#include "optics/thickness.h"
#include "standards/cie_limits.h"
#include "standards/judgement.h"

namespace vexa {

using GroupJudgements = std::array<GroupJudgement, kStandardGroupCount>;

/// A number, or null when it is not finite.
[[nodiscard]] QJsonValue NumberJson(double value);
/// The number, or not a number for null.
[[nodiscard]] double NumberOf(const QJsonValue& value);
[[nodiscard]] QJsonArray NumbersJson(std::span<const double> values);

/// {"L": 0, "a": 0, "b": 0, "x": 0, "y": 0, "C": 0, "h": 0, "Rm": 0, "Y": 0}
[[nodiscard]] QJsonObject ColourJson(const ColourResult& colour);
[[nodiscard]] ColourResult ColourOf(const QJsonObject& object);

/// {"observer": 2, "illuminant": "D65", "X": 0, "Y": 0, "Z": 0, "x": 0, "y": 0, "L": 0, "a": 0,
/// "b": 0, "C": 0, "h": 0, "Rv": 0, "spread": 0}: the colour and what it was computed for; null
/// what could not be computed.
[[nodiscard]] QJsonObject CieJson(const std::optional<CieColour>& colour,
                                  const ColourSettings& settings);

/// What CieJson holds, not a number for null; nothing where there is no such object.
[[nodiscard]] std::optional<CieColour> CieOf(const std::optional<QJsonObject>& object);
/// What it was computed for, as "D65 / 2°".
[[nodiscard]] QString CieConditionsOf(const std::optional<QJsonObject>& object);
/// Adds that to those known already, unless it is among them.
void AddCieConditions(const std::optional<QJsonObject>& object, QStringList& known);

/// {"limits": {"Rv": {"lower": 0, "upper": 0.5}, ...}, "target": {"L": 0, "a": 0, "b": 0}}: the
/// limits that are on, by kCieLimitsEntries, each with the sides that are limited, and the target
/// where a difference to it is limited.
[[nodiscard]] QJsonObject CieLimitsJson(const CieLimits& limits);
/// What such an object holds; whatever it lacks has its usual value.
[[nodiscard]] CieLimits CieLimitsOf(const QJsonObject& object);

/// {"thickness": nm, "kind": "physical" or "optical", "first" and "second": {"wavelength", "value",
/// "index"}, "extrema": [{"wavelength", "reflectance", "kind": "P" or "V"}], "doubts": []}
[[nodiscard]] QJsonObject ThicknessJson(const ThicknessResult& result, const QStringList& doubts);
[[nodiscard]] ThicknessResult ThicknessOf(const QJsonObject& object);

/// {"outcome": "ok", "layers": [{"thickness": nm, "uncertainty", "statistical"}], "scale",
/// "offset", "spread", "index", "rms", "noise", "alternatives": [{"layers": [nm], "rms"}],
/// "warnings": []}
[[nodiscard]] QJsonObject FilmFitJson(const FilmFit& fit);

/// One object a group: {"group": "reflectance", "verdict": "OK", "NG" or "none", "margin": 0.1}
[[nodiscard]] QJsonArray GroupsJson(const GroupJudgements& groups);
[[nodiscard]] GroupJudgements GroupsOf(const QJsonArray& array);
/// Likewise, named as in kCieLimitsEntries.
[[nodiscard]] QJsonArray CieGroupsJson(const CieJudgement& groups);
[[nodiscard]] CieJudgement CieGroupsOf(const QJsonArray& array);

}  // namespace vexa
