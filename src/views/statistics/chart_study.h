// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <optional>
#include <span>
#include <vector>

#include "records/record_value.h"
#include "statistics/process_study.h"
#include "statistics/summary.h"
#include "views/statistics/result_table.h"
#include "views/statistics/xmr_plot.h"

namespace vexa {

/// What the points of a chart are told apart by.
enum class Grouping { kNone, kLot, kDay, kStation, kOperator };

/// What is asked of a series.
struct ChartRequest {
  RecordValue value;
  Grouping grouping = Grouping::kNone;
  bool nelson = false;       ///< otherwise the Western Electric rules
  std::size_t baseline = 0;  ///< the first so many points set the limits; 0: all
  statistics::SpecificationLimits tolerance;
};

/// A series as a control chart and what it says about the process.
struct ChartStudy {
  ChartRequest request;
  std::vector<double> values;
  std::vector<int> groups;  ///< of each value, by the place of its name
  QStringList groupNames;
  std::optional<statistics::Summary> summary;
  std::optional<statistics::ChartLimits> limits;
  std::vector<statistics::Signal> found;             ///< where a rule is broken
  std::optional<statistics::Capability> capability;  ///< nothing with doubts, too
  std::vector<statistics::NormalDoubt> doubts;
  std::size_t outside = 0;  ///< values outside the tolerance
  QString refusal;          ///< why there is no chart
  QString noCapability;     ///< why there is none, unless it is for the doubts

  [[nodiscard]] std::span<const statistics::RunRule> Rules() const;
  /// The rules that a point (from 1) breaks, in words, a line each.
  [[nodiscard]] QString BrokenAt(std::size_t point) const;
};

[[nodiscard]] ChartStudy StudyChart(const ValueSeries& series, const ChartRequest& request);

/// What the plot shows of it.
[[nodiscard]] XmrPicture PictureOf(const ChartStudy& study, const ValueSeries& series);

/// The statistics, the rules that were broken, and the groups, each as a table.
[[nodiscard]] ResultTable StatisticsTable(const ChartStudy& study);
[[nodiscard]] ResultTable SignalTable(const ChartStudy& study, const ValueSeries& series);
[[nodiscard]] ResultTable GroupTable(const ChartStudy& study);

/// What the user is to be warned of, a line each: refusals and doubts.
[[nodiscard]] QStringList Warnings(const ChartStudy& study, const ValueSeries& series);

/// The points as rows of a file, headings first.
[[nodiscard]] QList<QStringList> FileRows(const ChartStudy& study, const ValueSeries& series);

}  // namespace vexa
