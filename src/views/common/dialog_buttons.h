// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QString>

class QPushButton;
class QWidget;

namespace vexa {

/// A button of a dialog, named after its caption; Enter presses it only when it is the default.
[[nodiscard]] QPushButton* DialogButton(const QString& caption);

/// A row with OK (the default) and Cancel, connected to the dialog; `left` stands at its left end.
[[nodiscard]] QWidget* OkCancelButtons(QDialog& dialog, QPushButton* left = nullptr);

/// How a closed dialog ended: "OK" or "CANCEL".
[[nodiscard]] QString OutcomeText(const QDialog& dialog);

}  // namespace vexa
