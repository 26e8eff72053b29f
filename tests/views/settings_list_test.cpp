// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QPainter>

#include "support/window_test.h"
#include "views/common/scroll_body.h"
#include "views/settings/settings_list.h"
#include "views/settings/table.h"

namespace vexa {
namespace {

// "GROUP/LABEL": "VALUE|VALUE"
std::map<std::string, std::string> Listed(const VEXATYPE& state) {
  std::map<std::string, std::string> rows;
  for (const SettingsGroup& group : SettingsList(state)) {
    for (const SettingsRow& row : group.rows) {
      rows[(group.caption + u'/' + row.label).toStdString()] = row.values.join(u'|').toStdString();
    }
  }
  return rows;
}

TEST(SettingsList, ShowsWhatIsSet) {
  VEXATYPE state;
  state.display.xyMode = false;
  state.display.minimumPercent = 0.125;
  state.colour.illuminant = 4;
  state.referenceSetting.kind = DispersionKind::kSchott;
  state.thickness.type = ThicknessType::kC;
  state.thickness.kind = ThicknessKind::kOptical;
  state.thickness.coat.kind = DispersionKind::kSubstrate;
  state.thickness.coat.dataFileName = QStringLiteral("基板.csv");
  auto rows = Listed(state);
  EXPECT_EQ(rows.size(), 31U) << "no label twice in a group";
  EXPECT_EQ(rows["色度図/表示設定"], "L*a*b色度図");
  EXPECT_EQ(rows["色度図/L*a*bﾒﾓﾘ"], "40");
  EXPECT_EQ(rows["色度図/標準光源設定"], "D65");
  EXPECT_EQ(rows["反射率/最小値"], "0.125");
  EXPECT_EQ(rows["ﾘﾌｧﾚﾝｽ設定/ﾘﾌｧﾚﾝｽ設定"], "ﾊﾙﾄﾏﾝ分散式");
  EXPECT_EQ(rows["ﾘﾌｧﾚﾝｽ設定/分散式ﾊﾟﾗﾒｰﾀ"],
            "2.2702566E+00|-9.1988101E-03|1.1609706E-02|-7.6123911E-05|2.8558727E-05|"
            "-1.2566486E-06");
  EXPECT_EQ(rows["ﾘﾌｧﾚﾝｽ設定/ﾘﾌｧﾚﾝｽﾌｧｲﾙ名"], "");
  EXPECT_EQ(rows["膜厚測定設定/測定タイプ"], "typeC|光学膜厚(nd)");
  EXPECT_EQ(rows["膜厚測定設定/分散式ﾊﾟﾗﾒｰﾀ"], "");
  EXPECT_EQ(rows["膜厚測定設定/基板ﾌｧｲﾙ名"], "基板.csv");
  state.display.labScale = -1;
  EXPECT_EQ(Listed(state)["色度図/L*a*bﾒﾓﾘ"], "-") << "as a file may hold it";
}

TEST(SettingsList, IsPrintedWholeWithinThePage) {
  QImage paper(400, 600, QImage::Format_RGB32);
  paper.fill(Qt::white);
  const QRect page(40, 30, 320, 540);
  table window(VEXATYPE(), [&](const table::Paint& paint) {
    QPainter painter(&paper);
    paint(painter, page);
  });
  window.show();
  test::Click(window, "Print");
  const QSize list = window.findChild<ScrollBody*>()->widget()->size();
  const int bottom = page.top() + page.width() * list.height() / list.width();
  EXPECT_NE(paper.pixelColor(page.right() - 2, bottom - 2), QColor(Qt::white));
  EXPECT_EQ(paper.pixelColor(page.right() + 2, bottom - 2), QColor(Qt::white));
  EXPECT_EQ(paper.pixelColor(page.right() - 2, bottom + 2), QColor(Qt::white));
  test::Click(window, "Close");
  EXPECT_FALSE(window.isVisible());
}

}  // namespace
}  // namespace vexa
