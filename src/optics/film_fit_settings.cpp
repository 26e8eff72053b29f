// SPDX-License-Identifier: GPL-3.0-or-later
// What a fit may be asked, and its words.
#include <algorithm>
#include <cmath>

#include "base/number_text.h"
#include "base/translation.h"
#include "optics/film_fit.h"

namespace vexa {
namespace {

constexpr int kFewestPoints = 20;

bool IsNumberWithin(double value, double low, double high) {
  return value >= low && value <= high;
}

bool IsUsable(const Material& material) {
  for (int nm = ReflectanceSpectrum::kFirstNm; nm <= ReflectanceSpectrum::kLastNm; ++nm) {
    if (!std::isfinite(material.n[nm]) || !std::isfinite(material.k[nm]) || material.n[nm] <= 0.0 ||
        material.k[nm] < 0.0) {
      return false;
    }
  }
  return true;
}

}  // namespace

std::optional<FilmFitFault> CheckFilmFit(std::span<const ThicknessRange> ranges,
                                         const FilmFitOptions& options) {
  if (ranges.empty() || ranges.size() > kMostFilmLayers) {
    return FilmFitFault::kLayers;
  }
  for (const ThicknessRange& range : ranges) {
    if (!IsNumberWithin(range.fromNm, 0.0, range.toNm) ||
        !IsNumberWithin(range.toNm, range.fromNm, kMostFilmNm)) {
      return FilmFitFault::kThicknessRange;
    }
  }
  if (!ReflectanceSpectrum::Contains(options.fromNm) ||
      !ReflectanceSpectrum::Contains(options.toNm) ||
      options.toNm - options.fromNm + 1 < kFewestPoints) {
    return FilmFitFault::kWavelengths;
  }
  if (!IsNumberWithin(options.bandwidthNm, 0.0, 50.0) ||
      !IsNumberWithin(options.wavelengthUncertaintyNm, 0.0, 50.0) ||
      !IsNumberWithin(options.indexUncertainty, 0.0, 1.0) ||
      !IsNumberWithin(options.confidence, 0.5, 0.9999)) {
    return FilmFitFault::kOption;
  }
  return std::nullopt;
}

std::optional<FilmFitFault> CheckFilmFit(const ReflectanceSpectrum& spectrum,
                                         const FilmStack& stack,
                                         std::span<const ThicknessRange> ranges,
                                         const FilmFitOptions& options) {
  if (const auto fault = CheckFilmFit(ranges, options)) {
    return fault;
  }
  if (stack.layers.size() != ranges.size() || !IsUsable(stack.substrate) ||
      !std::ranges::all_of(stack.layers, IsUsable)) {
    return FilmFitFault::kLayers;
  }
  bool dark = true;
  for (int nm = options.fromNm; nm <= options.toNm; ++nm) {
    if (!std::isfinite(spectrum[nm]) || std::abs(spectrum[nm]) > 1e6) {
      return FilmFitFault::kSpectrum;
    }
    dark = dark && spectrum[nm] == 0.0;
  }
  return dark ? std::optional(FilmFitFault::kSpectrum) : std::nullopt;
}

QString FitOutcomeName(FitOutcome outcome) {
  switch (outcome) {
    case FitOutcome::kOk:
      return QStringLiteral("ok");
    case FitOutcome::kAmbiguous:
      return QStringLiteral("ambiguous");
    case FitOutcome::kPoor:
      return QStringLiteral("poor");
    case FitOutcome::kNone:
      break;
  }
  return QStringLiteral("none");
}

QString FitOutcomeWord(FitOutcome outcome) {
  switch (outcome) {
    case FitOutcome::kOk:
      return Text::tr("良好");
    case FitOutcome::kAmbiguous:
      return Text::tr("あいまい");
    case FitOutcome::kPoor:
      return Text::tr("不一致");
    case FitOutcome::kNone:
      break;
  }
  return Text::tr("膜なし");
}

QString FitOutcomeText(FitOutcome outcome) {
  switch (outcome) {
    case FitOutcome::kOk:
      return Text::tr("膜構成が試料に合っています。");
    case FitOutcome::kAmbiguous:
      return Text::tr("他の膜厚でもほぼ同じように合います。");
    case FitOutcome::kPoor:
      return Text::tr("残差がノイズよりはるかに大きく、膜構成が試料と合っていません。");
    case FitOutcome::kNone:
      break;
  }
  return Text::tr("膜が検出されません。");
}

QStringList FitNotes(const FilmFit& fit) {
  const auto number = [](double value, QStringView pattern) {
    return FormatNumber(value, pattern).trimmed();
  };
  QStringList lines;
  for (const FitAlternative& alternative : fit.alternatives) {
    QStringList layers;
    for (const double nm : alternative.thicknessesNm) {
      layers << number(nm, u"0.0");
    }
    lines << Text::tr("次の極小: %1 nm (残差 %2 %)")
                 .arg(layers.join(QStringLiteral(" / ")), number(alternative.rms, u"0.000"));
  }
  return lines + fit.warnings;
}

QString FilmFitFaultText(FilmFitFault fault) {
  switch (fault) {
    case FilmFitFault::kLayers:
      return Text::tr("層は1～4層で、屈折率は正の数でなければなりません。");
    case FilmFitFault::kThicknessRange:
      return Text::tr("膜厚の範囲は0～60000nmで、下限は上限以下でなければなりません。");
    case FilmFitFault::kWavelengths:
      return Text::tr("波長範囲は440～840nmで、20点以上必要です。");
    case FilmFitFault::kOption:
      return Text::tr("バンド幅、不確かさ、信頼水準のいずれかが範囲外です。");
    case FilmFitFault::kSpectrum:
      return Text::tr("反射率データが無効です。");
    case FilmFitFault::kStopped:
      return Text::tr("ﾌｨｯﾄを中止しました。");
  }
  return {};
}

}  // namespace vexa
