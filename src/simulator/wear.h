// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLatin1StringView>
#include <QStringView>
#include <array>
#include <optional>

namespace vexa::simulator {

/// What time has done to the instrument, so that a check of it has something to find.
struct Wear {
  double lampAgeHours = 0.0;        ///< see LampPower
  double shutterLeakPercent = 0.0;  ///< of the lamp's light, past the closed light shutter
};

struct WearInfo {
  double Wear::*amount;
  double most;
  QLatin1StringView name;  // as options and console lines write it
  QLatin1StringView description;
};

/// Every kind of wear once.
[[nodiscard]] const std::array<WearInfo, 2>& AllWear();

/// The kind of wear of that name; null when there is none.
[[nodiscard]] const WearInfo* FindWear(QStringView name);

/// The amount that a text states; empty when it is no number from 0 to the most there is.
[[nodiscard]] std::optional<double> ReadAmount(const WearInfo& info, QStringView text);

}  // namespace vexa::simulator
