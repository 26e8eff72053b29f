// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/stage.h"

namespace vexa::simulator {

void Stage::Fix(Sample sample) {
  unattended_ = false;
  ChangeTo(sample);
}

void Stage::Next() {
  const auto& all = AllSamples();
  const std::size_t next = static_cast<std::size_t>(sample_) + 1;
  ChangeTo(all[next < all.size() ? next : 1].sample);
}

void Stage::Reach(Milestone milestone) {
  if (!unattended_) {
    return;
  }
  if (milestone == Milestone::DarkMeasured) {
    ChangeTo(Sample::Reference);
  } else if (milestone == Milestone::LightLinesSent) {
    Next();
  }
}

void Stage::ChangeTo(Sample sample) {
  if (sample != sample_) {
    sample_ = sample;
    changed_(sample);
  }
}

}  // namespace vexa::simulator
