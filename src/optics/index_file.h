// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "base/message.h"
#include "base/spectrum.h"

namespace vexa {

/// What the 401 numbers of an index file are; the files differ in their header line alone.
enum class IndexFileContent {
  kIndex,                ///< *.ind
  kReferenceReflectance  ///< *.ref, percent
};

/// Reads a file of either content: a header that is compared with nothing, then 401 numbers for
/// 440..840 nm; what follows them is ignored. False, and `values` as they were, when that fails.
[[nodiscard]] bool ReadIndexFile(const QString& path, ReflectanceSpectrum& values);

/// Writes header and values as "0.00000000E+00", a line each, in the place of the file; false, and
/// the file as it was, when that fails.
[[nodiscard]] bool WriteIndexFile(const QString& path, IndexFileContent content,
                                  const ReflectanceSpectrum& values);

/// Reads the reflectance of a bare substrate, in percent, from a measurement data file: from slot 1
/// of a comma-separated file of version 2.99 or later, with or without a wavelength column, or from
/// the first block of a file of version 1.0 or later. False, and `reflectance` as it was, when that
/// fails; a version below 1.0 (any foreign file) is also shown as a message.
[[nodiscard]] bool ReadSubstrateFile(const QString& path, ReflectanceSpectrum& reflectance,
                                     MessageService& messages);

}  // namespace vexa
