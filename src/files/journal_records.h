// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include "files/session_image.h"

namespace vexa {

/// The first line of a journal. Any other first line is another version, or no journal.
[[nodiscard]] const QByteArray& JournalHeader();

/// The image of a session in which nothing was measured.
[[nodiscard]] const SessionImage& EmptySession();

/// One record with every entry in which `now` differs from `before`. Its entries hold all together
/// or, when it is damaged, not at all.
[[nodiscard]] QByteArray ChangeRecord(const SessionImage& before, const SessionImage& now);

/// The record of any content: mark, length, checksum, content.
[[nodiscard]] QByteArray SealRecord(const QByteArray& content);

/// What the bytes of a journal say.
struct JournalContent {
  bool readable = false;  ///< false for another version, or what is no journal; nothing is read
  bool damaged = false;   ///< something cannot be read that is more than a last record cut short
  SessionImage image;     ///< the latest of every entry
  qsizetype end = 0;      ///< of the last whole record; a torn one behind it is to be overwritten
};

/// Reads any bytes, in a time that grows with their number alone. A journal that is cut short
/// within its first line is an empty one.
[[nodiscard]] JournalContent ReadJournal(const QByteArray& bytes);

}  // namespace vexa
