// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QObject>
#include <functional>
#include <optional>

#include "base/message.h"
#include "instrument/controller.h"
#include "measurement/vexatype.h"

namespace vexa {

enum class MeasurementKind { kBackground, kReference, kSample };

/// The background, reference and sample measurements: their preconditions, their steps in their
/// order, and their messages. Waits in the event loop; one measurement runs at a time.
///
/// A measurement returns the status of its acquisition (0, 1 saturated, negative), or nothing when
/// none was made: refused, cancelled, one running already, or no controller. Whatever fails
/// leaves the earlier spectra, flags and slots as they were.
class MeasurementSequence : public QObject {
  Q_OBJECT

 public:
  using Clock = std::function<QDateTime()>;

  MeasurementSequence(VEXATYPE& state, MessageService& messages, Clock clock,
                      QObject* parent = nullptr);

  /// The controller to measure with; null for none. It must live as long as it is in use.
  void UseController(Controller* controller) { controller_ = controller; }

  std::optional<Status> MeasureBackground();
  /// Asks for a background first when there is none.
  std::optional<Status> MeasureReference();
  /// Measures into slot 1..10 and evaluates it.
  std::optional<Status> MeasureSample(int slot);

  /// Empties all slots after a question; false when it was refused.
  bool ClearAll();

  [[nodiscard]] bool IsRunning() const { return running_; }

 signals:
  /// `slot` is 0 for a background and a reference.
  void Began(vexa::MeasurementKind kind, int slot);
  void Ended(vexa::MeasurementKind kind, int slot);
  /// A frame has come into the state: the background, the reference, or a sample's reflectance
  /// in its slot, not evaluated yet.
  void FrameKept(vexa::MeasurementKind kind, int slot);
  /// A sample was measured into the slot and evaluated.
  void SampleStored(int slot);
  /// The thickness of the sample just stored was computed, too.
  void ThicknessMeasured(const vexa::ThicknessResult& result);
  void SlotsChanged();

 private:
  std::optional<Status> Measure(MeasurementKind kind, int slot, RawSpectrum& target);
  Status AcquireInto(LightFlag light, RawSpectrum& target);
  void StoreSample(int slotNumber);
  bool RequireMeasured(bool measured, const QString& request);

  VEXATYPE& state_;
  MessageService& messages_;
  Clock clock_;
  Controller* controller_ = nullptr;
  bool running_ = false;
};

}  // namespace vexa
