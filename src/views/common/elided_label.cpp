// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/elided_label.h"

#include <QPainter>

namespace vexa {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

QSize ElidedLabel::minimumSizeHint() const {
  return {0, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  drawFrame(&painter);
  const QRect area = contentsRect().adjusted(margin(), 0, -margin(), 0);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(area, static_cast<int>(alignment()),
                   fontMetrics().elidedText(text(), Qt::ElideMiddle, area.width()));
}

}  // namespace vexa
