// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/optics/fit_text.h"

#include <QStringList>

#include "base/number_text.h"

namespace vexa {

QString FitThicknessText(const FilmFit& fit, const QString& between) {
  if (fit.outcome == FitOutcome::kNone) {
    return QStringLiteral("-");
  }
  QStringList layers;
  for (const FittedLayer& layer : fit.layers) {
    const QString nm = FormatNumber(layer.thicknessNm, u"0.0");
    const bool known = layer.uncertaintyNm == 0.0;
    layers << (known
                   ? nm
                   : QStringLiteral("%1 ± %2").arg(nm, FormatNumber(layer.uncertaintyNm, u"0.0")));
  }
  return layers.join(between);
}

}  // namespace vexa
