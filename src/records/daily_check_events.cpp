// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/daily_check_events.h"

#include <QJsonArray>
#include <algorithm>

#include "records/event_types.h"
#include "records/result_json.h"

namespace vexa {
namespace {

const QString kCheck = QStringLiteral("daily-check");
const QString kLimits = QStringLiteral("daily-limits");
const QString kSettings = QStringLiteral("daily-settings");

constexpr int kMostChecks = 2000;

constexpr std::array<const char*, kCheckValueCount> kValueKeys{
    "reflectance1", "reflectance2", "reflectance3", "lamp440",
    "lamp600",      "lamp840",      "darkLevel",    "darkNoise"};
constexpr std::array<const char*, 4> kVerdictWords{"collecting", "otherConditions", "green", "red"};

QJsonArray WavelengthsJson(const std::array<int, 3>& wavelengthsNm) {
  QJsonArray array;
  for (const int nm : wavelengthsNm) {
    array.append(nm);
  }
  return array;
}

// Whatever a document holds, wavelengths are within the spectrum.
std::array<int, 3> WavelengthsOf(const QJsonValue& value) {
  std::array<int, 3> wavelengthsNm = CheckConditions().wavelengthsNm;
  const QJsonArray array = value.toArray();
  for (std::size_t i = 0; i < wavelengthsNm.size(); ++i) {
    const int nm = array.at(static_cast<qsizetype>(i)).toInt(wavelengthsNm[i]);
    wavelengthsNm[i] = ReflectanceSpectrum::Contains(nm) ? nm : wavelengthsNm[i];
  }
  return wavelengthsNm;
}

QJsonObject ConditionsJson(const CheckConditions& conditions) {
  return {{QStringLiteral("wavelengths"), WavelengthsJson(conditions.wavelengthsNm)},
          {QStringLiteral("samplingTime"), conditions.samplingTimeMs},
          {QStringLiteral("averaging"), conditions.averagingCount},
          {QStringLiteral("shift"), conditions.calibrationShiftNm}};
}

CheckConditions ConditionsOf(const QJsonObject& object) {
  const auto number = [&object](const char* name) {
    return static_cast<std::int16_t>(object[QLatin1String(name)].toInt());
  };
  return {WavelengthsOf(object[QStringLiteral("wavelengths")]), number("samplingTime"),
          number("averaging"), number("shift")};
}

JudgedCheck CheckOf(const StoredRow& row, const EventRecord& event) {
  const QJsonObject& data = event.data;
  JudgedCheck judged{{row.row.id,
                      event.time,
                      event.operatorName,
                      ConditionsOf(data[QStringLiteral("conditions")].toObject()),
                      {}},
                     {}};
  const QJsonObject values = data[QStringLiteral("values")].toObject();
  for (std::size_t i = 0; i < kCheckValueCount; ++i) {
    judged.check.values[i] = NumberOf(values[QLatin1String(kValueKeys[i])]);
  }
  const auto word = std::ranges::find_if(kVerdictWords, [&data](const char* known) {
    return data[QStringLiteral("verdict")] == QLatin1String(known);
  });
  // A verdict that this program does not know is no green one.
  judged.judgement.verdict = word == kVerdictWords.end()
                                 ? CheckVerdict::kRed
                                 : static_cast<CheckVerdict>(word - kVerdictWords.begin());
  for (const auto& value : data[QStringLiteral("broken")].toArray()) {
    const QJsonObject broken = value.toObject();
    const auto key = std::ranges::find_if(kValueKeys, [&broken](const char* known) {
      return broken[QStringLiteral("value")] == QLatin1String(known);
    });
    if (key != kValueKeys.end()) {
      judged.judgement.findings.push_back({static_cast<CheckValue>(key - kValueKeys.begin()),
                                           broken[QStringLiteral("rule")].toInt()});
    }
  }
  return judged;
}

std::optional<CheckLimits> LimitsOf(const EventRecord& event) {
  CheckLimits limits{event.time,
                     ConditionsOf(event.data[QStringLiteral("conditions")].toObject()),
                     event.data[QStringLiteral("days")].toInt(),
                     {}};
  const QJsonObject lines = event.data[QStringLiteral("limits")].toObject();
  for (std::size_t i = 0; i < kCheckValueCount; ++i) {
    const QJsonObject line = lines[QLatin1String(kValueKeys[i])].toObject();
    const auto number = [&line](const char* name) { return NumberOf(line[QLatin1String(name)]); };
    limits.lines[i] = {number("centre"), number("lower"), number("upper"), number("meanRange"),
                       number("upperRange")};
    if (!(limits.lines[i].meanRange > 0.0)) {
      return std::nullopt;
    }
  }
  return limits;
}

/// The events of a type, the newest first.
Answer<QList<std::pair<StoredRow, EventRecord>>> EventsOf(const RecordStore& store,
                                                          const QString& type) {
  const Answer<QList<StoredRow>> rows = store.Events(type, {}, kMostChecks);
  Answer<QList<std::pair<StoredRow, EventRecord>>> events{{}, rows.fault};
  for (const StoredRow& row : rows.value) {
    if (const auto event = ToEvent(row.row)) {
      events.value.append({row, *event});
    }
  }
  return events;
}

EventRecord DecisionEvent(const QString& type, const Decision& decision) {
  EventRecord event;
  event.type = type;
  event.reason = decision.reason;
  event.operatorName = decision.operatorName;
  event.station = decision.station;
  event.time = decision.time;
  return event;
}

}  // namespace

QString VerdictHold::Why() const {
  QStringList lines;
  for (const CheckFinding& finding : findings) {
    lines << FindingText(finding, conditions);
  }
  return lines.join(u'\n');
}

std::vector<DailyCheck> DailyCheckHistory::Checks() const {
  std::vector<DailyCheck> all;
  all.reserve(checks.size());
  for (const JudgedCheck& judged : checks) {
    all.push_back(judged.check);
  }
  return all;
}

std::vector<DailyCheck> DailyCheckHistory::UsableChecks(const QDate& since) const {
  std::vector<DailyCheck> usable;
  usable.reserve(checks.size());
  for (const auto& [check, judgement] : checks) {
    if (judgement.verdict != CheckVerdict::kRed &&
        (!since.isValid() || check.time.date() >= since)) {
      usable.push_back(check);
    }
  }
  return usable;
}

Answer<DailyCheckHistory> LoadDailyChecks(const QString& storePath) {
  RecordStore store;
  if (const StoreFault fault = store.Open(storePath, RecordStore::Mode::kRead);
      fault != StoreFault::kNone) {
    return {{}, fault == StoreFault::kMissing ? StoreFault::kNone : fault};
  }
  const auto checks = EventsOf(store, kCheck);
  const auto limits = EventsOf(store, kLimits);
  const auto releases = EventsOf(store, event_type::kDailyRelease);
  const auto settings = EventsOf(store, kSettings);
  Answer<DailyCheckHistory> answer;
  for (const StoreFault fault : {checks.fault, limits.fault, releases.fault, settings.fault}) {
    if (fault != StoreFault::kNone) {
      answer.fault = fault;
      return answer;
    }
  }
  DailyCheckHistory& history = answer.value;
  if (!settings.value.isEmpty()) {
    const QJsonObject& data = settings.value.constFirst().second.data;
    history.settings = {WavelengthsOf(data[QStringLiteral("wavelengths")]),
                        data[QStringLiteral("holds")].toBool(true)};
  }
  if (!limits.value.isEmpty()) {
    history.limits = LimitsOf(limits.value.constFirst().second);
  }
  history.checks.reserve(static_cast<std::size_t>(checks.value.size()));
  for (const auto& [row, event] : checks.value) {
    history.checks.push_back(CheckOf(row, event));
  }
  std::ranges::reverse(history.checks);
  if (!history.checks.empty() && history.checks.back().judgement.verdict == CheckVerdict::kRed) {
    const JudgedCheck& last = history.checks.back();
    const auto release = std::ranges::find_if(releases.value, [&last](const auto& event) {
      return event.second.subject == last.check.id;
    });
    if (release != releases.value.end()) {
      history.release = release->second;
    } else if (history.settings.holdsVerdicts) {
      history.hold = VerdictHold{last.check.id, last.check.time, last.check.conditions,
                                 last.judgement.findings};
    }
  }
  return answer;
}

Answer<std::optional<VerdictHold>> FindVerdictHold(const QString& storePath) {
  const Answer<DailyCheckHistory> history = LoadDailyChecks(storePath);
  return {history.value.hold, history.fault};
}

EventRecord CheckEvent(const JudgedCheck& judged, const QString& station) {
  EventRecord event =
      DecisionEvent(kCheck, {station, judged.check.operatorName, {}, judged.check.time});
  QJsonObject values;
  for (std::size_t i = 0; i < kCheckValueCount; ++i) {
    values[QLatin1String(kValueKeys[i])] = NumberJson(judged.check.values[i]);
  }
  QJsonArray broken;
  for (const CheckFinding& finding : judged.judgement.findings) {
    const auto key = kValueKeys[static_cast<std::size_t>(finding.value)];
    broken.append(QJsonObject{{QStringLiteral("value"), QLatin1String(key)},
                              {QStringLiteral("rule"), finding.rule}});
  }
  const auto verdict = kVerdictWords[static_cast<std::size_t>(judged.judgement.verdict)];
  event.data = {{QStringLiteral("conditions"), ConditionsJson(judged.check.conditions)},
                {QStringLiteral("values"), values},
                {QStringLiteral("verdict"), QLatin1String(verdict)},
                {QStringLiteral("broken"), broken}};
  return event;
}

EventRecord LimitsEvent(const CheckLimits& limits, const Decision& decision) {
  EventRecord event = DecisionEvent(kLimits, decision);
  QJsonObject lines;
  for (std::size_t i = 0; i < kCheckValueCount; ++i) {
    const statistics::ChartLimits& line = limits.lines[i];
    lines[QLatin1String(kValueKeys[i])] =
        QJsonObject{{QStringLiteral("centre"), line.centre},
                    {QStringLiteral("lower"), line.lower},
                    {QStringLiteral("upper"), line.upper},
                    {QStringLiteral("meanRange"), line.meanRange},
                    {QStringLiteral("upperRange"), line.upperRange}};
  }
  event.data = {{QStringLiteral("conditions"), ConditionsJson(limits.conditions)},
                {QStringLiteral("days"), limits.days},
                {QStringLiteral("limits"), lines}};
  return event;
}

EventRecord ReleaseEvent(const VerdictHold& hold, const Decision& decision) {
  EventRecord event = DecisionEvent(event_type::kDailyRelease, decision);
  event.subject = hold.checkId;
  return event;
}

EventRecord SettingsEvent(const CheckSettings& settings, const Decision& decision) {
  EventRecord event = DecisionEvent(kSettings, decision);
  event.data = {{QStringLiteral("wavelengths"), WavelengthsJson(settings.wavelengthsNm)},
                {QStringLiteral("holds"), settings.holdsVerdicts}};
  return event;
}

EventRecord HeldEvent(const VerdictHold& hold, const QString& sampleId, const Decision& decision) {
  EventRecord event = DecisionEvent(event_type::kVerdictHeld, decision);
  event.subject = sampleId;
  event.reason = hold.Why();
  event.data = {{QStringLiteral("check"), hold.checkId}};
  return event;
}

Answer<bool> IsReleased(const QString& storePath, const QString& checkId) {
  RecordStore store;
  if (const StoreFault fault = store.Open(storePath, RecordStore::Mode::kRead);
      fault != StoreFault::kNone) {
    return {false, fault};
  }
  const Answer<QList<StoredRow>> rows = store.Events(event_type::kDailyRelease, checkId, 1);
  return {!rows.value.isEmpty(), rows.fault};
}

Answer<QString> KeepEvent(const QString& storePath, const EventRecord& event) {
  RecordStore store;
  if (const StoreFault fault = store.Open(storePath, RecordStore::Mode::kWrite);
      fault != StoreFault::kNone) {
    return {{}, fault};
  }
  const Row row = ToRow(event);
  return {row.id, store.Append({row}).fault};
}

}  // namespace vexa
