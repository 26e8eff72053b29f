// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qcustomplot.h>

#include <QColor>
#include <QIcon>
#include <QPen>

namespace vexa {

/// The colour of slot 1..10. Any two of them stay at least 35 apart in CIE L*a*b* for normal,
/// protanopic and deuteranopic eyes (simulated after Machado, Oliveira and Fernandes, 2009), and
/// each has a contrast of 2.3 or more against white.
[[nodiscard]] QColor SlotColour(int slot);

/// The line of slot 1..10.
[[nodiscard]] QPen SlotPen(int slot);

/// The mark on the line of slot 1..10: none for 1 to 5, a shape of its own for each of 6 to 10, so
/// that the slots can be told apart without their colours too.
[[nodiscard]] QCPScatterStyle SlotMarker(int slot);

/// A piece of the slot's line with its mark when the slot holds a spectrum, else an empty frame.
[[nodiscard]] QIcon SlotIcon(int slot, bool valid);

}  // namespace vexa
