// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QString>

class QLineEdit;
class QPushButton;
class QWidget;

namespace vexa {

/// A button of a dialog; Enter presses it only when it is the default.
[[nodiscard]] QPushButton* DialogButton(const char* name, const QString& caption);

/// A row with OK (the default) and Cancel, connected to the dialog; `left` stands at its left end.
/// The dialog opens as BeginWithFirstField says.
[[nodiscard]] QWidget* OkCancelButtons(QDialog& dialog, QPushButton* left = nullptr);

/// Whenever the dialog is shown, the focus is on the first of its fields, with the text selected.
void BeginWithFirstField(QDialog& dialog);

/// Puts the focus back on a field whose entry was refused, with its text selected.
void EnterAgain(QLineEdit& field);

/// How a closed dialog ended: "OK" or "CANCEL".
[[nodiscard]] QString OutcomeText(const QDialog& dialog);

}  // namespace vexa
