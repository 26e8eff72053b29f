// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/scroll_body.h"

#include <QScreen>
#include <QStyle>
#include <algorithm>

namespace vexa {
namespace {

// What the frame of a window, its buttons and a panel of the desktop need, at most.
constexpr QSize kBesides(60, 150);

}  // namespace

ScrollBody::ScrollBody(QWidget* content, QWidget* parent) : QScrollArea(parent) {
  setFrameShape(QFrame::NoFrame);
  setWidgetResizable(true);
  setFocusPolicy(Qt::NoFocus);
  setWidget(content);
}

QSize ScrollBody::sizeHint() const {
  const QSize content = widget()->sizeHint();
  const QSize room = screen()->availableSize() - kBesides;
  const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  return {std::min(content.width() + (content.height() > room.height() ? bar : 0), room.width()),
          std::min(content.height() + (content.width() > room.width() ? bar : 0), room.height())};
}

QSize ScrollBody::minimumSizeHint() const {
  constexpr QSize kSmallest(320, 160);
  return sizeHint().boundedTo(kSmallest);
}

}  // namespace vexa
