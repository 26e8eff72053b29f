// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <random>

#include "base/spectrum.h"
#include "simulator/detector.h"

namespace vexa {

/// How the frames are taken.
struct Conditions {
  double integrationMs;
  int averaging;
  bool noise;
};

struct Measured {
  ReflectanceSpectrum reflectance;  ///< percent
  ReflectanceSpectrum noise;        ///< of it, by the noise of the counts, as a slot has it
};

/// A face measured over the whole path: light on the detector, lines as the controller sends them,
/// averaging, wavelength mapping, reflectance against the 4 % reference.
[[nodiscard]] Measured Measure(const simulator::ReflectanceCurve& percent,
                               const Conditions& conditions, std::mt19937_64& generator);

}  // namespace vexa
