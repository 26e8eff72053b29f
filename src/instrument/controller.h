// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoroTask>
#include <QObject>
#include <cstdint>
#include <optional>

#include "base/message.h"
#include "base/spectrum.h"
#include "base/status.h"
#include "instrument/wavelength_mapping.h"

namespace vexa {

/// Whether the light path is open while a frame is taken.
enum class LightFlag : std::int16_t {
  kBackground = 0,  ///< the light shutter is closed for the frame and opened again after it
  kSample = 1,      ///< the light shutter is left alone
};

/// What a controller is being waited for.
enum class AwaitedStep {
  kController,
  kLightShutter,
  kEyepieceShutter,
  kLamp,
  kSettling,
  kMeasurement,
  kData,
};

/// How a frame is sampled.
struct Sampling {
  std::int16_t timeMs = 30;         ///< integration time of a line, 30..20000
  std::int16_t averagingCount = 1;  ///< lines of a frame, 1..16

  bool operator==(const Sampling&) const = default;
};

/// What an acquisition takes from the program's settings.
struct AcquisitionSettings {
  LinePositions linePositions = kDefaultLinePositions;
  std::int16_t settlingTimeMs = 380;
  Sampling sampling;  ///< sent before the frame where the controller has it not already
};

/// The outcome of an acquisition: 0, or 1 for a saturated frame, both with the counts, or a
/// negative failure without.
struct Acquisition {
  Status status = -1;
  RawSpectrum counts;
  int linesTaken = 0;  ///< that the counts are the mean of, where the controller sends each one
};

/// The instrument's controller, whichever way it is connected. An operation is a coroutine that
/// sleeps in the event loop; one runs at a time, and another ends with kBusy at once. Its status is
/// 0 or a negative failure. What an operation was given must live until it ends.
class Controller : public QObject {
  Q_OBJECT

 public:
  static constexpr Status kBusy = -7;       ///< called while an operation runs
  static constexpr Status kCancelled = -9;  ///< ended by Cancel
  static constexpr int kReplyTimeoutMs = 40000;
  /// So long a cancelled acquisition may take to quit and to put the shutters back to rest.
  static constexpr int kPartingMs = 1000;

  using QObject::QObject;

  /// Opens the link and brings the controller into its resting state.
  [[nodiscard]] virtual QCoro::Task<Status> Initialise(std::int16_t port) = 0;

  [[nodiscard]] virtual QCoro::Task<Status> SetSampling(Sampling sampling) = 0;

  /// Takes a frame. A link that was lost is opened and initialised again first.
  [[nodiscard]] virtual QCoro::Task<Acquisition> Acquire(LightFlag light,
                                                         AcquisitionSettings settings) = 0;

  /// Opens the measuring light at rest, as a background measurement leaves it. 0, or the failure of
  /// a controller that keeps it closed.
  [[nodiscard]] virtual QCoro::Task<Status> OpenLightPath() { co_return kSuccess; }

  /// Ends the operation that runs with kCancelled, at once but for setting the instrument to rest.
  virtual void Cancel() = 0;

  /// Ends every wait and closes the link. Safe at any time.
  virtual void Close() = 0;

  /// Likewise, with all that waited for it ended when this returns: for an owner that goes.
  virtual void EndAtOnce() { Close(); }

  /// Why the controller could not be reached last, in a few sentences for the user; empty while the
  /// link is well or when nothing is known.
  [[nodiscard]] virtual QString FailureDetails() const { return {}; }

  /// The controller's own message about its last failure, if it has one.
  [[nodiscard]] virtual std::optional<MessageCall> FailureMessage() const { return std::nullopt; }

  /// True while the light shutter is known to block the measuring light at rest.
  [[nodiscard]] virtual bool IsLightPathClosed() const = 0;

 signals:
  /// A wait began: what is awaited, how long it should take, and after how long it is given up
  /// (milliseconds).
  void WaitBegan(vexa::AwaitedStep step, int expectedMs, int limitMs);
  void WaitEnded();
};

}  // namespace vexa
