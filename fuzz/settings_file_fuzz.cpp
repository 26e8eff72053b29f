// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as an environment, calibration, standard or stock file; whatever standard comes out is
// judged with.
#include "colour/stock_file.h"
#include "files/environment_file.h"
#include "instrument/calibration_file.h"
#include "measurement/evaluation.h"
#include "memory_file.h"
#include "standards/standard_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const vexa::fuzz::MemoryFile file(data, size);
  vexa::VEXATYPE state;
  if (const auto content = vexa::ReadEnvFile(file.Path())) {
    vexa::ApplyEnvironment(*content, state);
  }
  (void)vexa::ReadCalibrationFile(file.Path());
  if (const auto stock = vexa::ReadStockFile(file.Path())) {
    state.stock = *stock;
  }
  if (const auto contents = vexa::ReadStandardFile(file.Path())) {
    state.standard = contents->standard;
  }
  vexa::ComputeColours(state.colour, *state.Slot(1));
  vexa::JudgeSlot(state, *state.Slot(1));
  return 0;
}
