// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/optics/thickness_panel.h"

#include <QGridLayout>
#include <QPushButton>
#include <algorithm>

#include "base/number_text.h"
#include "measurement/evaluation.h"
#include "optics/extremum_search.h"

namespace vexa {

using namespace message_type;

namespace {

constexpr int kWidth = 296;
const QString kNothing = QStringLiteral("-");

QLabel* Value(const QString& name) {
  auto* label = new QLabel(kNothing);
  label->setObjectName(name);
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  return label;
}

}  // namespace

ThicknessPanel::ThicknessPanel(VEXATYPE& state, MessageService& messages, QWidget* parent)
    : QGroupBox(QStringLiteral("膜厚"), parent),
      state_(state),
      messages_(messages),
      automatic_(new QCheckBox(QStringLiteral("自動測定"))),
      thickness_(Value(QStringLiteral("Thickness"))) {
  setObjectName(QStringLiteral("ThicknessPanel"));
  setFixedWidth(kWidth);
  auto* compute = new QPushButton(QStringLiteral("膜厚測定"));
  compute->setObjectName(QStringLiteral("ThicknessButton"));
  compute->setToolTip(QStringLiteral("選択ｽﾛｯﾄの膜厚を計算"));
  automatic_->setObjectName(QStringLiteral("AutoMesThickChk"));
  automatic_->setToolTip(QStringLiteral("測定後に膜厚を計算"));
  automatic_->setChecked(state.autoThickness);
  connect(compute, &QPushButton::clicked, this, &ThicknessPanel::ComputeThickness);
  connect(automatic_, &QCheckBox::toggled, this, [this](bool on) { state_.autoThickness = on; });

  QFont large = font();
  large.setPixelSize(19);
  thickness_->setFont(large);
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(10, 8, 10, 8);
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(6);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(3, 1);
  grid->addWidget(compute, 0, 0, 1, 2);
  grid->addWidget(automatic_, 0, 2, 1, 2, Qt::AlignRight);
  grid->addWidget(thickness_, 1, 0, 1, 4);
  for (int i = 0; i < 2; ++i) {
    const QString number = QString::number(i + 1);
    ExtremumLine& line = lines_[static_cast<std::size_t>(i)];
    line = {Value(QStringLiteral("Wavelength") + number), Value(QStringLiteral("Index") + number)};
    grid->addWidget(new QLabel(QStringLiteral("波長")), i + 2, 0);
    grid->addWidget(line.wavelength, i + 2, 1);
    auto* index = new QLabel(QStringLiteral("n%1：").arg(number));
    index->setContentsMargins(16, 0, 0, 0);
    grid->addWidget(index, i + 2, 2);
    grid->addWidget(line.index, i + 2, 3);
  }
}

void ThicknessPanel::Show(int selectedSlot) {
  slot_ = selectedSlot;
  automatic_->setChecked(state_.autoThickness);
  const MeasurementSlot* slot = state_.Slot(selectedSlot);
  const ThicknessResult none;
  const ThicknessResult& result = slot == nullptr || !slot->valid ? none : slot->thickness;
  // Zero stands for "none": two extrema always have wavelengths.
  const bool computed = result.first.wavelengthNm > 0.0;
  thickness_->setText(computed ? FormatNumber(result.thicknessNm, u"###0.0") + u' ' +
                                     ThicknessUnit(state_.thickness.kind != ThicknessKind::kOptical)
                               : kNothing);
  const bool indexKnown = computed && slot != nullptr && IndexIsOf(*slot);
  ShowExtremum(lines_[0], result.first, indexKnown);
  ShowExtremum(lines_[1], result.second, indexKnown);
}

void ThicknessPanel::ComputeThickness() {
  if (!state_.thickness.enabled) {
    messages_.MsgCall(QStringLiteral("膜厚測定設定が有効ではありません。"), kOk + kStopIcon,
                      message_title::kError);
    return;
  }
  MeasurementSlot* slot = state_.Slot(slot_);
  if (slot == nullptr || !slot->valid) {
    messages_.MsgCall(QStringLiteral("有効ﾃﾞｰﾀがありません。"), kOk + kInformationIcon,
                      message_title::kInformation);
    return;
  }
  const Status status = ComputeSlotThickness(state_, *slot, messages_);
  Show(slot_);
  if (status == 0) {
    emit Computed(slot->thickness.thicknessNm);
  }
}

void ThicknessPanel::ShowExtremum(const ExtremumLine& line, const ExtremumPoint& point,
                                  bool indexKnown) {
  line.wavelength->setText(point.wavelengthNm > 0.0 ? FormatNumber(point.wavelengthNm, u"###0")
                                                    : kNothing);
  line.index->setText(
      indexKnown ? FormatNumber(state_.filmIndex[NearestNm(point.wavelengthNm)], u"###0.000")
                 : kNothing);
}

// From a substrate, the film's index is derived anew for each computation: it belongs to the slot
// that was computed last, whose extrema are the current ones.
bool ThicknessPanel::IndexIsOf(const MeasurementSlot& slot) const {
  return state_.thickness.coat.kind != DispersionKind::kSubstrate ||
         std::ranges::equal(slot.thickness.extrema.Found(), state_.extrema.Found(), {},
                            &Extremum::point, &Extremum::point);
}

}  // namespace vexa
