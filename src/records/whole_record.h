// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonObject>
#include <optional>

#include "base/message.h"
#include "measurement/vexatype.h"
#include "records/record_source.h"

namespace vexa {

/// A sample with the rows that it names.
struct WholeRecord {
  RecordSummary summary;
  QByteArray hash;
  SampleRecord sample;
  std::optional<FrameRecord> background;  ///< nothing when the sample was imported
  std::optional<FrameRecord> reference;
  std::optional<SettingsRecord> settings;
};

/// The sample of this id (in a store also of this number); kMissing when there is none.
[[nodiscard]] Answer<WholeRecord> LoadRecord(const RecordSource& store, const QString& id);

/// What the CIE colours of records were computed for, each condition once: "D65 / 2°, A / 10°".
[[nodiscard]] QString CieConditionsOf(const QList<WholeRecord>& records);

/// Everything of a record; docs/records.md describes it.
[[nodiscard]] QJsonObject RecordJson(const WholeRecord& record);

/// The results alone: "reflectance", "colour", "thickness", "verdict" and "verdicts".
[[nodiscard]] QJsonObject ResultsJson(const SampleRecord& sample);

/// Computes reflectance and results anew from the stored counts, under the colour, film and
/// standard settings of the state; its slot 1 is used for that. The reflectance of the reference is
/// that which was in force at the measurement, or, with `ownReference`, the state's. A sample
/// without counts keeps its reflectance. A failed thickness is shown.
[[nodiscard]] SampleRecord EvaluateAnew(const WholeRecord& record, const Settings& settings,
                                        bool ownReference);

}  // namespace vexa
