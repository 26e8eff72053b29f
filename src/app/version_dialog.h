// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

namespace vexa {

/// Shows title and version of the program until it is closed.
void ShowVersion(QWidget* parent);

}  // namespace vexa
