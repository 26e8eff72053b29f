// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/colour/diagram_marks.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "views/common/slot_style.h"
#include "views/common/theme.h"

namespace vexa {
namespace {

constexpr double kDiscRadius = 4.0;
constexpr double kSelectedRadius = 5.5;
constexpr double kWhiteRadius = 4.0;
constexpr double kArrowLength = 6.0;  // from its middle
constexpr QSizeF kBadge(21.0, 15.0);
constexpr int kFontPixels = 11;

struct Badge {
  SlotMark mark;
  QPointF at;
  QRectF box;
  std::optional<QPointF> beyond;  // the way to a place outside the area, one pixel long
};

double RadiusOf(const SlotMark& mark) {
  return mark.selected ? kSelectedRadius : kDiscRadius;
}

QRectF Around(QPointF centre, double radius) {
  return {centre.x() - radius, centre.y() - radius, 2.0 * radius, 2.0 * radius};
}

// Where the way from the middle of the area to a place outside comes to the border.
Badge AtBorder(const SlotMark& mark, QPointF place, const QRectF& area) {
  const QPointF way = place - area.center();
  const QSizeF half = 0.5 * area.size() - QSizeF(kArrowLength, kArrowLength);
  const double share = std::min(half.width() / std::max(std::abs(way.x()), 1.0),
                                half.height() / std::max(std::abs(way.y()), 1.0));
  return {mark, area.center() + share * way, {}, way / std::hypot(way.x(), way.y())};
}

// The first free place for a badge on circles around its disc, from the upper right on.
QRectF FreePlace(QPointF disc, const QRectF& area, const std::vector<QRectF>& taken) {
  constexpr int kDirections = 12;
  QRectF box(QPointF(), kBadge);
  constexpr int kCircles = 9;
  for (int circle = 0; circle < kCircles; ++circle) {
    const double radius = 17.0 + 9.0 * circle;
    for (int direction = 0; direction < kDirections; ++direction) {
      const double angle = (0.25 - 2.0 * direction / kDirections) * std::numbers::pi;
      box.moveCenter(disc + radius * QPointF(std::cos(angle), -std::sin(angle)));
      if (area.contains(box) && std::ranges::none_of(taken, [&box](const QRectF& other) {
            return other.intersects(box);
          })) {
        return box;
      }
    }
  }
  box.moveCenter(disc + QPointF(12.0, -12.0));
  return box;
}

QColor ReadableOn(const QColor& colour) {
  return qGray(colour.rgb()) < 140 ? QColor(Qt::white) : theme::kText;
}

void DrawBadge(QCPPainter& painter, const Badge& badge) {
  const QColor colour = SlotColour(badge.mark.slot);
  painter.setPen(QPen(colour, 1.5));
  painter.setBrush(badge.mark.selected ? colour : QColor(Qt::white));
  painter.drawRoundedRect(badge.box, 4.0, 4.0);
  painter.setPen(badge.mark.selected ? ReadableOn(colour) : theme::kText);
  painter.drawText(badge.box, Qt::AlignCenter, QString::number(badge.mark.slot));
}

void DrawDisc(QCPPainter& painter, const Badge& badge) {
  const double radius = RadiusOf(badge.mark);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Qt::white);
  painter.drawEllipse(badge.at, radius + 1.5, radius + 1.5);
  painter.setBrush(SlotColour(badge.mark.slot));
  painter.drawEllipse(badge.at, radius, radius);
}

void DrawArrow(QCPPainter& painter, const Badge& badge) {
  const QPointF along = kArrowLength * *badge.beyond;
  const QPointF across = 0.7 * QPointF(-along.y(), along.x());
  const double width = badge.mark.selected ? 1.5 : 1.0;
  painter.setPen(QPen(Qt::white, width));
  painter.setBrush(SlotColour(badge.mark.slot));
  painter.drawPolygon(
      QPolygonF{badge.at + along, badge.at - along + across, badge.at - along - across});
}

}  // namespace

DiagramMarks::DiagramMarks(QCustomPlot* plot) : QCPAbstractItem(plot) {
  setSelectable(false);
}

void DiagramMarks::SetWhitePoint(std::optional<QPointF> at, const QString& name) {
  white_ = at;
  whiteName_ = name;
}

QPointF DiagramMarks::PixelOf(QPointF coordinates) const {
  return {parentPlot()->xAxis->coordToPixel(coordinates.x()),
          parentPlot()->yAxis->coordToPixel(coordinates.y())};
}

void DiagramMarks::draw(QCPPainter* painter) {
  painter->setAntialiasing(true);
  QFont font = parentPlot()->font();
  font.setPixelSize(kFontPixels);
  font.setBold(true);
  painter->setFont(font);

  const QRectF area = clipAxisRect()->rect();
  std::vector<QRectF> taken{DrawWhitePoint(*painter)};
  std::vector<Badge> badges;
  for (const SlotMark& mark : slots_) {
    const QPointF at = PixelOf(mark.at);
    badges.push_back(area.contains(at) ? Badge{mark, at, {}, {}} : AtBorder(mark, at, area));
    taken.push_back(Around(badges.back().at, RadiusOf(mark)));
  }
  // The selected slot, the last one, has the first choice of a place.
  for (auto badge = badges.rbegin(); badge != badges.rend(); ++badge) {
    badge->box = FreePlace(badge->at, area.adjusted(2, 2, -2, -2), taken);
    taken.push_back(badge->box);
  }
  for (const Badge& badge : badges) {
    painter->setPen(QPen(theme::kText, 1.0));
    painter->drawLine(QLineF(badge.at, badge.box.center()));
  }
  for (const Badge& badge : badges) {
    badge.beyond ? DrawArrow(*painter, badge) : DrawDisc(*painter, badge);
  }
  for (const Badge& badge : badges) {
    DrawBadge(*painter, badge);
  }
}

// A ring with a cross; returns the place that it takes with its name.
QRectF DiagramMarks::DrawWhitePoint(QCPPainter& painter) const {
  if (!white_) {
    return {};
  }
  const QPointF at = PixelOf(*white_);
  for (const QPen& pen : {QPen(Qt::white, 4.0), QPen(theme::kText, 1.5)}) {
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(at, kWhiteRadius, kWhiteRadius);
    for (const QPointF& arm : {QPointF(1.0, 0.0), QPointF(0.0, 1.0)}) {
      painter.drawLine(QLineF(at - 8.0 * arm, at - 1.5 * arm));
      painter.drawLine(QLineF(at + 1.5 * arm, at + 8.0 * arm));
    }
  }
  QPainterPath name;
  const QFontMetricsF metrics(painter.font());
  name.addText(at + QPointF(-13.0 - metrics.horizontalAdvance(whiteName_), 4.0), painter.font(),
               whiteName_);
  painter.strokePath(
      name, QPen(QColor(255, 255, 255, 220), 3.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.fillPath(name, theme::kText);
  return Around(at, 9.0).united(name.boundingRect());
}

}  // namespace vexa
