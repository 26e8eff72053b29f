// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/records/records_window.h"

#include <QComboBox>
#include <QScreen>
#include <QScrollBar>
#include <QTableWidget>
#include <QTextEdit>
#include <memory>

#include "records/samples.h"
#include "support/pdf_words.h"
#include "support/waiting.h"
#include "support/window_test.h"
#include "views/paper/current_printer.h"
#include "views/print/page_header.h"
#include "views/print/records_report.h"
#include "views/records/record_graph.h"
#include "views/records/record_list.h"

namespace vexa {
namespace {

using test::MeasuredState;
using test::With;
using Context = RecordContext;

class RecordsWindowTest : public test::WindowTest {
 protected:
  QWidget& Window() override { return *window; }

  // A sample of that number, measured so many seconds after noon.
  void Keep(unsigned seed, const char* number, Context context = {},
            std::optional<bool> passed = std::nullopt) {
    VEXATYPE measured = MeasuredState(seed);
    measured.Slot(1)->info.sampleNumber = QString::fromUtf8(number);
    measured.Slot(1)->judgement.groups[0].passed = passed;
    if (context.station.isEmpty()) {
      context.station = QStringLiteral("line 1");
    }
    RecordStore store;
    ASSERT_EQ(store.Open(path, RecordStore::Mode::kWrite), StoreFault::kNone);
    ASSERT_TRUE(store.Append(MeasuredSampleOf(measured, 1, context)->Rows()));
  }

  void Open(const char* shared = "") {
    reader = std::make_unique<RecordReader>(path, QLatin1String(shared));
    const auto print = [this](const QList<WholeRecord>& records) { printed = records; };
    window = std::make_unique<RecordsWindow>(RecordsWindowParts{*reader, session, desk, messages,
                                                                dialogs, preferences, path,
                                                                QStringLiteral("line 1"), print});
    table = &Find<QTableView>("RecordTable");
    window->show();
    Settle();
  }

  // Until everything that was asked of the reader is answered.
  void Settle() {
    for (int round = 0; round < 3; ++round) {
      bool answered = false;
      reader->Load(RecordPlace::kStation, {}, *window,
                   [&answered](const auto&) { answered = true; });
      ASSERT_TRUE(QTest::qWaitFor([&answered] { return answered; }));
      test::Wait(0);
    }
  }

  [[nodiscard]] std::string Numbers() const {
    QStringList numbers;
    for (int row = 0; row < table->model()->rowCount(); ++row) {
      numbers << table->model()->index(row, RecordList::kSampleNumber).data().toString();
    }
    return numbers.join(u' ').toStdString();
  }

