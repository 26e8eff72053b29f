// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <memory>
#include <optional>

#include "base/message.h"
#include "measurement/session.h"
#include "views/colour/cie_column.h"
#include "views/common/colour_kind.h"
#include "views/common/file_dialogs.h"

class QGridLayout;

namespace vexa {

class BackgroundPicture;
class ChromaticityDiagram;
class StockWindow;

/// The chromaticity diagram, the colour values of the selected slot, and the accumulation with its
/// window.
class ColourPanel : public QWidget {
  Q_OBJECT

 public:
  ColourPanel(Session& session, MessageService& messages, FileDialogs& dialogs,
              QWidget* parent = nullptr);

  /// Shows the state as it is now.
  void Show(int selectedSlot);

  /// Shows or hides the column of CIE values; it is hidden at first.
  void ShowCie(bool shown);
  /// Whose colours the diagram shows.
  void ShowDiagramOf(ColourKind kind);

  /// For further diagrams, so that they need not build it again.
  [[nodiscard]] std::shared_ptr<BackgroundPicture> Picture() const { return picture_; }

 private:
  struct Value {
    QLabel* caption;
    QLabel* text;
    QLabel* unit;
  };

  QWidget* BuildDiagram();
  QWidget* BuildValues();
  void AddCie();
  QWidget* BuildStock();
  static Value AddValue(QGridLayout& grid, const char* name, const QString& caption,
                        const QString& unit);
  void ShowValues(int selectedSlot);
  void ShowStock();
  QCoro::Task<> SetAccumulating(bool checked);
  void OpenStockWindow();

  Session& session_;
  const VEXATYPE& state_;
  MessageService& messages_;
  FileDialogs& dialogs_;
  std::shared_ptr<BackgroundPicture> picture_;
  int slot_ = 1;
  ChromaticityDiagram* diagram_ = nullptr;
  ColourKind diagramKind_ = ColourKind::kInstrument;
  QGroupBox* values_ = nullptr;
  Value observer_{};
  Value illuminant_{};
  Value first_{};
  Value second_{};
  Value third_{};
  Value chroma_{};
  Value hue_{};
  Value average_{};
  Value luminous_{};
  std::optional<CieColumn> cie_;  ///< while it is shown
  QCheckBox* accumulate_ = nullptr;
  QLabel* count_ = nullptr;
  QPushButton* clear_ = nullptr;
  StockWindow* stockWindow_ = nullptr;
};

}  // namespace vexa
