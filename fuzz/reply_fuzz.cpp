// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes from the controller: ring, terminators, reply texts, lines, wavelengths.
#include <cstdint>
#include <span>

#include "instrument/h8_reply.h"
#include "instrument/receive_ring.h"
#include "instrument/wavelength_mapping.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  vexa::ReceiveRing ring;
  const std::span bytes(data, size);
  for (std::size_t at = 0; at < size; at += 1000) {
    const auto part = bytes.subspan(at, std::min<std::size_t>(1000, size - at));
    ring.Append(QByteArrayView(part.data(), static_cast<qsizetype>(part.size())));
    (void)ring.Evaluate(vexa::LinkStatus::kNone);
  }
  (void)vexa::ReplyText(ring.Body());
  vexa::LineBuffers lines;
  (void)vexa::FillLines(ring.Body(), lines);
  (void)vexa::LinesToWaves(lines, vexa::kDefaultLinePositions, vexa::kDetectorStartNm);
  return 0;
}
