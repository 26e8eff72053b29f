// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/status_panels.h"

#include <QHBoxLayout>
#include <QPainter>

#include "base/translation.h"
#include "views/common/elided_label.h"
#include "views/common/theme.h"

namespace vexa {
namespace {

constexpr int kEnvironmentWidth = 90;
constexpr int kNarrowEnvironmentWidth = 40;  // beside what waits for the shared store
constexpr int kVerdictWidth = 144;           // six of them and the file's name fit onto 1024 pixels
constexpr int kMarkSize = 16;
constexpr QColor kGoodPaper{0xe3, 0xf3, 0xe8};

QString PanelStyle(const QColor& paper, const QColor& border, const QColor& text, bool bold) {
  return QStringLiteral(
             "QLabel#%5 { background: %1; border: 1px solid %2; color: %3; font-weight: %4;"
             "  padding: 2px 6px; margin: 1px; }")
      .arg(paper.name(), border.name(), text.name(),
           bold ? QStringLiteral("bold") : QStringLiteral("normal"));
}

QString StyleOf(const std::optional<bool>& passed) {
  if (!passed) {
    return PanelStyle(theme::kPanel, theme::kBorder, theme::kText, false);
  }
  return *passed ? PanelStyle(kGoodPaper, theme::kGood, theme::kText, false)
                 : PanelStyle(theme::kBad, theme::kBad, Qt::white, true);
}

// A cross in a square: told from the tick in its disc by its shape.
QPixmap CrossMark() {
  QPixmap pixmap = IconCanvas(QSize(kMarkSize, kMarkSize));
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Qt::white);
  painter.drawRoundedRect(QRectF(1.5, 1.5, 13.0, 13.0), 2.0, 2.0);
  painter.setPen(QPen(theme::kBad, 2.4, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(QLineF(5.0, 5.0, 11.0, 11.0));
  painter.drawLine(QLineF(11.0, 5.0, 5.0, 11.0));
  return pixmap;
}

QString Tip(const Judgement& judgement, std::size_t group) {
  const GroupJudgement& verdict = judgement.groups[group];
  if (!verdict.passed) {
    return {};
  }
  if (!verdict.margin) {
    return *verdict.passed ? Text::tr("限界と比べる値がありません。")
                           : Text::tr("規格が440nm-840nmの範囲で判定できません。");
  }
  return (*verdict.margin < 0.0 ? Text::tr("限界外: ") : Text::tr("限界までの余裕: ")) +
         MarginText(judgement, group);
}

}  // namespace

StatusPanels::StatusPanels(QWidget* parent)
    : QStatusBar(parent),
      passedMark_(DoneIcon(true).pixmap(kMarkSize, kMarkSize)),
      failedMark_(CrossMark()) {
  setSizeGripEnabled(false);
  setStyleSheet(QStringLiteral("QStatusBar::item { border: none; }"));
  AddEnvironmentPanel();
  for (std::size_t group = 0; group < kStandardGroupCount; ++group) {
    AddVerdictPanel(group);
  }
  ShowJudgement({});
}

void StatusPanels::AddEnvironmentPanel() {
  environment_ = new ElidedLabel;
  environment_->setObjectName(QStringLiteral("StatusPanel1"));
  environment_->setTextFormat(Qt::PlainText);
  environment_->setMinimumWidth(kEnvironmentWidth);
  environment_->setStyleSheet(StyleOf(std::nullopt).arg(environment_->objectName()));
  addWidget(environment_, 1);
  shared_ = new QLabel;
  shared_->setObjectName(QStringLiteral("SharedPanel"));
  shared_->setTextFormat(Qt::PlainText);
  shared_->setStyleSheet(QStringLiteral("QLabel { color: %1; }").arg(theme::kMutedText.name()));
  addWidget(shared_);
  shared_->hide();
  sharedSoon_.setSingleShot(true);
  connect(&sharedSoon_, &QTimer::timeout, this, [this] {
    environment_->setMinimumWidth(kNarrowEnvironmentWidth);
    shared_->show();
  });
}

void StatusPanels::AddVerdictPanel(std::size_t group) {
  auto* panel = new QLabel;
  panel->setObjectName(QStringLiteral("StatusPanel%1").arg(group + 2));
  panel->setTextFormat(Qt::PlainText);
  panel->setFixedWidth(kVerdictWidth);
  panel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  auto* mark = new QLabel;
  mark->setObjectName(panel->objectName() + QStringLiteral("Mark"));
  auto* row = new QHBoxLayout(panel);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(mark, 0, Qt::AlignLeft | Qt::AlignVCenter);
  addPermanentWidget(panel);
  verdicts_[group] = {panel, mark};
}

void StatusPanels::ShowEnvironmentName(const QString& name) {
  environment_->setText(Text::tr("環境ﾌｧｲﾙ名") + QStringLiteral(":") + name);
  environment_->setToolTip(name);
}

void StatusPanels::ShowShared(const SharedStatus& status) {
  constexpr int kQuietMs = 2000;  // what is sent at once is not worth a look
  // With an exclamation mark nothing will be sent by itself.
  const bool sends = status.fault == StoreFault::kNone || status.fault == StoreFault::kUnreachable;
  shared_->setText(
      QStringLiteral("⇡%1%2").arg(status.waiting).arg(sends ? QString() : QStringLiteral("!")));
  shared_->setToolTip((Text::tr("共有の記録に送る記録: %1件").arg(status.waiting) + u'\n' +
                       StoreFaultText(status.fault))
                          .trimmed());
  const bool away = status.fault == StoreFault::kUnreachable;
  if (status.waiting == 0 && (away || status.fault == StoreFault::kNone)) {
    sharedSoon_.stop();
    shared_->hide();
    environment_->setMinimumWidth(kEnvironmentWidth);
  } else if (!shared_->isVisible() && !sharedSoon_.isActive()) {
    sharedSoon_.start(kQuietMs);
  }
}

void StatusPanels::ShowJudgement(const Judgement& judgement) {
  for (std::size_t group = 0; group < kStandardGroupCount; ++group) {
    const std::optional<bool> passed = judgement.groups[group].passed;
    const VerdictPanel& panel = verdicts_[group];
    panel.text->setText(PanelText(judgement, group));
    panel.text->setToolTip(Tip(judgement, group));
    if (const QString style = StyleOf(passed).arg(panel.text->objectName());
        style != panel.text->styleSheet()) {
      panel.text->setStyleSheet(style);
    }
    panel.mark->setVisible(passed.has_value());
    if (passed) {
      panel.mark->setPixmap(*passed ? passedMark_ : failedMark_);
    }
  }
}

}  // namespace vexa
