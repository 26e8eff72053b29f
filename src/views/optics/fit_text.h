// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include "optics/film_fit.h"

namespace vexa {

/// "1500.1 ± 1.4", the layers from the air on with `between` between them; "-" where no film is
/// told.
[[nodiscard]] QString FitThicknessText(const FilmFit& fit,
                                       const QString& between = QStringLiteral(" / "));

/// What a fit was made with: the stack in a line, the conditions in another; empty where the fit
/// tells no setting.
[[nodiscard]] QStringList FitSettingTexts(const FilmStackSetting& setting);

/// "50.0～60000.0", or the one thickness of a layer that is known; nm.
[[nodiscard]] QString ThicknessRangeText(const ThicknessRange& range);

}  // namespace vexa
