// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/owed_rows.h"

#include <sys/file.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QFileInfo>
#include <QThread>
#include <QtEndian>

#include "records/sync_path.h"

namespace vexa {
namespace {

// An entry: mark, length of document, length of numbers, SHA-256 of what follows, document,
// numbers.
const QByteArray kMark = QByteArrayLiteral("OWED");
constexpr qsizetype kLengthBytes = 4;
constexpr qsizetype kHashBytes = 32;
constexpr int kLockWaitMs = 1000;
const qsizetype kHeadBytes = kMark.size() + 2 * kLengthBytes + kHashBytes;

QByteArray LengthBytes(qsizetype length) {
  QByteArray bytes(kLengthBytes, Qt::Uninitialized);
  qToLittleEndian(static_cast<quint32>(length), bytes.data());
  return bytes;
}

QByteArray HashOf(QByteArrayView bytes) {
  QCryptographicHash hash(QCryptographicHash::Sha256);
  hash.addData(bytes);
  return hash.result();
}

QByteArray Entry(const Row& row) {
  const QByteArray content = row.document + row.numbers;
  return kMark + LengthBytes(row.document.size()) + LengthBytes(row.numbers.size()) +
         HashOf(content) + content;
}

struct Entries {
  QList<Row> rows;
  bool damaged = false;  ///< something in it is no entry
};

// The size of the whole entry at `start`, which it puts into `row`; 0 when there is none.
qsizetype TakeEntry(const QByteArray& bytes, qsizetype start, Row& row) {
  if (bytes.size() - start < kHeadBytes || !QByteArrayView(bytes).sliced(start).startsWith(kMark)) {
    return 0;
  }
  const char* lengths = bytes.constData() + start + kMark.size();
  const qsizetype document = qFromLittleEndian<quint32>(lengths);
  const qsizetype numbers = qFromLittleEndian<quint32>(lengths + kLengthBytes);
  const qsizetype content = start + kHeadBytes;
  if (bytes.size() - content < document + numbers ||
      HashOf(QByteArrayView(bytes).sliced(content, document + numbers)) !=
          QByteArrayView(bytes).sliced(content - kHashBytes, kHashBytes)) {
    return 0;
  }
  row.document = bytes.sliced(content, document);
  row.numbers = bytes.sliced(content + document, numbers);
  row.id = Document(row)[QStringLiteral("id")].toString();
  return kHeadBytes + document + numbers;
}

Entries ReadEntries(const QByteArray& bytes) {
  Entries entries;
  for (qsizetype start = 0; start < bytes.size();) {
    Row row;
    if (const qsizetype size = TakeEntry(bytes, start, row); size > 0) {
      entries.rows << row;
      start += size;
      continue;
    }
    entries.damaged = true;
    const qsizetype next = bytes.indexOf(kMark, start + 1);
    start = next < 0 ? bytes.size() : next;
  }
  return entries;
}

}  // namespace

bool OwedRows::Add(const QList<Row>& rows) const {
  QByteArray bytes;
  for (const Row& row : rows) {
    bytes += Entry(row);
  }
  QFile file(path_);
  if (!Hold(file)) {
    return false;
  }
  const qint64 end = file.size();
  if (file.seek(end) && file.write(bytes) == bytes.size() && ::fsync(file.handle()) == 0 &&
      (end > 0 || SyncPath(QFileInfo(path_).absolutePath()))) {
    return true;
  }
  (void)file.resize(end);
  return false;
}

bool OwedRows::IsEmpty() const {
  return QFileInfo(path_).size() == 0;
}

QList<Row> OwedRows::Read() const {
  QFile file(path_);
  return file.open(QIODevice::ReadOnly) ? ReadEntries(file.readAll()).rows : QList<Row>();
}

bool OwedRows::Pay(const std::function<bool(const QList<Row>& rows)>& pay) const {
  if (IsEmpty()) {
    return true;
  }
  QFile file(path_);
  if (!Hold(file)) {
    return false;
  }
  const Entries entries = ReadEntries(file.readAll());
  if (file.error() != QFile::NoError || !pay(entries.rows)) {
    return false;
  }
  if (entries.damaged) {
    const QString copy = path_ + QStringLiteral(".bad");
    QFile::remove(copy);
    if (!QFile::copy(path_, copy)) {
      return false;
    }
  }
  return file.resize(0) && ::fsync(file.handle()) == 0;
}

// Opens the file and waits for its lock. The file stays when it is empty, so that the lock always
// is one on the same file.
bool OwedRows::Hold(QFile& file) const {
  if (!file.open(QIODevice::ReadWrite | QIODevice::Unbuffered)) {
    return false;
  }
  const QDeadlineTimer deadline(kLockWaitMs);
  while (::flock(file.handle(), LOCK_EX | LOCK_NB) != 0) {
    if (deadline.hasExpired()) {
      return false;
    }
    QThread::msleep(5);
  }
  return true;
}

}  // namespace vexa
