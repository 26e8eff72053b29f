// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/optics/thickness_panel.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>

#include "base/number_text.h"
#include "base/translation.h"
#include "measurement/evaluation.h"
#include "views/common/doubt_text.h"
#include "views/common/theme.h"
#include "views/optics/fit_text.h"

namespace vexa {

namespace {

constexpr int kWidth = 296;
constexpr int kMargin = 10;
constexpr int kMarkGap = 6;
const QString kNothing = QStringLiteral("-");

QLabel* Value(const QString& name) {
  auto* label = new QLabel(kNothing);
  label->setObjectName(name);
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  return label;
}

}  // namespace

ThicknessPanel::ThicknessPanel(Session& session, MessageService& messages, QWidget* parent)
    : QGroupBox(Text::tr("膜厚"), parent),
      session_(session),
      state_(session.State()),
      messages_(messages),
      automatic_(new QCheckBox(Text::tr("自動測定"))),
      thickness_(Value(QStringLiteral("Thickness"))),
      doubtMark_(new QLabel),
      doubt_(new QLabel),
      fitMark_(new QLabel),
      fitName_(new QLabel(Text::tr("ﾌｨｯﾄ"))),
      fit_(Value(QStringLiteral("FittedThickness"))) {
  setObjectName(QStringLiteral("ThicknessPanel"));
  setFixedWidth(kWidth);
  auto* compute = new QPushButton(Text::tr("膜厚測定"));
  compute->setObjectName(QStringLiteral("ThicknessButton"));
  compute->setToolTip(Text::tr("選択ｽﾛｯﾄの膜厚を計算"));
  automatic_->setObjectName(QStringLiteral("AutoMesThickChk"));
  automatic_->setToolTip(Text::tr("測定後に膜厚を計算"));
  automatic_->setChecked(state_.autoThickness);
  connect(compute, &QPushButton::clicked, this, &ThicknessPanel::ComputeThickness);
  connect(automatic_, &QCheckBox::toggled, this,
          [this](bool on) { session_.SetAutoThickness(on); });

  QFont large = font();
  large.setPixelSize(19);
  thickness_->setFont(large);
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(kMargin, 6, kMargin, 6);
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(3);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(3, 1);
  grid->addWidget(compute, 0, 0, 1, 2);
  grid->addWidget(automatic_, 0, 2, 1, 2, Qt::AlignRight);
  grid->addWidget(thickness_, 1, 0, 1, 4);
  for (int i = 0; i < 2; ++i) {
    const QString number = QString::number(i + 1);
    ExtremumLine& line = lines_[static_cast<std::size_t>(i)];
    line = {Value(QStringLiteral("Wavelength") + number), Value(QStringLiteral("Index") + number)};
    grid->addWidget(new QLabel(Text::tr("波長")), i + 2, 0);
    grid->addWidget(line.wavelength, i + 2, 1);
    auto* index = new QLabel(Text::tr("n%1：").arg(number));
    index->setContentsMargins(16, 0, 0, 0);
    grid->addWidget(index, i + 2, 2);
    grid->addWidget(line.index, i + 2, 3);
  }
  doubt_->setObjectName(QStringLiteral("ThicknessDoubt"));
  doubt_->setWordWrap(true);
  const auto addMarked = [grid](QLabel& mark, QWidget* content, int row) {
    mark.setPixmap(DoubtMark());
    auto* line = new QHBoxLayout;
    line->setSpacing(kMarkGap);
    line->addWidget(&mark, 0, Qt::AlignTop);
    line->addWidget(content, 1);
    grid->addLayout(line, row, 0, 1, 4);
  };
  addMarked(*doubtMark_, doubt_, 4);
  auto* fitted = new QWidget;
  auto* fittedLine = new QHBoxLayout(fitted);
  fittedLine->setContentsMargins(0, 0, 0, 0);
  fittedLine->addWidget(fitName_);
  fittedLine->addWidget(fit_, 1);
  addMarked(*fitMark_, fitted, 5);
}

void ThicknessPanel::Show(int selectedSlot) {
  slot_ = selectedSlot;
  automatic_->setChecked(state_.autoThickness);
  const MeasurementSlot* slot = state_.Slot(selectedSlot);
  const ThicknessResult none;
  const ThicknessResult& result = slot == nullptr || !slot->valid ? none : slot->thickness;
  const auto text = [computed = result.IsComputed()](double value, QStringView pattern) {
    return computed ? FormatNumber(value, pattern) : kNothing;
  };
  thickness_->setText(text(result.thicknessNm, u"###0.0") +
                      (result.IsComputed() ? u' ' + ThicknessUnit(result.physical) : QString()));
  lines_[0].wavelength->setText(text(result.first.wavelengthNm, u"###0"));
  lines_[0].index->setText(text(result.firstIndex, u"###0.000"));
  lines_[1].wavelength->setText(text(result.second.wavelengthNm, u"###0"));
  lines_[1].index->setText(text(result.secondIndex, u"###0.000"));
  const MeasurementSlot empty;
  const MeasurementSlot& shown = slot == nullptr || !slot->valid ? empty : *slot;
  ShowDoubts(shown);
  ShowFit(shown.fit);
}

// One line why; all of them where the mouse rests.
void ThicknessPanel::ShowDoubts(const MeasurementSlot& slot) {
  const bool doubtful = !slot.doubts.empty();
  doubtMark_->setVisible(doubtful);
  doubt_->setVisible(doubtful);
  doubt_->setText(doubtful ? ThicknessDoubtText(slot.doubts.back()) : QString());
  // Its height is known, since the panel's width is. Were it left to the layout, nothing above it
  // would give way on a low screen.
  QSizePolicy known = doubt_->sizePolicy();
  known.setHeightForWidth(false);
  doubt_->setSizePolicy(known);
  const int width = kWidth - 2 * kMargin - doubtMark_->sizeHint().width() - kMarkGap;
  doubt_->setFixedHeight(doubtful ? doubt_->heightForWidth(width) : 0);
  doubt_->setToolTip(DoubtTexts(slot.doubts));
  thickness_->setToolTip(DoubtTexts(slot.doubts));
}

void ThicknessPanel::ShowFit(const std::optional<FilmFit>& fit) {
  fitName_->setVisible(fit.has_value());
  fit_->setVisible(fit.has_value());
  fitMark_->setVisible(fit && fit->outcome != FitOutcome::kOk);
  if (fit) {
    const bool told = fit->outcome != FitOutcome::kNone;
    fit_->setText(told ? FitThicknessText(*fit) + u' ' + ThicknessUnit(true)
                       : FitOutcomeWord(fit->outcome));
    fit_->setToolTip(
        (QStringList{FitOutcomeText(fit->outcome)} + FitSettingTexts(fit->setting)).join(u'\n'));
  }
}

void ThicknessPanel::ComputeThickness() {
  if (!state_.thickness.enabled) {
    messages_.Tell({Message::kThicknessDisabled});
    return;
  }
  const MeasurementSlot* slot = state_.Slot(slot_);
  if (slot == nullptr || !slot->valid) {
    messages_.Tell({Message::kNoValidData});
    return;
  }
  // A failure is shown as no thickness, too.
  if (const Status status = session_.ComputeThickness(slot_); status != kSuccess) {
    messages_.Tell(SlotThicknessMessage(status));
  }
}

}  // namespace vexa
