// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/film_seeds.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <optional>

#include "optics/film_depths.h"
#include "optics/film_score.h"
#include "optics/fourier_thickness.h"

namespace vexa {
namespace {

constexpr double kThinNm = 1200.0;        // below it the transform's peaks are too wide
constexpr double kThinResolutions = 1.9;  // likewise, in thicknesses that it can tell apart
constexpr double kLowestPeakNm = 600.0;   // of optical equivalents that are taken for peaks
constexpr std::size_t kMostSeeds = 8;
constexpr double kClearRatio = 10.0;  // of the peak of a fringe that is surely there
constexpr std::size_t kMostCombinations = 3000;
constexpr std::size_t kMostEnumerated = 200000;
constexpr std::size_t kMostRefined = 12;
constexpr std::size_t kMostPeaks = 6;   // of a layer among several
constexpr double kWeakestDepth = 0.02;  // of the strongest peak
constexpr double kExplained = 0.05;     // of the variation: what is left by depths that are right
constexpr int kStepsAnOrder = 12;

double MeanIndex(const Material& material, const FilmFitOptions& options) {
  return material.n[(options.fromNm + options.toNm) / 2];
}

// How much a layer's thickness changes from one order to the next, in the middle of the range.
double OrderNm(const Material& layer, const FilmFitOptions& options) {
  const double middleNm = 2.0 / (1.0 / options.fromNm + 1.0 / options.toNm);
  return middleNm / (2.0 * MeanIndex(layer, options));
}

// Keeps the best of the seeds that are nearer to one another than a quarter of an order.
std::vector<FilmSeed> Distinct(std::vector<FilmSeed> seeds, const std::vector<double>& orders,
                               std::size_t most) {
  std::ranges::sort(seeds, {}, &FilmSeed::sumOfSquares);
  std::vector<FilmSeed> kept;
  for (FilmSeed& seed : seeds) {
    const bool known = std::ranges::any_of(kept, [&](const FilmSeed& other) {
      for (std::size_t j = 0; j < orders.size(); ++j) {
        if (std::abs(seed.thicknessesNm[j] - other.thicknessesNm[j]) > orders[j] / 4.0) {
          return false;
        }
      }
      return true;
    });
    if (!known && kept.size() < most) {
      kept.push_back(std::move(seed));
    }
  }
  return kept;
}

class Search {
 public:
  Search(const ReflectanceSpectrum& spectrum, const FilmStack& stack,
         std::span<const ThicknessRange> ranges, const FilmFitOptions& options,
         std::span<const double> incoherent, const std::stop_token& stop)
      : stack_(stack),
        ranges_(ranges),
        options_(options),
        fine_(spectrum, stack, options, incoherent, 1, stop),
        coarse_(spectrum, stack, options, incoherent, options.toNm - options.fromNm >= 160 ? 4 : 1,
                stop) {
    for (std::size_t j = 0; j < ranges.size(); ++j) {
      thinNm_ = std::max(thinNm_, ThinNm(stack.layers[j], options));
      orders_.push_back(OrderNm(stack.layers[j], options));
      start_.push_back(ranges[j].fromNm);
      if (!ranges[j].IsFixed()) {
        free_.push_back(j);
      }
    }
    FindPeaks(spectrum);
    std::vector<double> used;
    for (int nm = options.fromNm; nm <= options.toNm; ++nm) {
      used.push_back(spectrum[nm]);
    }
    variation_ = MatchLinear(std::vector<double>(used.size()), used, false, true).sumOfSquares;
  }

  std::vector<FilmSeed> Run() {
    if (free_.empty()) {
      return {{start_, fine_(start_), 1.0}};
    }
    std::vector<FilmSeed> seeds;
    if (free_.size() == 1) {
      ScanOne(seeds);
    } else {
      Combine(seeds);
    }
    return Distinct(std::move(seeds), orders_, kMostSeeds);
  }

