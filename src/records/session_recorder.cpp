// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/session_recorder.h"

#include <utility>

namespace vexa {

SessionRecorder::SessionRecorder(Session& session, const QString& storePath, RecordContext context)
    : session_(session), context_(std::move(context)), keeper_(storePath) {
  connect(&keeper_, &RecordKeeper::Faulted, this, &SessionRecorder::Faulted);
  connect(&keeper_, &RecordKeeper::Paid, this, &SessionRecorder::Paid);
  connect(&keeper_, &RecordKeeper::Replaced, this, &SessionRecorder::Replaced);
  connect(&session, &Session::FrameChanged, this, &SessionRecorder::KeepFrame);
  connect(&session, &Session::SampleStored, this, &SessionRecorder::KeepSample);
}

void SessionRecorder::KeepFrame(FrameKind kind) {
  const VEXATYPE& state = session_.State();
  const std::optional<FrameRecord> frame = kind == FrameKind::kBackground
                                               ? BackgroundOf(state, context_.station)
                                               : ReferenceOf(state, context_.station);
  if (frame) {
    (void)keeper_.Keep({ToRow(*frame)});
  }
}

void SessionRecorder::KeepSample(int slotNumber) {
  if (const auto measured = MeasuredSampleOf(session_.State(), slotNumber, context_)) {
    const QList<Row> rows = measured->Rows();
    (void)keeper_.Keep(rows);
    lastSample_ = {rows.constLast().id, VerdictOf(measured->sample)};
  }
}

}  // namespace vexa
