// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/graph/cursor_strip.h"

#include <QGridLayout>
#include <algorithm>

#include "base/number_text.h"
#include "base/translation.h"

namespace vexa {
namespace {

constexpr int kRepeatMs = 70;
constexpr int kTicksBeforeRepeat = 3;
// The ten slots and the reference data.
constexpr int kMostCurves = kSlotCount + 1;

}  // namespace

CursorStrip::CursorStrip(QWidget* parent)
    : QWidget(parent), wavelength_(new QLabel), grid_(new QGridLayout) {
  setObjectName(QStringLiteral("CursorStrip"));
  wavelength_->setObjectName(QStringLiteral("CursorWavelength"));
  wavelength_->setAlignment(Qt::AlignCenter);
  wavelength_->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("  840 nm  ")));
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(4, 0, 0, 0);
  layout->addWidget(new QLabel(Text::tr("波長")));
  layout->addWidget(StepButton("CursorDown", -1));
  layout->addWidget(wavelength_);
  layout->addWidget(StepButton("CursorUp", 1));
  grid_->setVerticalSpacing(1);
  layout->addLayout(grid_, 1);
  for (int i = 0; i < kMostCurves; ++i) {
    auto* value = new QLabel(this);
    value->setObjectName(QStringLiteral("CursorValue%1").arg(i + 1));
    value->setTextFormat(Qt::RichText);
    value->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    values_.push_back(value);
  }
  Arrange();
}

void CursorStrip::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Arrange();
}

// Two rows where there is room for them, and as many columns as the names of the curves leave.
void CursorStrip::Arrange() {
  const int room = width() - layout()->minimumSize().width();
  const int most = room / fontMetrics().horizontalAdvance(QStringLiteral("■ 10: 100.000"));
  const int rows = kMostCurves <= 2 * most ? 2 : 3;
  const auto columnsFor = [rows](int curves) { return (curves + rows - 1) / rows; };
  const int value = fontMetrics().horizontalAdvance(QStringLiteral("■ : 100.000"));
  const int columns = std::max(columnsFor(std::max(count_, 1)),
                               std::min(columnsFor(kMostCurves), room / (widestName_ + value)));
  if (rows == rows_ && columns == columns_) {
    return;
  }
  rows_ = rows;
  columns_ = columns;
  for (int i = 0; i < kMostCurves; ++i) {
    grid_->addWidget(values_[static_cast<std::size_t>(i)], i / columns, i % columns);
    grid_->setColumnStretch(i, i < columns ? 1 : 0);
  }
  setFixedHeight(rows * (fontMetrics().height() + 3));
}

void CursorStrip::Show(const std::vector<SpectrumCurve>& curves, int nm, QStringView pattern) {
  wavelength_->setText(QStringLiteral("%1 nm").arg(nm));
  count_ = static_cast<int>(curves.size());
  widestName_ = 0;
  for (std::size_t i = 0; i < values_.size(); ++i) {
    values_[i]->setVisible(i < curves.size());
    if (i >= curves.size()) {
      continue;
    }
    values_[i]->setText(QStringLiteral("<span style='color:%1'>■</span> %2: %3")
                            .arg(curves[i].pen.color().name(), curves[i].label.toHtmlEscaped(),
                                 FormatNumber(curves[i].values[nm], pattern)));
    widestName_ = std::max(widestName_, fontMetrics().horizontalAdvance(curves[i].label));
  }
  Arrange();
}

QPushButton* CursorStrip::StepButton(const char* name, int by) {
  auto* button = new QPushButton(by < 0 ? QStringLiteral("◀") : QStringLiteral("▶"));
  button->setObjectName(QLatin1String(name));
  button->setToolTip(by < 0 ? Text::tr("ｶｰｿﾙを短波長側へ") : Text::tr("ｶｰｿﾙを長波長側へ"));
  button->setFocusPolicy(Qt::NoFocus);
  button->setFixedWidth(34);
  button->setAutoRepeat(true);
  button->setAutoRepeatDelay(kTicksBeforeRepeat * kRepeatMs);
  button->setAutoRepeatInterval(kRepeatMs);
  // Comes at once and then with each repeat while the button is held.
  connect(button, &QPushButton::pressed, this, [this, by] { emit StepRequested(by); });
  return button;
}

}  // namespace vexa