 private:
  // Strong fringes and the differences between them, as thicknesses of the first layer.
  void FindPeaks(const ReflectanceSpectrum& spectrum) {
    const auto transform =
        TransformFringes(spectrum, stack_.layers.front().n, options_.fromNm, options_.toNm);
    if (!transform || transform->peaks.empty()) {
      return;
    }
    if (const FourierPeak& first = transform->peaks.front();
        first.ratio > kClearRatio && first.thicknessNm > thinNm_) {
      strongest_ = first.thicknessNm;
    }
    for (const FourierPeak& peak : transform->peaks) {
      if (peak.ratio >= FourierThickness::kNoiseRatio &&
          peak.amplitude >= kWeakestDepth * transform->peaks.front().amplitude) {
        depths_.push_back(peak.thicknessNm);
      }
      if (peak.amplitude >=
          FourierThickness::kWeakestCandidate * transform->peaks.front().amplitude) {
        peaks_.push_back(peak.thicknessNm);
      }
    }
  }

  // The same optical path in another layer.
  [[nodiscard]] double InLayer(double firstLayerNm, std::size_t layer) const {
    return firstLayerNm * MeanIndex(stack_.layers.front(), options_) /
           MeanIndex(stack_.layers[layer], options_);
  }

  // Adds every local minimum of a scan of one layer.
  void Scan(FilmScore& score, std::vector<double> at, std::size_t layer, double fromNm, double toNm,
            double stepNm, std::vector<FilmSeed>& seeds) {
    fromNm = std::max(fromNm, ranges_[layer].fromNm);
    toNm = std::min(toNm, ranges_[layer].toNm);
    if (fromNm > toNm) {
      return;
    }
    const auto steps = std::max(1, static_cast<int>(std::ceil((toNm - fromNm) / stepNm)));
    const auto seedAt = [&](double nm) {
      at[layer] = nm;
      FilmSeed seed{at, 0.0, 1.0};
      seed.sumOfSquares =
          nm > thinNm_ && free_.size() == 1 ? score.Damped(at, seed.visibility) : score(at);
      return seed;
    };
    std::vector<FilmSeed> line;
    for (int i = 0; i <= steps; ++i) {
      line.push_back(seedAt(std::lerp(fromNm, toNm, static_cast<double>(i) / steps)));
    }
    for (std::size_t i = 0; i < line.size(); ++i) {
      const bool first = i == 0;
      const bool last = i + 1 == line.size();
      const double here = line[i].sumOfSquares;
      if ((!first && line[i - 1].sumOfSquares < here) ||
          (!last && line[i + 1].sumOfSquares <= here)) {
        continue;
      }
      seeds.push_back(line[i]);
      if (first || last) {
        continue;
      }
      // On the parabola through the lowest three the sums of different minima can be compared.
      const double before = line[i - 1].sumOfSquares;
      const double after = line[i + 1].sumOfSquares;
      const double bend = before + after - 2.0 * here;
      const double step = (toNm - fromNm) / steps;
      if (bend > 0.0) {
        seeds.push_back(seedAt(std::clamp(
            line[i].thicknessesNm[layer] + step * 0.5 * (before - after) / bend, fromNm, toNm)));
      }
    }
  }

  void ScanOne(std::vector<FilmSeed>& seeds) {
    const std::size_t layer = free_.front();
    const double order = orders_[layer];
    const double step = order / kStepsAnOrder;
    const ThicknessRange& range = ranges_[layer];
    if (range.toNm - range.fromNm < 4.0 * order) {
      Scan(fine_, start_, layer, range.fromNm, range.toNm, step, seeds);
      return;
    }
    std::vector<FilmSeed> thin;
    Scan(coarse_, start_, layer, range.fromNm, thinNm_ + order, step, thin);
    for (FilmSeed& seed : Distinct(std::move(thin), orders_, kMostSeeds)) {
      seed.sumOfSquares = fine_(seed.thicknessesNm);
      seeds.push_back(seed);
    }
    std::vector<double> candidates = Candidates(layer);
    candidates.resize(std::min<std::size_t>(candidates.size(), 4));
    AddByKnownLayers(layer, candidates);
    for (const double peak : candidates) {
      if (peak > thinNm_) {
        Scan(fine_, start_, layer, peak - order, peak + order, step, seeds);
      }
    }
  }

