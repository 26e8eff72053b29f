// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoroTask>
#include <QDialog>
#include <QStackedWidget>
#include <memory>

#include "files/program_preferences.h"
#include "views/common/file_dialogs.h"
#include "views/lot/lot_run.h"

namespace vexa {

class CurrentPrinter;
class LotPage;
class LotStartPage;

/// What the window of the lots works with.
struct LotParts {
  Session& session;
  InstrumentDesk& desk;
  SessionRecorder& recorder;
  ProgramPreferences& preferences;
  MessageService& messages;
  FileDialogs& dialogs;
  CurrentPrinter& printer;
};

/// Measures lots, by keys alone: what is measured is entered once, then each lens takes one key or
/// one scan. A lot that the store knows is gone on with.
class LotWindow : public QDialog {
  Q_OBJECT

 public:
  explicit LotWindow(const LotParts& parts, QWidget* parent = nullptr);

  /// Escape ends no lot.
  void reject() override {}

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  QCoro::Task<> Start();
  void End();
  void Report(const QString& lot);
  void TellUnreadable(StoreFault fault);
  [[nodiscard]] bool TakeRecipe(const Recipe& recipe);
  [[nodiscard]] std::optional<QList<RecordSummary>> RowsOf(const QString& lot);

  LotParts parts_;
  QStackedWidget* pages_;
  LotStartPage* start_;
  LotPage* page_ = nullptr;
  std::unique_ptr<LotRun> run_;
  bool closing_ = false;
};

}  // namespace vexa
