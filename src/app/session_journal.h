// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoroTask>
#include <QObject>

#include "base/message.h"
#include "files/journal.h"
#include "measurement/session.h"

namespace vexa {

/// Keeps the journal of a session as it changes, and brings back a session that a crash has left.
class SessionJournal : public QObject {
  Q_OBJECT

 public:
  SessionJournal(Session& session, MessageService& messages);

  /// Offers the sessions that crashes have left, one after the other, until one is wanted. True
  /// when it was restored; the journal goes on where it ended.
  QCoro::Task<bool> Offer();

  /// The session ended as it should: nothing is left to restore.
  void End();

  /// The session ended unasked: what was measured is left to restore, unless all of it is in a
  /// file.
  void EndUnasked();

 private:
  std::optional<JournalContent> TakeLeft();
  QCoro::Task<bool> IsWanted(JournalContent left);
  bool Write();
  void Update();

  Session& session_;
  MessageService& messages_;
  Journal journal_;
  SessionImage written_ = EmptySession();
  bool failureTold_ = false;
  bool offering_ = false;  ///< the journal held is that of an earlier session
  bool ended_ = false;
};

}  // namespace vexa
