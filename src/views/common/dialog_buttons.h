// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QDialogButtonBox>

namespace vexa {

/// "OK" and "ｷｬﾝｾﾙ" that accept and reject the dialog.
[[nodiscard]] QDialogButtonBox* OkCancelButtons(QDialog& dialog);

}  // namespace vexa
