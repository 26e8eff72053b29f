// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/statistics/series_filter.h"

#include <QFormLayout>
#include <QHBoxLayout>

#include "base/translation.h"

namespace vexa {
namespace {

constexpr int kDays = 30;

QLineEdit* TextField(const char* name) {
  auto* field = new QLineEdit;
  field->setObjectName(QLatin1String(name));
  field->setPlaceholderText(Text::tr("すべて"));
  return field;
}

QDateEdit* DayField(const char* name, const QDate& day) {
  auto* field = new QDateEdit(day);
  field->setObjectName(QLatin1String(name));
  field->setLocale(QLocale::c());
  field->setDisplayFormat(QStringLiteral("yyyy/MM/dd"));
  field->setCalendarPopup(true);
  field->setEnabled(false);
  return field;
}

std::optional<QString> Restriction(const QLineEdit& field) {
  const QString text = field.text().trimmed();
  return text.isEmpty() ? std::nullopt : std::optional(text);
}

QString DayText(const QDateEdit& field) {
  return field.date().toString(QStringLiteral("yyyy/MM/dd"));
}

}  // namespace

ValueChoice::ValueChoice(bool withTarget, QWidget* parent)
    : QWidget(parent), quantity_(new QComboBox), nm_(new QSpinBox) {
  quantity_->setObjectName(QStringLiteral("Quantity"));
  // The longest name must not make a narrow column wider.
  quantity_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  constexpr int kLetters = 12;
  quantity_->setMinimumContentsLength(kLetters);
  for (int i = 0; i < kQuantityCount - (withTarget ? 0 : 1); ++i) {
    quantity_->addItem(QuantityName(static_cast<Quantity>(i)));
  }
  nm_->setObjectName(QStringLiteral("Wavelength"));
  nm_->setLocale(QLocale::c());
  nm_->setRange(ReflectanceSpectrum::kFirstNm, ReflectanceSpectrum::kLastNm);
  nm_->setValue(RecordValue().nm);
  nm_->setSuffix(QStringLiteral(" nm"));
  nm_->setKeyboardTracking(false);
  nm_->hide();
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(quantity_, 1);
  layout->addWidget(nm_);
  connect(quantity_, &QComboBox::currentIndexChanged, this, [this] {
    nm_->setVisible(Value().quantity == Quantity::kReflectance);
    emit Changed();
  });
  connect(nm_, &QSpinBox::valueChanged, this, &ValueChoice::Changed);
}

RecordValue ValueChoice::Value() const {
  return {static_cast<Quantity>(quantity_->currentIndex()), nm_->value()};
}

void ValueChoice::SetValue(const RecordValue& value) {
  nm_->setValue(value.nm);
  quantity_->setCurrentIndex(static_cast<int>(value.quantity));
}

SeriesFilter::SeriesFilter(const QDate& today, bool withShared, QWidget* parent)
    : QWidget(parent),
      place_(new PlaceChoice(this)),
      recipe_(TextField("Recipe")),
      lot_(TextField("Lot")),
      operator_(TextField("Operator")),
      days_(new QCheckBox(Text::tr("期間を限る"))),
      from_(DayField("FromDay", today.addDays(-kDays))),
      to_(DayField("ToDay", today)) {
  days_->setObjectName(QStringLiteral("LimitDays"));
  auto* form = new QFormLayout(this);
  form->setContentsMargins(0, 0, 0, 0);
  if (withShared) {
    form->addRow(Text::tr("検索先"), place_);
  } else {
    place_->hide();
  }
  form->addRow(Text::tr("レシピ"), recipe_);
  form->addRow(Text::tr("ロット"), lot_);
  form->addRow(Text::tr("測定者"), operator_);
  form->addRow(days_);
  form->addRow(Text::tr("から"), from_);
  form->addRow(Text::tr("まで"), to_);
  connect(place_, &QComboBox::currentIndexChanged, this, &SeriesFilter::Changed);
  for (QLineEdit* field : {recipe_, lot_, operator_}) {
    connect(field, &QLineEdit::editingFinished, this, &SeriesFilter::Changed);
  }
  connect(days_, &QCheckBox::toggled, this, [this](bool on) {
    from_->setEnabled(on);
    to_->setEnabled(on);
    emit Changed();
  });
  for (QDateEdit* field : {from_, to_}) {
    connect(field, &QDateEdit::dateChanged, this, &SeriesFilter::Changed);
  }
}

RecordQuery SeriesFilter::Query(int limit) const {
  RecordQuery query;
  query.recipe = Restriction(*recipe_);
  query.lot = Restriction(*lot_);
  query.operatorName = Restriction(*operator_);
  if (days_->isChecked()) {
    query.from = from_->date().startOfDay();
    query.to = to_->date().addDays(1).startOfDay();
  }
  query.limit = limit;
  return query;
}

QString SeriesFilter::Description() const {
  QStringList parts;
  if (Place() == RecordPlace::kShared) {
    parts << place_->currentText();
  }
  for (const auto& [name, field] :
       {std::pair{Text::tr("レシピ"), recipe_}, std::pair{Text::tr("ロット"), lot_},
        std::pair{Text::tr("測定者"), operator_}}) {
    if (const auto text = Restriction(*field)) {
      parts << name + u' ' + *text;
    }
  }
  if (days_->isChecked()) {
    parts << QStringLiteral("%1 - %2").arg(DayText(*from_), DayText(*to_));
  }
  return parts.join(QStringLiteral("   "));
}

}  // namespace vexa
