// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QComboBox>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTableWidget>
#include <random>

#include "records/daily_check_events.h"
#include "records/record_builder.h"
#include "records/record_store.h"
#include "records/samples.h"
#include "records/shared_store.h"
#include "support/pdf_words.h"
#include "support/private_postgres.h"
#include "support/spectra.h"
#include "support/window_test.h"
#include "views/paper/current_printer.h"
#include "views/statistics/chart_study.h"
#include "views/statistics/control_chart_window.h"
#include "views/statistics/gauge_result.h"
#include "views/statistics/gauge_study_window.h"
#include "views/statistics/repeat_study.h"
#include "views/statistics/slot_statistics_window.h"
#include "views/statistics/xmr_plot.h"

namespace vexa {
namespace {

ValueSeries SeriesOf(const std::vector<double>& values) {
  ValueSeries series;
  for (const double value : values) {
    ValuePoint& point = series.points.emplace_back();
    point.value = value;
    point.time = QStringLiteral("2026-11-%1T08:00:00.000+09:00")
                     .arg(1 + series.points.size() / 10, 2, 10, QLatin1Char('0'));
    point.lot = series.points.size() % 2 == 0 ? QStringLiteral("A") : QStringLiteral("B");
  }
  return series;
}

// Independent normal values of the mean and a standard deviation of 1.
std::vector<double> Normal(double mean, std::size_t count = 200) {
  std::mt19937 random(5);
  std::normal_distribution<double> distribution(mean, 1.0);
  std::vector<double> values(count);
  std::ranges::generate(values, [&] { return distribution(random); });
  return values;
}

QString Cell(const ResultTable& table, const QString& name) {
  for (const QStringList& row : table.rows) {
    if (row[0] == name) {
      return row[1];
    }
  }
  return {};
}

TEST(ChartStudy, GivesNoCapabilityWhereTheNormalModelDoesNotHold) {
  std::vector<double> walk = Normal(0.0);
  for (std::size_t i = 1; i < walk.size(); ++i) {
    walk[i] += 0.9 * walk[i - 1];
  }
  std::ranges::for_each(walk, [](double& value) { value += 50.0; });
  struct Case {
    const char* name;
    std::vector<double> values;
    Quantity quantity;
    bool capability;
    std::size_t doubts;
    bool refused;
  };
  for (const Case& c : {Case{"in control", Normal(50.0), Quantity::kChroma, true, 0, false},
                        Case{"near 0", Normal(2.5), Quantity::kChroma, false, 1, false},
                        Case{"0 is no bound", Normal(2.5), Quantity::kB, true, 0, false},
                        Case{"correlated", walk, Quantity::kB, false, 1, false},
                        Case{"one value", {1.0}, Quantity::kB, false, 0, true},
                        Case{"none", {}, Quantity::kB, false, 0, true},
                        Case{"no spread", {2.0, 2.0, 2.0}, Quantity::kB, false, 0, true}}) {
    const ValueSeries series = SeriesOf(c.values);
    const ChartStudy study =
        StudyChart(series, {{c.quantity}, Grouping::kNone, false, 0, {-20.0, 60.0}});
    EXPECT_EQ(study.capability.has_value(), c.capability) << c.name;
    EXPECT_EQ(study.doubts.size(), c.doubts) << c.name;
    EXPECT_EQ(!study.refusal.isEmpty(), c.refused) << c.name;
    EXPECT_EQ(Warnings(study, series).isEmpty(), c.capability && study.found.empty()) << c.name;
    if (!c.refused) {
      EXPECT_EQ(Cell(StatisticsTable(study), QStringLiteral("Cpk")) == QStringLiteral("-"),
                !c.capability)
          << c.name;
    }
  }
}

TEST(ChartStudy, MarksGroupsBaselineAndFileRows) {
  std::vector<double> values(20, 0.0);
  for (std::size_t i = 0; i < values.size(); ++i) {
    values[i] = i % 2 == 0 ? 1.0 : -1.0;
  }
  values[17] = 9.0;
  const ValueSeries series = SeriesOf(values);
  const ChartStudy study = StudyChart(series, {{Quantity::kB}, Grouping::kLot, false, 10, {}});
  EXPECT_NEAR(study.limits->upper, 5.32, 1e-9) << "from the first ten";
  EXPECT_EQ(study.found.front(), (statistics::Signal{18, 1}));
  EXPECT_FALSE(study.BrokenAt(18).isEmpty());
  EXPECT_TRUE(study.BrokenAt(17).isEmpty());
  EXPECT_EQ(study.groupNames, QStringList({QStringLiteral("B"), QStringLiteral("A")}));
  EXPECT_EQ(GroupTable(study).rows[1][1], QStringLiteral("10"));
  const QList<QStringList> rows = FileRows(study, series);
  ASSERT_EQ(rows.size(), 21);
  EXPECT_EQ(rows[18].mid(6).join(u' '), QStringLiteral("9 8 1 MR"));
  EXPECT_EQ(StudyChart(series, {{Quantity::kB}, Grouping::kDay, false, 21, {}}).refusal.isEmpty(),
            false)
      << "a baseline longer than the series";
}

TEST(GaugeResult, SaysWhetherTheGaugeWillDo) {
  struct Case {
    double percentGrr;
    std::optional<double> percentTolerance;
    std::int64_t ndc;
    GaugeGrade grade;
  };
  for (const Case& c :
       {Case{9.9, {}, 14, GaugeGrade::kGood}, Case{9.9, {}, 4, GaugeGrade::kMarginal},
        Case{10.1, {}, 14, GaugeGrade::kMarginal}, Case{30.1, {}, 4, GaugeGrade::kPoor},
        Case{30.1, 9.0, 5, GaugeGrade::kGood}, Case{9.0, 31.0, 14, GaugeGrade::kPoor}}) {
    statistics::GaugeStudy study;
    study.percentGrr = c.percentGrr;
    study.percentTolerance = c.percentTolerance;
    study.ndc = c.ndc;
    EXPECT_EQ(GradeOf(study), c.grade) << c.percentGrr;
    EXPECT_TRUE(GradeText(study).contains(QString::number(c.ndc)));
  }
}

TEST(RepeatStudy, TellsTheRepeatabilityOfEveryValueThatAllHave) {
  std::vector<StudiedSample> samples(2);
  samples[0].slot.reflectance = test::Flat(4.0);
  samples[1].slot.reflectance = test::Flat(5.0);
  samples[0].slot.thickness.first.wavelengthNm = 500.0;  // one alone has a thickness
  const ResultTable table = RepeatTable(samples);
  const QString mean = ValueTitle({Quantity::kAverageReflectance});
  EXPECT_EQ(Cell(table, mean), QStringLiteral("2"));
  for (const QStringList& row : table.rows) {
    if (row[0] == mean) {
      EXPECT_EQ(row.mid(2).join(u' '), QStringLiteral("4.5 0.707107 4 5 1.9799"));
    }
  }
  EXPECT_EQ(Cell(table, ValueTitle({Quantity::kThickness})), QString());
  EXPECT_FALSE(Cell(table, ValueTitle({Quantity::kCieL})).isEmpty());
  EXPECT_EQ(SpectrumRows(samples)[1].join(u' '), QStringLiteral("440 4.5 0.707106781186548 4 5"));
  EXPECT_EQ(RepeatTable(std::span(samples).first(1)).rows.size(), 1);
  EXPECT_TRUE(SpectrumRows({}).isEmpty());
}

/// The window over a store of 30 records of two lots.
class ControlChart : public test::WindowTest {
 protected:
  void SetUp() override {
    RecordStore store;
    ASSERT_EQ(store.Open(path, RecordStore::Mode::kWrite), StoreFault::kNone);
    QList<Row> rows;
    for (int i = 0; i < 30; ++i) {
      rows << Measured(i, "1号機", i < 20 ? "A" : "B", 40.0 + i % 3 + (i == 15 ? 30.0 : 0.0));
    }
    ASSERT_TRUE(store.Append(rows));
  }
  QWidget& Window() override { return *window; }

