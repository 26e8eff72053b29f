// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/files/addinp_frm.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <algorithm>

#include "base/code_page.h"
#include "base/date_text.h"
#include "base/translation.h"
#include "views/common/dialog_buttons.h"
#include "views/common/scroll_body.h"

namespace vexa {
namespace {

struct Column {
  const char* caption;
  const char* name;
  int width;
};

constexpr std::array<Column, 4> kColumnList{
    {{QT_TRANSLATE_NOOP("Text", "試料No"), "SampNo_txt", 150},
     {QT_TRANSLATE_NOOP("Text", "備考１"), "MesPoint_txt", 190},
     {QT_TRANSLATE_NOOP("Text", "備考２"), "DevNo_txt", 190},
     {QT_TRANSLATE_NOOP("Text", "測定日"), "MesDate_txt", 150}}};

std::array<QString, 4> Texts(const SampleInfo& info) {
  return {info.sampleNumber, info.remark1, info.remark2, DateTimeText(info.measuredAt)};
}

}  // namespace

AddinpFrm::AddinpFrm(Session& session, MessageService& messages, int selectedSlot, QWidget* parent)
    : QDialog(parent), session_(session), state_(session.State()), messages_(messages) {
  setObjectName(QStringLiteral("AddinpFrm"));
  setWindowTitle(Text::tr("試料情報"));
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(6);
  grid->setVerticalSpacing(4);
  for (int column = 0; column < kColumns; ++column) {
    const Column& each = kColumnList[static_cast<std::size_t>(column)];
    grid->addWidget(new QLabel(Text::tr(each.caption)), 0, column + 1);
    grid->setColumnMinimumWidth(column + 1, each.width);
    grid->setColumnStretch(column + 1, 1);
  }
  for (int number = 1; number <= kSlotCount; ++number) {
    grid->addWidget(new QLabel(QString::number(number)), number, 0, Qt::AlignRight);
    const std::array<QString, 4> texts = Texts(state_.Slot(number)->info);
    for (int column = 0; column < kColumns; ++column) {
      auto* entry = new QLineEdit(texts[static_cast<std::size_t>(column)]);
      entry->setObjectName(
          QStringLiteral("%1%2")
              .arg(QLatin1String(kColumnList[static_cast<std::size_t>(column)].name))
              .arg(number));
      entry->setAccessibleName(
          QStringLiteral("%1 %2")
              .arg(Text::tr(kColumnList[static_cast<std::size_t>(column)].caption))
              .arg(number));
      entry->setMinimumHeight(26);
      entry->installEventFilter(this);
      grid->addWidget(entry, number, column + 1);
      rows_[static_cast<std::size_t>(number - 1)][static_cast<std::size_t>(column)] = entry;
    }
  }
  auto* ok = new QPushButton(QStringLiteral("OK"));
  ok->setObjectName(QStringLiteral("OK_b"));
  auto* cancel = new QPushButton(QStringLiteral("CANCEL"));
  cancel->setObjectName(QStringLiteral("Cansel_b"));
  for (QPushButton* button : {ok, cancel}) {
    button->setAutoDefault(false);
    button->setMinimumWidth(96);
  }
  connect(ok, &QPushButton::clicked, this, &AddinpFrm::accept);
  connect(cancel, &QPushButton::clicked, this, &AddinpFrm::reject);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(ok);
  buttons->addWidget(cancel);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(18, 16, 18, 16);
  layout->setSpacing(16);
  auto* entries = new QWidget;
  entries->setLayout(grid);
  grid->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(new ScrollBody(entries), 1);
  layout->addLayout(buttons);
  if (state_.Slot(selectedSlot) != nullptr) {
    EnterAgain(*rows_[static_cast<std::size_t>(selectedSlot) - 1].front());
  }
  resize(sizeHint());
}

void AddinpFrm::accept() {
  std::array<SampleInfo, kSlotCount> infos;
  QStringList splitting;
  for (std::size_t i = 0; i < infos.size(); ++i) {
    const auto& [sampleNumber, remark1, remark2, date] = rows_[i];
    for (QLineEdit* entry : {sampleNumber, remark1, remark2}) {
      if (!IsEncodable(entry->text())) {
        return Refuse(*entry, Message::kEntryNotEncodable);
      }
    }
    // A quote begins a field that ends with the next one.
    if (sampleNumber->text().contains(u'"')) {
      return Refuse(*sampleNumber, Message::kEntryNotEncodable);
    }
    if (sampleNumber->text().contains(u',')) {
      splitting << sampleNumber->text();
    }
    const std::optional<QDateTime> measuredAt = ParseDateTime(date->text());
    if (!measuredAt) {
      return Refuse(*date, Message::kNotADate);
    }
    // A date that was left alone keeps what its text does not show.
    const QDateTime& before = state_.measurementSlots[i].info.measuredAt;
    infos[i] = {sampleNumber->text(), remark1->text(), remark2->text(),
                date->text() == DateTimeText(before) ? before : *measuredAt};
  }
  session_.EditInformation(infos);
  if (!splitting.isEmpty()) {
    messages_.Tell({Message::kSampleNumberSplits, {splitting.join(u'\r')}});
  }
  QDialog::accept();
}

bool AddinpFrm::eventFilter(QObject* watched, QEvent* event) {
  auto* entry = qobject_cast<QLineEdit*>(watched);
  if (entry == nullptr) {
    return QDialog::eventFilter(watched, event);
  }
  if (event->type() == QEvent::FocusIn) {
    // A click sets the cursor after it has given the focus.
    QTimer::singleShot(0, entry, &QLineEdit::selectAll);
  } else if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
      entry->selectAll();
      return true;
    }
    if (key == Qt::Key_Up || key == Qt::Key_Down) {
      const int by = key == Qt::Key_Down ? 1 : -1;
      for (int row = 0; row < kSlotCount; ++row) {
        const auto& entries = rows_[static_cast<std::size_t>(row)];
        const auto at = std::ranges::find(entries, entry);
        if (at != entries.end() && row + by >= 0 && row + by < kSlotCount) {
          const auto column = static_cast<std::size_t>(at - entries.begin());
          const int next = row + by;
          rows_[static_cast<std::size_t>(next)][column]->setFocus();
          return true;
        }
      }
    }
  }
  return QDialog::eventFilter(watched, event);
}

void AddinpFrm::Refuse(QLineEdit& entry, Message why) {
  messages_.Tell({why, {entry.text()}});
  EnterAgain(entry);
}

}  // namespace vexa
