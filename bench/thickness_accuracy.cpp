// SPDX-License-Identifier: GPL-3.0-or-later
// Measures hard coats of known thickness over the whole path: film optics, light on the detector,
// lines as the controller sends them, averaging, wavelength mapping, reflectance against the 4 %
// reference, thickness. Prints truth, result and the method's own limit.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

#include "optics/dispersion_setting.h"
#include "optics/extremum_search.h"
#include "optics/film_fit.h"
#include "optics/fourier_thickness.h"
#include "optics/thickness.h"
#include "simulator/film_stack.h"
#include "support/measured_film.h"

namespace vexa {
namespace {

constexpr double kExtremumUncertaintyNm = 1.0;
constexpr unsigned kSeed = 1;
constexpr int kRepeats = 200;
constexpr const char* kTypes = "ABC";
constexpr const char* kKinds[] = {"physical", "optical"};

simulator::ReflectanceCurve HardCoat(double thicknessNm) {
  return [stack = simulator::FilmStack{simulator::LensPlasticIndex,
                                       {{simulator::HardCoatIndex, thicknessNm}}}](double nm) {
    return 100.0 * simulator::SplitPower(stack, nm).reflected;
  };
}

ReflectanceSpectrum FilmIndex() {
  ReflectanceSpectrum index;
  for (int nm = ReflectanceSpectrum::kFirstNm; nm <= ReflectanceSpectrum::kLastNm; ++nm) {
    index[nm] = simulator::HardCoatIndex(nm);
  }
  return index;
}

struct Outcome {
  Status status = 0;
  std::size_t extrema = 0;
  double firstNm = 0.0;
  double secondNm = 0.0;
  double truthNm = 0.0;
  double resultNm = 0.0;
  double limitNm = 0.0;

