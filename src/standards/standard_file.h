// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "base/message.h"
#include "base/text_file.h"
#include "standards/standard_set.h"

namespace vexa {

/// Reads a standard file. A file below version 3.00, or of another kind, is refused with a message
/// and nothing is changed. False then, when the file cannot be opened, and when it is cut short or
/// holds a value that is none of its kind: what was read before that stays.
[[nodiscard]] bool ReadStandardFile(const QString& path, StandardSet& standard,
                                    ReferenceMarker& chromaMarker, ReferenceMarker& hueMarker,
                                    MessageService& messages);

/// The lines of a standard file with these standards and markers.
[[nodiscard]] FileText StandardFileText(const StandardSet& standard,
                                        const ReferenceMarker& chromaMarker,
                                        const ReferenceMarker& hueMarker);

/// Writes the standard and both markers, 62 lines; true when written. See FileText::WriteTo.
[[nodiscard]] bool WriteStandardFile(const QString& path, const StandardSet& standard,
                                     const ReferenceMarker& chromaMarker,
                                     const ReferenceMarker& hueMarker);

}  // namespace vexa
