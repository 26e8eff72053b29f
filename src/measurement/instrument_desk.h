// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoroTask>
#include <QObject>
#include <functional>
#include <memory>

#include "base/awakening.h"
#include "base/message.h"
#include "instrument/controller.h"
#include "measurement/measurement_sequence.h"

namespace vexa {

/// The instrument as a window works with it: its controller, and what is asked of it, one thing
/// after the other. Whatever goes wrong is told here.
class InstrumentDesk : public QObject {
  Q_OBJECT

 public:
  enum class Activity {
    kIdle,
    kStarting,  ///< the controller is being initialised, or set up
    kMeasuring,
    kWatching,  ///< the light level: frames one after another, which are not stored
  };
  /// Makes the controller that the settings name.
  using MakeController = std::function<std::unique_ptr<Controller>(const VEXATYPE&)>;

  InstrumentDesk(Session& session, MessageService& messages, MakeController makeController);
  ~InstrumentDesk() override;

  [[nodiscard]] Activity CurrentActivity() const { return activity_; }
  [[nodiscard]] bool IsIdle() const { return activity_ == Activity::kIdle; }
  /// The controller has been initialised.
  [[nodiscard]] bool IsReady() const { return ready_; }
  [[nodiscard]] bool IsLightPathClosed() const;

  /// Initialises the controller that the settings name, in the place of an earlier one.
  QCoro::Task<> Connect();
  /// Sends the sampling in force, where there is a controller.
  QCoro::Task<> SendSampling();
  /// Opens the light as a background leaves it, for frames that were restored.
  QCoro::Task<> OpenLightPath();

  QCoro::Task<> MeasureBackground();
  QCoro::Task<> MeasureReference();
  /// Asks before a measured slot is measured over.
  QCoro::Task<> MeasureSample(int slot);
  /// Likewise without a question: for who measures one lens again and again.
  QCoro::Task<> MeasureSampleOver(int slot);
  /// Any of the three for who shows by itself how it ended: nothing is told, a measured slot
  /// (1..10, of a sample) is measured over, and the number is the sample's. Watching ends for it.
  QCoro::Task<MeasurementOutcome> Measure(MeasurementKind kind, int slot, QString sampleNumber);

  /// Takes single frames, and announces each, until it is ended, or one fails; then its status.
  QCoro::Task<Status> WatchLight();
  /// Ends it; what else runs goes on.
  void StopWatching();

  /// Empties all slots after a question.
  QCoro::Task<> ClearAll();

  /// Ends at once what is being done.
  void Cancel();
  /// Likewise, and is done when all is at rest; nothing else is begun meanwhile.
  QCoro::Task<> Finish();
  /// Done when nothing is being done.
  QCoro::Task<> UntilIdle();
  /// Ends all that waits for the instrument before it returns; nobody is shown how.
  void EndAtOnce();
  /// Closes the link.
  void Close();

 signals:
  void ActivityChanged();
  void Began(vexa::MeasurementKind kind, int slot);
  void Ended(vexa::MeasurementKind kind, int slot);
  /// A frame while watching; saturated or not, its counts.
  void LightSeen(bool saturated, const vexa::RawSpectrum& counts);
  void WaitBegan(vexa::AwaitedStep step, int expectedMs, int limitMs);
  void WaitEnded();

 private:
  /// Stops watching, and is done when the instrument is at rest.
  QCoro::Task<> EndWatching();
  /// Nothing is being done, and nobody waits for the end of all.
  [[nodiscard]] bool MayBegin() const { return IsIdle() && finishing_ == 0; }
  void SetActivity(Activity activity);

  Session& session_;
  MessageService& messages_;
  MakeController makeController_;
  MeasurementSequence sequence_;
  Activity activity_ = Activity::kIdle;
  bool ready_ = false;
  int finishing_ = 0;  ///< who waits for the end of all
  Awakening idle_;
  Awakening watched_;
  bool watchEnds_ = false;
  std::unique_ptr<Controller> controller_;
};

}  // namespace vexa
