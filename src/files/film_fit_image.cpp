// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/film_fit_image.h"

#include <QJsonDocument>
#include <limits>

#include "optics/film_stack_file.h"

namespace vexa {

void Write(ImageWriter& out, const FilmFit& fit) {
  out << static_cast<quint8>(fit.outcome) << static_cast<quint8>(fit.layers.size());
  // Without a film they are no numbers.
  for (const FittedLayer& layer :
       std::span(fit.layers).first(fit.outcome == FitOutcome::kNone ? 0 : fit.layers.size())) {
    out << layer.thicknessNm << layer.uncertaintyNm << layer.statisticalNm << layer.wavelengthNm
        << layer.indexNm;
  }
  out << fit.scale << fit.offset << fit.spread << fit.index << fit.rms << fit.noise
      << qint32{fit.fromNm} << static_cast<quint16>(fit.fitted.size())
      << std::span<const double>(fit.fitted) << static_cast<quint8>(fit.alternatives.size());
  for (const FitAlternative& alternative : fit.alternatives) {
    out << std::span<const double>(alternative.thicknessesNm) << alternative.rms;
  }
  out << static_cast<quint8>(fit.warnings.size());
  for (const QString& warning : fit.warnings) {
    out << warning;
  }
  out << QString::fromUtf8(
      QJsonDocument(FilmStackJson(fit.setting)).toJson(QJsonDocument::Compact));
}

bool Read(ImageReader& in, bool withSetting, FilmFit& fit) {
  constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
  constexpr FittedLayer kUntold{kNoNumber, kNoNumber, kNoNumber, kNoNumber, kNoNumber};
  quint8 outcome = 0;
  quint8 layers = 0;
  in >> outcome >> layers;
  if (outcome > static_cast<quint8>(FitOutcome::kNone) || layers > kMostFilmLayers) {
    return false;
  }
  fit.outcome = static_cast<FitOutcome>(outcome);
  fit.layers.assign(layers, kUntold);
  for (FittedLayer& layer :
       std::span(fit.layers).first(fit.outcome == FitOutcome::kNone ? 0 : layers)) {
    in >> layer.thicknessNm >> layer.uncertaintyNm >> layer.statisticalNm >> layer.wavelengthNm >>
        layer.indexNm;
  }
  qint32 fromNm = 0;
  quint16 points = 0;
  quint8 alternatives = 0;
  quint8 warnings = 0;
  in >> fit.scale >> fit.offset >> fit.spread >> fit.index >> fit.rms >> fit.noise >> fromNm >>
      points;
  if (points > 0 && (fromNm < ReflectanceSpectrum::kFirstNm ||
                     fromNm > ReflectanceSpectrum::kLastNm - points + 1)) {
    return false;
  }
  fit.fromNm = fromNm;
  fit.fitted.resize(points);
  in >> std::span<double>(fit.fitted) >> alternatives;
  for (quint8 i = 0; i < alternatives && !in.AtEnd(); ++i) {
    FitAlternative& alternative = fit.alternatives.emplace_back();
    alternative.thicknessesNm.resize(layers);
    in >> std::span<double>(alternative.thicknessesNm) >> alternative.rms;
  }
  in >> warnings;
  for (quint8 i = 0; i < warnings && !in.AtEnd(); ++i) {
    QString warning;
    in >> warning;
    fit.warnings << warning;
  }
  if (withSetting) {
    QString setting;
    in >> setting;
    // A fit that no request has made has none.
    fit.setting = FilmStackOf(QJsonDocument::fromJson(setting.toUtf8()).object())
                      .value_or(FilmStackSetting());
  }
  return fit.alternatives.size() == alternatives && fit.warnings.size() == warnings;
}

}  // namespace vexa
