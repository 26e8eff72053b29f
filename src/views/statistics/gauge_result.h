// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "records/gauge_plan.h"
#include "statistics/gauge_study.h"
#include "views/statistics/result_table.h"

namespace vexa {

/// Whether a gauge will do (AIAG, Measurement Systems Analysis, 4th edition): below 10 % yes, up to
/// 30 % perhaps, above no; and at least five distinct categories.
enum class GaugeGrade { kGood, kMarginal, kPoor };

[[nodiscard]] GaugeGrade GradeOf(const statistics::GaugeStudy& study);

/// The grade in a sentence, with the figures that it rests on.
[[nodiscard]] QString GradeText(const statistics::GaugeStudy& study);

/// The analysis of variance, and the components of the spread.
[[nodiscard]] ResultTable VarianceTable(const statistics::GaugeStudy& study);
[[nodiscard]] ResultTable ComponentTable(const statistics::GaugeStudy& study,
                                         std::optional<double> tolerance);

/// What was analysed, and what it came to.
[[nodiscard]] ResultTable AboutTable(const statistics::GaugeStudy& study,
                                     const GaugeReadings& readings);

/// A line, after a line end, about the conditions of CIE values; empty for other ones.
[[nodiscard]] QString CieNote(const GaugeReadings& readings);

/// The readings as rows of a file, headings first.
[[nodiscard]] QList<QStringList> ReadingRows(const GaugeReadings& readings);

}  // namespace vexa
