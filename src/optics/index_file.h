// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "base/file_fault.h"
#include "base/replace_file.h"
#include "base/spectrum.h"

namespace vexa {

/// What the 401 numbers of an index file are; the files differ in their header line alone.
enum class IndexFileContent {
  kIndex,                ///< *.ind
  kReferenceReflectance  ///< *.ref, percent
};

/// Reads a file of either content: a header that is compared with nothing, then 401 numbers for
/// 440..840 nm; what follows them is ignored.
ReadResult<ReflectanceSpectrum> ReadIndexFile(const QString& path);

/// Writes header and values as "0.00000000E+00", a line each; see ReplaceFile.
WriteResult WriteIndexFile(const QString& path, IndexFileContent content,
                           const ReflectanceSpectrum& values);

/// Reads the reflectance of a bare substrate, in percent, from a measurement data file: from slot 1
/// of a comma-separated file of version 2.99 or later, with or without a wavelength column, or from
/// the first block of a file of version 1.0 or later. A version below 1.0 (any foreign file) is the
/// fault of that name.
ReadResult<ReflectanceSpectrum> ReadSubstrateFile(const QString& path);

}  // namespace vexa
