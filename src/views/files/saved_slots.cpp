// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/files/saved_slots.h"

#include <algorithm>

namespace vexa {
namespace {

bool IsSame(const SampleInfo& a, const SampleInfo& b) {
  return a.sampleNumber == b.sampleNumber && a.remark1 == b.remark1 && a.remark2 == b.remark2 &&
         a.measuredAt == b.measuredAt;
}

// What is computed from the spectra follows the settings, which no data file holds.
bool HoldsSame(const MeasurementSlot& a, const MeasurementSlot& b) {
  return bool{a.valid} == bool{b.valid} && a.reflectance == b.reflectance && IsSame(a.info, b.info);
}

}  // namespace

void SavedSlots::Remember(const VEXATYPE& state) {
  slots_ = state.measurementSlots;
  dataFile_ = state.currentDataFileName;
}

bool SavedSlots::DifferFrom(const VEXATYPE& state) const {
  return dataFile_.isEmpty() || dataFile_ != state.currentDataFileName ||
         !std::ranges::equal(slots_, state.measurementSlots, HoldsSame);
}

}  // namespace vexa
