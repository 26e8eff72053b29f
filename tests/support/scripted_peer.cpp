// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/scripted_peer.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QTimer>
#include <QTimerEvent>
#include <algorithm>

namespace vexa::test {
namespace {

constexpr int kTimesDue = 5;

}  // namespace

ScriptedPeer::ScriptedPeer() {
  QCoreApplication::instance()->installEventFilter(this);
  Plug();
}

ScriptedPeer::~ScriptedPeer() {
  Unplug();
}

QString ScriptedPeer::Path() const {
  return files.Path("com5");
}

std::vector<std::string> ScriptedPeer::TakeFrames() {
  return std::exchange(frames_, {});
}

void ScriptedPeer::Send(const QByteArray& bytes) {
  timesDue_.clear();  // numbers of timers come again
  unsent_ += bytes;
  WritePending();
}

// The terminal takes a few thousand bytes at a time; the rest follows when they have been read.
void ScriptedPeer::WritePending() {
  if (master_ < 0 || unsent_.isEmpty()) {
    return;
  }
  const auto written =
      ::write(master_, unsent_.constData(), static_cast<std::size_t>(unsent_.size()));
  unsent_.remove(0, std::max<qsizetype>(written, 0));
  if (!unsent_.isEmpty()) {
    QTimer::singleShot(1, this, &ScriptedPeer::WritePending);
  }
}

void ScriptedPeer::Plug() {
  master_ = ::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK);
  ASSERT_GE(master_, 0);
  ASSERT_EQ(::grantpt(master_), 0);
  ASSERT_EQ(::unlockpt(master_), 0);
  termios settings{};
  ::tcgetattr(master_, &settings);
  ::cfmakeraw(&settings);
  ::tcsetattr(master_, TCSANOW, &settings);
  ASSERT_TRUE(QFile::link(QString::fromLocal8Bit(::ptsname(master_)), Path()));
  notifier_ = std::make_unique<QSocketNotifier>(master_, QSocketNotifier::Read);
  connect(notifier_.get(), &QSocketNotifier::activated, this, &ScriptedPeer::OnReadable);
}

void ScriptedPeer::Unplug() {
  if (master_ >= 0) {
    notifier_->setEnabled(false);
    notifier_.release()->deleteLater();
    ::close(master_);
    master_ = -1;
    QFile::remove(Path());
  }
}

// A timer that is not told of its time stays registered and is due again.
bool ScriptedPeer::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Timer) {
    return false;
  }
  const int id = static_cast<QTimerEvent*>(event)->timerId();
  const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(watched);
  const bool ofReply = std::ranges::any_of(timers, [id](const auto& timer) {
    return timer.timerId == id && timer.interval == kReplyTimeoutMs;
  });
  if (!ofReply) {
    return false;
  }
  if (++timesDue_[id] < kTimesDue) {
    return true;
  }
  timesDue_.erase(id);
  return false;
}

void ScriptedPeer::OnReadable() {
  char buffer[64];
  const auto count = ::read(master_, buffer, sizeof buffer);
  if (count <= 0) {
    // The client closed its side; ask again now and then until it is back.
    notifier_->setEnabled(false);
    QTimer::singleShot(5, this, [this] {
      if (notifier_ != nullptr) {
        notifier_->setEnabled(true);
      }
    });
    return;
  }
  pending_.append(buffer, static_cast<qsizetype>(count));
  while (pending_.size() >= 4 && master_ >= 0) {
    const QByteArray frame = pending_.left(4);
    pending_.remove(0, 4);
    frames_.push_back(frame.toHex().toUpper().toStdString());
    ++received_;
    const auto action = actions_.find(received_);
    Answer(frame, action == actions_.end() ? PeerAction::kAnswer : action->second);
  }
}

void ScriptedPeer::Answer(const QByteArray& frame, PeerAction action) {
  QByteArray reply = ReplyTo(frame);
  switch (action) {
    case PeerAction::kAnswer:
      return Send(reply);
    case PeerAction::kSilence:
      return;
    case PeerAction::kErrorReply:
      return Send("REQERR");
    case PeerAction::kOtherReply:
      return Send("CHARHUHREQEND");
    case PeerAction::kShortLine:
      return Send(reply.remove(reply.size() - 7, 1));
    case PeerAction::kByteByByte:
      for (qsizetype i = 0; i < reply.size(); ++i) {
        QTimer::singleShot(static_cast<int>(i / 64), this,
                           [this, byte = reply.mid(i, 1)] { Send(byte); });
      }
      return;
    case PeerAction::kSplitTerminator:
      Send(reply.chopped(3));
      QTimer::singleShot(20, this, [this, end = reply.right(3)] { Send(end); });
      return;
    case PeerAction::kNoiseBefore:
      return Send("\x01\x80\xff" + reply);
    case PeerAction::kUnplug:
      return Unplug();
  }
}

QByteArray ScriptedPeer::ReplyTo(const QByteArray& frame) const {
  switch (static_cast<unsigned char>(frame[0])) {
    case 0xc3:
      return "CHARENDREQEND";
    case 0x69:
      return "CHARQUITREQEND";
    case 0xb4:
      return QByteArray("\x01\x02\x03\x04", 4) + lines_ + "DATEND";
    case 0xe1:
      return "CHARH8 READYREQEND";
    default:
      return "CHAROKREQEND";
  }
}

QByteArray FlatLines(int count, int value) {
  QByteArray lines;
  for (int i = 0; i < count * 512; ++i) {
    lines.append(static_cast<char>(value & 0xff));
    lines.append(static_cast<char>(value >> 8));
  }
  return lines;
}

}  // namespace vexa::test
