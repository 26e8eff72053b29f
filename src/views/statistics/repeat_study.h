// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

#include "measurement/vexatype.h"
#include "views/statistics/result_table.h"

namespace vexa {

/// A spectrum with what was found of it: a slot, or one of several measurements of one lens.
struct StudiedSample {
  MeasurementSlot slot;
  ColourSettings colour;  ///< under which its colours were computed

  /// Of a slot of the state as it is now.
  static StudiedSample Of(const VEXATYPE& state, int number);
};

/// Number, mean, standard deviation, least, greatest and repeatability limit (2.8 standard
/// deviations, ISO 5725-6: two results differ by more in one of twenty cases) of every value that
/// all samples have; and the mean standard deviation of the reflectance over the wavelengths.
/// Below two samples it says so in the place of the rows.
[[nodiscard]] ResultTable RepeatTable(std::span<const StudiedSample> samples);

/// What the CIE values of the table were computed for; empty without any.
[[nodiscard]] QString CieNote(std::span<const StudiedSample> samples);

/// Mean, standard deviation and envelope at every nanometre as rows of a file; empty below two.
[[nodiscard]] QList<QStringList> SpectrumRows(std::span<const StudiedSample> samples);

}  // namespace vexa
