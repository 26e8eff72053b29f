// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/journal.h"

#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFileInfo>

#include "base/replace_file.h"
#include "files/keep_unreadable.h"

namespace vexa {
namespace {

constexpr int kMostJournals = 99;  ///< of one directory
constexpr qint64 kLargestJournal = qint64{256} * 1024 * 1024;

bool HasName(const QFile& file) {
  struct stat status {};
  return ::fstat(file.handle(), &status) == 0 && status.st_nlink > 0;
}

}  // namespace

QList<MessageCall> JournalsSetAside::Notices() const {
  QList<MessageCall> notices;
  if (!otherVersions.isEmpty()) {
    notices << MessageCall{Message::kJournalOtherVersion, {otherVersions.join(u'\r')}};
  }
  if (!unreadable.isEmpty()) {
    notices << MessageCall{Message::kJournalUnreadable, {unreadable.join(u'\r')}};
  }
  return notices;
}

std::optional<JournalContent> Journal::TakeLeft(JournalsSetAside& setAside) {
  while (next_ <= kMostJournals) {
    const int number = next_++;
    if (!QFileInfo(PathOf(number)).isFile() ||
        !Hold(number, QIODevice::ReadWrite | QIODevice::ExistingOnly)) {
      continue;
    }
    if (file_.size() > kLargestJournal) {
      SetAside(setAside.unreadable);
      continue;
    }
    const QByteArray bytes = file_.readAll();
    const JournalContent content = ReadJournal(bytes);
    if (file_.error() != QFile::NoError) {
      Release();
    } else if (!content.readable) {
      SetAside(setAside.otherVersions);
    } else if (content.image == EmptySession()) {
      const bool holdsMore = content.damaged || content.end < bytes.size();
      if (holdsMore && bytes.size() >= JournalHeader().size()) {
        SetAside(setAside.unreadable);
      } else {
        Remove();
      }
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
  const QByteArray bytes = first ? JournalHeader() + record : record;
  const bool written = (file_.size() == end_ || file_.resize(end_)) && file_.seek(end_) &&
                       file_.write(bytes) == bytes.size() && ::fsync(file_.handle()) == 0 &&
                       (!first || FlushDirectory(directory_));
  if (written) {
    end_ += bytes.size();
  }
  return written;
}

bool Journal::IsInPlace() const {
  return file_.isOpen() && HasName(file_);
}

QString Journal::KeepCopy() const {
  const QString name = FreeBadName(file_.fileName());
  return QFile::copy(file_.fileName(), name) ? name : QString();
}

void Journal::SetAside(QStringList& names) {
  const QString name = FreeBadName(file_.fileName());
  if (QFile::rename(file_.fileName(), name)) {
    names << name;
  }
  Release();
}

void Journal::Release() {
  file_.close();
  end_ = 0;
}

void Journal::Remove() {
  if (IsInPlace() && QFile::remove(file_.fileName())) {
    (void)FlushDirectory(directory_);
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

}  // namespace vexa
