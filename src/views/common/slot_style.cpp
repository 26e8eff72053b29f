// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/slot_style.h"

#include <array>

#include "views/common/theme.h"

namespace vexa {
namespace {

constexpr std::array<QRgb, 10> kSlotColours{0x0d74e4, 0xe09502, 0x056565, 0xe78dd1, 0x9b3e00,
                                            0x66ab76, 0x0924eb, 0x210375, 0x431000, 0x080026};
constexpr std::array kMarkers{QCPScatterStyle::ssDisc, QCPScatterStyle::ssSquare,
                              QCPScatterStyle::ssDiamond, QCPScatterStyle::ssTriangle,
                              QCPScatterStyle::ssTriangleInverted};
constexpr int kFirstMarkedSlot = 6;
constexpr qreal kLineWidth = 1.6;
constexpr double kMarkerSize = 7.0;

}  // namespace

QColor SlotColour(int slot) {
  return QColor::fromRgb(kSlotColours.at(static_cast<std::size_t>(slot - 1)));
}

QPen SlotPen(int slot) {
  return {SlotColour(slot), kLineWidth};
}

QCPScatterStyle SlotMarker(int slot) {
  if (slot < kFirstMarkedSlot) {
    return QCPScatterStyle::ssNone;
  }
  const QColor colour = SlotColour(slot);
  return {kMarkers.at(static_cast<std::size_t>(slot - kFirstMarkedSlot)), colour, colour,
          kMarkerSize};
}

QIcon SlotIcon(int slot, bool valid) {
  constexpr QSize kSize(22, 12);
  QPixmap pixmap = IconCanvas(kSize);
  QCPPainter painter(&pixmap);
  painter.setAntialiasing(true);
  if (valid) {
    painter.setPen(QPen(SlotColour(slot), slot < kFirstMarkedSlot ? 4.0 : 2.5));
    painter.drawLine(QLineF(0.0, 6.0, 22.0, 6.0));
    const QCPScatterStyle marker = SlotMarker(slot);
    marker.applyTo(&painter, marker.pen());
    marker.drawShape(&painter, QPointF(11.0, 6.0));
  } else {
    painter.setPen(QPen(theme::kBorder, 1.0));
    painter.drawRect(QRectF(0.5, 3.5, 21.0, 5.0));
  }
  painter.end();
  return QIcon(pixmap);
}

}  // namespace vexa
