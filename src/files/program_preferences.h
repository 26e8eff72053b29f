// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <functional>

#include "files/program_settings_file.h"

namespace vexa {

/// The settings of the program itself while it runs: read once at the start, written with every
/// change.
class ProgramPreferences : public QObject {
  Q_OBJECT

 public:
  /// The usual settings when the file cannot be read; who starts the program has told it.
  explicit ProgramPreferences(const QString& programDirectory);

  [[nodiscard]] const ProgramSettings& InForce() const { return settings_; }

  /// Puts a change in force and writes it. What another window has written since stays, but for
  /// what `change` itself changes. In force it is even when it cannot be written.
  WriteResult Change(const std::function<void(ProgramSettings&)>& change);

 signals:
  void Changed();

 private:
  QString programDirectory_;
  ProgramSettings settings_;
};

}  // namespace vexa
