// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>
#include <QTimer>
#include <functional>
#include <memory>

#include "app/main_menu.h"
#include "app/session_journal.h"
#include "base/message.h"
#include "instrument/controller.h"
#include "measurement/measurement_sequence.h"
#include "measurement/vexatype.h"
#include "views/common/file_dialogs.h"
#include "views/files/saved_slots.h"
#include "views/paper/current_printer.h"
#include "views/print/report_request.h"

namespace vexa {

class ColourPanel;
class MainViews;
class MeasurementBar;
class ProgressStrip;
class StatusPanels;
class ThickGraph;
class ThicknessPanel;

/// What the main window is given from outside.
struct Services {
  MessageService& messages;
  FileDialogs& dialogs;
  MeasurementSequence::Clock clock;
  /// Makes the controller that the settings name.
  std::function<std::unique_ptr<Controller>(const VEXATYPE&)> makeController;
};

/// The main window: it owns the shared state and the controller, and puts the panels together.
class VEXA : public QMainWindow {
  Q_OBJECT

 public:
  /// `programDirectory` is where the settings files live.
  VEXA(Services services, const QString& programDirectory);
  ~VEXA() override;

  /// Brings the program into a measurable state. Waits for the controller in the event loop, so
  /// call it once the window is shown.
  void Load();

  /// Offers what a crash has left; call it once Load has ended. Waits as Load does.
  void OfferSession();

  [[nodiscard]] int GetOption() const;
  [[nodiscard]] const VEXATYPE& State() const { return state_; }
  [[nodiscard]] const MenuCommands& Commands() const { return commands_; }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void BuildPanels();
  QWidget* BuildResults();
  void ConnectCommands();
  void ConnectSequence();
  void StartController();
  [[nodiscard]] bool Unload();
  void TakeOverEnvironment();
  ThickGraph& ThicknessGraph();
  void Print();
  void ShowThicknessGraph();
  void Refresh();
  void UpdateCommands();

  Services services_;
  VEXATYPE state_;
  std::unique_ptr<Controller> controller_;
  MeasurementSequence sequence_;
  SessionJournal journal_;
  QTimer ageTimer_;
  CurrentPrinter printer_;
  ReportRequest report_;  ///< as printed last
  SavedSlots saved_;
  MenuCommands commands_{};
  MeasurementBar* bar_ = nullptr;
  ProgressStrip* progress_ = nullptr;
  ColourPanel* colour_ = nullptr;
  MainViews* views_ = nullptr;
  ThicknessPanel* thickness_ = nullptr;
  ThickGraph* thicknessGraph_ = nullptr;
  StatusPanels* status_ = nullptr;
  bool loading_ = false;
  bool controllerReady_ = false;
  bool unloaded_ = false;
};

}  // namespace vexa
