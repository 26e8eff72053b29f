// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <array>

#include "measurement/vexatype.h"

namespace vexa {

/// What was measured and typed in a session, as the bytes that its journal keeps of it: background,
/// reference, slots 1..10, accumulated colours, thickness history. Their layout is told in
/// docs/files.md.
using SessionImage = std::array<QByteArray, 2 + kSlotCount + 2>;

[[nodiscard]] SessionImage TakeImage(const VEXATYPE& state);

/// Puts the entries back into the state. Colours and verdicts are not among them: evaluate again.
/// False when an entry is not what TakeImage makes; the state then keeps its own for it.
[[nodiscard]] bool PutImage(const SessionImage& image, VEXATYPE& state);

}  // namespace vexa
