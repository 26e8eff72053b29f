// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/sample_file.h"

#include <QFile>
#include <algorithm>
#include <utility>

#include "files/data_file.h"

namespace vexa::cli {
namespace {

int SamplesIn(const QString& path) {
  const ReadResult<DataFileContent> content = ReadDataFile(path);
  return content ? static_cast<int>(std::ranges::count_if(
                       content->entries, [](const DataFileSlot& slot) { return slot.valid; }))
                 : 0;
}

QString CopyName(const QString& path) {
  return path + QStringLiteral(".bak");
}

}  // namespace

SampleFile::SampleFile(QString path) : path_(std::move(path)), samplesBefore_(SamplesIn(path_)) {}

WriteResult SampleFile::Save(const VEXATYPE& state) {
  samplesNow_ = static_cast<int>(std::ranges::count_if(
      state.measurementSlots, [](const MeasurementSlot& slot) { return bool{slot.valid}; }));
  if (samplesNow_ < samplesBefore_ && !copied_) {
    const QString copy = CopyName(path_);
    QFile::remove(copy);
    if (QFile earlier(path_); !earlier.copy(copy)) {
      return {false, copy + QStringLiteral(": ") + earlier.errorString()};
    }
    copied_ = true;
  }
  return WriteDataFile(path_, LayoutByEnding(path_), state);
}

void SampleFile::Finish() {
  if (copied_ && samplesNow_ >= samplesBefore_) {
    QFile::remove(CopyName(path_));
  }
}

}  // namespace vexa::cli
