// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a journal, as the content of a record whose checksum is right, and as the entries of
// a session; whatever comes out is evaluated.
#include <cstdint>

#include "files/journal_records.h"
#include "measurement/evaluation.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  vexa::SessionImage entries = vexa::EmptySession();
  entries.fill(bytes);
  const QByteArray sealed = vexa::JournalHeader() + vexa::SealRecord(bytes);
  for (const vexa::SessionImage& image :
       {vexa::ReadJournal(bytes).image, vexa::ReadJournal(sealed).image, entries}) {
    vexa::VEXATYPE state;
    (void)vexa::PutImage(image, state);
    vexa::EvaluateAgain(state);
    (void)vexa::TakeImage(state);
  }
  return 0;
}
