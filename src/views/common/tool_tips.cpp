// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/tool_tips.h"

#include <QFont>
#include <QFontMetricsF>
#include <QHelpEvent>
#include <QTextLayout>
#include <QTextOption>
#include <QToolTip>
#include <QWidget>
#include <algorithm>
#include <cmath>

namespace vexa {
namespace {

constexpr double kWidestLine = 420.0;
constexpr double kPlay = 40.0;  // for what does not break anywhere

// Into lines about as long as one another.
QString Broken(const QString& tip, const QFont& font) {
  QStringList lines;
  for (const QString& paragraph : tip.split(u'\n')) {
    QTextLayout layout(paragraph, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    const double whole = QFontMetricsF(font).horizontalAdvance(paragraph);
    const double width = whole / std::max(std::ceil(whole / (kWidestLine - kPlay)), 1.0) + kPlay;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
      line.setLineWidth(width);
      lines << paragraph.mid(line.textStart(), line.textLength());
    }
    layout.endLayout();
  }
  return lines.join(u'\n');
}

class Breaker : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::ToolTip) {
      return QObject::eventFilter(watched, event);
    }
    auto* widget = qobject_cast<QWidget*>(watched);
    // Where there is none the widget around it, or what is drawn in it, may have one.
    if (widget == nullptr || widget->toolTip().isEmpty()) {
      return false;
    }
    // Left to itself the toolkit would make a rich text as high as it is wide.
    const QString lines = Broken(widget->toolTip(), QToolTip::font()).toHtmlEscaped();
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                       QStringLiteral("<p style='white-space:pre'>%1</p>").arg(lines), widget, {},
                       widget->toolTipDuration());
    return true;
  }
};

}  // namespace

void BreakToolTips(QApplication& application) {
  application.installEventFilter(new Breaker(&application));
}

}  // namespace vexa
