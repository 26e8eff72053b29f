// SPDX-License-Identifier: GPL-3.0-or-later
#include "instrument/receive_ring.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace vexa {
namespace {

constexpr std::pair<std::string_view, LinkStatus> kTerminators[] = {
    {"REQERR", LinkStatus::kRequestError},
    {"REQEND", LinkStatus::kRequestEnd},
    {"DATEND", LinkStatus::kDataEnd},
};

}  // namespace

void ReceiveRing::Append(QByteArrayView bytes) {
  for (const char byte : bytes) {
    bytes_[write_] = static_cast<std::uint8_t>(byte);
    write_ = (write_ + 1) % kSize;
  }
}

void ReceiveRing::Reset() {
  write_ = 0;
}

LinkStatus ReceiveRing::Evaluate(LinkStatus current) const {
  if (write_ < kTerminatorBytes) {
    return LinkStatus::kBytesArriving;
  }
  const auto last = std::span(bytes_).subspan(write_ - kTerminatorBytes, kTerminatorBytes);
  for (const auto& [terminator, status] : kTerminators) {
    if (std::equal(last.begin(), last.end(), terminator.begin())) {
      return status;
    }
  }
  return current;
}

std::span<const std::uint8_t> ReceiveRing::Body() const {
  return std::span(bytes_).first(write_ < kTerminatorBytes ? 0 : write_ - kTerminatorBytes);
}

}  // namespace vexa
