// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/journal_records.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QIODevice>
#include <QtEndian>
#include <optional>

namespace vexa {
namespace {

constexpr QByteArrayView kMark("VREC");
constexpr qsizetype kLengthBytes = 4;
constexpr qsizetype kChecksumBytes = 32;
constexpr qsizetype kHeadBytes = kMark.size() + kLengthBytes + kChecksumBytes;

QByteArray Checksum(QByteArrayView length, QByteArrayView content) {
  QCryptographicHash hash(QCryptographicHash::Sha256);
  hash.addData(length);
  hash.addData(content);
  return hash.result();
}

// The content of the record that begins there; nothing when there is no whole one.
std::optional<QByteArray> ContentAt(QByteArrayView bytes) {
  if (bytes.size() < kHeadBytes || !bytes.startsWith(kMark)) {
    return std::nullopt;
  }
  const QByteArrayView length = bytes.sliced(kMark.size(), kLengthBytes);
  const qsizetype size = qFromLittleEndian<quint32>(length.data());
  if (size > bytes.size() - kHeadBytes) {
    return std::nullopt;
  }
  const QByteArrayView content = bytes.sliced(kHeadBytes, size);
  if (Checksum(length, content) != bytes.sliced(kMark.size() + kLengthBytes, kChecksumBytes)) {
    return std::nullopt;
  }
  return content.toByteArray();
}

// False when an entry is none of a session.
bool TakeEntries(const QByteArray& content, SessionImage& image) {
  QDataStream in(content);
  in.setByteOrder(QDataStream::LittleEndian);
  while (!in.atEnd()) {
    quint8 place = 0;
    QByteArray bytes;
    in >> place >> bytes;
    if (in.status() != QDataStream::Ok || place >= image.size()) {
      return false;
    }
    image[place] = bytes;
  }
  return true;
}

}  // namespace

const SessionImage& EmptySession() {
  static const SessionImage image = TakeImage(VEXATYPE());
  return image;
}

QByteArray ChangeRecord(const SessionImage& before, const SessionImage& now) {
  QByteArray content;
  QDataStream out(&content, QIODevice::WriteOnly);
  out.setByteOrder(QDataStream::LittleEndian);
  for (std::size_t place = 0; place < now.size(); ++place) {
    if (now[place] != before[place]) {
      out << static_cast<quint8>(place) << now[place];
    }
  }
  return SealRecord(content);
}

QByteArray SealRecord(const QByteArray& content) {
  const quint32 size = qToLittleEndian(static_cast<quint32>(content.size()));
  const QByteArrayView length(reinterpret_cast<const char*>(&size), kLengthBytes);
  return kMark.toByteArray() + length.toByteArray() + Checksum(length, content) + content;
}

JournalContent ReadJournal(const QByteArray& bytes) {
  JournalContent journal;
  journal.image = EmptySession();
  journal.readable = bytes.startsWith(kJournalHeader) || kJournalHeader.startsWith(bytes);
  if (!bytes.startsWith(kJournalHeader)) {
    return journal;
  }
  journal.end = kJournalHeader.size();
  // Records follow one another; where one is damaged, the next mark with a whole one is looked for.
  for (qsizetype at = journal.end; at >= 0; at = bytes.indexOf(kMark, at)) {
    const std::optional<QByteArray> content = ContentAt(QByteArrayView(bytes).sliced(at));
    if (!content) {
      ++at;
      continue;
    }
    journal.damaged = journal.damaged || at != journal.end;
    journal.damaged = !TakeEntries(*content, journal.image) || journal.damaged;
    at += kHeadBytes + content->size();
    journal.end = at;
  }
  return journal;
}

}  // namespace vexa
