// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/window_size.h"

#include <QScreen>

namespace vexa {

void ResizeWithinScreen(QWidget& window, const QSize& usual) {
  constexpr QSize kFrameOfWindow(16, 44);
  window.resize(usual.boundedTo(window.screen()->availableSize() - kFrameOfWindow));
}

}  // namespace vexa
