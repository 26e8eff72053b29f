// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "base/flag.h"
#include "base/replace_file.h"
#include "optics/thickness_doubts.h"

namespace vexa {

/// What became of a thickness that was offered to a history.
enum class HistoryAddResult {
  kAdded,
  kKindDiffers,  ///< the history holds physical thicknesses and this is an optical one, or reversed
  kFull,
};

/// What is known of a point of a history besides its thickness.
struct HistoryNote {
  std::vector<ThicknessDoubt> doubts = {};  ///< about the thickness
  Flag fitted;         ///< the thickness is that of the film fit; there was none of extrema
  double fitNm = 0.0;  ///< that of the film fit beside the one of extrema; 0 for none

  [[nodiscard]] bool IsEmpty() const { return doubts.empty() && !fitted && fitNm == 0.0; }
};

/// A thickness as it is offered to a history.
struct HistoryPoint {
  double thicknessNm = 0.0;
  Flag physical = true;  ///< otherwise an optical thickness
  HistoryNote note = {};
};

/// The thicknesses of successive measurements, oldest first.
struct ThicknessHistory {
  static constexpr std::int16_t kCapacity = 50;

  std::int16_t count = 0;  ///< 0..50
  Flag physical = true;    ///< the values are physical thicknesses, otherwise optical ones
  std::array<double, kCapacity> values{};  ///< nm; points 1..count
  std::array<HistoryNote, kCapacity> notes{};

  [[nodiscard]] std::span<const double> Points() const {
    return std::span(values).first(static_cast<std::size_t>(count));
  }
  [[nodiscard]] std::span<const HistoryNote> Notes() const {
    return std::span(notes).first(static_cast<std::size_t>(count));
  }

  /// Appends a point; all stays as it was when it is not added. The first point makes the history
  /// one of physical or of optical thicknesses.
  HistoryAddResult Append(const HistoryPoint& point);

  /// Removes point 1..count, later points move down by one; false when there is no such point.
  [[nodiscard]] bool Delete(int point);

  void Clear();
};

/// Limits of the scale of the history graph, nm.
struct ThicknessScale {
  static constexpr double kLowestNm = 0.0;
  static constexpr double kHighestNm = 20000.0;
  static constexpr double kSmallestWidthNm = 100.0;

  double minimumNm = kLowestNm;
  double maximumNm = kSmallestWidthNm;

  bool operator==(const ThicknessScale&) const = default;
};

/// The automatic scale around the points: both limits are multiples of a step of 20, 50, 100, ...
/// 5000 nm, the smallest of which five span the points (and at least 100 nm). Limits that are
/// nearer together than 100 nm move apart by a step on each side, within 0..20000. No points give
/// 0..100. Nothing when a point lies outside 0..20000.
/// Example: points at 1510 and 1630 nm give 1500..1650.
[[nodiscard]] std::optional<ThicknessScale> AutoScale(std::span<const double> pointsNm);

/// Writes a *.thk file; see ReplaceFile.
WriteResult WriteThicknessFile(const QString& path, const ThicknessHistory& history);

}  // namespace vexa
