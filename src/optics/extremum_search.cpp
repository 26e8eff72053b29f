// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/extremum_search.h"

#include <algorithm>
#include <cmath>

namespace vexa {
namespace {

constexpr int kHalfWidthNm = 5;
constexpr int kFirstNm = ReflectanceSpectrum::kFirstNm;
constexpr int kLastNm = ReflectanceSpectrum::kLastNm;

// `above` tells whether a value lies beyond the outermost one so far.
template <typename Above>
ExtremumPoint Outermost(const ReflectanceSpectrum& spectrum, int lowNm, int highNm, Above above) {
  ExtremumPoint outermost{static_cast<double>(lowNm), spectrum[lowNm]};
  int ties = 0;
  for (int nm = lowNm + 1; nm <= highNm; ++nm) {
    const double value = spectrum[nm];
    if (above(value, outermost.reflectance)) {
      outermost = {static_cast<double>(nm), value};
      ties = 0;
    } else if (value == outermost.reflectance) {
      ++ties;
    }
  }
  outermost.wavelengthNm += ties / 2.0;
  return outermost;
}

}  // namespace

int NearestNm(double wavelengthNm) {
  return static_cast<int>(std::nearbyint(
      std::clamp(wavelengthNm, static_cast<double>(kFirstNm), static_cast<double>(kLastNm))));
}

ReflectanceSpectrum Smoothed(const ReflectanceSpectrum& spectrum) {
  ReflectanceSpectrum smoothed;
  for (int nm = kFirstNm; nm <= kLastNm; ++nm) {
    const int low = std::max(nm - kHalfWidthNm, kFirstNm);
    const int high = std::min(nm + kHalfWidthNm, kLastNm);
    // A running sum would leave its rounding behind and make flat runs uneven.
    double sum = 0.0;
    for (int i = low; i <= high; ++i) {
      sum += spectrum[i];
    }
    smoothed[nm] = sum / (high - low + 1);
  }
  return smoothed;
}

bool DetectExtrema(const ReflectanceSpectrum& smoothed, const ReflectanceSpectrum& spectrum,
                   ExtremaWanted wanted, ExtremumList& list) {
  const bool wantMaxima = wanted != ExtremaWanted::kMinima;
  const bool wantMinima = wanted != ExtremaWanted::kMaxima;
  list.count = 0;
  int flatRun = 0;
  double previous = smoothed[kFirstNm + 1] - smoothed[kFirstNm];
  for (int nm = kFirstNm + 1; nm < kLastNm; ++nm) {
    const double slope = smoothed[nm + 1] - smoothed[nm];
    const bool maximum = wantMaxima && previous >= 0.0 && slope < 0.0;
    const bool minimum = wantMinima && previous <= 0.0 && slope > 0.0;
    if (maximum || minimum) {
      const double positionNm = previous == 0.0 ? nm - flatRun / 2.0 : nm;
      list.entries[static_cast<std::size_t>(list.count)] = {
          {positionNm, spectrum[NearestNm(positionNm)]}, maximum};
      flatRun = 0;
      ++list.count;
      if (list.count == ExtremumList::kLimit) {
        return false;
      }
    } else if (previous == 0.0 && slope == 0.0) {
      ++flatRun;
    } else if ((previous > 0.0 && slope >= 0.0) || (previous < 0.0 && slope < 0.0)) {
      flatRun = 0;
    }
    previous = slope;
  }
  return true;
}

void RefineExtrema(const ReflectanceSpectrum& spectrum, ExtremumList& list) {
  for (Extremum& extremum : std::span(list.entries).first(static_cast<std::size_t>(list.count))) {
    const int low = NearestNm(extremum.point.wavelengthNm - kHalfWidthNm);
    const int high = NearestNm(extremum.point.wavelengthNm + kHalfWidthNm);
    extremum.point = extremum.maximum
                         ? Outermost(spectrum, low, high, [](double a, double b) { return a > b; })
                         : Outermost(spectrum, low, high, [](double a, double b) { return a < b; });
  }
}

}  // namespace vexa
