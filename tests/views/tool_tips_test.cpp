// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/tool_tips.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHelpEvent>
#include <QRadioButton>
#include <QTextDocument>
#include <QToolTip>
#include <memory>

#include "support/window_test.h"
#include "views/paper/current_printer.h"
#include "views/print/print_setup_dlg.h"
#include "views/settings/dispset.h"
#include "views/standards/standard_frm.h"

namespace vexa {
namespace {

using ToolTips = test::ViewTest;

// As the toolkit looks for it: its own or that of what it stands in.
QString TipOf(const QWidget* widget) {
  while (widget->toolTip().isEmpty() && !widget->isWindow()) {
    widget = widget->parentWidget();
  }
  return widget->toolTip();
}

TEST_F(ToolTips, EveryChoiceOfTheSettingsExplainsItself) {
  CurrentPrinter printer(state, messages, dialogs);
  const std::unique_ptr<QDialog> windows[] = {
      std::make_unique<dispset>(session, messages),
      std::make_unique<StandardFrm>(session, messages, dialogs),
      std::make_unique<PrintSetupDlg>(printer, messages)};
  for (const auto& window : windows) {
    for (const QWidget* widget : window->findChildren<QWidget*>()) {
      const auto* group = qobject_cast<const QGroupBox*>(widget);
      if ((group != nullptr && group->isCheckable()) || qobject_cast<const QCheckBox*>(widget) ||
          qobject_cast<const QRadioButton*>(widget) || qobject_cast<const QComboBox*>(widget) ||
          qobject_cast<const QLineEdit*>(widget)) {
        EXPECT_NE(TipOf(widget), QString()) << widget->objectName().toStdString();
      }
    }
  }
}

TEST_F(ToolTips, LongOnesBreakAndShowWhatTheyHold) {
  QWidget window;
  window.show();
  for (const char* text :
       {"短い", "a < b\n<b>&amp;</b>",
        "長い説明です。長い説明です。長い説明です。"
        "長い説明です。長い説明です。長い説明です。長い説明です。長い説明です。"
        "長い説明です。長い説明です。長い説明です。長い説明です。長い説明です。"}) {
    window.setToolTip(QString::fromUtf8(text));
    QHelpEvent event(QEvent::ToolTip, {}, {});
    QApplication::sendEvent(&window, &event);
    QTextDocument shown;
    shown.setHtml(QToolTip::text());
    EXPECT_LT(shown.idealWidth(), 500.0);
    EXPECT_EQ(shown.toPlainText().remove(u'\n'), window.toolTip().remove(u'\n'));
  }
}

}  // namespace
}  // namespace vexa
