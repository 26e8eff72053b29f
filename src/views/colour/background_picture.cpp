// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/colour/background_picture.h"

#include <QPointer>
#include <cmath>

namespace vexa {
namespace {

constexpr qint64 kGrownEveryMs = 60;

int PixelAt(float coordinate) {
  return static_cast<int>(std::lround(coordinate / DiagramBackground::kPitch));
}

}  // namespace

BackgroundPicture::BackgroundPicture(MessageService& messages, QObject* parent)
    : QObject(parent), messages_(messages) {
  const int side = PixelAt(static_cast<float>(kEnd)) + 1;
  image_ = QImage(side, side, QImage::Format_ARGB32_Premultiplied);
  image_.fill(Qt::transparent);
  connect(&timer_, &QTimer::timeout, this, &BackgroundPicture::Turn);
}

void BackgroundPicture::Request() {
  if (building_ || IsComplete()) {
    return;
  }
  abortRequested_ = false;
  sinceGrown_.start();
  SetBuilding(true);
  timer_.start(0);
}

void BackgroundPicture::RequestAbort() {
  abortRequested_ = building_;
}

void BackgroundPicture::Turn() {
  if (abortRequested_) {
    ConfirmAbort();
    return;
  }
  const bool more = background_.Step(kPixelsPerTurn);
  PaintNewPoints();
  if (!more) {
    timer_.stop();
    SetBuilding(false);
    emit Grown();
  } else if (sinceGrown_.elapsed() >= kGrownEveryMs) {
    sinceGrown_.start();
    emit Grown();
  }
}

QCoro::Task<> BackgroundPicture::ConfirmAbort() {
  // No more pixels come while the question waits.
  timer_.stop();
  const QPointer<BackgroundPicture> alive(this);
  const MessageCall question{Message::kAbortDiagram};
  const MessageResult answer = co_await messages_.Ask(question);
  if (alive == nullptr) {
    co_return;
  }
  abortRequested_ = false;
  if (answer == MessageResult::kOk) {
    SetBuilding(false);
    emit Grown();
  } else {
    timer_.start(0);
  }
}

void BackgroundPicture::SetBuilding(bool building) {
  building_ = building;
  emit BuildingChanged(building);
}

// The columns start between the rows of the picture: each goes into the rows from the nearest one
// up, so that no rounding leaves a gap.
void BackgroundPicture::PaintNewPoints() {
  const std::vector<BackgroundPoint>& points = background_.Points();
  for (; painted_ < points.size(); ++painted_) {
    const BackgroundPoint& point = points[painted_];
    if (point.x != columnX_) {
      columnX_ = point.x;
      column_ = PixelAt(point.x);
      row_ = PixelAt(point.y);
    }
    image_.setPixel(column_, image_.height() - 1 - row_++, qRgb(point.r, point.g, point.b));
  }
}

}  // namespace vexa
