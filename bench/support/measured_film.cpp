// SPDX-License-Identifier: GPL-3.0-or-later
#include "measured_film.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "instrument/h8_reply.h"
#include "instrument/wavelength_mapping.h"
#include "measurement/reflectance.h"
#include "measurement/reflectance_noise.h"

namespace vexa {
namespace {

constexpr int kShiftNm = 4;
constexpr double kReferencePercent = 4.0;

// One frame: the body of a data reply, taken apart and mapped as an acquisition does it.
RawSpectrum Acquire(const simulator::ReflectanceCurve& percent, bool dark,
                    const Conditions& conditions, std::mt19937_64& generator) {
  const simulator::PixelCounts mean = simulator::MeanCounts(
      percent, {.integrationMs = conditions.integrationMs, .lightShutterClosed = dark});
  std::vector<std::uint8_t> body(4);
  for (int n = 0; n < conditions.averaging; ++n) {
    for (const std::uint16_t count :
         simulator::ReadOut(mean, conditions.noise ? &generator : nullptr)) {
      body.push_back(static_cast<std::uint8_t>(count & 0xff));
      body.push_back(static_cast<std::uint8_t>(count >> 8));
    }
  }
  LineBuffers lines;
  RawSpectrum spectrum;
  if (FillLines(body, lines)) {
    const MappedSpectrum mapped = LinesToWaves(lines, kDefaultLinePositions, kDetectorStartNm);
    if (mapped.status == 0) {
      std::ranges::copy(mapped.values, spectrum.Values().begin());
    }
  }
  return spectrum;
}

}  // namespace

Measured Measure(const simulator::ReflectanceCurve& face, const Conditions& conditions,
                 std::mt19937_64& generator) {
  const auto reference = [](double) { return kReferencePercent; };
  const FrameConditions taken{{},
                              static_cast<std::int16_t>(conditions.integrationMs),
                              static_cast<std::int16_t>(conditions.averaging),
                              kShiftNm};
  SampleBasis basis{{taken, {}}, {}};
  std::ranges::fill(basis.referenceReflectance.Values(), kReferencePercent);
  VEXATYPE state;
  state.backgroundTaken = taken;
  state.referenceTaken = taken;
  state.background = Acquire(reference, true, conditions, generator);
  state.reference = Acquire(reference, false, conditions, generator);
  const RawSpectrum sample = Acquire(face, false, conditions, generator);
  return {ComputeReflectance(sample, state.background, state.reference, kShiftNm,
                             basis.referenceReflectance),
          ReflectanceNoise(state, sample, basis)};
}

}  // namespace vexa
