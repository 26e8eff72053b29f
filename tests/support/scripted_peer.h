// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>
#include <QString>
#include <map>
#include <memory>
#include <vector>

#include "support/temporary_files.h"

namespace vexa::test {

/// What the peer does with a frame instead of answering it as a controller would.
enum class PeerAction {
  kAnswer,
  kSilence,          ///< nothing is sent
  kErrorReply,       ///< "REQERR"
  kOtherReply,       ///< a command reply that says something else
  kShortLine,        ///< the last byte before the terminator is missing
  kByteByByte,       ///< every byte in a write of its own
  kSplitTerminator,  ///< the terminator in two writes with a turn of the event loop between
  kNoiseBefore,      ///< three bytes before the reply
  kUnplug,           ///< the device goes away
};

/// A controller at the other end of a real pseudo-terminal, in the test's own event loop. It
/// records every 4-byte frame and answers shutter, sampling, scan and initialise commands with
/// "OK", a measurement with "END", a quit with "QUIT" and a data request with `lines`. An action
/// can be set for the n-th frame from now on (counted from 1).
///
/// On a busy machine a test stands still for longer than any short time-out, and what it sent to
/// itself would count as silence. So a time-out of kReplyTimeoutMs takes effect only the fifth time
/// that it is due, after about 100 ms: between two of them the event loop turns, and an answer that
/// is on its way arrives. No other timer of a test may have this interval.
class ScriptedPeer : public QObject {
  Q_OBJECT

 public:
  /// The reply time-out of a controller that is to talk to this peer.
  static constexpr int kReplyTimeoutMs = 23;

  ScriptedPeer();
  ~ScriptedPeer() override;

  /// Path of the link to the terminal, "com5" among `files`.
  [[nodiscard]] QString Path() const;
  [[nodiscard]] QString Directory() const { return files.Directory(); }

  void At(int frame, PeerAction action) { actions_[received_ + frame] = action; }
  void SetLines(QByteArray lines) { lines_ = std::move(lines); }

  /// The frames since the last call, as upper-case hexadecimal texts.
  std::vector<std::string> TakeFrames();

  /// All frames so far.
  [[nodiscard]] int FramesReceived() const { return received_; }

  /// Sends bytes that nobody asked for.
  void Send(const QByteArray& bytes);

  /// Plugs a terminal in again after kUnplug.
  void Plug();

  const TemporaryFiles files;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Unplug();
  void WritePending();
  void OnReadable();
  void Answer(const QByteArray& frame, PeerAction action);
  [[nodiscard]] QByteArray ReplyTo(const QByteArray& frame) const;

  int master_ = -1;
  std::unique_ptr<QSocketNotifier> notifier_;
  QByteArray pending_;
  QByteArray unsent_;
  QByteArray lines_;
  std::vector<std::string> frames_;
  std::map<int, PeerAction> actions_;
  int received_ = 0;
  std::map<int, int> timesDue_;  ///< of a time-out by its timer's number
};

/// `count` detector lines in which every pixel has the same value.
[[nodiscard]] QByteArray FlatLines(int count, int value);

}  // namespace vexa::test
