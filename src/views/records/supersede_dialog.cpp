// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/records/supersede_dialog.h"

#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/date_text.h"
#include "base/translation.h"
#include "records/supersede.h"
#include "views/common/dialog_buttons.h"

namespace vexa {
namespace {

QString Name(const RecordSummary& record) {
  return QStringLiteral("%1  %2").arg(DateTimeText(QDateTime::fromMSecsSinceEpoch(record.utcMs)),
                                      record.sampleNumber.simplified());
}

QLineEdit* Field(const char* name) {
  auto* field = new QLineEdit;
  field->setObjectName(QLatin1String(name));
  return field;
}

}  // namespace

SupersedeDialog::SupersedeDialog(const RecordSummary& newer, const RecordSummary& older,
                                 const QString& storePath, const QString& station,
                                 MessageService& messages, QWidget* parent)
    : QDialog(parent),
      storePath_(storePath),
      station_(station),
      messages_(messages),
      stays_(new QComboBox),
      reason_(Field("Reason")),
      operator_(Field("DecidedBy")) {
  setObjectName(QStringLiteral("SupersedeDialog"));
  setWindowTitle(Text::tr("記録の置き換え"));
  stays_->setObjectName(QStringLiteral("Stays"));
  stays_->addItem(Name(newer), QStringList{older.id, newer.id});
  stays_->addItem(Name(older), QStringList{newer.id, older.id});
  auto* told =
      new QLabel(Text::tr("残す記録がもう一方を置き換えます。置き換えられた記録は消えません。"));
  told->setWordWrap(true);
  auto* form = new QFormLayout;
  form->addRow(Text::tr("残す記録"), stays_);
  form->addRow(Text::tr("理由"), reason_);
  form->addRow(Text::tr("決めた人"), operator_);
  QWidget* buttons = OkCancelButtons(*this);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(told);
  layout->addLayout(form);
  layout->addWidget(buttons);
  auto* ok = buttons->findChild<QPushButton*>(QStringLiteral("OK"));
  ok->setEnabled(false);
  connect(reason_, &QLineEdit::textChanged, ok,
          [ok](const QString& text) { ok->setEnabled(!text.trimmed().isEmpty()); });
  setMinimumWidth(460);
}

void SupersedeDialog::accept() {
  const QStringList ids = stays_->currentData().toStringList();
  EventRecord decision;
  decision.reason = reason_->text().trimmed();
  decision.operatorName = operator_->text().trimmed();
  decision.station = station_;
  constexpr int kPatienceMs = 1000;
  RecordStore store;
  StoreFault fault = store.Open(storePath_, RecordStore::Mode::kWrite, kPatienceMs);
  if (fault == StoreFault::kNone) {
    fault = Supersede(store, ids.first(), ids.last(), decision);
  }
  if (fault == StoreFault::kNone) {
    QDialog::accept();
  } else if (fault == StoreFault::kRefused) {
    messages_.Tell({Message::kSupersededAlready});
  } else {
    messages_.Tell({Message::kRecordNotWritten, {StoreFaultText(fault)}});
  }
}

}  // namespace vexa
