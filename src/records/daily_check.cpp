// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/daily_check.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "base/translation.h"

namespace vexa {
namespace {

constexpr std::array<int, 3> kLampNm{440, 600, 840};

std::size_t IndexOf(CheckValue value) {
  return static_cast<std::size_t>(value);
}

bool Counts(const DailyCheck& check, const CheckConditions& conditions, const QDateTime& since) {
  return check.conditions == conditions && (!since.isValid() || check.time > since);
}

// The values that the rules look at: those since the limits hold, under their conditions.
std::vector<double> SeriesOf(std::span<const DailyCheck> checks, std::size_t value,
                             const CheckLimits& limits) {
  std::vector<double> series;
  series.reserve(checks.size());
  for (const DailyCheck& check : checks) {
    if (Counts(check, limits.conditions, limits.frozenAt)) {
      series.push_back(check.values[value]);
    }
  }
  return series;
}

}  // namespace

QString CheckValueText(CheckValue value, const CheckConditions& conditions) {
  const std::size_t index = IndexOf(value);
  if (value <= CheckValue::kThirdReflectance) {
    return Text::tr("反射率 %1 nm [%]").arg(conditions.wavelengthsNm[index]);
  }
  if (value <= CheckValue::kLamp840) {
    return Text::tr("光量 %1 nm [ｶｳﾝﾄ]").arg(kLampNm[index - IndexOf(CheckValue::kLamp440)]);
  }
  return value == CheckValue::kDarkLevel ? Text::tr("暗レベル [ｶｳﾝﾄ]")
                                         : Text::tr("暗ノイズ [ｶｳﾝﾄ]");
}

CheckValues ComputeCheckValues(const RawSpectrum& background, const RawSpectrum& reference,
                               const ReflectanceSpectrum& checkPiece,
                               const CheckConditions& conditions) {
  CheckValues values{};
  for (std::size_t i = 0; i < conditions.wavelengthsNm.size(); ++i) {
    values[i] = checkPiece[conditions.wavelengthsNm[i]];
  }
  for (std::size_t i = 0; i < kLampNm.size(); ++i) {
    const int nm = kLampNm[i] + conditions.calibrationShiftNm;
    values[IndexOf(CheckValue::kLamp440) + i] = reference[nm] - background[nm];
  }
  const auto counts = background.Values();
  double sum = counts[0];
  double squares = 0.0;
  for (std::size_t i = 1; i < counts.size(); ++i) {
    sum += counts[i];
    squares += (counts[i] - counts[i - 1]) * (counts[i] - counts[i - 1]);
  }
  const auto count = static_cast<double>(counts.size());
  values[IndexOf(CheckValue::kDarkLevel)] = sum / count;
  values[IndexOf(CheckValue::kDarkNoise)] = std::sqrt(squares / (2.0 * (count - 1.0)));
  return values;
}

CheckConditions ConditionsOfCheck(const Settings& settings,
                                  const std::array<int, 3>& wavelengthsNm) {
  return {wavelengthsNm, settings.instrument.samplingTimeMs, settings.instrument.averagingCount,
          settings.instrument.calibrationShiftNm};
}

int CountCheckDays(std::span<const DailyCheck> checks, const CheckConditions& conditions,
                   const QDateTime& since) {
  std::set<QDate> days;
  for (const DailyCheck& check : checks) {
    if (Counts(check, conditions, since)) {
      days.insert(check.time.date());
    }
  }
  return static_cast<int>(days.size());
}

CheckLimitsResult ComputeCheckLimits(std::span<const DailyCheck> checks,
                                     const CheckConditions& conditions, const QDateTime& frozenAt) {
  std::vector<const DailyCheck*> days;
  days.reserve(checks.size());
  for (const DailyCheck& check : checks) {
    if (!Counts(check, conditions, {})) {
      continue;
    }
    if (!days.empty() && days.back()->time.date() == check.time.date()) {
      days.back() = &check;
    } else {
      days.push_back(&check);
    }
  }
  if (days.size() < static_cast<std::size_t>(kFewestCheckDays)) {
    return {};
  }
  CheckLimits limits{frozenAt, conditions, static_cast<int>(days.size()), {}};
  for (std::size_t value = 0; value < kCheckValueCount; ++value) {
    std::vector<double> series;
    series.reserve(days.size());
    for (const DailyCheck* day : days) {
      series.push_back(day->values[value]);
    }
    const auto lines = statistics::ComputeLimits(series);
    if (!lines) {
      return {std::nullopt, {static_cast<CheckValue>(value), lines.Why()}};
    }
    limits.lines[value] = *lines;
  }
  return {limits, {}};
}

QString FindingText(const CheckFinding& finding, const CheckConditions& conditions) {
  const auto rules = statistics::WesternElectricRules();
  const auto rule = std::ranges::find(rules, finding.rule, &statistics::RunRule::number);
  return CheckValueText(finding.value, conditions) + QStringLiteral(": ") +
         (rule == rules.end() ? QString::number(finding.rule) : statistics::RuleText(*rule));
}

CheckJudgement JudgeCheck(std::span<const DailyCheck> checks,
                          const std::optional<CheckLimits>& limits) {
  const DailyCheck& last = checks.back();
  if (!limits) {
    return {};
  }
  if (!Counts(last, limits->conditions, limits->frozenAt)) {
    return {CheckVerdict::kOtherConditions, {}};
  }
  CheckJudgement judgement{CheckVerdict::kGreen, {}};
  for (std::size_t value = 0; value < kCheckValueCount; ++value) {
    const std::vector<double> series = SeriesOf(checks, value, *limits);
    const auto found =
        statistics::JudgeValues(limits->lines[value], series, statistics::WesternElectricRules());
    if (!found) {
      judgement.findings.push_back({static_cast<CheckValue>(value), 1});
      continue;
    }
    for (const statistics::Signal& signal : *found) {
      if (signal.index == series.size()) {
        judgement.findings.push_back({static_cast<CheckValue>(value), signal.rule});
      }
    }
  }
  if (!judgement.findings.empty()) {
    judgement.verdict = CheckVerdict::kRed;
  }
  return judgement;
}

}  // namespace vexa
