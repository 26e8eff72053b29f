// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/main_panels.h"

#include <QHBoxLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>

#include "app/measurement_bar.h"
#include "app/progress_strip.h"
#include "base/translation.h"
#include "views/colour/colour_panel.h"
#include "views/graph/main_views.h"
#include "views/optics/thickness_panel.h"

namespace vexa {
namespace {

constexpr int kAgeRefreshMs = 15000;

}  // namespace

MainPanels::MainPanels(Session& session, InstrumentDesk& desk, MessageService& messages,
                       FileDialogs& dialogs)
    : session_(session),
      desk_(desk),
      bar_(new MeasurementBar),
      progress_(new ProgressStrip),
      colour_(new ColourPanel(session, messages, dialogs)),
      views_(new MainViews(session.State(), messages, dialogs, colour_->Picture())),
      thickness_(new ThicknessPanel(session, messages)) {
  auto* middle = new QVBoxLayout;
  middle->setSpacing(4);
  middle->addWidget(views_, 1);
  middle->addWidget(progress_);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(10, 8, 10, 6);
  layout->setSpacing(10);
  layout->addWidget(bar_);
  layout->addLayout(middle, 1);
  layout->addWidget(BuildResults());
  ConnectDesk();
  connect(bar_, &MeasurementBar::SlotSelected, this, &MainPanels::SlotSelected);
  connect(views_, &MainViews::DiagramKindChosen, this, [this](ColourKind kind) {
    colour_->ShowDiagramOf(kind);
    views_->Show(SelectedSlot());
  });
  connect(bar_, &MeasurementBar::DataRequested, this, &MainPanels::SampleInformationRequested);
  auto* ages = new QTimer(this);
  connect(ages, &QTimer::timeout, this,
          [this] { bar_->ShowAges(session_.State(), session_.Now()); });
  ages->start(kAgeRefreshMs);
}

int MainPanels::SelectedSlot() const {
  return bar_->GetOption();
}

void MainPanels::SelectSlot(int slot) {
  bar_->SelectSlot(slot);
}

void MainPanels::ShowSpread(const std::vector<int>& slotNumbers) {
  views_->ShowSpread(slotNumbers, SelectedSlot());
}

int MainPanels::CurrentView() const {
  return views_->CurrentView();
}

void MainPanels::Show() {
  const VEXATYPE& state = session_.State();
  const int slot = SelectedSlot();
  bar_->Show(state);
  bar_->ShowAges(state, session_.Now());
  views_->Show(slot);
  colour_->Show(slot);
  const MeasurementSlot* shown = state.Slot(slot);
  thickness_->setVisible(state.thickness.enabled || (shown != nullptr && shown->fit));
  thickness_->Show(slot);
}

void MainPanels::ShowCie(bool shown) {
  colour_->ShowCie(shown);
  views_->OfferCie(shown);
  Show();
}

void MainPanels::ShowAvailable(bool usable) {
  const bool idle = usable && desk_.IsIdle();
  bar_->SetAvailable(desk_.IsReady(), idle);
  bar_->ShowWarning(idle ? Hindrance() : QString());
  progress_->ShowLink(desk_.IsReady() || !desk_.IsIdle() || !usable, !desk_.IsIdle());
}

// What stands between the user and a measurement.
QString MainPanels::Hindrance() const {
  if (!desk_.IsReady()) {
    return Text::tr("ｺﾝﾄﾛｰﾗ未接続のため\n測定できません。");
  }
  return desk_.IsLightPathClosed() ? Text::tr("光路が閉じています。\n測定すると開きます。")
                                   : QString();
}

// Scrolls where a low screen has no room for all of it.
QWidget* MainPanels::BuildResults() {
  auto* results = new QWidget;
  auto* column = new QVBoxLayout(results);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(4);
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

void MainPanels::ConnectDesk() {
  connect(bar_, &MeasurementBar::BackgroundRequested, &desk_, &InstrumentDesk::MeasureBackground);
  connect(bar_, &MeasurementBar::ReferenceRequested, &desk_, &InstrumentDesk::MeasureReference);
  connect(bar_, &MeasurementBar::SampleRequested, &desk_, &InstrumentDesk::MeasureSample);
  connect(bar_, &MeasurementBar::ClearRequested, &desk_, &InstrumentDesk::ClearAll);
  connect(&desk_, &InstrumentDesk::Began, bar_, &MeasurementBar::ShowRunning);
  connect(&desk_, &InstrumentDesk::Ended, bar_, &MeasurementBar::ShowAtRest);
  connect(&desk_, &InstrumentDesk::WaitBegan, progress_, &ProgressStrip::BeginWait);
  connect(&desk_, &InstrumentDesk::WaitEnded, progress_, &ProgressStrip::EndWait);
  connect(progress_, &ProgressStrip::CancelRequested, &desk_, &InstrumentDesk::Cancel);
}

}  // namespace vexa
