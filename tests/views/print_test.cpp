// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QComboBox>
#include <QSpinBox>
#include <algorithm>

#include "measurement/evaluation.h"
#include "support/pdf_words.h"
#include "support/spectra.h"
#include "support/window_test.h"
#include "views/common/proposed_name.h"
#include "views/print/print_dlg.h"
#include "views/print/print_preview.h"
#include "views/print/print_setup_dlg.h"
#include "views/print/report.h"

namespace vexa {
namespace {

using test::Child;
using test::Click;
using test::Shown;
using test::ShownMessage;

class Printing : public test::ViewTest {
 protected:
  Printing() {
    state.programDirectory = files.Directory();
    state.standardFileName = QStringLiteral("出荷規格.std");
    state.standard.averageReflectance = {true, 3.5, 0.0};
    state.thickness.enabled = true;
    request.title = QStringLiteral("反射防止膜検査");
    request.operatorName = QStringLiteral("山田長青");
    request.date = {2026, 3, 9};
    request.stepNm = 10;
  }

  // Slot n reflects n + (wavelength - 440) / 1000 percent.
  void Fill(int count) {
    for (int number = 1; number <= count; ++number) {
      MeasurementSlot& slot = *state.Slot(number);
      slot.reflectance =
          test::SpectrumOf([number](int nm) { return number + (nm - 440) / 1000.0; });
      slot.info.sampleNumber = QStringLiteral("A-00%1").arg(number);
      slot.valid = true;
    }
    EvaluateAgain(state);
  }

  QStringList Pages() {
    EXPECT_TRUE(
        WritePdf(Path(), request.title, PageLayoutOf(settings), MakeReport(state, request)));
    return test::PdfPages(Path());
  }
  [[nodiscard]] QString Path() const { return files.Path("報告.pdf"); }