  [[nodiscard]] double Deviation() const { return resultNm - truthNm; }
  [[nodiscard]] bool WithinLimit() const { return status == 0 && std::abs(Deviation()) <= limitNm; }
};

// The thickness of `halfOrders` between two extrema, with the index at whole nanometres or 1.
double Formula(double halfOrders, double firstNm, double secondNm, bool physical,
               const ReflectanceSpectrum& index) {
  const double n1 = physical ? index[NearestNm(firstNm)] : 1.0;
  const double n2 = physical ? index[NearestNm(secondNm)] : 1.0;
  return halfOrders * 0.25 * firstNm * secondNm / (n1 * secondNm - n2 * firstNm);
}

Outcome Evaluate(const ReflectanceSpectrum& spectrum, int type, int kind, double thicknessNm) {
  const ReflectanceSpectrum trueIndex = FilmIndex();
  ReflectanceSpectrum index = trueIndex;
  ThicknessResult result;
  Outcome outcome;
  outcome.status =
      ComputeThickness(static_cast<std::int16_t>(type), static_cast<std::int16_t>(kind),
                       DispersionKind::kIndexFile, {}, spectrum, index, result);
  outcome.truthNm = thicknessNm;
  if (outcome.status != 0) {
    return outcome;
  }
  const bool physical = kind == ThicknessKind::kPhysical;
  const double w1 = result.first.wavelengthNm;
  const double w2 = result.second.wavelengthNm;
  outcome.extrema = result.extrema.Found().size();
  outcome.firstNm = w1;
  outcome.secondNm = w2;
  outcome.resultNm = result.thicknessNm;
  if (!physical) {
    // What the formula with one index means for a film whose index changes between the extrema.
    outcome.truthNm = thicknessNm *
                      (simulator::HardCoatIndex(w1) * w2 - simulator::HardCoatIndex(w2) * w1) /
                      (w2 - w1);
  }
  const auto steps = static_cast<double>(outcome.extrema - 1);
  const double halfOrders = type == ThicknessType::kA   ? 2.0
                            : type == ThicknessType::kB ? 2.0 * steps
                                                        : steps;
  for (const double by : {-kExtremumUncertaintyNm, kExtremumUncertaintyNm}) {
    const double shifted = Formula(halfOrders, w1 + by, w2 - by, physical, trueIndex);
    outcome.limitNm = std::max(outcome.limitNm, std::abs(shifted - outcome.resultNm));
  }
  return outcome;
}

// By the transform, whose own limit is not known, and by the fit, whose limit is its interval.
Outcome EvaluateFourier(const ReflectanceSpectrum& spectrum, double thicknessNm) {
  const auto transform = TransformFringes(spectrum, FilmIndex());
  Outcome outcome;
  outcome.truthNm = thicknessNm;
  outcome.status = transform && !transform->peaks.empty() ? Status{0} : kTooFewExtrema;
  if (outcome.status == 0) {
    outcome.resultNm = transform->peaks.front().thicknessNm;
  }
  return outcome;
}

// With weights by the noise of the counts, as the window has them, or by the residual, as the
// command line has them of a file.
Outcome EvaluateFit(const Measured& film, bool counts, double thicknessNm) {
  static const FilmStack kStack = [] {
    FilmStack stack;
    stack.layers.resize(1);
    stack.layers[0].n = FilmIndex();
    for (int nm = ReflectanceSpectrum::kFirstNm; nm <= ReflectanceSpectrum::kLastNm; ++nm) {
      stack.substrate.n[nm] = simulator::LensPlasticIndex(nm);
    }
    return stack;
  }();
  const auto fit =
      std::get<FilmFit>(FitFilm(film.reflectance, kStack, std::vector<ThicknessRange>(1), {},
                                counts ? &film.noise : nullptr));
  Outcome outcome;
  outcome.truthNm = thicknessNm;
  outcome.status = fit.outcome == FitOutcome::kOk ? Status{0} : kThicknessFault;
  outcome.resultNm = fit.layers[0].thicknessNm;
  outcome.limitNm = fit.layers[0].uncertaintyNm;
  return outcome;
}

void PrintHeader(const Conditions& conditions, const char* last) {
  std::printf("\n%.0f ms, averaging %d, %s\n\n", conditions.integrationMs, conditions.averaging,
              conditions.noise ? "with noise" : "without noise");
  std::printf("| coat nm | type | kind | %s\n", last);
}

// True extrema of the coat's reflectance, found on a fine grid.
std::vector<double> TrueExtremaNm(double thicknessNm, ExtremaWanted wanted) {
  constexpr double kStepNm = 0.02;
  const simulator::ReflectanceCurve percent = HardCoat(thicknessNm);
  std::vector<double> found;
  for (double nm = ReflectanceSpectrum::kFirstNm; nm <= ReflectanceSpectrum::kLastNm;
       nm += kStepNm) {
    const double before = percent(nm - kStepNm);
    const double at = percent(nm);
    const double after = percent(nm + kStepNm);
    const bool maximum = at > before && at >= after;
    const bool minimum = at < before && at <= after;
    if ((maximum && wanted != ExtremaWanted::kMinima) ||
        (minimum && wanted != ExtremaWanted::kMaxima)) {
      found.push_back(nm);
    }
  }
  return found;
}

// The smoothing window, cut at the ends of the range, splits extrema nearer to an end than this.
constexpr double kSplitReachNm = 7.0;

bool NearAnEnd(double nm) {
  return nm < ReflectanceSpectrum::kFirstNm + kSplitReachNm ||
         nm > ReflectanceSpectrum::kLastNm - kSplitReachNm;
}

bool HasExtremumNearAnEnd(double thicknessNm) {
  return std::ranges::any_of(TrueExtremaNm(thicknessNm, ExtremaWanted::kBoth), NearAnEnd);
}

void PrintTruth(const std::vector<double>& coatsNm) {
  std::printf("| coat nm | extrema | minima | maxima | nearer than %.0f nm to an end |\n",
              kSplitReachNm);
  std::printf("|---|---|---|---|---|\n");
  for (const double coatNm : coatsNm) {
    std::printf("| %.0f | %zu | %zu | %zu |", coatNm,
                TrueExtremaNm(coatNm, ExtremaWanted::kBoth).size(),
                TrueExtremaNm(coatNm, ExtremaWanted::kMinima).size(),
                TrueExtremaNm(coatNm, ExtremaWanted::kMaxima).size());
    for (const auto& [wanted, name] : {std::pair(ExtremaWanted::kMinima, "minimum"),
                                       std::pair(ExtremaWanted::kMaxima, "maximum")}) {
      for (const double nm : TrueExtremaNm(coatNm, wanted)) {
        if (NearAnEnd(nm)) {
          std::printf(" %s at %.1f", name, nm);
        }
      }
    }
    std::printf(" |\n");
  }
}

// How many of the extrema that a result counted the coat does not have.
int FalseExtrema(const Outcome& outcome, int type, double thicknessNm) {
  constexpr double kMostOffNm = 4.0;  // less than from one extremum to the next
  const ExtremaWanted wanted =
      type == ThicknessType::kB ? ExtremaWanted::kMaxima : ExtremaWanted::kBoth;
  const auto between = [&outcome](double nm) {
    return nm > outcome.firstNm - kMostOffNm && nm < outcome.secondNm + kMostOffNm;
  };
  const auto found = static_cast<int>(outcome.extrema);
  return found -
         static_cast<int>(std::ranges::count_if(TrueExtremaNm(thicknessNm, wanted), between));
}

// Why a result is outside its limit; empty when it is within.
std::string WhyOutside(const Outcome& outcome, int type, double thicknessNm, bool noise) {
  if (outcome.WithinLimit()) {
    return {};
  }
  // Type A takes two neighbours, however many there are.
  const int extra = type == ThicknessType::kA ? 0 : FalseExtrema(outcome, type, thicknessNm);
  if (extra > 0) {
    return "outside: " + std::to_string(extra) + " false";
  }
  return noise ? "outside: noise" : "outside: digitising";
}

// A row a result; the number of results outside their limit though no extremum is near an end.
int PrintOnce(const std::vector<double>& coatsNm, const Conditions& conditions) {
  PrintHeader(conditions, "extrema | from nm | to nm | truth | result | deviation | limit | |");
  std::printf("|---|---|---|---|---|---|---|---|---|---|---|\n");
  int outside = 0;
  int unexplained = 0;
  for (const double coatNm : coatsNm) {
    std::mt19937_64 generator(kSeed);
    const bool mayBeSplit = HasExtremumNearAnEnd(coatNm);
    const Measured film = Measure(HardCoat(coatNm), conditions, generator);
    const ReflectanceSpectrum& spectrum = film.reflectance;
    for (int type = 0; type < 3; ++type) {
      for (int kind = 0; kind < 2; ++kind) {
        const Outcome o = Evaluate(spectrum, type, kind, coatNm);
        outside += o.WithinLimit() ? 0 : 1;
        unexplained += o.WithinLimit() || mayBeSplit ? 0 : 1;
        std::printf("| %.0f | %c | %s | %zu | %.1f | %.1f | %.1f | %.1f | %+.1f | %.1f | %s |\n",
                    coatNm, kTypes[type], kKinds[kind], o.extrema, o.firstNm, o.secondNm, o.truthNm,
                    o.resultNm, o.Deviation(), o.limitNm,
                    WhyOutside(o, type, coatNm, conditions.noise).c_str());
      }
    }
    const Outcome fourier = EvaluateFourier(spectrum, coatNm);
    std::printf("| %.0f | Fourier | physical | | | | %.1f | %.1f | %+.1f | | |\n", coatNm, coatNm,
                fourier.resultNm, fourier.Deviation());
    for (const bool counts : {false, true}) {
      if (counts && film.noise.IsEmpty()) {
        continue;
      }
      const Outcome fit = EvaluateFit(film, counts, coatNm);
      std::printf("| %.0f | %s | physical | | | | %.1f | %.1f | %+.1f | %.1f | %s |\n", coatNm,
                  counts ? "fit by counts" : "fit", coatNm, fit.resultNm, fit.Deviation(),
                  fit.limitNm, fit.WithinLimit() ? "" : "outside");
    }
  }
  std::printf("\n%d outside by A, B and C, %d of them without an extremum near an end\n", outside,
              unexplained);
  return unexplained;
}

std::string OneDecimal(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%.1f", value);
  return text;
}

// Many measurements with noise of the same coat, a row for each type.
void PrintRepeated(const std::vector<double>& coatsNm, const Conditions& conditions) {
  PrintHeader(conditions, "within limit % | median deviation | middle 90 % from | to |");
  std::printf("|---|---|---|---|---|---|---|\n");
  for (const double coatNm : coatsNm) {
    std::mt19937_64 generator(kSeed);
    std::vector<Measured> films;
    films.reserve(kRepeats);
    for (int i = 0; i < kRepeats; ++i) {
      films.push_back(Measure(HardCoat(coatNm), conditions, generator));
    }
    const auto print = [&](const std::string& name, const auto& evaluate) {
      std::vector<double> deviations;
      int within = 0;
      for (const Measured& film : films) {
        const Outcome o = evaluate(film);
        within += o.WithinLimit() ? 1 : 0;
        deviations.push_back(o.Deviation());
      }
      std::ranges::sort(deviations);
      const auto at = [&deviations](double part) {
        return deviations[static_cast<std::size_t>(std::lround(part * (kRepeats - 1)))];
      };
      const std::string share = name == "Fourier" ? "-" : OneDecimal(100.0 * within / kRepeats);
      std::printf("| %.0f | %s | physical | %s | %+.1f | %+.1f | %+.1f |\n", coatNm, name.c_str(),
                  share.c_str(), at(0.5), at(0.05), at(0.95));
    };
    for (int type = 0; type < 3; ++type) {
      print(std::string(1, kTypes[type]), [&](const Measured& film) {
        return Evaluate(film.reflectance, type, ThicknessKind::kPhysical, coatNm);
      });
    }
    print("Fourier",
          [&](const Measured& film) { return EvaluateFourier(film.reflectance, coatNm); });
    print("fit", [&](const Measured& film) { return EvaluateFit(film, false, coatNm); });
    print("fit by counts", [&](const Measured& film) { return EvaluateFit(film, true, coatNm); });
  }
}

}  // namespace
}  // namespace vexa

int main() {
  const std::vector<double> coatsNm{1000, 1500, 2000, 3000, 4000, 5000, 6000};
  vexa::PrintTruth(coatsNm);
  vexa::PrintOnce(coatsNm, {3000.0, 1, false});
  const int unexplained = vexa::PrintOnce(coatsNm, {10000.0, 1, false});
  vexa::PrintOnce(coatsNm, {3000.0, 8, true});
  vexa::PrintOnce(coatsNm, {10000.0, 8, true});
  vexa::PrintRepeated(coatsNm, {3000.0, 8, true});
  vexa::PrintRepeated(coatsNm, {10000.0, 8, true});
  return unexplained == 0 ? 0 : 1;
}
