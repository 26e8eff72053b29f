// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/paper/printed_pages.h"

#include <QPagedPaintDevice>
#include <QPainter>

#include "views/common/theme.h"

namespace vexa {
namespace {

constexpr double kTenthsPerMm = 10.0;

}  // namespace

PageMaker SinglePage(const std::function<void(QPainter& painter, const QRectF& page)>& paint) {
  return [paint](const QSizeF& page) {
    return PrintedPages{1, [paint, page](QPainter& painter, int /*page*/) {
                          paint(painter, QRectF(QPointF(), page));
                        }};
  };
}

bool PaintPages(QPagedPaintDevice& device, const PageMaker& make) {
  QPainter painter;
  if (!painter.begin(&device)) {
    return false;
  }
  const QSizeF size = device.pageLayout().paintRect(QPageLayout::Millimeter).size() * kTenthsPerMm;
  const double scale = device.width() / size.width();
  const PrintedPages pages = make(size);
  for (int page = 0; page < pages.count; ++page) {
    if (page > 0 && !device.newPage()) {
      return false;
    }
    painter.save();
    painter.scale(scale, scale);
    pages.paint(painter, page);
    painter.restore();
  }
  return painter.end();
}

void SetPageFont(QPainter& painter, int size, bool bold) {
  QFont font = painter.font();
  font.setPixelSize(size);
  font.setBold(bold);
  painter.setFont(font);
  painter.setPen(theme::kText);
}

}  // namespace vexa
