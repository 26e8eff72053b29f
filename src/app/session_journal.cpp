// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/session_journal.h"

#include "base/date_text.h"
#include "base/translation.h"

namespace vexa {

namespace {

QString ContentText(const VEXATYPE& session) {
  QStringList lines;
  if (session.backgroundMeasured) {
    lines << Text::tr("ﾊﾞｯｸｸﾞﾗﾝﾄﾞ: ") + DateTimeText(session.backgroundTaken.takenAt);
  }
  if (session.referenceMeasured) {
    lines << Text::tr("ﾘﾌｧﾚﾝｽ: ") + DateTimeText(session.referenceTaken.takenAt);
  }
  QStringList numbers;
  for (int number = 1; number <= kSlotCount; ++number) {
    if (session.Slot(number)->valid) {
      numbers << QString::number(number);
    }
  }
  if (!numbers.isEmpty()) {
    lines << Text::tr("ｽﾛｯﾄ: ") + numbers.join(QStringLiteral(", "));
  }
  if (session.stock.Count > 0) {
    lines << Text::tr("累積数: %1").arg(session.stock.Count);
  }
  if (session.thicknessHistory.count > 0) {
    lines << Text::tr("膜厚ｸﾞﾗﾌ: %1").arg(session.thicknessHistory.count);
  }
  return lines.join(u'\r');
}

}  // namespace

SessionJournal::SessionJournal(Session& session, MessageService& messages)
    : session_(session), messages_(messages), journal_(session.State().programDirectory) {
  connect(&session, &Session::FrameChanged, this, &SessionJournal::Update);
  connect(&session, &Session::SlotChanged, this, &SessionJournal::Update);
  connect(&session, &Session::SlotsReplaced, this, &SessionJournal::Update);
  connect(&session, &Session::StockChanged, this, &SessionJournal::Update);
  connect(&session, &Session::HistoryChanged, this, &SessionJournal::Update);
}

QCoro::Task<bool> SessionJournal::Offer() {
  offering_ = true;
  std::optional<JournalContent> left = TakeLeft();
  while (left) {
    const bool wanted = co_await IsWanted(*left);
    if (wanted) {
      break;
    }
    left = TakeLeft();
  }
  offering_ = false;
  if (!left) {
    Update();
    co_return false;
  }
  VEXATYPE kept;
  const bool damaged = !PutImage(left->image, kept) || left->damaged;
  if (damaged && journal_.KeepCopy().isEmpty()) {
    journal_.Release();  // it stays as it is, and this session begins a journal of its own
  } else {
    written_ = left->image;
  }
  session_.Restore(kept);
  co_return true;
}

std::optional<JournalContent> SessionJournal::TakeLeft() {
  JournalsSetAside setAside;
  std::optional<JournalContent> left = journal_.TakeLeft(setAside);
  TellAll(setAside.Notices(), messages_);
  return left;
}

QCoro::Task<bool> SessionJournal::IsWanted(JournalContent left) {
  VEXATYPE kept;
  const bool damaged = !PutImage(left.image, kept) || left.damaged;
  const MessageCall question{damaged ? Message::kRestoreDamagedSession : Message::kRestoreSession,
                             {ContentText(kept)}};
  const MessageResult answer = co_await messages_.Ask(question);
  if (answer == MessageResult::kNo) {
    journal_.Remove();
  } else if (answer != MessageResult::kYes) {
    journal_.Release();
  }
  co_return answer == MessageResult::kYes;
}

// False when what has changed could not be put on the disk.
bool SessionJournal::Write() {
  if (!journal_.IsInPlace()) {
    written_ = EmptySession();
  }
  const SessionImage now = TakeImage(session_.State());
  if (now == written_) {
    return true;
  }
  const bool written = journal_.Append(ChangeRecord(written_, now));
  if (written) {
    written_ = now;
  }
  return written;
}

// A failure is told once until it works again.
void SessionJournal::Update() {
  if (ended_ || offering_) {
    return;
  }
  const bool written = Write();
  if (!written && !failureTold_) {
    messages_.Tell({Message::kJournalWriteError, {journal_.Path()}});
  }
  failureTold_ = !written;
}

void SessionJournal::End() {
  ended_ = true;
  journal_.Remove();
}

void SessionJournal::EndUnasked() {
  const VEXATYPE& state = session_.State();
  const bool measured = state.backgroundMeasured || state.referenceMeasured ||
                        state.stock.Count > 0 || state.thicknessHistory.count > 0;
  if (state.slotsSaved && !measured) {
    End();
  }
}

}  // namespace vexa
