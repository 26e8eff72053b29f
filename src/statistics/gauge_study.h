// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "statistics/refusal.h"

namespace vexa::statistics {

/// One measurement of a gauge study. Parts and operators are told apart by any numbers.
struct GaugeReading {
  int part = 0;
  int gaugeOperator = 0;
  double value = 0.0;
};

enum class VarianceSource { kPart, kOperator, kInteraction, kRepeatability, kPooled, kTotal };

/// A row of the table of the analysis of variance.
struct VarianceRow {
  VarianceSource source = VarianceSource::kTotal;
  double df = 0.0;
  double ss = 0.0;
  std::optional<double> ms;  ///< nothing for the total
  std::optional<double> f;   ///< nothing where none is tested, or the denominator is 0
  std::optional<double> p;
};

/// Where the spread of measurements comes from: components as standard deviations (a negative
/// estimate of a variance counts as 0).
struct GaugeStudy {
  double repeatability = 0.0;    ///< equipment variation, EV
  double reproducibility = 0.0;  ///< of the operators alone, appraiser variation, AV
  double interaction = 0.0;      ///< of operator and part; 0 when pooled
  double grr = 0.0;              ///< the three together
  double part = 0.0;             ///< part variation, PV
  double total = 0.0;
  double percentGrr = 0.0;                 ///< of the total
  std::optional<double> percentTolerance;  ///< 6 grr of the tolerance's width
  /// Number of distinct categories, 1.41 part / grr cut to a whole number; nothing where grr is
  /// nothing beside the parts.
  std::optional<std::int64_t> ndc;
  bool pooled = false;  ///< the interaction counts as repeatability
  /// Part, operator, interaction, repeatability, pooled (when it is), total. Part and operator are
  /// tested against the interaction, or against the pooled repeatability; the interaction against
  /// the repeatability alone.
  std::vector<VarianceRow> table;
};

/// Gauge repeatability and reproducibility by the crossed analysis of variance with random parts
/// and operators (AIAG, Measurement Systems Analysis, 4th edition; Montgomery, Design and Analysis
/// of Experiments). The interaction is pooled into the repeatability when its p is above 0.25.
/// `readings` stand in any order; every operator measures every part equally often, at least twice.
/// Refuses kNotANumber, kTooFewGroups, kUnbalanced, kNoSpread (every value the same), kArgument (a
/// tolerance, the upper less the lower limit, not within 1E-100..1E+100).
Result<GaugeStudy> AnalyseGauge(std::span<const GaugeReading> readings,
                                std::optional<double> tolerance = {});

}  // namespace vexa::statistics
