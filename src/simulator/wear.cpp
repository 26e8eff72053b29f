// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/wear.h"

#include <algorithm>

namespace vexa::simulator {

using namespace Qt::StringLiterals;

const std::array<WearInfo, 2>& AllWear() {
  static constexpr std::array<WearInfo, 2> kWear = {{
      {&Wear::lampAgeHours, 100'000.0, "lamp-age"_L1,
       "hours that the lamp has burnt: it gets darker, most of all in the blue"_L1},
      {&Wear::shutterLeakPercent, 100.0, "shutter-leak"_L1,
       "percent of the lamp's light that the closed light shutter lets through"_L1},
  }};
  return kWear;
}

const WearInfo* FindWear(QStringView name) {
  const auto& all = AllWear();
  const auto found =
      std::ranges::find_if(all, [name](const auto& info) { return name == info.name; });
  return found == all.end() ? nullptr : &*found;
}

std::optional<double> ReadAmount(const WearInfo& info, QStringView text) {
  bool isNumber = false;
  const double amount = text.toDouble(&isNumber);
  // Refuses what is no number of a range, too: "nan" and "inf" are read.
  return isNumber && amount >= 0.0 && amount <= info.most ? std::optional(amount) : std::nullopt;
}

}  // namespace vexa::simulator