  // What a layer may be by the peaks: each and, with several layers, the difference of any two.
  [[nodiscard]] std::vector<double> Candidates(std::size_t layer) const {
    std::vector<double> found;
    const auto add = [&](double firstLayerNm) {
      const double nm = InLayer(firstLayerNm, layer);
      if (nm > ranges_[layer].fromNm - orders_[layer] &&
          nm < ranges_[layer].toNm + orders_[layer]) {
        found.push_back(std::clamp(nm, ranges_[layer].fromNm, ranges_[layer].toNm));
      }
    };
    for (const double peak : peaks_) {
      add(peak);
    }
    if (ranges_.size() > 1) {
      for (const double one : peaks_) {
        for (const double other : peaks_) {
          if (one - other > kLowestPeakNm / 2.0) {
            add(one - other);
          }
        }
      }
    }
    return found;
  }

  // Among known layers: every clear fringe may end at the layer or at one below it.
  void AddByKnownLayers(std::size_t layer, std::vector<double>& candidates) const {
    for (std::size_t end = layer; ranges_.size() > 1 && end < ranges_.size(); ++end) {
      double known = 0.0;
      for (std::size_t j = 0; j <= end; ++j) {
        known += j == layer ? 0.0 : ranges_[j].fromNm / InLayer(1.0, j);
      }
      for (const double depth : depths_) {
        const double nm = InLayer(depth - known, layer);
        if (std::ranges::none_of(candidates, [&](double other) {
              return std::abs(nm - other) < orders_[layer] / 4.0;
            })) {
          candidates.push_back(nm);
        }
      }
    }
  }

  // Candidates of a layer among several: the orders around the peaks, and a grid where it may be
  // thin or is nearly known.
  [[nodiscard]] std::vector<double> GridAndCandidates(std::size_t layer) const {
    const ThicknessRange& range = ranges_[layer];
    const double step = orders_[layer] / 4.0;
    std::vector<double> found;
    const bool narrow = range.toNm - range.fromNm < 8.0 * orders_[layer];
    const double gridEnd = narrow ? range.toNm : std::min(kThinNm, range.toNm);
    for (int i = 0; range.fromNm + i * step <= gridEnd; ++i) {
      found.push_back(range.fromNm + i * step);
    }
    if (!narrow) {
      std::vector<double> peaks = Candidates(layer);
      peaks.resize(std::min(peaks.size(), kMostPeaks));
      for (const double peak : peaks) {
        for (int i = -3; i <= 3; ++i) {
          const double nm = peak + i * orders_[layer] / 6.0;
          if (nm > gridEnd && nm <= range.toNm) {
            found.push_back(nm);
          }
        }
      }
    }
    if (found.empty()) {
      found.push_back(std::midpoint(range.fromNm, range.toNm));
    }
    return found;
  }

  // The strongest fringe is made by a layer or by several that follow one another.
  [[nodiscard]] bool ExplainsTheStrongest(const std::vector<double>& thicknessesNm) const {
    if (!strongest_) {
      return true;
    }
    for (std::size_t first = 0; first < thicknessesNm.size(); ++first) {
      double path = 0.0;
      for (std::size_t j = first; j < thicknessesNm.size(); ++j) {
        path += thicknessesNm[j] / InLayer(1.0, j);
        if (std::abs(path - *strongest_) < orders_.front()) {
          return true;
        }
      }
    }
    return false;
  }

