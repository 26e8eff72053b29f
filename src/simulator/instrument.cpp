// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/instrument.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <utility>

namespace vexa::simulator {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

// A frame that stops halfway for so long was cut off by its sender going away.
constexpr auto kPartialFrameLife = 500ms;

}  // namespace

Instrument::Instrument(const Options& options, Announce announce)
    : announce_(std::move(announce)),
      replugAfter_(options.replugAfter),
      head_(options,
            [this](Sample sample) { announce_(u"stage %1"_s.arg(QString(SampleName(sample)))); }),
      protocol_(
          [this](const Exposure& exposure, int count) { return head_.ReadLines(exposure, count); },
          options.faults, options.lateBy),
      queue_(options.paced),
      sendTimer_([this] { SendDue(); }),
      link_(options.directory, options.port) {
  replugTimer_.setSingleShot(true);
  QObject::connect(&replugTimer_, &QTimer::timeout, &replugTimer_, [this] {
    const QString failure = PlugIn();
    if (!failure.isEmpty()) {
      std::fprintf(stderr, "vexa-simulator: %s\n", qUtf8Printable(failure));
    }
  });
}

QString Instrument::PlugIn() {
  if (!terminal_.Open()) {
    return u"cannot make a pseudo-terminal: %1"_s.arg(QString::fromLocal8Bit(std::strerror(errno)));
  }
  QString failure = link_.Make(terminal_.DevicePath());
  if (!failure.isEmpty()) {
    terminal_.Close();
    return failure;
  }
  received_ = Watch(terminal_.MasterDescriptor(), QSocketNotifier::Read, &Instrument::ReadCommands);
  writable_ = Watch(terminal_.MasterDescriptor(), QSocketNotifier::Write, &Instrument::SendBacklog);
  writable_->setEnabled(false);
  if (terminal_.VisitDescriptor() >= 0) {
    visited_ = Watch(terminal_.VisitDescriptor(), QSocketNotifier::Read, &Instrument::FollowVisits);
  }
  announce_(u"ready %1"_s.arg(link_.Path()));
  return {};
}

std::unique_ptr<QSocketNotifier> Instrument::Watch(int descriptor, QSocketNotifier::Type type,
                                                   void (Instrument::*react)()) {
  auto notifier = std::make_unique<QSocketNotifier>(descriptor, type);
  QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(),
                   [this, react] { (this->*react)(); });
  return notifier;
}

void Instrument::SetStage(const PutOnStage& command) {
  if (command.sample) {
    head_.UnderObjective().Fix(*command.sample);
  } else {
    head_.UnderObjective().LeaveUnattended();
  }
}

void Instrument::Age(const SetWear& command) {
  head_.Condition().*command.kind->amount = command.amount;
  announce_(u"%1 %2"_s.arg(QString(command.kind->name)).arg(command.amount));
}

void Instrument::ReadCommands() {
  const auto now = ReplyQueue::Clock::now();
  if (now - lastArrival_ > kPartialFrameLife) {
    protocol_.ForgetPartialFrame();
  }
  lastArrival_ = now;
  for (const Response& response : protocol_.Receive(terminal_.Read())) {
    if (response.dropsPending) {
      DropUnsent();
    }
    queue_.Add(now, response);
    if (response.unplugs) {
      Unplug();
      return;
    }
  }
  SendDue();
}

void Instrument::SendDue() {
  const auto next = queue_.Pump(
      ReplyQueue::Clock::now(), [this](QByteArrayView bytes) { Send(bytes); },
      [this](Milestone milestone) {
        protocol_.Reach(milestone);
        head_.UnderObjective().Reach(milestone);
      });
  if (next) {
    sendTimer_.Arm(*next);
  }
}

void Instrument::Send(QByteArrayView bytes) {
  // On a wire that leads to nobody, bytes are lost.
  if (terminal_.IsVisited()) {
    backlog_.append(bytes);
    SendBacklog();
  }
}

void Instrument::SendBacklog() {
  backlog_.remove(0, terminal_.Write(backlog_));
  writable_->setEnabled(!backlog_.isEmpty());
}

void Instrument::FollowVisits() {
  if (!terminal_.IsVisited()) {
    backlog_.clear();
    writable_->setEnabled(false);
  }
}

void Instrument::DropUnsent() {
  backlog_.clear();
  writable_->setEnabled(false);
  terminal_.DiscardUnread();
}

void Instrument::Unplug() {
  queue_.Clear();
  DropUnsent();
  sendTimer_.Disarm();
  protocol_.ForgetPartialFrame();
  // This runs inside the notifier's own signal, so it is deleted later; disabled, it is silent.
  received_->setEnabled(false);
  received_.release()->deleteLater();
  writable_.reset();
  visited_.reset();
  link_.Remove();
  terminal_.Close();
  if (replugAfter_ > 0ms) {
    replugTimer_.start(replugAfter_);
  }
}

}  // namespace vexa::simulator
