// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <chrono>
#include <optional>
#include <variant>

#include "simulator/call_faults.h"
#include "simulator/faults.h"
#include "simulator/samples.h"
#include "simulator/wear.h"

namespace vexa::simulator {

/// How a run is set up.
struct Options {
  QString directory;  // absolute
  int port = 5;
  bool paced = true;
  std::optional<Sample> stage;  // empty: unattended
  unsigned int seed = 1;
  bool noise = true;
  Wear wear;
  FaultPlan faults;
  CallFaultPlan callFaults;
  std::chrono::milliseconds lateBy{1500};
  std::chrono::milliseconds replugAfter{0};  // 0: never
};

/// The run is over before it began: what to print, and where it ends.
struct EarlyEnd {
  QString text;    // whole lines
  int exitStatus;  // 0: text for standard output; 2: one line for standard error
};

/// Reads the command line, the program's name first.
[[nodiscard]] std::variant<Options, EarlyEnd> ReadOptions(const QStringList& arguments);

}  // namespace vexa::simulator
