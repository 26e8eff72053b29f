// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/vexa.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QPointer>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <type_traits>
#include <utility>

#include "app/measurement_bar.h"
#include "app/progress_strip.h"
#include "app/status_panels.h"
#include "app/version_dialog.h"
#include "files/configuration.h"
#include "files/startup_file.h"
#include "measurement/controller_start.h"
#include "measurement/dispersion_data.h"
#include "measurement/evaluation.h"
#include "views/colour/colour_difference_window.h"
#include "views/colour/colour_panel.h"
#include "views/common/quiet_messages.h"
#include "views/files/addinp_frm.h"
#include "views/files/data_file_commands.h"
#include "views/files/environment_commands.h"
#include "views/graph/main_views.h"
#include "views/optics/ref_set_dlg.h"
#include "views/optics/thick_graph.h"
#include "views/optics/thickness_panel.h"
#include "views/optics/wave_list_dlg.h"
#include "views/print/print_dlg.h"
#include "views/print/print_setup_dlg.h"
#include "views/print/report.h"
#include "views/settings/calibration_dlg.h"
#include "views/settings/dispset.h"
#include "views/settings/sampling_dlg.h"
#include "views/settings/table.h"
#include "views/standards/standard_files.h"
#include "views/standards/standard_frm.h"

namespace vexa {
namespace {

constexpr int kAgeRefreshMs = 15000;

}  // namespace

VEXA::VEXA(Services services, const QString& programDirectory)
    : services_(std::move(services)),
      sequence_(state_, services_.messages, services_.clock),
      journal_(state_, services_.messages, programDirectory),
      printer_(state_, services_.messages, services_.dialogs) {
  state_.programDirectory = programDirectory;
  BuildPanels();
  ConnectCommands();
  ConnectSequence();
  Refresh();
  UpdateCommands();
}

VEXA::~VEXA() = default;

void VEXA::Load() {
  loading_ = true;
  setWindowTitle(QStringLiteral("MERIDOX ") + QStringLiteral("VEXA-KT-440 Ver3.21"));
  TellAll(LoadConfiguration(state_), services_.messages);
  Refresh();
  StartController();
  if (unloaded_) {
    return;
  }
  TellAll(LoadDispersionData(state_).notices, services_.messages);
  if (controllerReady_) {
    (void)SendSamplingSettings(*controller_, state_.instrument, services_.messages);
  }
  loading_ = false;
  setWindowTitle(QStringLiteral("MERIDOX VEXA-KT"));
  UpdateCommands();
}

void VEXA::OfferSession() {
  if (unloaded_ || !journal_.Offer()) {
    return;
  }
  // A controller that has just been started keeps the light path closed until a background comes.
  loading_ = true;
  UpdateCommands();
  if (controllerReady_ && state_.backgroundMeasured) {
    (void)controller_->OpenLightPath();
  }
  loading_ = false;
  UpdateCommands();
  Refresh();
}

int VEXA::GetOption() const {
  return bar_->GetOption();
}

void VEXA::closeEvent(QCloseEvent* event) {
  if (sequence_.IsRunning() || (!unloaded_ && !Unload())) {
    event->ignore();
    return;
  }
  event->accept();
}

void VEXA::BuildPanels() {
  commands_ = BuildMenu(*menuBar());
  bar_ = new MeasurementBar;
  progress_ = new ProgressStrip;
  colour_ = new ColourPanel(state_, services_.messages, services_.dialogs);
  views_ = new MainViews(state_, services_.messages, services_.dialogs, colour_->Picture());
  thickness_ = new ThicknessPanel(state_, services_.messages);
  status_ = new StatusPanels;
  setStatusBar(status_);

  auto* middle = new QVBoxLayout;
  middle->setSpacing(4);
  middle->addWidget(views_, 1);
  middle->addWidget(progress_);

  auto* central = new QWidget;
  auto* layout = new QHBoxLayout(central);
  layout->setContentsMargins(10, 8, 10, 6);
  layout->setSpacing(10);
  layout->addWidget(bar_);
  layout->addLayout(middle, 1);
  layout->addWidget(BuildResults());
  setCentralWidget(central);
  resize(QSize(1280, 900).boundedTo(screen()->availableSize()));
}

// Scrolls where a low screen has no room for all of it.
QWidget* VEXA::BuildResults() {
  auto* results = new QWidget;
  auto* column = new QVBoxLayout(results);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(8);
  column->addWidget(colour_);
  column->addWidget(thickness_);
  column->addStretch();
  auto* area = new QScrollArea;
  area->setFrameShape(QFrame::NoFrame);
  area->setWidgetResizable(true);
  area->setWidget(results);
  area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area->setFixedWidth(results->sizeHint().width() + area->verticalScrollBar()->sizeHint().width());
  return area;
}

void VEXA::ConnectCommands() {
  MessageService& messages = services_.messages;
  FileDialogs& dialogs = services_.dialogs;
  const auto enable = [this](QAction* action, auto run) {
    action->setEnabled(true);
    connect(action, &QAction::triggered, this, [this, run] {
      if constexpr (std::is_void_v<decltype(run())>) {
        run();
        Refresh();
      } else {
        run().then([alive = QPointer<VEXA>(this)](auto&&...) {
          if (alive != nullptr) {
            alive->Refresh();
          }
        });
      }
    });
  };
  enable(commands_.openFile, [&, this] { return OpenDataFile(state_, messages, dialogs); });
  enable(commands_.saveFileAs, [&, this] { return SaveDataFileAs(state_, messages, dialogs); });
  enable(commands_.openEnvironment, [&, this] { TakeOverEnvironment(); });
  enable(commands_.saveEnvironment, [&, this] { return SaveEnvironment(state_, messages); });
  enable(commands_.saveEnvironmentAs,
         [&, this] { return SaveEnvironmentAs(state_, messages, dialogs); });
  enable(commands_.printSettings, [&, this] { PrintSetupDlg(printer_, messages, this).exec(); });
  enable(commands_.print, [this] { Print(); });
  enable(commands_.sampleInformation, [&, this] { AddinpFrm(state_, messages, this).exec(); });
  enable(commands_.referenceSettings, [&, this] {
    RefSetDlg(RefSetDlg::Mode::kReference, state_, messages, dialogs, this).exec();
  });
  enable(commands_.thicknessSettings, [&, this] {
    RefSetDlg(RefSetDlg::Mode::kThickness, state_, messages, dialogs, this).exec();
  });
  enable(commands_.displaySettings, [&, this] { dispset(state_, messages, this).exec(); });
  enable(commands_.settingsList, [&, this] {
    QuietMessages quiet(messages);
    CurrentPrinter printer(state_, quiet, dialogs);
    const auto print = [&printer](const table::Paint& paint) {
      (void)printer.Print(QStringLiteral("VEXA設定一覧"), SinglePage(paint));
    };
    table(state_, print, this).exec();
  });
  enable(commands_.colourDifference,
         [this] { ColourDifferenceWindow(state_, GetOption(), this).exec(); });
  enable(commands_.standards, [&, this] { StandardFrm(state_, messages, dialogs, this).exec(); });
  enable(commands_.wavelengthList, [&, this] { WaveListDlg(state_, printer_, this).exec(); });
  enable(commands_.thicknessGraph, [this] { ShowThicknessGraph(); });
  enable(commands_.samplingSettings,
         [&, this] { SamplingDlg(state_, *controller_, messages, this).exec(); });
  enable(commands_.calibration, [&, this] { CalibrationDlg(state_, messages, this).exec(); });
  enable(commands_.quit, [this] { close(); });
  enable(commands_.version, [this] { ShowVersion(this); });
  for (QAction* view : commands_.views->actions()) {
    enable(view,
           [this, view] { state_.display.view = static_cast<std::int16_t>(view->data().toInt()); });
  }
}

void VEXA::ConnectSequence() {
  connect(bar_, &MeasurementBar::BackgroundRequested, &sequence_,
          &MeasurementSequence::MeasureBackground);
  connect(bar_, &MeasurementBar::ReferenceRequested, &sequence_,
          &MeasurementSequence::MeasureReference);
  connect(bar_, &MeasurementBar::SampleRequested, &sequence_, &MeasurementSequence::MeasureSample);
  connect(bar_, &MeasurementBar::ClearRequested, &sequence_, &MeasurementSequence::ClearAll);
  connect(bar_, &MeasurementBar::DataRequested, commands_.sampleInformation, &QAction::trigger);
  connect(bar_, &MeasurementBar::SlotSelected, this, [this](int number) {
    ComputeColours(state_.colour, *state_.Slot(number));
    Refresh();
  });

  connect(&sequence_, &MeasurementSequence::Began, this, [this](MeasurementKind kind, int slot) {
    bar_->ShowRunning(kind, slot);
    UpdateCommands();
  });
  connect(&sequence_, &MeasurementSequence::FrameKept, this, [this] { journal_.Write(); });
  connect(thickness_, &ThicknessPanel::Computed, this, [this] { journal_.Update(); });
  connect(&ageTimer_, &QTimer::timeout, this, [this] {
    bar_->ShowAges(state_, services_.clock());
    journal_.Update();  // what was changed in the windows beside this one
  });
  ageTimer_.start(kAgeRefreshMs);
  connect(&sequence_, &MeasurementSequence::SampleStored, this,
          [this](int slot) { bar_->SelectSlot(slot); });
  connect(&sequence_, &MeasurementSequence::ThicknessMeasured, this,
          [this](const ThicknessResult& result) {
            ThicknessGraph().AddPointProc(result.thicknessNm, result.physical);
          });
  connect(&sequence_, &MeasurementSequence::SlotsChanged, this, &VEXA::Refresh);
  connect(&sequence_, &MeasurementSequence::Ended, this, [this] {
    bar_->ShowAtRest();
    UpdateCommands();
    Refresh();
  });
}

void VEXA::StartController() {
  controller_ = services_.makeController(state_);
  connect(controller_.get(), &Controller::WaitBegan, progress_, &ProgressStrip::BeginWait);
  connect(controller_.get(), &Controller::WaitEnded, progress_, &ProgressStrip::EndWait);
  UpdateCommands();
  if (controller_->Initialise(state_.instrument.controllerPort) != 0 && !unloaded_) {
    ReportControllerFailure(*controller_, services_.messages);
    return;
  }
  controllerReady_ = !unloaded_;
  sequence_.UseController(controller_.get());
}

bool VEXA::Unload() {
  if (!QCoro::waitFor(SaveStandardsBeforeExit(state_, services_.messages, services_.dialogs))) {
    return false;
  }
  state_.envFileName = CompletePath(state_, state_.envFileName);
  const MessageResult answer = services_.messages.MsgCall(
      state_.envFileName + QStringLiteral("\r\r現在の環境をｾｰﾌﾞしますか。"),
      message_type::kYesNoCancel + message_type::kQuestionIcon, message_title::kMessage);
  if (answer == MessageResult::kCancel) {
    return false;
  }
  if (answer == MessageResult::kYes &&
      !QCoro::waitFor(SaveEnvironment(state_, services_.messages))) {
    return false;
  }
  (void)TellWritten(WriteStartupFile(state_), StartupPath(state_.programDirectory),
                    services_.messages);
  unloaded_ = true;
  journal_.End();
  if (controller_ != nullptr) {
    controller_->Close();
  }
  return true;
}

void VEXA::TakeOverEnvironment() {
  if (OpenEnvironment(state_, services_.messages, services_.dialogs) && controllerReady_) {
    (void)SendSamplingSettings(*controller_, state_.instrument, services_.messages);
  }
}

void VEXA::Print() {
  const QDate today = services_.clock().date();
  if (!report_.date.isValid()) {
    report_ = UsualReport(state_, today);
  }
  report_.date = today;
  PrintSlots(state_, GetOption(), report_, printer_, services_.messages, this);
}

ThickGraph& VEXA::ThicknessGraph() {
  if (thicknessGraph_ == nullptr) {
    thicknessGraph_ = new ThickGraph(state_, services_.messages, services_.dialogs, printer_, this);
  }
  return *thicknessGraph_;
}

void VEXA::ShowThicknessGraph() {
  ThickGraph& graph = ThicknessGraph();
  graph.SetCurrentSlot(GetOption());
  graph.show();
  graph.raise();
}

void VEXA::Refresh() {
  journal_.Update();
  bar_->Show(state_);
  bar_->ShowAges(state_, services_.clock());
  views_->Show(GetOption());
  commands_.views->actions().at(views_->CurrentView())->setChecked(true);
  const MeasurementSlot* selected = state_.Slot(GetOption());
  colour_->Show(GetOption());
  status_->ShowJudgement(selected != nullptr && selected->valid ? selected->judgement
                                                                : Judgement());
  thickness_->setVisible(state_.thickness.enabled);
  thickness_->Show(GetOption());
  if (thicknessGraph_ != nullptr) {
    thicknessGraph_->SetCurrentSlot(GetOption());
  }
  status_->ShowEnvironmentName(state_.envFileName);
}

void VEXA::UpdateCommands() {
  const bool idle = !sequence_.IsRunning() && !loading_;
  bar_->SetAvailable(controllerReady_, idle);
  bar_->ShowLightPathClosed(controllerReady_ && controller_->IsLightPathClosed() &&
                            !sequence_.IsRunning());
  commands_.quit->setEnabled(!sequence_.IsRunning());
  for (QAction* action :
       {commands_.openFile, commands_.openEnvironment, commands_.sampleInformation}) {
    action->setEnabled(idle);
  }
  commands_.samplingSettings->setEnabled(idle && controllerReady_);
  progress_->SetIdleText(loading_ || controllerReady_ ? QString() : QStringLiteral("ｺﾝﾄﾛｰﾗ未接続"));
}

}  // namespace vexa
