// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <optional>

#include "base/file_fault.h"
#include "base/flag.h"
#include "base/message.h"
#include "base/spectrum.h"
#include "base/status.h"
#include "optics/dispersion_setting.h"

namespace vexa {

/// Results of GetBunsanArray besides 0.
inline constexpr Status kDispersionFault = 1;     ///< a formula or a conversion has no result
inline constexpr Status kIndexFileFault = 2;      ///< the index file could not be read
inline constexpr Status kSubstrateFileFault = 3;  ///< the substrate's data file could not be read

/// The spectrum that a setting gives.
struct Dispersion {
  Status status = 0;
  ReflectanceSpectrum spectrum;       ///< zeros with any status but 0
  std::optional<MessageCall> notice;  ///< to be told before the status is
};

/// The spectrum of a setting at 440..840 nm: an index, or with `asReflectance` the reflectance in
/// percent of a bare surface of the material at normal incidence. Only the formulas heed
/// `asReflectance`: a fixed value and an index file give their numbers as they stand, a substrate
/// always gives its index.
///
/// An unknown kind gives zeros with status 0 and a notice; a substrate file of another version or
/// kind is the only other notice.
///
/// The two formulas are those of the glass makers' catalogues, with w in micrometres:
/// Schott n^2 = A0 + A1 w^2 + A2 w^-2 + A3 w^-4 + A4 w^-6 + A5 w^-8,
/// Sellmeier (1871) n^2 = 1 + the sum of Ai w^2 / (w^2 - Bi).
/// Example: N-BK7 at 588 nm has the index 1.51678.
[[nodiscard]] Dispersion GetBunsanArray(Flag asReflectance, const DispersionSetting& setting);

/// What to tell of a substrate file that is none; nothing of any other fault.
[[nodiscard]] std::optional<MessageCall> SubstrateNotice(const FileFault& fault);

/// What to tell the user about a status of GetBunsanArray; nothing for success. `setting` names the
/// setting where the user cannot know it.
[[nodiscard]] std::optional<MessageCall> DispersionMessage(Status status,
                                                           const QString& setting = {});

/// Fresnel's reflectance of a bare surface at normal incidence: ((1 - n) / (1 + n))^2 in percent.
/// Throws ArithmeticFault where that has no finite value (n = -1). Example: 1.5 gives 4.
[[nodiscard]] double IndexToReflectance(double index);

/// The index above 1 of a bare surface with a reflectance of 0..100 percent. Throws ArithmeticFault
/// for 100 and for a negative one. Example: 4 gives 1.5.
[[nodiscard]] double ReflectanceToIndex(double percent);

/// Likewise at every wavelength; nothing unless all of them lie from 0 to below 100 percent.
[[nodiscard]] std::optional<ReflectanceSpectrum> ReflectanceToIndex(
    const ReflectanceSpectrum& percent);

}  // namespace vexa
