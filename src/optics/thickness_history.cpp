// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/thickness_history.h"

#include <algorithm>
#include <cmath>

#include "base/file_kind.h"
#include "base/number_text.h"
#include "base/text_file.h"
#include "optics/thickness.h"

namespace vexa {

HistoryAddResult ThicknessHistory::Append(const HistoryPoint& point) {
  if (count == 0) {
    physical = point.physical;
  }
  if (physical != point.physical) {
    return HistoryAddResult::kKindDiffers;
  }
  if (count >= kCapacity) {
    return HistoryAddResult::kFull;
  }
  values[static_cast<std::size_t>(count)] = point.thicknessNm;
  notes[static_cast<std::size_t>(count)] = point.note;
  ++count;
  return HistoryAddResult::kAdded;
}

bool ThicknessHistory::Delete(int point) {
  if (point < 1 || point > count) {
    return false;
  }
  std::shift_left(values.begin() + point - 1, values.begin() + count, 1);
  std::shift_left(notes.begin() + point - 1, notes.begin() + count, 1);
  --count;
  values[static_cast<std::size_t>(count)] = 0.0;
  notes[static_cast<std::size_t>(count)] = {};
  return true;
}

void ThicknessHistory::Clear() {
  count = 0;
  values.fill(0.0);
  notes.fill({});
}

std::optional<ThicknessScale> AutoScale(std::span<const double> pointsNm) {
  if (pointsNm.empty()) {
    return ThicknessScale{};
  }
  const auto inRange = [](double nm) {
    return nm >= ThicknessScale::kLowestNm && nm <= ThicknessScale::kHighestNm;
  };
  if (!std::ranges::all_of(pointsNm, inRange)) {
    return std::nullopt;
  }
  const auto [lowest, highest] = std::ranges::minmax(pointsNm);
  const double width = std::max(highest - lowest, ThicknessScale::kSmallestWidthNm);
  constexpr std::array kStepsNm{20.0, 50.0, 100.0, 200.0, 500.0, 1000.0, 2000.0, 5000.0};
  const double step =
      *std::ranges::find_if(kStepsNm, [width](double nm) { return 5.0 * nm >= width; });
  ThicknessScale scale{std::floor(lowest / step) * step, std::ceil(highest / step) * step};
  while (scale.maximumNm - scale.minimumNm < ThicknessScale::kSmallestWidthNm) {
    scale.minimumNm = std::max(scale.minimumNm - step, ThicknessScale::kLowestNm);
    scale.maximumNm = std::min(scale.maximumNm + step, ThicknessScale::kHighestNm);
  }
  return scale;
}

WriteResult WriteThicknessFile(const QString& path, const ThicknessHistory& history) {
  FileText text;
  text.Line(file_kind::kThickness.header.toString())
      .Line(SignedText(history.count))
      .Line(ThicknessUnit(history.physical));
  for (const double thicknessNm : history.Points()) {
    text.Line(SignedText(thicknessNm));
  }
  return text.WriteTo(path);
}

}  // namespace vexa
