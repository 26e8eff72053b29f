// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QLabel>
#include <QRadioButton>
#include <optional>

#include "measurement/session.h"
#include "views/standards/conditions_group.h"
#include "views/standards/limits_group.h"
#include "views/standards/marker_group.h"
#include "views/standards/standard_files.h"

namespace vexa {

/// The window of the standards. It edits a copy, and the name of the standard file with it: loading
/// and saving change the copy and the file alone. OK checks the entries, makes them the standards
/// in force and judges the valid slots again; everything else leaves them as they were.
class StandardFrm : public QDialog {
  Q_OBJECT

 public:
  StandardFrm(Session& session, MessageService& messages, FileDialogs& dialogs,
              QWidget* parent = nullptr);

  void accept() override;

 private:
  QWidget* BuildGroups();
  QWidget* BuildPeakChoice();
  QLayout* BuildFileRow();
  void Show(const StandardContents& contents);
  void ShowFileName();
  /// What was entered; nothing, and a message, when it is no standard.
  std::optional<StandardContents> Entered();
  QLineEdit* TakeInto(StandardContents& contents, QString& where) const;
  [[nodiscard]] QLineEdit* FieldAtFault(const StandardSet& entered) const;
  QCoro::Task<> Load();
  QCoro::Task<> Save();

  Session& session_;
  const VEXATYPE& state_;
  MessageService& messages_;
  FileDialogs& dialogs_;
  QString fileName_;
  std::optional<StandardContents> inFile_;  ///< what the file of that name is known to hold
  std::int16_t shownSelector_ = 1;

  ConditionsGroup* conditions_;
  LimitsGroup* average_;
  LimitsGroup* luminous_;
  LimitsGroup* wavelengthValue_;
  LimitsGroup* chroma_;
  LimitsGroup* hue_;
  MarkerGroup* chromaMarker_;
  MarkerGroup* hueMarker_;
  QRadioButton* peak_;
  QRadioButton* bottom_;
  QLabel* fileLabel_;
  QLabel* fileHint_;
};

}  // namespace vexa
