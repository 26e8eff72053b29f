// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "instrument/controller.h"
#include "instrument/detector_line.h"
#include "instrument/h8_frame.h"
#include "instrument/serial_link.h"

namespace vexa {

/// The H8 microcontroller board on a serial port.
///
/// A command is a 4-byte frame, and has one reply. Status values are 0, a negative failure given
/// with each operation, kTimeOut when the controller did not answer, and kCancelled.
///
/// After the port was lost the next acquisition opens and initialises it again, with the sampling
/// that it is asked for and the light shutter's resting position as it was. A failed acquisition
/// puts the shutters back to rest when the link still answers.
class frmComH8Ctrl : public Controller {
  Q_OBJECT

 public:
  static constexpr Status kTimeOut = -15;
  static constexpr Status kNoSampling = -10;  ///< the sampling of the frame was not accepted

  /// `portPath` gives the device of a port number; `replyTimeoutMs` bounds every wait for a reply.
  explicit frmComH8Ctrl(std::function<QString(int)> portPath, int replyTimeoutMs = kReplyTimeoutMs,
                        QObject* parent = nullptr);

  ~frmComH8Ctrl() override;

  // In the order of the controller's services. "Send failed" is a closed port or a frame that
  // cannot be built.

  /// Measures the set number of lines. -1 send failed; -15, or -3 when the measurement could not
  /// be quit after it; -4 any other reply.
  [[nodiscard]] QCoro::Task<Status> H8_MeasStart();
  /// -1 send failed; -15; -3 any other reply than the confirmation.
  [[nodiscard]] QCoro::Task<Status> H8_Quit();
  /// Fetches the measured lines. -1 on any failure, a time-out or a partial line included.
  [[nodiscard]] QCoro::Task<Status> H8_DataReq();
  /// -1 send failed; -15.
  [[nodiscard]] QCoro::Task<Status> H8_HiScan(bool on);
  /// Integration time in ms and lines a frame. -1 time not representable; -2 send failed; -15.
  [[nodiscard]] QCoro::Task<Status> SampleInit(std::int16_t timeMs, std::int16_t averagingCount);
  /// The lamp is not switched on this path: always 0.
  [[nodiscard]] Status PHILL(bool on);
  /// Closed blocks the measuring light. -1 send failed; -15.
  [[nodiscard]] QCoro::Task<Status> LghtSht(bool closed);
  /// Closed blocks the eyepiece. -1 send failed; -15.
  [[nodiscard]] QCoro::Task<Status> EyeSht(bool closed);
  /// Has no effect and an empty result.
  QString ComReset();
  /// Opens the port and brings the controller to rest; InitialisationText is then its answer. -1
  /// port not opened; -2 send failed; -15; -4 sampling, -5 high scan, -6 light, -7 eyepiece shutter
  /// failed.
  [[nodiscard]] QCoro::Task<Status> H8Init(std::int16_t port);
  /// Empty when the controller did not answer.
  [[nodiscard]] QString InitialisationText() const { return initialisationText_; }
  /// A whole acquisition. 0, 1 saturated, -15, or the step that failed: -1 closing the light, -2
  /// closing the eyepiece, -3 measuring, -4 fetching, -5 opening the eyepiece, -6 the light;
  /// kNoSampling, kNotMappable.
  [[nodiscard]] QCoro::Task<Acquisition> H8GetData(LightFlag light, LinePositions positions,
                                                   int startNm, int settlingTimeMs);
  /// Maps the lines received last; 0, 1 saturated, kNotMappable (`spectrum` is then left alone).
  [[nodiscard]] Status LinesToWaves(RawSpectrum& spectrum, const LinePositions& positions,
                                    int startNm) const;

  [[nodiscard]] QCoro::Task<Status> Initialise(std::int16_t port) override;
  [[nodiscard]] QCoro::Task<Status> SetSampling(Sampling sampling) override;
  [[nodiscard]] QCoro::Task<Acquisition> Acquire(LightFlag light,
                                                 AcquisitionSettings settings) override;
  [[nodiscard]] QCoro::Task<Status> OpenLightPath() override;
  void Cancel() override;
  void Close() override;
  void EndAtOnce() override;
  [[nodiscard]] QString FailureDetails() const override;
  [[nodiscard]] bool IsLightPathClosed() const override;

 private:
  using Reply = SerialLink::Reply;

  [[nodiscard]] bool SendFrame(const QString& hexText);
  [[nodiscard]] QCoro::Task<Reply> Receive(SerialLink::Kind kind, AwaitedStep step,
                                           int expectedMs = 0);
  [[nodiscard]] QCoro::Task<Status> ReceiveAny(AwaitedStep step);
  [[nodiscard]] QCoro::Task<Status> SendSampling(Sampling sampling);
  [[nodiscard]] QCoro::Task<Status> SwitchShutter(PortBits bits, AwaitedStep step);
  [[nodiscard]] QCoro::Task<> Settle(int ms);
  [[nodiscard]] QCoro::Task<Status> AcquisitionSteps(LightFlag light, int settlingTimeMs);
  [[nodiscard]] QCoro::Task<Status> TakeLines(int settlingTimeMs);
  [[nodiscard]] QCoro::Task<> RestShutters(LightFlag light);
  [[nodiscard]] QCoro::Task<Status> Reconnect();
  [[nodiscard]] QCoro::Task<Status> PrepareLink();

  std::function<QString(int)> portPath_;
  SerialLink link_;
  bool linkAnswered_ = false;
  LineBuffers lines_;
  PortBits portBits_;
  bool lightOpenAtRest_ = false;
  std::int16_t port_ = 0;
  std::uint8_t secondCount_ = 1;
  Sampling wanted_;                 ///< what frames are to be taken with
  Sampling sampling_{.timeMs = 0};  ///< what the controller has confirmed last
  QString initialisationText_;
  bool busy_ = false;
};

}  // namespace vexa
