// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSocketNotifier>
#include <QTimer>
#include <functional>
#include <memory>

#include "simulator/console.h"
#include "simulator/controller_protocol.h"
#include "simulator/deadline_timer.h"
#include "simulator/optical_head.h"
#include "simulator/options.h"
#include "simulator/port_link.h"
#include "simulator/pseudo_terminal.h"
#include "simulator/reply_queue.h"

namespace vexa::simulator {

/// The whole virtual instrument: the controller behind its pseudo-terminal, the light, the stage.
/// Needs a running event loop once plugged in.
class Instrument {
 public:
  /// Takes one line of text for standard output, without its end.
  using Announce = std::function<void(const QString& line)>;

  /// Sets everything up; the port is made by PlugIn.
  Instrument(const Options& options, Announce announce);

  /// Makes the pseudo-terminal and its link and announces "ready PATH". Gives back why it failed,
  /// empty when it succeeded.
  [[nodiscard]] QString PlugIn();

  void SetStage(const PutOnStage& command);
  /// Announces "NAME AMOUNT" once it is in force.
  void Age(const SetWear& command);
  void ShowNextSample() { head_.UnderObjective().Next(); }
  /// Announces "fault at N" once it is in place.
  void AddFault(const Fault& fault) {
    announce_(QStringLiteral("fault at %1").arg(protocol_.AddFault(fault)));
  }

 private:
  void ReadCommands();
  void SendDue();
  void Send(QByteArrayView bytes);
  void SendBacklog();
  void FollowVisits();
  void DropUnsent();
  [[nodiscard]] std::unique_ptr<QSocketNotifier> Watch(int descriptor, QSocketNotifier::Type type,
                                                       void (Instrument::*react)());
  void Unplug();

  Announce announce_;
  std::chrono::milliseconds replugAfter_;
  OpticalHead head_;
  ControllerProtocol protocol_;
  ReplyQueue queue_;
  DeadlineTimer sendTimer_;
  QTimer replugTimer_;
  ReplyQueue::Clock::time_point lastArrival_;
  PseudoTerminal terminal_;
  PortLink link_;
  std::unique_ptr<QSocketNotifier> received_;
  std::unique_ptr<QSocketNotifier> writable_;
  std::unique_ptr<QSocketNotifier> visited_;
  QByteArray backlog_;  // sent, but not taken by the system yet
};

}  // namespace vexa::simulator
