// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/controller_protocol.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vexa::simulator {
namespace {

constexpr qsizetype kFrameLength = 4;
constexpr int kMostLines = 15;
constexpr std::array<int, 4> kPrescalerDivisors = {10000, 5000, 2500, 1250};

constexpr unsigned char kInitialise = 0xE1;
constexpr unsigned char kSampling = 0x96;
constexpr unsigned char kHighScan = 0x87;
constexpr unsigned char kPortBits = 0xA5;
constexpr unsigned char kMeasure = 0xC3;
constexpr unsigned char kSendLines = 0xB4;
constexpr unsigned char kQuit = 0x69;

Response TextReply(const QByteArray& text) {
  return {.steps = {{.bytes = "CHAR" + text + "REQEND"}}};
}

Response ErrorReply(const QByteArray& reason) {
  return {.steps = {{.bytes = "CHAR" + reason + "REQERR"}}};
}

int TimerCount(std::span<const unsigned char, 4> frame) {
  return frame[1] * 256 + frame[2];
}

double IntegrationMs(int count, int prescaler) {
  const int divisor = kPrescalerDivisors[static_cast<std::size_t>(prescaler)];
  return std::round((count + 1) * 2050.0 / divisor);
}

}  // namespace

ControllerProtocol::ControllerProtocol(LineSource lineSource, FaultPlan faults,
                                       std::chrono::milliseconds lateBy)
    : lineSource_(std::move(lineSource)), faults_(std::move(faults)), lateBy_(lateBy) {}

std::vector<Response> ControllerProtocol::Receive(QByteArrayView bytes) {
  partial_.append(bytes);
  std::vector<Response> responses;
  while (partial_.size() >= kFrameLength) {
    std::array<unsigned char, 4> frame{};
    std::copy_n(partial_.begin(), kFrameLength, frame.begin());
    partial_.remove(0, kFrameLength);
    responses.push_back(Exchange(frame));
  }
  return responses;
}

void ControllerProtocol::Reach(Milestone milestone) {
  if (milestone == Milestone::DarkMeasured || milestone == Milestone::LightMeasured) {
    measuring_ = false;
  }
}

Response ControllerProtocol::Exchange(Frame frame) {
  ++exchanges_;
  const QByteArray refusal = Refusal(frame);
  const auto struck = faults_.Strike(exchanges_, frame[0] == kSendLines && refusal.isEmpty());
  const bool refusedByFault = std::ranges::count(struck, FaultKind::ErrorReply) > 0;

  Response response = refusedByFault       ? ErrorReply("REFUSED")
                      : !refusal.isEmpty() ? ErrorReply(refusal)
                                           : Obey(frame);
  for (const FaultKind fault : struck) {
    response = ApplyFault(fault, std::move(response), lateBy_);
  }
  if (response.unplugs) {
    Abandon();
  }
  return response;
}

QByteArray ControllerProtocol::Refusal(Frame frame) const {
  switch (frame[0]) {
    case kInitialise:
    case kPortBits:
    case kQuit:
      return {};
    case kSampling:
      return TimerCount(frame) > 0 && frame[3] < kPrescalerDivisors.size() ? "" : "BAD TIME";
    case kHighScan:
      return frame[1] == 0x00 || frame[1] == 0xFF ? "" : "BAD SWITCH";
    case kMeasure:
      return frame[1] >= 1 && frame[1] <= kMostLines ? "" : "BAD COUNT";
    case kSendLines:
      return frame[2] >= 1 && frame[2] <= lines_.size() ? "" : "NO LINES";
    default:
      return "BAD COMMAND";
  }
}

Response ControllerProtocol::Obey(Frame frame) {
  switch (frame[0]) {
    case kInitialise: {
      Abandon();
      exposure_ = {};
      Response response = TextReply("VEXA-KT H8 1.00");
      response.dropsPending = true;
      return response;
    }
    case kSampling:
      exposure_.integrationMs = IntegrationMs(TimerCount(frame), frame[3]);
      return TextReply("OK");
    case kPortBits:
      exposure_.lightShutterClosed = (frame[1] & 0x01) != 0;
      exposure_.eyepieceShutterOpen = (frame[1] & 0x08) != 0;
      return TextReply("OK");
    case kMeasure:
      return StartMeasurement(frame[1]);
    case kSendLines:
      return SendLines(frame[2]);
    case kQuit: {
      Response response = TextReply("QUIT");
      if (measuring_) {
        Abandon();
        response.dropsPending = true;
      }
      return response;
    }
    default:
      return TextReply("OK");
  }
}

Response ControllerProtocol::StartMeasurement(int lines) {
  lines_ = lineSource_(exposure_, lines);
  linesAreDark_ = exposure_.lightShutterClosed;
  measuring_ = true;
  Response response = TextReply("END");
  response.steps.front().exposure =
      std::chrono::milliseconds(std::lround(exposure_.integrationMs * lines));
  response.steps.front().milestone =
      linesAreDark_ ? Milestone::DarkMeasured : Milestone::LightMeasured;
  return response;
}

Response ControllerProtocol::SendLines(int lines) const {
  QByteArray bytes = "DATA";
  for (const SensorLine& line : std::span(lines_).first(static_cast<std::size_t>(lines))) {
    for (const std::uint16_t counts : line) {
      bytes.append(static_cast<char>(counts & 0xFF));
      bytes.append(static_cast<char>(counts >> 8));
    }
  }
  bytes.append("DATEND");
  return {.steps = {{.bytes = bytes,
                     .milestone = linesAreDark_ ? Milestone::None : Milestone::LightLinesSent}}};
}

void ControllerProtocol::Abandon() {
  measuring_ = false;
  lines_.clear();
}

}  // namespace vexa::simulator
