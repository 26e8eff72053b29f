// SPDX-License-Identifier: GPL-3.0-or-later
#include "measurement/vexatype.h"

#include <algorithm>

namespace vexa {
namespace {

constexpr double kDefaultReferencePercent = 4.0;

}  // namespace

VEXATYPE::VEXATYPE() : envFileName(QStringLiteral("vexa.env")) {
  std::ranges::fill(referenceReflectance.Values(), kDefaultReferencePercent);
}

MeasurementSlot* VEXATYPE::Slot(int number) {
  return number >= 1 && number <= kSlotCount
             ? &measurementSlots[static_cast<std::size_t>(number - 1)]
             : nullptr;
}

const MeasurementSlot* VEXATYPE::Slot(int number) const {
  return const_cast<VEXATYPE*>(this)->Slot(number);
}

bool VEXATYPE::HasValidSlot() const {
  return std::ranges::any_of(measurementSlots,
                             [](const MeasurementSlot& slot) { return bool{slot.valid}; });
}

void VEXATYPE::ClearSlots() {
  measurementSlots.fill({});
}

}  // namespace vexa
