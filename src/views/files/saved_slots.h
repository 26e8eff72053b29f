// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "measurement/vexatype.h"

namespace vexa {

/// What the slots held when their data file was read or written last.
class SavedSlots {
 public:
  /// The data file now holds the slots as they are.
  void Remember(const VEXATYPE& state);

  /// True when the slots, or their sample information, have changed since; without a data file
  /// always.
  [[nodiscard]] bool DifferFrom(const VEXATYPE& state) const;

 private:
  std::array<MeasurementSlot, kSlotCount> slots_{};
  QString dataFile_;
};

}  // namespace vexa
