// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/film_model.h"

#include <gsl/gsl_integration.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <numbers>

namespace vexa {
namespace {

using Complex = std::complex<double>;
constexpr double kWidthsPerSigma = 2.3548200450309493;  // 2 sqrt(2 ln 2)

/// Two nodes, on both sides of the middle.
struct NodePair {
  double place;   // in standard deviations
  double weight;  // of each
};

/// A rule is good, to some 1e-6 of the fringe's first harmonic, for phases that scatter up to
/// `reach` radians.
struct Rule {
  double reach;
  double middleWeight;
  std::vector<NodePair> pairs;
};

Rule MakeRule(double reach, std::size_t count) {
  const std::unique_ptr<gsl_integration_fixed_workspace, void (*)(gsl_integration_fixed_workspace*)>
      workspace(
          gsl_integration_fixed_alloc(gsl_integration_fixed_hermite, count, 0.0, 0.5, 0.0, 0.0),
          gsl_integration_fixed_free);
  const double* places = gsl_integration_fixed_nodes(workspace.get());  // ascending
  const auto weight = [&workspace](std::size_t i) {
    return gsl_integration_fixed_weights(workspace.get())[i] / std::sqrt(2.0 * std::numbers::pi);
  };
  Rule rule{reach, weight(count / 2), {}};
  for (std::size_t i = count / 2 + 1; i < count; ++i) {
    rule.pairs.push_back({places[i], weight(i)});
  }
  return rule;
}

// Odd counts: one node lies in the middle.
const std::array<Rule, 7>& Rules() {
  static const std::array<Rule, 7> kRules{MakeRule(0.001, 1), MakeRule(0.2, 3),  MakeRule(0.7, 5),
                                          MakeRule(1.1, 7),   MakeRule(1.6, 11), MakeRule(2.8, 21),
                                          MakeRule(5.0, 63)};
  return kRules;
}

// The library's own product and quotient look out for infinities, which costs twice the time.
Complex Times(Complex a, Complex b) {
  return {a.real() * b.real() - a.imag() * b.imag(), a.real() * b.imag() + a.imag() * b.real()};
}

Complex Inverse(Complex a) {
  const double norm = a.real() * a.real() + a.imag() * a.imag();
  return {a.real() / norm, -a.imag() / norm};
}

Complex Fresnel(Complex above, Complex below) {
  return Times(above - below, Inverse(above + below));
}

Complex Turn(double radians) {
  return {std::cos(radians), std::sin(radians)};
}

double Damping(double exponent) {
  return exponent == 0.0 ? 1.0 : std::exp(exponent);
}

}  // namespace

struct FilmModel::Shares {
  double reflected = 0.0;
  std::array<double, kMostFilmLayers> byThickness{};
  double bySpread = 0.0;
  bool wantSlopes = false;
};

FilmModel::FilmModel(const FilmStack& stack, int fromNm, int toNm, int stepNm, double bandwidthNm)
    : layers_(stack.layers.size()), sigmaNm_(bandwidthNm / kWidthsPerSigma) {
  for (int nm = fromNm; nm <= toNm; nm += stepNm) {
    nm_.push_back(nm);
    for (const Material& layer : stack.layers) {
      index_.push_back(layer.At(nm));
    }
    index_.push_back(stack.substrate.At(nm));
    double group = 1.0;
    if (!stack.layers.empty()) {
      const ReflectanceSpectrum& n = stack.layers.front().n;
      const int low = std::max(nm - 1, ReflectanceSpectrum::kFirstNm);
      const int high = std::min(nm + 1, ReflectanceSpectrum::kLastNm);
      group -= nm / n[nm] * (n[high] - n[low]) / (high - low);
    }
    group_.push_back(group);
  }
}

void FilmModel::Reflect(const FilmState& state, std::span<double> percent,
                        std::span<double> slopes) const {
  const std::size_t columns = layers_ + 1;
  for (std::size_t point = 0; point < nm_.size(); ++point) {
    Shares shares;
    shares.wantSlopes = !slopes.empty();
    ReflectPoint(point, state, shares);
    percent[point] = 100.0 * shares.reflected;
    if (shares.wantSlopes) {
      const auto row = slopes.subspan(point * columns, columns);
      for (std::size_t j = 0; j < layers_; ++j) {
        row[j] = 100.0 * shares.byThickness[j];
      }
      row[layers_] = 100.0 * shares.bySpread;
    }
  }
}

void FilmModel::ReflectPoint(std::size_t point, const FilmState& state, Shares& shares) const {
  const Complex* index = &index_[point * (layers_ + 1)];
  std::array<Complex, kMostFilmLayers + 1> fresnel;
  std::array<Complex, kMostFilmLayers> phase;  // of one way down and up, per nanometre
  double wholePhase = 0.0;
  Complex above = 1.0;
  for (std::size_t j = 0; j < layers_; ++j) {
    const Complex at = j == 0 ? index[0] * state.index : index[j];
    fresnel[j] = Fresnel(above, at);
    phase[j] = Times({0.0, -4.0 * std::numbers::pi / nm_[point]}, at);
    wholePhase -= phase[j].imag() * state.thicknessesNm[j];
    above = at;
  }
  fresnel[layers_] = Fresnel(above, index[layers_]);

  const double slit = sigmaNm_ * group_[point] / nm_[point];
  double width = std::hypot(state.spread, slit);
  const auto& rules = Rules();
  // Beyond the last rule nothing is left of the fringes; more scatter changes nothing.
  const double widest = rules.back().reach / std::max(wholePhase, 1e-300);
  const bool isWashedOut = width > widest;
  width = std::min(width, widest);
  const Rule& rule = *std::ranges::find_if(
      rules.begin(), rules.end() - 1, [&](double reach) { return width * wholePhase <= reach; },
      &Rule::reach);
  std::array<Complex, kMostFilmLayers> middle;  // turns of the phases at the mean thickness
  for (std::size_t j = 0; j < layers_; ++j) {
    middle[j] = Turn(phase[j].imag() * state.thicknessesNm[j]);
  }
  double byWidth = 0.0;
  // `turns` are those of all thicknesses times `1 + away`.
  const auto add = [&](const std::array<Complex, kMostFilmLayers>& turns, double away,
                       double weight) {
    const double factor = 1.0 + away;
    Complex r = fresnel[layers_];
    std::array<Complex, kMostFilmLayers> slope;  // of r by each thickness
    for (std::size_t j = layers_; j-- > 0;) {
      const Complex turn = turns[j] * Damping(phase[j].real() * (state.thicknessesNm[j] * factor));
      const Complex x = Times(r, turn);
      const Complex inverse = Inverse(1.0 + Times(fresnel[j], x));
      r = Times(fresnel[j] + x, inverse);
      if (shares.wantSlopes) {
        const Complex outer = Times(1.0 - Times(fresnel[j], fresnel[j]), Times(inverse, inverse));
        slope[j] = Times(outer, Times(x, phase[j])) * factor;
        for (std::size_t below = j + 1; below < layers_; ++below) {
          slope[below] = Times(outer, Times(slope[below], turn));
        }
      }
    }
    shares.reflected += weight * std::norm(r);
    if (shares.wantSlopes) {
      double byFactor = 0.0;
      for (std::size_t j = 0; j < layers_; ++j) {
        const double part = 2.0 * (r.real() * slope[j].real() + r.imag() * slope[j].imag());
        shares.byThickness[j] += weight * part;
        byFactor += part * state.thicknessesNm[j] / factor;
      }
      byWidth += weight * away * byFactor;
    }
  };
  add(middle, 0.0, rule.middleWeight);
  for (const NodePair& pair : rule.pairs) {
    const double away = width * pair.place;
    std::array<Complex, kMostFilmLayers> thicker;
    std::array<Complex, kMostFilmLayers> thinner;
    for (std::size_t j = 0; j < layers_; ++j) {
      const Complex side = Turn(phase[j].imag() * state.thicknessesNm[j] * away);
      thicker[j] = Times(middle[j], side);
      thinner[j] = Times(middle[j], std::conj(side));
    }
    add(thicker, away, pair.weight);
    add(thinner, -away, pair.weight);
  }
  shares.bySpread = width > 0.0 && !isWashedOut ? byWidth * state.spread / (width * width) : 0.0;
}

}  // namespace vexa
