// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <complex>
#include <span>
#include <vector>

#include "optics/material.h"

namespace vexa {

inline constexpr std::size_t kMostFilmLayers = 4;

/// Films on a substrate whose back face does not reflect, in air; the layer next to the air first.
struct FilmStack {
  Material substrate;
  std::vector<Material> layers;  ///< one to four

  bool operator==(const FilmStack&) const = default;
};

/// What is not known of a stack.
struct FilmState {
  std::vector<double> thicknessesNm;  ///< one a layer, 0 or more
  double spread = 0.0;  ///< relative standard deviation of all thicknesses within the spot
  double index = 1.0;   ///< factor on n and k of the first layer

  bool operator==(const FilmState&) const = default;
};

/// The reflectance of a stack as the instrument sees it, at normal incidence, in percent.
///
/// The amplitude of the light reflected from layer j downwards is r_j = (f_j + X) / (1 + f_j X)
/// with Fresnel's f_j = (N_j - N_j+1) / (N_j + N_j+1), X = r_j+1 exp(-4 pi i N_j d_j / w), N = n -
/// ik (A. Vasicek, Optics of Thin Films, ch. 3). The intensity is averaged over a normal
/// distribution of one factor on all phases, by Gauss-Hermite quadrature: a spread of the thickness
/// is such a factor, and so, but for the smooth change of the indices, is the instrument's Gaussian
/// slit. The average damps the coherent part of the reflectance and leaves the incoherent part.
class FilmModel {
 public:
  /// Every `stepNm`-th wavelength from `fromNm` to `toNm`, both within 440..840. The bandwidth is
  /// the slit's full width at half maximum, 0 for none. The stack has at most four layers.
  FilmModel(const FilmStack& stack, int fromNm, int toNm, int stepNm, double bandwidthNm);

  [[nodiscard]] std::size_t Points() const { return nm_.size(); }
  [[nodiscard]] std::size_t Layers() const { return layers_; }
  [[nodiscard]] int Nm(std::size_t point) const { return nm_[point]; }

  /// Fills `percent`, one a point. `slopes` is empty or takes a row a point: the derivative by each
  /// thickness, then that by the spread.
  void Reflect(const FilmState& state, std::span<double> percent,
               std::span<double> slopes = {}) const;

  /// How fast the phases of a layer fall with the wavelength: the group index over the index.
  [[nodiscard]] double GroupFactor(std::size_t point) const { return group_[point]; }

 private:
  using Complex = std::complex<double>;
  struct Shares;

  void ReflectPoint(std::size_t point, const FilmState& state, Shares& shares) const;

  std::size_t layers_;
  double sigmaNm_;  // of the slit
  std::vector<int> nm_;
  std::vector<double> group_;
  std::vector<Complex> index_;  // a row a point: the layers, then the substrate
};

}  // namespace vexa
