// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <span>
#include <stop_token>
#include <variant>
#include <vector>

#include "base/spectrum.h"
#include "optics/film_model.h"
#include "optics/film_stack_setting.h"

namespace vexa {

/// All that a fit takes besides a spectrum.
struct FilmFitRequest {
  FilmStack stack;           ///< the materials that the setting names
  FilmStackSetting setting;  ///< its ranges and options
};

enum class FitOutcome {
  kOk,
  kAmbiguous,  ///< another minimum fits nearly as well
  kPoor,       ///< the residual is far above the noise: the stack is not the sample's
  kNone,       ///< no film can be told; thicknesses are not numbers
};

struct FittedLayer {
  double thicknessNm = 0.0;
  /// Half width of the interval: the three parts added in squares; never wider than the range.
  double uncertaintyNm = 0.0;
  double statisticalNm = 0.0;  ///< the part of the noise
  double wavelengthNm = 0.0;   ///< the part of the wavelength scale
  double indexNm = 0.0;        ///< the part of the index
};

/// A further minimum.
struct FitAlternative {
  std::vector<double> thicknessesNm;
  double rms = 0.0;  ///< percent of reflectance
};

struct FilmFit {
  FitOutcome outcome = FitOutcome::kNone;
  std::vector<FittedLayer> layers;
  double scale = 1.0;   ///< multiplies the model
  double offset = 0.0;  ///< percent
  double spread = 0.0;  ///< relative standard deviation of the thickness within the spot
  double index = 1.0;   ///< factor on the index of the first layer
  double rms = 0.0;     ///< of the residual, percent
  double noise = 0.0;   ///< of the spectrum, percent
  int fromNm = 0;       ///< of the wavelengths used, as the next
  std::vector<double> fitted = {};  ///< the model at each nanometre, percent
  std::vector<FitAlternative> alternatives = {};
  QStringList warnings = {};      ///< for the user
  FilmStackSetting setting = {};  ///< what it was made with; empty where no request was
};

/// Why a fit is refused.
enum class FilmFitFault {
  kLayers,          ///< not one to four layers, or not one range a layer
  kThicknessRange,  ///< reversed, negative, not finite, or above 60 um
  kWavelengths,     ///< fewer than 20 points, or outside 440..840
  kOption,          ///< bandwidth, uncertainty or confidence out of its range
  kSpectrum,        ///< a value that is no number, or nothing but zeros
  kStopped,         ///< it was to be given up
};

/// What is wrong with the settings of a fit, before there is a spectrum.
[[nodiscard]] std::optional<FilmFitFault> CheckFilmFit(std::span<const ThicknessRange> ranges,
                                                       const FilmFitOptions& options);

/// What is wrong with all that a fit takes.
[[nodiscard]] std::optional<FilmFitFault> CheckFilmFit(const ReflectanceSpectrum& spectrum,
                                                       const FilmStack& stack,
                                                       std::span<const ThicknessRange> ranges,
                                                       const FilmFitOptions& options);

/// The thicknesses of a stack by a least-squares fit of its FilmModel to a spectrum in percent.
///
/// The start values are the peaks of the Fourier transform and, below 1.2 um, a scan; from the best
/// of them the solver goes to the minimum, at last with weights: from `noise`, the spectrum's at
/// each wavelength up to a common factor, where it is given, else from the residual itself. The
/// spread is taken in when it makes the fit clearly better. The statistical part of the interval is
/// Student's, from the covariance and the residual; the other parts are added in squares.
///
/// It takes a few milliseconds for one layer, up to seconds for several within wide ranges; `stop`
/// ends it within milliseconds.
[[nodiscard]] std::variant<FilmFit, FilmFitFault> FitFilm(
    const ReflectanceSpectrum& spectrum, const FilmStack& stack,
    std::span<const ThicknessRange> ranges, const FilmFitOptions& options = {},
    const ReflectanceSpectrum* noise = nullptr, const std::stop_token& stop = {});

/// Likewise for what a request asks; the fit tells its setting.
[[nodiscard]] std::variant<FilmFit, FilmFitFault> FitFilm(
    const ReflectanceSpectrum& spectrum, const FilmFitRequest& request,
    const ReflectanceSpectrum* noise = nullptr, const std::stop_token& stop = {});

/// FitFilm for several spectra at once, on as many threads as there are processors.
[[nodiscard]] std::vector<std::variant<FilmFit, FilmFitFault>> FitFilms(
    std::span<const ReflectanceSpectrum> spectra, const FilmStack& stack,
    std::span<const ThicknessRange> ranges, const FilmFitOptions& options = {});

/// "ok", "ambiguous", "poor", "none".
[[nodiscard]] QString FitOutcomeName(FitOutcome outcome);

/// The outcome in a word, and in a sentence, for the user.
[[nodiscard]] QString FitOutcomeWord(FitOutcome outcome);
[[nodiscard]] QString FitOutcomeText(FitOutcome outcome);

/// What else is to be said of a fit, a line each: the next minima, the warnings.
[[nodiscard]] QStringList FitNotes(const FilmFit& fit);

/// What to tell the user.
[[nodiscard]] QString FilmFitFaultText(FilmFitFault fault);

}  // namespace vexa
