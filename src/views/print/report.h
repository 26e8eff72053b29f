// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "measurement/vexatype.h"
#include "views/paper/printed_pages.h"
#include "views/print/report_request.h"

namespace vexa {

/// The pages of a report of the slots as they are now: graph, samples, values and verdicts, and the
/// spectra as text, whichever the request asks for.
[[nodiscard]] PageMaker MakeReport(const VEXATYPE& state, const ReportRequest& request);

/// What to ask for when nobody says otherwise: all slots, graph and text, the step of the text
/// views (10 nm from 10 on, else 1), the date given.
[[nodiscard]] ReportRequest UsualReport(const VEXATYPE& state, const QDate& date);

}  // namespace vexa
