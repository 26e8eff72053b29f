// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/optics/fit_text.h"

#include <QStringList>

#include "base/number_text.h"
#include "base/translation.h"

namespace vexa {
namespace {

QString Entered(double value) {
  return FormatNumber(value, u"####0.0####").trimmed();
}

}  // namespace

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

QStringList FitSettingTexts(const FilmStackSetting& setting) {
  if (setting.layers.empty()) {
    return {};
  }
  QStringList stack;
  for (const FilmLayerSetting& layer : setting.layers) {
    stack << QStringLiteral("%1 (%2 nm)").arg(layer.material, ThicknessRangeText(layer.range));
  }
  stack << setting.substrate;
  const FilmFitOptions& options = setting.options;
  const QString free = Text::tr("自由");
  const QString fixed = Text::tr("固定");
  return {Text::tr("膜構成: %1").arg(stack.join(QStringLiteral(" / "))),
          Text::tr("波長 %1～%2 nm   倍率 %3   背景光 %4   屈折率の係数 %5   ﾊﾞﾝﾄﾞ幅 %6 nm   "
                   "波長の不確かさ %7 nm   屈折率の不確かさ %8 %   信頼水準 %9 %")
              .arg(options.fromNm)
              .arg(options.toNm)
              .arg(options.scaleFree ? free : fixed, options.offsetFree ? free : fixed,
                   options.indexFree ? free : fixed, Entered(options.bandwidthNm),
                   Entered(options.wavelengthUncertaintyNm),
                   Entered(100.0 * options.indexUncertainty), Entered(100.0 * options.confidence))};
}

QString ThicknessRangeText(const ThicknessRange& range) {
  return range.IsFixed() ? Entered(range.fromNm)
                         : Entered(range.fromNm) + Text::tr("～") + Entered(range.toNm);
}

}  // namespace vexa