  // The sample of that number from 0, one a minute.
  [[nodiscard]] Row Measured(int number, const char* station, const char* lot,
                             double percent) const {
    RecordContext context;
    context.station = QString::fromUtf8(station);
    context.lot = QString::fromUtf8(lot);
    MeasurementSlot slot;
    slot.info.measuredAt = QDateTime({2026, 11, 1}, {8, 0}).addSecs(60 * number);
    slot.info.sampleNumber = QString::number(number + 1);
    slot.reflectance = test::Flat(percent);
    return ToRow(ResultsOf(state, slot, context));
  }

  void Open(const QString& shared = {}) {
    reader = std::make_unique<RecordReader>(path, shared);
    window = std::make_unique<ControlChartWindow>(session, *reader, printer, messages, dialogs);
    window->show();
    Settle();
  }
  // Until everything that was asked of the reader is answered.
  void Settle() {
    bool answered = false;
    reader->Load(RecordPlace::kStation, {}, *window,
                 [&answered](const auto& /*none*/) { answered = true; });
    ASSERT_TRUE(QTest::qWaitFor([&answered] { return answered; }, 30000));
  }
  int Points() { return Find<XmrPlot>("ControlChart").graph(1)->dataCount(); }

  const QString path = files.Path("records.db");
  CurrentPrinter printer{state, messages, dialogs};
  std::unique_ptr<RecordReader> reader;
  std::unique_ptr<ControlChartWindow> window;
};

TEST_F(ControlChart, ShowsPointsRulesAndTheRecordBehindAPoint) {
  Open();
  EXPECT_EQ(Points(), 30);
  auto& signalRows = Find<QTableWidget>("Signals");
  ASSERT_GE(signalRows.rowCount(), 1);
  signalRows.selectRow(0);
  Settle();
  EXPECT_EQ(Find<XmrPlot>("ControlChart").Chosen(), 16);
  auto& details = Find<QTableWidget>("RecordDetails");
  EXPECT_EQ(details.item(1, 1)->text(), QStringLiteral("16"));
  test::Type(*window, "Lot", "B");
  emit Find<QLineEdit>("Lot").editingFinished();
  Settle();
  EXPECT_EQ(Points(), 10);
  Find<QComboBox>("Quantity").setCurrentIndex(static_cast<int>(Quantity::kThickness));
  Settle();
  EXPECT_EQ(Points(), 0);
  EXPECT_FALSE(Text("ChartWarnings").empty()) << "none of them has a thickness";
}

TEST_F(ControlChart, TheSharedStoreHasThePointsOfAllStations) {
  test::PrivatePostgres server;
  if (!server.IsInstalled()) {
    GTEST_SKIP() << "PostgreSQL is not installed; scripts/setup --dev installs it";
  }
  server.Create();
  RecordStore other;
  ASSERT_EQ(other.Open(files.Path("other.db"), RecordStore::Mode::kWrite), StoreFault::kNone);
  ASSERT_TRUE(other.Append({Measured(40, "2号機", "C", 44.0)}));
  {
    SharedStore shared;
    ASSERT_EQ(shared.Open(server.Uri()), StoreFault::kNone);
    const auto all = [](const SharedStatus& /*status*/) { return true; };
    ASSERT_EQ(shared.Send(other, all).waiting, 0);
    RecordStore own;
    ASSERT_EQ(own.Open(path, RecordStore::Mode::kRead), StoreFault::kNone);
    ASSERT_EQ(shared.Send(own, all).waiting, 0);
  }
  Open(server.Uri());
  EXPECT_EQ(Points(), 30);
  Find<QComboBox>("Place").setCurrentIndex(1);
  Settle();
  EXPECT_EQ(Points(), 31);
  emit Find<XmrPlot>("ControlChart").PointChosen(31);
  Settle();
  EXPECT_EQ(Find<QTableWidget>("RecordDetails").item(5, 1)->text(), QStringLiteral("2号機"));
  server.Stop();
  Press("LoadChart");
  Settle();
  EXPECT_EQ(Points(), 0);
  EXPECT_EQ(Text("ChartWarnings"), StoreFaultText(StoreFault::kUnreachable).toStdString());
}

TEST_F(ControlChart, PrintsAndSaves) {
  Open();
  dialogs.save = SaveChoice{files.Path("chart.csv")};
  Press("SaveChart");
  const QList<QByteArray> lines = files.Read("chart.csv").split('\n');
  ASSERT_EQ(lines.size(), 32);
  EXPECT_TRUE(lines[0].startsWith("point,time,station,lot,operator,sample,Y"));
  dialogs.save = SaveChoice{files.Path("chart.pdf")};
  Press("PrintChart");
  EXPECT_TRUE(test::PdfPages(files.Path("chart.pdf")).join(u' ').contains(QStringLiteral("UCL")));
  EXPECT_TRUE(messages.Take().empty());
}

TEST_F(ControlChart, AnEmptyOrAForeignStoreIsSaidInWords) {
  for (const char* content : {"", "no database"}) {
    QFile::remove(path);
    if (*content != '\0') {
      files.Write("records.db", content);
    }
    Open();
    EXPECT_FALSE(Text("ChartWarnings").empty()) << content;
    Press("SaveChart");  // cancelled
  }
}

class SlotStatistics : public test::WindowTest {
 protected:
  void SetUp() override {
    for (const auto& [number, percent] :
         {std::pair(1, 4.0), std::pair(3, 5.0), std::pair(5, 9.0)}) {
      state.Slot(number)->valid = true;
      state.Slot(number)->reflectance = test::Flat(percent);
    }
    QObject::connect(&window, &SlotStatisticsWindow::SpreadWanted,
                     [this](const std::vector<int>& slotNumbers) { spread = slotNumbers; });
  }
  QWidget& Window() override { return window; }

