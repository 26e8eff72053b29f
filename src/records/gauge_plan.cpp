// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/gauge_plan.h"

#include <QJsonArray>
#include <QSet>
#include <algorithm>
#include <cmath>
#include <numeric>
#include <random>

#include "records/record_store.h"

namespace vexa {
namespace {

const QString kPlan = QStringLiteral("gauge-plan");
const QString kReading = QStringLiteral("gauge-reading");

constexpr int kMostPlans = 200;
constexpr int kMostReadings =
    2 * GaugePlan::kMostParts * GaugePlan::kMostOperators * GaugePlan::kMostRepeats;

// The standard's own shuffle differs from library to library.
void Shuffle(std::vector<int>& places, std::mt19937& random) {
  for (std::size_t left = places.size(); left > 1; --left) {
    const auto most = static_cast<std::uint32_t>(left);
    constexpr std::uint32_t kLargest = 0xffffffff;
    const std::uint32_t fair = kLargest - kLargest % most;
    std::uint32_t drawn = 0;
    do {
      drawn = static_cast<std::uint32_t>(random());
    } while (drawn >= fair);
    std::swap(places[left - 1], places[drawn % most]);
  }
}

std::vector<int> Shuffled(int count, std::mt19937& random) {
  std::vector<int> places(static_cast<std::size_t>(count));
  std::iota(places.begin(), places.end(), 0);
  Shuffle(places, random);
  return places;
}

std::optional<GaugePlan> PlanOf(const StoredRow& row, const EventRecord& event) {
  const QJsonObject& data = event.data;
  GaugePlan plan;
  plan.id = row.row.id;
  plan.begun = event.time;
  plan.name = data[QStringLiteral("name")].toString();
  const auto quantity = QuantityOf(data[QStringLiteral("value")].toString());
  plan.value.nm = data[QStringLiteral("wavelength")].toInt(plan.value.nm);
  plan.parts = data[QStringLiteral("parts")].toInt();
  plan.repeats = data[QStringLiteral("repeats")].toInt();
  for (const auto& name : data[QStringLiteral("operators")].toArray()) {
    plan.operators << name.toString();
  }
  if (const QJsonValue tolerance = data[QStringLiteral("tolerance")]; tolerance.isDouble()) {
    plan.tolerance = tolerance.toDouble();
  }
  plan.seed = static_cast<quint32>(data[QStringLiteral("seed")].toInteger());
  if (!quantity || !plan.IsValid()) {
    return std::nullopt;
  }
  plan.value.quantity = *quantity;
  return plan;
}

// The readings of a plan come newest first: the first of a place counts.
void TakeReadings(const QList<StoredRow>& rows, GaugeSession& session) {
  for (const StoredRow& row : rows) {
    const std::optional<EventRecord> event = ToEvent(row.row);
    const auto place =
        event ? event->data[QStringLiteral("place")].toInteger(-1) : static_cast<qint64>(-1);
    if (place < 0 || place >= static_cast<qint64>(session.values.size())) {
      continue;
    }
    std::optional<double>& value = session.values[static_cast<std::size_t>(place)];
    if (const QJsonValue read = event->data[QStringLiteral("value")]; !value && read.isDouble()) {
      value = read.toDouble();
      const QString conditions = event->data[QStringLiteral("cieConditions")].toString();
      if (!conditions.isEmpty() && !session.cieConditions.contains(conditions)) {
        session.cieConditions << conditions;
      }
    }
  }
}

bool IsOpen(const std::optional<double>& value) {
  return !value;
}

int PlaceOf(QStringList& names, const QString& name) {
  qsizetype place = names.indexOf(name);
  if (place < 0) {
    place = names.size();
    names << name;
  }
  return static_cast<int>(place);
}

}  // namespace

bool GaugePlan::IsValid() const {
  const auto within = [](qsizetype count, int most) { return count >= 2 && count <= most; };
  const QSet<QString> names(operators.begin(), operators.end());
  return within(parts, kMostParts) && within(operators.size(), kMostOperators) &&
         within(repeats, kMostRepeats) && names.size() == operators.size() &&
         !names.contains(QString());
}

std::vector<GaugeTask> OrderOf(const GaugePlan& plan) {
  std::mt19937 random(plan.seed);
  std::vector<GaugeTask> order;
  const auto operators = static_cast<int>(plan.operators.size());
  order.reserve(static_cast<std::size_t>(plan.parts) * static_cast<std::size_t>(operators) *
                static_cast<std::size_t>(plan.repeats));
  for (int repeat = 0; repeat < plan.repeats; ++repeat) {
    for (const int gaugeOperator : Shuffled(operators, random)) {
      for (const int part : Shuffled(plan.parts, random)) {
        order.push_back({part, gaugeOperator, repeat});
      }
    }
  }
  return order;
}

GaugeSession::GaugeSession(const GaugePlan& measured)
    : plan(measured), order(OrderOf(measured)), values(order.size()) {}

std::optional<std::size_t> GaugeSession::Next() const {
  const auto next = std::ranges::find_if(values, IsOpen);
  return next == values.end() ? std::nullopt
                              : std::optional(static_cast<std::size_t>(next - values.begin()));
}

std::size_t GaugeSession::Done() const {
  return values.size() - static_cast<std::size_t>(std::ranges::count_if(values, IsOpen));
}

GaugeReadings ReadingsOf(const GaugeSession& session) {
  GaugeReadings readings{session.plan.value, {}, session.plan.operators, {}, session.cieConditions};
  for (int part = 1; part <= session.plan.parts; ++part) {
    readings.parts << QString::number(part);
  }
  readings.readings.reserve(session.values.size());
  for (std::size_t i = 0; i < session.values.size(); ++i) {
    if (session.values[i]) {
      readings.readings.push_back(
          {session.order[i].part, session.order[i].gaugeOperator, *session.values[i]});
    }
  }
  if (IsHue(readings.value.quantity)) {
    JoinHues(readings.readings, &statistics::GaugeReading::value);
  }
  return readings;
}

GaugeReadings ReadingsOf(const ValueSeries& series, const RecordValue& value) {
  GaugeReadings readings;
  readings.value = value;
  readings.cieConditions = series.cieConditions;
  readings.readings.reserve(series.points.size());
  for (const ValuePoint& point : series.points) {
    readings.readings.push_back({PlaceOf(readings.parts, point.sampleNumber),
                                 PlaceOf(readings.operators, point.operatorName), point.value});
  }
  return readings;
}

Answer<std::vector<GaugeSession>> LoadGaugeSessions(const QString& storePath) {
  RecordStore store;
  if (const StoreFault fault = store.Open(storePath, RecordStore::Mode::kRead);
      fault != StoreFault::kNone) {
    return {{}, fault == StoreFault::kMissing ? StoreFault::kNone : fault};
  }
  const Answer<QList<StoredRow>> plans = store.Events(kPlan, {}, kMostPlans);
  Answer<std::vector<GaugeSession>> sessions{{}, plans.fault};
  for (const StoredRow& row : plans.value) {
    const std::optional<EventRecord> event = ToEvent(row.row);
    const std::optional<GaugePlan> plan = event ? PlanOf(row, *event) : std::nullopt;
    if (!plan) {
      continue;
    }
    const Answer<QList<StoredRow>> readings = store.Events(kReading, plan->id, kMostReadings);
    if (!readings) {
      return {{}, readings.fault};
    }
    TakeReadings(readings.value, sessions.value.emplace_back(*plan));
  }
  return sessions;
}

EventRecord PlanEvent(const GaugePlan& plan, const QString& station) {
  EventRecord event;
  event.type = kPlan;
  event.station = station;
  event.time = plan.begun;
  event.data = {{QStringLiteral("name"), plan.name},
                {QStringLiteral("value"), QuantityKey(plan.value.quantity)},
                {QStringLiteral("wavelength"), plan.value.nm},
                {QStringLiteral("parts"), plan.parts},
                {QStringLiteral("operators"), QJsonArray::fromStringList(plan.operators)},
                {QStringLiteral("repeats"), plan.repeats},
                {QStringLiteral("seed"), static_cast<qint64>(plan.seed)}};
  if (plan.tolerance) {
    event.data[QStringLiteral("tolerance")] = *plan.tolerance;
  }
  return event;
}

EventRecord ReadingEvent(const GaugePlan& plan, const PlannedReading& reading) {
  EventRecord event;
  event.type = kReading;
  event.subject = plan.id;
  event.station = reading.station;
  event.time = reading.time;
  const GaugeTask task = OrderOf(plan)[reading.place];
  event.operatorName = plan.operators[task.gaugeOperator];
  event.data = {{QStringLiteral("place"), static_cast<qint64>(reading.place)},
                {QStringLiteral("part"), task.part + 1},
                {QStringLiteral("repeat"), task.repeat + 1},
                {QStringLiteral("sample"), reading.sampleId},
                {QStringLiteral("value"), reading.value}};
  if (!reading.cieConditions.isEmpty()) {
    event.data[QStringLiteral("cieConditions")] = reading.cieConditions;
  }
  return event;
}

QString BlindNumber(const GaugePlan& plan, std::size_t place) {
  return QStringLiteral("%1 %2").arg(plan.name).arg(place + 1).trimmed();
}

}  // namespace vexa
