// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QDialog;
class QWidget;

namespace vexa {

/// Shows title and version of the program.
[[nodiscard]] QDialog* MakeVersionDialog(QWidget* parent);

}  // namespace vexa
