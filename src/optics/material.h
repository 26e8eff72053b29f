// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <complex>
#include <variant>

#include "base/spectrum.h"
#include "optics/dispersion_setting.h"

namespace vexa {

/// The complex index n - ik of a material at 440..840 nm: n above 0, k not
/// negative, neither above 100.
struct Material {
  ReflectanceSpectrum n;
  ReflectanceSpectrum k;

  [[nodiscard]] std::complex<double> At(int nm) const { return {n[nm], -k[nm]}; }

  bool operator==(const Material&) const = default;
};

/// Why a text gives no material.
enum class MaterialFault {
  kText,      ///< neither a number nor a known formula or file ending, or a wrong count of numbers
  kFile,      ///< the file cannot be read or is no such file
  kCoverage,  ///< the table does not reach from 440 to 840 nm
  kIndex,     ///< an index that is not above 0, an absorption below 0, or one above 100
};

/// A material from its text: a number; `FILE.ind`; `schott:A0,A1,A2,A3,A4,A5`;
/// `sellmeier:A1,A2,A3,B1,B2,B3`; `cauchy:A,B` or `cauchy:A,B,C` (A + B/w^2 + C/w^4, w in
/// micrometres); `FILE.nk` (lines "nm n k", ascending, blanks or commas between, `#` begins a
/// comment; linear between them). A relative file name counts from `directory`. Endings and the
/// names of the formulas may be in any case.
[[nodiscard]] std::variant<Material, MaterialFault> ReadMaterial(const QString& text,
                                                                 const QString& directory);

/// The text of the material of a coat; "1.6" where the setting names none.
[[nodiscard]] QString MaterialText(const DispersionSetting& coat);

/// What to tell the user.
[[nodiscard]] QString MaterialFaultText(MaterialFault fault);

}  // namespace vexa
