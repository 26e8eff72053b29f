// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/records/record_search_bar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/translation.h"

namespace vexa {
namespace {

// Days of the choices "today", "7 days", "30 days"; 0: all, -1: from a date to a date.
constexpr int kAllDays = 0;
constexpr int kEnteredDays = -1;

QComboBox* Choice(const char* name, const QList<std::pair<QString, int>>& entries) {
  auto* box = new QComboBox;
  box->setObjectName(QLatin1String(name));
  for (const auto& [text, value] : entries) {
    box->addItem(text, value);
  }
  return box;
}

QDateEdit* DateField(const char* name) {
  auto* field = new QDateEdit(QDate::currentDate());
  field->setObjectName(QLatin1String(name));
  field->setCalendarPopup(true);
  field->setDisplayFormat(QStringLiteral("yyyy/MM/dd"));
  field->setEnabled(false);
  return field;
}

void AddLabelled(QHBoxLayout& row, const QString& caption, QWidget* field, int stretch = 0) {
  auto* label = new QLabel(caption);
  label->setBuddy(field);
  row.addWidget(label);
  row.addWidget(field, stretch);
}

// What a field holds; nothing when it is empty.
std::optional<QString> Entered(const QLineEdit& field) {
  const QString text = field.text().trimmed();
  return text.isEmpty() ? std::nullopt : std::optional(text);
}

}  // namespace

RecordSearchBar::RecordSearchBar(bool withShared, QWidget* parent)
    : QWidget(parent),
      period_(Choice("Period", {{Text::tr("全期間"), kAllDays},
                                {Text::tr("今日"), 1},
                                {Text::tr("7日間"), 7},
                                {Text::tr("30日間"), 30},
                                {Text::tr("期間を指定"), kEnteredDays}})),
      from_(DateField("From")),
      to_(DateField("To")),
      verdict_(Choice("Verdict", {{Text::tr("すべて"), -1},
                                  {QStringLiteral("OK"), static_cast<int>(Verdict::kOk)},
                                  {QStringLiteral("NG"), static_cast<int>(Verdict::kNotGood)},
                                  {Text::tr("判定なし"), static_cast<int>(Verdict::kNone)}})),
      place_(new PlaceChoice),
      superseded_(new QCheckBox(Text::tr("置き換えられた記録も"))),
      lot_(AddField("Lot")),
      recipe_(AddField("Recipe")),
      sample_(AddField("SamplePart")),
      operator_(AddField("Operator")) {
  superseded_->setObjectName(QStringLiteral("WithSuperseded"));
  sample_->setToolTip(Text::tr("試料Noの一部"));
  auto* search = new QPushButton(Text::tr("検索(&F)"));
  search->setObjectName(QStringLiteral("Search"));
  search->setAutoDefault(false);

  auto* upper = new QHBoxLayout;
  AddLabelled(*upper, Text::tr("期間"), period_);
  upper->addWidget(from_);
  upper->addWidget(new QLabel(Text::tr("～")));
  upper->addWidget(to_);
  upper->addSpacing(12);
  AddLabelled(*upper, Text::tr("判定"), verdict_);
  upper->addSpacing(12);
  upper->addWidget(superseded_);
  upper->addStretch();
  if (withShared) {
    AddLabelled(*upper, Text::tr("検索先"), place_);
  } else {
    place_->setParent(this);
    place_->hide();
  }
  auto* lower = new QHBoxLayout;
  AddLabelled(*lower, Text::tr("ロット"), lot_, 1);
  AddLabelled(*lower, Text::tr("試料No"), sample_, 1);
  AddLabelled(*lower, Text::tr("レシピ"), recipe_, 1);
  AddLabelled(*lower, Text::tr("測定者"), operator_, 1);
  lower->addWidget(search);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addLayout(upper);
  layout->addLayout(lower);

  connect(period_, &QComboBox::currentIndexChanged, this, [this] {
    const bool entered = period_->currentData().toInt() == kEnteredDays;
    from_->setEnabled(entered);
    to_->setEnabled(entered);
  });
  for (const QComboBox* choice : {period_, verdict_, static_cast<QComboBox*>(place_)}) {
    connect(choice, &QComboBox::currentIndexChanged, this, &RecordSearchBar::SearchRequested);
  }
  for (const QDateEdit* date : {from_, to_}) {
    connect(date, &QDateEdit::dateChanged, this, &RecordSearchBar::SearchRequested);
  }
  connect(superseded_, &QCheckBox::toggled, this, &RecordSearchBar::SearchRequested);
  connect(search, &QPushButton::clicked, this, &RecordSearchBar::SearchRequested);
}

QLineEdit* RecordSearchBar::AddField(const char* name) {
  auto* field = new QLineEdit;
  field->setObjectName(QLatin1String(name));
  field->setClearButtonEnabled(true);
  connect(field, &QLineEdit::returnPressed, this, &RecordSearchBar::SearchRequested);
  return field;
}

RecordQuery RecordSearchBar::Query(const QDate& today) const {
  RecordQuery query;
  const int days = period_->currentData().toInt();
  if (days == kEnteredDays) {
    query.from = from_->date().startOfDay();
    query.to = to_->date().addDays(1).startOfDay();
  } else if (days != kAllDays) {
    query.from = today.addDays(1 - days).startOfDay();
  }
  if (const int verdict = verdict_->currentData().toInt(); verdict >= 0) {
    query.verdict = static_cast<Verdict>(verdict);
  }
  query.withSuperseded = superseded_->isChecked();
  query.lot = Entered(*lot_);
  query.recipe = Entered(*recipe_);
  query.operatorName = Entered(*operator_);
  query.samplePart = sample_->text().trimmed();
  return query;
}

RecordPlace RecordSearchBar::Place() const {
  return place_->Place();
}

}  // namespace vexa
