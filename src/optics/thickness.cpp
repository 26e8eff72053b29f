// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/thickness.h"

#include <numeric>

#include "base/arithmetic.h"
#include "optics/bunsan.h"
#include "optics/extremum_search.h"

namespace vexa {
namespace {

double Mean(const ReflectanceSpectrum& spectrum) {
  const auto values = spectrum.Values();
  return std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(values.size());
}

ExtremaWanted WantedBy(std::int16_t type) {
  switch (type) {
    case ThicknessType::kA:
      return ExtremaWanted::kMinima;
    case ThicknessType::kB:
      return ExtremaWanted::kMaxima;
    default:
      return ExtremaWanted::kBoth;
  }
}

void DeriveFilmIndex(const ReflectanceSpectrum& substrateIndex, const ReflectanceSpectrum& spectrum,
                     ReflectanceSpectrum& filmIndex) {
  for (int nm = ReflectanceSpectrum::kFirstNm; nm <= ReflectanceSpectrum::kLastNm; ++nm) {
    filmIndex[nm] = SquareRoot(substrateIndex[nm] * ReflectanceToIndex(spectrum[nm]));
  }
}

// `orders` is the number of interference orders between the two extrema.
double Formula(double orders, const ThicknessResult& pair) {
  const double w1 = pair.first.wavelengthNm;
  const double w2 = pair.second.wavelengthNm;
  const double n1 = pair.physical ? pair.firstIndex : 1.0;
  const double n2 = pair.physical ? pair.secondIndex : 1.0;
  return Divide(orders * 0.5 * w1 * w2, n1 * w2 - n2 * w1);
}

Status Compute(std::int16_t type, std::int16_t kind, bool deriveIndex,
               const ReflectanceSpectrum& substrateIndex, const ReflectanceSpectrum& spectrum,
               ReflectanceSpectrum& filmIndex, ThicknessResult& result) {
  ExtremaWanted wanted = WantedBy(type);
  if (deriveIndex) {
    wanted = Mean(substrateIndex) > ReflectanceToIndex(Mean(spectrum)) ? ExtremaWanted::kMinima
                                                                       : ExtremaWanted::kMaxima;
  }
  if (!DetectExtrema(Smoothed(spectrum), spectrum, wanted, result.extrema)) {
    return kTooManyExtrema;
  }
  RefineExtrema(spectrum, result.extrema);
  const auto found = result.extrema.Found();
  if (found.size() < 2) {
    return kTooFewExtrema;
  }
  const auto used = type == ThicknessType::kA ? found.last(2) : found;
  result.first = used.front().point;
  result.second = used.back().point;
  if (deriveIndex) {
    DeriveFilmIndex(substrateIndex, spectrum, filmIndex);
  }
  result.physical = kind != ThicknessKind::kOptical;
  result.firstIndex = filmIndex[NearestNm(result.first.wavelengthNm)];
  result.secondIndex = filmIndex[NearestNm(result.second.wavelengthNm)];
  if (kind != ThicknessKind::kPhysical && kind != ThicknessKind::kOptical) {
    return type == ThicknessType::kA ? kThicknessFault : Status{0};
  }
  const double steps = static_cast<double>(used.size() - 1);
  result.thicknessNm = Formula(type == ThicknessType::kC ? steps / 2.0 : steps, result);
  return 0;
}

}  // namespace

Status ComputeThickness(std::int16_t type, std::int16_t kind, std::int16_t substrateMode,
                        const ReflectanceSpectrum& substrateIndex,
                        const ReflectanceSpectrum& spectrum, ReflectanceSpectrum& filmIndex,
                        ThicknessResult& result) {
  result = {};
  Status status = kThicknessTypeFault;
  if (type >= ThicknessType::kA && type <= ThicknessType::kC) {
    const bool deriveIndex = substrateMode == DispersionKind::kSubstrate;
    try {
      if (deriveIndex && (type == ThicknessType::kC || Mean(substrateIndex) <= 0.0)) {
        throw ArithmeticFault("no index");
      }
      status = Compute(type, kind, deriveIndex, substrateIndex, spectrum, filmIndex, result);
    } catch (const ArithmeticFault&) {
      status = kThicknessFault;
    }
  }
  if (status != 0) {
    result = {};
  }
  return status;
}

MessageCall ThicknessMessage(Status status) {
  switch (status) {
    case kTooFewExtrema:
      return {Message::kTooFewExtrema};
    case kTooManyExtrema:
      return {Message::kTooManyExtrema};
    default:
      return {Message::kThicknessFault};
  }
}

QString ThicknessUnit(bool physical) {
  return physical ? QStringLiteral("[nm]") : QStringLiteral("[nd]");
}

}  // namespace vexa
