// SPDX-License-Identifier: GPL-3.0-or-later
#include "measurement/measurement_sequence.h"

#include <exception>
#include <utility>

#include "measurement/evaluation.h"
#include "measurement/reflectance.h"

namespace vexa {

using namespace message_type;

namespace {

const QString kBackgroundRequest = QStringLiteral("ﾊﾞｯｸｸﾞﾗﾝﾄﾞを測定して下さい。");
const QString kReferenceRequest = QStringLiteral("ﾘﾌｧﾚﾝｽを測定して下さい。");

}  // namespace

MeasurementSequence::MeasurementSequence(VEXATYPE& state, MessageService& messages, Clock clock,
                                         QObject* parent)
    : QObject(parent), state_(state), messages_(messages), clock_(std::move(clock)) {}

std::optional<Status> MeasurementSequence::MeasureBackground() {
  return Measure(MeasurementKind::kBackground, 0, state_.background);
}

std::optional<Status> MeasurementSequence::MeasureReference() {
  if (!RequireMeasured(state_.backgroundMeasured, kBackgroundRequest)) {
    return std::nullopt;
  }
  return Measure(MeasurementKind::kReference, 0, state_.reference);
}

std::optional<Status> MeasurementSequence::MeasureSample(int slotNumber) {
  const MeasurementSlot* slot = state_.Slot(slotNumber);
  if (slot == nullptr || running_) {
    return std::nullopt;
  }
  if (slot->valid &&
      messages_.MsgCall(QStringLiteral("すでに測定されてます。上書きしてもよろしいですか？"),
                        kOkCancel + kQuestionIcon, message_title::kMessage) != MessageResult::kOk) {
    return std::nullopt;
  }
  if (!RequireMeasured(state_.backgroundMeasured, kBackgroundRequest) ||
      !RequireMeasured(state_.referenceMeasured, kReferenceRequest)) {
    return std::nullopt;
  }
  return Measure(MeasurementKind::kSample, slotNumber, state_.sample);
}

bool MeasurementSequence::ClearAll() {
  if (running_ || messages_.MsgCall(QStringLiteral("全てのデータをクリアします。よろしいですか？"),
                                    kOkCancel + kQuestionIcon,
                                    QStringLiteral("ALL CLEAR")) != MessageResult::kOk) {
    return false;
  }
  state_.ClearSlots();
  emit SlotsChanged();
  return true;
}

std::optional<Status> MeasurementSequence::Measure(MeasurementKind kind, int slot,
                                                   RawSpectrum& target) {
  if (running_) {
    return std::nullopt;
  }
  if (controller_ == nullptr) {
    messages_.MsgCall(QStringLiteral("ｺﾝﾄﾛｰﾗが接続されていません。"), kOk + kWarningIcon,
                      message_title::kWarning);
    return std::nullopt;
  }
  running_ = true;
  emit Began(kind, slot);
  Status status = -1;
  try {
    status = AcquireInto(
        kind == MeasurementKind::kBackground ? LightFlag::kBackground : LightFlag::kSample, target);
    if (status == 0) {
      switch (kind) {
        case MeasurementKind::kBackground:
          state_.backgroundMeasured = true;
          state_.backgroundTaken = ConditionsNow(state_.instrument, clock_());
          emit FrameKept(kind, slot);
          break;
        case MeasurementKind::kReference:
          state_.referenceMeasured = true;
          state_.referenceTaken = ConditionsNow(state_.instrument, clock_());
          emit FrameKept(kind, slot);
          break;
        case MeasurementKind::kSample:
          StoreSample(slot);
          break;
      }
    }
  } catch (const std::exception& fault) {
    messages_.MsgCall(
        QStringLiteral("予期しないエラーが発生しました。\r") + QString::fromLocal8Bit(fault.what()),
        kOk + kStopIcon, message_title::kError);
  }
  running_ = false;
  emit Ended(kind, slot);
  return status;
}

// A fresh array takes the place of the old one only when the acquisition succeeded.
Status MeasurementSequence::AcquireInto(LightFlag light, RawSpectrum& target) {
  const AcquisitionSettings settings{.linePositions = state_.instrument.linePositions,
                                     .settlingTimeMs = state_.instrument.settlingTimeMs};
  RawSpectrum fresh;
  const Status status = controller_->Acquire(light, settings, fresh);
  if (status == 0) {
    target = fresh;
    return status;
  }
  if (status == 1) {
    messages_.Beep();
  }
  messages_.MsgCallWithDetails(status == 1 ? QStringLiteral("取り込んだﾃﾞｰﾀが飽和しています。")
                                           : QStringLiteral("データ取得でエラーが発生しました。"),
                               kOk + kWarningIcon, message_title::kWarning,
                               status == 1 ? QString() : controller_->FailureDetails());
  return status;
}

void MeasurementSequence::StoreSample(int slotNumber) {
  MeasurementSlot& slot = *state_.Slot(slotNumber);
  slot.reflectance =
      ComputeReflectance(state_.sample, state_.background, state_.reference,
                         state_.instrument.calibrationShiftNm, state_.referenceReflectance);
  slot.thickness = {};
  slot.info.measuredAt = clock_();
  slot.valid = true;
  // Before any message about it waits for its answer.
  emit FrameKept(MeasurementKind::kSample, slotNumber);
  EvaluateSlot(state_, slot, messages_);
  slot.info.measuredAt = clock_();  // the date that stays is that of the evaluated slot
  const bool thicknessMeasured = state_.autoThickness && state_.thickness.enabled &&
                                 ComputeSlotThickness(state_, slot, messages_) == 0;
  emit SampleStored(slotNumber);
  if (thicknessMeasured) {
    emit ThicknessMeasured(slot.thickness);
  }
}

bool MeasurementSequence::RequireMeasured(bool measured, const QString& request) {
  if (!measured) {
    messages_.MsgCall(request, kOk + kInformationIcon, message_title::kMessage);
  }
  return measured;
}

}  // namespace vexa
