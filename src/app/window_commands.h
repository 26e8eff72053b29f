// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <functional>

#include "app/instrument_desk.h"
#include "app/main_menu.h"
#include "views/common/file_dialogs.h"
#include "views/paper/current_printer.h"
#include "views/print/report_request.h"

class QWidget;

namespace vexa {

class ThickGraph;

/// What the items of the menu do: the windows that they open, and the files that they read and
/// write. Windows are opened, not waited for: a measurement goes on under them.
class WindowCommands : public QObject {
  Q_OBJECT

 public:
  /// `selectedSlot` tells the slot that is shown.
  WindowCommands(const MenuCommands& menu, Session& session, InstrumentDesk& desk,
                 MessageService& messages, FileDialogs& dialogs, std::function<int()> selectedSlot,
                 QWidget& window);

  /// Takes or gives away what must not happen while something runs.
  void ShowAvailable(bool usable);

 private:
  void ConnectFiles();
  void ConnectWindows();
  void ConnectLanguages();
  void Do(QAction* action, std::function<void()> run);
  void Open(QAction* action, std::function<QDialog*()> make);
  QCoro::Task<> TakeOverEnvironment();
  QCoro::Task<> TakeOverController();
  void Print();
  void KeepLanguage(const QString& code);
  void ShowThicknessGraph();
  [[nodiscard]] QDialog* MakeSettingsList();

  const MenuCommands& menu_;
  Session& session_;
  const VEXATYPE& state_;
  InstrumentDesk& desk_;
  MessageService& messages_;
  FileDialogs& dialogs_;
  std::function<int()> selectedSlot_;
  QWidget& window_;
  CurrentPrinter printer_;
  ReportRequest report_;  ///< as printed last
  ThickGraph* thicknessGraph_ = nullptr;
};

}  // namespace vexa
