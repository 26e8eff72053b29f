// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/environment_file.h"

#include <algorithm>
#include <type_traits>

#include "base/file_kind.h"
#include "base/header_version.h"
#include "base/number_text.h"
#include "base/text_file.h"
#include "files/keep_unreadable.h"

namespace vexa {
namespace {

constexpr std::size_t kIlluminantLine = 15;
constexpr std::int16_t kIlluminantCount = 4;

// The older layout as line numbers of the current one; 0 is a line that is skipped.
constexpr std::size_t kOlderLayout[] = {
    8,  10, 9,  12, 4,  11, 5, 6,  7,  13, 0,  0,  3,  14, 15, 16, 17, 0,  0,  0, 36, 21, 22, 23,
    24, 25, 26, 27, 28, 0,  0, 35, 37, 38, 39, 40, 41, 42, 43, 44, 45, 46, 47, 0, 0,  54, 55};

// The value of a line, of the kind of its place.
struct LineReader {
  TextReader& reader;
  EnvironmentValue operator()(std::monostate) const {
    reader.Line();
    return {};
  }
  EnvironmentValue operator()(const std::int16_t*) const { return reader.IntegerLine(); }
  EnvironmentValue operator()(const double*) const { return reader.RealLine(); }
  EnvironmentValue operator()(const Flag*) const { return Flag(reader.FlagLine()); }
  EnvironmentValue operator()(const QString*) const { return reader.Line(); }
};

// An empty file has no header, and so no version.
QString HeaderLine(TextReader& reader) {
  return reader.AtEnd() ? QString() : reader.Field();
}

struct LineWriter {
  FileText& text;
  void operator()(std::monostate) const {}
  void operator()(const std::int16_t* value) const { text.Number(*value); }
  void operator()(const double* value) const { text.Number(*value); }
  void operator()(const Flag* value) const { text.Flag(*value); }
  void operator()(const QString* value) const { text.Line(*value); }
};

}  // namespace

EnvironmentTable<EnvironmentPlace> EnvironmentLines(Settings& settings) {
  DisplaySettings& display = settings.display;
  ColourSettings& colour = settings.colour;
  DispersionSetting& reference = settings.referenceSetting;
  ThicknessSettings& film = settings.thickness;
  EnvironmentTable<EnvironmentPlace> lines{{{},
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
                                            &settings.standardFileName,
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
  lines[36] = &settings.instrument.samplingTimeMs;
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

bool IsEnvironmentFile(const QString& path) {
  const ReadResult<QString> header = TryRead([&path] {
    TextReader reader = TextReader::Open(path);
    return HeaderLine(reader);
  });
  if (header && ReadHeaderVersion(*header, file_kind::kEnvironment.word) > 0.0) {
    return true;
  }
  const bool data = header && ReadHeaderVersion(*header, file_kind::kData.word) > 0.0;
  return !data && path.endsWith(QStringLiteral(".env"), Qt::CaseInsensitive);
}

ReadResult<EnvironmentContent> ReadEnvFile(const QString& path) {
  return TryRead([&path] {
    TextReader reader = TextReader::Open(path);
    EnvironmentContent content{
        .version = ReadHeaderVersion(HeaderLine(reader), file_kind::kEnvironment.word),
        .lines = {}};
    if (content.version < file_kind::kEnvironment.oldest) {
      throw ReadFault({.kind = FileFaultKind::kVersion, .line = 1, .version = content.version});
    }
    Settings kinds;
    const auto places = EnvironmentLines(kinds);
    const auto read = [&](std::size_t number) {
      content.lines[number] = std::visit(LineReader{reader}, places[number]);
    };
    if (content.version >= file_kind::kEnvironment.currentLayout) {
      for (std::size_t number = 2; number <= kEnvironmentLines; ++number) {
        read(number);
      }
    } else {
      std::ranges::for_each(kOlderLayout, read);
    }
    return content;
  });
}

void ApplyEnvironment(const EnvironmentContent& content, Settings& settings) {
  const auto places = EnvironmentLines(settings);
  for (std::size_t number = 2; number <= kEnvironmentLines; ++number) {
    std::visit(
        [&content, number](auto place) {
          if constexpr (!std::is_same_v<decltype(place), std::monostate>) {
            using Value = std::remove_pointer_t<decltype(place)>;
            if (const auto* value = std::get_if<Value>(&content.lines[number])) {
              *place = *value;
            }
          }
        },
        places[number]);
  }
  if (settings.display.fullScale) {
    settings.display.shortestNm = ReflectanceSpectrum::kFirstNm;
    settings.display.longestNm = ReflectanceSpectrum::kLastNm;
  }
}

MessageCall EnvironmentMessage(const QString& path, const FileFault& fault) {
  switch (fault.kind) {
    case FileFaultKind::kVersion:
      return {Message::kEnvironmentVersionError, {path, SignedText(fault.version).trimmed()}};
    case FileFaultKind::kMissing:
      return {Message::kEnvironmentMissing, {path}};
    default:
      return {Message::kEnvironmentReadError, {path}, FaultText(fault)};
  }
}

QList<MessageCall> EnvironmentDoubts(const QString& path, const EnvironmentContent& content) {
  const auto* illuminant = std::get_if<std::int16_t>(&content.lines[kIlluminantLine]);
  if (illuminant == nullptr || (*illuminant >= 1 && *illuminant <= kIlluminantCount)) {
    return {};
  }
  return {{Message::kUnknownIlluminant, {path, QString::number(*illuminant)}}};
}

WriteResult WriteEnvFile(const QString& path, const Settings& settings) {
  WriteResult kept = KeepUnreadable(path, [&path] { return static_cast<bool>(ReadEnvFile(path)); });
  if (!kept) {
    return kept;
  }
  FileText text;
  text.Line(file_kind::kEnvironment.header.toString());
  Settings copy = settings;
  for (const EnvironmentPlace& value : EnvironmentLines(copy)) {
    std::visit(LineWriter{text}, value);
  }
  return text.WriteTo(path);
}

}  // namespace vexa
