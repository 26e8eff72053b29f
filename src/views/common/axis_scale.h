// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qcustomplot.h>

namespace vexa {

/// The next round number at or above a value above 0.
[[nodiscard]] double RoundedUp(double value);

/// Ticks at the interval, or, with 0 and where there would be more than 100 of them, at round
/// numbers. Of labels that have no room beside one another every second, fifth, tenth, ... is
/// shown, counted from 0; minor ticks only where they stand apart. Set the range of the axis
/// before.
void SetTicks(QCPAxis& axis, double interval);

}  // namespace vexa
