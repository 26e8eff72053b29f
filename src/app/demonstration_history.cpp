// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/demonstration_history.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <random>
#include <vector>

#include "records/daily_check_events.h"
#include "records/gauge_plan.h"

namespace vexa {
namespace {

const QString kOperator = QStringLiteral("demo");
constexpr int kDays = 26;
constexpr unsigned kSeed = 4;  // one without a false alarm

class Noise {
 public:
  double operator()(double sigma) { return sigma * normal_(random_); }

 private:
  std::mt19937 random_{kSeed};
  std::normal_distribution<double> normal_;
};

// Of one nanometre: 200 electrons a count, and one count of the readout (docs/simulator.md).
double CountsSigma(double counts) {
  constexpr double kElectrons = 200.0;
  return std::sqrt(std::abs(counts) / kElectrons + 1.0);
}

// How far each value of a check scatters.
CheckValues SigmasOf(const VEXATYPE& state, const CheckValues& values,
                     const CheckConditions& conditions) {
  CheckValues sigmas{};
  const auto light = [&state](int nm) {
    return std::hypot(CountsSigma(state.reference[nm]), CountsSigma(state.background[nm]));
  };
  for (std::size_t i = 0; i < conditions.wavelengthsNm.size(); ++i) {
    const int nm = conditions.wavelengthsNm[i] + conditions.calibrationShiftNm;
    const double counts = state.reference[nm] - state.background[nm];
    sigmas[i] = std::abs(values[i]) * std::sqrt(2.0) * light(nm) / counts;
  }
  const auto put = [&](CheckValue value, double sigma) {
    sigmas[static_cast<std::size_t>(value)] = sigma;
  };
  put(CheckValue::kLamp440, light(440 + conditions.calibrationShiftNm));
  put(CheckValue::kLamp600, light(600 + conditions.calibrationShiftNm));
  put(CheckValue::kLamp840, light(840 + conditions.calibrationShiftNm));
  const double root = std::sqrt(static_cast<double>(RawSpectrum::kCount));
  put(CheckValue::kDarkLevel,
      CountsSigma(values[static_cast<std::size_t>(CheckValue::kDarkLevel)]) / root);
  put(CheckValue::kDarkNoise, values[static_cast<std::size_t>(CheckValue::kDarkNoise)] / root);
  return sigmas;
}

QList<Row> CheckRows(const VEXATYPE& state, const QDateTime& now, const QString& station,
                     Noise& noise) {
  const CheckConditions conditions = ConditionsOfCheck(state, CheckConditions().wavelengthsNm);
  const CheckValues values =
      ComputeCheckValues(state.background, state.reference, state.Slot(1)->reflectance, conditions);
  const CheckValues sigmas = SigmasOf(state, values, conditions);
  QList<Row> rows;
  std::vector<DailyCheck> checks;
  std::optional<CheckLimits> limits;
  for (int day = 0; day < kDays; ++day) {
    DailyCheck check{
        {}, QDateTime(now.date().addDays(day - kDays), {8, 0}), kOperator, conditions, values};
    for (std::size_t i = 0; i < check.values.size(); ++i) {
      check.values[i] += noise(sigmas[i]);
    }
    checks.push_back(check);
    rows << ToRow(CheckEvent({check, JudgeCheck(checks, limits)}, station));
    if (day + 1 == kFewestCheckDays) {
      const QDateTime frozen = check.time.addSecs(600);
      limits = ComputeCheckLimits(checks, conditions, frozen).limits;
      if (limits) {
        rows << ToRow(LimitsEvent(*limits, {station, kOperator, kOperator, frozen}));
      }
    }
  }
  return rows;
}

QList<Row> GaugeRows(const QDateTime& now, const QString& station, Noise& noise) {
  constexpr double kMean = 1.2;  // luminous reflectance in percent, and what makes it scatter
  constexpr double kParts = 0.12;
  constexpr double kOperators = 0.008;
  constexpr double kRepeats = 0.015;
  GaugePlan plan;
  plan.begun = QDateTime(now.date().addDays(-1), {13, 0});
  plan.name = kOperator;
  plan.operators = QStringLiteral("A,B,C").split(u',');
  plan.tolerance = 1.0;
  plan.seed = kSeed;
  const Row row = ToRow(PlanEvent(plan, station));
  plan.id = row.id;
  std::vector<double> parts(static_cast<std::size_t>(plan.parts));
  std::vector<double> operators(static_cast<std::size_t>(plan.operators.size()));
  std::ranges::generate(parts, [&noise] { return noise(kParts); });
  std::ranges::generate(operators, [&noise] { return noise(kOperators); });
  QList<Row> rows{row};
  const std::vector<GaugeTask> order = OrderOf(plan);
  for (std::size_t place = 0; place < order.size(); ++place) {
    const GaugeTask& task = order[place];
    const double value = kMean + parts[static_cast<std::size_t>(task.part)] +
                         operators[static_cast<std::size_t>(task.gaugeOperator)] + noise(kRepeats);
    const QDateTime time = plan.begun.addSecs(60 * static_cast<qint64>(place + 1));
    rows << ToRow(ReadingEvent(plan, {place, value, {}, {}, time, station}));
  }
  return rows;
}

}  // namespace

bool KeepDemonstrationHistory(const VEXATYPE& state, const QDateTime& now, const QString& storePath,
                              const QString& station) {
  const Answer<DailyCheckHistory> known = LoadDailyChecks(storePath);
  if (!known || !known.value.checks.empty()) {
    return static_cast<bool>(known);
  }
  Noise noise;
  QList<Row> rows = CheckRows(state, now, station, noise);
  rows << GaugeRows(now, station, noise);
  RecordStore store;
  return store.Open(storePath, RecordStore::Mode::kWrite) == StoreFault::kNone &&
         static_cast<bool>(store.Append(rows));
}

}  // namespace vexa
