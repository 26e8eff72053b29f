// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/lot/lot_curves.h"

#include <algorithm>
#include <utility>

#include "base/translation.h"
#include "standards/reflectance_band.h"
#include "views/common/theme.h"

namespace vexa {
namespace {

constexpr double kThin = 0.8;
constexpr double kThick = 1.8;

SpectrumCurve Curve(const QString& name, const QPen& pen, const ReflectanceSpectrum& values) {
  SpectrumCurve curve;
  curve.name = name;
  curve.label = name;
  curve.pen = pen;
  curve.values = values;
  return curve;
}

// Highest, mean and lowest at each wavelength.
std::vector<SpectrumCurve> Envelope(const std::vector<const LotRow*>& rows) {
  ReflectanceSpectrum highest = rows.front()->sample.reflectance;
  ReflectanceSpectrum lowest = highest;
  ReflectanceSpectrum mean;
  for (const LotRow* row : rows) {
    const ReflectanceSpectrum& reflectance = row->sample.reflectance;
    for (int nm = ReflectanceSpectrum::kFirstNm; nm <= ReflectanceSpectrum::kLastNm; ++nm) {
      highest[nm] = std::max(highest[nm], reflectance[nm]);
      lowest[nm] = std::min(lowest[nm], reflectance[nm]);
      mean[nm] += reflectance[nm] / static_cast<double>(rows.size());
    }
  }
  return {Curve(Text::tr("最大"), QPen(theme::kMutedText, kThin, Qt::DashLine), highest),
          Curve(Text::tr("平均"), QPen(theme::kAccent, kThick), mean),
          Curve(Text::tr("最小"), QPen(theme::kMutedText, kThin, Qt::DotLine), lowest)};
}

}  // namespace

void LotCurves::Show(const LotContent& lot) {
  std::vector<const LotRow*> rows;
  for (const LotRow& row : lot.rows) {
    if (row.holds) {
      rows.push_back(&row);
    }
  }
  std::vector<SpectrumCurve> curves;
  const bool small = rows.size() <= kMostCurves;
  int drawn = 0;
  for (const LotRow* row : rows) {
    const bool bad = VerdictOf(row->sample) == Verdict::kNotGood;
    if ((small || bad) && drawn < kMostCurves) {
      ++drawn;
      curves.push_back(Curve(row->sample.sampleNumber,
                             QPen(bad ? theme::kBad : theme::kAccent, kThin),
                             row->sample.reflectance));
    }
  }
  if (!small) {
    for (SpectrumCurve& curve : Envelope(rows)) {
      curves.push_back(std::move(curve));
    }
  }
  ShowBand(ReflectanceBand(lot.standard.standard));
  DisplaySettings display;
  display.showCursor = false;
  ShowCurves(std::move(curves), display);
}

}  // namespace vexa
