// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoroTask>
#include <QFuture>
#include <QThreadPool>
#include <functional>
#include <memory>

#include "base/awakening.h"

namespace vexa {

/// Makes calls that block, one at a time and all on one thread of its own, while the calling
/// coroutine sleeps.
class BlockingCalls {
 public:
  enum class End {
    kReturned,
    kOverdue,    ///< not back within the limit
    kAbandoned,  ///< Abandon was called, or this object is gone
  };
  struct Outcome {
    End end = End::kAbandoned;
    int value = 0;  ///< what the call returned
  };

  BlockingCalls();
  /// A call that is still out is left to itself.
  ~BlockingCalls();
  BlockingCalls(const BlockingCalls&) = delete;
  BlockingCalls& operator=(const BlockingCalls&) = delete;

  /// Makes the call and waits for it, at most so long. A call that is given up goes on, so it must
  /// own what it writes to; until it is back, others are overdue at once.
  [[nodiscard]] QCoro::Task<Outcome> Run(std::function<int()> call, int limitMs);

  /// Ends the wait for a call that is out.
  void Abandon();
  /// Likewise, before it returns.
  void AbandonAtOnce();

 private:
  std::unique_ptr<QThreadPool> thread_;
  QFuture<int> last_;
  bool abandoned_ = false;
  Awakening awakening_;
};

}  // namespace vexa
