// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QLockFile>
#include <QString>

namespace vexa::simulator {

/// The link under which a program finds the device: "com5" in its directory. Removed again on
/// destruction, unless somebody else has put another link there meanwhile.
class PortLink {
 public:
  /// Names the link; makes nothing yet.
  PortLink(const QString& directory, int port);
  PortLink(const PortLink&) = delete;
  PortLink& operator=(const PortLink&) = delete;
  ~PortLink() { Remove(); }

  [[nodiscard]] QString Path() const { return path_; }

  /// Points the link at the device. A link to nothing (a pseudo-terminal goes from the file
  /// system once nobody serves it) is replaced, and one whose maker died without removing it, which
  /// its lock file tells: the number of its pseudo-terminal may be somebody else's by now. Anything
  /// else of that name stays. Gives back why it failed, empty when it succeeded.
  [[nodiscard]] QString Make(const QByteArray& devicePath);

  void Remove();

 private:
  [[nodiscard]] bool LeadsNowhere() const;

  QString path_;
  QByteArray encodedPath_;
  QByteArray devicePath_;
  QLockFile lock_;  ///< held as long as the link is served
};

}  // namespace vexa::simulator
