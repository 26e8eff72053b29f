// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>

namespace vexa::simulator {

/// A pseudo-terminal in raw mode whose master end is ours, read and written without waiting. The
/// other end is held open here too, so that the program at the other end may close and open it
/// again at will; it finds the line empty then, as on a real port. Closed when made and when
/// destroyed.
class PseudoTerminal {
 public:
  PseudoTerminal() = default;
  PseudoTerminal(const PseudoTerminal&) = delete;
  PseudoTerminal& operator=(const PseudoTerminal&) = delete;
  ~PseudoTerminal() { Close(); }

  /// Makes the device; false (and closed, errno telling why) when the system cannot.
  [[nodiscard]] bool Open();
  void Close();

  [[nodiscard]] int MasterDescriptor() const { return master_; }
  /// Path of the device for the other program, such as /dev/pts/3; empty when closed.
  [[nodiscard]] const QByteArray& DevicePath() const { return devicePath_; }

  /// Becomes readable when a program opens or closes the other end; -1 when the system cannot tell.
  [[nodiscard]] int VisitDescriptor() const { return visits_; }

  /// Whether a program has the other end open, as of now; true when the system cannot tell. When
  /// the last one has closed it, what it left unread is thrown away, and it is free for anybody
  /// again.
  [[nodiscard]] bool IsVisited();

  /// The bytes that have arrived; empty when there are none.
  [[nodiscard]] QByteArray Read();

  /// Sends the bytes and gives back how many of them the system's buffer took (some kilobytes fit
  /// while nobody reads).
  [[nodiscard]] qsizetype Write(QByteArrayView bytes);

  /// Throws away what was sent and not read yet.
  void DiscardUnread();

 private:
  int master_ = -1;
  int device_ = -1;
  int visits_ = -1;
  int visitors_ = 0;
  QByteArray devicePath_;
};

}  // namespace vexa::simulator
