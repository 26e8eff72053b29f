// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window_commands.h"

#include <QDialog>
#include <QMenu>
#include <QPointer>
#include <algorithm>
#include <utility>

#include "app/version_dialog.h"
#include "base/translation.h"
#include "files/program_settings_file.h"
#include "records/record_settings.h"
#include "views/colour/colour_difference_window.h"
#include "views/common/file_questions.h"
#include "views/common/quiet_messages.h"
#include "views/files/addinp_frm.h"
#include "views/files/environment_commands.h"
#include "views/film/film_fit_window.h"
#include "views/lot/lot_window.h"
#include "views/optics/ref_set_dlg.h"
#include "views/optics/thick_graph.h"
#include "views/optics/wave_list_dlg.h"
#include "views/print/page_header.h"
#include "views/print/print_dlg.h"
#include "views/print/print_setup_dlg.h"
#include "views/print/records_report.h"
#include "views/print/report.h"
#include "views/records/records_window.h"
#include "views/settings/calibration_dlg.h"
#include "views/settings/dispset.h"
#include "views/settings/program_settings_dlg.h"
#include "views/settings/sampling_dlg.h"
#include "views/settings/table.h"
#include "views/standards/standard_frm.h"
#include "views/statistics/control_chart_window.h"
#include "views/statistics/daily_check_window.h"
#include "views/statistics/gauge_study_window.h"
#include "views/statistics/slot_statistics_window.h"

