// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <cstdint>
#include <optional>

namespace vexa {

/// State of the controller's output bits.
struct PortBits {
  bool lightShutterClosed = false;   ///< bit 0
  bool lightShutterOpen = false;     ///< bit 1, always the inverse of bit 0 once it was set
  bool unused = false;               ///< bit 2
  bool eyepieceShutterOpen = false;  ///< bit 3
};

/// The 4-byte frame of a command given as pairs of hexadecimal digits; bytes beyond the text are 0,
/// text beyond the frame is dropped. Nothing for a text of odd length or shorter than one pair.
[[nodiscard]] std::optional<QByteArray> BuildFrame(const QString& hexText);

/// Count and prescaler code of an integration time in milliseconds, as the six hexadecimal digits
/// of a sampling command: 30 ms is "009100". "-1" when no prescaler can represent the time.
[[nodiscard]] QString TimerCode(std::int16_t timeMs);

/// Command text that switches the output bits: "A5" and the bits as a byte.
[[nodiscard]] QString PortBitsText(const PortBits& bits);

/// Command text that measures `lineCount` lines. From 16 lines on its length is odd, so that no
/// frame can be built of it: the serial path serves 1 to 15 lines.
[[nodiscard]] QString MeasureText(std::uint8_t lineCount, std::uint8_t secondCount);

/// Command text that asks for the measured lines.
[[nodiscard]] QString DataRequestText(std::uint8_t lineCount);

}  // namespace vexa
