// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include "measurement/session.h"
#include "records/record_builder.h"
#include "records/record_keeper.h"

namespace vexa {

/// Keeps a record of everything that is measured in a session: each background and reference as it
/// is stored, and each sample with all that it was computed with, before anyone else hears of it
/// who listens to the session later than this.
class SessionRecorder : public QObject {
  Q_OBJECT

 public:
  /// `context` is what the records tell beside the state: station, lot, operator.
  SessionRecorder(Session& session, const QString& storePath, RecordContext context);

  /// What the records tell from now on.
  void SetContext(const RecordContext& context) { context_ = context; }

  [[nodiscard]] const RecordContext& Context() const { return context_; }

  /// The id and the verdict of the sample that was kept last.
  struct KeptSample {
    QString id;
    Verdict verdict = Verdict::kNone;
  };
  [[nodiscard]] const KeptSample& LastSample() const { return lastSample_; }

  /// Keeps a decision or a check, too.
  void Keep(const EventRecord& event) { (void)keeper_.Keep({ToRow(event)}); }

  [[nodiscard]] const RecordKeeper& Keeper() const { return keeper_; }

  /// Tries once more to keep what is owed; how many rows go with the program then.
  [[nodiscard]] qsizetype Settle() {
    keeper_.Pay();
    return keeper_.HeldCount();
  }

 signals:
  void Faulted(vexa::StoreFault fault);  ///< the first time that something was not stored
  void Paid();                           ///< all that was owed is in the store
  void Replaced();  ///< the store that took records before is gone, and another has its name

 private:
  void KeepFrame(FrameKind kind);
  void KeepSample(int slot);

  Session& session_;
  RecordContext context_;
  RecordKeeper keeper_;
  KeptSample lastSample_;
};

}  // namespace vexa
