// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <optional>
#include <span>

#include "base/spectrum.h"
#include "colour/colorimetry.h"
#include "measurement/frame_conditions.h"
#include "optics/thickness.h"
#include "records/row.h"
#include "standards/cie_limits.h"
#include "standards/judgement.h"

namespace vexa {

enum class RecordFrameKind { kBackground, kReference, kSample };

/// One acquired frame. A background or a reference is a row of its own, kept once however many
/// samples are computed with it; the frame of a sample is kept in the sample's row.
struct FrameRecord {
  RecordFrameKind kind = RecordFrameKind::kBackground;
  RawSpectrum counts;
  FrameConditions taken;
  QString controller;  ///< "serial 5", "GP-IB"
  QString station;
};

/// Under which settings samples are computed; one row as long as nothing of it changes.
struct SettingsRecord {
  QString station;
  QJsonObject values;                        ///< see SettingsJson
  ReflectanceSpectrum referenceReflectance;  ///< percent
  ReflectanceSpectrum index;  ///< of the film or, where the film's is derived, of the substrate
};

/// What a group of verdicts comes to.
enum class Verdict { kNone, kOk, kNotGood };

/// One measured (or imported) sample and everything that was found of it.
struct SampleRecord {
  QDateTime measuredAt;
  QString station;
  QString lot;
  QString recipe;
  QString sampleNumber;
  QString remark1;
  QString remark2;
  QString operatorName;
  QString programVersion;
  QString source;  ///< the name of the imported file; empty when it was measured

  QString backgroundId;  ///< rows of the frames and the settings; empty when imported
  QString referenceId;
  QString settingsId;
  std::optional<FrameRecord> frame;  ///< nothing when imported

  ReflectanceSpectrum reflectance;  ///< percent
  ColourResult colour;              ///< not a number what could not be computed
  std::optional<QJsonObject> cie;   ///< see CieJson; nothing in records before it was
  CieLimits cieLimits;              ///< judged beside the standard
  CieJudgement cieGroups;
  std::optional<ThicknessResult> thickness;  ///< nothing when none was computed
  QStringList doubts;                        ///< about the thickness
  std::optional<QJsonObject> fit;            ///< as another floor has written it
  std::array<GroupJudgement, kStandardGroupCount> groups;

  int repeat = 1;   ///< which measurement of its lens, from 1
  int repeats = 1;  ///< that the recipe wants of each lens

  QString supersedes;  ///< the id of the sample that this one replaces
  QString reason;      ///< why it does
};

/// A decision or a check: the release of a held verdict, frozen limits, a daily check.
struct EventRecord {
  QString type;     ///< one word, as "supersede"
  QString subject;  ///< the id of the row that it is about, if it is about one
  QString reason;
  QString operatorName;
  QString station;
  QDateTime time;
  QJsonObject data;    ///< what else is to be known
  QString supersedes;  ///< the id of the sample that `subject` replaces from now on
};

/// NG when a judged group failed, OK when all that were judged passed, none when none was.
[[nodiscard]] Verdict VerdictOf(std::span<const GroupJudgement> groups);

/// The verdict on a sample as a whole: by the standard and by the limits of its CIE values.
[[nodiscard]] Verdict VerdictOf(const SampleRecord& sample);

/// "OK", "NG" or "none".
[[nodiscard]] QString VerdictWord(Verdict verdict);

/// The time in ISO 8601 with milliseconds and its offset from UTC; empty when it is none.
[[nodiscard]] QString TimeWithOffset(const QDateTime& time);

[[nodiscard]] Row ToRow(const FrameRecord& frame);
[[nodiscard]] Row ToRow(const SettingsRecord& settings);
[[nodiscard]] Row ToRow(const SampleRecord& sample);
[[nodiscard]] Row ToRow(const EventRecord& event);

/// The record that a row holds; nothing when the row is of another kind.
[[nodiscard]] std::optional<FrameRecord> ToFrame(const Row& row);
[[nodiscard]] std::optional<SettingsRecord> ToSettings(const Row& row);
[[nodiscard]] std::optional<SampleRecord> ToSample(const Row& row);
[[nodiscard]] std::optional<EventRecord> ToEvent(const Row& row);

}  // namespace vexa
