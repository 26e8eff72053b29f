// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/lot/verdict_panel.h"

#include <QFontMetrics>
#include <QPainter>
#include <algorithm>

namespace vexa {
namespace {

constexpr int kMargin = 16;
constexpr double kWordShare = 0.58;  // of the height
constexpr double kNumberShare = 0.2;

// The largest font in which the text fits.
QFont FittingFont(const QFont& usual, const QString& text, const QSizeF& room, bool bold) {
  constexpr int kSmallest = 13;
  constexpr int kReference = 100;
  QFont font = usual;
  font.setBold(bold);
  font.setPixelSize(kReference);
  const QFontMetrics metrics(font);
  const double wide = metrics.horizontalAdvance(text.isEmpty() ? QStringLiteral("-") : text);
  const double scale = std::min(room.width() / wide, room.height() / metrics.height());
  font.setPixelSize(std::max(kSmallest, static_cast<int>(kReference * scale)));
  return font;
}

}  // namespace

VerdictPanel::VerdictPanel(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("VerdictPanel"));
  constexpr QSize kSmallest(320, 220);
  setMinimumSize(kSmallest);
}

void VerdictPanel::Show(const Content& content) {
  content_ = content;
  setAccessibleName(content.word + u' ' + content.number);
  update();
}

void VerdictPanel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(content_.background);
  constexpr double kCorner = 6.0;
  painter.drawRoundedRect(QRectF(rect()), kCorner, kCorner);
  painter.setPen(Qt::white);
  const QRectF body = QRectF(rect()).adjusted(kMargin, kMargin / 2.0, -kMargin, -kMargin / 2.0);
  const QRectF word(body.topLeft(), QSizeF(body.width(), body.height() * kWordShare));
  painter.setFont(FittingFont(font(), content_.word, word.size(), true));
  painter.drawText(word, Qt::AlignCenter, content_.word);
  const QRectF number(word.bottomLeft(), QSizeF(body.width(), body.height() * kNumberShare));
  painter.setFont(FittingFont(font(), content_.number, number.size(), true));
  painter.drawText(
      number, Qt::AlignCenter,
      QFontMetrics(painter.font())
          .elidedText(content_.number, Qt::ElideMiddle, static_cast<int>(body.width())));
  const QRectF details(number.bottomLeft(), body.bottomRight());
  QFont small = font();
  small.setPixelSize(std::clamp(static_cast<int>(details.height() / 4.0), 13, 22));
  painter.setFont(small);
  painter.drawText(details, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, content_.details);
}

}  // namespace vexa
