// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace vexa {

/// What the link reported last; other values are the port's own event numbers.
enum class LinkStatus : std::int16_t {
  kPortError = -1,
  kNone = 0,
  kBytesArriving = 2,
  kRequestEnd = 666,
  kDataEnd = 3429,
  kRequestError = 3822,
};

/// Raw bytes of one reply in arrival order. It holds 18001 bytes; the write index then starts
/// again at 0, so a longer reply is lost.
class ReceiveRing {
 public:
  static constexpr std::size_t kSize = 18001;
  static constexpr std::size_t kTerminatorBytes = 6;

  void Append(QByteArrayView bytes);
  void Reset();

  /// The link status after bytes were appended: bytes arriving while fewer than six are stored,
  /// else the terminator that the last six make, else `current`.
  [[nodiscard]] LinkStatus Evaluate(LinkStatus current) const;

  /// The bytes before the terminator; empty when fewer than six are stored.
  [[nodiscard]] std::span<const std::uint8_t> Body() const;

  [[nodiscard]] std::size_t StoredBytes() const { return write_; }

 private:
  std::array<std::uint8_t, kSize> bytes_{};
  std::size_t write_ = 0;
};

}  // namespace vexa
