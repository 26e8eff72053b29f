// SPDX-License-Identifier: GPL-3.0-or-later
#include "measurement/instrument_desk.h"

#include <utility>

#include "measurement/controller_start.h"

namespace vexa {

InstrumentDesk::InstrumentDesk(Session& session, MessageService& messages,
                               MakeController makeController)
    : session_(session),
      messages_(messages),
      makeController_(std::move(makeController)),
      sequence_(session) {
  connect(&sequence_, &MeasurementSequence::Began, this, [this](MeasurementKind kind, int slot) {
    SetActivity(Activity::kMeasuring);
    emit Began(kind, slot);
  });
  connect(&sequence_, &MeasurementSequence::Ended, this, [this](MeasurementKind kind, int slot) {
    emit Ended(kind, slot);
    SetActivity(Activity::kIdle);
  });
}

InstrumentDesk::~InstrumentDesk() {
  EndAtOnce();
}

void InstrumentDesk::EndAtOnce() {
  disconnect();
  ready_ = false;
  if (controller_ != nullptr) {
    controller_->EndAtOnce();
  }
  sequence_.EndAtOnce();
}

bool InstrumentDesk::IsLightPathClosed() const {
  return ready_ && controller_->IsLightPathClosed();
}

QCoro::Task<> InstrumentDesk::Connect() {
  if (!MayBegin()) {
    co_return;
  }
  ready_ = false;
  sequence_.UseController(nullptr);
  controller_ = makeController_(session_.State());
  connect(controller_.get(), &Controller::WaitBegan, this, &InstrumentDesk::WaitBegan);
  connect(controller_.get(), &Controller::WaitEnded, this, &InstrumentDesk::WaitEnded);
  SetActivity(Activity::kStarting);
  const Status status =
      co_await controller_->Initialise(session_.State().instrument.controllerPort);
  ready_ = status == kSuccess;
  if (ready_) {
    sequence_.UseController(controller_.get());
  } else if (status != Controller::kCancelled) {
    TellControllerFailure(*controller_, Message::kControllerFailed, messages_);
  }
  if (!ready_) {
    controller_->Close();
  }
  SetActivity(Activity::kIdle);
}

QCoro::Task<> InstrumentDesk::SendSampling() {
  if (!ready_ || !MayBegin()) {
    co_return;
  }
  SetActivity(Activity::kStarting);
  const Sampling sampling = SamplingOf(session_.State().instrument);
  const Status status = co_await controller_->SetSampling(sampling);
  if (status != kSuccess && status != Controller::kCancelled) {
    TellControllerFailure(*controller_, Message::kSamplingFailed, messages_);
  }
  SetActivity(Activity::kIdle);
}

QCoro::Task<> InstrumentDesk::OpenLightPath() {
  if (!ready_ || !MayBegin()) {
    co_return;
  }
  SetActivity(Activity::kStarting);
  // One that stays closed is shown beside the buttons.
  (void)co_await controller_->OpenLightPath();
  SetActivity(Activity::kIdle);
}

QCoro::Task<> InstrumentDesk::MeasureBackground() {
  const MeasurementOutcome outcome = co_await sequence_.MeasureBackground();
  Tell(outcome, messages_);
}

QCoro::Task<> InstrumentDesk::MeasureReference() {
  const MeasurementOutcome outcome = co_await sequence_.MeasureReference();
  Tell(outcome, messages_);
}

QCoro::Task<> InstrumentDesk::MeasureSample(int slotNumber) {
  const MeasurementSlot* slot = session_.State().Slot(slotNumber);
  if (slot == nullptr || !MayBegin()) {
    co_return;
  }
  if (slot->valid) {
    const MessageCall question{Message::kMeasureOver};
    const MessageResult answer = co_await messages_.Ask(question);
    if (answer != MessageResult::kOk) {
      co_return;
    }
  }
  co_await MeasureSampleOver(slotNumber);
}

QCoro::Task<> InstrumentDesk::MeasureSampleOver(int slotNumber) {
  if (session_.State().Slot(slotNumber) == nullptr || !MayBegin()) {
    co_return;
  }
  const MeasurementOutcome outcome = co_await sequence_.MeasureSample(slotNumber);
  Tell(outcome, messages_);
}

QCoro::Task<MeasurementOutcome> InstrumentDesk::Measure(MeasurementKind kind, int slot,
                                                        QString sampleNumber) {
  co_await EndWatching();
  MeasurementOutcome outcome;
  if (!MayBegin()) {
    co_return outcome;
  }
  switch (kind) {
    case MeasurementKind::kBackground:
      outcome = co_await sequence_.MeasureBackground();
      break;
    case MeasurementKind::kReference:
      outcome = co_await sequence_.MeasureReference();
      break;
    case MeasurementKind::kSample:
      outcome = co_await sequence_.MeasureSample(slot, sampleNumber);
      break;
  }
  co_return outcome;
}

QCoro::Task<Status> InstrumentDesk::WatchLight() {
  if (!ready_ || !MayBegin()) {
    co_return Controller::kBusy;
  }
  SetActivity(Activity::kWatching);
  watchEnds_ = false;
  Status status = kSuccess;
  while (status >= kSuccess && !watchEnds_) {
    AcquisitionSettings settings = AcquisitionSettingsOf(session_.State().instrument);
    settings.sampling.averagingCount = 1;
    const Acquisition frame = co_await controller_->Acquire(LightFlag::kSample, settings);
    status = frame.status;
    if (status >= kSuccess && !watchEnds_) {
      emit LightSeen(status != kSuccess, frame.counts);
    }
  }
  SetActivity(Activity::kIdle);
  watched_.Wake();
  co_return watchEnds_ ? Controller::kCancelled : status;
}

void InstrumentDesk::StopWatching() {
  if (activity_ == Activity::kWatching) {
    Cancel();
  }
}

QCoro::Task<> InstrumentDesk::EndWatching() {
  StopWatching();
  while (activity_ == Activity::kWatching) {
    co_await watched_.Sleep();
  }
}

QCoro::Task<> InstrumentDesk::ClearAll() {
  if (!IsIdle()) {
    co_return;
  }
  const MessageCall question{Message::kClearAll};
  const MessageResult answer = co_await messages_.Ask(question);
  if (answer == MessageResult::kOk && IsIdle()) {
    session_.ClearSlots();
  }
}

void InstrumentDesk::Cancel() {
  if (!IsIdle()) {
    watchEnds_ = true;
    sequence_.Cancel();
    controller_->Cancel();
  }
}

QCoro::Task<> InstrumentDesk::Finish() {
  ++finishing_;
  Cancel();
  co_await UntilIdle();
  --finishing_;
}

QCoro::Task<> InstrumentDesk::UntilIdle() {
  while (!IsIdle()) {
    co_await idle_.Sleep();
  }
}

void InstrumentDesk::Close() {
  if (controller_ != nullptr) {
    controller_->Close();
  }
}

void InstrumentDesk::SetActivity(Activity activity) {
  activity_ = activity;
  emit ActivityChanged();
  if (IsIdle()) {
    idle_.Wake();
  }
}

}  // namespace vexa
