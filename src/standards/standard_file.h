// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "base/file_fault.h"
#include "base/message.h"
#include "base/replace_file.h"
#include "base/text_file.h"
#include "standards/standard_set.h"

namespace vexa {

/// What a standard file holds.
struct StandardContents {
  StandardSet standard;
  ReferenceMarker chromaMarker;
  ReferenceMarker hueMarker;

  bool operator==(const StandardContents&) const = default;
};

/// Reads a standard file of version 3.00 or later.
ReadResult<StandardContents> ReadStandardFile(const QString& path);

/// The same of the text of such a file, as a record keeps it.
ReadResult<StandardContents> ParseStandard(const QString& text);

/// The lines of a standard file of these contents.
[[nodiscard]] FileText StandardFileText(const StandardContents& contents);

/// Writes the standard and both markers, 62 lines; see ReplaceFile.
WriteResult WriteStandardFile(const QString& path, const StandardContents& contents);

/// What to tell of a standard file that cannot be read.
[[nodiscard]] MessageCall StandardMessage(const QString& path, const FileFault& fault);

}  // namespace vexa
