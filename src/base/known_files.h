// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

namespace vexa {

/// What files held when this program last read or wrote them: one that holds something else by now
/// was changed by another.
class KnownFiles {
 public:
  /// Remembers what the file holds, or that there is none. To be called before it is read and after
  /// it was written, so that no change of another is overlooked.
  void Remember(const QString& path);
  /// Remembers what another knows, in the place of what it knew of the same files.
  void Remember(const KnownFiles& others) { digests_.insert(others.digests_); }

  /// Whether a remembered file holds something else now. In one that is gone nothing can be lost.
  [[nodiscard]] bool IsChangedByOthers(const QString& path) const;

 private:
  QHash<QString, QByteArray> digests_;  ///< by absolute path; empty where there was no file
};

}  // namespace vexa
