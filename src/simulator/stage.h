// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>
#include <utility>

#include "simulator/reply.h"
#include "simulator/samples.h"

namespace vexa::simulator {

/// The sample under the objective, and the order in which it changes unattended: after a dark
/// measurement the reference comes; after lines measured in the light have been sent, the next
/// sample of AllSamples(), and after the last one the second, so that the reference comes back only
/// with the next dark measurement.
class Stage {
 public:
  using Changed = std::function<void(Sample sample)>;

  /// Fixed on a sample, or unattended from the reference on when none is given. `changed` is
  /// called after each change to another sample.
  Stage(std::optional<Sample> fixed, Changed changed)
      : sample_(fixed.value_or(Sample::Reference)),
        unattended_(!fixed),
        changed_(std::move(changed)) {}

  [[nodiscard]] Sample Current() const { return sample_; }

  /// Puts this sample on the stage and leaves it there.
  void Fix(Sample sample);

  /// Goes on in the order from the sample that is on the stage.
  void LeaveUnattended() { unattended_ = true; }

  /// One step on in the order, at once.
  void Next();

  /// Follows the instrument when unattended.
  void Reach(Milestone milestone);

 private:
  void ChangeTo(Sample sample);

  Sample sample_;
  bool unattended_;
  Changed changed_;
};

}  // namespace vexa::simulator
