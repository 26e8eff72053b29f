// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <chrono>
#include <deque>
#include <functional>
#include <optional>

#include "simulator/reply.h"

namespace vexa::simulator {

/// The answers still to be sent, each byte with the moment at which it is over on the wire. The
/// clock is handed in, so the same rule runs against timers and against made-up times.
///
/// Paced, a byte takes 1/5760 s (57600 bit/s, 10 bits a byte), so does each of the 4 bytes of a
/// command before it is acted on, and exposures take their time. Unpaced, only pauses do. All
/// moments follow from the arrival of the command: late calls delay no later byte.
class ReplyQueue {
 public:
  using Clock = std::chrono::steady_clock;
  using Writer = std::function<void(QByteArrayView bytes)>;
  using Reached = std::function<void(Milestone milestone)>;

  explicit ReplyQueue(bool paced) : paced_(paced) {}

  /// Queues the answer to a frame that arrived (in the computer's buffer) at that moment, behind
  /// whatever is still to be sent; drops that first when the response says so.
  void Add(Clock::time_point arrival, const Response& response);

  void Clear() { steps_.clear(); }

  /// Writes what is over by `now`, in one call a step, and reports each milestone after its bytes.
  /// Gives back the moment of the next call, at most 32 bytes later; empty when nothing is left.
  [[nodiscard]] std::optional<Clock::time_point> Pump(Clock::time_point now, const Writer& write,
                                                      const Reached& reached);

 private:
  struct QueuedStep {
    ReplyStep step;
    Clock::time_point start;  // of its first byte
    qsizetype written = 0;
  };

  [[nodiscard]] Clock::duration WireTime(qsizetype bytes) const;
  [[nodiscard]] qsizetype BytesOver(const QueuedStep& queued, Clock::time_point now) const;

  bool paced_;
  std::deque<QueuedStep> steps_;
};

}  // namespace vexa::simulator
