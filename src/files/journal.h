// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>
#include <QString>
#include <QStringList>
#include <optional>

#include "base/message.h"
#include "files/journal_records.h"

namespace vexa {

/// The new names of journals that cannot be restored.
struct JournalsSetAside {
  QStringList otherVersions;
  QStringList unreadable;

  /// What to tell of them.
  [[nodiscard]] QList<MessageCall> Notices() const;
};

/// The journal of a running session: `vexa.journal` in the program directory, or `vexa-2.journal`
/// and so on where that one is taken. It is locked as long as it is held, so that a journal without
/// a lock is one that a crash has left. The file comes into being with the first record.
class Journal {
 public:
  explicit Journal(QString directory) : directory_(std::move(directory)) {}

  /// Takes the next journal that a crash has left and that holds something, beginning with the
  /// first; nothing when there is none any more. Empty ones are removed; one of another version,
  /// one without anything that can be read, and one above 256 MiB get the name NAME.bad (.bad2 and
  /// so on), which is added to `setAside`.
  std::optional<JournalContent> TakeLeft(JournalsSetAside& setAside);

  /// Puts the record behind the last whole one and returns once the disk has it. False when it
  /// could not be written; what it left of itself is overwritten by the next.
  [[nodiscard]] bool Append(const QByteArray& record);

  /// A file is held and still has its name: otherwise the next Append begins a new one.
  [[nodiscard]] bool IsInPlace() const;

  /// Copies the held file to NAME.bad (.bad2 and so on); its name, or empty when that failed.
  [[nodiscard]] QString KeepCopy() const;

  /// Lets go of the file and leaves it for the next start.
  void Release();

  /// Ends the journal: the file goes.
  void Remove();

  /// The file held, or the one that the next Append would begin with.
  [[nodiscard]] QString Path() const;

 private:
  [[nodiscard]] QString PathOf(int number) const;
  bool Hold(int number, QIODevice::OpenMode mode);
  bool Begin();
  void SetAside(QStringList& names);

  QString directory_;
  int next_ = 1;  // to be looked for
  QFile file_;
  qsizetype end_ = 0;
};

}  // namespace vexa
