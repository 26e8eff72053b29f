// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonObject>
#include <QString>
#include <span>

#include "statistics/capability.h"
#include "statistics/control_chart.h"
#include "statistics/gauge_study.h"
#include "statistics/summary.h"

namespace vexa::cli {

/// A result as the command prints it: with --json, and without.
struct StatisticsReport {
  QJsonObject json;
  QString text;
};

[[nodiscard]] StatisticsReport ReportOf(const statistics::Summary& summary);

/// `rules` are those that were looked for in `values`, `found` their signals.
[[nodiscard]] StatisticsReport ReportOf(const statistics::ChartLimits& limits,
                                        std::span<const statistics::RunRule> rules,
                                        std::span<const statistics::Signal> found,
                                        std::span<const double> values);

[[nodiscard]] StatisticsReport ReportOf(const statistics::Capability& capability);

[[nodiscard]] StatisticsReport ReportOf(const statistics::GaugeStudy& study);

}  // namespace vexa::cli