  void Select(const QList<int>& rows) {
    table->clearSelection();
    for (const int row : rows) {
      table->selectionModel()->select(table->model()->index(row, 0),
                                      QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
    Settle();
  }

  bool Can(const char* button) { return Find<QPushButton>(button).isEnabled(); }

  QString path = files.Path("records.db");
  InstrumentDesk desk{session, messages, [](const VEXATYPE&) { return nullptr; }};
  ProgramPreferences preferences{files.Directory()};
  QList<WholeRecord> printed;
  std::unique_ptr<RecordReader> reader;
  std::unique_ptr<RecordsWindow> window;
  QTableView* table = nullptr;
};

TEST_F(RecordsWindowTest, FieldsRestrictWhatIsFound) {
  Keep(1, "A-1", With<Context>(&Context::lot, "L1", &Context::recipe, "r.json"), true);
  Keep(2, "A-2", With<Context>(&Context::lot, "L1", &Context::operatorName, "Sato"), false);
  Keep(3, "b-12", With<Context>(&Context::lot, "L2"));
  Open();
  struct Case {
    const char* field;
    const char* typed;
    const char* found;
  };
  const Case cases[] = {{"Lot", "L1", "A-2 A-1"},    {"Lot", "L", ""},
                        {"Recipe", "r.json", "A-1"}, {"SamplePart", "-1", "b-12 A-1"},
                        {"SamplePart", "B", "b-12"}, {"SamplePart", "%", ""},
                        {"Operator", "Sato", "A-2"}, {"Operator", " ", "b-12 A-2 A-1"}};
  for (const Case& item : cases) {
    test::Type(*window, item.field, item.typed);
    QTest::keyClick(&Find<QLineEdit>(item.field), Qt::Key_Return);
    Settle();
    EXPECT_EQ(Numbers(), item.found) << item.field << ' ' << item.typed;
    Find<QLineEdit>(item.field).clear();
  }
  const std::pair<int, const char*> verdicts[] = {
      {1, "A-1"}, {2, "A-2"}, {3, "b-12"}, {0, "b-12 A-2 A-1"}};
  for (const auto& [choice, found] : verdicts) {
    Find<QComboBox>("Verdict").setCurrentIndex(choice);
    Settle();
    EXPECT_EQ(Numbers(), found) << choice;
  }
  // From the day to the day, both included.
  Find<QComboBox>("Period").setCurrentIndex(4);
  for (const auto& [day, found] : {std::pair(21, "b-12 A-2 A-1"), std::pair(22, "")}) {
    Find<QDateEdit>("From").setDate({2026, 11, day});
    Find<QDateEdit>("To").setDate({2026, 11, day});
    Settle();
    EXPECT_EQ(Numbers(), found) << day;
  }
}

TEST_F(RecordsWindowTest, FitsASmallScreen) {
  Open("service=none");
  EXPECT_LE(window->minimumSizeHint().width(), 1024 - 16);
  EXPECT_LE(window->minimumSizeHint().height(), 600 - 44);
  const QSize room = window->screen()->availableSize().expandedTo(window->minimumSizeHint());
  EXPECT_EQ(window->size(), window->size().boundedTo(room)) << "as it opens";
}

TEST_F(RecordsWindowTest, PagesComeAsTheTableScrolls) {
  {
    RecordStore store;
    ASSERT_EQ(store.Open(path, RecordStore::Mode::kWrite), StoreFault::kNone);
    QList<Row> rows;
    for (unsigned seed = 1; seed <= 450; ++seed) {
      rows << MeasuredSampleOf(MeasuredState(seed), 1, {})->Rows();
    }
    ASSERT_TRUE(store.Append(rows));
  }
  Open();
  const int first = table->model()->rowCount();
  EXPECT_LT(first, 450);
  EXPECT_NE(Text("RecordState").find("以上"), std::string::npos);
  for (int page = 0; page < 5; ++page) {
    table->verticalScrollBar()->setValue(table->verticalScrollBar()->maximum());
    Settle();
  }
  EXPECT_EQ(Text("RecordState"), "450件");
  QStringList expected;
  for (int seed = 450; seed >= 1; --seed) {
    expected << QStringLiteral("ﾚﾝｽﾞ-%1").arg(seed);
  }
  EXPECT_EQ(Numbers(), expected.join(u' ').toStdString());

  // All means all that is found, also what was not read yet.
  window.reset();
  Open();
  window->activateWindow();
  table->setFocus();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  QTest::keySequence(table, QKeySequence::SelectAll);
  ASSERT_TRUE(
      QTest::qWaitFor([this] { return table->selectionModel()->selectedRows().size() == 450; }));
  ASSERT_TRUE(
      QTest::qWaitFor([this] { return Find<RecordGraph>("RecordGraph").graphCount() > 0; }));
  EXPECT_EQ(Find<RecordGraph>("RecordGraph").graphCount(), 50);
}

TEST_F(RecordsWindowTest, NewRecordsComeOnTop) {
  Open();
  EXPECT_EQ(Text("RecordState"), "まだ記録がありません。");
  Keep(1, "A-1");
  Keep(2, "A-2");
  window->TakeNewer();
  Settle();
  EXPECT_EQ(Numbers(), "A-2 A-1");
  Select({1});
  Press("PrintRecords");
  Settle();
  ASSERT_EQ(printed.size(), 1);
  Keep(3, "A-1b", With<Context>(&Context::supersedes, printed.first().summary.id));
  Keep(4, "A-3");
  window->TakeNewer();
  Settle();
  EXPECT_EQ(Numbers(), "A-3 A-1b A-2");  // nor is what was superseded shown any more
}

TEST_F(RecordsWindowTest, TellsWhyNothingIsFound) {
  struct Case {
    const char* bytes;
    const char* told;
  };
  const Case cases[] = {{"no database at all, but long enough to be one", "壊れている"},
                        {nullptr, "まだ記録がありません。"}};
  for (const Case& item : cases) {
    window.reset();
    QFile::remove(path);
    if (item.bytes != nullptr) {
      files.Write("records.db", item.bytes);
    }
    Open();
    EXPECT_NE(Text("RecordState").find(item.told), std::string::npos) << Text("RecordState");
  }
  EXPECT_EQ(messages.Take(), test::Shown{});
}

TEST_F(RecordsWindowTest, LoadsIntoSlotsInMeasuringOrder) {
  for (unsigned seed = 1; seed <= 11; ++seed) {
    Keep(seed, QByteArray("N" + QByteArray::number(seed)).constData());
  }
  Open();
  table->selectAll();
  Settle();
  EXPECT_FALSE(Can("LoadRecords"));  // eleven
  Select({0, 2});
  ASSERT_TRUE(Can("LoadRecords"));
  Press("LoadRecords");
  Settle();
  EXPECT_EQ(messages.Take(), test::Shown{});  // nothing was in the way
  EXPECT_EQ(state.Slot(1)->info.sampleNumber, QStringLiteral("N9"));
  EXPECT_EQ(state.Slot(2)->info.sampleNumber, QStringLiteral("N11"));
  EXPECT_EQ(state.Slot(2)->reflectance, MeasuredState(11).Slot(1)->reflectance);
  EXPECT_FALSE(state.Slot(3)->valid);

  Select({1});
  messages.answers = {MessageResult::kCancel};
  Press("LoadRecords");
  Settle();
  EXPECT_EQ(messages.Take(), (test::Shown{{Message::kEraseSlots, {QStringLiteral(" 1")}}}));
  EXPECT_EQ(state.Slot(1)->info.sampleNumber, QStringLiteral("N9"));
  Press("LoadRecords");
  Settle();
  EXPECT_EQ(state.Slot(1)->info.sampleNumber, QStringLiteral("N10"));
  EXPECT_TRUE(state.Slot(2)->valid);
}

TEST_F(RecordsWindowTest, ExportsByTheEnding) {
  for (unsigned seed = 1; seed <= 11; ++seed) {
    Keep(seed, "N");
  }
  Open();
  table->selectAll();
  struct Case {
    const char* name;
    int filter;
    const char* file;  ///< null: refused
    const char* begins;
  };
  const Case cases[] = {
      {"a", 1, nullptr, ""}, {"b", 3, "b.json", "{"}, {"c.jdx", 1, "c.jdx", "##TITLE="}};
  for (const Case& item : cases) {
    dialogs.save = SaveChoice{files.Path(item.name), item.filter};
    Press("ExportRecords");
    Settle();
    if (item.file == nullptr) {
      EXPECT_EQ(messages.Take(), test::Shown{Message::kTooManyForDataFile});
      EXPECT_FALSE(files.Has("a.csv"));
    } else {
      EXPECT_EQ(messages.Take(), test::Shown{});
      EXPECT_TRUE(files.Read(item.file).startsWith(item.begins)) << item.file;
    }
  }
}

TEST_F(RecordsWindowTest, SupersedesWithAReason) {
  Keep(1, "old");
  Keep(2, "new");
  Open();
  Select({0});
  EXPECT_FALSE(Can("SupersedeRecord"));
  Select({0, 1});
  bool decided = false;
  QObject::connect(window.get(), &RecordsWindow::Decided, [&decided] { decided = true; });
  Press("SupersedeRecord");
  auto* dialog = window->findChild<QDialog*>(QStringLiteral("SupersedeDialog"));
  ASSERT_NE(dialog, nullptr);
  EXPECT_FALSE(test::Child<QPushButton>(*dialog, "OK").isEnabled());
  test::Type(*dialog, "Reason", "dust");
  test::Click(*dialog, "OK");
  Settle();
  EXPECT_TRUE(decided);
  EXPECT_EQ(Numbers(), "new");
  Select({0});
  const QString details = Find<QTextEdit>("RecordDetails").toPlainText();
  EXPECT_NE(details.indexOf(QStringLiteral("dust")), -1) << details.toStdString();
  Find<QAbstractButton>("WithSuperseded").click();
  Settle();
  EXPECT_EQ(Numbers(), "new old");

  // Once superseded is enough.
  Select({0, 1});
  Press("SupersedeRecord");
  dialog = nullptr;
  for (auto* open : window->findChildren<QDialog*>()) {
    dialog = open->isVisible() ? open : dialog;
  }
  ASSERT_NE(dialog, nullptr);
  test::Type(*dialog, "Reason", "again");
  test::Click(*dialog, "OK");
  EXPECT_EQ(messages.Take(), test::Shown{Message::kSupersededAlready});
  EXPECT_TRUE(dialog->isVisible());
}

TEST_F(RecordsWindowTest, ComputesAnewBesideWhatIsStored) {
  Keep(7, "N");
  Open();
  Select({0});
  Press("RecomputeRecords");
  Settle();
  auto* anew = window->findChild<QDialog*>(QStringLiteral("RecomputedWindow"));
  ASSERT_NE(anew, nullptr);
  const auto& values = test::Child<QTableWidget>(*anew, "RecomputedTable");
  ASSERT_EQ(values.rowCount(), 2);
  // The average of what was kept, 1 percent with noise up to 1/3, and what the counts give.
  EXPECT_NEAR(values.item(0, 6)->text().toDouble(), 1.0 + 1.0 / 6.0, 0.03);
  EXPECT_NEAR(values.item(1, 6)->text().toDouble(), 4.0 * 900.0 / 2900.0, 0.01);
  EXPECT_FALSE(values.item(0, 6)->font().bold());
  EXPECT_TRUE(values.item(1, 6)->font().bold());
}

TEST_F(RecordsWindowTest, CieColoursStandBesideTheOwnOnesWhereTheProgramSaysSo) {
  Context judged;
  judged.cieLimits.luminousReflectance = {true, 0.5, -CieLimits::kNone};
  Keep(7, "N", judged);
  Open();
  Select({0});
  const auto details = [this] { return Find<QTextEdit>("RecordDetails").toPlainText(); };
  for (const char* text : {"合否判定 NG", "CIE Rv", "余裕 -0.", "440 nm より下は外挿"}) {
    EXPECT_TRUE(details().contains(QString::fromUtf8(text))) << text;
  }
  EXPECT_FALSE(details().contains(QStringLiteral("装置固有")));
  ASSERT_TRUE(preferences.Change([](ProgramSettings& settings) { settings.showCie = true; }));
  Settle();
  for (const char* text : {"測定値 装置固有", "CIE測色値 (A / 2°", "外挿差 ΔE*ab"}) {
    EXPECT_TRUE(details().contains(QString::fromUtf8(text))) << text << details().toStdString();
  }
  Press("RecomputeRecords");
  Settle();
  const auto& anew = test::Child<QTableWidget>(*window, "RecomputedTable");
  EXPECT_EQ(anew.horizontalHeaderItem(3)->text(), QStringLiteral("装置固有\nL*"));
  EXPECT_EQ(anew.horizontalHeaderItem(12)->text(), QStringLiteral("CIE\nRv[%]"));
  EXPECT_NEAR(anew.item(0, 12)->text().toDouble(), 1.0 + 1.0 / 6.0, 0.05);
  EXPECT_NEAR(anew.item(1, 12)->text().toDouble(), 4.0 * 900.0 / 2900.0, 0.01);
}

TEST_F(RecordsWindowTest, ReportHasARowForEachAndProvesThem) {
  for (unsigned seed = 1; seed <= 60; ++seed) {
    Keep(seed, QByteArray("N" + QByteArray::number(seed)).constData(),
         With<Context>(&Context::lot, "LOT-7"), seed != 3);
  }
  Open();
  table->selectAll();
  Press("PrintRecords");
  ASSERT_TRUE(QTest::qWaitFor([this] { return printed.size() == 60; }));
  const QString pdf = files.Path("r.pdf");
  ASSERT_TRUE(WritePdf(pdf, {}, PageLayoutOf(SavedPrintSettings(state)),
                       MakeRecordsReport(printed, true, {2026, 11, 22}, ProofText(path))));
  const QStringList pages = test::PdfPages(pdf);
  ASSERT_GT(pages.size(), 1);
  const ChainHead head = *HeadOf(path);
  const QString proof =
      QStringLiteral("%1: ").arg(head.number) + QString::fromLatin1(head.hash.toHex());
  for (const QString& page : pages) {
    EXPECT_TRUE(page.contains(proof)) << page.toStdString();
  }
  const QString whole = pages.join(u' ');
  for (const char* text :
       {"LOT-7", "OK 59", "NG 1", " N1 ", " N60 ", "2026/11/22", "装置固有", "CIE測色値 (A / 2°"}) {
    EXPECT_TRUE(whole.contains(QString::fromUtf8(text))) << text << whole.toStdString();
  }
}

}  // namespace
}  // namespace vexa
