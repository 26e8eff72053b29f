// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/startup_file.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

#include "base/file_kind.h"
#include "base/header_version.h"
#include "base/text_file.h"
#include "files/keep_unreadable.h"

namespace vexa {

QString StartupPath(const QString& programDirectory) {
  return QDir(programDirectory).filePath(QStringLiteral("vexa.int"));
}

QString NameForStartup(const Settings& settings, const QString& envFileName) {
  const QFileInfo file(CompletePath(settings, envFileName));
  const bool here = QFileInfo(file.absolutePath()) == QFileInfo(settings.programDirectory);
  return here ? file.fileName() : envFileName;
}

ReadResult<StartupContent> ReadStartupFile(const QString& path) {
  return TryRead([&path] {
    TextReader reader = TextReader::Open(path);
    const double version = ReadHeaderVersion(reader.Line(), file_kind::kStartup.word);
    if (version < file_kind::kStartup.oldest) {
      throw ReadFault({.kind = FileFaultKind::kVersion, .line = 1, .version = version});
    }
    StartupContent content;
    content.envFileName = reader.Line();
    content.controllerPort = reader.IntegerLine();
    for (std::int16_t& position : content.linePositions) {
      position = reader.IntegerLine();
    }
    content.detectorStartNm = reader.IntegerLine();
    return content;
  });
}

void ApplyStartup(const StartupContent& content, Settings& settings) {
  settings.envFileName = content.envFileName;
  settings.instrument.controllerPort = content.controllerPort;
  std::ranges::copy(content.linePositions, settings.instrument.linePositions.begin());
  settings.instrument.detectorStartNm = content.detectorStartNm;
}

WriteResult WriteStartupFile(const Settings& settings) {
  const QString path = StartupPath(settings.programDirectory);
  WriteResult kept =
      KeepUnreadable(path, [&path] { return static_cast<bool>(ReadStartupFile(path)); });
  if (!kept) {
    return kept;
  }
  const StartupContent written;
  FileText text;
  text.Line(file_kind::kStartup.header.toString())
      .Line(NameForStartup(settings, settings.envFileName))
      .Number(settings.instrument.controllerPort);
  for (std::size_t i = 0; i < written.linePositions.size(); ++i) {
    text.Number(settings.instrument.linePositions[i]);
  }
  text.Number(settings.instrument.detectorStartNm);
  return text.WriteTo(path);
}

}  // namespace vexa
