// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>

namespace vexa {

/// Has the tool tips of all widgets break into lines: the toolkit itself shows a plain one in a
/// single line, however long.
void BreakToolTips(QApplication& application);

}  // namespace vexa
