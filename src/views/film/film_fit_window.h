// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCheckBox>
#include <QCoroTask>
#include <QDialog>
#include <QLabel>
#include <functional>
#include <map>

#include "base/message.h"
#include "files/program_preferences.h"
#include "measurement/session.h"
#include "optics/film_stack_file.h"
#include "views/common/elided_label.h"
#include "views/common/file_dialogs.h"
#include "views/film/film_fit_print.h"
#include "views/film/film_fit_run.h"

namespace vexa {

class CurrentPrinter;
class FilmFitConditions;
class FilmFitPlot;
class FilmFitResults;
class FilmStackEditor;
class FourierPlot;

/// Fits a film stack to the selected slot or to all. The fits are kept with the slots; the stack is
/// kept in a file, which the settings of the program name.
class FilmFitWindow : public QDialog {
  Q_OBJECT

 public:
  FilmFitWindow(Session& session, ProgramPreferences& preferences, CurrentPrinter& printer,
                MessageService& messages, FileDialogs& dialogs, int selectedSlot,
                QWidget* parent = nullptr);

  /// Shows what the slot (1..10) holds; it is the one that is fitted from now on.
  void ShowSlot(int slot);

  /// Nothing is being fitted.
  [[nodiscard]] bool IsDone() const { return run_.Left() == 0; }

  /// Asks first when the stack was changed and is not saved.
  void done(int result) override;

 private:
  QWidget* BuildEntries();
  QWidget* BuildButtons();
  void ConnectSession();
  void ShowSetting(const FilmStackSetting& setting);
  [[nodiscard]] QString FileName() const;
  void ShowFileName();
  void ReadNamedFile();
  [[nodiscard]] QString Directory() const;
  bool TakeEntries();
  void FitSlots(bool all);
  void TakeFit(int slot, const FilmFitRun::Result& result);
  QCoro::Task<> FitEachSample(bool on);
  QCoro::Task<> OpenStack();
  QCoro::Task<bool> SaveStack();
  QCoro::Task<> Leave();
  bool ReadStack(const QString& path);
  void ChangePreferences(const std::function<void(ProgramSettings&)>& change);
  void Refresh();
  [[nodiscard]] FilmFitReport Report() const;
  void Copy() const;
  void Print();

  Session& session_;
  const VEXATYPE& state_;
  ProgramPreferences& preferences_;
  CurrentPrinter& printer_;
  MessageService& messages_;
  FileDialogs& dialogs_;
  int slot_;
  FilmStackSetting setting_;  ///< as entered last
  FilmFitRequest request_;    ///< what it asks; without layers before the first fit
  bool changed_ = false;      ///< since the file was read or written
  bool edited_ = false;       ///< the entries are others than the setting
  std::map<int, FilmFitRun::Spectrum> fitting_;
  std::map<int, FilmFitFault> refused_;
  FilmStackEditor* stack_;
  FilmFitConditions* conditions_;
  ElidedLabel* file_;
  QCheckBox* each_;
  QLabel* progress_;
  FilmFitPlot* plot_;
  FourierPlot* fourier_;
  FilmFitResults* results_;
  FilmFitRun run_;
};

}  // namespace vexa
