// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <functional>
#include <vector>

#include "app/file_opener.h"
#include "app/main_menu.h"
#include "files/program_preferences.h"
#include "measurement/instrument_desk.h"
#include "records/record_reader.h"
#include "records/record_settings.h"
#include "records/session_recorder.h"
#include "views/common/file_dialogs.h"
#include "views/paper/current_printer.h"
#include "views/print/report_request.h"

class QWidget;

namespace vexa {

class ThickGraph;

/// What the windows of the menu work with.
struct WindowParts {
  Session& session;
  InstrumentDesk& desk;
  SessionRecorder& recorder;
  const RecordSettings& recordSettings;
  ProgramPreferences& preferences;
  MessageService& messages;
  FileDialogs& dialogs;
  /// Has the graph show the mean and spread of these slots as well.
  std::function<void(const std::vector<int>&)> showSpread;
  std::function<int()> selectedSlot;  ///< the slot (1..10) that is shown; 0 for none
};

/// What the items of the menu do: the windows that they open, and the files that they read and
/// write. Windows are opened, not waited for: a measurement goes on under them.
class WindowCommands : public QObject {
  Q_OBJECT

 public:
  WindowCommands(const MenuCommands& menu, WindowParts parts, QWidget& window);

  /// Takes or gives away what must not happen while something runs.
  void ShowAvailable(bool usable);

  [[nodiscard]] FileOpener& Files() { return files_; }

 signals:
  /// The main window shows another slot (1..10), or this one anew.
  void SlotShown(int slot);
  /// A window has put a row into the record store.
  void Recorded();

 private:
  void ConnectFiles();
  void ConnectWindows();
  void ConnectLanguages();
  void Do(QAction* action, std::function<void()> run);
  void Open(QAction* action, std::function<QDialog*()> make);
  /// Likewise a window that is kept beside the main one; an open one is brought to the front.
  void OpenBeside(QAction* action, std::function<QDialog*()> make);
  QCoro::Task<> TakeOverController();
  void Print();
  void KeepLanguage(const QString& code);
  void ShowThicknessGraph();
  [[nodiscard]] QDialog* MakeRecordsWindow();
  void PrintRecords(const QList<WholeRecord>& records);
  [[nodiscard]] QString StorePath() const;
  [[nodiscard]] QDialog* MakeSettingsList();

  const MenuCommands& menu_;
  Session& session_;
  const VEXATYPE& state_;
  InstrumentDesk& desk_;
  SessionRecorder& recorder_;
  const RecordSettings& recordSettings_;
  ProgramPreferences& preferences_;
  MessageService& messages_;
  FileDialogs& dialogs_;
  std::function<void(const std::vector<int>&)> showSpread_;
  std::function<int()> selectedSlot_;
  QWidget& window_;
  FileOpener files_;
  CurrentPrinter printer_;
  ReportRequest report_;  ///< as printed last
  ThickGraph* thicknessGraph_ = nullptr;
  RecordReader reader_;
};

}  // namespace vexa
