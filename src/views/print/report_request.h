// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QString>

namespace vexa {

enum class ReportContent { kGraph, kText, kBoth };

/// What a report of the slots is to hold.
struct ReportRequest {
  QString title;
  QString operatorName;
  QDate date;
  int slot = 0;  ///< 1..10; 0: all valid slots
  ReportContent content = ReportContent::kBoth;
  int stepNm = 1;        ///< of the spectra as text, 1 or 10
  bool diagram = false;  ///< with the chromaticity diagram
  bool cie = false;      ///< with the CIE colours, and those on a diagram of their own
  bool unsaved = false;  ///< the slots are no longer what their data file holds
  QString proof;         ///< stands below every page: ProofText of the record store; or empty
};

}  // namespace vexa
