// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/statistics/gauge_plan_entries.h"

#include <QFormLayout>
#include <QRegularExpression>

#include "base/translation.h"
#include "views/common/dialog_buttons.h"
#include "views/common/theme.h"
#include "views/statistics/series_filter.h"

namespace vexa {
namespace {

QSpinBox* CountField(const char* name, int least, int most, int value) {
  auto* field = new QSpinBox;
  field->setObjectName(QLatin1String(name));
  field->setLocale(QLocale::c());
  field->setRange(least, most);
  field->setValue(value);
  return field;
}

}  // namespace

GaugePlanEntries::GaugePlanEntries(QWidget* choice)
    : QGroupBox(Text::tr("計画")),
      name_(new QLineEdit),
      value_(new ValueChoice(false)),
      parts_(CountField("Parts", 2, GaugePlan::kMostParts, 10)),
      operators_(new QLineEdit),
      repeats_(CountField("Repeats", 2, GaugePlan::kMostRepeats, 3)),
      tolerance_(new NumberField(QStringLiteral("0.######"))),
      refusal_(new QLabel),
      make_(DialogButton("MakePlan", Text::tr("計画を作る(&N)"))) {
  name_->setObjectName(QStringLiteral("StudyName"));
  operators_->setObjectName(QStringLiteral("Operators"));
  operators_->setPlaceholderText(Text::tr("A, B, C"));
  tolerance_->setObjectName(QStringLiteral("Tolerance"));
  tolerance_->setPlaceholderText(Text::tr("なし"));
  refusal_->setObjectName(QStringLiteral("PlanRefusal"));
  refusal_->setWordWrap(true);
  QPalette palette = refusal_->palette();
  palette.setColor(QPalette::WindowText, theme::kBad);
  refusal_->setPalette(palette);
  refusal_->hide();
  auto* form = new QFormLayout(this);
  form->addRow(Text::tr("解析"), choice);
  form->addRow(Text::tr("名前"), name_);
  form->addRow(Text::tr("値"), value_);
  form->addRow(Text::tr("部品の数"), parts_);
  form->addRow(Text::tr("測定者"), operators_);
  form->addRow(Text::tr("繰返し"), repeats_);
  form->addRow(Text::tr("公差の幅"), tolerance_);
  form->addRow(refusal_);
  form->addRow(make_);
  connect(make_, &QPushButton::clicked, this, &GaugePlanEntries::MakeRequested);
}

void GaugePlanEntries::ShowSettled(const GaugePlan& plan) {
  name_->setText(plan.name);
  value_->SetValue(plan.value);
  parts_->setValue(plan.parts);
  operators_->setText(plan.operators.join(QStringLiteral(", ")));
  repeats_->setValue(plan.repeats);
  tolerance_->clear();
  if (plan.tolerance) {
    tolerance_->SetValue(*plan.tolerance);
  }
  refusal_->hide();
  SetSettled(true);
}

std::optional<GaugePlan> GaugePlanEntries::Take() {
  GaugePlan plan;
  plan.name = name_->text().trimmed();
  plan.value = Value();
  plan.parts = parts_->value();
  for (const QString& name :
       operators_->text().split(QRegularExpression(QStringLiteral("[,、]")), Qt::SkipEmptyParts)) {
    plan.operators << name.trimmed();
  }
  plan.repeats = repeats_->value();
  plan.tolerance = Tolerance();
  QString refused;
  if (!plan.IsValid()) {
    refused = Text::tr("測定者は、違う名前で2人以上10人以下をコンマで区切って入力してください。");
  } else if (!tolerance_->text().trimmed().isEmpty() && !plan.tolerance) {
    refused = Text::tr("公差の幅は0より大きい数です。");
  }
  refusal_->setText(refused);
  refusal_->setVisible(!refused.isEmpty());
  return refused.isEmpty() ? std::optional(plan) : std::nullopt;
}

RecordValue GaugePlanEntries::Value() const {
  return value_->Value();
}

std::optional<double> GaugePlanEntries::Tolerance() const {
  const std::optional<double> entered = tolerance_->Value();
  return entered && *entered > 0.0 ? entered : std::nullopt;
}

void GaugePlanEntries::SetSettled(bool settled) {
  for (QWidget* entry :
       std::initializer_list<QWidget*>{name_, parts_, operators_, repeats_, make_}) {
    entry->setEnabled(!settled);
  }
}

}  // namespace vexa
