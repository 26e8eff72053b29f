// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/whole_record.h"

#include "measurement/evaluation.h"
#include "measurement/reflectance.h"
#include "records/record_builder.h"
#include "records/result_json.h"

namespace vexa {
namespace {

// The record of a row that the sample names; nothing when it names none or there is none.
template <typename Record>
std::optional<Record> Named(const RecordSource& store, const QString& id,
                            std::optional<Record> (*convert)(const Row&), StoreFault& fault) {
  if (id.isEmpty()) {
    return std::nullopt;
  }
  const Answer<StoredRow> row = store.Find(id);
  if (!row) {
    if (row.fault != StoreFault::kMissing) {
      fault = row.fault;
    }
    return std::nullopt;
  }
  return convert(row.value.row);
}

QJsonValue FrameJson(const std::optional<FrameRecord>& frame, const QString& id) {
  if (!frame) {
    return {};
  }
  QJsonObject object{{QStringLiteral("time"), TimeWithOffset(frame->taken.takenAt)},
                     {QStringLiteral("samplingTime"), frame->taken.samplingTimeMs},
                     {QStringLiteral("averaging"), frame->taken.averagingCount},
                     {QStringLiteral("shift"), frame->taken.calibrationShiftNm},
                     {QStringLiteral("first"), RawSpectrum::kFirstNm},
                     {QStringLiteral("counts"), NumbersJson(frame->counts.Values())}};
  if (!id.isEmpty()) {
    object[QStringLiteral("id")] = id;
  }
  return object;
}

// Seconds from the frame to the sample.
QJsonValue AgeJson(const std::optional<FrameRecord>& frame, const QDateTime& measuredAt) {
  if (!frame || !frame->taken.takenAt.isValid() || !measuredAt.isValid()) {
    return {};
  }
  return static_cast<double>(frame->taken.takenAt.msecsTo(measuredAt)) / 1000.0;
}

QJsonObject ConditionsJson(const WholeRecord& record) {
  QJsonObject conditions{
      {QStringLiteral("backgroundAge"), AgeJson(record.background, record.sample.measuredAt)},
      {QStringLiteral("referenceAge"), AgeJson(record.reference, record.sample.measuredAt)}};
  const std::optional<FrameRecord>& frame = record.sample.frame;
  const auto put = [&](const char* name, const QJsonValue& value) {
    conditions[QLatin1String(name)] = frame ? value : QJsonValue();
  };
  put("samplingTime", frame ? frame->taken.samplingTimeMs : 0);
  put("averaging", frame ? frame->taken.averagingCount : 0);
  put("shift", frame ? frame->taken.calibrationShiftNm : 0);
  put("controller", frame ? frame->controller : QString());
  return conditions;
}

QJsonValue OptionalText(const QString& text) {
  return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

}  // namespace

Answer<WholeRecord> LoadRecord(const RecordSource& store, const QString& idOrNumber) {
  const Answer<StoredRow> row = store.Find(idOrNumber);
  if (!row) {
    return {{}, row.fault};
  }
  const std::optional<SampleRecord> sample = ToSample(row.value.row);
  if (!sample) {
    return {{}, StoreFault::kMissing};
  }
  RecordQuery query;
  query.id = row.value.row.id;
  const Answer<QList<RecordSummary>> summary = store.Search(query);
  if (!summary || summary.value.isEmpty()) {
    return {{}, summary ? StoreFault::kMissing : summary.fault};
  }
  Answer<WholeRecord> whole{{summary.value.first(), row.value.hash, *sample, {}, {}, {}}};
  whole.value.background = Named(store, sample->backgroundId, ToFrame, whole.fault);
  whole.value.reference = Named(store, sample->referenceId, ToFrame, whole.fault);
  whole.value.settings = Named(store, sample->settingsId, ToSettings, whole.fault);
  return whole;
}

QString CieConditionsOf(const QList<WholeRecord>& records) {
  QStringList conditions;
  for (const WholeRecord& record : records) {
    AddCieConditions(record.sample.cie, conditions);
  }
  return conditions.isEmpty() ? QStringLiteral("-") : conditions.join(QStringLiteral(", "));
}

QJsonObject ResultsJson(const SampleRecord& sample) {
  const bool judged = VerdictOf(sample.cieGroups) != Verdict::kNone;
  return {{QStringLiteral("first"), ReflectanceSpectrum::kFirstNm},
          {QStringLiteral("reflectance"), NumbersJson(sample.reflectance.Values())},
          {QStringLiteral("colour"), ColourJson(sample.colour)},
          {QStringLiteral("thickness"),
           sample.thickness ? ThicknessJson(*sample.thickness, sample.doubts) : QJsonValue()},
          {QStringLiteral("verdict"), VerdictWord(VerdictOf(sample))},
          {QStringLiteral("verdicts"), GroupsJson(sample.groups)},
          {QStringLiteral("cie"), sample.cie ? *sample.cie : QJsonValue()},
          {QStringLiteral("cieLimits"), judged ? CieLimitsJson(sample.cieLimits) : QJsonValue()},
          {QStringLiteral("cieVerdicts"), judged ? CieGroupsJson(sample.cieGroups) : QJsonValue()}};
}

QJsonObject RecordJson(const WholeRecord& record) {
  const SampleRecord& sample = record.sample;
  QJsonObject object = ResultsJson(sample);
  const QJsonObject settings = record.settings ? record.settings->values : QJsonObject();
  const QJsonObject rest{
      {QStringLiteral("id"), record.summary.id},
      {QStringLiteral("number"), record.summary.number},
      {QStringLiteral("hash"), QString::fromLatin1(record.hash.toHex())},
      {QStringLiteral("time"), record.summary.time},
      {QStringLiteral("station"), sample.station},
      {QStringLiteral("lot"), sample.lot},
      {QStringLiteral("recipe"), sample.recipe},
      {QStringLiteral("sampleNumber"), sample.sampleNumber},
      {QStringLiteral("remark1"), sample.remark1},
      {QStringLiteral("remark2"), sample.remark2},
      {QStringLiteral("operator"), sample.operatorName},
      {QStringLiteral("version"), sample.programVersion},
      {QStringLiteral("source"), OptionalText(sample.source)},
      {QStringLiteral("supersedes"), OptionalText(record.summary.supersedes)},
      {QStringLiteral("reason"), OptionalText(record.summary.reason)},
      {QStringLiteral("repeat"), sample.repeat},
      {QStringLiteral("repeats"), sample.repeats},
      {QStringLiteral("held"), !record.summary.heldBy.isEmpty()},
      {QStringLiteral("conditions"), ConditionsJson(record)},
      {QStringLiteral("background"), FrameJson(record.background, sample.backgroundId)},
      {QStringLiteral("reference"), FrameJson(record.reference, sample.referenceId)},
      {QStringLiteral("sample"), FrameJson(sample.frame, {})},
      {QStringLiteral("referenceReflectance"),
       record.settings ? NumbersJson(record.settings->referenceReflectance.Values())
                       : QJsonValue()},
      {QStringLiteral("settings"), record.settings ? settings : QJsonValue()},
      {QStringLiteral("standard"), settings[QStringLiteral("standard")].isString()
                                       ? settings[QStringLiteral("standard")]
                                       : QJsonValue()},
      {QStringLiteral("fit"), sample.fit ? *sample.fit : QJsonValue()}};
  for (auto part = rest.begin(); part != rest.end(); ++part) {
    object.insert(part.key(), part.value());
  }
  return object;
}

SampleRecord EvaluateAnew(const WholeRecord& record, const Settings& settings, bool ownReference) {
  VEXATYPE state;
  static_cast<Settings&>(state) = settings;
  MeasurementSlot& slot = *state.Slot(1);
  slot.valid = true;
  slot.info = {record.sample.sampleNumber, record.sample.remark1, record.sample.remark2,
               record.sample.measuredAt};
  slot.reflectance = record.sample.reflectance;
  if (record.sample.frame && record.background && record.reference) {
    slot.reflectance =
        ComputeReflectance(record.sample.frame->counts, record.background->counts,
                           record.reference->counts, record.sample.frame->taken.calibrationShiftNm,
                           record.settings && !ownReference ? record.settings->referenceReflectance
                                                            : state.referenceReflectance);
  }
  ComputeColours(state.colour, slot);
  JudgeSlot(state, slot);
  if (state.thickness.enabled) {
    // A record without a thickness says that there is none.
    (void)ComputeSlotThickness(state, slot);
  }
  RecordContext context;
  context.cieLimits = record.sample.cieLimits;
  return ResultsOf(state, slot, context);
}

}  // namespace vexa