  void Combine(std::vector<FilmSeed>& seeds) {
    if (ranges_.size() > 2) {
      CombineDepths(seeds);
      if (std::ranges::any_of(seeds, [this](const FilmSeed& seed) {
            return seed.sumOfSquares < kExplained * variation_;
          })) {
        return;
      }
    }
    std::vector<std::vector<double>> candidates;
    std::size_t count = 1;
    for (const std::size_t layer : free_) {
      candidates.push_back(GridAndCandidates(layer));
      count *= candidates.back().size();
    }
    // With many layers the combinations are thinned out evenly.
    std::vector<std::vector<double>> combinations;
    const std::size_t stride = count / kMostEnumerated + 1;
    for (std::size_t number = 0; number < count; number += stride) {
      std::vector<double> at = start_;
      std::size_t rest = number;
      for (std::size_t i = 0; i < free_.size(); ++i) {
        at[free_[i]] = candidates[i][rest % candidates[i].size()];
        rest /= candidates[i].size();
      }
      if (ExplainsTheStrongest(at)) {
        combinations.push_back(std::move(at));
      }
    }
    std::vector<FilmSeed> rough;
    const std::size_t skip = combinations.size() / kMostCombinations + 1;
    for (std::size_t i = 0; i < combinations.size(); i += skip) {
      rough.push_back({combinations[i], coarse_(combinations[i]), 1.0});
    }
    for (const FilmSeed& seed : Distinct(std::move(rough), orders_, kMostRefined)) {
      seeds.push_back(Refined(seed));
    }
  }

  void CombineDepths(std::vector<FilmSeed>& seeds) {
    std::vector<DepthLayer> layers;
    for (std::size_t j = 0; j < ranges_.size(); ++j) {
      layers.push_back({ranges_[j], orders_[j], InLayer(1.0, j)});
    }
    for (FilmSeed& seed : Distinct(SeedsAtDepths(depths_, layers, coarse_), orders_, kMostSeeds)) {
      MoveDepths(seed, layers, coarse_);
      MoveDepths(seed, layers, coarse_);
      seed.sumOfSquares = fine_(seed.thicknessesNm);
      seeds.push_back(std::move(seed));
    }
  }

  // Goes from layer to layer to the best place within an order.
  FilmSeed Refined(FilmSeed seed) {
    seed.sumOfSquares = coarse_(seed.thicknessesNm);
    for (int round = 0; round < 2; ++round) {
      for (const std::size_t layer : free_) {
        const double middle = seed.thicknessesNm[layer];
        std::vector<FilmSeed> found{seed};
        Scan(coarse_, seed.thicknessesNm, layer, middle - orders_[layer], middle + orders_[layer],
             orders_[layer] / 8.0, found);
        seed = *std::ranges::min_element(found, {}, &FilmSeed::sumOfSquares);
      }
    }
    seed.sumOfSquares = fine_(seed.thicknessesNm);
    return seed;
  }

  const FilmStack& stack_;
  std::span<const ThicknessRange> ranges_;
  const FilmFitOptions& options_;
  FilmScore fine_;
  FilmScore coarse_;
  double thinNm_ = kThinNm;
  std::vector<double> orders_;
  std::vector<double> start_;
  std::vector<std::size_t> free_;
  double variation_ = 0.0;  // sum of squares about the mean
  std::vector<double> peaks_;
  std::vector<double> depths_;       // all clear fringes, as thicknesses of the first layer
  std::optional<double> strongest_;  // fringe, as a thickness of the first layer
};

}  // namespace

double ThinNm(const Material& layer, const FilmFitOptions& options) {
  const double resolution =
      1.0 / (MeanIndex(layer, options) * (1.0 / options.fromNm - 1.0 / options.toNm));
  return std::max(kThinNm, kThinResolutions * resolution);
}

std::vector<FilmSeed> FindFilmSeeds(const ReflectanceSpectrum& spectrum, const FilmStack& stack,
                                    std::span<const ThicknessRange> ranges,
                                    const FilmFitOptions& options,
                                    std::span<const double> incoherent,
                                    const std::stop_token& stop) {
  return Search(spectrum, stack, ranges, options, incoherent, stop).Run();
}

}  // namespace vexa
