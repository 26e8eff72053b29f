// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include "base/message.h"
#include "files/program_preferences.h"

class QCheckBox;

namespace vexa {

/// The settings of the program itself, which no measurement depends on and no environment file
/// holds.
class ProgramSettingsDlg : public QDialog {
  Q_OBJECT

 public:
  /// `programDirectory` is named when the settings cannot be written.
  ProgramSettingsDlg(ProgramPreferences& preferences, const QString& programDirectory,
                     MessageService& messages, QWidget* parent = nullptr);

  void accept() override;

 private:
  ProgramPreferences& preferences_;
  QString programDirectory_;
  MessageService& messages_;
  QCheckBox* showCie_;
};

}  // namespace vexa
