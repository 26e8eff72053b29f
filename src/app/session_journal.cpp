// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/session_journal.h"

#include "base/date_text.h"
#include "measurement/evaluation.h"

namespace vexa {

using namespace message_type;

namespace {

QString ContentText(const VEXATYPE& session) {
  QStringList lines;
  if (session.backgroundMeasured) {
    lines << QStringLiteral("ﾊﾞｯｸｸﾞﾗﾝﾄﾞ: ") + DateTimeText(session.backgroundTaken.takenAt);
  }
  if (session.referenceMeasured) {
    lines << QStringLiteral("ﾘﾌｧﾚﾝｽ: ") + DateTimeText(session.referenceTaken.takenAt);
  }
  QStringList numbers;
  for (int number = 1; number <= kSlotCount; ++number) {
    if (session.Slot(number)->valid) {
      numbers << QString::number(number);
    }
  }
  if (!numbers.isEmpty()) {
    lines << QStringLiteral("ｽﾛｯﾄ: ") + numbers.join(QStringLiteral(", "));
  }
  if (session.stock.Count > 0) {
    lines << QStringLiteral("累積数: %1").arg(session.stock.Count);
  }
  if (session.thicknessHistory.count > 0) {
    lines << QStringLiteral("膜厚ｸﾞﾗﾌ: %1").arg(session.thicknessHistory.count);
  }
  return lines.join(u'\r');
}

QString Question(const VEXATYPE& session, bool damaged) {
  QString text =
      QStringLiteral("前回のﾌﾟﾛｸﾞﾗﾑは正常に終了していません。測定ﾃﾞｰﾀを復元しますか。\r\r") +
      ContentText(session);
  if (damaged) {
    text += QStringLiteral("\r\r壊れた記録があります。読めた記録を復元し、ﾌｧｲﾙの写しを残します。");
  }
  return text + QStringLiteral("\r\rいいえ: 破棄します。\rｷｬﾝｾﾙ: 次の起動まで残します。");
}

}  // namespace

SessionJournal::SessionJournal(VEXATYPE& state, MessageService& messages,
                               const QString& programDirectory)
    : state_(state), messages_(messages), journal_(programDirectory) {}

bool SessionJournal::Offer() {
  std::optional<JournalContent> left = TakeLeft();
  while (left && !IsWanted(*left)) {
    left = TakeLeft();
  }
  if (!left) {
    return false;
  }
  const bool damaged = !PutImage(left->image, state_) || left->damaged;
  EvaluateAgain(state_);
  if (damaged && journal_.KeepCopy().isEmpty()) {
    journal_.Release();  // it stays as it is, and this session begins a journal of its own
  } else {
    written_ = left->image;
  }
  Update();
  return true;
}

std::optional<JournalContent> SessionJournal::TakeLeft() {
  JournalsSetAside setAside;
  std::optional<JournalContent> left = journal_.TakeLeft(setAside);
  TellAll(setAside.Notices(), messages_);
  return left;
}

bool SessionJournal::IsWanted(const JournalContent& left) {
  VEXATYPE session;
  const bool damaged = !PutImage(left.image, session) || left.damaged;
  const MessageResult answer = messages_.MsgCall(
      Question(session, damaged), kYesNoCancel + kQuestionIcon, message_title::kMessage);
  if (answer == MessageResult::kNo) {
    journal_.Remove();
  } else if (answer != MessageResult::kYes) {
    journal_.Release();
  }
  return answer == MessageResult::kYes;
}

bool SessionJournal::Write() {
  if (ended_) {
    return true;
  }
  if (!journal_.IsInPlace()) {
    written_ = EmptySession();
  }
  const SessionImage now = TakeImage(state_);
  if (now == written_) {
    return true;
  }
  const bool written = journal_.Append(ChangeRecord(written_, now));
  if (written) {
    written_ = now;
  }
  return written;
}

void SessionJournal::Update() {
  const bool written = Write();
  if (!written && !failureTold_) {
    failureTold_ = true;
    messages_.MsgCall(QStringLiteral("ｼﾞｬｰﾅﾙ･ﾌｧｲﾙに書き込めません。測定は続けられますが、ﾌﾟﾛｸﾞﾗﾑが"
                                     "異常終了すると測定ﾃﾞｰﾀは失われます。\r\r") +
                          journal_.Path(),
                      kOk + kWarningIcon, message_title::kWarning);
  }
  failureTold_ = !written;
}

void SessionJournal::End() {
  ended_ = true;
  journal_.Remove();
}

}  // namespace vexa
