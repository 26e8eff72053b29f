// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <random>
#include <vector>

#include "simulator/detector.h"
#include "simulator/options.h"
#include "simulator/stage.h"
#include "simulator/wear.h"

namespace vexa::simulator {

/// The stage and the line sensor that looks at it, with the noise of the run's seed.
class OpticalHead {
 public:
  OpticalHead(const Options& options, Stage::Changed stageChanged)
      : stage_(options.stage, std::move(stageChanged)),
        generator_(options.seed),
        noise_(options.noise),
        wear_(options.wear) {}

  [[nodiscard]] Stage& UnderObjective() { return stage_; }
  [[nodiscard]] Wear& Condition() { return wear_; }

  /// Reads `count` lines off the sensor.
  [[nodiscard]] std::vector<SensorLine> ReadLines(const Exposure& exposure, int count);

 private:
  Stage stage_;
  std::mt19937_64 generator_;
  bool noise_;
  Wear wear_;
};

}  // namespace vexa::simulator
