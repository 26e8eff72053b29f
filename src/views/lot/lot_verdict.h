// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "views/lot/lot_run.h"
#include "views/lot/verdict_panel.h"

namespace vexa {

/// What the large panel shows of a run: the verdict on its last lens, or what comes first.
[[nodiscard]] VerdictPanel::Content VerdictContent(const LotRun& run, const VEXATYPE& state);

/// Whether a lens that was measured is to be measured again.
[[nodiscard]] VerdictPanel::Content RepeatQuestion(const LotLens& lens, const QString& reason);

/// Green, red, or grey; white letters can be read on each.
[[nodiscard]] QColor LensStateColour(LensState state);

/// How many lenses there are, and how many of them are OK, NG, and neither yet.
[[nodiscard]] QString LensCounts(const LotTally& tally);

}  // namespace vexa
