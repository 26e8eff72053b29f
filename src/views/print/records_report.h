// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QList>

#include "records/whole_record.h"
#include "views/paper/printed_pages.h"

namespace vexa {

/// The pages of a report of records as they are stored, in the order given: their curves (of the
/// first fifty), how many were judged how, a row for each, and with `cie` one for its CIE colour.
/// `proof` stands below every page, as ProofText has it.
[[nodiscard]] PageMaker MakeRecordsReport(const QList<WholeRecord>& records, bool cie,
                                          const QDate& printed, const QString& proof);

}  // namespace vexa
