// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/sample_file.h"

#include <QFile>
#include <QFileInfo>
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

bool SampleFile::CanBeWritten() const {
  const QFileInfo file(path_);
  const QFileInfo directory(file.absolutePath());
  return directory.isDir() && directory.isWritable() && (!file.exists() || file.isFile());
}

WriteResult SampleFile::Save(const VEXATYPE& state) {
  samplesNow_ = static_cast<int>(std::ranges::count_if(
      state.measurementSlots, [](const MeasurementSlot& slot) { return bool{slot.valid}; }));
  if (samplesNow_ < samplesBefore_ && !copied_) {
    const QString copy = CopyName(path_);
    QFile::remove(copy);
    if (!QFile::copy(path_, copy)) {
      return {false, copy};
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
