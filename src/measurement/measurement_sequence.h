// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoroTask>
#include <QObject>
#include <QString>
#include <optional>
#include <vector>

#include "base/message.h"
#include "instrument/controller.h"
#include "measurement/session.h"

namespace vexa {

enum class MeasurementKind { kBackground, kReference, kSample };

/// How a measurement ended.
struct MeasurementOutcome {
  /// Of the acquisition: 0, 1 saturated, negative. Nothing when none was made: refused, one running
  /// already, or no controller.
  std::optional<Status> status;
  std::vector<MessageCall> messages;  ///< what the user should be told, in order

  [[nodiscard]] bool IsDone() const { return status == kSuccess; }
};

/// What an acquisition under these settings takes.
[[nodiscard]] AcquisitionSettings AcquisitionSettingsOf(const InstrumentSettings& instrument);

/// Tells the user what an outcome has to say.
void Tell(const MeasurementOutcome& outcome, MessageService& messages);

/// The background, reference and sample measurements: their preconditions and their steps in their
/// order. One measurement runs at a time; it goes into the session, and whatever fails leaves the
/// session as it was.
class MeasurementSequence : public QObject {
  Q_OBJECT

 public:
  explicit MeasurementSequence(Session& session, QObject* parent = nullptr);

  /// The controller to measure with; null for none. It must live as long as it is in use.
  void UseController(Controller* controller) { controller_ = controller; }

  [[nodiscard]] QCoro::Task<MeasurementOutcome> MeasureBackground();
  /// Needs a background.
  [[nodiscard]] QCoro::Task<MeasurementOutcome> MeasureReference();
  /// Into slot 1..10, whatever it holds. Needs a background, a reference, and what is known of the
  /// reference's reflectance.
  [[nodiscard]] QCoro::Task<MeasurementOutcome> MeasureSample(int slot);
  /// The same of the sample of this number.
  [[nodiscard]] QCoro::Task<MeasurementOutcome> MeasureSample(int slot, QString sampleNumber);

  /// Ends the measurement that runs with Controller::kCancelled; a sample that is taken already is
  /// stored without its fit.
  void Cancel();
  /// Gives up a fit that runs: its sample is stored before this returns.
  void EndAtOnce() { fit_.EndAtOnce(); }

  [[nodiscard]] bool IsRunning() const { return running_; }

 signals:
  /// `slot` is 0 for a background and a reference.
  void Began(vexa::MeasurementKind kind, int slot);
  void Ended(vexa::MeasurementKind kind, int slot);

 private:
  [[nodiscard]] std::optional<MessageCall> Refusal(MeasurementKind kind) const;
  [[nodiscard]] QCoro::Task<MeasurementOutcome> Measure(MeasurementKind kind, int slot = 0,
                                                        std::optional<QString> sampleNumber = {});
  [[nodiscard]] QCoro::Task<std::optional<FilmFit>> Fit(RawSpectrum counts, SampleBasis basis);

  Session& session_;
  Controller* controller_ = nullptr;
  SampleFit fit_;
  bool running_ = false;
  std::optional<HistoryAddResult> lastHistory_;
};

}  // namespace vexa
