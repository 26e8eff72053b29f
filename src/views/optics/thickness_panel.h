// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <array>

#include "base/message.h"
#include "measurement/session.h"

namespace vexa {

/// The thickness of the selected slot, a doubt about it in a line, and the film fit beside it; with
/// the button that computes it and the choice of computing
/// it after each measurement.
class ThicknessPanel : public QGroupBox {
  Q_OBJECT

 public:
  ThicknessPanel(Session& session, MessageService& messages, QWidget* parent = nullptr);

  /// Shows what the slot (1..10) holds; the button computes for this slot from now on.
  void Show(int selectedSlot);

  /// Computes the thickness of the slot shown, with a message when that is not possible.
  void ComputeThickness();

 private:
  void ShowDoubts(const MeasurementSlot& slot);
  void ShowFit(const std::optional<FilmFit>& fit);

  struct ExtremumLine {
    QLabel* wavelength;
    QLabel* index;
  };

  Session& session_;
  const VEXATYPE& state_;
  MessageService& messages_;
  int slot_ = 1;
  QCheckBox* automatic_;
  QLabel* thickness_;
  std::array<ExtremumLine, 2> lines_{};
  QLabel* doubtMark_;
  QLabel* doubt_;
  QLabel* fitMark_;
  QLabel* fitName_;
  QLabel* fit_;
};

}  // namespace vexa
