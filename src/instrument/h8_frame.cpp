// SPDX-License-Identifier: GPL-3.0-or-later
#include "instrument/h8_frame.h"

#include <algorithm>

namespace vexa {
namespace {

constexpr qsizetype kFrameBytes = 4;
constexpr int kTimerDivisors[] = {10000, 5000, 2500, 1250};
constexpr int kTimerPeriod = 2050;
constexpr int kLargestTimerCount = 65535;

QString Hex(int value, int digits) {
  return QStringLiteral("%1").arg(value, digits, 16, QLatin1Char('0')).toUpper();
}

}  // namespace

std::optional<QByteArray> BuildFrame(const QString& hexText) {
  if (hexText.size() < 2 || hexText.size() % 2 != 0) {
    return std::nullopt;
  }
  QByteArray frame = QByteArray::fromHex(hexText.toLatin1()).left(kFrameBytes);
  frame.append(kFrameBytes - frame.size(), '\0');
  return frame;
}

QString TimerCode(std::int16_t timeMs) {
  for (int code = 0; code < 4; ++code) {
    const int count = timeMs * kTimerDivisors[code] / kTimerPeriod - 1;
    if (count >= 1 && count <= kLargestTimerCount) {
      return Hex(count, 4) + Hex(code, 2);
    }
  }
  return QStringLiteral("-1");
}

QString PortBitsText(const PortBits& bits) {
  const int byte = (bits.lightShutterClosed ? 1 : 0) + (bits.lightShutterOpen ? 2 : 0) +
                   (bits.unused ? 4 : 0) + (bits.eyepieceShutterOpen ? 8 : 0);
  return QStringLiteral("A5") + Hex(byte, 2);
}

QString MeasureText(std::uint8_t lineCount, std::uint8_t secondCount) {
  return QStringLiteral("C30") + Hex(lineCount, 1) + Hex(secondCount, 2);
}

QString DataRequestText(std::uint8_t lineCount) {
  return QStringLiteral("B4000") + Hex(lineCount, 1);
}

}  // namespace vexa
