// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/graph/jamp_wave.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

#include "base/translation.h"
#include "views/common/dialog_buttons.h"
#include "views/graph/view_table.h"

namespace vexa {
namespace {

constexpr int kMostDigits = 9;  // of a number that an int holds

}  // namespace

JampWave::JampWave(const VEXATYPE& state, QWidget* parent)
    : QDialog(parent), wavelength_(new IntegerField) {
  setObjectName(QStringLiteral("JampWave"));
  setWindowTitle(Text::tr("ｼﾞｬﾝﾌﾟ"));
  wavelength_->setObjectName(QStringLiteral("Wavelength"));
  wavelength_->setMaxLength(kMostDigits);
  auto* unit = new QLabel(ViewOf(state.display.view).abscissa == Abscissa::kReciprocal
                              ? QStringLiteral("[1/nm]")
                              : QStringLiteral("[nm]"));
  unit->setObjectName(QStringLiteral("Unit"));
  auto* frame = new QGroupBox(Text::tr("ｼﾞｬﾝﾌﾟ設定"));
  auto* grid = new QGridLayout(frame);
  grid->setContentsMargins(16, 12, 16, 12);
  grid->setHorizontalSpacing(12);
  grid->setVerticalSpacing(10);
  grid->setColumnStretch(2, 1);
  grid->addWidget(new QLabel(Text::tr("移動先の波長を指定して下さい")), 0, 0, 1, 3);
  grid->addWidget(wavelength_, 1, 0);
  grid->addWidget(unit, 1, 1);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(14, 14, 14, 12);
  layout->setSpacing(12);
  layout->addWidget(frame);
  layout->addWidget(OkCancelButtons(*this));
  wavelength_->setFocus();
}

QString JampWave::Outcome() const {
  return OutcomeText(*this);
}

}  // namespace vexa
