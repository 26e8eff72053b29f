// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

#include "measurement/vexatype.h"
#include "records/record.h"

namespace vexa {

/// What a record tells beside the state of the measurement.
struct RecordContext {
  QString station;
  QString lot;
  QString recipe;
  QString operatorName;
  CieLimits cieLimits;  ///< of a recipe, judged beside the standard; all off without one
  int repeat = 1;       ///< which measurement of its lens, from 1
  int repeats = 1;      ///< that a recipe wants of each lens
  QString supersedes;
  QString reason;
};

/// A measured sample with all that it was computed with.
struct MeasuredSample {
  SettingsRecord settings;
  FrameRecord background;
  FrameRecord reference;
  SampleRecord sample;

  /// In the order in which they belong into a store; it leaves out those that it has.
  [[nodiscard]] QList<Row> Rows() const;
};

/// The background or the reference of the state; nothing when it was not measured.
[[nodiscard]] std::optional<FrameRecord> BackgroundOf(const VEXATYPE& state,
                                                      const QString& station);
[[nodiscard]] std::optional<FrameRecord> ReferenceOf(const VEXATYPE& state, const QString& station);

/// The settings in force that a result depends on.
[[nodiscard]] SettingsRecord SettingsOf(const Settings& state, const QString& station);

/// The record of a slot's results alone, without frames and settings.
[[nodiscard]] SampleRecord ResultsOf(const VEXATYPE& state, const MeasurementSlot& slot,
                                     const RecordContext& context);

/// The record of the slot that was measured last: its frame is the sample frame of the state.
/// Nothing when the number is no slot's, the slot is empty, or background or reference are missing.
[[nodiscard]] std::optional<MeasuredSample> MeasuredSampleOf(const VEXATYPE& state, int slot,
                                                             const RecordContext& context);

/// The record of a slot that was loaded from the data file of this path: without frames; its time
/// is that of the slot or else that of the file.
[[nodiscard]] SampleRecord ImportedSampleOf(const VEXATYPE& state, const MeasurementSlot& slot,
                                            const QString& path, const RecordContext& context);

}  // namespace vexa
