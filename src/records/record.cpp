// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/record.h"

#include <QJsonArray>
#include <algorithm>
#include <array>

#include "records/result_json.h"

namespace vexa {
namespace {

constexpr qsizetype kCountsBytes = RawSpectrum::kCount * sizeof(double);
constexpr qsizetype kReflectanceBytes = ReflectanceSpectrum::kCount * sizeof(double);

const QString kFrame = QStringLiteral("frame");
const QString kSettings = QStringLiteral("settings");
const QString kSample = QStringLiteral("sample");
const QString kEvent = QStringLiteral("event");

constexpr std::array<const char*, 3> kFrameKinds{"background", "reference", "sample"};

/// The texts of a sample by their names in its document.
struct SampleText {
  const char* name;
  QString SampleRecord::*text;
};

constexpr SampleText kSampleTexts[] = {
    {"station", &SampleRecord::station},       {"lot", &SampleRecord::lot},
    {"recipe", &SampleRecord::recipe},         {"sample", &SampleRecord::sampleNumber},
    {"remark1", &SampleRecord::remark1},       {"remark2", &SampleRecord::remark2},
    {"operator", &SampleRecord::operatorName}, {"version", &SampleRecord::programVersion},
    {"source", &SampleRecord::source},         {"background", &SampleRecord::backgroundId},
    {"reference", &SampleRecord::referenceId}, {"settings", &SampleRecord::settingsId},
    {"supersedes", &SampleRecord::supersedes}, {"reason", &SampleRecord::reason},
};

void PutTime(QJsonObject& document, const QDateTime& time) {
  document[QStringLiteral("time")] = TimeWithOffset(time);
  document[QStringLiteral("utc")] = time.isValid() ? time.toMSecsSinceEpoch() : 0;
}

QDateTime TimeOf(const QJsonObject& document) {
  return QDateTime::fromString(document[QStringLiteral("time")].toString(), Qt::ISODateWithMs);
}

QJsonObject ConditionsJson(const FrameRecord& frame) {
  return {{QStringLiteral("time"), TimeWithOffset(frame.taken.takenAt)},
          {QStringLiteral("samplingTime"), frame.taken.samplingTimeMs},
          {QStringLiteral("averaging"), frame.taken.averagingCount},
          {QStringLiteral("shift"), frame.taken.calibrationShiftNm},
          {QStringLiteral("controller"), frame.controller}};
}

void TakeConditions(const QJsonObject& document, FrameRecord& frame) {
  const auto number = [&document](const char* name) {
    return static_cast<std::int16_t>(document[QLatin1String(name)].toInt());
  };
  frame.taken = {TimeOf(document), number("samplingTime"), number("averaging"), number("shift")};
  frame.controller = document[QStringLiteral("controller")].toString();
}

bool IsOfKind(const QJsonObject& document, const QString& kind) {
  return document[QStringLiteral("kind")] == kind;
}

// A text that every database can hold: no NUL, no half of a pair of surrogates.
QString Storable(const QString& text) {
  return QString::fromUtf8(text.toUtf8()).replace(QChar(u'\0'), QChar::ReplacementCharacter);
}

void PutText(QJsonObject& document, const char* name, const QString& text) {
  if (!text.isEmpty()) {
    document[QLatin1String(name)] = Storable(text);
  }
}

}  // namespace

Verdict VerdictOf(std::span<const GroupJudgement> groups) {
  Verdict verdict = Verdict::kNone;
  for (const GroupJudgement& group : groups) {
    if (group.passed && !*group.passed) {
      return Verdict::kNotGood;
    }
    if (group.passed) {
      verdict = Verdict::kOk;
    }
  }
  return verdict;
}

Verdict VerdictOf(const SampleRecord& sample) {
  const Verdict byStandard = VerdictOf(sample.groups);
  const Verdict byCie = VerdictOf(sample.cieGroups);
  return std::max(byStandard, byCie);
}

QString VerdictWord(Verdict verdict) {
  switch (verdict) {
    case Verdict::kOk:
      return QStringLiteral("OK");
    case Verdict::kNotGood:
      return QStringLiteral("NG");
    case Verdict::kNone:
      break;
  }
  return QStringLiteral("none");
}

QString TimeWithOffset(const QDateTime& time) {
  return time.isValid() ? time.toOffsetFromUtc(time.offsetFromUtc()).toString(Qt::ISODateWithMs)
                        : QString();
}

Row ToRow(const FrameRecord& frame) {
  QJsonObject document = ConditionsJson(frame);
  PutTime(document, frame.taken.takenAt);
  document[QStringLiteral("kind")] = kFrame;
  document[QStringLiteral("frame")] =
      QLatin1String(kFrameKinds[static_cast<std::size_t>(frame.kind)]);
  document[QStringLiteral("station")] = Storable(frame.station);
  return MakeRow(document, ToBytes(frame.counts.Values()));
}

Row ToRow(const SettingsRecord& settings) {
  return MakeRow(
      {{QStringLiteral("kind"), kSettings},
       {QStringLiteral("station"), Storable(settings.station)},
       {QStringLiteral("values"), settings.values}},
      ToBytes(settings.referenceReflectance.Values()) + ToBytes(settings.index.Values()));
}

Row ToRow(const SampleRecord& sample) {
  QJsonObject document{{QStringLiteral("kind"), kSample}};
  PutTime(document, sample.measuredAt);
  for (const SampleText& part : kSampleTexts) {
    PutText(document, part.name, sample.*part.text);
  }
  document[QStringLiteral("colour")] = ColourJson(sample.colour);
  document[QStringLiteral("verdict")] = VerdictWord(VerdictOf(sample));
  document[QStringLiteral("verdicts")] = GroupsJson(sample.groups);
  if (sample.repeats > 1) {
    document[QStringLiteral("repeat")] = sample.repeat;
    document[QStringLiteral("repeats")] = sample.repeats;
  }
  if (sample.thickness) {
    document[QStringLiteral("thickness")] = ThicknessJson(*sample.thickness, sample.doubts);
  }
  if (sample.cie) {
    document[QStringLiteral("cie")] = *sample.cie;
  }
  if (VerdictOf(sample.cieGroups) != Verdict::kNone) {
    document[QStringLiteral("cieLimits")] = CieLimitsJson(sample.cieLimits);
    document[QStringLiteral("cieVerdicts")] = CieGroupsJson(sample.cieGroups);
  }
  if (sample.fit) {
    document[QStringLiteral("fit")] = *sample.fit;
  }
  QByteArray numbers = ToBytes(sample.reflectance.Values());
  if (sample.frame) {
    document[QStringLiteral("frame")] = ConditionsJson(*sample.frame);
    numbers += ToBytes(sample.frame->counts.Values());
  }
  return MakeRow(document, numbers);
}

Row ToRow(const EventRecord& event) {
  QJsonObject document{{QStringLiteral("kind"), kEvent}, {QStringLiteral("type"), event.type}};
  PutTime(document, event.time);
  PutText(document, "subject", event.subject);
  PutText(document, "reason", event.reason);
  PutText(document, "operator", event.operatorName);
  PutText(document, "station", event.station);
  PutText(document, "supersedes", event.supersedes);
  if (!event.data.isEmpty()) {
    document[QStringLiteral("data")] = event.data;
  }
  return MakeRow(document);
}

std::optional<FrameRecord> ToFrame(const Row& row) {
  const QJsonObject document = Document(row);
  const auto kind = std::ranges::find_if(kFrameKinds, [&document](const char* name) {
    return document[QStringLiteral("frame")] == QLatin1String(name);
  });
  FrameRecord frame;
  if (!IsOfKind(document, kFrame) || kind == kFrameKinds.end() ||
      !FromBytes(row.numbers, 0, frame.counts.Values())) {
    return std::nullopt;
  }
  frame.kind = static_cast<RecordFrameKind>(kind - kFrameKinds.begin());
  TakeConditions(document, frame);
  frame.station = document[QStringLiteral("station")].toString();
  return frame;
}

std::optional<SettingsRecord> ToSettings(const Row& row) {
  const QJsonObject document = Document(row);
  SettingsRecord settings;
  if (!IsOfKind(document, kSettings) ||
      !FromBytes(row.numbers, 0, settings.referenceReflectance.Values()) ||
      !FromBytes(row.numbers, kReflectanceBytes, settings.index.Values())) {
    return std::nullopt;
  }
  settings.station = document[QStringLiteral("station")].toString();
  settings.values = document[QStringLiteral("values")].toObject();
  return settings;
}

std::optional<SampleRecord> ToSample(const Row& row) {
  const QJsonObject document = Document(row);
  SampleRecord sample;
  if (!IsOfKind(document, kSample) || !FromBytes(row.numbers, 0, sample.reflectance.Values())) {
    return std::nullopt;
  }
  sample.measuredAt = TimeOf(document);
  for (const SampleText& part : kSampleTexts) {
    sample.*part.text = document[QLatin1String(part.name)].toString();
  }
  sample.repeat = document[QStringLiteral("repeat")].toInt(1);
  sample.repeats = document[QStringLiteral("repeats")].toInt(1);
  sample.colour = ColourOf(document[QStringLiteral("colour")].toObject());
  sample.groups = GroupsOf(document[QStringLiteral("verdicts")].toArray());
  if (const QJsonValue thickness = document[QStringLiteral("thickness")]; thickness.isObject()) {
    sample.thickness = ThicknessOf(thickness.toObject());
    for (const auto& doubt : thickness.toObject()[QStringLiteral("doubts")].toArray()) {
      sample.doubts << doubt.toString();
    }
  }
  const auto optional = [&document](const char* name) -> std::optional<QJsonObject> {
    const QJsonValue value = document[QLatin1String(name)];
    return value.isObject() ? std::optional(value.toObject()) : std::nullopt;
  };
  sample.cie = optional("cie");
  sample.cieLimits = CieLimitsOf(document[QStringLiteral("cieLimits")].toObject());
  sample.cieGroups = CieGroupsOf(document[QStringLiteral("cieVerdicts")].toArray());
  sample.fit = optional("fit");
  if (const std::optional<QJsonObject> conditions = optional("frame")) {
    FrameRecord& frame = sample.frame.emplace();
    frame.kind = RecordFrameKind::kSample;
    frame.station = sample.station;
    TakeConditions(*conditions, frame);
    if (row.numbers.size() != kReflectanceBytes + kCountsBytes ||
        !FromBytes(row.numbers, kReflectanceBytes, frame.counts.Values())) {
      return std::nullopt;
    }
  }
  return sample;
}

std::optional<EventRecord> ToEvent(const Row& row) {
  const QJsonObject document = Document(row);
  if (!IsOfKind(document, kEvent)) {
    return std::nullopt;
  }
  const auto text = [&document](const char* name) {
    return document[QLatin1String(name)].toString();
  };
  return EventRecord{text("type"),
                     text("subject"),
                     text("reason"),
                     text("operator"),
                     text("station"),
                     TimeOf(document),
                     document[QStringLiteral("data")].toObject(),
                     text("supersedes")};
}

}  // namespace vexa
