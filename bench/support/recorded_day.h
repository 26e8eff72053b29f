// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <random>

#include "records/record_builder.h"

namespace vexa::bench {

inline constexpr int kSamplesOfALot = 300;

/// A sample that differs from every other in its number, its time and the noise of its spectra.
class Day {
 public:
  Day() {
    Fill(state_.background, 100.0);
    Fill(state_.reference, 3000.0);
    state_.backgroundMeasured = state_.referenceMeasured = true;
    state_.backgroundTaken = state_.referenceTaken = ConditionsNow(state_.instrument, kStart);
    std::ranges::fill(state_.referenceReflectance.Values(), 4.0);
    state_.Slot(1)->valid = true;
  }

  QList<Row> Next() {
    Fill(state_.sample, 1000.0);
    MeasurementSlot& slot = *state_.Slot(1);
    Fill(slot.reflectance, 1.0);
    slot.judgement.groups[0] = {number_ % 50 != 0, 0.25};
    slot.info.sampleNumber = QStringLiteral("LENS-%1").arg(number_, 6, 10, QChar(u'0'));
    slot.info.measuredAt = kStart.addSecs(20 * number_);
    RecordContext context;
    context.station = QStringLiteral("line 1");
    context.lot = QStringLiteral("LOT-%1").arg(number_ / kSamplesOfALot);
    context.recipe = QStringLiteral("lens.json");
    context.operatorName = QStringLiteral("山田");
    ++number_;
    return MeasuredSampleOf(state_, 1, context)->Rows();
  }

 private:
  template <typename Spectrum>
  void Fill(Spectrum& spectrum, double level) {
    for (double& value : spectrum.Values()) {
      value = level + noise_(random_);
    }
  }

  inline static const QDateTime kStart{QDate(2026, 11, 21), QTime(8, 0)};
  VEXATYPE state_;
  std::mt19937 random_{1};
  std::uniform_real_distribution<double> noise_{0.0, 1.0};
  int number_ = 0;
};

}  // namespace vexa::bench
