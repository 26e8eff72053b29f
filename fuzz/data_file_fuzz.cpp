// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a comma-separated, block or additional-data file, evaluated as loaded slots are.
#include "files/add_data_file.h"
#include "files/data_file.h"
#include "memory_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const vexa::fuzz::MemoryFile file(data, size);
  vexa::fuzz::Silence messages;
  vexa::VEXATYPE state;
  state.accumulate = true;
  (void)vexa::ReadCsvDataFile(file.Path(), state, messages);
  (void)vexa::ReadDatDataFile(file.Path(), state, messages);
  (void)vexa::ReadAddDataFile(file.Path(), state, messages);
  return 0;
}
