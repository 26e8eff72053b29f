// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/colour_stock.h"

namespace vexa {

StockAddResult ColourStock::StockAdd(const ColourResult& colour, Flag xyMode) {
  if (Count >= kCapacity) {
    return StockAddResult::kRefused;
  }
  const auto index = static_cast<std::size_t>(Count);
  P1[index] = xyMode ? colour.x : colour.a;
  P2[index] = xyMode ? colour.y : colour.b;
  P3[index] = xyMode ? colour.Y : colour.L;
  ++Count;
  return Count == kCapacity ? StockAddResult::kStoredLast : StockAddResult::kStored;
}

void ColourStock::RemoveLast() {
  if (Count > 0) {
    --Count;
    const auto index = static_cast<std::size_t>(Count);
    P1[index] = P2[index] = P3[index] = 0.0;
  }
}

void ColourStock::RemoveAll() {
  while (Count > 0) {
    RemoveLast();
  }
}

bool ColourStock::DiffersFrom(const StockConditions& conditions) const {
  return Count > 0 && (StockMode != conditions.xyMode || StockIlluminant != conditions.illuminant ||
                       StockObserver != conditions.observer2Deg);
}

void ColourStock::Record(const StockConditions& conditions) {
  StockMode = conditions.xyMode;
  StockIlluminant = conditions.illuminant;
  StockObserver = conditions.observer2Deg;
}

}  // namespace vexa