  // Number and mean of the average reflectance.
  std::string Statistics() {
    const auto& table = Find<QTableWidget>("RepeatTable");
    const auto found =
        table.findItems(ValueTitle({Quantity::kAverageReflectance}), Qt::MatchExactly);
    if (found.isEmpty()) {
      return {};
    }
    const int row = found.constFirst()->row();
    return (table.item(row, 1)->text() + u' ' + table.item(row, 2)->text()).toStdString();
  }

  InstrumentDesk desk{session, messages, [](const VEXATYPE&) { return nullptr; }};
  CurrentPrinter printer{state, messages, dialogs};
  SlotStatisticsWindow window{{session, desk, printer, messages, dialogs}};
  std::vector<int> spread;
};

TEST_F(SlotStatistics, FollowTheTicksAndTheSlots) {
  emit session.SlotsReplaced();
  auto& slotList = Find<QListWidget>("TickedSlots");
  Find<QAbstractButton>("SpreadInGraph").click();
  EXPECT_EQ(Statistics(), "3 6");
  struct Case {
    std::vector<int> unticked;  // places in the list
    const char* statistics;
    std::vector<int> spread;
  };
  for (const Case& c : {Case{{1}, "2 6.5", {1, 5}}, Case{{0, 1}, "", {5}}, Case{{0, 1, 2}, "", {}},
                        Case{{2}, "2 4.5", {1, 3}}}) {
    for (int i = 0; i < slotList.count(); ++i) {
      const bool off = std::ranges::find(c.unticked, i) != c.unticked.end();
      slotList.item(i)->setCheckState(off ? Qt::Unchecked : Qt::Checked);
    }
    EXPECT_EQ(Statistics(), c.statistics);
    EXPECT_EQ(spread, c.spread);
  }
  session.ClearSlot(1);
  EXPECT_EQ(slotList.count(), 2);
  EXPECT_EQ(spread, std::vector{3}) << "the ticks stay with their slots";
  window.show();
  window.close();
  EXPECT_EQ(spread, std::vector<int>()) << "the graph shows it no longer";
}

class GaugeStudyTest : public test::WindowTest {
 protected:
  QWidget& Window() override { return *window; }

