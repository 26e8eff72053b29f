// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <random>

#include "optics/film_model.h"
#include "simulator/film_stack.h"
#include "support/spectra.h"

namespace vexa::test {

/// The index of the virtual instrument's optics at each whole nanometre.
inline Material MaterialOf(const simulator::IndexCurve& index) {
  return {SpectrumOf([&](int nm) { return index(nm).real(); }),
          SpectrumOf([&](int nm) { return -index(nm).imag(); })};
}

/// What the virtual instrument's optics reflect, in percent, with noise of a standard deviation.
inline ReflectanceSpectrum Reflected(const simulator::FilmStack& stack, double noise = 0.0) {
  std::mt19937_64 generator(1);
  std::normal_distribution<double> normal;
  return SpectrumOf([&](int nm) {
    return 100.0 * simulator::SplitPower(stack, nm).reflected + noise * normal(generator);
  });
}

/// Hard coat on lens plastic.
inline simulator::FilmStack Coat(double thicknessNm) {
  return {simulator::LensPlasticIndex, {{simulator::HardCoatIndex, thicknessNm}}};
}

inline FilmStack CoatStack() {
  return {MaterialOf(simulator::LensPlasticIndex), {MaterialOf(simulator::HardCoatIndex)}};
}

}  // namespace vexa::test
