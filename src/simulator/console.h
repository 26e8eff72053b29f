// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QSocketNotifier>
#include <QStringView>
#include <functional>
#include <optional>
#include <variant>

#include "simulator/faults.h"
#include "simulator/samples.h"
#include "simulator/wear.h"

namespace vexa::simulator {

struct PutOnStage {
  std::optional<Sample> sample;  // empty: unattended again
};
struct NextSample {};
struct SetWear {
  const WearInfo* kind;
  double amount;
};
struct QuitProgram {};

using ConsoleCommand = std::variant<PutOnStage, NextSample, Fault, SetWear, QuitProgram>;

/// A line of standard input, words divided by blanks: "stage NAME", "stage auto", "next",
/// "fault NAME [EXCHANGE]", "lamp-age HOURS", "shutter-leak PERCENT", "quit". Empty when it is none
/// of them.
[[nodiscard]] std::optional<ConsoleCommand> ParseConsoleLine(QStringView line);

/// Reads standard input line by line in the event loop. Its end only ends the reading. A line that
/// is no command is named on standard error; blank lines are passed over.
class Console {
 public:
  explicit Console(std::function<void(const ConsoleCommand& command)> commanded);

 private:
  void ReadLines();

  std::function<void(const ConsoleCommand& command)> commanded_;
  QSocketNotifier notifier_;
  QByteArray unread_;
};

}  // namespace vexa::simulator
