// SPDX-License-Identifier: GPL-3.0-or-later
// Measures thin, thick, primed and uneven films and films of a wrong index, over the whole path of
// the virtual instrument; the coverage of the intervals and stacks of several layers on spectra of
// the exact model; and the doubts. Prints the tables of docs/accuracy.md; those named alone: films,
// coverage, layers, doubts.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

#include "doubt_accuracy.h"
#include "optics/dispersion_setting.h"
#include "optics/film_fit.h"
#include "optics/fourier_thickness.h"
#include "optics/thickness.h"
#include "simulator/film_stack.h"
#include "support/measured_film.h"

namespace vexa {
namespace {

constexpr int kRepeats = 100;
constexpr int kCoverageRepeats = 1000;
constexpr Conditions kConditions{10000.0, 8, true};

// A primer between coat and lens: Cauchy's formula.
double PrimerIndex(double nm) {
  return 1.515 + 5000.0 / (nm * nm);
}

Material MaterialOf(const simulator::IndexCurve& index, double factor = 1.0) {
  Material material;
  for (int nm = ReflectanceSpectrum::kFirstNm; nm <= ReflectanceSpectrum::kLastNm; ++nm) {
    material.n[nm] = factor * index(nm).real();
    material.k[nm] = -index(nm).imag();
  }
  return material;
}

struct Case {
  std::string name;
  simulator::FilmStack truth;
  FilmStack stack;  // of the fit
  double spread = 0.0;
  FilmFitOptions options{};
};

// The mean over a normal distribution of the thickness, by an even sum.
simulator::ReflectanceCurve Face(const Case& c) {
  return [&c](double nm) {
    double sum = 0.0;
    double weights = 0.0;
    for (int i = c.spread > 0.0 ? -40 : 0; i <= (c.spread > 0.0 ? 40 : 0); ++i) {
      const double z = i / 10.0;
      simulator::FilmStack stack = c.truth;
      for (simulator::FilmLayer& layer : stack.layers) {
        layer.thicknessNm *= 1.0 + c.spread * z;
      }
      const double weight = std::exp(-z * z / 2.0);
      sum += weight * 100.0 * simulator::SplitPower(stack, nm).reflected;
      weights += weight;
    }
    return sum / weights;
  };
}

struct Results {
  std::vector<double> deviations;
  int given = 0;

  void Add(bool known, double deviationNm) {
    given += known ? 1 : 0;
    if (known) {
      deviations.push_back(deviationNm);
    }
  }

  void Print(const Case& c, const std::string& method, double truthNm, const std::string& end) {
    std::ranges::sort(deviations);
    std::printf("| %s | %.0f | %s | %d |", c.name.c_str(), truthNm, method.c_str(), given);
    for (const double part : {0.5, 0.05, 0.95}) {
      if (deviations.empty()) {
        std::printf(" |");
      } else {
        std::printf(" %+.1f |", deviations[static_cast<std::size_t>(std::lround(
                                    part * static_cast<double>(deviations.size() - 1)))]);
      }
    }
    std::printf(" %s |\n", end.c_str());
  }
};

// All fits of one way of weighting.
struct Fits {
  std::vector<Results> layers;
  std::vector<int> covered;
  std::vector<int> outcomes = std::vector<int>(4);

  explicit Fits(std::size_t count) : layers(count), covered(count) {}

  void Add(const Case& c, const FilmFit& fit) {
    ++outcomes[static_cast<std::size_t>(fit.outcome)];
    for (std::size_t j = 0; j < layers.size(); ++j) {
      const double off = fit.layers[j].thicknessNm - c.truth.layers[j].thicknessNm;
      layers[j].Add(fit.outcome != FitOutcome::kNone, off);
      covered[j] += std::abs(off) <= fit.layers[j].uncertaintyNm ? 1 : 0;
    }
  }

