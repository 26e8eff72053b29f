// SPDX-License-Identifier: GPL-3.0-or-later
// The records of the main window: searched as they are measured, and sent to the shared store.
#include <QComboBox>
#include <QTableView>
#include <algorithm>

#include "app/main_window_test.h"
#include "records/record_settings.h"
#include "records/shared_store.h"
#include "support/private_postgres.h"

namespace vexa {
namespace {

class Records : public test::MainWindowTest {
 protected:
  void MeasureFrames() {
    Measure("Background", 100);
    Measure("Reference", 500);
  }

  QWidget& OpenRecords() {
    window->Commands().records->trigger();
    return Find<QWidget>("RecordsWindow");
  }

  bool WaitForRows(QWidget& records, int count) {
    const auto* model = test::Child<QTableView>(records, "RecordTable").model();
    return QTest::qWaitFor([model, count] { return model->rowCount() == count; }, 20000);
  }
};

TEST_F(Records, AppearAsTheyAreMeasured) {
  Start();
  QWidget& records = OpenRecords();
  const auto& told = test::Child<QLabel>(records, "RecordState");
  ASSERT_TRUE(
      QTest::qWaitFor([&told] { return told.text() == QStringLiteral("まだ記録がありません。"); }));
  MeasureFrames();
  Measure("Mes1", 300);
  EXPECT_TRUE(WaitForRows(records, 1));
  Measure("Mes2", 310);
  EXPECT_TRUE(WaitForRows(records, 2));
  EXPECT_EQ(&OpenRecords(), &records) << "there is one window";
  EXPECT_FALSE(records.findChild<QComboBox*>(QStringLiteral("Place"))->isVisible());
}

TEST_F(Records, UnreadableSettingsAreTold) {
  peer.files.Write("records.json", "{\"station\": 1}");
  Create();
  test::Done(window->Load());
  const test::Shown shown = messages.Take();
  EXPECT_NE(std::ranges::find(shown, test::ShownMessage(Message::kRecordSettingsUnreadable,
                                                        {RecordSettingsPath(peer.Directory())})),
            shown.end());
}

TEST_F(Records, WaitForASharedStoreThatIsAway) {
  test::PrivatePostgres server;
  if (!server.IsInstalled()) {
    GTEST_SKIP() << "PostgreSQL is not installed; scripts/setup --dev installs it";
  }
  server.Create();
  peer.files.Write(
      "records.json",
      QStringLiteral(R"({"station": "line 2", "shared": "%1"})").arg(server.Uri()).toUtf8());
  Start();
  MeasureFrames();
  Measure("Mes1", 300);
  QWidget& records = OpenRecords();
  auto& place = test::Child<QComboBox>(records, "Place");
  EXPECT_TRUE(WaitForRows(records, 1));
  const auto sharedHas = [&](int count) {
    SharedStore shared;
    return shared.Open(server.Uri()) == StoreFault::kNone &&
           shared.Search({}).value.size() == count;
  };
  ASSERT_TRUE(QTest::qWaitFor([&] { return sharedHas(1); }, 20000));
  const auto& waiting = Find<QLabel>("SharedPanel");
  EXPECT_FALSE(waiting.isVisible());

  server.Stop();
  Measure("Mes2", 310);
  ASSERT_TRUE(QTest::qWaitFor([&waiting] { return waiting.isVisible(); }, 20000));
  EXPECT_EQ(waiting.text(), QStringLiteral("⇡1"));
  EXPECT_LE(window->minimumSizeHint().width(), 1024 - 16) << "the panel has its place";
  place.setCurrentIndex(1);
  const auto& told = test::Child<QLabel>(records, "RecordState");
  EXPECT_TRUE(QTest::qWaitFor(
      [&told] { return told.text().contains(QStringLiteral("ｻｰﾊﾞに接続できません。")); }, 20000));

  server.Start();
  ASSERT_TRUE(QTest::qWaitFor([&waiting] { return !waiting.isVisible(); }, 60000));
  EXPECT_TRUE(sharedHas(2));
  test::Click(records, "Search");
  EXPECT_TRUE(WaitForRows(records, 2));
}

}  // namespace
}  // namespace vexa
