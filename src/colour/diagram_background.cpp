// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/diagram_background.h"

#include <algorithm>
#include <cmath>

namespace vexa {
namespace {

constexpr double kLuminance = 75.0;
constexpr std::size_t kExpectedPoints = 50000;

double LowerBound(double x) {
  return 0.471698127 * x + 0.0139622601;
}

double UpperBound(double x) {
  const double left = 9.0 * x - 1.18;
  return left > 0.71 ? -0.82608684 * x + 0.88347821 : left;
}

std::uint8_t Clamped(double value) {
  return static_cast<std::uint8_t>(std::clamp(value, 0.0, 255.0));
}

}  // namespace

std::uint8_t RedGreenComponent(double value) {
  return Clamped(std::floor(value + 0.5));
}

std::uint8_t BlueComponent(double value) {
  return Clamped(std::nearbyint(value + 0.5));
}

DiagramBackground::DiagramBackground() {
  points_.reserve(kExpectedPoints);
  EnterColumn();
}

bool DiagramBackground::Step(int pixels) {
  for (int i = 0; i < pixels && !IsComplete(); ++i) {
    AddPoint();
    Advance();
  }
  return !IsComplete();
}

// Sets y to the bottom of the first column, from this one on, that has a point.
void DiagramBackground::EnterColumn() {
  for (; !IsComplete(); x_ += kPitch) {
    y_ = static_cast<float>(LowerBound(x_));
    upperY_ = static_cast<float>(UpperBound(x_));
    if (y_ <= upperY_) {
      return;
    }
  }
}

void DiagramBackground::AddPoint() {
  const double x = x_;
  const double y = y_;
  const double tristimulusX = x * kLuminance / y;
  const double tristimulusZ = (1.0 - x - y) * kLuminance / y;
  points_.push_back(
      {x_, y_,
       RedGreenComponent(6.0405 * tristimulusX - 1.6839 * kLuminance - 0.9115 * tristimulusZ),
       RedGreenComponent(-3.119 * tristimulusX + 6.3182 * kLuminance - 0.0895 * tristimulusZ),
       BlueComponent(0.1845 * tristimulusX - 0.3747 * kLuminance + 2.8407 * tristimulusZ)});
}

void DiagramBackground::Advance() {
  y_ += kPitch;
  if (y_ > upperY_) {
    x_ += kPitch;
    EnterColumn();
  }
}

}  // namespace vexa
