// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>
#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "measurement/vexatype.h"
#include "statistics/control_chart.h"

namespace vexa {

/// What the daily check charts, in the order of its values.
enum class CheckValue {
  kFirstReflectance,  ///< percent, of the check piece at the three wavelengths of the check
  kSecondReflectance,
  kThirdReflectance,
  kLamp440,  ///< counts of the reference above the background
  kLamp600,
  kLamp840,
  kDarkLevel,  ///< mean counts of the background
  kDarkNoise,  ///< of the background from nanometre to nanometre, see ComputeCheckValues
};
inline constexpr std::size_t kCheckValueCount = 8;
using CheckValues = std::array<double, kCheckValueCount>;

/// What checks must share to be compared.
struct CheckConditions {
  std::array<int, 3> wavelengthsNm{450, 550, 650};  ///< 440..840
  std::int16_t samplingTimeMs = 0;
  std::int16_t averagingCount = 0;
  std::int16_t calibrationShiftNm = 0;

  bool operator==(const CheckConditions&) const = default;
};

/// The name of a value, with its unit.
[[nodiscard]] QString CheckValueText(CheckValue value, const CheckConditions& conditions);

/// One check of the instrument.
struct DailyCheck {
  QString id;  ///< of its event; empty until it is kept
  QDateTime time;
  QString operatorName;
  CheckConditions conditions;
  CheckValues values{};
};

/// The values of a background, a reference and a check piece. The dark noise is the root of half
/// the mean square of the differences of neighbours (J. von Neumann, Annals of Mathematical
/// Statistics 12, 1941), which a slow slope does not raise.
[[nodiscard]] CheckValues ComputeCheckValues(const RawSpectrum& background,
                                             const RawSpectrum& reference,
                                             const ReflectanceSpectrum& checkPiece,
                                             const CheckConditions& conditions);

/// The conditions of a check that is made now.
[[nodiscard]] CheckConditions ConditionsOfCheck(const Settings& settings,
                                                const std::array<int, 3>& wavelengthsNm);

/// The limits that checks are judged by, as they were frozen.
struct CheckLimits {
  QDateTime frozenAt;
  CheckConditions conditions;
  int days = 0;  ///< that they come from
  std::array<statistics::ChartLimits, kCheckValueCount> lines;
};

/// Limits come from at least so many days.
inline constexpr int kFewestCheckDays = 20;

/// On how many days checks were made under the conditions, from `since` on (an invalid date: ever).
[[nodiscard]] int CountCheckDays(std::span<const DailyCheck> checks,
                                 const CheckConditions& conditions, const QDateTime& since = {});

/// Why no limits were made.
struct CheckLimitsRefusal {
  std::optional<CheckValue> value;  ///< whose; nothing when there are too few days
  statistics::Refusal why = statistics::Refusal::kTooFewValues;
};

/// Limits, or why there are none.
struct CheckLimitsResult {
  std::optional<CheckLimits> limits;
  CheckLimitsRefusal refusal;
};

/// Limits of the checks (the oldest first) under the conditions: of each day the last one counts.
/// `frozenAt` is when they begin to hold.
[[nodiscard]] CheckLimitsResult ComputeCheckLimits(std::span<const DailyCheck> checks,
                                                   const CheckConditions& conditions,
                                                   const QDateTime& frozenAt);

/// A rule (of the Western Electric ones) that a value broke.
struct CheckFinding {
  CheckValue value = CheckValue::kFirstReflectance;
  int rule = 0;

  bool operator==(const CheckFinding&) const = default;
};

/// Value and rule in words.
[[nodiscard]] QString FindingText(const CheckFinding& finding, const CheckConditions& conditions);

enum class CheckVerdict {
  kCollecting,       ///< there are no limits yet
  kOtherConditions,  ///< the limits were frozen under others
  kGreen,
  kRed,
};

struct CheckJudgement {
  CheckVerdict verdict = CheckVerdict::kCollecting;
  std::vector<CheckFinding> findings;
};

/// Judges the last of the checks (the oldest first, one at least) beside those since the limits
/// were frozen. A value that is not a number counts as beyond three sigma.
[[nodiscard]] CheckJudgement JudgeCheck(std::span<const DailyCheck> checks,
                                        const std::optional<CheckLimits>& limits);

}  // namespace vexa
