// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>

#include "base/flag.h"
#include "colour/colorimetry.h"

namespace vexa {

/// What became of a point that was offered to the stock.
enum class StockAddResult {
  kStored,
  kStoredLast,  ///< stored, and the stock is now full
  kRefused,     ///< the stock was full
};

/// The display conditions under which points are taken.
struct StockConditions {
  Flag xyMode = true;
  std::int16_t illuminant = 1;
  Flag observer2Deg = true;

  bool operator==(const StockConditions&) const = default;
};

/// Up to 100 accumulated colour points; point k, counted from 1, is at index k - 1.
struct ColourStock {
  static constexpr int kCapacity = 100;

  std::int16_t Count = 0;              ///< 0..100
  std::array<double, kCapacity> P1{};  ///< x, or a*
  std::array<double, kCapacity> P2{};  ///< y, or b*
  std::array<double, kCapacity> P3{};  ///< Y, or L*
  Flag StockMode = true;               ///< the points are (x, y, Y), otherwise (a*, b*, L*)
  std::int16_t StockIlluminant = 1;    ///< 1..4; as found when it came from a file
  Flag StockObserver = true;           ///< 2 degrees

  /// Offers a colour: as (x, y, Y) in xy mode, otherwise as (a*, b*, L*).
  StockAddResult StockAdd(const ColourResult& colour, Flag xyMode);

  /// Takes away the last point; does nothing when there is none.
  void RemoveLast();
  void RemoveAll();

  /// True when there are points and they were taken under other conditions than these.
  [[nodiscard]] bool DiffersFrom(const StockConditions& conditions) const;
  /// Takes over the conditions, whatever points there are.
  void Record(const StockConditions& conditions);

  bool operator==(const ColourStock&) const = default;
};

}  // namespace vexa
