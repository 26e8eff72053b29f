// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message.h"
#include "files/journal.h"
#include "measurement/vexatype.h"

namespace vexa {

/// Keeps the journal of the window's session, and brings back a session that a crash has left.
class SessionJournal {
 public:
  SessionJournal(VEXATYPE& state, MessageService& messages, const QString& programDirectory);

  /// Offers the sessions that crashes have left, one after the other, until one is wanted. True
  /// when it was restored: slots are then evaluated under the settings in force, and the journal
  /// goes on where it ended.
  [[nodiscard]] bool Offer();

  /// Puts what has changed in the state since the last call on the disk; false when that failed.
  bool Write();

  /// Likewise; a failure is told once until it works again.
  void Update();

  /// The session ended as it should: nothing is left to restore.
  void End();

 private:
  std::optional<JournalContent> TakeLeft();
  bool IsWanted(const JournalContent& left);

  VEXATYPE& state_;
  MessageService& messages_;
  Journal journal_;
  SessionImage written_ = EmptySession();
  bool failureTold_ = false;
  bool ended_ = false;
};

}  // namespace vexa
