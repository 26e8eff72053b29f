// SPDX-License-Identifier: GPL-3.0-or-later
#include "measurement/vexatype.h"

#include <QDir>
#include <algorithm>

namespace vexa {

MeasurementSlot* VEXATYPE::Slot(int number) {
  return number >= 1 && number <= kSlotCount
             ? &measurementSlots[static_cast<std::size_t>(number) - 1]
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

StockConditions Settings::ColourConditions() const {
  return {display.xyMode, colour.illuminant, colour.observer2Deg};
}

QString CompletePath(const QString& programDirectory, const QString& name) {
  const bool complete = name.contains(u':') || name.contains(u'\\') || name.contains(u'/');
  return complete ? name : QDir(programDirectory).filePath(name);
}

QString CompletePath(const Settings& settings, const QString& name) {
  return CompletePath(settings.programDirectory, name);
}

}  // namespace vexa
