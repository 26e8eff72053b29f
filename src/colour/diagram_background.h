// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

namespace vexa {

/// One pixel of the coloured background at its place in the xy diagram.
struct BackgroundPoint {
  float x;
  float y;
  std::uint8_t r;
  std::uint8_t g;
  std::uint8_t b;
};

/// The coloured background of the xy diagram: the region between straight lines near the spectral
/// locus and the purple line, every 0.002 in x (0.14..0.67) and y, in the colour of the
/// chromaticity at a luminance of 75. Built in steps, column by column from below, so that a caller
/// can let events run in between and stop.
class DiagramBackground {
 public:
  static constexpr float kPitch = 0.002F;

  DiagramBackground();

  /// Adds at most `pixels` points; false once the background is complete.
  bool Step(int pixels);

  [[nodiscard]] bool IsComplete() const { return x_ > kLastX; }
  /// The points so far, in the order in which they were added.
  [[nodiscard]] const std::vector<BackgroundPoint>& Points() const { return points_; }

 private:
  static constexpr float kFirstX = 0.14F;
  static constexpr float kLastX = 0.67F;

  void EnterColumn();
  void AddPoint();
  void Advance();

  std::vector<BackgroundPoint> points_;
  float x_ = kFirstX;
  float y_ = 0.0F;
  float upperY_ = 0.0F;
};

/// The colour component 0..255 of red and green: the integer part of value + 0.5.
[[nodiscard]] std::uint8_t RedGreenComponent(double value);
/// That of blue: value + 0.5 rounded to the nearest integer, halves to even.
[[nodiscard]] std::uint8_t BlueComponent(double value);

}  // namespace vexa
