// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/dialog_buttons.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>

namespace vexa {
namespace {

/// Has the dialog begin with its first field.
class FirstField : public QObject {
 public:
  explicit FirstField(QDialog& dialog) : QObject(&dialog), dialog_(dialog) {
    dialog.installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Show && !event->spontaneous()) {
      Enter();
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  void Enter() {
    for (QWidget* widget = dialog_.nextInFocusChain(); widget != nullptr && widget != &dialog_;
         widget = widget->nextInFocusChain()) {
      const bool entered =
          (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->isEnabledTo(&dialog_) &&
          widget->isVisibleTo(&dialog_) && qobject_cast<QPushButton*>(widget) == nullptr &&
          qobject_cast<QTabBar*>(widget) == nullptr && widget->focusProxy() == nullptr;
      if (entered) {
        widget->setFocus(Qt::TabFocusReason);
        if (auto* field = qobject_cast<QLineEdit*>(widget)) {
          field->selectAll();
        }
        return;
      }
    }
  }

  QDialog& dialog_;
};

}  // namespace

QPushButton* DialogButton(const char* name, const QString& caption) {
  auto* button = new QPushButton(caption);
  button->setObjectName(QLatin1String(name));
  button->setMinimumWidth(96);
  button->setAutoDefault(false);
  return button;
}

QWidget* OkCancelButtons(QDialog& dialog, QPushButton* left) {
  auto* row = new QWidget;
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(10);
  if (left != nullptr) {
    layout->addWidget(left);
  }
  layout->addStretch();
  QPushButton* ok = DialogButton("OK", QStringLiteral("OK"));
  QPushButton* cancel = DialogButton("Cancel", QStringLiteral("Cancel"));
  ok->setDefault(true);
  QObject::connect(ok, &QPushButton::clicked, &dialog, &QDialog::accept);
  QObject::connect(cancel, &QPushButton::clicked, &dialog, &QDialog::reject);
  layout->addWidget(ok);
  layout->addWidget(cancel);
  BeginWithFirstField(dialog);
  return row;
}

void BeginWithFirstField(QDialog& dialog) {
  new FirstField(dialog);
}

void EnterAgain(QLineEdit& field) {
  field.setFocus(Qt::OtherFocusReason);
  field.selectAll();
}

QString OutcomeText(const QDialog& dialog) {
  return dialog.result() == QDialog::Accepted ? QStringLiteral("OK") : QStringLiteral("CANCEL");
}

}  // namespace vexa
