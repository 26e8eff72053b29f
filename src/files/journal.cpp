// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/journal.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFileInfo>

namespace vexa {
namespace {

constexpr int kMostJournals = 99;  ///< of one directory

// A name beside the path that is free: NAME.bad, NAME.bad2, ...
QString FreeName(const QString& path) {
  QString name = path + QStringLiteral(".bad");
  for (int number = 2; QFile::exists(name); ++number) {
    name = path + QStringLiteral(".bad%1").arg(number);
  }
  return name;
}

bool HasName(const QFile& file) {
  struct stat status {};
  return ::fstat(file.handle(), &status) == 0 && status.st_nlink > 0;
}

}  // namespace

std::optional<JournalContent> Journal::TakeLeft(QStringList& setAside) {
  while (next_ <= kMostJournals) {
    const int number = next_++;
    if (!QFileInfo(PathOf(number)).isFile() ||
        !Hold(number, QIODevice::ReadWrite | QIODevice::ExistingOnly)) {
      continue;
    }
    const JournalContent content = ReadJournal(file_.readAll());
    if (file_.error() != QFile::NoError) {
      Release();
    } else if (!content.readable) {
      const QString name = FreeName(file_.fileName());
      if (QFile::rename(file_.fileName(), name)) {
        setAside << name;
      }
      Release();
    } else if (content.image == EmptySession() && !content.damaged) {
      Remove();
    } else {
      end_ = content.end;
      return content;
    }
  }
  return std::nullopt;
}

bool Journal::Append(const QByteArray& record) {
  if (!IsInPlace() && !Begin()) {
    return false;
  }
  const bool first = end_ == 0;
  const QByteArray bytes = first ? kJournalHeader.toByteArray() + record : record;
  const bool written = (file_.size() == end_ || file_.resize(end_)) && file_.seek(end_) &&
                       file_.write(bytes) == bytes.size() && ::fsync(file_.handle()) == 0 &&
                       (!first || SyncDirectory());
  if (written) {
    end_ += bytes.size();
  }
  return written;
}

bool Journal::IsInPlace() const {
  return file_.isOpen() && HasName(file_);
}

QString Journal::KeepCopy() const {
  const QString name = FreeName(file_.fileName());
  return QFile::copy(file_.fileName(), name) ? name : QString();
}

void Journal::Release() {
  file_.close();
  end_ = 0;
}

void Journal::Remove() {
  if (IsInPlace() && QFile::remove(file_.fileName())) {
    (void)SyncDirectory();
  }
  Release();
}

QString Journal::Path() const {
  return file_.isOpen() ? file_.fileName() : PathOf(1);
}

QString Journal::PathOf(int number) const {
  return QDir(directory_)
      .filePath(number == 1 ? QStringLiteral("vexa.journal")
                            : QStringLiteral("vexa-%1.journal").arg(number));
}

// Opens and locks; false, with nothing held, when another program has it or it is gone meanwhile.
bool Journal::Hold(int number, QIODevice::OpenMode mode) {
  Release();
  file_.setFileName(PathOf(number));
  if (file_.open(mode | QIODevice::Unbuffered) && ::flock(file_.handle(), LOCK_EX | LOCK_NB) == 0 &&
      HasName(file_)) {
    return true;
  }
  Release();
  return false;
}

bool Journal::Begin() {
  for (int number = 1; number <= kMostJournals; ++number) {
    if (Hold(number, QIODevice::ReadWrite | QIODevice::NewOnly)) {
      return true;
    }
    if (!QFile::exists(PathOf(number))) {
      return false;
    }
  }
  return false;
}

// Makes the coming and going of a name as lasting as the bytes behind it.
bool Journal::SyncDirectory() const {
  const int directory =
      ::open(QFile::encodeName(directory_).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  const bool synced = directory >= 0 && ::fsync(directory) == 0;
  if (directory >= 0) {
    ::close(directory);
  }
  return synced;
}

}  // namespace vexa
