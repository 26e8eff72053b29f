// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

#include "base/background_thread.h"
#include "records/shared_store.h"

namespace vexa {

class SharedSenderWork;

/// Sends the rows of a local store to the shared one, on a thread of its own with connections of
/// its own. It begins by itself, goes on when it is woken, and tries again by itself after the
/// server or the net was away: after 1 s, and then after twice the time up to 60 s.
class SharedSender : public QObject {
  Q_OBJECT

 public:
  /// When it goes, what is just being sent is left: the batch holds whole or not at all.
  SharedSender(const QString& storePath, const QString& connection);

  /// There are new rows in the local store.
  void Wake() { emit Woken(); }

 signals:
  /// Whenever what was sent, what waits or the fault has changed. Of a server that was not reached
  /// yet, only rows that came since then are known to wait.
  void StatusChanged(vexa::SharedStatus status);
  void Woken();

 private:
  explicit SharedSender(SharedSenderWork* work);

  BackgroundThread thread_;
};

}  // namespace vexa
