// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/lot/verdict_panel.h"

#include <QFontMetrics>
#include <QPainter>
#include <QStringList>
#include <algorithm>
#include <cmath>

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

constexpr int kSmallestDetails = 13;
constexpr int kColumnGap = 24;

// Lines in as many columns of the place as they need; of those that it cannot hold, how many.
void PaintColumns(QPainter& painter, const QRectF& place, QStringList lines) {
  const QFontMetrics metrics(painter.font());
  const int rows = std::max(1, static_cast<int>(place.height()) / metrics.lineSpacing());
  int widest = 0;
  for (const QString& line : lines) {
    widest = std::max(widest, metrics.horizontalAdvance(line));
  }
  widest = std::min(widest, static_cast<int>(place.width()));
  const int fitting = (static_cast<int>(place.width()) + kColumnGap) / (widest + kColumnGap);
  const int columns =
      std::min(std::max(1, fitting), (static_cast<int>(lines.size()) + rows - 1) / rows);
  const int shown = std::min(static_cast<int>(lines.size()), rows * columns);
  if (const qsizetype left = lines.size() - shown; left > 0) {
    lines[shown - 1] = QStringLiteral("+%1").arg(left + 1);
  }
  const int width = columns * widest + (columns - 1) * kColumnGap;
  const QPointF corner = place.topLeft() + QPointF((place.width() - width) / 2.0, 0.0);
  for (int i = 0; i < shown; ++i) {
    const int column = i / rows;
    const QPointF at(column * (widest + kColumnGap), i % rows * metrics.lineSpacing());
    painter.drawText(QRectF(corner + at, QSizeF(widest + kColumnGap / 2.0, metrics.lineSpacing())),
                     columns > 1 ? Qt::AlignLeft : Qt::AlignHCenter,
                     metrics.horizontalAdvance(lines[i]) <= widest
                         ? lines[i]
                         : metrics.elidedText(lines[i], Qt::ElideRight, widest));
  }
}

// As large as there is room for: as a text, or, with many lines, in columns.
void PaintDetails(QPainter& painter, const QRectF& place, const QString& text, QFont font) {
  constexpr int kText = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;
  const QStringList lines = text.split(u'\n');
  const int largest = std::clamp(static_cast<int>(place.height() / 4.0), kSmallestDetails, 22);
  for (int pixels = largest; pixels >= kSmallestDetails; --pixels) {
    font.setPixelSize(pixels);
    const QFontMetricsF metrics(font);
    if (metrics.boundingRect(place, kText, text).height() <= place.height()) {
      painter.setFont(font);
      painter.drawText(place, kText, text);
      return;
    }
    double widest = 1.0;
    for (const QString& line : lines) {
      widest = std::max(widest, metrics.horizontalAdvance(line));
    }
    const double rows = std::floor(place.height() / metrics.lineSpacing());
    const double columns = std::floor((place.width() + kColumnGap) / (widest + kColumnGap));
    if (lines.size() > 1 && rows * columns >= static_cast<double>(lines.size())) {
      painter.setFont(font);
      PaintColumns(painter, place, lines);
      return;
    }
  }
  painter.setFont(font);
  lines.size() > 1 ? PaintColumns(painter, place, lines) : painter.drawText(place, kText, text);
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
  PaintDetails(painter, details, content_.details, font());
}

}  // namespace vexa
