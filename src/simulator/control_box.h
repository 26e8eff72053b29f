// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>
#include <chrono>
#include <optional>
#include <span>

#include "simulator/optical_head.h"

namespace vexa::simulator {

/// What a call returns, and how long it takes in a paced run.
struct CallResult {
  int number = 0;
  std::chrono::milliseconds takes{0};
};

/// The control box at its address on the GP-IB, and the bus up to it: what the calls of the
/// interface library do. It knows no clock.
///
/// The box obeys these texts and requests service after each, after a device clear, and after a
/// trigger once its exposure is over; the request stands until the box is polled:
///   INTGTM ms   integration time of a line, 1..32767
///   INTGCT n    lines averaged (truncated) for a measurement, 1..16
///   PHILL 1,I   lamp on, PHILL 0,I off
///   LRKSHT 1    light shutter closed, LRKSHT 0 open
///   EPSHT 1,I   eyepiece shutter closed, EPSHT 0,I open
///   MEASDT 0    the next transfer sends the measured line, 1024 bytes, pixel i low byte at 2i
/// Any other text, and a MEASDT 0 before a trigger, is a format error (3); a call before the
/// interface is set up a controller error (1); a device that does not listen, which is the box
/// before remote enable and any other address, a device error (61). At power-on and after a device
/// clear: 30 ms, one line, lamp off, shutters open, nothing measured.
class ControlBox {
 public:
  explicit ControlBox(const Options& options);

  void SetUpInterface() { isSetUp_ = true; }
  [[nodiscard]] CallResult SetDelimiter(QStringView direction, int delimiter) const;
  [[nodiscard]] CallResult SetTimeOut(int seconds);
  [[nodiscard]] CallResult ClearInterface() const;
  [[nodiscard]] CallResult EnableRemote();
  [[nodiscard]] CallResult Clear(int address);
  [[nodiscard]] CallResult Trigger(int address);
  [[nodiscard]] CallResult AwaitRequest(int seconds);
  [[nodiscard]] CallResult Poll(int address, int& statusByte);
  [[nodiscard]] CallResult Write(int address, QStringView text);
  /// Fills `bytes` as far as the line goes and tells how many it was.
  [[nodiscard]] CallResult Transfer(int address, std::span<unsigned char> bytes, int& received);

  /// The request that stands, or is to come, is lost.
  void LoseRequest() { requestIn_.reset(); }
  /// The measured line lacks its last byte.
  void CutTransfer() { cut_ = true; }

 private:
  [[nodiscard]] int Refusal(int address) const;
  [[nodiscard]] bool Obey(QStringView text);
  void PowerOn();

  OpticalHead head_;
  bool isSetUp_ = false;
  bool remote_ = false;
  std::chrono::seconds timeOut_{10};
  std::optional<std::chrono::milliseconds> requestIn_;
  int integrationMs_ = 30;
  int lines_ = 1;
  bool lampOn_ = false;
  bool lightShutterClosed_ = false;
  bool eyepieceShutterOpen_ = true;
  bool measured_ = false;
  bool inLight_ = false;
  bool sending_ = false;
  bool cut_ = false;
  SensorLine line_{};
};

}  // namespace vexa::simulator
