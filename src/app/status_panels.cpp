// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/status_panels.h"

#include "views/common/theme.h"

namespace vexa {

StatusPanels::StatusPanels(QWidget* parent) : QStatusBar(parent) {
  setSizeGripEnabled(false);
  setStyleSheet(QStringLiteral("QStatusBar::item { border: none; }"
                               "QStatusBar > QLabel { background: %1; border: 1px solid %2;"
                               "  padding: 2px 6px; margin: 1px; }")
                    .arg(theme::kPanel.name(), theme::kBorder.name()));
  for (std::size_t i = 0; i < panels_.size(); ++i) {
    auto* panel = new QLabel;
    panel->setObjectName(QStringLiteral("StatusPanel%1").arg(i + 1));
    panel->setTextFormat(Qt::PlainText);
    if (i == 0) {
      panel->setMinimumWidth(120);
      addWidget(panel, 1);
    } else {
      panel->setAlignment(Qt::AlignCenter);
      panel->setFixedWidth(122);
      addPermanentWidget(panel);
    }
    panels_[i] = panel;
  }
}

void StatusPanels::ShowEnvironmentName(const QString& name) {
  panels_[0]->setText(QStringLiteral("環境ﾌｧｲﾙ名") + QStringLiteral(":") + name);
  panels_[0]->setToolTip(name);
}

}  // namespace vexa
