// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <array>
#include <optional>

#include "base/spectrum.h"
#include "colour/colorimetry.h"
#include "standards/standard_set.h"

namespace vexa {

/// True when lower <= value <= upper.
[[nodiscard]] bool InRange(double lower, double upper, double value);

/// Sets `limit` to the value at w of the line from (w1, y1) to (w2, y2), as y1 + slope (w - w1).
/// Leaves it as it is when w2 - w1 is below 1. Throws ArithmeticFault on an overflow of the slope.
void InterpolateLimit(double w1, double w2, double y1, double y2, double w, double& limit);

/// The wavelength in from..to nm of the highest reflectance (selector non-zero) or the lowest
/// (zero), the shortest one among equals. Bounds outside 440..840 are moved to its ends.
[[nodiscard]] int FindPeakBottom(const ReflectanceSpectrum& reflectance, int from, int to,
                                 std::int16_t selector);

/// The verdict on one group.
struct GroupJudgement {
  std::optional<bool> passed;  ///< nothing when the group is not judged
  /// Distance to the nearest limit in the unit of the group, negative outside; hues are taken round
  /// the circle. Nothing where no measured value stands against a limit.
  std::optional<double> margin;
};

/// The verdict on a value against limits, not judged when they are off. A value that is not a
/// number fails without a margin.
[[nodiscard]] GroupJudgement JudgeValue(const StandardLimits& limits, double value);

/// Likewise for a hue angle in degrees: an upper limit below the lower one means the arc through 0,
/// limits 360 degrees apart the whole circle, which has no margin.
[[nodiscard]] GroupJudgement JudgeHue(const StandardLimits& limits, double hueDeg);

/// The groups in the order of their panels.
enum class StandardGroup {
  kReflectance,
  kAverageReflectance,
  kLuminousReflectance,
  kWavelengthValue,
  kChroma,
  kHueAngle,
};
inline constexpr std::size_t kStandardGroupCount = 6;

struct Judgement {
  std::array<GroupJudgement, kStandardGroupCount> groups;
  /// The text of each group's panel, label and verdict; empty when the group is not judged. It is
  /// the source text, as JSON documents have it: PanelText() is what a user reads.
  std::array<QString, kStandardGroupCount> panelTexts;
  bool reflectancePassed = false;  ///< the reflectance band was judged and passed
  int bandMarginNm = 0;            ///< where the band's margin is smallest; 0 without a margin
};

/// The text of a group's panel in the language in force.
[[nodiscard]] QString PanelText(const Judgement& judgement, std::size_t group);

/// Judges a spectrum and its colour values; any content of `standard` is safe. A colour that was
/// not computed fails what asks for it, without a margin.
///
/// The band needs condition 1; with condition 2 off it is the limits at one wavelength, otherwise
/// every condition that is on is joined to the one before it by number, and the lines between are
/// the limits at every whole nanometre. A segment that runs backwards tests nothing, and a band of
/// only such segments passes without a margin. Outside 440..840 nm there is no reflectance that
/// could pass: such a wavelength fails the band, without a margin.
[[nodiscard]] Judgement JudgeStandards(const ReflectanceSpectrum& reflectance,
                                       const ColourResult& colour, const StandardSet& standard);

/// The amount of a group's margin, inside or outside, with its unit, and of the band also where it
/// is, as "0.031 % (550 nm)"; empty without a margin. The group is 0..5.
[[nodiscard]] QString MarginText(const Judgement& judgement, std::size_t group);

/// The text of a failed group's margin as what it is, one below zero: "余裕 -0.031 %"; empty
/// without one.
[[nodiscard]] QString ShortfallText(const QString& margin);

}  // namespace vexa
