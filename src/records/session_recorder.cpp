// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/session_recorder.h"

#include <utility>

#include "optics/thickness_doubts.h"

namespace vexa {

SessionRecorder::SessionRecorder(Session& session, const QString& storePath, RecordContext context)
    : session_(session), context_(std::move(context)), keeper_(storePath) {
  connect(&keeper_, &RecordKeeper::Faulted, this, &SessionRecorder::Faulted);
  connect(&keeper_, &RecordKeeper::Paid, this, &SessionRecorder::Paid);
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
  const VEXATYPE& state = session_.State();
  const MeasurementSlot& slot = *state.Slot(slotNumber);
  RecordContext context = context_;
  if (slot.thickness.IsComputed()) {
    const ReflectanceSpectrum& index = slot.filmIndex.IsEmpty() ? state.filmIndex : slot.filmIndex;
    for (const ThicknessDoubt doubt :
         FindThicknessDoubts(state.thickness.type, slot.reflectance, index, slot.thickness)) {
      context.doubts << ThicknessDoubtName(doubt);
    }
  }
  if (const auto measured = MeasuredSampleOf(state, slotNumber, context)) {
    const QList<Row> rows = measured->Rows();
    (void)keeper_.Keep(rows);
    lastSample_ = {rows.constLast().id, VerdictOf(measured->sample)};
  }
}

}  // namespace vexa
