// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "base/replace_file.h"
#include "measurement/vexatype.h"

namespace vexa::cli {

/// The data file that a run of measurements grows. A file of that name which holds more samples
/// than are written is kept beside it as NAME.bak until there are as many.
class SampleFile {
 public:
  explicit SampleFile(QString path);

  /// Whether it can be written; said before the instrument is asked for anything.
  [[nodiscard]] WriteResult MayBeWritten() const { return MayReplaceFile(path_); }

  /// Puts all valid slots on the disk.
  WriteResult Save(const VEXATYPE& state);

  /// Ends the run; the copy goes unless it holds more.
  void Finish();

 private:
  QString path_;
  int samplesBefore_;
  int samplesNow_ = 0;
  bool copied_ = false;
};

}  // namespace vexa::cli
