// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/configuration.h"

#include <QFileInfo>

#include "files/environment_file.h"
#include "files/startup_file.h"
#include "instrument/calibration_file.h"
#include "standards/standard_file.h"

namespace vexa {
namespace {

void SetEnvironmentDefaults(VEXATYPE& state) {
  const VEXATYPE defaults;
  state.display = defaults.display;
  state.colour = defaults.colour;
  state.referenceSetting = defaults.referenceSetting;
  state.thickness = defaults.thickness;
  state.standardFileName = defaults.standardFileName;
  state.instrument.samplingTimeMs = defaults.instrument.samplingTimeMs;
}

void SetStandardDefaults(VEXATYPE& state) {
  state.standard = {};
  state.chromaMarker = {};
  state.hueMarker = {};
}

void LoadStandards(VEXATYPE& state, MessageService& messages) {
  if (!ReadStandardFile(CompletePath(state, state.standardFileName), state.standard,
                        state.chromaMarker, state.hueMarker, messages)) {
    SetStandardDefaults(state);
  }
  state.standardsChanged = false;
}

// A file that is there but cannot be read must not turn into defaults without a word; a missing one
// may.
void TellUnreadable(const QString& path, MessageService& messages) {
  if (QFileInfo::exists(path)) {
    messages.MsgCall(QStringLiteral("ﾌｧｲﾙの読み込みでエラーが発生しました。\r\rﾌｧｲﾙ名:") + path +
                         QStringLiteral("\r\rﾃﾞﾌｫﾙﾄ値に設定されます。"),
                     message_type::kOk + message_type::kStopIcon, message_title::kError);
  }
}

// Likewise; one of a wrong version has had its message already.
void TellUnreadable(const QString& path, const EnvironmentRead& result, MessageService& messages) {
  if (!result.read && result.version > 0.0) {
    messages.MsgCall(QStringLiteral("環境ﾌｧｲﾙの読み込みでエラーが発生しました。\r\r環境ﾌｧｲﾙ名:") +
                         path + QStringLiteral("\r\r環境ﾊﾟﾗﾒｰﾀｰはﾃﾞﾌｫﾙﾄ値に設定されます。"),
                     message_type::kOk + message_type::kStopIcon, message_title::kError);
  }
}

}  // namespace

void SetEnvDefaults(VEXATYPE& state) {
  const VEXATYPE defaults;
  SetEnvironmentDefaults(state);
  state.envFileName = defaults.envFileName;
  state.instrument.controllerPort = defaults.instrument.controllerPort;
  state.instrument.linePositions = defaults.instrument.linePositions;
  state.instrument.detectorStartNm = defaults.instrument.detectorStartNm;
  state.instrument.settlingTimeMs = defaults.instrument.settlingTimeMs;
}

void LoadConfiguration(VEXATYPE& state, MessageService& messages) {
  if (!ReadStartupFile(state)) {
    TellUnreadable(CompletePath(state, QStringLiteral("vexa.int")), messages);
    SetEnvDefaults(state);
  } else {
    const QString path = CompletePath(state, state.envFileName);
    const EnvironmentRead result = ReadEnvFile(path, state, messages);
    TellUnreadable(path, result, messages);
    if (result.read) {
      LoadStandards(state, messages);
    } else {
      SetEnvDefaults(state);
    }
  }
  state.instrument.averagingCount = 1;
  state.instrument.serialController = state.instrument.controllerPort != 0;
  const QString calibration = CompletePath(state, QStringLiteral("vexa.cal"));
  const auto shiftNm = ReadCalibrationFile(calibration);
  if (!shiftNm) {
    TellUnreadable(calibration, messages);
  }
  state.instrument.calibrationShiftNm = shiftNm.value_or(InstrumentSettings().calibrationShiftNm);
}

bool LoadEnvironment(const QString& path, VEXATYPE& state, MessageService& messages) {
  const EnvironmentRead result = ReadEnvFile(path, state, messages);
  TellUnreadable(path, result, messages);
  if (!result.read) {
    SetEnvironmentDefaults(state);
    return false;
  }
  state.envFileName = path;
  LoadStandards(state, messages);
  return true;
}

}  // namespace vexa
