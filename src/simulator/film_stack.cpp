// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/film_stack.h"

#include <numbers>

namespace vexa::simulator {

PowerShares SplitPower(const FilmStack& stack, double wavelengthNm) {
  using Complex = std::complex<double>;
  const Complex i(0.0, 1.0);

  // The fields at the substrate, carried through the films towards the air.
  const Complex substrate = stack.substrate(wavelengthNm);
  Complex electric = 1.0;
  Complex magnetic = substrate;
  for (auto layer = stack.layers.rbegin(); layer != stack.layers.rend(); ++layer) {
    const Complex index = layer->index(wavelengthNm);
    const Complex phase = 2.0 * std::numbers::pi * index * layer->thicknessNm / wavelengthNm;
    const Complex cosine = std::cos(phase);
    const Complex sine = i * std::sin(phase);
    const Complex carried = cosine * electric + sine / index * magnetic;
    magnetic = sine * index * electric + cosine * magnetic;
    electric = carried;
  }

  const Complex sum = electric + magnetic;
  return {std::norm((electric - magnetic) / sum), 4.0 * substrate.real() / std::norm(sum)};
}

}  // namespace vexa::simulator
