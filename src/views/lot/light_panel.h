// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QWidget>

#include "base/spectrum.h"

class QCPGraph;

namespace vexa {

class LightTrend;

/// The light level while a lens is placed: the highest count of the frame seen last and how far the
/// detector is filled by it, and the line of those before.
class LightPanel : public QWidget {
  Q_OBJECT

 public:
  /// Frames of the trend line.
  static constexpr int kTrendFrames = 120;

  explicit LightPanel(QWidget* parent = nullptr);

  void Show(bool saturated, const RawSpectrum& counts);
  /// Says why there is none now; the trend stays.
  void ShowNone(const QString& why);
  /// Begins a new trend.
  void Clear();

 private:
  QLabel* peak_;
  LightTrend* trend_;
};

}  // namespace vexa
