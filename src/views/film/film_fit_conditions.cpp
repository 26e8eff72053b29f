// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/film/film_fit_conditions.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <array>
#include <optional>

#include "base/translation.h"
#include "views/common/dialog_buttons.h"

namespace vexa {
namespace {

constexpr int kFieldWidth = 68;
constexpr double kPercent = 100.0;

// Any stack, where only the options are asked about.
constexpr std::array kSomeRange{ThicknessRange{}};

}  // namespace

FilmFitConditions::FilmFitConditions(QWidget* parent)
    : QGroupBox(Text::tr("条件"), parent),
      from_(new IntegerField),
      to_(new IntegerField),
      scaleFree_(new QCheckBox(Text::tr("倍率を求める (ﾘﾌｧﾚﾝｽの誤差)"))),
      offsetFree_(new QCheckBox(Text::tr("一定の背景光を求める"))),
      indexFree_(new QCheckBox(Text::tr("層1の屈折率の係数を求める"))),
      bandwidth_(new NumberField(QStringLiteral("#0.0#"))),
      wavelengthUncertainty_(new NumberField(QStringLiteral("#0.0#"))),
      indexUncertainty_(new NumberField(QStringLiteral("##0.0##"))),
      confidence_(new NumberField(QStringLiteral("##0.0#"))) {
  setObjectName(QStringLiteral("FilmFitConditions"));
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(10, 6, 10, 8);
  grid->setHorizontalSpacing(6);
  grid->setVerticalSpacing(4);
  grid->setColumnStretch(0, 1);
  auto* range = new QHBoxLayout;
  range->setSpacing(4);
  range->addWidget(from_);
  range->addWidget(new QLabel(Text::tr("～")));
  range->addWidget(to_);
  grid->addWidget(new QLabel(Text::tr("波長範囲 [nm]")), 0, 0);
  grid->addLayout(range, 0, 1);
  const std::pair<QString, QLineEdit*> fields[] = {
      {Text::tr("ﾊﾞﾝﾄﾞ幅 (半値全幅) [nm]"), bandwidth_},
      {Text::tr("波長の不確かさ [nm]"), wavelengthUncertainty_},
      {Text::tr("屈折率の不確かさ [%]"), indexUncertainty_},
      {Text::tr("信頼水準 [%]"), confidence_}};
  int row = 1;
  for (const auto& [caption, field] : fields) {
    grid->addWidget(new QLabel(caption), row, 0);
    grid->addWidget(field, row++, 1, Qt::AlignRight);
  }
  const std::pair<const char*, QLineEdit*> named[] = {
      {"RangeFrom", from_},
      {"RangeTo", to_},
      {"Bandwidth", bandwidth_},
      {"WavelengthUncertainty", wavelengthUncertainty_},
      {"IndexUncertainty", indexUncertainty_},
      {"Confidence", confidence_}};
  for (const auto& [name, field] : named) {
    field->setObjectName(QLatin1String(name));
    field->setMinimumWidth(kFieldWidth);
    field->setMaximumWidth(kFieldWidth);
    connect(field, &QLineEdit::textEdited, this, &FilmFitConditions::Edited);
  }
  const std::pair<const char*, QCheckBox*> boxes[] = {
      {"ScaleFree", scaleFree_}, {"OffsetFree", offsetFree_}, {"IndexFree", indexFree_}};
  for (const auto& [name, box] : boxes) {
    box->setObjectName(QLatin1String(name));
    grid->addWidget(box, row++, 0, 1, 2);
    connect(box, &QCheckBox::toggled, this, &FilmFitConditions::Edited);
  }
  indexFree_->setToolTip(Text::tr("基板とﾘﾌｧﾚﾝｽが確かな場合に限ります。"));
}

void FilmFitConditions::Show(const FilmFitOptions& options) {
  from_->SetValue(options.fromNm);
  to_->SetValue(options.toNm);
  scaleFree_->setChecked(options.scaleFree);
  offsetFree_->setChecked(options.offsetFree);
  indexFree_->setChecked(options.indexFree);
  bandwidth_->SetValue(options.bandwidthNm);
  wavelengthUncertainty_->SetValue(options.wavelengthUncertaintyNm);
  indexUncertainty_->SetValue(kPercent * options.indexUncertainty);
  confidence_->SetValue(kPercent * options.confidence);
}

bool FilmFitConditions::Take(FilmFitOptions& options, QString& fault) {
  FilmFitOptions taken;
  taken.scaleFree = scaleFree_->isChecked();
  taken.offsetFree = offsetFree_->isChecked();
  taken.indexFree = indexFree_->isChecked();
  const std::optional<int> from = from_->Value();
  const std::optional<int> to = to_->Value();
  const bool ranged = from && to;
  taken.fromNm = from.value_or(0);
  taken.toNm = to.value_or(0);
  if (!ranged || CheckFilmFit(kSomeRange, taken)) {
    fault = FilmFitFaultText(FilmFitFault::kWavelengths);
    EnterAgain(from && ReflectanceSpectrum::Contains(*from) ? *to_ : *from_);
    return false;
  }
  const struct {
    NumberField* field;
    double FilmFitOptions::*option;
    double unit;
  } numbers[] = {{bandwidth_, &FilmFitOptions::bandwidthNm, 1.0},
                 {wavelengthUncertainty_, &FilmFitOptions::wavelengthUncertaintyNm, 1.0},
                 {indexUncertainty_, &FilmFitOptions::indexUncertainty, kPercent},
                 {confidence_, &FilmFitOptions::confidence, kPercent}};
  for (const auto& [field, option, unit] : numbers) {
    const std::optional<double> entered = field->Value();
    taken.*option = entered.value_or(0.0) / unit;
    if (!entered || CheckFilmFit(kSomeRange, taken)) {
      fault = FilmFitFaultText(FilmFitFault::kOption);
      EnterAgain(*field);
      return false;
    }
  }
  options = taken;
  return true;
}

}  // namespace vexa
