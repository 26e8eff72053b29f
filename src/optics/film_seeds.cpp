// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/film_seeds.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "optics/fourier_thickness.h"

namespace vexa {
namespace {

constexpr double kThinNm = 1200.0;       // below it the transform's peaks are too wide
constexpr double kLowestPeakNm = 600.0;  // of optical equivalents that are taken for peaks
constexpr double kWeakestPeak = 0.1;     // of the strongest
constexpr double kFewestScales = 0.5;
constexpr double kMostScales = 1.6;
constexpr std::size_t kMostSeeds = 8;
constexpr std::size_t kMostCombinations = 1500;
constexpr std::size_t kMostRefined = 6;
constexpr int kStepsAnOrder = 12;

/// Values of the model against the spectrum at every `stepNm`-th wavelength, without the slit.
class Score {
 public:
  Score(const ReflectanceSpectrum& spectrum, const FilmStack& stack, const FilmFitOptions& options,
        int stepNm)
      : options_(options),
        model_(stack, options.fromNm, options.toNm, stepNm, 0.0),
        values_(model_.Points()) {
    for (std::size_t i = 0; i < model_.Points(); ++i) {
      measured_.push_back(spectrum[model_.Nm(i)]);
    }
  }

  double operator()(const std::vector<double>& thicknessesNm) {
    state_.thicknessesNm = thicknessesNm;
    model_.Reflect(state_, values_);
    return MatchLinear(values_, measured_, options_.scaleFree, options_.offsetFree).sumOfSquares;
  }

 private:
  const FilmFitOptions& options_;
  FilmModel model_;
  std::vector<double> measured_;
  std::vector<double> values_;
  FilmState state_;
};

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
         std::span<const ThicknessRange> ranges, const FilmFitOptions& options)
      : stack_(stack),
        ranges_(ranges),
        options_(options),
        fine_(spectrum, stack, options, 1),
        coarse_(spectrum, stack, options, options.toNm - options.fromNm >= 160 ? 4 : 1) {
    for (std::size_t j = 0; j < ranges.size(); ++j) {
      orders_.push_back(OrderNm(stack.layers[j], options));
      start_.push_back(ranges[j].fromNm);
      if (!ranges[j].IsFixed()) {
        free_.push_back(j);
      }
    }
    FindPeaks(spectrum);
  }

  std::vector<FilmSeed> Run() {
    if (free_.empty()) {
      return {{start_, fine_(start_)}};
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
    for (const FourierPeak& peak : transform->peaks) {
      if (peak.amplitude >= kWeakestPeak * transform->peaks.front().amplitude) {
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
  void Scan(Score& score, std::vector<double> at, std::size_t layer, double fromNm, double toNm,
            double stepNm, std::vector<FilmSeed>& seeds) {
    fromNm = std::max(fromNm, ranges_[layer].fromNm);
    toNm = std::min(toNm, ranges_[layer].toNm);
    if (fromNm > toNm) {
      return;
    }
    const auto steps = std::max(1, static_cast<int>(std::ceil((toNm - fromNm) / stepNm)));
    std::vector<FilmSeed> line;
    for (int i = 0; i <= steps; ++i) {
      at[layer] = std::lerp(fromNm, toNm, static_cast<double>(i) / steps);
      line.push_back({at, score(at)});
    }
    for (std::size_t i = 0; i < line.size(); ++i) {
      const bool below = i == 0 || line[i].sumOfSquares <= line[i - 1].sumOfSquares;
      if (below && (i + 1 == line.size() || line[i].sumOfSquares < line[i + 1].sumOfSquares)) {
        seeds.push_back(line[i]);
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
    Scan(coarse_, start_, layer, range.fromNm, kThinNm + order, step, thin);
    for (FilmSeed& seed : Distinct(std::move(thin), orders_, kMostSeeds)) {
      seed.sumOfSquares = fine_(seed.thicknessesNm);
      seeds.push_back(seed);
    }
    std::size_t taken = 0;
    for (const double peak : Candidates(layer)) {
      if (peak > kThinNm && taken++ < 4) {
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

  // Candidates of a layer among several: peaks, and a grid where it may be thin or is nearly known.
  [[nodiscard]] std::vector<double> GridAndCandidates(std::size_t layer) const {
    const ThicknessRange& range = ranges_[layer];
    const double step = orders_[layer] / 4.0;
    std::vector<double> found;
    const bool narrow = range.toNm - range.fromNm < 8.0 * orders_[layer];
    if (!narrow) {
      found = Candidates(layer);
      found.resize(std::min<std::size_t>(found.size(), 10));
    }
    for (double nm = range.fromNm; nm <= (narrow ? range.toNm : std::min(kThinNm, range.toNm));
         nm += step) {
      found.push_back(nm);
    }
    return found;
  }

  void Combine(std::vector<FilmSeed>& seeds) {
    std::vector<std::vector<double>> candidates;
    std::size_t count = 1;
    for (const std::size_t layer : free_) {
      candidates.push_back(GridAndCandidates(layer));
      count *= std::max<std::size_t>(candidates.back().size(), 1);
    }
    // With many layers the far candidates of each are thinned out evenly.
    const std::size_t stride = (count + kMostCombinations - 1) / kMostCombinations;
    std::vector<FilmSeed> rough;
    for (std::size_t number = 0; number < count; number += stride) {
      std::vector<double> at = start_;
      std::size_t rest = number;
      for (std::size_t i = 0; i < free_.size(); ++i) {
        if (!candidates[i].empty()) {
          at[free_[i]] = candidates[i][rest % candidates[i].size()];
          rest /= candidates[i].size();
        }
      }
      rough.push_back({at, coarse_(at)});
    }
    for (const FilmSeed& seed : Distinct(std::move(rough), orders_, kMostRefined)) {
      seeds.push_back(Refined(seed));
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
  Score fine_;
  Score coarse_;
  std::vector<double> orders_;
  std::vector<double> start_;
  std::vector<std::size_t> free_;
  std::vector<double> peaks_;
};

}  // namespace

LinearMatch MatchLinear(std::span<const double> model, std::span<const double> measured,
                        bool scaleFree, bool offsetFree) {
  double m = 0.0;
  double y = 0.0;
  double mm = 0.0;
  double my = 0.0;
  double yy = 0.0;
  for (std::size_t i = 0; i < model.size(); ++i) {
    m += model[i];
    y += measured[i];
    mm += model[i] * model[i];
    my += model[i] * measured[i];
    yy += measured[i] * measured[i];
  }
  const auto count = static_cast<double>(model.size());
  if (offsetFree) {
    mm -= m * m / count;
    my -= m * y / count;
    yy -= y * y / count;
  }
  LinearMatch match;
  if (scaleFree && mm > 0.0) {
    match.scale = std::clamp(my / mm, kFewestScales, kMostScales);
  }
  match.offset = offsetFree ? (y - match.scale * m) / count : 0.0;
  match.sumOfSquares = std::max(0.0, yy + match.scale * (match.scale * mm - 2.0 * my));
  return match;
}

std::vector<FilmSeed> FindFilmSeeds(const ReflectanceSpectrum& spectrum, const FilmStack& stack,
                                    std::span<const ThicknessRange> ranges,
                                    const FilmFitOptions& options) {
  return Search(spectrum, stack, ranges, options).Run();
}

}  // namespace vexa
