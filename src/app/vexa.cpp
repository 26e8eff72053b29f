// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/vexa.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QMenuBar>
#include <QPointer>
#include <utility>

#include "app/main_panels.h"
#include "app/status_panels.h"
#include "app/window_commands.h"
#include "files/configuration.h"
#include "files/film_stack_start.h"
#include "files/startup_file.h"
#include "measurement/dispersion_data.h"
#include "views/common/file_questions.h"
#include "views/common/window_size.h"
#include "views/files/environment_commands.h"
#include "views/standards/standard_files.h"

namespace vexa {

VEXA::VEXA(Services services, const QString& programDirectory)
    : services_(std::move(services)),
      lock_(QDir(programDirectory).filePath(QStringLiteral("vexa.lock"))),
      session_(programDirectory, services_.clock),
      desk_(session_, services_.messages, services_.makeController),
      journal_(session_, services_.messages),
      records_(session_, services_.messages),
      preferences_(programDirectory),
      menu_(BuildMenu(*menuBar())),
      panels_(new MainPanels(session_, desk_, services_.messages, services_.dialogs)),
      status_(new StatusPanels),
      commands_(new WindowCommands(
          menu_,
          {session_, desk_, records_.Recorder(), records_.Settings(), preferences_,
           services_.messages, services_.dialogs,
           [this](const std::vector<int>& slotNumbers) { panels_->ShowSpread(slotNumbers); },
           [this] { return GetOption(); }},
          *this)) {
  commands_->setParent(this);
  setCentralWidget(panels_);
  setStatusBar(status_);
  ResizeWithinScreen(*this, {1280, 900});
  ListenToSession();
  const auto showCie = [this] { panels_->ShowCie(preferences_.InForce().showCie); };
  connect(&preferences_, &ProgramPreferences::Changed, this, showCie);
  showCie();
  Refresh();
  ShowAvailable();
}

VEXA::~VEXA() {
  phase_ = Phase::kEnded;
  desk_.EndAtOnce();  // what waits for the instrument ends with all else in place
}

QCoro::Task<> VEXA::Load() {
  SetPhase(Phase::kStarting);
  setWindowTitle(QStringLiteral("MERIDOX ") + QStringLiteral("VEXA-KT-440 Ver3.21"));
  TellOfAnotherWindow();
  Settings settings = session_.SettingsInForce();
  TellAll(LoadConfiguration(settings), services_.messages);
  session_.TakeSettings(settings);
  records_.TellOfSettings();
  co_await desk_.Connect();
  if (phase_ != Phase::kStarting) {
    co_return;
  }
  settings = session_.SettingsInForce();
  TellAll(LoadDispersionData(settings).notices, services_.messages);
  session_.TakeSettings(settings);
  if (const auto notice = TakeFilmStack(preferences_.InForce(), session_)) {
    services_.messages.Tell(*notice);
  }
  co_await desk_.SendSampling();
  if (phase_ != Phase::kStarting) {
    co_return;
  }
  setWindowTitle(QStringLiteral("MERIDOX VEXA-KT"));
  SetPhase(Phase::kWorking);
}

QCoro::Task<> VEXA::OfferSession() {
  if (phase_ != Phase::kWorking) {
    co_return;
  }
  const bool restored = co_await journal_.Offer();
  // A controller that has just been started keeps the light path closed until a background comes.
  if (restored && State().backgroundMeasured && phase_ == Phase::kWorking) {
    co_await desk_.OpenLightPath();
  }
}

QCoro::Task<> VEXA::OpenFile(QString path) {
  if (phase_ == Phase::kWorking) {
    co_await commands_->Files().Open(std::move(path));
  }
}

QCoro::Task<> VEXA::EndAtOnce() {
  SetPhase(Phase::kEnding);
  co_await desk_.Finish();
  journal_.EndUnasked();
  desk_.Close();
  SetPhase(Phase::kEnded);
}

int VEXA::GetOption() const {
  return panels_->SelectedSlot();
}

void VEXA::closeEvent(QCloseEvent* event) {
  if (phase_ == Phase::kStarting || phase_ == Phase::kWorking) {
    End();
  }
  event->setAccepted(phase_ == Phase::kEnded);
}

// Asks what there is to ask, puts everything to rest and closes the window for good; any refusal on
// the way leaves the program as it was.
QCoro::Task<> VEXA::End() {
  const Phase before = phase_;
  SetPhase(Phase::kEnding);
  const QPointer<VEXA> alive(this);
  bool ending = true;
  if (!desk_.IsIdle()) {
    const MessageCall question{Message::kEndMeasurement};
    const MessageResult answer = co_await services_.messages.Ask(question);
    ending = answer == MessageResult::kOk;
  }
  if (ending) {
    co_await desk_.Finish();
    ending = co_await Unload();
  }
  // What is asked is refused, too, when a signal ends the program meanwhile.
  if (alive == nullptr || phase_ != Phase::kEnding) {
    co_return;
  }
  SetPhase(ending ? Phase::kEnded : before);
  if (ending) {
    close();
  } else if (before == Phase::kStarting && desk_.IsIdle()) {
    co_await Load();  // the first one has ended without a result
  }
}

QCoro::Task<bool> VEXA::Unload() {
  const bool standardsKept =
      co_await SaveStandardsBeforeExit(session_, services_.messages, services_.dialogs);
  if (!standardsKept) {
    co_return false;
  }
  const QString path = CompletePath(State(), State().envFileName);
  const MessageCall question{Message::kSaveEnvironment, {path}};
  const MessageResult answer = co_await services_.messages.Ask(question);
  if (answer == MessageResult::kCancel) {
    co_return false;
  }
  if (answer == MessageResult::kYes) {
    const bool saved = co_await SaveEnvironment(session_, services_.messages);
    if (!saved) {
      co_return false;
    }
  }
  const QString startup = StartupPath(State().programDirectory);
  const bool may = co_await MayReplaceKnown(State().knownFiles, startup, services_.messages);
  if (may) {
    (void)TellWritten(WriteStartupFile(State()), startup, services_.messages);
  }
  journal_.End();
  desk_.Close();
  co_return true;
}

// Only a notice: one window more may be wanted, to look at files while the other measures. Nor does
// a directory that takes no lock hold the program up: it takes no settings either.
void VEXA::TellOfAnotherWindow() {
  // The lock of a window that runs never ages; that of a dead one is void.
  lock_.setStaleLockTime(0);
  if (!lock_.isLocked() && !lock_.tryLock() && lock_.error() == QLockFile::LockFailedError) {
    services_.messages.Tell(
        {Message::kAnotherWindow, {QDir::toNativeSeparators(State().programDirectory)}});
  }
}

void VEXA::ListenToSession() {
  connect(&session_, &Session::FrameChanged, this, &VEXA::Refresh);
  connect(&session_, &Session::SlotChanged, this, &VEXA::Refresh);
  connect(&session_, &Session::SlotsReplaced, this, [this] {
    panels_->SelectSlot(session_.FirstValidSlot().value_or(GetOption()));
    ShowSelected();
  });
  connect(&session_, &Session::SampleStored, this, [this](int slot) {
    panels_->SelectSlot(slot);
    ShowSelected();
  });
  connect(&session_, &Session::SettingsChanged, this, &VEXA::Refresh);
  connect(&session_, &Session::StockChanged, this, &VEXA::Refresh);
  connect(commands_, &WindowCommands::Recorded, &records_, &StationRecords::Send);
  connect(&records_, &StationRecords::SharedStatusChanged, status_, &StatusPanels::ShowShared);
  connect(&desk_, &InstrumentDesk::ActivityChanged, this, &VEXA::ShowAvailable);
  connect(panels_, &MainPanels::SlotSelected, this, &VEXA::ShowSelected);
  connect(panels_, &MainPanels::SampleInformationRequested, menu_.sampleInformation,
          &QAction::trigger);
}

void VEXA::ShowSelected() {
  emit commands_->SlotShown(GetOption());
  Refresh();
}

void VEXA::Refresh() {
  panels_->Show();
  menu_.views->actions().at(panels_->CurrentView())->setChecked(true);
  const MeasurementSlot* selected = State().Slot(GetOption());
  status_->ShowJudgement(selected != nullptr && selected->valid ? selected->judgement
                                                                : Judgement());
  status_->ShowEnvironmentName(State().envFileName);
}

void VEXA::SetPhase(Phase phase) {
  phase_ = phase;
  ShowAvailable();
}

void VEXA::ShowAvailable() {
  const bool usable = phase_ == Phase::kWorking;
  panels_->ShowAvailable(usable);
  commands_->ShowAvailable(usable);
}

}  // namespace vexa
