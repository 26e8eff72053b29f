// SPDX-License-Identifier: GPL-3.0-or-later
#include "measurement/measurement_sequence.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "base/translation.h"
#include "measurement/controller_start.h"
#include "measurement/evaluation.h"

namespace vexa {
namespace {

void AddFailure(Status status, const Controller& controller, std::vector<MessageCall>& messages) {
  if (status == Controller::kCancelled) {
    return;
  }
  if (const std::optional<MessageCall> own = controller.FailureMessage()) {
    messages.push_back(*own);
  }
  if (status == 1) {
    messages.push_back({Message::kSaturated});
  } else {
    messages.push_back({Message::kAcquisitionFailed, {}, controller.FailureDetails()});
  }
}

// What is odd about a frame that is taken all the same.
void AddDoubts(const Acquisition& acquisition, const FrameConditions& asked,
               std::vector<MessageCall>& messages) {
  const auto counts = acquisition.counts.Values();
  if (std::ranges::all_of(counts, [](double count) { return count == 0.0; })) {
    messages.push_back({Message::kNoLight});
  }
  if (acquisition.linesTaken > 0 && acquisition.linesTaken < asked.averagingCount) {
    messages.push_back(
        {Message::kLinesMissing,
         {QString::number(acquisition.linesTaken), QString::number(asked.averagingCount)}});
  }
}

// That the history takes nothing more is told once until it does again.
void AddStorage(const SampleStorage& storage, std::optional<HistoryAddResult>& lastHistory,
                std::vector<MessageCall>& messages) {
  if (const std::optional<MessageCall> message = AccumulationMessage(storage.stock)) {
    messages.push_back(*message);
  }
  if (const Status status = storage.thickness.value_or(kSuccess); status != kSuccess) {
    messages.push_back(SlotThicknessMessage(status));
  }
  if (storage.history && storage.history != lastHistory) {
    if (const std::optional<MessageCall> refusal = HistoryRefusal(*storage.history)) {
      messages.push_back(*refusal);
    }
    lastHistory = storage.history;
  }
}

}  // namespace

AcquisitionSettings AcquisitionSettingsOf(const InstrumentSettings& instrument) {
  return {.linePositions = instrument.linePositions,
          .settlingTimeMs = instrument.settlingTimeMs,
          .sampling = SamplingOf(instrument)};
}

void Tell(const MeasurementOutcome& outcome, MessageService& messages) {
  for (const MessageCall& call : outcome.messages) {
    if (call.id == Message::kSaturated) {
      messages.Beep();
    }
    messages.Tell(call);
  }
}

MeasurementSequence::MeasurementSequence(Session& session, QObject* parent)
    : QObject(parent), session_(session) {}

QCoro::Task<MeasurementOutcome> MeasurementSequence::MeasureBackground() {
  return Measure(MeasurementKind::kBackground);
}

QCoro::Task<MeasurementOutcome> MeasurementSequence::MeasureReference() {
  return Measure(MeasurementKind::kReference);
}

QCoro::Task<MeasurementOutcome> MeasurementSequence::MeasureSample(int slot) {
  return Measure(MeasurementKind::kSample, slot);
}

QCoro::Task<MeasurementOutcome> MeasurementSequence::MeasureSample(int slot, QString sampleNumber) {
  return Measure(MeasurementKind::kSample, slot, std::move(sampleNumber));
}

void MeasurementSequence::Cancel() {
  if (running_) {
    fit_.Cancel();
    controller_->Cancel();
  }
}

// What is still missing for a measurement of the kind.
std::optional<MessageCall> MeasurementSequence::Refusal(MeasurementKind kind) const {
  const VEXATYPE& state = session_.State();
  if (kind != MeasurementKind::kBackground && !state.backgroundMeasured) {
    return MessageCall{Message::kMeasureBackground};
  }
  if (kind == MeasurementKind::kSample && !state.referenceMeasured) {
    return MessageCall{Message::kMeasureReference};
  }
  if (kind == MeasurementKind::kSample && state.referenceReflectance.IsEmpty()) {
    return MessageCall{Message::kIndexFileFault, {Text::tr("ﾘﾌｧﾚﾝｽ") + u'\r'}};
  }
  if (controller_ == nullptr) {
    return MessageCall{Message::kControllerMissing};
  }
  return std::nullopt;
}

QCoro::Task<MeasurementOutcome> MeasurementSequence::Measure(MeasurementKind kind, int slot,
                                                             std::optional<QString> sampleNumber) {
  MeasurementOutcome outcome;
  const bool hasPlace = kind != MeasurementKind::kSample || session_.State().Slot(slot) != nullptr;
  if (running_ || !hasPlace) {
    co_return outcome;
  }
  if (const std::optional<MessageCall> refusal = Refusal(kind)) {
    outcome.messages.push_back(*refusal);
    co_return outcome;
  }
  running_ = true;
  emit Began(kind, slot);
  try {
    // What the frame is taken with, whatever is changed while it is being taken.
    SampleBasis basis = session_.BasisNow();
    FrameConditions& taken = basis.conditions.frame;
    const AcquisitionSettings settings = AcquisitionSettingsOf(session_.State().instrument);
    const LightFlag light =
        kind == MeasurementKind::kBackground ? LightFlag::kBackground : LightFlag::kSample;
    const Acquisition acquisition = co_await controller_->Acquire(light, settings);
    outcome.status = acquisition.status;
    if (acquisition.status == kSuccess) {
      taken.takenAt = session_.Now();
      AddDoubts(acquisition, taken, outcome.messages);
      if (kind == MeasurementKind::kSample) {
        const std::optional<FilmFit> fit = co_await Fit(acquisition.counts, basis);
        AddStorage(session_.StoreSample(slot, acquisition.counts, basis, sampleNumber, fit),
                   lastHistory_, outcome.messages);
      } else {
        session_.StoreFrame(
            kind == MeasurementKind::kBackground ? FrameKind::kBackground : FrameKind::kReference,
            acquisition.counts, taken);
      }
    } else {
      AddFailure(acquisition.status, *controller_, outcome.messages);
    }
  } catch (const std::exception& fault) {
    outcome.messages.push_back({Message::kUnexpectedFault, {QString::fromLocal8Bit(fault.what())}});
  }
  running_ = false;
  emit Ended(kind, slot);
  co_return outcome;
}

// A sample whose fit is given up is stored without one.
QCoro::Task<std::optional<FilmFit>> MeasurementSequence::Fit(RawSpectrum counts,
                                                             SampleBasis basis) {
  std::optional<FilmFit> fit;
  if (const std::optional<SampleFitTask> task = session_.FitToMake(counts, basis)) {
    fit = co_await fit_.Make(*task);
  }
  co_return fit;
}

}  // namespace vexa
