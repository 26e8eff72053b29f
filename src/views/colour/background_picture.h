// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QImage>
#include <QObject>
#include <QTimer>

#include "base/message.h"
#include "colour/diagram_background.h"

namespace vexa {

/// The coloured background of the xy diagram as a picture. It is built ten pixels at a time, with a
/// turn of the event loop between, and kept: every diagram of the program shares one.
class BackgroundPicture : public QObject {
  Q_OBJECT

 public:
  /// What one turn of the event loop adds.
  static constexpr int kPixelsPerTurn = 10;
  /// The picture covers 0..kEnd in x and y, a pixel every DiagramBackground::kPitch; the centres of
  /// the outermost pixels lie on 0 and on kEnd.
  static constexpr double kEnd = 0.8;

  explicit BackgroundPicture(MessageService& messages, QObject* parent = nullptr);

  /// Begins to build, or goes on where it was stopped; nothing more when the picture is complete.
  void Request();

  /// Asks the user, before the next pixels, whether to stop; nothing when nothing is built.
  void RequestAbort();

  [[nodiscard]] bool IsBuilding() const { return building_; }
  [[nodiscard]] bool IsComplete() const { return background_.IsComplete(); }
  /// What is there of it; transparent elsewhere.
  [[nodiscard]] const QImage& Image() const { return image_; }

 signals:
  /// There is more to draw. Comes now and then while the picture is built, and at its end.
  void Grown();
  void BuildingChanged(bool building);

 private:
  void Turn();
  void SetBuilding(bool building);
  QCoro::Task<> ConfirmAbort();
  void PaintNewPoints();

  MessageService& messages_;
  DiagramBackground background_;
  QImage image_;
  QTimer timer_;
  QElapsedTimer sinceGrown_;
  std::size_t painted_ = 0;
  float columnX_ = -1.0F;
  int column_ = 0;
  int row_ = 0;
  bool building_ = false;
  bool abortRequested_ = false;
};

}  // namespace vexa
