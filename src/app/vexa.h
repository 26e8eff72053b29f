// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoroTask>
#include <QLockFile>
#include <QMainWindow>

#include "app/main_menu.h"
#include "app/session_journal.h"
#include "app/station_records.h"
#include "base/message.h"
#include "files/program_preferences.h"
#include "measurement/instrument_desk.h"
#include "measurement/session.h"
#include "views/common/file_dialogs.h"

namespace vexa {

class MainPanels;
class StatusPanels;
class WindowCommands;

/// What the main window is given from outside.
struct Services {
  MessageService& messages;
  FileDialogs& dialogs;
  Session::Clock clock;
  InstrumentDesk::MakeController makeController;
};

/// The main window: it owns the session, and puts instrument, journal, panels and menu together.
class VEXA : public QMainWindow {
  Q_OBJECT

 public:
  /// `programDirectory` is where the settings files live.
  VEXA(Services services, const QString& programDirectory);
  ~VEXA() override;

  /// Brings the program into a measurable state; done when the controller has answered, or not.
  QCoro::Task<> Load();

  /// Offers what a crash has left; to be called once Load is done.
  QCoro::Task<> OfferSession();

  /// Opens the file that the program was started with, as the menu does; once Load is done.
  QCoro::Task<> OpenFile(QString path);

  /// Ends the program as a signal asks it to: whatever runs is cancelled, the instrument is set to
  /// rest, nothing is asked, and the journal stays for the next start. Whoever asked ends the event
  /// loop then.
  QCoro::Task<> EndAtOnce();

  [[nodiscard]] int GetOption() const;
  [[nodiscard]] const VEXATYPE& State() const { return session_.State(); }
  [[nodiscard]] const MenuCommands& Commands() const { return menu_; }
  [[nodiscard]] InstrumentDesk& Desk() { return desk_; }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  /// What the program is doing, besides what the instrument does.
  enum class Phase { kStarting, kWorking, kEnding, kEnded };

  QCoro::Task<> End();
  QCoro::Task<bool> Unload();
  void TellOfAnotherWindow();
  void ListenToSession();
  void ShowSelected();
  void Refresh();
  void SetPhase(Phase phase);
  void ShowAvailable();

  Services services_;
  QLockFile lock_;  ///< of the program directory, by the first window in it
  Session session_;
  InstrumentDesk desk_;
  SessionJournal journal_;
  StationRecords records_;
  ProgramPreferences preferences_;
  Phase phase_ = Phase::kStarting;
  MenuCommands menu_{};
  MainPanels* panels_ = nullptr;
  StatusPanels* status_ = nullptr;
  WindowCommands* commands_ = nullptr;
};

}  // namespace vexa
