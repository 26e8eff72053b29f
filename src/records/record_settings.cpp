// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/record_settings.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSysInfo>

namespace vexa {

std::optional<RecordSettings> ReadRecordSettings(const QString& directory) {
  RecordSettings settings = UsualRecordSettings();
  QFile file(RecordSettingsPath(directory));
  if (!file.exists()) {
    return settings;
  }
  if (!file.open(QIODevice::ReadOnly)) {
    return std::nullopt;
  }
  const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
  const QJsonValue station = document[QStringLiteral("station")];
  const QJsonValue shared = document[QStringLiteral("shared")];
  const auto isTextOrMissing = [](const QJsonValue& value) {
    return value.isUndefined() || value.isString();
  };
  if (!document.isObject() || !isTextOrMissing(station) || !isTextOrMissing(shared)) {
    return std::nullopt;
  }
  if (!station.toString().isEmpty()) {
    settings.station = station.toString();
  }
  settings.shared = shared.toString();
  return settings;
}

RecordSettings UsualRecordSettings() {
  return {QSysInfo::machineHostName(), {}};
}

QString RecordSettingsPath(const QString& directory) {
  return QDir(directory).filePath(QStringLiteral("records.json"));
}

QString RecordStorePath(const QString& directory) {
  return QDir(directory).filePath(QStringLiteral("records.db"));
}

}  // namespace vexa
