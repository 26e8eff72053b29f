// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/record_builder.h"

#include <QFileInfo>
#include <limits>

#include "colour/cie_colour.h"
#include "colour/colorimetry.h"
#include "optics/film_stack_file.h"
#include "records/result_json.h"
#include "records/settings_json.h"

namespace vexa {
namespace {

QString ControllerName(const InstrumentSettings& instrument) {
  return instrument.controllerPort == 0
             ? QStringLiteral("GP-IB")
             : QStringLiteral("serial %1").arg(instrument.controllerPort);
}

// The slot itself does not tell what of its colour could be computed.
ColourResult ComputableColour(const ReflectanceSpectrum& reflectance,
                              const ColourSettings& settings) {
  constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
  ColourResult colour{kNone, kNone, kNone, kNone, kNone, kNone, kNone, kNone, kNone};
  (void)CalcColour(reflectance, settings, colour);
  (void)AverageReflectance(reflectance, settings.avgFrom, settings.avgTo, colour.Rm);
  return colour;
}

FrameRecord FrameOf(RecordFrameKind kind, const RawSpectrum& counts, const FrameConditions& taken,
                    const VEXATYPE& state, const QString& station) {
  return {kind, counts, taken, ControllerName(state.instrument), station};
}

// The settings with which the sample measured last was computed, whatever was set since its
// acquisition began.
Settings SettingsBehind(const VEXATYPE& state) {
  const auto& [conditions, reflectance] = state.sampleBasis;
  const Settings& inForce = state;
  Settings settings = inForce;
  settings.instrument.samplingTimeMs = conditions.frame.samplingTimeMs;
  settings.instrument.averagingCount = conditions.frame.averagingCount;
  settings.instrument.calibrationShiftNm = conditions.frame.calibrationShiftNm;
  settings.referenceSetting = conditions.reference;
  settings.referenceReflectance = reflectance;
  return settings;
}

}  // namespace

QList<Row> MeasuredSample::Rows() const {
  return {ToRow(settings), ToRow(background), ToRow(reference), ToRow(sample)};
}

std::optional<FrameRecord> BackgroundOf(const VEXATYPE& state, const QString& station) {
  if (!state.backgroundMeasured) {
    return std::nullopt;
  }
  return FrameOf(RecordFrameKind::kBackground, state.background, state.backgroundTaken, state,
                 station);
}

std::optional<FrameRecord> ReferenceOf(const VEXATYPE& state, const QString& station) {
  if (!state.referenceMeasured) {
    return std::nullopt;
  }
  return FrameOf(RecordFrameKind::kReference, state.reference, state.referenceTaken, state,
                 station);
}

SettingsRecord SettingsOf(const Settings& state, const QString& station) {
  SettingsRecord settings{station, SettingsJson(state), state.referenceReflectance, {}};
  // The index of the film is then derived from each sample, and no setting.
  settings.index = state.thickness.coat.kind == DispersionKind::kSubstrate ? state.substrateIndex
                                                                           : state.filmIndex;
  return settings;
}

SampleRecord ResultsOf(const VEXATYPE& state, const MeasurementSlot& slot,
                       const RecordContext& context) {
  SampleRecord sample;
  sample.measuredAt = slot.info.measuredAt;
  sample.station = context.station;
  sample.lot = context.lot;
  sample.recipe = context.recipe;
  sample.sampleNumber = slot.info.sampleNumber;
  sample.remark1 = slot.info.remark1;
  sample.remark2 = slot.info.remark2;
  sample.operatorName = context.operatorName;
  sample.programVersion = QStringLiteral(VEXA_VERSION);
  sample.reflectance = slot.reflectance;
  sample.colour = ComputableColour(slot.reflectance, state.colour);
  const std::optional<CieColour> cie = CalcCieColour(slot.reflectance, state.colour);
  sample.cie = CieJson(cie, state.colour);
  sample.cieLimits = context.cieLimits;
  sample.cieGroups = JudgeCie(cie, context.cieLimits);
  if (slot.thickness.IsComputed()) {
    sample.thickness = slot.thickness;
    for (const ThicknessDoubt doubt : slot.doubts) {
      sample.doubts << ThicknessDoubtName(doubt);
    }
  }
  if (slot.fit) {
    sample.fit = FilmFitJson(*slot.fit);
    (*sample.fit)[QLatin1String("stack")] = FilmStackJson(slot.fit->setting);
  }
  sample.groups = slot.judgement.groups;
  sample.repeat = context.repeat;
  sample.repeats = context.repeats;
  sample.supersedes = context.supersedes;
  sample.reason = context.reason;
  return sample;
}

std::optional<MeasuredSample> MeasuredSampleOf(const VEXATYPE& state, int slotNumber,
                                               const RecordContext& context) {
  const MeasurementSlot* slot = state.Slot(slotNumber);
  const std::optional<FrameRecord> background = BackgroundOf(state, context.station);
  const std::optional<FrameRecord> reference = ReferenceOf(state, context.station);
  if (slot == nullptr || !slot->valid || !background || !reference) {
    return std::nullopt;
  }
  const Settings settings = SettingsBehind(state);
  MeasuredSample measured{SettingsOf(settings, context.station), *background, *reference,
                          ResultsOf(state, *slot, context)};
  measured.sample.settingsId = ToRow(measured.settings).id;
  measured.sample.backgroundId = ToRow(measured.background).id;
  measured.sample.referenceId = ToRow(measured.reference).id;
  measured.sample.frame =
      FrameOf(RecordFrameKind::kSample, state.sample,
              ConditionsNow(settings.instrument, slot->info.measuredAt), state, context.station);
  return measured;
}

SampleRecord ImportedSampleOf(const VEXATYPE& state, const MeasurementSlot& slot,
                              const QString& path, const RecordContext& context) {
  SampleRecord sample = ResultsOf(state, slot, context);
  const QFileInfo file(path);
  sample.source = file.fileName();
  if (!sample.measuredAt.isValid()) {
    sample.measuredAt = file.lastModified();
  }
  return sample;
}

}  // namespace vexa
