// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/number_field.h"

#include <QFocusEvent>
#include <QRegularExpressionValidator>
#include <QTimer>

#include "base/number_text.h"

namespace vexa {
namespace {

constexpr int kWidth = 132;

void TakeOnly(QLineEdit& field, const QString& characters) {
  field.setValidator(new QRegularExpressionValidator(
      QRegularExpression(QStringLiteral("[%1]*").arg(characters)), &field));
  field.setAlignment(Qt::AlignRight);
  field.setMinimumWidth(kWidth);
}

}  // namespace

NumberField::NumberField(const QString& pattern, QWidget* parent)
    : QLineEdit(parent), pattern_(pattern) {
  TakeOnly(*this, QStringLiteral("0-9.Ee+\\-"));
  connect(this, &QLineEdit::editingFinished, this, [this] {
    if (const std::optional<double> value = Value()) {
      const bool selected = hasSelectedText() && selectedText() == text();
      setText(FormatNumber(*value, pattern_).trimmed());
      if (selected) {
        selectAll();  // also behind a message, to which the focus has gone
      }
    }
  });
}

void NumberField::SetValue(double value) {
  value_ = value;
  textOfValue_ = FormatNumber(value, pattern_).trimmed();
  setText(textOfValue_);
}

std::optional<double> NumberField::Value() const {
  return !text().isEmpty() && text() == textOfValue_ ? value_ : ParseNumber(text());
}

void NumberField::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  // Back from a message, the entry goes on where it was.
  if (event->reason() == Qt::MouseFocusReason) {
    // The click sets the cursor after it has given the focus.
    QTimer::singleShot(0, this, &QLineEdit::selectAll);
  }
}

IntegerField::IntegerField(QWidget* parent) : QLineEdit(parent) {
  TakeOnly(*this, QStringLiteral("0-9"));
}

void IntegerField::SetValue(int value) {
  setText(QString::number(value));
}

std::optional<int> IntegerField::Value() const {
  bool ok = false;
  const int value = text().toInt(&ok);
  return ok ? std::optional(value) : std::nullopt;
}

}  // namespace vexa
