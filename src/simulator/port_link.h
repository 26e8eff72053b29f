// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
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
  /// system once nobody serves it) is replaced; anything else of that name stays. Gives back why it
  /// failed, empty when it succeeded.
  [[nodiscard]] QString Make(const QByteArray& devicePath);

  void Remove();

 private:
  [[nodiscard]] bool LeadsNowhere() const;

  QString path_;
  QByteArray encodedPath_;
  QByteArray devicePath_;
};

}  // namespace vexa::simulator
