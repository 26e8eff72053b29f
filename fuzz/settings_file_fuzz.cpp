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
  vexa::fuzz::Silence messages;
  vexa::VEXATYPE state;
  (void)vexa::ReadEnvFile(file.Path(), state, messages);
  (void)vexa::ReadCalibrationFile(file.Path());
  (void)vexa::ReadStockFile(file.Path(), state.stock);
  (void)vexa::ReadStandardFile(file.Path(), state.standard, state.chromaMarker, state.hueMarker,
                               messages);
  vexa::EvaluateSlot(state, *state.Slot(1), messages);
  return 0;
}
