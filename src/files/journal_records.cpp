// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/journal_records.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QIODevice>
#include <QtEndian>
#include <optional>

#include "base/file_kind.h"

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

// Between two marks anything may stand, marks included: so much may be summed for nothing, in the
// length of the journal, before the rest is given up as damaged.
constexpr qsizetype kMostSummedInVain = 4;

// The length of the content of the record that begins there; nothing when it has no whole head.
std::optional<qsizetype> LengthAt(QByteArrayView bytes) {
  if (bytes.size() < kHeadBytes || !bytes.startsWith(kMark)) {
    return std::nullopt;
  }
  return qFromLittleEndian<quint32>(bytes.data() + kMark.size());
}

bool IsIntact(QByteArrayView record) {
  return Checksum(record.sliced(kMark.size(), kLengthBytes), record.sliced(kHeadBytes)) ==
         record.sliced(kMark.size() + kLengthBytes, kChecksumBytes);
}

// What an interrupted write leaves: the beginning of a record.
bool IsCutShort(QByteArrayView bytes) {
  const std::optional<qsizetype> length = LengthAt(bytes);
  return length ? *length > bytes.size() - kHeadBytes
                : bytes.size() < kHeadBytes && (bytes.startsWith(kMark) || kMark.startsWith(bytes));
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

const QByteArray& JournalHeader() {
  static const QByteArray header = file_kind::kJournal.header.toLatin1();
  return header;
}

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
  const QByteArray& header = JournalHeader();
  JournalContent journal;
  journal.image = EmptySession();
  journal.readable = bytes.startsWith(header) || header.startsWith(bytes);
  if (!bytes.startsWith(header)) {
    return journal;
  }
  journal.end = header.size();
  qsizetype summedInVain = 0;
  // Records follow one another; where one is damaged, the next mark with a whole one is looked for.
  for (qsizetype at = journal.end; at >= 0; at = bytes.indexOf(kMark, at)) {
    const QByteArrayView rest = QByteArrayView(bytes).sliced(at);
    const std::optional<qsizetype> length = LengthAt(rest);
    if (!length || *length > rest.size() - kHeadBytes) {
      ++at;
      continue;
    }
    const QByteArrayView record = rest.first(kHeadBytes + *length);
    if (!IsIntact(record)) {
      summedInVain += record.size();
      if (summedInVain > kMostSummedInVain * bytes.size()) {
        break;
      }
      ++at;
      continue;
    }
    journal.damaged = journal.damaged || at != journal.end;
    journal.damaged =
        !TakeEntries(record.sliced(kHeadBytes).toByteArray(), journal.image) || journal.damaged;
    at += record.size();
    journal.end = at;
  }
  const QByteArrayView rest = QByteArrayView(bytes).sliced(journal.end);
  journal.damaged = journal.damaged || !(rest.isEmpty() || IsCutShort(rest));
  return journal;
}

}  // namespace vexa
