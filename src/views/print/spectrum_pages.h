// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "measurement/vexatype.h"
#include "views/paper/page_flow.h"

namespace vexa {

/// Adds the reflectance of all valid slots as text, a row for every `stepNm` from 440 to 840 nm; as
/// many stretches of wavelengths as fit stand side by side.
void AddSpectra(PageFlow& flow, const VEXATYPE& state, int stepNm);

}  // namespace vexa
