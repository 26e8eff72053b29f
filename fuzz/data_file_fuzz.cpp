// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a comma-separated, block or additional-data file, evaluated as loaded slots are.
#include "files/add_data_file.h"
#include "files/data_file.h"
#include "measurement/session.h"
#include "memory_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const vexa::fuzz::MemoryFile file(data, size);
  vexa::Session session({});
  session.SetAccumulating(true);
  for (const auto& content :
       {vexa::ReadCsvDataFile(file.Path()), vexa::ReadDatDataFile(file.Path())}) {
    if (content) {
      session.LoadSlots(vexa::SlotsWith(*content, session.State().measurementSlots), {},
                        content->comment);
    }
  }
  if (const auto infos = vexa::ReadAddDataFile(file.Path())) {
    session.EditInformation(*infos);
  }
  return 0;
}
