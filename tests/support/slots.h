// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "measurement/session.h"
#include "support/spectra.h"
#include "support/waiting.h"

namespace vexa::test {

/// The verdicts of a slot: a letter for each group in order, "-" where it was not judged.
inline std::string Verdicts(const MeasurementSlot& slot) {
  std::string verdicts;
  for (const GroupJudgement& group : slot.judgement.groups) {
    verdicts += !group.passed ? '-' : *group.passed ? 'y' : 'n';
  }
  return verdicts;
}

/// Stores a sample as a measurement does: with its fit, where each one is fitted.
inline SampleStorage Store(Session& session, int slot, const RawSpectrum& counts) {
  const SampleBasis basis = session.BasisNow();
  std::optional<FilmFit> fit;
  if (const auto task = session.FitToMake(counts, basis)) {
    SampleFit fitting;
    fit = Done(fitting.Make(*task));
  }
  return session.StoreSample(slot, counts, basis, {}, fit);
}

/// A reflectance with a peak every 100 nm from 450 nm on.
inline ReflectanceSpectrum Fringes() {
  return SpectrumOf([](int nm) { return nm % 100 == 50 ? 9.0 : 4.0 + nm / 1000.0; });
}

}  // namespace vexa::test
