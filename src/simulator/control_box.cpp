// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/control_box.h"

#include <algorithm>
#include <vector>

namespace vexa::simulator {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

constexpr int kBoxAddress = 1;
constexpr int kMostLines = 16;
constexpr int kMostMs = 32767;
constexpr int kRequestedService = 0x40;  // bit 6 of a status byte, IEEE 488.1

constexpr int kNoRequest = -1;
constexpr int kControllerError = 1;
constexpr int kFormatError = 3;
constexpr int kTimeOutError = 54;
constexpr int kDeviceError = 61;

SensorLine Average(const std::vector<SensorLine>& lines) {
  SensorLine average{};
  for (std::size_t pixel = 0; pixel < average.size(); ++pixel) {
    std::size_t sum = 0;
    for (const SensorLine& line : lines) {
      sum += line[pixel];
    }
    average[pixel] = static_cast<std::uint16_t>(sum / lines.size());
  }
  return average;
}

bool TakeNumber(QStringView text, int most, int& number) {
  bool isNumber = false;
  const int value = text.toInt(&isNumber);
  if (!isNumber || value < 1 || value > most) {
    return false;
  }
  number = value;
  return true;
}

bool TakeSwitch(QStringView text, QLatin1StringView on, QLatin1StringView off, bool& isOn) {
  isOn = text == on || (isOn && text != off);
  return text == on || text == off;
}

}  // namespace

ControlBox::ControlBox(const Options& options) : head_(options, [](Sample) {}) {}

CallResult ControlBox::SetDelimiter(QStringView direction, int delimiter) const {
  const bool valid = (direction == "t"_L1 || direction == "l"_L1) && delimiter >= 0;
  return {!isSetUp_ ? kControllerError : !valid ? kFormatError : 0};
}

CallResult ControlBox::SetTimeOut(int seconds) {
  timeOut_ = std::chrono::seconds(seconds);
  return {isSetUp_ ? 0 : kControllerError};
}

CallResult ControlBox::ClearInterface() const {
  return {isSetUp_ ? 0 : kControllerError};
}

CallResult ControlBox::EnableRemote() {
  remote_ = isSetUp_;
  return {isSetUp_ ? 0 : kControllerError};
}

CallResult ControlBox::Clear(int address) {
  if (const int refusal = Refusal(address); refusal != 0) {
    return {refusal};
  }
  PowerOn();
  requestIn_ = 0ms;
  return {};
}

CallResult ControlBox::Trigger(int address) {
  if (const int refusal = Refusal(address); refusal != 0) {
    return {refusal};
  }
  inLight_ = lampOn_ && !lightShutterClosed_;
  line_ = Average(head_.ReadLines({.integrationMs = static_cast<double>(integrationMs_),
                                   .lightShutterClosed = !inLight_,
                                   .eyepieceShutterOpen = eyepieceShutterOpen_},
                                  lines_));
  measured_ = true;
  sending_ = false;
  requestIn_ = std::chrono::milliseconds(integrationMs_ * lines_);
  if (!inLight_) {
    head_.UnderObjective().Reach(Milestone::DarkMeasured);
  }
  return {};
}

CallResult ControlBox::AwaitRequest(int seconds) {
  const std::chrono::seconds limit(seconds);
  if (!isSetUp_) {
    return {kControllerError};
  }
  if (!requestIn_ || *requestIn_ > limit) {
    if (requestIn_) {
      *requestIn_ -= limit;
    }
    return {kNoRequest, limit};
  }
  const std::chrono::milliseconds takes = *requestIn_;
  requestIn_ = 0ms;
  return {0, takes};
}

CallResult ControlBox::Poll(int address, int& statusByte) {
  if (const int refusal = Refusal(address); refusal != 0) {
    return {refusal};
  }
  const bool requested = requestIn_ == 0ms;
  statusByte = requested ? kRequestedService : 0;
  if (requested) {
    requestIn_.reset();
  }
  return {};
}

CallResult ControlBox::Write(int address, QStringView text) {
  if (const int refusal = Refusal(address); refusal != 0) {
    return {refusal};
  }
  sending_ = false;
  if (!Obey(text)) {
    return {kFormatError};
  }
  requestIn_ = 0ms;
  return {};
}

CallResult ControlBox::Transfer(int address, std::span<unsigned char> bytes, int& received) {
  received = 0;
  if (const int refusal = Refusal(address); refusal != 0) {
    return {refusal};
  }
  if (!sending_) {
    return {kTimeOutError, timeOut_};
  }
  const std::size_t sent = 2 * line_.size() - (cut_ ? 1 : 0);
  const std::size_t count = std::min(bytes.size(), sent);
  for (std::size_t i = 0; i < count; ++i) {
    const unsigned int counts = line_[i / 2];
    bytes[i] = static_cast<unsigned char>(i % 2 == 0 ? counts & 0xFF : counts >> 8);
  }
  received = static_cast<int>(count);
  if (inLight_ && !cut_) {
    head_.UnderObjective().Reach(Milestone::LightLinesSent);
  }
  sending_ = false;
  cut_ = false;
  return {};
}

int ControlBox::Refusal(int address) const {
  if (!isSetUp_) {
    return kControllerError;
  }
  return remote_ && address == kBoxAddress ? 0 : kDeviceError;
}

bool ControlBox::Obey(QStringView text) {
  const qsizetype blank = text.indexOf(u' ');
  const QStringView word = text.first(std::max<qsizetype>(blank, 0));
  const QStringView value = text.sliced(blank + 1);
  if (word == "INTGTM"_L1) {
    return TakeNumber(value, kMostMs, integrationMs_);
  }
  if (word == "INTGCT"_L1) {
    return TakeNumber(value, kMostLines, lines_);
  }
  if (word == "PHILL"_L1) {
    return TakeSwitch(value, "1,I"_L1, "0,I"_L1, lampOn_);
  }
  if (word == "LRKSHT"_L1) {
    return TakeSwitch(value, "1"_L1, "0"_L1, lightShutterClosed_);
  }
  if (word == "EPSHT"_L1) {
    return TakeSwitch(value, "0,I"_L1, "1,I"_L1, eyepieceShutterOpen_);
  }
  sending_ = text == "MEASDT 0"_L1 && measured_;
  return sending_;
}

void ControlBox::PowerOn() {
  integrationMs_ = 30;
  lines_ = 1;
  lampOn_ = false;
  lightShutterClosed_ = false;
  eyepieceShutterOpen_ = true;
  measured_ = false;
  sending_ = false;
}

}  // namespace vexa::simulator
