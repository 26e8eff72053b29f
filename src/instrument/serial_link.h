// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QCoroTask>
#include <QDeadlineTimer>
#include <QSerialPort>
#include <QTimer>

#include "base/awakening.h"
#include "instrument/receive_ring.h"

namespace vexa {

/// The serial port of the controller (57600 bit/s, 8N1, no flow control): frames out, replies in.
///
/// A reply is a stream of bytes that ends in "REQEND", "REQERR" or "DATEND". At most one is awaited
/// at any moment. A port that disappears is closed at once, which ends the wait.
class SerialLink : public QObject {
  Q_OBJECT

 public:
  enum class Kind { kCommand, kLines };

  struct Reply {
    enum class End {
      kComplete,  ///< "REQEND" to a command, "DATEND" to a request for lines
      kError,     ///< "REQERR" to a command
      kTimeOut,
      kClosed,  ///< the port was lost or closed
      kCancelled,
    };
    End end = End::kTimeOut;
    QByteArray body = {};  ///< of a complete reply, without its terminator
  };

  explicit SerialLink(int replyTimeoutMs, QObject* parent = nullptr);
  ~SerialLink() override;

  /// False when the port is open already or cannot be opened.
  [[nodiscard]] bool Open(const QString& path);
  void Close();
  [[nodiscard]] bool IsOpen() const { return port_.isOpen(); }

  /// Sends a frame and forgets what came late from an earlier exchange. False when the port is
  /// closed, a reply is awaited, or the frame was not taken whole.
  [[nodiscard]] bool Send(const QByteArray& frame);

  /// Waits for the reply to the frame sent last, for as long as LimitMs says.
  [[nodiscard]] QCoro::Task<Reply> Receive(Kind kind);

  /// Waits so long, or until the port is closed or the wait cancelled.
  [[nodiscard]] QCoro::Task<> Sleep(int ms);

  /// Ends the wait that goes on, and every later one, at once; until Resume.
  void Cancel();
  [[nodiscard]] bool IsCancelled() const { return cancelled_; }

  /// Closes the port and ends the wait that goes on, before it returns.
  void EndAtOnce();

  /// Begins a new operation, in which every wait may take so long; without an argument as long as
  /// a reply usually may.
  void Resume() { Resume(replyTimeoutMs_); }
  void Resume(int limitMs);
  [[nodiscard]] int LimitMs() const { return limitMs_; }

 private:
  [[nodiscard]] bool HasArrived(Kind kind, Reply& reply);
  void ForgetReply();
  void OnBytesReceived();
  void OnPortError();

  int replyTimeoutMs_;
  int limitMs_;
  QSerialPort port_;
  QTimer deadline_;
  ReceiveRing ring_;
  LinkStatus status_ = LinkStatus::kNone;
  bool cancelled_ = false;
  Awakening awakening_;
};

}  // namespace vexa