  void Print(const Case& c, const std::string& method) {
    for (std::size_t j = 0; j < layers.size(); ++j) {
      std::string end = "covered " + std::to_string(100 * covered[j] / kRepeats) + " %";
      for (const FitOutcome outcome :
           {FitOutcome::kOk, FitOutcome::kAmbiguous, FitOutcome::kPoor, FitOutcome::kNone}) {
        if (const int count = outcomes[static_cast<std::size_t>(outcome)]; count > 0) {
          end += ", " + std::to_string(count) + " " + FitOutcomeName(outcome).toStdString();
        }
      }
      layers[j].Print(c, layers.size() > 1 ? method + ", layer " + std::to_string(j + 1) : method,
                      c.truth.layers[j].thicknessNm, end);
    }
  }
};

void PrintCase(const Case& c) {
  std::mt19937_64 generator(1);
  const std::size_t layers = c.stack.layers.size();
  Fits fits(layers);
  Fits fitsByCounts(layers);
  std::array<Results, 3> types;
  Results fourier;
  const std::vector<ThicknessRange> ranges(layers);
  for (int i = 0; i < kRepeats; ++i) {
    const Measured film = Measure(Face(c), kConditions, generator);
    const ReflectanceSpectrum& spectrum = film.reflectance;
    const double firstNm = c.truth.layers.front().thicknessNm;
    for (std::size_t type = 0; type < types.size(); ++type) {
      ThicknessResult result;
      ReflectanceSpectrum index = c.stack.layers.front().n;
      const Status status =
          ComputeThickness(static_cast<std::int16_t>(type), ThicknessKind::kPhysical,
                           DispersionKind::kIndexFile, {}, spectrum, index, result);
      types[type].Add(status == 0, result.thicknessNm - firstNm);
    }
    const auto transform = TransformFringes(spectrum, c.stack.layers.front().n);
    const bool peak = transform && !transform->peaks.empty();
    fourier.Add(peak, peak ? transform->peaks.front().thicknessNm - firstNm : 0.0);
    fits.Add(c, std::get<FilmFit>(FitFilm(spectrum, c.stack, ranges, c.options)));
    fitsByCounts.Add(c,
                     std::get<FilmFit>(FitFilm(spectrum, c.stack, ranges, c.options, &film.noise)));
  }
  for (std::size_t type = 0; type < types.size(); ++type) {
    types[type].Print(c, std::string(1, "ABC"[type]), c.truth.layers.front().thicknessNm, "");
  }
  fourier.Print(c, "Fourier", c.truth.layers.front().thicknessNm, "");
  fits.Print(c, "fit");
  fitsByCounts.Print(c, "fit by counts");
}

simulator::FilmStack Coat(double nm) {
  return {simulator::LensPlasticIndex, {{simulator::HardCoatIndex, nm}}};
}

FilmStack CoatStack(double factor = 1.0) {
  return {MaterialOf(simulator::LensPlasticIndex), {MaterialOf(simulator::HardCoatIndex, factor)}};
}

void PrintCases() {
  std::printf(
      "| film | truth nm | method | results of %d | median deviation | 5 %% | 95 %% | |\n"
      "|---|---|---|---|---|---|---|---|\n",
      kRepeats);
  for (const double nm : {100.0, 150.0, 200.0, 300.0, 400.0}) {
    PrintCase({"thin coat", Coat(nm), CoatStack()});
  }
  for (const double nm : {8000.0, 12000.0, 20000.0, 35000.0, 50000.0}) {
    PrintCase({"thick coat", Coat(nm), CoatStack()});
  }
  const std::pair<double, double> primed[] = {{3000.0, 700.0}, {2500.0, 1200.0}, {4000.0, 300.0}};
  for (const auto& [coatNm, primerNm] : primed) {
    const simulator::FilmStack truth{simulator::LensPlasticIndex,
                                     {{simulator::HardCoatIndex, coatNm}, {PrimerIndex, primerNm}}};
    FilmStack two = CoatStack();
    two.layers.push_back(MaterialOf(PrimerIndex));
    const std::string name = "coat on " + std::to_string(std::lround(primerNm)) + " nm of primer";
    PrintCase({name + ", taken for one layer", truth, CoatStack()});
    PrintCase({name, truth, two});
  }
  for (const double spread : {0.005, 0.01, 0.02, 0.05}) {
    PrintCase({"uneven by " + std::to_string(spread * 100.0).substr(0, 3) + " %", Coat(3000.0),
               CoatStack(), spread});
  }
  PrintCase({"index 0.3 % too high", Coat(1500.0), CoatStack(1.003)});
  PrintCase({"index 0.3 % too high", Coat(4000.0), CoatStack(1.003)});
  FilmFitOptions options;
  options.indexUncertainty = 0.003;
  PrintCase({"index 0.3 % too high, said so", Coat(4000.0), CoatStack(1.003), 0.0, options});
  options = {};
  options.indexFree = true;
  options.scaleFree = false;
  PrintCase({"index 0.3 % too high, free, reference fixed", Coat(4000.0), CoatStack(1.003), 0.0,
             options});
}

// The noise of an instrument whose light falls off in the blue, where it is five times that of the
// red; or an even one.
struct Noise {
  const char* name;
  double red;
  double blue;

