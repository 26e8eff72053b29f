// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <cstdint>

#include "measurement/settings.h"

namespace vexa {

/// A background or reference counts as old after this time.
inline constexpr int kFrameAgeLimitMinutes = 60;

/// When a background or reference frame was taken, and under which settings.
struct FrameConditions {
  QDateTime takenAt;  ///< local time
  std::int16_t samplingTimeMs = 0;
  std::int16_t averagingCount = 0;
  std::int16_t calibrationShiftNm = 0;
};

/// Under which settings a sample's reflectance was measured: those of its frame, and where the
/// reflectance of its reference sample comes from.
struct SampleConditions {
  FrameConditions frame;
  DispersionSetting reference;
};

[[nodiscard]] FrameConditions ConditionsNow(const InstrumentSettings& settings,
                                            const QDateTime& now);

/// In what a frame no longer fits the measurements that are made with it.
struct FrameChanges {
  bool samplingTime = false;
  bool averagingCount = false;
  bool calibrationShift = false;
  bool old = false;     ///< taken kFrameAgeLimitMinutes ago or earlier
  bool future = false;  ///< taken later than now: the clock was set back, and tells no age

  [[nodiscard]] bool SettingsDiffer() const {
    return samplingTime || averagingCount || calibrationShift;
  }
};

[[nodiscard]] FrameChanges ChangedSince(const FrameConditions& frame,
                                        const InstrumentSettings& settings, const QDateTime& now);

}  // namespace vexa
