// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <cstdint>

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

/// What an acquisition takes from the program's settings.
struct AcquisitionSettings {
  LinePositions linePositions = kDefaultLinePositions;
  std::int16_t settlingTimeMs = 380;
};

/// The instrument's controller, whichever way it is connected. All operations wait in the event
/// loop and return a status: 0, or 1 for a saturated frame, or a negative failure. The caller shows
/// the message of its own operation.
class Controller : public QObject {
  Q_OBJECT

 public:
  static constexpr Status kBusy = -7;  ///< Acquire was called while one runs
  static constexpr int kReplyTimeoutMs = 40000;

  using QObject::QObject;

  /// Opens the link and brings the controller into its resting state.
  [[nodiscard]] virtual Status Initialise(std::int16_t port) = 0;

  /// Sets the integration time of a line (milliseconds) and the number of lines of a frame.
  [[nodiscard]] virtual Status SetSampling(std::int16_t timeMs, std::int16_t averagingCount) = 0;

  /// Takes a frame; `spectrum` is written only with status 0 or 1.
  [[nodiscard]] virtual Status Acquire(LightFlag light, const AcquisitionSettings& settings,
                                       RawSpectrum& spectrum) = 0;

  /// Opens the measuring light at rest, as a background measurement leaves it. 0, or the failure of
  /// a controller that keeps it closed.
  [[nodiscard]] virtual Status OpenLightPath() { return 0; }

  /// Ends every wait and closes the link. Safe at any time.
  virtual void Close() = 0;

  /// Why the controller could not be reached last, in a few sentences for the user; empty while the
  /// link is well or when nothing is known.
  [[nodiscard]] virtual QString FailureDetails() const { return {}; }

  /// True while the light shutter is known to block the measuring light at rest.
  [[nodiscard]] virtual bool IsLightPathClosed() const = 0;

 signals:
  /// A wait began: what is awaited, how long it should take, and after how long it is given up
  /// (milliseconds).
  void WaitBegan(vexa::AwaitedStep step, int expectedMs, int limitMs);
  void WaitEnded();
};

}  // namespace vexa
