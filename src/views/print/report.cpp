// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/print/report.h"
#include "views/optics/fit_table.h"

#include <QPicture>
#include <algorithm>
#include <memory>

#include "standards/reflectance_band.h"
#include "views/colour/chromaticity_diagram.h"
#include "views/graph/index_graph.h"
#include "views/graph/light_graph.h"
#include "views/graph/reflectance_graph.h"
#include "views/graph/view_table.h"
#include "views/paper/page_flow.h"
#include "views/paper/plot_drawing.h"
#include "views/print/measuring_conditions.h"
#include "views/print/page_header.h"
#include "views/print/slot_tables.h"
#include "views/print/spectrum_pages.h"

namespace vexa {
namespace {

constexpr double kLowestGraph = 950.0;
constexpr double kHighestGraph = 1350.0;
constexpr double kPixel = 2.5;  // of the graph, on paper

// The state with nothing but what is printed.
VEXATYPE Selected(const VEXATYPE& state, int slot) {
  VEXATYPE selected = state;
  for (int number = 1; slot != 0 && number <= kSlotCount; ++number) {
    if (number != slot) {
      *selected.Slot(number) = {};
    }
  }
  selected.display.showCursor = false;
  return selected;
}

// The graph of the view in force; the reflectance for the views that are no such graph.
std::unique_ptr<SpectrumGraph> MakeGraph(const VEXATYPE& state) {
  const ViewEntry& view = ViewOf(state.display.view);
  if (view.view == View::kIndex) {
    return std::make_unique<IndexGraph>();
  }
  if (view.view == View::kLight) {
    return std::make_unique<LightGraph>();
  }
  auto graph = std::make_unique<ReflectanceGraph>(view.abscissa);
  graph->ShowBand(ReflectanceBand(state.standard));
  return graph;
}

void AddGraph(PageFlow& flow, const VEXATYPE& state, double height) {
  const std::unique_ptr<SpectrumGraph> graph = MakeGraph(state);
  graph->Show(state, 0);
  const QPicture picture = PlotDrawing(*graph, (QSizeF(flow.Width(), height) / kPixel).toSize());
  flow.Add(height, [picture](QPainter& painter, const QRectF& place) {
    PlayDrawing(painter, place.topLeft(), kPixel, picture);
  });
}

// Square, beside nothing.
void AddDiagram(PageFlow& flow, const VEXATYPE& state,
                const std::shared_ptr<BackgroundPicture>& background, ColourKind kind, bool named) {
  constexpr int kDiagramPixels = 360;
  const double side = std::min({kDiagramPixels * kPixel, flow.Width(), flow.PageHeight()});
  ChromaticityDiagram diagram(background);
  const int pixels = static_cast<int>(side / kPixel);
  diagram.Fit({pixels, pixels});
  diagram.SetKind(kind, named);
  diagram.ShowSlots(state, 0);
  const QPicture picture = PlotDrawing(diagram, {pixels, pixels});
  flow.Add(side, [picture](QPainter& painter, const QRectF& place) {
    PlayDrawing(painter, place.topLeft(), kPixel, picture);
  });
}

std::vector<PageTable> Summary(const VEXATYPE& state, bool cie) {
  std::vector<PageTable> tables{SampleTable(state), ValueTable(state)};
  if (const std::optional<PageTable> conditions = ConditionsTable(state)) {
    tables.push_back(*conditions);
  }
  if (cie) {
    tables.back().caption += QStringLiteral(" (%1)").arg(ColourKindText(ColourKind::kInstrument));
    tables.push_back(CieTable(state));
  }
  if (const std::optional<PageTable> thickness = ThicknessTable(state)) {
    tables.push_back(*thickness);
  }
  if (const std::optional<PageTable> conditions = FitSettingTable(state)) {
    tables.push_back(*conditions);
  }
  if (const std::optional<PageTable> verdicts = VerdictTable(state)) {
    tables.push_back(*verdicts);
    if (const std::optional<PageTable> band = BandTable(state)) {
      tables.push_back(*band);
    }
  }
  return tables;
}

PageFlow LayOut(const VEXATYPE& state, const ReportRequest& request, const QSizeF& page,
                const std::shared_ptr<BackgroundPicture>& background) {
  PageFlow flow(PageHeader::Body(page));
  const std::vector<PageTable> summary = Summary(state, request.cie);
  if (request.content != ReportContent::kText) {
    double tables = 0.0;
    for (const PageTable& table : summary) {
      tables += PageFlow::kGap + table.Height(flow.Width());
    }
    AddGraph(flow, state,
             std::min(flow.PageHeight(),
                      std::clamp(flow.PageHeight() - tables, kLowestGraph, kHighestGraph)));
  }
  for (const PageTable& table : summary) {
    flow.Add(table);
  }
  if (background != nullptr) {
    AddDiagram(flow, state, background, ColourKind::kInstrument, request.cie);
    if (request.cie) {
      AddDiagram(flow, state, background, ColourKind::kCie, true);
    }
  }
  if (request.content != ReportContent::kGraph) {
    AddSpectra(flow, state, request.stepNm);
  }
  return flow;
}

}  // namespace

PageMaker MakeReport(const VEXATYPE& state, const ReportRequest& request,
                     const std::shared_ptr<BackgroundPicture>& background) {
  const auto selected = std::make_shared<const VEXATYPE>(Selected(state, request.slot));
  return [selected, request, background](const QSizeF& page) {
    const auto flow =
        std::make_shared<const PageFlow>(LayOut(*selected, request, page, background));
    const PageHeader header(*selected, request);
    return PrintedPages{flow->PageCount(), [flow, header, page](QPainter& painter, int number) {
                          header.Paint(painter, page, number + 1, flow->PageCount());
                          flow->PaintPage(painter, number);
                        }};
  };
}

ReportRequest UsualReport(const VEXATYPE& state, const QDate& date) {
  constexpr int kCoarseNm = 10;
  ReportRequest request;
  request.date = date;
  request.stepNm = state.display.textStepNm >= kCoarseNm ? kCoarseNm : 1;
  return request;
}

}  // namespace vexa
