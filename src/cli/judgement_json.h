// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonObject>

#include "measurement/vexatype.h"

namespace vexa::cli {

/// The exit status of a command that judged, when at least one group is not good.
inline constexpr int kJudgedNotGood = 3;

/// {"panels": [the six panel texts], "reflectance": whether the band was judged and passed}.
[[nodiscard]] QJsonObject JudgementJson(const Judgement& judgement);

/// True when a group of a valid slot was judged and failed.
[[nodiscard]] bool AnyNotGood(const VEXATYPE& state);

}  // namespace vexa::cli
