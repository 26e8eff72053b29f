// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/environment_file.h"

#include <initializer_list>

#include "base/header_version.h"
#include "base/number_text.h"
#include "base/text_file.h"
#include "files/keep_unreadable.h"

namespace vexa {
namespace {

constexpr double kOldestVersion = 1.0;
constexpr double kCurrentLayoutVersion = 2.99;

// The older layout as line numbers of the current one; 0 is a line that is skipped.
constexpr std::size_t kOlderLayout[] = {
    8,  10, 9,  12, 4,  11, 5, 6,  7,  13, 0,  0,  3,  14, 15, 16, 17, 0,  0,  0, 36, 21, 22, 23,
    24, 25, 26, 27, 28, 0,  0, 35, 37, 38, 39, 40, 41, 42, 43, 44, 45, 46, 47, 0, 0,  54, 55};

struct LineReader {
  TextReader& reader;
  void operator()(std::monostate) const { reader.Line(); }
  void operator()(std::int16_t* value) const { *value = reader.IntegerLine(); }
  void operator()(double* value) const { *value = reader.RealLine(); }
  void operator()(Flag* value) const { *value = reader.FlagLine(); }
  void operator()(QString* value) const { *value = reader.Line(); }
};

struct LineWriter {
  FileText& text;
  void operator()(std::monostate) const {}
  void operator()(const std::int16_t* value) const { text.Number(*value); }
  void operator()(const double* value) const { text.Number(*value); }
  void operator()(const Flag* value) const { text.Flag(*value); }
  void operator()(const QString* value) const { text.Line(*value); }
};

// Throws ReadFault; the version is known even then, unless the first line is missing.
void ReadLines(TextReader& reader, VEXATYPE& state, double& version) {
  version = ReadHeaderVersion(reader.Field(), QStringLiteral("ENV"));
  if (version < kOldestVersion) {
    return;
  }
  const auto lines = EnvironmentLines(state);
  if (version >= kCurrentLayoutVersion) {
    for (std::size_t number = 2; number <= kEnvironmentLines; ++number) {
      std::visit(LineReader{reader}, lines[number]);
    }
  } else {
    for (const std::size_t number : kOlderLayout) {
      std::visit(LineReader{reader}, lines[number]);
    }
  }
  if (state.display.fullScale) {
    state.display.shortestNm = ReflectanceSpectrum::kFirstNm;
    state.display.longestNm = ReflectanceSpectrum::kLastNm;
  }
}

EnvironmentRead ReadSilently(const QString& path, VEXATYPE& state) {
  EnvironmentRead result;
  try {
    TextReader reader = TextReader::Open(path);
    ReadLines(reader, state, result.version);
    result.read = result.version >= kOldestVersion;
  } catch (const ReadFault&) {
    result.read = false;
  }
  return result;
}

}  // namespace

std::array<EnvironmentValue, kEnvironmentLines + 1> EnvironmentLines(VEXATYPE& state) {
  DisplaySettings& display = state.display;
  ColourSettings& colour = state.colour;
  DispersionSetting& reference = state.referenceSetting;
  ThicknessSettings& film = state.thickness;
  std::array<EnvironmentValue, kEnvironmentLines + 1> lines{{{},
                                                             {},
                                                             &display.view,
                                                             &display.showReferenceData,
                                                             &display.fullScale,
                                                             &display.shortestNm,
                                                             &display.longestNm,
                                                             &display.wavelengthTickNm,
                                                             &display.autoScale,
                                                             &display.maximumPercent,
                                                             &display.minimumPercent,
                                                             &display.autoTicks,
                                                             &display.tickPercent,
                                                             &display.textStepNm,
                                                             &display.xyMode,
                                                             &colour.illuminant,
                                                             &colour.observer2Deg,
                                                             &display.labScale,
                                                             &display.showCursor,
                                                             &display.showMinimum,
                                                             &state.standardFileName,
                                                             &reference.kind,
                                                             &reference.fixedValue}};
  const auto place = [&lines](std::size_t first, std::array<double, 6>& values) {
    for (std::size_t i = 0; i < values.size(); ++i) {
      lines[first + i] = &values[i];
    }
  };
  place(23, reference.schott);
  place(29, reference.sellmeier);
  lines[35] = &reference.indexFileName;
  lines[36] = &state.instrument.samplingTimeMs;
  lines[37] = &film.enabled;
  lines[38] = &film.type;
  lines[39] = &film.kind;
  lines[40] = &film.coat.kind;
  lines[41] = &film.coat.fixedValue;
  place(42, film.coat.schott);
  place(48, film.coat.sellmeier);
  lines[54] = &film.coat.indexFileName;
  lines[55] = &film.coat.dataFileName;
  lines[56] = &colour.avgFrom;
  lines[57] = &colour.avgTo;
  return lines;
}

EnvironmentRead ReadEnvFile(const QString& path, VEXATYPE& state, MessageService& messages) {
  const EnvironmentRead result = ReadSilently(path, state);
  if (result.version < kOldestVersion && QFile::exists(path)) {
    messages.MsgCall(QStringLiteral("環境ﾌｧｲﾙのVerエラーが発生しました。\r\r環境ﾌｧｲﾙ名:") + path +
                         QStringLiteral("\r\r環境ﾌｧｲﾙVer:") + SignedText(result.version).trimmed() +
                         QStringLiteral("\r\r環境ﾊﾟﾗﾒｰﾀｰはﾃﾞﾌｫﾙﾄ値に設定されます。"),
                     message_type::kOk + message_type::kStopIcon, message_title::kError);
  }
  return result;
}

bool WriteEnvFile(const QString& path, const VEXATYPE& state) {
  const bool kept = KeepUnreadable(path, [&path] {
    VEXATYPE scratch;
    return ReadSilently(path, scratch).read;
  });
  FileText text;
  text.Line(QStringLiteral("VEXA-KT 440-840 Ver 3.21 Environment File"));
  VEXATYPE copy = state;
  for (const EnvironmentValue& value : EnvironmentLines(copy)) {
    std::visit(LineWriter{text}, value);
  }
  return kept && text.WriteTo(path);
}

}  // namespace vexa
