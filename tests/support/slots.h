// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "measurement/measurement_slot.h"
#include "support/spectra.h"

namespace vexa::test {

/// The verdicts of a slot: a letter for each group in order, "-" where it was not judged.
inline std::string Verdicts(const MeasurementSlot& slot) {
  std::string verdicts;
  for (const GroupJudgement& group : slot.judgement.groups) {
    verdicts += !group.passed ? '-' : *group.passed ? 'y' : 'n';
  }
  return verdicts;
}

/// A reflectance with a peak every 100 nm from 450 nm on.
inline ReflectanceSpectrum Fringes() {
  return SpectrumOf([](int nm) { return nm % 100 == 50 ? 9.0 : 4.0 + nm / 1000.0; });
}

}  // namespace vexa::test
