// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/program_settings_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <optional>

#include "base/read_file.h"
#include "files/keep_unreadable.h"

namespace vexa {
namespace {

constexpr qsizetype kLargest = 1'048'576;
const QLatin1String kLanguage("language");
const QLatin1String kShowCie("showCie");
const QLatin1String kFilmStack("filmStack");
const QLatin1String kFitEachMeasurement("fitEachMeasurement");
const QLatin1String kRecentFiles("recentFiles");

// The directory may have been renamed or moved since: a file that stood in it is named by its bare
// name, and one that is not found is looked for there.
QString NameToKeep(const QString& path, const QString& programDirectory) {
  const QFileInfo file(path);
  const bool here = QFileInfo(file.absolutePath()) == QFileInfo(programDirectory);
  return !path.isEmpty() && here ? file.fileName() : path;
}

QString PathOf(const QString& name, const QString& programDirectory) {
  if (name.isEmpty()) {
    return name;
  }
  const QDir directory(programDirectory);
  const QString path = directory.absoluteFilePath(name);
  const QString near = directory.absoluteFilePath(QFileInfo(name).fileName());
  return !QFileInfo::exists(path) && QFileInfo::exists(near) ? near : path;
}

}  // namespace

QString ProgramSettingsPath(const QString& programDirectory) {
  return QDir(programDirectory).filePath(QStringLiteral("program.json"));
}

ReadResult<ProgramSettings> ParseProgramSettings(const QByteArray& json) {
  const QJsonDocument document = QJsonDocument::fromJson(json);
  if (!document.isObject()) {
    return FileFault{.kind = FileFaultKind::kVersion};
  }
  ProgramSettings settings;
  if (const QJsonValue value = document.object().value(kLanguage); !value.isUndefined()) {
    const std::optional<Language> language = LanguageOf(value.toString());
    if (!language) {
      return FileFault{.kind = FileFaultKind::kValue};
    }
    settings.language = *language;
  }
  const QJsonObject object = document.object();
  settings.showCie = object.value(kShowCie).toBool();
  settings.filmStack = object.value(kFilmStack).toString();
  settings.fitEachMeasurement = object.value(kFitEachMeasurement).toBool();
  for (const auto& file : object.value(kRecentFiles).toArray()) {
    settings.recentFiles.append(file.toString());
  }
  return settings;
}

ReadResult<ProgramSettings> ReadProgramSettings(const QString& programDirectory) {
  const ReadResult<QByteArray> bytes =
      ReadRegularFile(ProgramSettingsPath(programDirectory), kLargest);
  if (!bytes) {
    return bytes.Fault();
  }
  ReadResult<ProgramSettings> settings = ParseProgramSettings(*bytes);
  if (settings) {
    (*settings).filmStack = PathOf(settings->filmStack, programDirectory);
  }
  return settings;
}

ProgramStart StartProgram(const QString& programDirectory) {
  const ReadResult<ProgramSettings> read = ReadProgramSettings(programDirectory);
  if (read) {
    return {*read};
  }
  const FileFaultKind kind = read.Fault().kind;
  if (kind == FileFaultKind::kMissing) {
    return {};
  }
  const QString path = ProgramSettingsPath(programDirectory);
  const bool text = kind == FileFaultKind::kVersion || kind == FileFaultKind::kValue;
  const QString bad = FreeBadName(path);
  if (text && QFile::rename(path, bad)) {
    return {.notices = {{Message::kProgramSettingsUnreadable, {bad}}}};
  }
  return {.notices = {{Message::kSettingsReadError, {path}, FaultText(read.Fault())}}};
}

WriteResult WriteProgramSettings(const ProgramSettings& settings, const QString& programDirectory) {
  const QString path = ProgramSettingsPath(programDirectory);
  WriteResult kept = KeepUnreadable(path, [&programDirectory] {
    return static_cast<bool>(ReadProgramSettings(programDirectory));
  });
  if (!kept) {
    return kept;
  }
  // What a later version has added is kept.
  const ReadResult<QByteArray> before = ReadRegularFile(path, kLargest);
  QJsonObject object = before ? QJsonDocument::fromJson(*before).object() : QJsonObject();
  object[kLanguage] = LanguageCode(settings.language);
  object[kShowCie] = settings.showCie;
  object[kFilmStack] = NameToKeep(settings.filmStack, programDirectory);
  object[kFitEachMeasurement] = settings.fitEachMeasurement;
  object[kRecentFiles] = QJsonArray::fromStringList(settings.recentFiles);
  return ReplaceFile(path, QJsonDocument(object).toJson());
}

}  // namespace vexa
