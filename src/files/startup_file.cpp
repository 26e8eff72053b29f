// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/startup_file.h"

#include "base/header_version.h"
#include "base/text_file.h"
#include "files/keep_unreadable.h"

namespace vexa {
namespace {

constexpr double kOldestVersion = 1.0;
constexpr std::size_t kPositionLines = 5;

QString StartupPath(const VEXATYPE& state) {
  return CompletePath(state, QStringLiteral("vexa.int"));
}

}  // namespace

bool ReadStartupFile(VEXATYPE& state) {
  try {
    TextReader reader = TextReader::Open(StartupPath(state));
    if (ReadHeaderVersion(reader.Line(), QStringLiteral("ENV")) < kOldestVersion) {
      return false;
    }
    state.envFileName = reader.Line();
    state.instrument.controllerPort = reader.IntegerLine();
    for (std::size_t i = 0; i < kPositionLines; ++i) {
      state.instrument.linePositions[i] = reader.IntegerLine();
    }
    state.instrument.detectorStartNm = reader.IntegerLine();
    return true;
  } catch (const ReadFault&) {
    return false;
  }
}

bool WriteStartupFile(const VEXATYPE& state) {
  const bool kept = KeepUnreadable(StartupPath(state), [&state] {
    VEXATYPE scratch;
    scratch.programDirectory = state.programDirectory;
    return ReadStartupFile(scratch);
  });
  FileText text;
  text.Line(QStringLiteral("VEXA-KT 440-840 Ver 3.21 Environment File"))
      .Line(state.envFileName)
      .Number(state.instrument.controllerPort);
  for (std::size_t i = 0; i < kPositionLines; ++i) {
    text.Number(state.instrument.linePositions[i]);
  }
  text.Number(state.instrument.detectorStartNm);
  return kept && text.WriteTo(StartupPath(state));
}

}  // namespace vexa
