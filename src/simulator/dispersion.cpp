// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/dispersion.h"

#include <array>
#include <cmath>

namespace vexa::simulator {
namespace {

struct SellmeierTerm {
  double strength;
  double resonance;  // C, in square micrometres
};

double Sellmeier(const std::array<SellmeierTerm, 3>& terms, double wavelengthNm) {
  const double squaredUm = wavelengthNm * wavelengthNm * 1e-6;
  double squaredIndex = 1.0;
  for (const SellmeierTerm& term : terms) {
    squaredIndex += term.strength * squaredUm / (squaredUm - term.resonance);
  }
  return std::sqrt(squaredIndex);
}

double Cauchy(double constant, double slopeUm2, double wavelengthNm) {
  return constant + slopeUm2 / (wavelengthNm * wavelengthNm * 1e-6);
}

}  // namespace

double CrownGlassIndex(double wavelengthNm) {
  return Sellmeier(
      {{{1.03961212, 0.00600069867}, {0.231792344, 0.0200179144}, {1.01046945, 103.560653}}},
      wavelengthNm);
}

double MagnesiumFluorideIndex(double wavelengthNm) {
  return Sellmeier({{{0.48755108, 0.04338408 * 0.04338408},
                     {0.39875031, 0.09461442 * 0.09461442},
                     {2.3120353, 23.793604 * 23.793604}}},
                   wavelengthNm);
}

double ZirconiaIndex(double wavelengthNm) {
  return Sellmeier({{{1.347091, 0.062543 * 0.062543},
                     {2.117788, 0.166739 * 0.166739},
                     {9.452943, 24.320570 * 24.320570}}},
                   wavelengthNm);
}

double LensPlasticIndex(double wavelengthNm) {
  return Cauchy(1.4855, 0.00450, wavelengthNm);
}

double PrimerIndex(double wavelengthNm) {
  return Cauchy(1.5218, 0.00628, wavelengthNm);
}

double HardCoatIndex(double wavelengthNm) {
  return Cauchy(1.5803, 0.00751, wavelengthNm);
}

}  // namespace vexa::simulator