  void Open() {
    window = std::make_unique<GaugeStudyWindow>(
        StudyParts{session, desk, recorder, reader, path, printer, messages, dialogs});
  }
  // What the plan's part measures, beside what its operator makes of it.
  static double Reading(const GaugeTask& task) {
    return 10.0 * task.part + 0.1 * task.gaugeOperator + 0.01 * task.repeat;
  }
  void KeepReadings(const GaugePlan& plan, std::size_t from, std::size_t to) {
    const std::vector<GaugeTask> order = OrderOf(plan);
    for (std::size_t place = from; place < to; ++place) {
      ASSERT_TRUE(KeepEvent(path, ReadingEvent(plan, {place,
                                                      Reading(order[place]),
                                                      {},
                                                      {},
                                                      plan.begun.addSecs(60),
                                                      QStringLiteral("1号機")})));
    }
  }
  void Choose(int study) {
    auto& choice = Find<QComboBox>("StudyChoice");
    choice.setCurrentIndex(study);
    emit choice.activated(study);
  }

  const QString path = files.Path("records.db");
  InstrumentDesk desk{session, messages, [](const VEXATYPE&) { return nullptr; }};
  SessionRecorder recorder{session, path,
                           test::With<RecordContext>(&RecordContext::station, "1号機")};
  RecordReader reader{path, {}};
  CurrentPrinter printer{state, messages, dialogs};
  std::unique_ptr<GaugeStudyWindow> window;
};

TEST_F(GaugeStudyTest, RefusesPlansThatCannotBeMeasured) {
  Open();
  struct Case {
    const char* operators;
    const char* tolerance;
    bool made;
  };
  int made = 0;
  for (const Case& c :
       {Case{"", "", false}, Case{"A", "", false}, Case{"A, A", "", false}, Case{"A,", "", false},
        Case{"A, B", "0", false}, Case{"A, B", "-1", false}, Case{"A, B", "E", false},
        Case{"A, B", "", true}, Case{"A, B, C", "0.5", true}}) {
    Choose(0);
    test::Type(*window, "Operators", c.operators);
    test::Type(*window, "Tolerance", c.tolerance);
    Press("MakePlan");
    made += c.made ? 1 : 0;
    EXPECT_EQ(Find<QLabel>("PlanRefusal").text().isEmpty(), c.made) << c.operators << c.tolerance;
    EXPECT_EQ(Find<QComboBox>("StudyChoice").count(), 1 + made) << c.operators << c.tolerance;
    EXPECT_EQ(Find<QPushButton>("MakePlan").isEnabled(), !c.made) << "the plan is settled";
  }
}

TEST_F(GaugeStudyTest, AStudyShowsNothingBeforeItsEnd) {
  GaugePlan plan;
  plan.begun = QDateTime({2026, 11, 1}, {8, 0});
  plan.parts = 3;
  plan.operators = QStringList{QStringLiteral("A"), QStringLiteral("B")};
  plan.repeats = 2;
  plan.id = KeepEvent(path, PlanEvent(plan, QStringLiteral("1号機"))).value;
  for (const std::size_t done : {0U, 5U, 11U}) {
    KeepReadings(plan, done == 11 ? 5 : 0, done);
    Open();
    Choose(1);
    const GaugeTask next = OrderOf(plan)[done];
    EXPECT_NE(Text("GaugeInstruction")
                  .find(QStringLiteral("%1/12  測定者 %2: 部品 %3 ")
                            .arg(done + 1)
                            .arg(plan.operators[next.gaugeOperator])
                            .arg(next.part + 1)
                            .toStdString()),
              std::string::npos)
        << Text("GaugeInstruction");
    EXPECT_EQ(Text("GaugeGrade"), "");
    EXPECT_EQ(Find<QTableWidget>("Variance").rowCount(), 0);
  }
  KeepReadings(plan, 11, 12);
  Open();
  Choose(1);
  EXPECT_NE(Text("GaugeGrade"), "");
  EXPECT_GT(Find<QTableWidget>("Variance").rowCount(), 0);
  dialogs.save = SaveChoice{files.Path("study.csv")};
  Press("SaveGauge");
  EXPECT_EQ(files.Read("study.csv").split('\n').size(), 14);
  Choose(0);
  EXPECT_EQ(Find<QTableWidget>("Variance").rowCount(), 0) << "a new one has no result";
}

}  // namespace
}  // namespace vexa
