// SPDX-License-Identifier: GPL-3.0-or-later
#include "measurement/frame_conditions.h"

#include <gtest/gtest.h>

#include <string>

namespace vexa {
namespace {

TEST(FrameConditions, TellInWhatAFrameNoLongerFits) {
  const QDateTime taken({2026, 3, 9}, {7, 5, 3});
  struct Case {
    const char* name;
    std::int16_t timeMs, count, shiftNm;
    int secondsLater;
    const char* changes;  ///< a letter each: sampling time, averaging, calibration, old, future
  };
  const Case cases[] = {
      {"as it was taken", 400, 2, 4, 0, ""},
      {"another sampling time", 401, 2, 4, 0, "t"},
      {"another averaging count", 400, 1, 4, 0, "a"},
      {"another calibration shift", 400, 2, 5, 0, "c"},
      {"a second before it is old", 400, 2, 4, 3599, ""},
      {"old", 400, 2, 4, 3600, "o"},
      {"older by a day, and all settings", 30, 16, 7, 90000, "taco"},
      {"the clock set back by a minute", 400, 2, 4, -60, ""},
      {"by more", 400, 2, 4, -61, "f"},
  };
  const InstrumentSettings settings{
      .samplingTimeMs = 400, .averagingCount = 2, .calibrationShiftNm = 4};
  const FrameConditions frame = ConditionsNow(settings, taken);
  for (const Case& c : cases) {
    const FrameChanges changed = ChangedSince(
        frame,
        {.samplingTimeMs = c.timeMs, .averagingCount = c.count, .calibrationShiftNm = c.shiftNm},
        taken.addSecs(c.secondsLater));
    std::string changes;
    changes += changed.samplingTime ? "t" : "";
    changes += changed.averagingCount ? "a" : "";
    changes += changed.calibrationShift ? "c" : "";
    EXPECT_EQ(changed.SettingsDiffer(), !changes.empty()) << c.name;
    changes += changed.old ? "o" : "";
    changes += changed.future ? "f" : "";
    EXPECT_EQ(changes, c.changes) << c.name;
  }
}

}  // namespace
}  // namespace vexa
