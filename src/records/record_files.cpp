// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/record_files.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include "base/replace_file.h"
#include "files/data_file.h"

namespace vexa {
namespace {

ExportOutcome WriteSlots(const QString& path, const QList<WholeRecord>& records) {
  if (records.size() > kSlotCount) {
    return ExportOutcome::kTooMany;
  }
  VEXATYPE state;
  for (int number = 1; number <= records.size(); ++number) {
    const SampleRecord& sample = records[number - 1].sample;
    MeasurementSlot& slot = *state.Slot(number);
    slot.valid = true;
    slot.reflectance = sample.reflectance;
    slot.info = {sample.sampleNumber, sample.remark1, sample.remark2, sample.measuredAt};
  }
  return WriteDataFile(path, LayoutByEnding(path), state) ? ExportOutcome::kWritten
                                                          : ExportOutcome::kNotWritten;
}

QByteArray JsonText(const QList<WholeRecord>& records) {
  QJsonArray array;
  for (const WholeRecord& record : records) {
    array.append(RecordJson(record));
  }
  return QJsonDocument(QJsonObject{{QStringLiteral("format"), QStringLiteral("VEXA-KT records")},
                                   {QStringLiteral("version"), 1},
                                   {QStringLiteral("records"), array}})
      .toJson(QJsonDocument::Indented);
}

}  // namespace

ExportOutcome ExportRecords(const QString& path, const QList<WholeRecord>& records) {
  const QString ending = QFileInfo(path).suffix().toLower();
  if (ending == QLatin1String("csv") || ending == QLatin1String("dat")) {
    return WriteSlots(path, records);
  }
  QByteArray bytes;
  if (ending == QLatin1String("json")) {
    bytes = JsonText(records);
  } else if (ending == QLatin1String("jdx") || ending == QLatin1String("dx")) {
    bytes = JcampText(records);
  } else {
    return ExportOutcome::kUnknownKind;
  }
  return ReplaceFile(path, bytes) ? ExportOutcome::kWritten : ExportOutcome::kNotWritten;
}

}  // namespace vexa
