// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <coroutine>
#include <deque>

#include "base/message.h"

namespace vexa {

class OriginalMsgFrm;

/// Shows messages in an OriginalMsgFrm over a window, one after another. Nothing waits for them but
/// who asks. Closing the window ends the questions that wait, and so does the end of this object:
/// each with the answer that closing it by its frame means.
class WindowMessages : public QObject, public MessageService {
  Q_OBJECT

 public:
  WindowMessages() = default;
  ~WindowMessages() override;

  /// The window over which the next messages are centred; null for none.
  void SetWindow(QWidget* window);

  void Tell(const MessageCall& call) override;
  QCoro::Task<MessageResult> Ask(MessageCall call) override;
  void Beep() override;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  class Answer;

  /// A message that waits to be shown or answered.
  struct Waiting {
    MessageCall call;
    Answer* answer = nullptr;  ///< of a question
  };

  void ShowNext();
  void TakeAnswer();
  void RefuseAll();
  [[nodiscard]] OriginalMsgFrm& Dialog();

  QPointer<QWidget> window_;
  QPointer<OriginalMsgFrm> dialog_;
  std::deque<Waiting> waiting_;  ///< the first one is shown
  bool ended_ = false;
};

}  // namespace vexa
