// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/film_depths.h"

#include <algorithm>
#include <bit>

namespace vexa {
namespace {

std::size_t NextFree(std::span<const DepthLayer> layers, std::size_t from) {
  while (from < layers.size() && layers[from].range.IsFixed()) {
    ++from;
  }
  return from;
}

// Each free layer ends at the next of the chosen depths. False when one is out of its range.
bool PlaceAtDepths(std::span<const double> depthsNm, unsigned chosen,
                   std::span<const DepthLayer> layers, std::vector<double>& thicknessesNm) {
  double depth = 0.0;
  for (const DepthLayer& layer : layers) {
    if (layer.range.IsFixed()) {
      thicknessesNm.push_back(layer.range.fromNm);
      depth += layer.range.fromNm / layer.perFirst;
      continue;
    }
    const double end = depthsNm[static_cast<std::size_t>(std::countr_zero(chosen))];
    chosen &= chosen - 1;
    const double nm = (end - depth) * layer.perFirst;
    if (nm < layer.range.fromNm - layer.orderNm || nm > layer.range.toNm + layer.orderNm) {
      return false;
    }
    thicknessesNm.push_back(std::clamp(nm, layer.range.fromNm, layer.range.toNm));
    depth = end;
  }
  return true;
}

}  // namespace

std::vector<FilmSeed> SeedsAtDepths(std::vector<double> depthsNm,
                                    std::span<const DepthLayer> layers, FilmScore& score) {
  std::ranges::sort(depthsNm);
  const auto free =
      std::ranges::count_if(layers, [](const DepthLayer& layer) { return !layer.range.IsFixed(); });
  std::vector<FilmSeed> seeds;
  for (unsigned chosen = 0; chosen < 1U << depthsNm.size(); ++chosen) {
    FilmSeed seed{{}, 0.0, 1.0};
    if (std::popcount(chosen) == free &&
        PlaceAtDepths(depthsNm, chosen, layers, seed.thicknessesNm)) {
      MoveDepths(seed, layers, score);
      seeds.push_back(std::move(seed));
    }
  }
  return seeds;
}

void MoveDepths(FilmSeed& seed, std::span<const DepthLayer> layers, FilmScore& score) {
  constexpr int kSteps = 8;
  seed.sumOfSquares = score(seed.thicknessesNm);
  for (std::size_t layer = NextFree(layers, 0); layer < layers.size();
       layer = NextFree(layers, layer + 1)) {
    const std::vector<double> from = seed.thicknessesNm;
    for (int step = -kSteps; step <= kSteps; ++step) {
      std::vector<double> at = from;
      const auto move = [&](std::size_t which, double byFirstNm) {
        const ThicknessRange& range = layers[which].range;
        at[which] =
            std::clamp(at[which] + byFirstNm * layers[which].perFirst, range.fromNm, range.toNm);
      };
      const double moved = layers.front().orderNm * step / kSteps;
      move(layer, moved);
      if (const std::size_t next = NextFree(layers, layer + 1); next < layers.size()) {
        move(next, -moved);
      }
      if (const double sum = score(at); sum < seed.sumOfSquares) {
        seed.sumOfSquares = sum;
        seed.thicknessesNm = std::move(at);
      }
    }
  }
}

}  // namespace vexa
