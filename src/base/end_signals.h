// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

namespace vexa {

/// Lets writing beyond the greatest size of a file fail as any other, instead of ending the
/// program.
void TellTooLargeFilesAsErrors();

/// Turns SIGINT, SIGTERM and SIGHUP into a call in the event loop, and lets writing to a closed
/// pipe fail instead of ending the program, whatever threads there are. To be made after the
/// application object, and one at a time.
class EndSignals {
 public:
  /// Throws std::system_error when the system has no descriptor left.
  explicit EndSignals(std::function<void()> asked);
  EndSignals(const EndSignals&) = delete;
  EndSignals& operator=(const EndSignals&) = delete;
  ~EndSignals();

 private:
  int descriptor_ = -1;
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace vexa
