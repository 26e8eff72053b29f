// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/graph/wavelength_cursor.h"

#include <algorithm>

#include "base/number_text.h"
#include "views/common/theme.h"

namespace vexa {

WavelengthCursor::WavelengthCursor(QCustomPlot& plot)
    : line_(new QCPItemStraightLine(&plot)), readout_(new QCPItemText(&plot)) {
  line_->setPen(QPen(theme::kAccent, 1.0));
  line_->setSelectable(false);
  readout_->setObjectName(QStringLiteral("CursorReadout"));
  readout_->position->setType(QCPItemPosition::ptAxisRectRatio);
  readout_->position->setCoords(0.015, 0.02);
  readout_->setPositionAlignment(Qt::AlignLeft | Qt::AlignTop);
  readout_->setTextAlignment(Qt::AlignLeft);
  readout_->setFont(plot.font());
  readout_->setColor(theme::kText);
  readout_->setBrush(QColor(255, 255, 255, 225));
  readout_->setPen(QPen(theme::kBorder, 1.0));
  readout_->setPadding(QMargins(6, 4, 6, 4));
  Refresh();
}

void WavelengthCursor::MoveTo(int nm) {
  nm_ = std::clamp(nm, ReflectanceSpectrum::kFirstNm, ReflectanceSpectrum::kLastNm);
  Refresh();
}

void WavelengthCursor::Show(const VEXATYPE& state) {
  names_.clear();
  spectra_.clear();
  for (int number = 1; number <= kSlotCount; ++number) {
    const MeasurementSlot& slot = *state.Slot(number);
    if (slot.valid) {
      names_ << QString::number(number);
      spectra_.push_back(slot.reflectance);
    }
  }
  const bool shown = state.display.showCursor && !spectra_.empty();
  line_->setVisible(shown);
  readout_->setVisible(shown);
  Refresh();
}

void WavelengthCursor::Refresh() {
  line_->point1->setCoords(nm_, 0.0);
  line_->point2->setCoords(nm_, 1.0);
  QStringList rows{QStringLiteral("%1 nm").arg(nm_)};
  for (std::size_t i = 0; i < spectra_.size(); ++i) {
    rows << QStringLiteral("%1:  %2 %")
                .arg(names_[static_cast<qsizetype>(i)], FormatNumber(spectra_[i][nm_], u"##0.000"));
  }
  readout_->setText(rows.join(u'\n'));
}

}  // namespace vexa
