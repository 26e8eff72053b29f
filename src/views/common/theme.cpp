// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/theme.h"

#include <QFont>
#include <QPainter>
#include <QPalette>
#include <QStyleFactory>

#include "views/common/tool_tips.h"

namespace vexa {
namespace {

QPalette LightPalette() {
  QPalette palette;
  palette.setColor(QPalette::Window, theme::kWindow);
  palette.setColor(QPalette::WindowText, theme::kText);
  palette.setColor(QPalette::Base, theme::kPanel);
  palette.setColor(QPalette::AlternateBase, QColor(0xf6, 0xf8, 0xfa));
  palette.setColor(QPalette::Text, theme::kText);
  palette.setColor(QPalette::Button, QColor(0xf8, 0xfa, 0xfb));
  palette.setColor(QPalette::ButtonText, theme::kText);
  palette.setColor(QPalette::ToolTipBase, theme::kPanel);
  palette.setColor(QPalette::ToolTipText, theme::kText);
  palette.setColor(QPalette::PlaceholderText, theme::kMutedText);
  palette.setColor(QPalette::Highlight, theme::kAccent);
  palette.setColor(QPalette::HighlightedText, Qt::white);
  const QColor disabled(0x9a, 0xa4, 0xae);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, disabled);
  }
  palette.setColor(QPalette::Disabled, QPalette::Highlight, theme::kBorder);
  return palette;
}

}  // namespace

QPixmap IconCanvas(QSize size) {
  const qreal ratio = qApp->devicePixelRatio();
  QPixmap pixmap(size * ratio);
  pixmap.setDevicePixelRatio(ratio);
  pixmap.fill(Qt::transparent);
  return pixmap;
}

void ApplyTheme(QApplication& application) {
  application.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  application.setPalette(LightPalette());
  QFont font;
  font.setFamilies({QStringLiteral("Noto Sans CJK JP"), QStringLiteral("IPAPGothic"),
                    QStringLiteral("sans-serif")});
  font.setPixelSize(13);
  // The shaper would choose digits by the language of the locale, and those that it takes for other
  // languages than Japanese a PDF file cannot name: they would be missing when it is searched.
  font.setStyleStrategy(QFont::PreferNoShaping);
  application.setFont(font);
  BreakToolTips(application);
}

QPixmap DoubtMark() {
  QPixmap pixmap = IconCanvas({16, 16});
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(theme::kDoubt, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(QColor(0xfd, 0xe9, 0xb8));
  painter.drawPolygon(QPolygonF{{8.0, 1.8}, {14.8, 13.9}, {1.2, 13.9}});
  painter.drawLine(QPointF(8.0, 6.2), QPointF(8.0, 9.6));
  painter.drawPoint(QPointF(8.0, 11.8));
  return pixmap;
}

QIcon DoneIcon(bool done) {
  constexpr QSize kSize(16, 16);
  QPixmap pixmap = IconCanvas(kSize);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF ring(1.5, 1.5, 13.0, 13.0);
  if (done) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme::kGood);
    painter.drawEllipse(ring);
    painter.setPen(QPen(Qt::white, 2.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF{{4.8, 8.3}, {7.1, 10.6}, {11.3, 5.6}});
  } else {
    painter.setPen(QPen(theme::kBorder.darker(115), 1.5));
    painter.drawEllipse(ring);
  }
  return QIcon(pixmap);
}

}  // namespace vexa
