// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "records/whole_record.h"

namespace vexa {

/// Everything of a record but its spectra, as rich text in the language in force; with `cie` its
/// CIE colour stands beside the instrument's own.
[[nodiscard]] QString RecordDetails(const WholeRecord& record, bool cie);

/// The verdict of a record as a table shows it: "OK", "NG", or "-".
[[nodiscard]] QString VerdictText(const SampleRecord& sample);
/// Likewise, unless a daily check holds it.
[[nodiscard]] QString VerdictText(const WholeRecord& record);

/// The thickness with its unit, or "-".
[[nodiscard]] QString ThicknessText(const SampleRecord& sample);

}  // namespace vexa
