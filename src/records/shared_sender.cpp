// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/shared_sender.h"

#include <QThread>
#include <QTimer>
#include <algorithm>
#include <optional>
#include <utility>

namespace vexa {
namespace {

constexpr int kFirstRetryMs = 1000;
constexpr int kLastRetryMs = 60000;
constexpr int kLookMs = 10000;  ///< for what other programs have written

}  // namespace

/// Lives on the thread of the sender.
class SharedSenderWork : public BackgroundWork {
 public:
  SharedSenderWork(QString storePath, QString connection, SharedSender& sender)
      : storePath_(std::move(storePath)), connection_(std::move(connection)), sender_(sender) {
    again_.setSingleShot(true);
    connect(&again_, &QTimer::timeout, this, &SharedSenderWork::Send);
  }

  void Send() {
    again_.stop();
    const SharedStatus status = SendAll();
    Tell(status);
    if (status.fault == StoreFault::kNone) {
      retryMs_ = kFirstRetryMs;
      again_.start(kLookMs);
      return;
    }
    shared_.Close();
    local_.Close();
    again_.start(retryMs_);
    retryMs_ = std::min(2 * retryMs_, kLastRetryMs);
  }

 private:
  SharedStatus SendAll() {
    SharedStatus status;
    if (!local_.IsInPlace()) {
      status.fault = local_.Open(storePath_, RecordStore::Mode::kRead);
      if (status.fault == StoreFault::kMissing) {
        return {};  // nothing was measured yet
      }
    }
    const qint64 end = local_.IsInPlace() ? local_.Head().value.number : known_.value_or(0);
    if (status.fault == StoreFault::kNone && !shared_.IsOpen()) {
      status.fault = shared_.Open(connection_);
    }
    if (status.fault == StoreFault::kNone) {
      status = shared_.Send(local_, [this](const SharedStatus& now) {
        Tell(now);
        return !QThread::currentThread()->isInterruptionRequested();
      });
    }
    if (!shared_.IsOpen() || status.fault == StoreFault::kUnreachable) {
      known_ = known_.value_or(end);  // nothing else can be known of a server never reached
      status.waiting = std::max<qint64>(end - *known_, 0);  // the store may have been replaced
    } else {
      known_ = end - status.waiting;
    }
    return status;
  }

  void Tell(const SharedStatus& status) {
    if (status != std::exchange(last_, status)) {
      emit Posted([sender = &sender_, status] { emit sender->StatusChanged(status); });
    }
  }

  QString storePath_;
  QString connection_;
  SharedSender& sender_;  // for the calls that are posted to it alone
  RecordStore local_;
  SharedStore shared_;
  SharedStatus last_;
  std::optional<qint64> known_;  // the last row that was sent, as far as is known
  QTimer again_{this};
  int retryMs_ = kFirstRetryMs;
};

SharedSender::SharedSender(const QString& storePath, const QString& connection)
    : SharedSender(new SharedSenderWork(storePath, connection, *this)) {}

SharedSender::SharedSender(SharedSenderWork* work) : thread_(work, *this) {
  connect(this, &SharedSender::Woken, work, &SharedSenderWork::Send);
  Wake();
}

}  // namespace vexa
