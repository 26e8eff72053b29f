// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/settings/table.h"

#include <QGroupBox>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "base/translation.h"
#include "views/common/dialog_buttons.h"
#include "views/common/elided_label.h"
#include "views/common/scroll_body.h"
#include "views/settings/settings_list.h"

namespace vexa {
namespace {

// The first groups lie side by side above three columns, which begin with these ones.
constexpr std::array<std::size_t, 3> kColumns{3, 6, 8};

// In all groups of a column, so that their fields stand below one another.
constexpr int kLabelWidth = 80;
constexpr int kUnitWidth = 32;
constexpr int kGap = 8;

bool IsFirst(std::size_t group) {
  return std::find(kColumns.begin(), kColumns.end(), group) != kColumns.end();
}

QWidget* Field(const QString& text, bool number) {
  auto* field = new ElidedLabel;
  field->setText(text);
  field->setToolTip(text);
  field->setAlignment((number ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
  field->setFrameShape(QFrame::StyledPanel);
  field->setMargin(2);
  field->setBackgroundRole(QPalette::Base);
  field->setAutoFillBackground(true);
  field->setMinimumWidth(field->fontMetrics().horizontalAdvance(QStringLiteral("-0.0000000E+00")) +
                         10);
  field->setFixedHeight(field->sizeHint().height());
  return field;
}

// The values down two columns, a single one over both.
QLayout* Fields(const SettingsRow& row) {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(4);
  grid->setVerticalSpacing(2);
  const int count = static_cast<int>(row.values.size());
  const int lines = (count + 1) / 2;
  for (int i = 0; i < count; ++i) {
    const int column = i / lines * 2;
    if (!row.names.isEmpty()) {
      grid->addWidget(new QLabel(row.names[i]), i % lines, column);
    }
    grid->addWidget(Field(row.values[i], !row.unit.isEmpty() || !row.names.isEmpty()), i % lines,
                    column + 1);
    grid->setColumnStretch(column + 1, 1);
  }
  return grid;
}

QGroupBox* Box(const SettingsGroup& group, int labelWidth = 0, int unitWidth = 0) {
  auto* box = new QGroupBox(group.caption);
  auto* grid = new QGridLayout(box);
  grid->setContentsMargins(8, 6, 8, 6);
  grid->setVerticalSpacing(2);
  grid->setColumnStretch(1, 1);
  grid->setColumnMinimumWidth(0, labelWidth);
  const bool units =
      std::ranges::any_of(group.rows, [](const SettingsRow& row) { return !row.unit.isEmpty(); });
  grid->setColumnMinimumWidth(2, units ? unitWidth : 0);
  int line = 0;
  for (const SettingsRow& row : group.rows) {
    if (!row.label.isEmpty()) {
      grid->addWidget(new QLabel(row.label), line, 0);
    }
    grid->addLayout(Fields(row), line, 1);
    grid->addWidget(new QLabel(row.unit), line, 2);
    ++line;
  }
  grid->setRowStretch(line, 1);
  return box;
}

QLayout* Boxes(const std::vector<SettingsGroup>& groups) {
  auto* top = new QHBoxLayout;
  auto* columns = new QHBoxLayout;
  QVBoxLayout* column = nullptr;
  for (std::size_t i = 0; i < groups.size(); ++i) {
    if (i < kColumns[0]) {
      top->addWidget(Box(groups[i]), i == 0 ? 1 : 0);
      continue;
    }
    if (IsFirst(i)) {
      column = new QVBoxLayout;
      columns->addLayout(column);
    }
    const bool last = i + 1 == groups.size() || IsFirst(i + 1);
    column->addWidget(Box(groups[i], kLabelWidth, kUnitWidth), last ? 1 : 0);
  }
  top->setSpacing(kGap);
  columns->setSpacing(kGap);
  auto* all = new QVBoxLayout;
  all->addLayout(top);
  all->addLayout(columns, 1);
  return all;
}

}  // namespace

table::table(const VEXATYPE& state, const Print& print, QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("table"));
  setWindowTitle(Text::tr("VEXA設定一覧"));
  QPushButton* printButton = DialogButton("Print", Text::tr("印刷"));
  QPushButton* closeButton = DialogButton("Close", Text::tr("閉じる"));
  closeButton->setDefault(true);
  connect(closeButton, &QPushButton::clicked, this, &QDialog::accept);
  connect(printButton, &QPushButton::clicked, this, [this, print] {
    print([this](QPainter& painter, const QRectF& page) { PaintImage(painter, page); });
  });
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(printButton);
  buttons->addStretch();
  buttons->addWidget(closeButton);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(14, 14, 14, 12);
  layout->setSpacing(10);
  list_ = new QWidget;
  list_->setLayout(Boxes(SettingsList(state)));
  layout->addWidget(new ScrollBody(list_), 1);
  layout->addLayout(buttons);
  resize(sizeHint());
}

// Drawn anew on the printer, so that texts stay sharp.
void table::PaintImage(QPainter& painter, const QRectF& page) {
  const double scale = std::min(page.width() / list_->width(), page.height() / list_->height());
  painter.save();
  painter.translate(page.topLeft());
  painter.scale(scale, scale);
  list_->render(&painter);
  painter.restore();
}

}  // namespace vexa
