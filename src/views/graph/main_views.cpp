// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/graph/main_views.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <utility>

#include "base/translation.h"
#include "standards/reflectance_band.h"
#include "views/colour/chromaticity_diagram.h"
#include "views/common/plot_export.h"
#include "views/common/proposed_name.h"
#include "views/graph/cursor_strip.h"
#include "views/graph/index_graph.h"
#include "views/graph/jamp_wave.h"
#include "views/graph/light_graph.h"
#include "views/graph/reflectance_graph.h"
#include "views/graph/spectrum_table.h"

namespace vexa {
MainViews::MainViews(const VEXATYPE& state, MessageService& messages, FileDialogs& dialogs,
                     std::shared_ptr<BackgroundPicture> picture, QWidget* parent)
    : QWidget(parent),
      state_(state),
      messages_(messages),
      dialogs_(dialogs),
      picture_(std::move(picture)),
      stack_(new QStackedWidget),
      strip_(new CursorStrip) {
  stack_->setFrameShape(QFrame::StyledPanel);
  connect(strip_, &CursorStrip::StepRequested, this,
          [this](int by) { MoveCursor(cursorNm_ + by); });
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(4);
  layout->addWidget(stack_, 1);
  layout->addWidget(strip_);
}

void MainViews::Show(int selectedSlot) {
  const ViewEntry& entry = ViewOf(state_.display.view);
  current_ = static_cast<std::size_t>(entry.view);
  ShownView& view = views_[current_];
  if (view.widget == nullptr) {
    view = Build(entry);
    stack_->addWidget(view.widget);
  }
  view.show(selectedSlot);
  if (view.graph != nullptr) {
    view.graph->SetCursor(cursorNm_);
  }
  stack_->setCurrentWidget(view.widget);
  strip_->setVisible(view.graph != nullptr && state_.display.showCursor);
}

void MainViews::ShowSpread(const std::vector<int>& slotNumbers, int selectedSlot) {
  spread_ = slotNumbers;
  Show(selectedSlot);
}

void MainViews::MoveCursor(int nm) {
  if (SpectrumGraph* graph = views_[current_].graph) {
    graph->MoveCursor(nm);
  }
}

MainViews::ShownView MainViews::Build(const ViewEntry& entry) {
  switch (entry.view) {
    case View::kReflectance:
    case View::kReciprocal:
      break;
    case View::kReflectanceText:
      return TableView(QStringLiteral("ReflectanceTable"), entry);
    case View::kIndex:
      return GraphView(new IndexGraph, entry);
    case View::kLight:
      return GraphView(new LightGraph, entry);
    case View::kLightText:
      return TableView(QStringLiteral("LightTable"), entry);
    case View::kChromaticity:
      return DiagramView();
  }
  return ReflectanceView(entry);
}

MainViews::ShownView MainViews::GraphView(SpectrumGraph* graph, const ViewEntry& entry) {
  AddExport(*graph, messages_, dialogs_, [this] { return ProposedName(state_); });
  connect(graph, &SpectrumGraph::CursorMoved, this, [this](int nm) {
    cursorNm_ = nm;
    ShowCursor();
  });
  connect(graph, &SpectrumGraph::JumpRequested, this, &MainViews::AskJump);
  return {graph, [this, graph](int slot) { graph->Show(state_, slot); }, graph, entry.pattern};
}

MainViews::ShownView MainViews::ReflectanceView(const ViewEntry& entry) {
  auto* graph = new ReflectanceGraph(entry.abscissa);
  ShownView view = GraphView(graph, entry);
  view.show = [this, graph](int slot) {
    graph->Show(state_, slot);
    graph->ShowBand(ReflectanceBand(state_.standard));
    graph->ShowSpread(state_, spread_);
  };
  return view;
}

MainViews::ShownView MainViews::TableView(const QString& name, const ViewEntry& entry) {
  auto* table = new SpectrumTable;
  table->setObjectName(name);
  return {table, [this, table, &entry](int slot) {
            table->Show(entry.view == View::kLightText ? LightCurves(state_)
                                                       : ReflectanceCurves(state_, slot),
                        state_.display, entry.pattern);
          }};
}

MainViews::ShownView MainViews::DiagramView() {
  auto* diagram = new ChromaticityDiagram(picture_);
  AddExport(*diagram, messages_, dialogs_, [this] { return ProposedName(state_); });
  auto* choice = new QComboBox;
  choice->setObjectName(QStringLiteral("DiagramKind"));
  for (const ColourKind kind : {ColourKind::kInstrument, ColourKind::kCie}) {
    choice->addItem(ColourKindText(kind), static_cast<int>(kind));
  }
  choice->setToolTip(Text::tr("色度図に示す測色値を選びます。"));
  connect(choice, &QComboBox::activated, this, [this, choice] {
    ChooseDiagramKind(static_cast<ColourKind>(choice->currentData().toInt()));
  });
  auto* bar = new QWidget;
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(10, 6, 10, 6);
  row->addWidget(new QLabel(Text::tr("測色値:")));
  row->addWidget(choice);
  row->addStretch();
  auto* view = new QWidget;
  auto* layout = new QVBoxLayout(view);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(bar);
  layout->addWidget(diagram, 1);
  return {view, [this, diagram, choice, bar](int slot) {
            bar->setVisible(cieOffered_);
            choice->setCurrentIndex(choice->findData(static_cast<int>(diagramKind_)));
            diagram->SetKind(diagramKind_, cieOffered_);
            diagram->ShowSlots(state_, slot);
          }};
}

void MainViews::OfferCie(bool offered) {
  cieOffered_ = offered;
  if (!offered) {
    ChooseDiagramKind(ColourKind::kInstrument);
  }
}

void MainViews::ChooseDiagramKind(ColourKind kind) {
  diagramKind_ = kind;
  emit DiagramKindChosen(kind);
}

void MainViews::ShowCursor() {
  const ShownView& view = views_[current_];
  if (view.graph != nullptr) {
    strip_->Show(view.graph->Curves(), cursorNm_, view.pattern);
  }
}

void MainViews::AskJump() {
  auto* jump = new JampWave(state_, this);
  jump->setAttribute(Qt::WA_DeleteOnClose);
  connect(jump, &QDialog::accepted, this, [this, jump] {
    if (const std::optional<int> nm = jump->Wavelength()) {
      MoveCursor(*nm);
    }
  });
  jump->open();
}

}  // namespace vexa
