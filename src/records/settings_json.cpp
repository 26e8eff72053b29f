// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/settings_json.h"

#include <QJsonArray>

#include "records/result_json.h"
#include "standards/standard_file.h"

namespace vexa {
namespace {

QJsonObject InstrumentJson(const InstrumentSettings& instrument) {
  QJsonArray positions;
  for (const std::int16_t position : instrument.linePositions) {
    positions.append(position);
  }
  return {{QStringLiteral("linePositions"), positions},
          {QStringLiteral("samplingTime"), instrument.samplingTimeMs},
          {QStringLiteral("averaging"), instrument.averagingCount},
          {QStringLiteral("settlingTime"), instrument.settlingTimeMs},
          {QStringLiteral("shift"), instrument.calibrationShiftNm}};
}

QJsonObject ColourSettingsJson(const ColourSettings& colour) {
  return {{QStringLiteral("illuminant"), colour.illuminant},
          {QStringLiteral("observer"), colour.observer2Deg ? 2 : 10},
          {QStringLiteral("averageFrom"), colour.avgFrom},
          {QStringLiteral("averageTo"), colour.avgTo}};
}

QJsonObject DispersionJson(const DispersionSetting& setting) {
  return {{QStringLiteral("kind"), setting.kind},
          {QStringLiteral("fixedValue"), NumberJson(setting.fixedValue)},
          {QStringLiteral("schott"), NumbersJson(setting.schott)},
          {QStringLiteral("sellmeier"), NumbersJson(setting.sellmeier)},
          {QStringLiteral("indexFile"), setting.indexFileName},
          {QStringLiteral("dataFile"), setting.dataFileName}};
}

}  // namespace

QJsonObject SettingsJson(const Settings& state) {
  const ThicknessSettings& thickness = state.thickness;
  return {{QStringLiteral("instrument"), InstrumentJson(state.instrument)},
          {QStringLiteral("colour"), ColourSettingsJson(state.colour)},
          {QStringLiteral("reference"), DispersionJson(state.referenceSetting)},
          {QStringLiteral("coat"), DispersionJson(thickness.coat)},
          {QStringLiteral("thickness"),
           QJsonObject{{QStringLiteral("enabled"), bool{thickness.enabled}},
                       {QStringLiteral("type"), thickness.type},
                       {QStringLiteral("kind"), thickness.kind}}},
          {QStringLiteral("standardFile"), state.standardFileName},
          {QStringLiteral("standard"),
           StandardFileText({state.standard, state.chromaMarker, state.hueMarker}).Text()}};
}

}  // namespace vexa
