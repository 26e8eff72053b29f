// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/image_stream.h"
#include "optics/film_fit.h"

namespace vexa {

/// A fit as the journal keeps it with its slot. Their layout is told in docs/files.md.
void Write(ImageWriter& out, const FilmFit& fit);

/// False when a count, the outcome or the wavelengths are none that a fit has. `withSetting`: what
/// it was made with is there, too.
[[nodiscard]] bool Read(ImageReader& in, bool withSetting, FilmFit& fit);

}  // namespace vexa
