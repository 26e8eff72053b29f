// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoroTask>
#include <QMenu>
#include <QObject>
#include <QString>

#include "base/message.h"
#include "files/program_preferences.h"
#include "measurement/instrument_desk.h"
#include "measurement/session.h"
#include "views/common/file_dialogs.h"

namespace vexa {

/// Data and environment files on their way in and out, however they are named: by a dialog, in the
/// menu of the recently used ones, dropped onto the window, or when the program starts.
class FileOpener : public QObject {
  Q_OBJECT

 public:
  /// At most so many are in the menu.
  static constexpr qsizetype kRecentFiles = 10;

  /// `recent` is the menu that it fills; `window` is where files are dropped.
  FileOpener(QMenu& recent, Session& session, InstrumentDesk& desk, ProgramPreferences& preferences,
             MessageService& messages, FileDialogs& dialogs, QWidget& window);

  /// Files are opened only while nothing runs.
  void ShowAvailable(bool idle);

  QCoro::Task<> AskForData();
  QCoro::Task<> AskForEnvironment();
  QCoro::Task<> SaveDataAs();
  QCoro::Task<> SaveEnvironmentAs();

  /// Opens a file (its whole path) as what it is, with the questions of the dialogs' commands.
  QCoro::Task<> Open(QString path);

 protected:
  /// Of the window: what is dropped.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QCoro::Task<> OpenDropped(QStringList paths);
  QCoro::Task<> TakeEnvironment();
  void Remember(const QString& path);
  void Forget(const QString& path);
  void RememberEnvironment();
  void FillMenu();

  QMenu& recent_;
  Session& session_;
  const VEXATYPE& state_;
  InstrumentDesk& desk_;
  ProgramPreferences& preferences_;
  MessageService& messages_;
  FileDialogs& dialogs_;
  bool idle_ = false;
};

}  // namespace vexa
