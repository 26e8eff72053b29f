// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/data_file.h"

#include <gtest/gtest.h>

#include "files/add_data_file.h"
#include "measurement/evaluation.h"
#include "support/prepared_answers.h"
#include "support/temporary_files.h"

namespace vexa {
namespace {

using test::ShownMessage;

const ShownMessage kReadError{Message::kDataReadError,
                              {QStringLiteral("VEXA-KT 440-840 Ver 3.21 Data File")}};
const ShownMessage kOldVersion{Message::kOldDataVersion};

ShownMessage Erase(const char* count) {
  return {Message::kEraseSlots, {QString::fromUtf8(count)}};
}

// 401 lines of the text that `line` makes of a wavelength.
template <typename Line>
QByteArray Rows(Line line) {
  QByteArray rows;
  for (int nm = 440; nm <= 840; ++nm) {
    rows += line(nm) + "\r\n";
  }
  return rows;
}

// Slot 1 is 12.3456789012346 everywhere, slot 2 the wavelength, the rest 0.
QByteArray CsvText(const QByteArray& version = "3.21") {
  return "VEXA-KT 440-840 Ver " + version + " Data File\r\nwave,A-1,\x95\x5c,,,,,,,,\r\n" +
         Rows([](int nm) {
           const QByteArray number = QByteArray::number(nm);
           return " " + number + ",12.345678901234600," + number + ".000000000000000" +
                  QByteArray(",0.000000000000000").repeated(8);
         });
}

QByteArray DatText(const QByteArray& header, const QByteArray& count, int blocks) {
  QByteArray text = header + "\r\n\x95\x5c\r\n" + count + "\r\n";
  for (int slot = 1; slot <= blocks; ++slot) {
    text += "S" + QByteArray::number(slot) + "\r\n" + Rows([slot](int nm) {
              return QByteArray(slot == 1 && nm == 441 ? "0.500000000000000"
                                : slot == 2            ? "7.000000000000000"
                                                       : "0.000000000000000");
            });
  }
  return text;
}

const QByteArray kHeader = "VEXA-KT 440-840 Ver 3.21 Data File";

class DataFile : public testing::Test {
 protected:
  // Asks and tells as the open command does, and stores over the present slots.
  bool Load(const ReadResult<DataFileContent>& content) {
    if (!content) {
      messages.Tell(DataFileMessage(content.Fault()));
      return false;
    }
    const std::optional<MessageCall> question = StoreQuestion(*content);
    if (question && QCoro::waitFor(messages.Ask(*question)) != MessageResult::kOk) {
      return false;
    }
    state.measurementSlots = SlotsWith(*content, state.measurementSlots);
    state.dataFileComment = content->comment;
    EvaluateAgain(state);
    return true;
  }

