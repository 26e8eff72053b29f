// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "measurement/vexatype.h"
#include "views/paper/printed_pages.h"
#include "views/print/report_request.h"

namespace vexa {

class BackgroundPicture;

/// The pages of a report of the slots as they are now: graph, samples, values and verdicts, and the
/// spectra as text, whichever the request asks for; with a background, which is to be complete,
/// also the chromaticity diagram.
[[nodiscard]] PageMaker MakeReport(const VEXATYPE& state, const ReportRequest& request,
                                   const std::shared_ptr<BackgroundPicture>& background = {});

/// What to ask for when nobody says otherwise: all slots, graph and text, the step of the text
/// views (10 nm from 10 on, else 1), the date given.
[[nodiscard]] ReportRequest UsualReport(const VEXATYPE& state, const QDate& date);

}  // namespace vexa