namespace vexa {

WindowCommands::WindowCommands(const MenuCommands& menu, WindowParts parts, QWidget& window)
    : menu_(menu),
      session_(parts.session),
      state_(parts.session.State()),
      desk_(parts.desk),
      recorder_(parts.recorder),
      recordSettings_(parts.recordSettings),
      preferences_(parts.preferences),
      messages_(parts.messages),
      dialogs_(parts.dialogs),
      showSpread_(std::move(parts.showSpread)),
      selectedSlot_(std::move(parts.selectedSlot)),
      window_(window),
      files_(*menu.recentFiles, parts.session, parts.desk, parts.preferences, parts.messages,
             parts.dialogs, window),
      printer_(parts.session.State(), parts.messages, parts.dialogs),
      reader_(StorePath(), parts.recordSettings.shared) {
  ConnectFiles();
  ConnectWindows();
  ConnectLanguages();
}

void WindowCommands::ShowAvailable(bool usable) {
  const bool idle = usable && desk_.IsIdle();
  for (QAction* action : {menu_.openFile, menu_.openEnvironment, menu_.sampleInformation}) {
    action->setEnabled(idle);
  }
  files_.ShowAvailable(idle);
  menu_.samplingSettings->setEnabled(idle && desk_.IsReady());
  menu_.reconnect->setEnabled(idle && !desk_.IsReady());
}

void WindowCommands::ConnectFiles() {
  Do(menu_.openFile, [this] { files_.AskForData(); });
  Do(menu_.saveFileAs, [this] { files_.SaveDataAs(); });
  Do(menu_.openEnvironment, [this] { files_.AskForEnvironment(); });
  Do(menu_.saveEnvironment, [this] { SaveEnvironment(session_, messages_); });
  Do(menu_.saveEnvironmentAs, [this] { files_.SaveEnvironmentAs(); });
  Do(menu_.print, [this] { Print(); });
  Do(menu_.quit, [this] { window_.close(); });
  Do(menu_.reconnect, [this] { TakeOverController(); });
  for (QAction* view : menu_.views->actions()) {
    Do(view, [this, view] { session_.SetView(static_cast<std::int16_t>(view->data().toInt())); });
  }
}

void WindowCommands::ConnectWindows() {
  Open(menu_.printSettings, [this] { return new PrintSetupDlg(printer_, messages_, &window_); });
  Open(menu_.sampleInformation,
       [this] { return new AddinpFrm(session_, messages_, selectedSlot_(), &window_); });
  Open(menu_.referenceSettings, [this] {
    return new RefSetDlg(RefSetDlg::Mode::kReference, session_, messages_, dialogs_, &window_);
  });
  Open(menu_.thicknessSettings, [this] {
    return new RefSetDlg(RefSetDlg::Mode::kThickness, session_, messages_, dialogs_, &window_);
  });
  Open(menu_.displaySettings, [this] { return new dispset(session_, messages_, &window_); });
  Open(menu_.programSettings, [this] {
    return new ProgramSettingsDlg(preferences_, state_.programDirectory, messages_, &window_);
  });
  Open(menu_.settingsList, [this] { return MakeSettingsList(); });
  Open(menu_.colourDifference, [this] {
    return new ColourDifferenceWindow(state_, selectedSlot_(), printer_, messages_, dialogs_,
                                      &window_);
  });
  Open(menu_.standards,
       [this] { return new StandardFrm(session_, messages_, dialogs_, &window_); });
  Open(menu_.samplingSettings, [this] {
    auto* dialog = new SamplingDlg(session_, messages_, &window_);
    connect(dialog, &QDialog::accepted, &desk_, &InstrumentDesk::SendSampling);
    return dialog;
  });
  Open(menu_.calibration, [this] { return new CalibrationDlg(session_, messages_, &window_); });
  Open(menu_.version, [this] { return MakeVersionDialog(&window_); });
  OpenBeside(menu_.wavelengthList, [this] {
    auto* dialog = new WaveListDlg(state_, selectedSlot_(), printer_, &window_);
    connect(this, &WindowCommands::SlotShown, dialog, &WaveListDlg::Show);
    connect(&session_, &Session::SlotChanged, dialog,
            [this, dialog] { dialog->Show(selectedSlot_()); });
    return dialog;
  });
  OpenBeside(menu_.filmFit, [this] {
    auto* dialog = new FilmFitWindow(session_, preferences_, printer_, messages_, dialogs_,
                                     selectedSlot_(), &window_);
    connect(this, &WindowCommands::SlotShown, dialog, &FilmFitWindow::ShowSlot);
    return dialog;
  });
  OpenBeside(menu_.lotMeasurement, [this] {
    return new LotWindow({session_, desk_, recorder_, preferences_, messages_, dialogs_, printer_},
                         &window_);
  });
  OpenBeside(menu_.records, [this] { return MakeRecordsWindow(); });
  OpenBeside(menu_.slotStatistics, [this] {
    auto* dialog =
        new SlotStatisticsWindow({session_, desk_, printer_, messages_, dialogs_}, &window_);
    connect(dialog, &SlotStatisticsWindow::SpreadWanted, this, showSpread_);
    return dialog;
  });
  OpenBeside(menu_.dailyCheck, [this] {
    return new DailyCheckWindow(
        {session_, desk_, recorder_, reader_, StorePath(), printer_, messages_, dialogs_},
        &window_);
  });
  OpenBeside(menu_.gaugeStudy, [this] {
    return new GaugeStudyWindow(
        {session_, desk_, recorder_, reader_, StorePath(), printer_, messages_, dialogs_},
        &window_);
  });
  OpenBeside(menu_.controlChart, [this] {
    return new ControlChartWindow(session_, reader_, printer_, messages_, dialogs_, &window_);
  });
  Do(menu_.thicknessGraph, [this] { ShowThicknessGraph(); });
}

void WindowCommands::ConnectLanguages() {
  for (QAction* language : menu_.languages->actions()) {
    Do(language, [this, language] { KeepLanguage(language->data().toString()); });
  }
  // What the next start will find.
  connect(qobject_cast<QMenu*>(menu_.languages->parent()), &QMenu::aboutToShow, this, [this] {
    const ReadResult<ProgramSettings> kept = ReadProgramSettings(state_.programDirectory);
    const QString code = LanguageCode(kept ? kept->language : Language::kJapanese);
    for (QAction* language : menu_.languages->actions()) {
      language->setChecked(language->data().toString() == code);
    }
  });
}

void WindowCommands::Do(QAction* action, std::function<void()> run) {
  action->setEnabled(true);
  connect(action, &QAction::triggered, this, std::move(run));
}

void WindowCommands::Open(QAction* action, std::function<QDialog*()> make) {
  Do(action, [make = std::move(make)] {
    QDialog* dialog = make();
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
  });
}

void WindowCommands::OpenBeside(QAction* action, std::function<QDialog*()> make) {
  Do(action, [make = std::move(make), open = QPointer<QDialog>()]() mutable {
    if (open == nullptr) {
      open = make();
      open->setAttribute(Qt::WA_DeleteOnClose);
    }
    open->show();
    open->raise();
    open->activateWindow();
  });
}

QCoro::Task<> WindowCommands::TakeOverController() {
  co_await desk_.Connect();
  co_await desk_.SendSampling();
  if (state_.backgroundMeasured) {
    co_await desk_.OpenLightPath();
  }
}

void WindowCommands::Print() {
  const QDate today = session_.Now().date();
  if (!report_.date.isValid()) {
    report_ = UsualReport(state_, today);
    report_.cie = preferences_.InForce().showCie;
  }
  report_.date = today;
  report_.unsaved = !state_.slotsSaved;
  report_.proof = ProofText(StorePath());
  PrintSlots(state_, selectedSlot_(), report_, printer_, messages_, &window_);
}

void WindowCommands::KeepLanguage(const QString& code) {
  const WriteResult written = preferences_.Change([&code](ProgramSettings& settings) {
    settings.language = LanguageOf(code).value_or(settings.language);
  });
  if (TellWritten(written, ProgramSettingsPath(state_.programDirectory), messages_)) {
    messages_.Tell({Message::kLanguageAtNextStart});
  }
}

void WindowCommands::ShowThicknessGraph() {
  if (thicknessGraph_ == nullptr) {
    thicknessGraph_ =
        new ThickGraph(session_, messages_, dialogs_, printer_, selectedSlot_, &window_);
  }
  thicknessGraph_->show();
  thicknessGraph_->raise();
}

QDialog* WindowCommands::MakeRecordsWindow() {
  const auto print = [this](const QList<WholeRecord>& records) { PrintRecords(records); };
  auto* dialog = new RecordsWindow({reader_, session_, desk_, messages_, dialogs_, preferences_,
                                    StorePath(), recordSettings_.station, print},
                                   &window_);
  connect(&recorder_.Keeper(), &RecordKeeper::Stored, dialog, &RecordsWindow::TakeNewer);
  connect(dialog, &RecordsWindow::Decided, this, &WindowCommands::Recorded);
  return dialog;
}

// The store of this station proves nothing of the rows of others.
void WindowCommands::PrintRecords(const QList<WholeRecord>& records) {
  const bool own = std::ranges::all_of(records, [this](const WholeRecord& record) {
    return record.sample.station == recordSettings_.station;
  });
  printer_.Print(Text::tr("記録"),
                 MakeRecordsReport(records, preferences_.InForce().showCie, session_.Now().date(),
                                   own ? ProofText(StorePath()) : QString()));
}

QString WindowCommands::StorePath() const {
  return RecordStorePath(state_.programDirectory);
}

QDialog* WindowCommands::MakeSettingsList() {
  // The list is printed as it is shown: a printer of its own tells nothing about its settings.
  auto quiet = std::make_shared<QuietMessages>(messages_);
  auto printer = std::make_shared<CurrentPrinter>(state_, *quiet, dialogs_);
  const auto print = [quiet, printer](const table::Paint& paint) {
    printer->Print(Text::tr("VEXA設定一覧"), SinglePage(paint));
  };
  return new table(state_, print, &window_);
}

}  // namespace vexa
