// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QCoroTask>
#include <QSocketNotifier>

#include "base/awakening.h"

namespace vexa::cli {

/// The lines of standard input, read as they are asked for and none of them lost.
class LineInput {
 public:
  LineInput();

  /// Waits for a line. False when the input ends before one, or after Interrupt.
  QCoro::Task<bool> Next();

  /// Ends the wait, and every later one.
  void Interrupt();

 private:
  void Read();

  QSocketNotifier notifier_;
  QByteArray bytes_;
  bool ended_ = false;
  Awakening awakening_;
};

}  // namespace vexa::cli
