// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <chrono>
#include <functional>
#include <span>
#include <vector>

#include "simulator/detector.h"
#include "simulator/faults.h"
#include "simulator/reply.h"

namespace vexa::simulator {

/// The controller's side of the serial protocol: command bytes in, answers with their waits out.
/// It does no input or output and knows no clock.
///
/// A frame is 4 bytes, the first the command:
///   E1          initialise: everything as at power-on; unsent answers are dropped
///   96 cc cc pp sampling: integration of (count + 1) 2050 / divisor ms, count cccc from 1 on,
///               divisor 10000, 5000, 2500, 1250 for prescaler code pp 0..3
///   87 ss       high scan on (FF) or off (00); without effect here
///   A5 bb       port bits: bit 0 closes the light shutter, bit 3 opens the eyepiece shutter
///   C3 nn kk    measure nn (1..15) lines, integration time each; "END" when they are read
///   B4 00 nn    send the first nn measured lines: 4 header bytes ("DATA"), 1024 bytes a line
///               (pixel i low byte first at 2i), "DATEND"
///   69          quit: a running measurement ends without its "END" and without lines
/// Other commands are answered by "CHAR", a text and "REQEND"; a refused one by "CHAR", a reason
/// and "REQERR", and it changes nothing. At power-on: 30 ms, light shutter closed, eyepiece
/// shutter closed, nothing measured.
class ControllerProtocol {
 public:
  /// Reads `count` lines off the sensor.
  using LineSource = std::function<std::vector<SensorLine>(const Exposure& exposure, int count)>;

  ControllerProtocol(LineSource lineSource, FaultPlan faults, std::chrono::milliseconds lateBy);

  /// Takes received bytes; gives back one response a completed frame, in order. A rest of fewer
  /// than 4 bytes waits for more.
  [[nodiscard]] std::vector<Response> Receive(QByteArrayView bytes);

  /// Forgets the beginning of a frame that never went on.
  void ForgetPartialFrame() { partial_.clear(); }

  /// To be told when the bytes of a step with this milestone are out.
  void Reach(Milestone milestone);

  /// Gives back the number of the first exchange at which it may strike.
  int AddFault(Fault fault) {
    fault.exchange += fault.fromNow ? exchanges_ : 0;
    faults_.Add(fault);
    return fault.exchange;
  }

 private:
  using Frame = std::span<const unsigned char, 4>;

  [[nodiscard]] Response Exchange(Frame frame);
  [[nodiscard]] QByteArray Refusal(Frame frame) const;
  [[nodiscard]] Response Obey(Frame frame);
  [[nodiscard]] Response StartMeasurement(int lines);
  [[nodiscard]] Response SendLines(int lines) const;
  void Abandon();

  LineSource lineSource_;
  FaultPlan faults_;
  std::chrono::milliseconds lateBy_;
  QByteArray partial_;
  int exchanges_ = 0;
  Exposure exposure_;
  bool measuring_ = false;
  bool linesAreDark_ = true;
  std::vector<SensorLine> lines_;
};

}  // namespace vexa::simulator
