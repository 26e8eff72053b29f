// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/colour/cie_column.h"

#include <QGridLayout>
#include <utility>

#include "base/translation.h"
#include "colour/cie_parts.h"
#include "views/common/colour_kind.h"
#include "views/common/theme.h"

namespace vexa {
namespace {

constexpr int kOwnColumn = 1;
constexpr int kCieColumn = 3;

void SetColour(QLabel& label, const QColor& colour) {
  QPalette palette = label.palette();
  palette.setColor(QPalette::WindowText, colour);
  label.setPalette(palette);
}

}  // namespace

CieColumn::CieColumn(QGridLayout& grid, const Rows& rows) {
  for (const auto& [kind, column] :
       {std::pair{ColourKind::kInstrument, kOwnColumn}, std::pair{ColourKind::kCie, kCieColumn}}) {
    QLabel* heading =
        AddText(grid, 0, column, kind == ColourKind::kCie ? "CieHeading" : "InstrumentHeading",
                ColourKindText(kind), column == kOwnColumn ? 2 : 1);  // with the unit
    heading->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    heading->setToolTip(
        kind == ColourKind::kCie
            ? Text::tr("等色関数を本来の波長で用いた値です。他の測色計の値と比較できます。")
            : Text::tr("この装置で従来から使われている値です。装置の規格の判定に用います。"));
  }
  constexpr std::array kNames{"CieCoordinate1", "CieCoordinate2", "CieCoordinate3"};
  for (std::size_t i = 0; i < coordinates_.size(); ++i) {
    coordinates_[i] = AddNumber(grid, rows.coordinates[i], kNames[i]);
  }
  fixed_ = {{AddNumber(grid, rows.chroma, "CieChroma"), &CieColour::C},
            {AddNumber(grid, rows.hue, "CieHue"), &CieColour::h},
            {AddNumber(grid, rows.luminous, "CieLuminousReflectance"), &CieColour::Y}};
  AddNumber(grid, rows.average, "CieAverageReflectance")
      ->setToolTip(
          Text::tr("380～780 nm の平均は、440 nm より下を測定していないため表示しません。"));
  AddRow(grid, grid.rowCount(), QStringLiteral("Rv (D65/2°)"), "CieRv", &CieColour::Rv,
         Text::tr("視感反射率 [%]。設定されている光源と視野によらず D65、2°の値です。"));
  AddRow(grid, grid.rowCount(), Text::tr("外挿差 ΔE*ab"), "CieSpread", &CieColour::spread,
         Text::tr("440 nm より下を一定とした場合と直線で延長した場合の色差です。"));
  QLabel* range = AddText(grid, grid.rowCount(), 0, "CieRange", CieRangeText(), kCieColumn + 1);
  range->setAlignment(Qt::AlignRight);
  SetColour(*range, theme::kAccent);
  range->setToolTip(
      Text::tr("測定は 440 nm からです。D65、2°ではYの0.2 %、Xの5 %、Zの22 %の重みが\n"
               "440 nm より下にあり、ここは440 nm の値が続くものとして計算します。\n"
               "この範囲に反射の山や谷がある試料では、外挿差より大きく外れることがあります。"));
}

void CieColumn::Show(const std::optional<CieColour>& colour, bool xyMode) {
  using Parts = std::array<double CieColour::*, 3>;
  const Parts shown = xyMode ? Parts{&CieColour::x, &CieColour::y, &CieColour::Y}
                             : Parts{&CieColour::a, &CieColour::b, &CieColour::L};
  for (std::size_t i = 0; i < coordinates_.size(); ++i) {
    coordinates_[i]->setText(CieValueText(colour, shown[i]));
  }
  for (const Fixed& each : fixed_) {
    each.label->setText(CieValueText(colour, each.value));
  }
}

QLabel* CieColumn::AddText(QGridLayout& grid, int row, int column, const char* name,
                           const QString& text, int columns) {
  auto* label = new QLabel(text);
  label->setObjectName(QLatin1String(name));
  grid.addWidget(label, row, column, 1, columns);
  return label;
}

QLabel* CieColumn::AddNumber(QGridLayout& grid, int row, const char* name) {
  QLabel* label = AddText(grid, row, kCieColumn, name, QStringLiteral("-"));
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return label;
}

void CieColumn::AddRow(QGridLayout& grid, int row, const QString& caption, const char* name,
                       double CieColour::*value, const QString& tip) {
  AddText(grid, row, 0, (QByteArray(name) + "Caption").constData(), caption)->setToolTip(tip);
  QLabel* number = AddNumber(grid, row, name);
  number->setToolTip(tip);
  fixed_.push_back({number, value});
}

}  // namespace vexa
