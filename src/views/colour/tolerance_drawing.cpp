// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/colour/tolerance_drawing.h"

#include <cmath>

namespace vexa {
namespace {

constexpr QColor kLimitColour(0xc2, 0x3b, 0x22);
constexpr double kPi = 3.141592654;

}  // namespace

void ToleranceDrawing::Show(const ToleranceRegion& region, double reach) {
  for (QCPAbstractItem* item : items_) {
    plot_.removeItem(item);
  }
  items_.clear();
  const QPen limit(kLimitColour, 1.4);
  const QPen reference(kLimitColour, 1.4, Qt::DashLine);
  for (const double radius : region.chromaRadii) {
    AddCircle(radius, limit, reach);
  }
  for (const double degrees : region.hueAnglesDeg) {
    AddHueLine(degrees, limit, reach);
  }
  if (region.referenceChroma) {
    AddCircle(*region.referenceChroma, reference, reach);
  }
  if (region.referenceHueDeg) {
    AddHueLine(*region.referenceHueDeg, reference, reach);
  }
}

void ToleranceDrawing::AddCircle(double radius, const QPen& pen, double reach) {
  // Beyond the corners there is nothing to see, and a file may hold any number.
  if (radius <= 1.5 * reach) {
    auto* circle = new QCPItemEllipse(&plot_);
    circle->topLeft->setCoords(-radius, radius);
    circle->bottomRight->setCoords(radius, -radius);
    circle->setPen(pen);
    Take(circle);
  }
}

void ToleranceDrawing::AddHueLine(double degrees, const QPen& pen, double reach) {
  const double angle = degrees * kPi / 180.0;
  auto* line = new QCPItemLine(&plot_);
  line->start->setCoords(0.0, 0.0);
  line->end->setCoords(2.0 * reach * std::cos(angle), 2.0 * reach * std::sin(angle));
  line->setPen(pen);
  Take(line);
}

void ToleranceDrawing::Take(QCPAbstractItem* item) {
  item->setLayer(QStringLiteral("main"));
  items_.push_back(item);
}

}  // namespace vexa