  test::TemporaryFiles files;
  test::PreparedAnswers messages;
  VEXATYPE state;
};

TEST_F(DataFile, CsvGoesRoundUnchanged) {
  EXPECT_TRUE(Load(ReadDataFile(files.Write("a.csv", CsvText()))));
  EXPECT_EQ(state.Slot(1)->reflectance[840], 12.3456789012346);
  EXPECT_EQ(state.Slot(2)->reflectance[555], 555.0);
  EXPECT_EQ(state.Slot(2)->info.sampleNumber, QStringLiteral("表"));
  EXPECT_TRUE(state.Slot(2)->valid);
  EXPECT_FALSE(state.Slot(3)->valid);
  EXPECT_NEAR(state.Slot(1)->colour.Rm, 12.3456789012346, 1e-12) << "a loaded slot is evaluated";
  EXPECT_TRUE(messages.Take().empty());
  EXPECT_TRUE(WriteDataFile(files.Path("b.csv"), DataFileLayout::kCsv, state));
  EXPECT_EQ(files.Read("b.csv").toStdString(), CsvText().toStdString());
}

TEST_F(DataFile, CsvLayouts) {
  const auto rowsOf = [](const QByteArray& row) { return Rows([&row](int) { return row; }); };
  struct Case {
    const char* name;
    QByteArray bytes;
    double first;    ///< slot 1 at 500 nm
    unsigned valid;  ///< bit k - 1 for slot k
  };
  const QByteArray head = kHeader + "\r\n";
  const Case cases[] = {
      {"quotes, blanks and LF alone",
       QByteArray(head + "\"wave\" , a , \"b,c\" ,,,,,,,,\r\n" +
                  rowsOf(" 1 , 2.5 , \"3\",0,0,0,0,0,0,0,0,left over"))
           .replace("\r\n", "\n"),
       2.5, 3},
      {"no wavelength column", head + "a,b,c,d,e,f,g,h,i,j\r\n" + rowsOf("1,0,0,0,0,0,0,0,0,2"), 1,
       0x201},
      {"Wave in another case shifts the columns",
       head + "Wave,b,c,d,e,f,g,h,i,j\r\n" + rowsOf("440,5,0,0,0,0,0,0,0,0"), 440, 3},
      {"one comma too many in line 2",
       head + "wave,a,,,,,,,,,,\r\n" + rowsOf("440,6,0,0,0,0,0,0,0,0,0"), 6, 1},
      {"a comma in a quoted sample number, written without its quotes",
       head + "wave,b,x,,,,,,,,,\r\n" + rowsOf("440,7,0,0,0,0,0,0,0,0,0"), 7, 1},
      {"Wave and eleven fields",
       head + "Wave,b,c,d,e,f,g,h,i,j,k\r\n" + rowsOf("440,5,0,0,0,0,0,0,0,0,0"), 440, 3},
      {"texts read as their leading number",
       head + "a,,,,,,,,,\r\n" + rowsOf("1.5e1x,x,,+2,0,0,0,0,0,0"), 15, 9},
      {"zero at 440, 450 and 840 alone is empty",
       head + "a,,,,,,,,,\r\n" + Rows([](int nm) {
         return QByteArray(nm == 440 || nm == 450 || nm == 840 ? "0,0,0,0,0,0,0,0,0,0"
                                                               : "3,0,0,0,0,0,0,0,0,0");
       }),
       3, 0},
      {"version 2.99", CsvText("2.99"), 12.3456789012346, 3},
      {"version 3.00", CsvText("3.00"), 12.3456789012346, 3},
  };
  for (const Case& c : cases) {
    state.Slot(7)->info.remark1 = QStringLiteral("old");
    ASSERT_TRUE(Load(ReadCsvDataFile(files.Write("a.csv", c.bytes)))) << c.name;
    EXPECT_EQ(state.Slot(1)->reflectance[500], c.first) << c.name;
    for (int slot = 1; slot <= kSlotCount; ++slot) {
      EXPECT_EQ(bool{state.Slot(slot)->valid}, ((c.valid >> (slot - 1)) & 1U) != 0)
          << c.name << slot;
    }
    EXPECT_EQ(state.Slot(7)->info.remark1, QString()) << c.name;
  }
}

TEST_F(DataFile, BlocksGoRoundAndFiveStopAtSlotFive) {
  EXPECT_TRUE(Load(ReadDataFile(files.Write("a.DAT", DatText(kHeader, " 2", 10)))));
  EXPECT_EQ(messages.Take(), std::vector{Erase(" 2")});
  EXPECT_TRUE(state.Slot(1)->valid) << "a single value that is not 0";
  EXPECT_EQ(state.Slot(1)->reflectance[441], 0.5);
  EXPECT_EQ(state.Slot(2)->colour.Rm, 7.0);
  EXPECT_EQ(state.dataFileComment, QStringLiteral("表"));
  for (int slot = 1; slot <= kSlotCount; ++slot) {
    state.Slot(slot)->info.sampleNumber = QStringLiteral("S%1").arg(slot);
  }
  state.Slot(1)->info.remark1 = QStringLiteral("表");
  EXPECT_TRUE(WriteDataFile(files.Path("b.dat"), DataFileLayout::kTenBlocks, state));
  EXPECT_EQ(files.Read("b.dat").toStdString(), DatText(kHeader, " 2", 10).toStdString());

  state.Slot(7)->valid = true;
  EXPECT_TRUE(WriteDataFile(files.Path("c.dat"), DataFileLayout::kFiveBlocks, state));
  EXPECT_EQ(files.Read("c.dat").toStdString(), DatText(kHeader, " 2", 5).toStdString());
  state.Slot(1)->valid = state.Slot(2)->valid = false;
  EXPECT_TRUE(WriteDataFile(files.Path("d.dat"), DataFileLayout::kFiveBlocks, state));
  EXPECT_TRUE(files.Read("d.dat").contains("\r\n 0\r\nS1\r\n0.000000000000000\r\n0.0"))
      << "not valid is written as 0";
}

TEST_F(DataFile, BlockVersionsAndCounts) {
  struct Case {
    QByteArray header;
    QByteArray count;
    bool read;
    std::vector<ShownMessage> shown;
  };
  const Case cases[] = {
      {"VEXA-KT 440-840 Ver 3.00 Data File", " 2", false, {kOldVersion}},
      {"VEXA-KT 440-840 Ver 3.20 Data File", " 2", false, {kOldVersion}},
      {"VEXA-KT 440-840 Ver 2.99 Data File", " 2", true, {Erase(" 2")}},
      {"VEXA-KT 440-840 Ver 3.22 Data File", "2", true, {Erase(" 2")}},
      {"VEXA for Windows ver 1.10 Data File", "2", true, {Erase(" 2")}},
      {"VEXA-KT 380-780 Ver 2.00 Data File", "2", true, {Erase(" 2")}},
      {"anything", "2", true, {Erase(" 2")}},
      {kHeader, " 0", true, {Erase(" 0")}},
      {kHeader, "11", false, {kReadError}},
      {kHeader, "-1", false, {kReadError}},
      {kHeader, " 3", false, {kReadError}},  // two blocks alone
  };
  for (const Case& c : cases) {
    EXPECT_EQ(Load(ReadDatDataFile(files.Write("a.dat", DatText(c.header, c.count, 2)))), c.read)
        << c.header.constData() << c.count.constData();
    EXPECT_EQ(messages.Take(), c.shown) << c.header.constData() << c.count.constData();
  }
}

TEST_F(DataFile, RefusedBlocksChangeNothingAndLaterSlotsStay) {
  state.Slot(1)->reflectance[500] = 1.0;
  state.Slot(2)->info.remark1 = QStringLiteral("of the former lens");
  state.Slot(3)->valid = true;
  const QString path = files.Write("a.dat", DatText(kHeader, " 2", 2));
  messages.answers = {MessageResult::kCancel};
  EXPECT_FALSE(Load(ReadDatDataFile(path)));
  EXPECT_EQ(state.Slot(1)->reflectance[500], 1.0);
  EXPECT_TRUE(Load(ReadDatDataFile(path)));
  EXPECT_EQ(state.Slot(1)->reflectance[500], 0.0);
  EXPECT_EQ(state.Slot(2)->info.remark1, QString());
  EXPECT_TRUE(state.Slot(3)->valid);
}

TEST_F(DataFile, ADefectIsToldWithItsPlaceAndChangesNothing) {
  const QByteArray good = CsvText();
  struct Case {
    const char* defect;
    QByteArray bytes;
    FileFaultKind kind;
    int line;
    int field;
  };
  using enum FileFaultKind;
  const Case cases[] = {
      {"empty", "", kEnd, 1, 0},
      {"version 2.98", CsvText("2.98"), kVersion, 1, 0},
      {"another kind", QByteArray(good).replace("Data File", "Stock File"), kVersion, 1, 0},
      {"ten fields with the wavelength column", QByteArray(good).replace(",,,,,,,,", ",,,,,,,"),
       kFields, 2, 0},
      {"one row short", good.left(good.indexOf(" 840,")), kEnd, 403, 0},
      {"a row with too few fields", QByteArray(good).replace(" 700,12.345678901234600,", "700,"),
       kFields, 263, 0},
      {"a number out of range", QByteArray(good).replace("700.000000000000000", "1E999"), kValue,
       263, 3},
      {"binary", QByteArray("\x00\xff\x81\x00,\"\n\r", 8), kVersion, 1, 0},
  };
  state.Slot(1)->valid = true;
  state.Slot(1)->reflectance[500] = 1.0;
  for (const Case& c : cases) {
    const auto content = ReadCsvDataFile(files.Write("a.csv", c.bytes));
    ASSERT_FALSE(content) << c.defect;
    EXPECT_EQ(content.Fault().kind, c.kind) << c.defect;
    EXPECT_EQ(content.Fault().line, c.line) << c.defect;
    EXPECT_EQ(content.Fault().field, c.field) << c.defect;
    EXPECT_FALSE(Load(content));
    EXPECT_EQ(messages.Take(), std::vector{kReadError}) << c.defect;
  }
  EXPECT_FALSE(Load(ReadCsvDataFile(files.Path("missing.csv"))));
  EXPECT_FALSE(Load(ReadDatDataFile(files.Directory())));
  EXPECT_EQ(messages.Take(), (std::vector{kReadError, kReadError}));
  EXPECT_TRUE(state.Slot(1)->valid);
  EXPECT_EQ(state.Slot(1)->reflectance[500], 1.0);
}

TEST_F(DataFile, AdditionalDataHasItsOwnForm) {
  ASSERT_TRUE(Load(ReadCsvDataFile(files.Write("a.csv", CsvText()))));
  for (MeasurementSlot& slot : state.measurementSlots) {
    slot.colour = {
        .L = 50.5, .a = -1.25, .b = 2, .x = 0.25, .y = 0.5, .C = 3, .h = 90, .Rm = 4, .Y = 5};
  }
  state.Slot(1)->info.remark1 = QStringLiteral("表");
  state.Slot(2)->info.measuredAt = QDateTime({2026, 3, 9}, {7, 5, 3});
  state.Slot(3)->info.measuredAt = QDateTime({2026, 3, 9}, {0, 0});
  EXPECT_TRUE(WriteAddDataFile(files.Path("a.add"), state));
  const auto padded = [](const char* value) {
    return QByteArray(",").append(value).repeated(9) + "\r\n";
  };
  EXPECT_EQ(files.Read("a.add").toStdString(),
            ("VEXA-KT 440-840 Ver3.21 AddData File\r\n"
             "\x8c\xf5\x8c\xb9: "
             "1(1:A,2:B,3:C,4:D65\x81\x6a,\x8e\x8b\x96\xec:True(True:2\x93x\x8e\x8b\x96\xec,"
             "False:10\x93x\x8e\x8b\x96\xec)\r\n"
             "L*, 50.5" +
             padded("50.500000000000000") + "a*,-1.25" + padded("-1.250000000000000") + "b*, 2" +
             padded("2.000000000000000") + "x, 0.25" + padded("0.250000000000000") + "y, 0.5" +
             padded("0.500000000000000") + "\x90\x46\x91\x8a\x8ap, 90" +
             padded("90.000000000000000") + "\x83N\x83\x8d\x83}, 3" + padded("3.000000000000000") +
             "\x95\xbd\x8b\xcf\x94\xbd\x8e\xcb\x97\xa6, 4" + padded("4.000000000000000") +
             "\x8e\x8b\x8a\xb4\x94\xbd\x8e\xcb\x97\xa6, 5" + padded("5.000000000000000") +
             "\x8e\x8e\x97\xbfNo,A-1,\x95\\,,,,,,,,\r\n\x94\xf5\x8dl1,\x95\\,,,,,,,,,"
             "\r\n\x94\xf5\x8dl2,,,,,,,,,,\r\n"
             "\x91\xaa\x92\xe8\x93\xfa,0:00:00,2026/3/9 7:05:03,2026/3/9" +
             QByteArray(",0:00:00").repeated(7) + "\r\n")
                .toStdString());

  const ReadResult<SampleInfos> infos = ReadAddDataFile(files.Path("a.add"));
  ASSERT_TRUE(infos);
  for (int slot = 1; slot <= kSlotCount; ++slot) {
    EXPECT_EQ(infos->at(static_cast<std::size_t>(slot) - 1), state.Slot(slot)->info) << slot;
  }
  struct Case {
    const char* from;
    const char* to;
    int line;  ///< of the fault; 0 for none
    int field = 0;
  };
  const Case cases[] = {
      {"Ver3.21", "Ver2.99", 0},
      {"Ver3.21", "Ver2.98", 1},
      {"2026/3/9 7:05:03", "soon", 15, 3},
  };
  for (const Case& c : cases) {
    const auto read =
        ReadAddDataFile(files.Write("b.add", files.Read("a.add").replace(c.from, c.to)));
    ASSERT_EQ(static_cast<bool>(read), c.line == 0) << c.to;
    if (!read) {
      EXPECT_EQ(read.Fault().line, c.line) << c.to;
      EXPECT_EQ(read.Fault().field, c.field) << c.to;
    }
  }
}

}  // namespace
}  // namespace vexa
