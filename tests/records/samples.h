// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <random>
#include <type_traits>

#include "records/record_builder.h"
#include "support/spectra.h"

namespace vexa::test {

/// A value with some of its members set: With<RecordContext>(&RecordContext::lot, "A", ...).
template <typename Struct>
Struct With() {
  return {};
}
template <typename Struct, typename Member, typename Value, typename... Rest>
Struct With(Member Struct::*member, const Value& value, const Rest&... rest) {
  Struct whole = With<Struct>(rest...);
  if constexpr (std::is_same_v<Value, const char*> || std::is_array_v<Value>) {
    whole.*member = QString::fromUtf8(value);
  } else {
    whole.*member = value;
  }
  return whole;
}

/// A state in which slot 1 was just measured: background, reference and sample with noise.
inline VEXATYPE MeasuredState(unsigned seed = 1) {
  VEXATYPE state;
  std::mt19937 random(seed);
  std::uniform_real_distribution<double> noise(0.0, 1.0 / 3.0);
  for (int nm = 440; nm <= 848; ++nm) {
    state.background[nm] = 100.0 + noise(random);
    state.reference[nm] = 3000.0 + noise(random);
    state.sample[nm] = 1000.0 + noise(random);
  }
  state.backgroundMeasured = state.referenceMeasured = true;
  const QDateTime noon({2026, 11, 21}, {12, 0, 0, 123});
  state.backgroundTaken = ConditionsNow(state.instrument, noon);
  state.referenceTaken = ConditionsNow(state.instrument, noon.addSecs(60));
  state.referenceReflectance = Flat(4.0);
  state.sampleBasis = {{ConditionsNow(state.instrument, noon), state.referenceSetting},
                       state.referenceReflectance};
  MeasurementSlot& slot = *state.Slot(1);
  slot.valid = true;
  slot.info = {
      QStringLiteral("ﾚﾝｽﾞ-%1").arg(seed), QStringLiteral("備考"), {}, noon.addSecs(120 + seed)};
  for (int nm = 440; nm <= 840; ++nm) {
    slot.reflectance[nm] = 1.0 + noise(random);
  }
  return state;
}

/// The rows of a sample measured under that seed.
inline QList<Row> SampleRows(unsigned seed, const RecordContext& context = {}) {
  return MeasuredSampleOf(MeasuredState(seed), 1, context)->Rows();
}

}  // namespace vexa::test
