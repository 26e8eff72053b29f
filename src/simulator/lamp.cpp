// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/lamp.h"

#include <cmath>

namespace vexa::simulator {
namespace {

// Second radiation constant h c / k in nm K (CODATA 2018).
constexpr double kSecondRadiationNmK = 1.438776877e7;
constexpr double kBulbHours = 10'000.0;

double BlackBody(double wavelengthNm) {
  return std::pow(wavelengthNm, -5.0) /
         std::expm1(kSecondRadiationNmK / (wavelengthNm * kLampKelvin));
}

}  // namespace

double LampPower(double wavelengthNm, double ageHours) {
  const double blueness = 550.0 / wavelengthNm;
  const double bulb = std::exp(-ageHours / kBulbHours * blueness * blueness);
  return bulb * BlackBody(wavelengthNm) / BlackBody(650.0);
}

double RoomLight(double wavelengthNm) {
  const double deviations = (wavelengthNm - 555.0) / 80.0;
  return std::exp(-0.5 * deviations * deviations);
}

}  // namespace vexa::simulator
