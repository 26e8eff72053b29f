// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/program_preferences.h"

namespace vexa {

ProgramPreferences::ProgramPreferences(const QString& programDirectory)
    : programDirectory_(programDirectory) {
  if (const ReadResult<ProgramSettings> read = ReadProgramSettings(programDirectory)) {
    settings_ = *read;
  }
}

WriteResult ProgramPreferences::Change(const std::function<void(ProgramSettings&)>& change) {
  if (const ReadResult<ProgramSettings> read = ReadProgramSettings(programDirectory_)) {
    settings_ = *read;
  }
  change(settings_);
  WriteResult written = WriteProgramSettings(settings_, programDirectory_);
  emit Changed();
  return written;
}

}  // namespace vexa
