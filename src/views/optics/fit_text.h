// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "measurement/measurement_slot.h"

namespace vexa {

/// "1500.1 ± 1.4", the layers from the air on with `between` between them; "-" where no film is
/// told.
[[nodiscard]] QString FitThicknessText(const FilmFit& fit,
                                       const QString& between = QStringLiteral(" / "));

}  // namespace vexa
