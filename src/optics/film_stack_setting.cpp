// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/film_stack_setting.h"

namespace vexa {

std::vector<ThicknessRange> LayerRanges(const FilmStackSetting& setting) {
  std::vector<ThicknessRange> ranges;
  ranges.reserve(setting.layers.size());
  for (const FilmLayerSetting& layer : setting.layers) {
    ranges.push_back(layer.range);
  }
  return ranges;
}

}  // namespace vexa