  [[nodiscard]] ReflectanceSpectrum Spectrum() const {
    ReflectanceSpectrum spectrum;
    for (int nm = ReflectanceSpectrum::kFirstNm; nm <= ReflectanceSpectrum::kLastNm; ++nm) {
      const double place =
          (nm - ReflectanceSpectrum::kFirstNm) / (ReflectanceSpectrum::kCount - 1.0);
      spectrum[nm] = std::lerp(blue, red, std::sqrt(place));
    }
    return spectrum;
  }
};

// Spectra of the exact model with pure noise: how often the interval holds the truth.
bool PrintCoverage() {
  bool good = true;
  std::printf(
      "\n| film nm | noise %% | ok of %d | within the interval %% | fit by counts, ok | within %% |"
      " width of its interval to the other's |\n|---|---|---|---|---|---|---|\n",
      kCoverageRepeats);
  const FilmStack stack = CoatStack();
  FilmFitOptions options;
  options.wavelengthUncertaintyNm = 0.0;
  const FilmModel model(stack, 440, 840, 1, options.bandwidthNm);
  const std::vector<ThicknessRange> ranges(1);
  for (const double nm : {150.0, 400.0, 1500.0, 4000.0, 12000.0, 30000.0}) {
    for (const Noise& kind :
         {Noise{"0.02", 0.02, 0.02}, Noise{"0.10", 0.1, 0.1}, Noise{"0.05 to 0.25", 0.05, 0.25}}) {
      const ReflectanceSpectrum sigma = kind.Spectrum();
      std::mt19937_64 generator(1);
      std::normal_distribution<double> normal;
      std::vector<ReflectanceSpectrum> spectra(kCoverageRepeats);
      for (ReflectanceSpectrum& spectrum : spectra) {
        model.Reflect({.thicknessesNm = {nm}}, spectrum.Values());
        for (int at = ReflectanceSpectrum::kFirstNm; at <= ReflectanceSpectrum::kLastNm; ++at) {
          spectrum[at] += sigma[at] * normal(generator);
        }
      }
      std::printf("| %.0f | %s |", nm, kind.name);
      double widths[2] = {};
      for (const bool counts : {false, true}) {
        int ok = 0;
        int covered = 0;
        for (const ReflectanceSpectrum& spectrum : spectra) {
          const auto fit = std::get<FilmFit>(
              FitFilm(spectrum, stack, ranges, options, counts ? &sigma : nullptr));
          ok += fit.outcome == FitOutcome::kOk ? 1 : 0;
          const FittedLayer& layer = fit.layers[0];
          covered += std::abs(layer.thicknessNm - nm) <= layer.uncertaintyNm ? 1 : 0;
          widths[counts ? 1 : 0] += layer.uncertaintyNm;
        }
        const double percent = 100.0 * covered / kCoverageRepeats;
        good = good && percent >= 93.0 && percent <= 97.0;
        std::printf(" %d | %.1f |", ok, percent);
      }
      std::printf(" %.2f |\n", widths[1] / widths[0]);
    }
  }
  return good;
}

// Random stacks of several layers, coat and primer in turn, the third layer of every other one of a
// high index; the last ones known.
void PrintLayers() {
  constexpr int kStacks = 100;
  constexpr double kSigma = 0.02;
  std::printf(
      "\n| layers | each of nm | known | right of %d | ok but wrong | poor | none |\n"
      "|---|---|---|---|---|---|---|\n",
      kStacks);
  const Material coat = MaterialOf(simulator::HardCoatIndex);
  const Material primer = MaterialOf(PrimerIndex);
  const Material high = MaterialOf([](double nm) { return 1.9 + 20000.0 / (nm * nm); });
  const struct {
    std::size_t layers;
    std::size_t known;
    double fromNm;
    double toNm;
  } kinds[] = {{2, 0, 100, 4000}, {3, 0, 600, 3000}, {3, 0, 1000, 6000}, {3, 0, 100, 1500},
               {3, 1, 100, 4000}, {3, 2, 100, 4000}, {4, 0, 1000, 4000}, {4, 2, 100, 4000}};
  for (const auto& kind : kinds) {
    std::mt19937_64 generator(1);
    std::uniform_real_distribution<double> uniform(kind.fromNm, kind.toNm);
    std::normal_distribution<double> normal(0.0, kSigma);
    int right = 0;
    int wrong = 0;
    std::vector<int> outcomes(4);
    for (int i = 0; i < kStacks; ++i) {
      FilmStack stack{MaterialOf(simulator::LensPlasticIndex),
                      {coat, primer, i % 2 == 0 ? coat : high, primer}};
      stack.layers.resize(kind.layers);
      FilmState truth;
      std::vector<ThicknessRange> ranges(kind.layers);
      for (std::size_t j = 0; j < kind.layers; ++j) {
        const double nm = uniform(generator);
        truth.thicknessesNm.push_back(nm);
        if (j + kind.known >= kind.layers) {
          ranges[j] = {nm, nm};
        }
      }
      ReflectanceSpectrum spectrum;
      FilmModel(stack, 440, 840, 1, 1.0).Reflect(truth, spectrum.Values());
      for (double& value : spectrum.Values()) {
        value += normal(generator);
      }
      const auto fit = std::get<FilmFit>(FitFilm(spectrum, stack, ranges));
      bool found = fit.outcome != FitOutcome::kNone;
      for (std::size_t j = 0; found && j < kind.layers; ++j) {
        const FittedLayer& layer = fit.layers[j];
        found = std::abs(layer.thicknessNm - truth.thicknessesNm[j]) <=
                std::max(2.0, 2.0 * layer.uncertaintyNm);
      }
      right += found ? 1 : 0;
      wrong += !found && fit.outcome == FitOutcome::kOk ? 1 : 0;
      ++outcomes[static_cast<std::size_t>(fit.outcome)];
    }
    std::printf("| %zu | %.0f to %.0f | %zu | %d | %d | %d | %d |\n", kind.layers, kind.fromNm,
                kind.toNm, kind.known, right, wrong,
                outcomes[static_cast<std::size_t>(FitOutcome::kPoor)],
                outcomes[static_cast<std::size_t>(FitOutcome::kNone)]);
    std::fflush(stdout);
  }
}

}  // namespace
}  // namespace vexa

// All tables, or those that are named.
int main(int argc, char** argv) {
  const std::vector<std::string> named(argv + 1, argv + argc);
  const auto wanted = [&named](const char* table) {
    return named.empty() || std::ranges::count(named, table) > 0;
  };
  if (wanted("films")) {
    vexa::PrintCases();
  }
  const bool covered = !wanted("coverage") || vexa::PrintCoverage();
  if (wanted("layers")) {
    vexa::PrintLayers();
  }
  const bool doubted = !wanted("doubts") || vexa::PrintDoubts();
  return covered && doubted ? 0 : 1;
}
