// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <chrono>
#include <vector>

namespace vexa::simulator {

/// What is reached once the bytes of a step are out.
enum class Milestone { None, DarkMeasured, LightMeasured, LightLinesSent };

/// A part of an answer, sent after a wait.
struct ReplyStep {
  QByteArray bytes;                       // may be empty
  std::chrono::milliseconds exposure{0};  // the sensor's time before the bytes; paced runs only
  std::chrono::milliseconds pause{0};     // a fault's time before the bytes; always kept
  Milestone milestone = Milestone::None;
};

/// What the controller does about one command frame.
struct Response {
  bool dropsPending = false;  // what earlier frames still have to send is dropped first
  bool unplugs = false;       // the port goes away instead of an answer
  std::vector<ReplyStep> steps;
};

}  // namespace vexa::simulator
