// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/graph/main_views.h"

#include <QStackedWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

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
namespace {

constexpr QStringView kReflectancePattern = u"##0.000";
constexpr QStringView kIndexPattern = u"0.0000";
constexpr QStringView kLightPattern = u"###0.0";

}  // namespace

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
  const auto named = static_cast<std::size_t>(std::max<int>(state_.display.view, 0));
  current_ = named < views_.size() ? named : 0;
  View& view = views_[current_];
  if (view.widget == nullptr) {
    view = BuildView(current_);
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

MainViews::View MainViews::BuildView(std::size_t number) {
  switch (number) {
    case 1:
      return TableView(QStringLiteral("ReflectanceTable"), false);
    case 2:
      return GraphView(new IndexGraph, kIndexPattern);
    case 3:
      return GraphView(new LightGraph, kLightPattern);
    case 4:
      return TableView(QStringLiteral("LightTable"), true);
    case 5:
      return DiagramView();
    case 6:
      return ReflectanceView(true);
    default:
      return ReflectanceView(false);
  }
}

MainViews::View MainViews::GraphView(SpectrumGraph* graph, QStringView pattern) {
  AddExport(*graph, messages_, dialogs_, [this] { return ProposedName(state_); });
  connect(graph, &SpectrumGraph::CursorMoved, this, [this](int nm) {
    cursorNm_ = nm;
    ShowCursor();
  });
  connect(graph, &SpectrumGraph::JumpRequested, this, &MainViews::AskJump);
  return {graph, [this, graph](int slot) { graph->Show(state_, slot); }, graph, pattern};
}

MainViews::View MainViews::ReflectanceView(bool reciprocal) {
  auto* graph = new ReflectanceGraph(reciprocal ? Abscissa::kReciprocal : Abscissa::kWavelength);
  View view = GraphView(graph, kReflectancePattern);
  view.show = [this, graph](int slot) {
    graph->Show(state_, slot);
    graph->ShowBand(ReflectanceBand(state_.standard));
    graph->ShowSpread(state_, spread_);
  };
  return view;
}

MainViews::View MainViews::TableView(const QString& name, bool light) {
  auto* table = new SpectrumTable;
  table->setObjectName(name);
  return {table, [this, table, light](int slot) {
            table->Show(light ? LightCurves(state_) : ReflectanceCurves(state_, slot),
                        state_.display, light ? kLightPattern : kReflectancePattern);
          }};
}

MainViews::View MainViews::DiagramView() {
  auto* diagram = new ChromaticityDiagram(picture_);
  AddExport(*diagram, messages_, dialogs_, [this] { return ProposedName(state_); });
  return {diagram, [this, diagram](int slot) { diagram->ShowSlots(state_, slot); }};
}

void MainViews::ShowCursor() {
  const View& view = views_[current_];
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
