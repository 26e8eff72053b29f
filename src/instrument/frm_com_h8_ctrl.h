// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QEventLoop>
#include <QSerialPort>
#include <QTimer>
#include <functional>

#include "instrument/controller.h"
#include "instrument/detector_line.h"
#include "instrument/h8_frame.h"
#include "instrument/receive_ring.h"

namespace vexa {

/// The H8 microcontroller board on a serial port (57600 bit/s, 8N1, no flow control).
///
/// A command is a 4-byte frame, a reply a stream of bytes that ends in "REQEND", "REQERR" or
/// "DATEND". At most one reply is awaited at any moment, in the event loop. Status values are 0,
/// a negative failure given with each operation, and kTimeOut when the controller did not answer.
///
/// A port that disappears is closed at once; the next acquisition opens and initialises it again,
/// with the sampling settings and the light shutter's resting position as they were. A failed
/// acquisition puts the shutters back to rest when the link still answers.
class frmComH8Ctrl : public Controller {
  Q_OBJECT

 public:
  static constexpr Status kTimeOut = -15;

  /// `portPath` gives the device of a port number; `replyTimeoutMs` bounds every wait for a reply.
  explicit frmComH8Ctrl(std::function<QString(int)> portPath, int replyTimeoutMs = kReplyTimeoutMs,
                        QObject* parent = nullptr);
  ~frmComH8Ctrl() override;

  // In the order of the controller's services. "Send failed" is a closed port or a frame that
  // cannot be built.

  /// Measures the set number of lines. -1 send failed; -15, or -3 when the measurement could not
  /// be quit after it; -4 any other reply.
  [[nodiscard]] Status H8_MeasStart();
  /// -1 send failed; -15; -3 any other reply than the confirmation.
  [[nodiscard]] Status H8_Quit();
  /// Fetches the measured lines. -1 on any failure, a time-out or a partial line included.
  [[nodiscard]] Status H8_DataReq();
  /// -1 send failed; -15.
  [[nodiscard]] Status H8_HiScan(bool on);
  /// Integration time in ms and lines a frame. -1 time not representable; -2 send failed; -15.
  [[nodiscard]] Status SampleInit(std::int16_t timeMs, std::int16_t averagingCount);
  /// The lamp is not switched on this path: always 0.
  [[nodiscard]] Status PHILL(bool on);
  /// Closed blocks the measuring light. -1 send failed; -15.
  [[nodiscard]] Status LghtSht(bool closed);
  /// Closed blocks the eyepiece. -1 send failed; -15.
  [[nodiscard]] Status EyeSht(bool closed);
  /// Has no effect and an empty result.
  QString ComReset();
  /// Opens the port and brings the controller to rest; `replyText` is its answer. -1 port not
  /// opened; -2 send failed; -15; -4 sampling, -5 high scan, -6 light, -7 eyepiece shutter failed.
  [[nodiscard]] Status H8Init(std::int16_t port, QString& replyText);
  /// A whole acquisition. 0, 1 saturated, -15, or the step that failed: -1 closing the light, -2
  /// closing the eyepiece, -3 measuring, -4 fetching, -5 opening the eyepiece, -6 the light; kBusy,
  /// kNotMappable. `spectrum` is written only with 0 or 1.
  [[nodiscard]] Status H8GetData(LightFlag light, RawSpectrum& spectrum,
                                 const LinePositions& positions, int startNm, int settlingTimeMs);
  /// Maps the lines received last; 0, 1 saturated, kNotMappable (`spectrum` is then left alone).
  [[nodiscard]] Status LinesToWaves(RawSpectrum& spectrum, const LinePositions& positions,
                                    int startNm) const;

  [[nodiscard]] Status Initialise(std::int16_t port) override;
  [[nodiscard]] Status SetSampling(std::int16_t timeMs, std::int16_t averagingCount) override;
  [[nodiscard]] Status Acquire(LightFlag light, const AcquisitionSettings& settings,
                               RawSpectrum& spectrum) override;
  [[nodiscard]] Status OpenLightPath() override;
  void Close() override;
  [[nodiscard]] QString FailureDetails() const override;
  [[nodiscard]] bool IsLightPathClosed() const override;

 private:
  enum class ReplyMode { kCommand = 0, kLines = 2 };

  Status OpenPort();
  void ClosePort();
  Status SendFrame(const QString& hexText);
  QString ReceiveReply(ReplyMode mode, AwaitedStep step, int expectedMs = 0);
  bool TakeReply(ReplyMode mode, QString& reply);
  Status SwitchShutter(const PortBits& bits, AwaitedStep step);
  void ForgetReply();
  bool SleepUntilWoken();
  void Settle(int ms);
  Status AcquisitionSteps(LightFlag light, int settlingTimeMs);
  void RestShutters(LightFlag light);
  Status Reconnect();
  void OnBytesReceived();
  void OnPortError();
  void OnTimeOut();
  void Wake();

  std::function<QString(int)> portPath_;
  int replyTimeoutMs_;
  QSerialPort H8Comm_;
  QTimer TTmout_;
  ReceiveRing ring_;
  LinkStatus linkStatus_ = LinkStatus::kNone;
  bool timedOut_ = false;
  bool linkAnswered_ = false;
  QEventLoop* waiting_ = nullptr;
  LineBuffers lines_;
  PortBits portBits_;
  bool lightOpenAtRest_ = false;
  std::int16_t port_ = 0;
  std::uint8_t averagingCount_ = 1;
  std::uint8_t secondCount_ = 1;
  std::int16_t samplingTimeMs_ = 0;
  bool busy_ = false;
};

}  // namespace vexa
