// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/lot/lot_run.h"

#include <QPointer>
#include <QStringList>
#include <utility>

#include "base/translation.h"
#include "measurement/frame_conditions.h"

namespace vexa {
namespace {

// A frame that no lens may be measured with any more.
bool IsOutdated(bool measured, const FrameConditions& taken, int limitMinutes,
                const Session& session) {
  const FrameChanges changes = ChangedSince(taken, session.State().instrument, session.Now());
  const bool old =
      limitMinutes > 0 && taken.takenAt.secsTo(session.Now()) >= qint64{60} * limitMinutes;
  return !measured || changes.samplingTime || changes.averagingCount || changes.future || old;
}

QString TextOf(const MeasurementOutcome& outcome) {
  QStringList texts;
  for (const MessageCall& message : outcome.messages) {
    texts << MessageText(message).replace(u'\r', u' ').simplified();
    if (!message.details.isEmpty()) {
      texts.last() += QStringLiteral(" (%1)").arg(message.details.simplified());
    }
  }
  return texts.isEmpty() ? Text::tr("測定器は使用中です。") : texts.join(u'\n');
}

}  // namespace

LotRun::LotRun(LotIdentity identity, LotTally tally, Session& session, InstrumentDesk& desk,
               SessionRecorder& recorder, QString storePath)
    : identity_(std::move(identity)),
      tally_(std::move(tally)),
      session_(session),
      desk_(desk),
      recorder_(recorder),
      storePath_(std::move(storePath)) {
  if (!tally_.Lenses().empty()) {
    number_ = tally_.Lenses().back().number;
  }
}

LotRun::Due LotRun::WhatIsDue() const {
  const VEXATYPE& state = session_.State();
  if (IsOutdated(state.backgroundMeasured, state.backgroundTaken,
                 identity_.recipe.backgroundAgeMinutes, session_)) {
    return Due::kBackground;
  }
  return IsOutdated(state.referenceMeasured, state.referenceTaken,
                    identity_.recipe.referenceAgeMinutes, session_)
             ? Due::kReference
             : Due::kNothing;
}

QString LotRun::NextNumber() const {
  return tally_.NumberAfter(number_);
}

QCoro::Task<> LotRun::MeasureFrame(MeasurementKind kind) {
  if (IsMeasuring()) {
    co_return;
  }
  const QPointer<LotRun> alive(this);
  running_ = kind;
  emit Changed();
  const QString number;
  const MeasurementOutcome outcome = co_await desk_.Measure(kind, 0, number);
  if (alive.isNull()) {
    co_return;
  }
  if (outcome.IsDone()) {
    outcome_ = Outcome::kFrame;
  }
  End(outcome);
}

QCoro::Task<> LotRun::MeasureLens(QString number, QString reason) {
  if (IsMeasuring()) {
    co_return;
  }
  const QPointer<LotRun> alive(this);
  TakeReleases();
  number_ = number;
  running_ = MeasurementKind::kSample;
  // What was known of a store that cannot be read just now still holds.
  if (const auto hold = FindVerdictHold(storePath_)) {
    hold_ = hold.value;
  }
  const LotLens* earlier = tally_.Find(number);
  const QList<LotLens::Measurement> replaced =
      earlier == nullptr ? QList<LotLens::Measurement>() : earlier->measurements;
  bool going = true;
  for (int i = 0; going && i < identity_.recipe.repeats; ++i) {
    repetition_ = i + 1;
    emit Changed();
    const QString supersedes = replaced.value(i).id;
    const QString why = supersedes.isEmpty() ? QString() : reason;
    going = co_await MeasureOnce(supersedes, why);
    if (alive.isNull()) {
      co_return;
    }
  }
}

// False when it failed, which is then the outcome, or when the lens is done.
QCoro::Task<bool> LotRun::MeasureOnce(QString supersedes, QString reason) {
  const QPointer<LotRun> alive(this);
  SessionRecorder& recorder = recorder_;  // which outlives this
  const RecordContext usual = recorder.Context();
  RecordContext context = usual;
  context.lot = identity_.lot;
  context.recipe = identity_.recipe.name;
  context.operatorName = identity_.operatorName;
  context.cieLimits = identity_.recipe.cie;
  context.repeat = repetition_;
  context.repeats = identity_.recipe.repeats;
  context.supersedes = supersedes;
  context.reason = reason;
  recorder.SetContext(context);
  slot_ = NextSlot();
  const MeasurementOutcome outcome =
      co_await desk_.Measure(MeasurementKind::kSample, slot_, number_);
  recorder.SetContext(usual);
  if (alive.isNull()) {
    co_return false;
  }
  if (!outcome.IsDone()) {
    End(outcome);
    co_return false;
  }
  const SessionRecorder::KeptSample& kept = recorder_.LastSample();
  const bool more = repetition_ < identity_.recipe.repeats;
  tally_.Add(number_, {kept.id, kept.verdict, !more, hold_ ? hold_->checkId : QString()},
             supersedes);
  Hold();
  if (!more) {
    outcome_ = Outcome::kJudged;
    End(outcome);
  }
  co_return more;
}

void LotRun::Cancel() {
  if (IsMeasuring()) {
    desk_.Cancel();
  }
}

// The first empty one, or the one measured longest ago; then in their order.
int LotRun::NextSlot() const {
  if (slot_ != 0) {
    return slot_ % kSlotCount + 1;
  }
  int next = 1;
  for (int number = 1; number <= kSlotCount; ++number) {
    const MeasurementSlot& slot = *session_.State().Slot(number);
    if (!slot.valid) {
      return number;
    }
    if (slot.info.measuredAt < session_.State().Slot(next)->info.measuredAt) {
      next = number;
    }
  }
  return next;
}

void LotRun::End(const MeasurementOutcome& outcome) {
  lastKind_ = *running_;
  running_.reset();
  if (!outcome.IsDone()) {
    const bool cancelled = outcome.status == Controller::kCancelled;
    outcome_ = cancelled ? Outcome::kCancelled : Outcome::kFault;
    fault_ = cancelled ? QString() : TextOf(outcome);
  } else {
    fault_ = outcome.messages.empty() ? QString() : TextOf(outcome);
  }
  emit Changed();
}

// That a verdict was held, and why, is kept beside the sample, whose own row tells what it was.
void LotRun::Hold() {
  if (hold_) {
    recorder_.Keep(
        HeldEvent(*hold_, recorder_.LastSample().id,
                  {recorder_.Context().station, identity_.operatorName, {}, session_.Now()}));
  }
}

void LotRun::TakeReleases() {
  bool released = false;
  for (const QString& check : tally_.HoldingChecks()) {
    if (IsReleased(storePath_, check).value) {
      tally_.Release(check);
      released = true;
    }
  }
  if (released) {
    emit Changed();
  }
}

}  // namespace vexa
