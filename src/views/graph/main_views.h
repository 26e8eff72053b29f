// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <array>
#include <functional>
#include <memory>
#include <vector>

#include "base/message.h"
#include "measurement/vexatype.h"
#include "views/common/colour_kind.h"
#include "views/common/file_dialogs.h"
#include "views/graph/view_table.h"

class QStackedWidget;

namespace vexa {

class BackgroundPicture;
class ChromaticityDiagram;
class CursorStrip;
class SpectrumGraph;

/// The seven views of the view menu in one place, one of them shown, and the cursor that all graphs
/// over the wavelength share. A view is built when it is shown for the first time.
class MainViews : public QWidget {
  Q_OBJECT

 public:
  MainViews(const VEXATYPE& state, MessageService& messages, FileDialogs& dialogs,
            std::shared_ptr<BackgroundPicture> picture, QWidget* parent = nullptr);

  /// Brings the view that the display settings name to the front and up to date; an unknown number
  /// shows the reflectance graph.
  void Show(int selectedSlot);

  /// Offers the CIE colours for the chromaticity diagram, or takes them away; they are not offered
  /// at first.
  void OfferCie(bool offered);

  /// 0..6, in the order of the view menu.
  [[nodiscard]] int CurrentView() const { return static_cast<int>(current_); }

  /// The slots whose mean and spread the reflectance graphs show as well; empty: none.
  void ShowSpread(const std::vector<int>& slotNumbers, int selectedSlot);

  void MoveCursor(int nm);
  [[nodiscard]] int CursorNm() const { return cursorNm_; }

 signals:
  /// Whose colours the chromaticity diagram is to show.
  void DiagramKindChosen(vexa::ColourKind kind);

 private:
  /// A view, how it takes over the state, and its graph and format of values when it has a cursor.
  struct ShownView {
    QWidget* widget = nullptr;
    std::function<void(int selectedSlot)> show;
    SpectrumGraph* graph = nullptr;
    QStringView pattern = {};
  };

  ShownView Build(const ViewEntry& entry);
  ShownView GraphView(SpectrumGraph* graph, const ViewEntry& entry);
  ShownView ReflectanceView(const ViewEntry& entry);
  ShownView TableView(const QString& name, const ViewEntry& entry);
  ShownView DiagramView();
  void ChooseDiagramKind(ColourKind kind);
  void ShowCursor();
  void AskJump();

  const VEXATYPE& state_;
  MessageService& messages_;
  FileDialogs& dialogs_;
  std::shared_ptr<BackgroundPicture> picture_;
  QStackedWidget* stack_;
  CursorStrip* strip_;
  std::array<ShownView, kViews.size()> views_;
  std::size_t current_ = 0;
  int cursorNm_ = 550;
  bool cieOffered_ = false;
  ColourKind diagramKind_ = ColourKind::kInstrument;
  std::vector<int> spread_;  ///< slots
};

}  // namespace vexa
