// SPDX-License-Identifier: GPL-3.0-or-later
#include "measurement/frame_conditions.h"

namespace vexa {

FrameConditions ConditionsNow(const InstrumentSettings& settings, const QDateTime& now) {
  return {now, settings.samplingTimeMs, settings.averagingCount, settings.calibrationShiftNm};
}

FrameChanges ChangedSince(const FrameConditions& frame, const InstrumentSettings& settings,
                          const QDateTime& now) {
  return {.samplingTime = frame.samplingTimeMs != settings.samplingTimeMs,
          .averagingCount = frame.averagingCount != settings.averagingCount,
          .calibrationShift = frame.calibrationShiftNm != settings.calibrationShiftNm,
          .old = frame.takenAt.secsTo(now) >= qint64{kFrameAgeLimitMinutes} * 60,
          .future = frame.takenAt.secsTo(now) < -60};
}

}  // namespace vexa
