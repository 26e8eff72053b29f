// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QPushButton>
#include <vector>

#include "views/graph/spectrum_curves.h"

class QGridLayout;

namespace vexa {

/// The cursor's place and what all curves are there, between two buttons that step it, again and
/// again while they are held.
class CursorStrip : public QWidget {
  Q_OBJECT

 public:
  explicit CursorStrip(QWidget* parent = nullptr);

  /// The values of the curves at a wavelength of 440..840 nm, after a format pattern.
  void Show(const std::vector<SpectrumCurve>& curves, int nm, QStringView pattern);

 signals:
  /// One nanometre down (-1) or up (1).
  void StepRequested(int by);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QPushButton* StepButton(const char* name, int by);
  void Arrange();
  [[nodiscard]] int CellWidth(const QString& label) const;

  QLabel* wavelength_;
  QGridLayout* grid_;
  int rows_ = 0;
  int columns_ = 0;
  int shown_ = 0;   ///< values
  int widest_ = 0;  ///< of these, in pixels
  std::vector<QLabel*> values_;
};

}  // namespace vexa
