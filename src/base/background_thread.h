// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QThread>
#include <functional>

namespace vexa {

/// What works on a thread of its own for an owner on another one. It knows nothing of its owner,
/// which may be gone at any time, and says what it has to say by posting calls.
class BackgroundWork : public QObject {
  Q_OBJECT

 signals:
  /// Runs the call on the owner's thread, unless the owner is gone by then.
  void Posted(const std::function<void()>& call);
};

/// The thread of a work, with an event loop. When the owner goes, what runs is asked to end
/// (QThread::isInterruptionRequested) and waited for a moment; what hangs in a library's call to a
/// server that does not answer is left to itself.
class BackgroundThread {
 public:
  /// Takes the work over and starts; calls that it posts run as long as `owner` is there.
  BackgroundThread(BackgroundWork* work, QObject& owner);
  ~BackgroundThread();
  BackgroundThread(const BackgroundThread&) = delete;
  BackgroundThread& operator=(const BackgroundThread&) = delete;

  /// Whether one runs still that was left. A program that ends then must not tidy up what that
  /// thread may yet use: std::_Exit.
  [[nodiscard]] static bool AnyLeft();

 private:
  QThread* thread_;
};

}  // namespace vexa
