// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoroTask>
#include <QObject>
#include <QString>
#include <optional>

#include "measurement/instrument_desk.h"
#include "records/daily_check_events.h"
#include "records/lot_tally.h"
#include "records/recipe.h"
#include "records/session_recorder.h"

namespace vexa {

/// What a lot is measured under, entered once.
struct LotIdentity {
  Recipe recipe;
  QString lot;
  QString operatorName;
};

/// One lot while it is measured: which lens comes next and what has to be done before it, the slots
/// round and round, what holds of each lens. Every measurement is in the store before it is
/// announced. One thing runs at a time; whatever is asked meanwhile is refused.
class LotRun : public QObject {
  Q_OBJECT

 public:
  /// How the last thing ended.
  enum class Outcome {
    kNone,    ///< nothing was measured yet
    kJudged,  ///< a lens: `CurrentLens` has its state
    kFrame,   ///< a background or a reference
    kFault,   ///< it failed: `FaultText`
    kCancelled,
  };
  /// What has to be measured before the next lens.
  enum class Due { kNothing, kBackground, kReference };

  /// What the store of this path holds of the lot already goes on; the verdicts are held as long as
  /// it says so.
  LotRun(LotIdentity identity, LotTally tally, Session& session, InstrumentDesk& desk,
         SessionRecorder& recorder, QString storePath);

  [[nodiscard]] const LotIdentity& Identity() const { return identity_; }
  [[nodiscard]] const LotTally& Tally() const { return tally_; }
  [[nodiscard]] bool IsMeasuring() const { return running_.has_value(); }
  [[nodiscard]] MeasurementKind Running() const { return *running_; }  ///< while measuring
  [[nodiscard]] int Repetition() const { return repetition_; }         ///< from 1, while measuring
  [[nodiscard]] Due WhatIsDue() const;
  [[nodiscard]] Outcome LastOutcome() const { return outcome_; }
  [[nodiscard]] MeasurementKind LastKind() const { return lastKind_; }  ///< what it was about
  [[nodiscard]] const QString& FaultText() const { return fault_; }
  /// Why the verdict on the last lens was held.
  [[nodiscard]] QString HoldReason() const { return hold_ ? hold_->Why() : QString(); }
  /// The lens that is, or was last, measured; null before the first, or when nothing of it was
  /// stored.
  [[nodiscard]] const LotLens* CurrentLens() const { return tally_.Find(number_); }
  [[nodiscard]] const QString& CurrentNumber() const { return number_; }
  /// The slot of the last measurement; 0 before the first.
  [[nodiscard]] int LastSlot() const { return slot_; }
  /// The number of the next lens when nobody gives it one.
  [[nodiscard]] QString NextNumber() const;

  QCoro::Task<> MeasureFrame(MeasurementKind kind);
  /// Measures a lens as often as the recipe wants. One that was measured already is measured in the
  /// place of its earlier measurements, for the reason.
  QCoro::Task<> MeasureLens(QString number, QString reason = {});
  void Cancel();

  /// Frees the verdicts whose check was released meanwhile.
  void TakeReleases();

 signals:
  void Changed();

 private:
  [[nodiscard]] int NextSlot() const;
  QCoro::Task<bool> MeasureOnce(QString supersedes, QString reason);
  void End(const MeasurementOutcome& outcome);
  void Hold();

  LotIdentity identity_;
  LotTally tally_;
  Session& session_;
  InstrumentDesk& desk_;
  SessionRecorder& recorder_;
  QString storePath_;
  std::optional<MeasurementKind> running_;
  int repetition_ = 0;
  Outcome outcome_ = Outcome::kNone;
  MeasurementKind lastKind_ = MeasurementKind::kSample;
  QString fault_;
  std::optional<VerdictHold> hold_;
  QString number_;
  int slot_ = 0;
};

}  // namespace vexa
