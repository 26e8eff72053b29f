// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/optical_head.h"

namespace vexa::simulator {

std::vector<SensorLine> OpticalHead::ReadLines(const Exposure& exposure, int count) {
  const PixelCounts mean = MeanCounts(stage_.Current(), exposure, wear_);
  std::vector<SensorLine> lines(static_cast<std::size_t>(count));
  for (SensorLine& line : lines) {
    line = ReadOut(mean, noise_ ? &generator_ : nullptr);
  }
  return lines;
}

}  // namespace vexa::simulator
