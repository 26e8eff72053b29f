// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/window_messages.h"

#include <QApplication>
#include <QEvent>
#include <QWindow>
#include <utility>

#include "views/common/original_msg_frm.h"

namespace vexa {

/// What a question waits for.
class WindowMessages::Answer {
 public:
  Answer(WindowMessages& messages, MessageCall call)
      : messages_(messages), call_(std::move(call)) {}

  [[nodiscard]] bool await_ready() const { return false; }
  void await_suspend(std::coroutine_handle<> asking) {
    asking_ = asking;
    messages_.waiting_.push_back({call_, this});
    messages_.ShowNext();
  }
  [[nodiscard]] MessageResult await_resume() const { return result_; }

  void Give(MessageResult result) {
    result_ = result;
    asking_.resume();
  }

 private:
  WindowMessages& messages_;
  MessageCall call_;
  std::coroutine_handle<> asking_;
  MessageResult result_ = MessageResult::kOk;
};

WindowMessages::~WindowMessages() {
  ended_ = true;
  RefuseAll();
}

void WindowMessages::SetWindow(QWidget* window) {
  if (window_ != nullptr) {
    window_->removeEventFilter(this);
    window_->disconnect(this);
  }
  window_ = window;
  if (window_ != nullptr) {
    window_->installEventFilter(this);
    connect(window_, &QObject::destroyed, this, &WindowMessages::RefuseAll);
  }
}

void WindowMessages::Tell(const MessageCall& call) {
  if (!ended_) {
    waiting_.push_back({call, nullptr});
    ShowNext();
  }
}

QCoro::Task<MessageResult> WindowMessages::Ask(MessageCall call) {
  if (ended_) {
    co_return RefusingAnswer(CatalogueEntry(call.id).buttons);
  }
  Answer answer(*this, std::move(call));
  co_return co_await answer;
}

void WindowMessages::Beep() {
  QApplication::beep();
}

bool WindowMessages::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Close) {
    RefuseAll();
  }
  return QObject::eventFilter(watched, event);
}

void WindowMessages::ShowNext() {
  OriginalMsgFrm& dialog = Dialog();
  if (waiting_.empty() || dialog.isVisible()) {
    return;
  }
  // Above the dialog that asks, where there is one.
  const QWidget* above = QApplication::activeModalWidget();
  above = above == nullptr ? window_.data() : above->window();
  dialog.winId();
  if (above != nullptr) {
    dialog.windowHandle()->setTransientParent(above->windowHandle());
  }
  dialog.MsgCall(waiting_.front().call);
}

// The dialog is hidden before who asked goes on, and may itself say something.
void WindowMessages::TakeAnswer() {
  if (waiting_.empty()) {
    return;
  }
  const MessageResult result = Dialog().Result();
  const Waiting done = std::move(waiting_.front());
  waiting_.pop_front();
  const QPointer<WindowMessages> alive(this);
  if (done.answer != nullptr) {
    done.answer->Give(result);
  }
  if (alive != nullptr) {
    ShowNext();
  }
}

void WindowMessages::RefuseAll() {
  if (dialog_ != nullptr) {
    dialog_->disconnect(this);
    dialog_->hide();
    dialog_->deleteLater();
    dialog_ = nullptr;
  }
  // Who is refused may ask no more of the same, but may tell something.
  std::deque<Waiting> refused = std::exchange(waiting_, {});
  for (const Waiting& each : refused) {
    if (each.answer != nullptr) {
      each.answer->Give(RefusingAnswer(CatalogueEntry(each.call.id).buttons));
    }
  }
}

OriginalMsgFrm& WindowMessages::Dialog() {
  if (dialog_ == nullptr) {
    dialog_ = new OriginalMsgFrm(window_);
    connect(dialog_, &QDialog::finished, this, &WindowMessages::TakeAnswer);
  }
  return *dialog_;
}

}  // namespace vexa
