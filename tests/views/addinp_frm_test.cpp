// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/files/addinp_frm.h"

#include <gtest/gtest.h>

#include "support/window_test.h"

namespace vexa {
namespace {

using SampleInformation = test::ViewTest;

TEST_F(SampleInformation, ArrowKeysStayInTheirColumn) {
  AddinpFrm dialog(session, messages, 1);
  dialog.show();
  struct Case {
    const char* from;
    Qt::Key key;
    const char* to;
  };
  const Case cases[] = {
      {"SampNo_txt1", Qt::Key_Down, "SampNo_txt2"},
      {"MesPoint_txt9", Qt::Key_Down, "MesPoint_txt10"},
      {"DevNo_txt2", Qt::Key_Up, "DevNo_txt1"},
      {"SampNo_txt1", Qt::Key_Up, "SampNo_txt1"},
      {"MesDate_txt10", Qt::Key_Down, "MesDate_txt10"},
  };
  for (const Case& c : cases) {
    auto& entry = test::Child<QLineEdit>(dialog, c.from);
    entry.setFocus();
    QTest::keyClick(&entry, c.key);
    ASSERT_NE(dialog.focusWidget(), nullptr);
    EXPECT_EQ(dialog.focusWidget()->objectName(), QLatin1String(c.to)) << c.from;
  }
}

}  // namespace
}  // namespace vexa