  PrintSettings settings;
  ReportRequest request;
  CurrentPrinter printer{state, messages, dialogs};
};

TEST_F(Printing, ReportHoldsWhatIsAskedFor) {
  Fill(4);
  state.Slot(2)->thickness.first = {700.0, 4.0};
  state.Slot(2)->thickness.thicknessNm = 1512.34;
  state.Slot(2)->thickness.physical = false;
  state.Slot(3)->info.measuredAt = QDateTime({2026, 3, 8}, {7, 5, 3});
  const char* graph = "波長 [nm]";
  const char* values = " 2.2 2.";  // mean reflectance of slot 2, and the luminous one beside it
  const char* verdicts =
      "規格 - 0.0～3.5 - - - -\n 1 A-001 - OK - - - - OK\n 2 A-002 - OK - - - - OK\n"
      " 3 A-003 - OK - - - - OK\n 4 A-004 - NG - - - - NG";
  const char* tens = "440 1.000 2.000 3.000 4.000";
  const char* ones = "441 1.001 2.001 3.001 4.001";
  const struct {
    ReportContent content;
    int slot;
    int stepNm;
    std::vector<const char*> held;
    std::vector<const char*> missing;
  } cases[] = {
      {ReportContent::kBoth, 0, 10, {graph, values, verdicts, tens, "1512.3 [nd]"}, {ones}},
      {ReportContent::kBoth, 0, 1, {graph, verdicts, tens, ones}, {}},
      {ReportContent::kGraph, 0, 1, {graph, verdicts, "A-004"}, {tens, ones}},
      {ReportContent::kText, 0, 10, {verdicts, tens}, {graph, ones}},
      {ReportContent::kText, 3, 10, {"3 A-003", "2026/3/8 7:05:03", "440 3.000"}, {"A-002", tens}},
  };
  for (const auto& c : cases) {
    request.content = c.content;
    request.slot = c.slot;
    request.stepNm = c.stepNm;
    const QStringList pages = Pages();
    const QString all = pages.join(QString());
    const auto where = testing::Message() << "case " << (&c - cases) << ":\n" << all.toStdString();
    for (const char* text : c.held) {
      EXPECT_TRUE(all.contains(QString::fromUtf8(text))) << text << where;
    }
    for (const char* text : c.missing) {
      EXPECT_FALSE(all.contains(QString::fromUtf8(text))) << text << where;
    }
    int number = 0;
    for (const QString& page : pages) {
      for (const QString& text :
           {QStringLiteral("反射防止膜検査"), QStringLiteral("測定者 山田長青"),
            QStringLiteral("日付 2026/3/9"), QStringLiteral("vexa.env"),
            QStringLiteral("出荷規格.std")}) {
        EXPECT_TRUE(page.contains(text)) << text.toStdString() << where;
      }
      const QString footer = QStringLiteral("VEXA-KT%1/%2").arg(++number).arg(pages.size());
      EXPECT_TRUE(QString(page).remove(u' ').trimmed().endsWith(footer)) << where;
    }
  }
}

TEST_F(Printing, ReportSaysUnderWhichConditionsAndFromWhichFile) {
  Fill(2);
  const QString name(70, u'Q');
  state.Slot(1)->info.sampleNumber = name;
  state.standard.useReflectance = true;
  state.standard.conditions[0] = {true, 7.6, 3.4};
  state.standard.conditions[1] = {true, 7.2, 3.6};
  state.standard.wavelengths = {500, 700};
  SampleConditions taken{{{}, 250, 8, 4}, DefaultReferenceSetting()};
  taken.reference.kind = DispersionKind::kFixedValue;
  state.Slot(1)->taken = state.Slot(2)->taken = taken;
  state.envFileName = QStringLiteral("C:\\顧客\\甲.env");
  request.content = ReportContent::kGraph;
  const auto expect = [](const QString& all, std::initializer_list<const char*> texts) {
    for (const char* text : texts) {
      EXPECT_TRUE(all.contains(QString::fromUtf8(text))) << text << all.toStdString();
    }
  };
  const struct {
    const char* dataFile;
    bool unsaved;
    const char* shown;
  } dataFiles[] = {{"/顧客/ﾛｯﾄ7.csv", false, "ﾃﾞｰﾀﾌｧｲﾙ ﾛｯﾄ7.csv"},
                   {"/顧客/ﾛｯﾄ7.csv", true, "ﾃﾞｰﾀﾌｧｲﾙ 未保存"},
                   {"", false, "ﾃﾞｰﾀﾌｧｲﾙ 未保存"}};
  for (const auto& c : dataFiles) {
    state.currentDataFileName = QString::fromUtf8(c.dataFile);
    request.unsaved = c.unsaved;
    const QString all = Pages().join(QString());
    expect(all, {c.shown, "環境ﾌｧｲﾙ 甲.env", "測定条件 250 ms × 8回", "ﾘﾌｧﾚﾝｽ 固定値 4.0 %",
                 "波長 [nm] 500 700", "上限 [%] 7.6 7.2", "下限 [%] 3.4 3.6"});
    EXPECT_FALSE(all.contains(QStringLiteral("顧客")));
    EXPECT_GE(all.count(u'Q'), name.size()) << "whole at least once";
  }
  // Whatever is set now, a slot says what it was measured under.
  state.Slot(2)->taken->frame.averagingCount = 1;
  state.Slot(2)->taken->reference.kind = DispersionKind::kIndexFile;
  state.Slot(2)->taken->reference.indexFileName = QStringLiteral("/顧客/BK7.ref");
  expect(Pages().join(QString()),
         {"測定条件 ﾃﾞｰﾀごと", "250 ms × 8回 固定値 4.0 %", "2 A-002 250 ms × 1回 BK7.ref"});
  state.Slot(2)->taken.reset();
  expect(Pages().join(QString()), {"2 A-002 - -"});
}

TEST_F(Printing, TheDiagramIsPrintedWhenItIsChosen) {
  Fill(1);
  request.content = ReportContent::kGraph;
  for (const bool chosen : {false, true}) {
    dialogs.save = SaveChoice{files.Path("図.pdf")};
    PrintDlg dialog(state, 1, request, printer, messages);
    Child<QAbstractButton>(dialog, "ReportDiagram").setChecked(chosen);
    Click(dialog, "OK");
    const QString all = test::PdfPages(files.Path("図.pdf")).join(QString());
    EXPECT_EQ(all.contains(QStringLiteral("560")), chosen) << "a wavelength of the locus";
    EXPECT_EQ(dialogs.proposed, "A-001.pdf");
    messages.answers = {MessageResult::kYes};
  }
}

// Both observers see an even 20 % at the white point, with L* 116 cbrt(0.2) - 16.
TEST_F(Printing, TheCieColoursStandInATableOfTheirOwn) {
  state.colour = {4, false, 440, 840};
  state.Slot(2)->valid = true;
  state.Slot(2)->reflectance = test::Flat(20.0);
  EvaluateAgain(state);
  request.content = ReportContent::kGraph;
  const QString caption =
      QStringLiteral("CIE測色値 (D65 / 10°、Rv は D65 / 2°、440 nm より下は外挿)");
  const QString row =
      QStringLiteral("20.0 21.465 0.3138 0.3310 51.84 0.0000 0.0000 0.000 - 20.0 0.000");
  const QString own = QStringLiteral("測定値 (装置固有)");
  for (const bool chosen : {false, true}) {
    request.cie = chosen;
    const QString all = Pages().join(QString());
    for (const QString& text : {caption, row, own}) {
      EXPECT_EQ(all.contains(text), chosen) << text.toStdString() << '\n' << all.toStdString();
    }
    dialogs.save = SaveChoice{files.Path("図.pdf")};
    request.diagram = true;
    PrintDlg dialog(state, 2, request, printer, messages);
    EXPECT_EQ(Child<QAbstractButton>(dialog, "ReportCie").isChecked(), chosen);
    Click(dialog, "ReportCie");
    Click(dialog, "OK");
    EXPECT_EQ(request.cie, !chosen);
    const QString printed = test::PdfPages(files.Path("図.pdf")).join(QString());
    EXPECT_EQ(printed.count(QStringLiteral("560")), chosen ? 1 : 2) << "a diagram for each";
    messages.answers = {MessageResult::kYes};
  }
}

TEST_F(Printing, FilesAreProposedAfterTheDataFileOrTheSampleAndTheDay) {
  EXPECT_EQ(ProposedName(state), QString());
  Fill(3);
  state.Slot(1)->info.sampleNumber = QStringLiteral("A/1: \"x\"");
  EXPECT_EQ(ProposedName(state), QStringLiteral("A1 x"));
  state.Slot(3)->info.measuredAt = QDateTime({2026, 3, 8}, {7, 5, 3});
  state.Slot(2)->info.measuredAt = QDateTime({2026, 3, 9}, {7, 5, 3});
  EXPECT_EQ(ProposedName(state), QStringLiteral("A1 x_20260309"));
  state.currentDataFileName = QStringLiteral("/データ/ﾛｯﾄ.7.csv");
  EXPECT_EQ(ProposedName(state), QStringLiteral("ﾛｯﾄ.7_20260309"));
  EXPECT_EQ(ProposedName(state, QStringLiteral("x-y")), QStringLiteral("x-y_20260309"));
}

TEST_F(Printing, EveryWavelengthIsPrintedOnce) {
  request.content = ReportContent::kText;
  for (const int count : {1, 3, 10}) {
    state.ClearSlots();
    Fill(count);
    for (const int stepNm : {1, 10}) {
      request.stepNm = stepNm;
      const QString all = Pages().join(QString());
      for (int nm = 440; nm <= 840; nm += stepNm) {
        const QString cell =
            QStringLiteral("%1 %2").arg(nm).arg(1.0 + (nm - 440) / 1000.0, 0, 'f', 3);
        EXPECT_EQ(all.count(cell), 1) << count << " slots, " << cell.toStdString();
      }
    }
  }
}

TEST_F(Printing, NothingLeavesThePaper) {
  Fill(10);
  state.Slot(7)->info.remark1 = QString(200, u'長');
  request.title = QString(100, u'題');
  const PrintSettings papers[] = {{{}, QPageSize::A4, false, {15, 15, 15, 15}},
                                  {{}, QPageSize::A4, true, {0, 0, 0, 0}},
                                  {{}, QPageSize::A5, true, {20, 20, 20, 20}},
                                  {{}, QPageSize::A3, false, {5, 50, 5, 50}}};
  for (const PrintSettings& paper : papers) {
    settings = paper;
    const QPageLayout layout = PageLayoutOf(paper);
    const QRectF whole = layout.fullRect();
    const QRectF inner = layout.paintRect();
    const QRectF allowed = QRectF(inner.left() / whole.width(), inner.top() / whole.height(),
                                  inner.width() / whole.width(), inner.height() / whole.height())
                               .adjusted(-0.002, -0.002, 0.002, 0.002);
    EXPECT_GE(Pages().size(), 1);
    for (const std::vector<QRectF>& words : test::PdfWordPlaces(Path())) {
      for (const QRectF& word : words) {
        EXPECT_TRUE(allowed.contains(word))
            << PrintSettingsText(paper).toStdString() << ": " << word.x() << ' ' << word.y() << ' '
            << word.right() << ' ' << word.bottom();
      }
    }
  }
}

TEST_F(Printing, NoWordOfATableStandsOnAnother) {
  Fill(10);
  request.content = ReportContent::kText;
  request.cie = true;
  Pages();
  for (const std::vector<QRectF>& words : test::PdfWordPlaces(Path())) {
    for (auto word = words.begin(); word != words.end(); ++word) {
      // The box of a word is higher than its letters.
      const double slack = 0.2 * word->height();
      const QRectF letters = word->adjusted(0.0, slack, 0.0, -slack);
      EXPECT_TRUE(
          std::none_of(words.begin(), word,
                       [&letters](const QRectF& other) { return other.intersects(letters); }))
          << letters.x() << ' ' << letters.y();
    }
  }
}

TEST_F(Printing, DialogPrintsIntoAFileAndRemembersWhatWasPrinted) {
  PrintSlots(state, 2, request, printer, messages, nullptr);
  EXPECT_EQ(messages.Take(), (Shown{{Message::kNoValidData}}));
  Fill(2);
  PrintDlg dialog(state, 2, request, printer, messages);
  dialog.show();
  auto& copies = Child<QSpinBox>(dialog, "Copies");
  for (const auto& [typed, taken] : {std::pair{0, 1}, {1, 1}, {99, 99}, {100, 99}}) {
    copies.setValue(typed);
    EXPECT_EQ(copies.value(), taken);
  }
  EXPECT_FALSE(copies.isEnabled()) << "of a file there is one";
  auto& print = Child<QAbstractButton>(dialog, "OK");
  Child<QLineEdit>(dialog, "Title").setText(QStringLiteral("ロット12"));
  Click(dialog, "Slots1");
  print.click();
  EXPECT_TRUE(dialog.isVisible()) << "no file was named";
  EXPECT_EQ(request.title, QStringLiteral("反射防止膜検査"));

  dialogs.save = SaveChoice{files.Path("missing/x"), 1};
  print.click();
  EXPECT_EQ(messages.Take().size(), 1U) << "cannot be written";
  dialogs.save = SaveChoice{files.Write("報告.pdf", "old"), 1};
  messages.answers = {MessageResult::kNo};
  print.click();
  EXPECT_EQ(files.Read("報告.pdf"), "old");
  EXPECT_TRUE(dialog.isVisible());

  dialogs.save = SaveChoice{files.Path("報告"), 1};
  print.click();
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(request.title, QStringLiteral("ロット12"));
  EXPECT_EQ(request.slot, 2);
  const QString text = test::PdfPages(Path()).join(QString());
  EXPECT_TRUE(text.contains(QStringLiteral("ロット12")));
  EXPECT_FALSE(text.contains(QStringLiteral("A-001")));
}

TEST_F(Printing, SettingsStayForTheNextRun) {
  PrintSetupDlg dialog(printer, messages);
  dialog.show();
  auto& left = Child<QLineEdit>(dialog, "Left");
  for (const char* refused : {"", "51", "-1"}) {
    left.setText(QLatin1String(refused));
    Click(dialog, "OK");
    EXPECT_EQ(messages.Take().size(), 1U) << refused;
    EXPECT_FALSE(files.Has("vexa.prt"));
  }
  auto& paper = Child<QComboBox>(dialog, "Paper");
  paper.setCurrentIndex(paper.findText(QStringLiteral("A5")));
  left.setText(QStringLiteral("50"));
  Click(dialog, "OK");
  EXPECT_EQ(messages.Take().size(), 1U) << "98 mm are left of the width";
  left.setText(QStringLiteral("12.5"));
  Click(dialog, "Landscape");
  paper.setCurrentIndex(paper.findText(QStringLiteral("A3")));
  Click(dialog, "OK");
  EXPECT_FALSE(dialog.isVisible());
  const PrintSettings chosen{{}, QPageSize::A3, true, {12.5, 15.0, 15.0, 15.0}};
  EXPECT_EQ(CurrentPrinter(state, messages, dialogs).Settings(), chosen);

  const QByteArray good = files.Read("vexa.prt");
  for (const QByteArray& bad :
       {QByteArray(), good.left(good.size() / 2), QByteArray(good).replace("A3", "A9"),
        QByteArray(good).replace("12.5", "1E9")}) {
    files.Write("vexa.prt", bad);
    EXPECT_EQ(CurrentPrinter(state, messages, dialogs).Settings(), PrintSettings())
        << bad.constData();
  }
}

TEST_F(Printing, AMissingPrinterIsToldAndStaysChosen) {
  settings.printerName = QStringLiteral("倉庫の印刷機");
  printer.SetSettings(settings);
  Fill(1);
  EXPECT_FALSE(QCoro::waitFor(printer.Print(request.title, MakeReport(state, request))));
  EXPECT_EQ(messages.Take(), (Shown{{Message::kPrinterMissing, {QStringLiteral("倉庫の印刷機")}}}));
  PrintSetupDlg dialog(printer, messages);
  EXPECT_EQ(Child<QComboBox>(dialog, "Printer").currentText(), settings.printerName);
}

TEST_F(Printing, PreviewTurnsThePages) {
  Fill(10);
  request.stepNm = 1;
  PrintPreview preview(settings, MakeReport(state, request));
  preview.show();
  auto& place = Child<QLabel>(preview, "Place");
  EXPECT_TRUE(QTest::qWaitFor([&place] { return place.text().startsWith(u"1 / "); }));
  const int count = place.text().mid(4).toInt();
  EXPECT_EQ(count, Pages().size());
  EXPECT_FALSE(Child<QAbstractButton>(preview, "Back").isEnabled());
  for (int page = 1; page < count; ++page) {
    Click(preview, "Next");
  }
  EXPECT_EQ(place.text(), QStringLiteral("%1 / %1").arg(count));
  EXPECT_FALSE(Child<QAbstractButton>(preview, "Next").isEnabled());
}

}  // namespace
}  // namespace vexa
