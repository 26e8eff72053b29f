// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QStringList>
#include <optional>
#include <vector>

#include "records/record_value.h"
#include "statistics/gauge_study.h"

namespace vexa {

/// How a gauge study is to be measured: every operator measures every part so many times.
struct GaugePlan {
  static constexpr int kMostParts = 50;
  static constexpr int kMostOperators = 10;
  static constexpr int kMostRepeats = 10;

  QString id;  ///< of its event; empty until it is kept
  QDateTime begun;
  QString name;
  RecordValue value;
  int parts = 10;  ///< numbered from 1
  QStringList operators;
  int repeats = 3;
  std::optional<double> tolerance;  ///< width
  quint32 seed = 0;                 ///< of the order

  /// Two parts, operators and repeats at least, and not more than the most; operators with
  /// different names.
  [[nodiscard]] bool IsValid() const;
};

/// One measurement of a plan; all count from 0.
struct GaugeTask {
  int part = 0;
  int gaugeOperator = 0;
  int repeat = 0;

  bool operator==(const GaugeTask&) const = default;
};

/// The measurements of a valid plan in the order in which they are made: one repeat after the
/// other, in each the operators in random order, and each of them all parts in random order. The
/// same plan has the same order on every machine.
[[nodiscard]] std::vector<GaugeTask> OrderOf(const GaugePlan& plan);

/// A plan with what was measured of it.
struct GaugeSession {
  GaugePlan plan;
  std::vector<GaugeTask> order;
  std::vector<std::optional<double>> values;  ///< in that order
  QStringList cieConditions;                  ///< of CIE values, each once

  explicit GaugeSession(const GaugePlan& measured);

  /// The measurement that comes next; nothing when all are made.
  [[nodiscard]] std::optional<std::size_t> Next() const;
  [[nodiscard]] std::size_t Done() const;
};

/// Readings with the names of their parts and operators, and what they are of.
struct GaugeReadings {
  RecordValue value;
  QStringList parts;
  QStringList operators;
  std::vector<statistics::GaugeReading> readings;  ///< by the places of the names; see JoinHues
  QStringList cieConditions;                       ///< of CIE values, each once
};

/// What one measurement of a plan gave.
struct PlannedReading {
  std::size_t place = 0;  ///< in the order
  double value = 0.0;
  QString sampleId;
  QString cieConditions;  ///< empty unless the value is a CIE one
  QDateTime time;
  QString station;
};

[[nodiscard]] GaugeReadings ReadingsOf(const GaugeSession& session);
/// Of the values of records: the sample number is the part.
[[nodiscard]] GaugeReadings ReadingsOf(const ValueSeries& series, const RecordValue& value);

/// The studies of a store, the newest first; without a store there are none.
[[nodiscard]] Answer<std::vector<GaugeSession>> LoadGaugeSessions(const QString& storePath);

/// The events of a study: its plan, and one measurement of it. A later measurement of the same
/// place stands for the earlier one.
[[nodiscard]] EventRecord PlanEvent(const GaugePlan& plan, const QString& station);
[[nodiscard]] EventRecord ReadingEvent(const GaugePlan& plan, const PlannedReading& reading);

/// The sample number of a measurement: name and place from 1, which tell nothing of the part. Its
/// reading names the record and the part.
[[nodiscard]] QString BlindNumber(const GaugePlan& plan, std::size_t place);

}  // namespace vexa
