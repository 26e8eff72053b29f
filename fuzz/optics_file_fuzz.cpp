// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as an index file or a substrate's data file; whatever spectrum comes out is computed
// with.
#include "memory_file.h"
#include "optics/bunsan.h"
#include "optics/thickness.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const vexa::fuzz::MemoryFile file(data, size);
  vexa::DispersionSetting setting;
  setting.indexFileName = file.Path();
  setting.dataFileName = file.Path();
  vexa::ReflectanceSpectrum spectrum;
  for (const std::int16_t kind :
       {vexa::DispersionKind::kIndexFile, vexa::DispersionKind::kSubstrate}) {
    setting.kind = kind;
    if (const vexa::Dispersion read = vexa::GetBunsanArray(false, setting); read.status == 0) {
      spectrum = read.spectrum;
    }
  }
  for (std::int16_t type = 0; type < 3; ++type) {
    vexa::ReflectanceSpectrum filmIndex = spectrum;
    vexa::ThicknessResult result;
    (void)vexa::ComputeThickness(type, 0, 4, spectrum, spectrum, filmIndex, result);
  }
  return 0;
}
