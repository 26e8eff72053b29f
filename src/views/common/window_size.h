// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace vexa {

/// Gives a window its usual size, or less where the screen has no room for that and a frame.
void ResizeWithinScreen(QWidget& window, const QSize& usual);

}  // namespace vexa
