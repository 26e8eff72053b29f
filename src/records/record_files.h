// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include "records/whole_record.h"

namespace vexa {

/// How an export ended.
enum class ExportOutcome {
  kWritten,
  kUnknownKind,  ///< the name ends in none of csv, dat, json, jdx, dx
  kTooMany,      ///< a data file holds ten samples
  kNotWritten,   ///< the disk refused it, or a text has no place in the code page
};

/// Writes the records by the ending of the path: csv and dat as a data file of this program, json
/// with everything, jdx and dx as JCAMP-DX. The file is replaced whole or left as it was.
[[nodiscard]] ExportOutcome ExportRecords(const QString& path, const QList<WholeRecord>& records);

/// The records as JCAMP-DX 4.24 in UTF-8: one block a record, several linked. The reflectance is a
/// ratio; counts, conditions and results stand in labelled records of this program ("##$...").
[[nodiscard]] QByteArray JcampText(const QList<WholeRecord>& records);

}  // namespace vexa
