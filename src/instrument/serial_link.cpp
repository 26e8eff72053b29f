// SPDX-License-Identifier: GPL-3.0-or-later
#include "instrument/serial_link.h"

#include <span>

namespace vexa {

SerialLink::SerialLink(int replyTimeoutMs, QObject* parent)
    : QObject(parent), replyTimeoutMs_(replyTimeoutMs), limitMs_(replyTimeoutMs) {
  deadline_.setSingleShot(true);
  connect(&deadline_, &QTimer::timeout, this, [this] { awakening_.Wake(); });
  connect(&port_, &QSerialPort::readyRead, this, &SerialLink::OnBytesReceived);
  // Queued: the port must not be closed from within its own notification.
  connect(&port_, &QSerialPort::errorOccurred, this, &SerialLink::OnPortError,
          Qt::QueuedConnection);
}

SerialLink::~SerialLink() {
  EndAtOnce();
}

void SerialLink::EndAtOnce() {
  cancelled_ = true;
  Close();
  awakening_.WakeAtOnce();
}

bool SerialLink::Open(const QString& path) {
  if (port_.isOpen()) {
    return false;
  }
  port_.setPortName(path);
  port_.setBaudRate(57600);
  port_.setDataBits(QSerialPort::Data8);
  port_.setParity(QSerialPort::NoParity);
  port_.setStopBits(QSerialPort::OneStop);
  port_.setFlowControl(QSerialPort::NoFlowControl);
  return port_.open(QIODevice::ReadWrite);
}

void SerialLink::Close() {
  if (port_.isOpen()) {
    port_.close();
  }
  awakening_.Wake();
}

bool SerialLink::Send(const QByteArray& frame) {
  if (!port_.isOpen() || awakening_.IsAwaited()) {
    return false;
  }
  // What came late from an earlier exchange must not answer this one, whether it is read already or
  // still lies in the system's buffer.
  port_.clear(QSerialPort::Input);
  ForgetReply();
  if (port_.write(frame) != frame.size()) {
    return false;
  }
  port_.flush();
  return true;
}

QCoro::Task<SerialLink::Reply> SerialLink::Receive(Kind kind) {
  Reply reply;
  deadline_.start(limitMs_);
  while (!HasArrived(kind, reply)) {
    if (cancelled_ || !deadline_.isActive() || !port_.isOpen()) {
      reply.end = cancelled_        ? Reply::End::kCancelled
                  : !port_.isOpen() ? Reply::End::kClosed
                                    : Reply::End::kTimeOut;
      break;
    }
    co_await awakening_.Sleep();
  }
  deadline_.stop();
  ForgetReply();
  co_return reply;
}

QCoro::Task<> SerialLink::Sleep(int ms) {
  QTimer timer;
  timer.setTimerType(Qt::PreciseTimer);
  timer.setSingleShot(true);
  timer.callOnTimeout([this] { awakening_.Wake(); });
  timer.start(ms);
  while (timer.isActive() && port_.isOpen() && !cancelled_) {
    co_await awakening_.Sleep();
  }
}

void SerialLink::Cancel() {
  cancelled_ = true;
  awakening_.Wake();
}

void SerialLink::Resume(int limitMs) {
  cancelled_ = false;
  limitMs_ = limitMs;
}

bool SerialLink::HasArrived(Kind kind, Reply& reply) {
  const bool command = kind == Kind::kCommand;
  if (command && status_ == LinkStatus::kRequestError) {
    reply.end = Reply::End::kError;
    return true;
  }
  if (status_ == (command ? LinkStatus::kRequestEnd : LinkStatus::kDataEnd)) {
    const std::span<const std::uint8_t> body = ring_.Body();
    reply.end = Reply::End::kComplete;
    reply.body =
        QByteArray(reinterpret_cast<const char*>(body.data()), static_cast<qsizetype>(body.size()));
    return true;
  }
  if (command && status_ == LinkStatus::kBytesArriving) {
    status_ = LinkStatus::kNone;
  }
  return false;
}

void SerialLink::ForgetReply() {
  ring_.Reset();
  status_ = LinkStatus::kNone;
}

void SerialLink::OnBytesReceived() {
  ring_.Append(port_.readAll());
  status_ = ring_.Evaluate(status_);
  awakening_.Wake();
}

// Looks at the error that the port has by now: an older one may lie before a successful opening.
void SerialLink::OnPortError() {
  switch (port_.error()) {
    case QSerialPort::NoError:
    case QSerialPort::TimeoutError:
      return;
    case QSerialPort::DeviceNotFoundError:
    case QSerialPort::ReadError:
    case QSerialPort::WriteError:
    case QSerialPort::ResourceError:
    case QSerialPort::NotOpenError:
      Close();
      break;
    default:
      status_ = LinkStatus::kPortError;
      awakening_.Wake();
  }
}

}  // namespace vexa
