// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/colour_stock.h"

#include <gtest/gtest.h>

#include "colour/stock_file.h"
#include "support/temporary_files.h"

namespace vexa {
namespace {

const ColourResult kColour{.L = 70.0,
                           .a = -1.5,
                           .b = 2.5,
                           .x = 0.31,
                           .y = 0.33,
                           .C = 3.0,
                           .h = 120.0,
                           .Rm = 50.0,
                           .Y = 40.75};

constexpr const char* kName = "色度 1.stc";

class StockFile : public testing::Test {
 protected:
  test::TemporaryFiles files_;
  QString path_ = files_.Path(kName);
};

TEST(ColourStock, TakesAHundredPointsAndNoMore) {
  ColourStock stock;
  for (int i = 1; i <= 99; ++i) {
    EXPECT_EQ(stock.StockAdd(kColour, true), StockAddResult::kStored) << i;
  }
  EXPECT_EQ(stock.StockAdd(kColour, false), StockAddResult::kStoredLast);
  const ColourStock full = stock;
  EXPECT_EQ(stock.StockAdd({}, true), StockAddResult::kRefused);
  EXPECT_EQ(stock, full);
  EXPECT_EQ(stock.Count, 100);
  EXPECT_EQ(stock.P1[98], 0.31);
  EXPECT_EQ(stock.P2[98], 0.33);
  EXPECT_EQ(stock.P3[98], 40.75);
  EXPECT_EQ(stock.P1[99], -1.5);
  EXPECT_EQ(stock.P2[99], 2.5);
  EXPECT_EQ(stock.P3[99], 70.0);

  stock.RemoveLast();
  EXPECT_EQ(stock.Count, 99);
  EXPECT_EQ(stock.P1[99], 0.0);
  EXPECT_EQ(stock.P3[98], 40.75);
  EXPECT_EQ(stock.StockAdd(kColour, false), StockAddResult::kStoredLast);
  stock.RemoveAll();
  EXPECT_EQ(stock, ColourStock{});
  stock.RemoveLast();
  EXPECT_EQ(stock, ColourStock{});
}

const QByteArray kGolden =
    "VEXA-KT 440-840 Ver3.21 Stock File\r\n"
    "False\r\n"
    " 4 \r\n"
    "True\r\n"
    " 2 \r\n"
    "-1.500000,2.500000,70.000000\r\n"
    "0.123457,0.000000,-0.000001\r\n";

TEST_F(StockFile, IsWrittenAndReadByteForByte) {
  ColourStock stock;
  stock.Record({false, 4, true});
  (void)stock.StockAdd(kColour, false);
  (void)stock.StockAdd({.L = -0.0000012, .a = 0.1234567, .b = 4e-7}, false);
  ASSERT_TRUE(WriteStockFile(path_, stock));
  EXPECT_EQ(files_.Read(kName), kGolden);

  for (const char* version : {"3.21", "3.00"}) {
    files_.Write(kName, QByteArray(kGolden).replace("3.21", version));
    const auto read = ReadStockFile(path_);
    ASSERT_TRUE(read) << version;
    EXPECT_EQ(read->Count, 2);
    EXPECT_EQ(read->P1[1], 0.123457);
    ASSERT_TRUE(WriteStockFile(path_, *read));
    EXPECT_EQ(files_.Read(kName), kGolden) << version;
  }
}

TEST_F(StockFile, AnEmptyStockIsAStock) {
  ColourStock stock;
  stock.Record({true, 3, false});
  EXPECT_FALSE(stock.DiffersFrom({false, 1, true})) << "no point was taken under its conditions";
  ASSERT_TRUE(WriteStockFile(path_, stock));
  EXPECT_EQ(files_.Read(kName),
            "VEXA-KT 440-840 Ver3.21 Stock File\r\nTrue\r\n 3 \r\nFalse\r\n 0 \r\n");
  const auto read = ReadStockFile(path_);
  ASSERT_TRUE(read);
  EXPECT_EQ(*read, stock);
}

TEST_F(StockFile, ABadFileIsNamedByItsDefectAndPlace) {
  struct Case {
    const char* defect;
    QByteArray bytes;
    FileFaultKind kind;
    int line;
  };
  const QByteArray head = "VEXA-KT 440-840 Ver3.21 Stock File\r\n";
  const QByteArray conditions = head + "False\r\n 4 \r\nFalse\r\n";
  const Case cases[] = {
      {"empty", "", FileFaultKind::kEnd, 1},
      {"another version", QByteArray(kGolden).replace("3.21", "3.10"), FileFaultKind::kVersion, 1},
      {"another kind", "VEXA-KT 440-840 Ver 3.21 Data File\r\nFalse\r\n", FileFaultKind::kVersion,
       1},
      {"header with a blank behind", QByteArray(kGolden).replace("File\r", "File \r"),
       FileFaultKind::kVersion, 1},
      {"not text", QByteArray("\x00\xff\x81\x40\x0a\xff", 6), FileFaultKind::kVersion, 1},
      {"header alone", head, FileFaultKind::kEnd, 2},
      {"no flag", head + "Maybe\r\n 4 \r\n", FileFaultKind::kValue, 2},
      {"text for the illuminant", head + "False\r\nD65\r\n", FileFaultKind::kValue, 3},
      {"count 101", conditions + " 101 \r\n" + QByteArray("1,2,3\r\n").repeated(101),
       FileFaultKind::kRange, 5},
      {"count -1", conditions + "-1 \r\n", FileFaultKind::kRange, 5},
      {"count beyond 16 bits", conditions + " 65537 \r\n1,2,3\r\n", FileFaultKind::kRange, 5},
      {"text for the count", conditions + "two\r\n", FileFaultKind::kValue, 5},
      {"cut before the points", conditions + " 3 \r\n", FileFaultKind::kEnd, 6},
      {"cut in the third point", conditions + " 3 \r\n1,2,3\r\n4,5,6\r\n7,8", FileFaultKind::kEnd,
       9},
      {"text in the second point", conditions + " 3 \r\n1,2,3\r\n4,x,6\r\n7,8,9\r\n",
       FileFaultKind::kValue, 7},
      {"number beyond a double", conditions + " 1 \r\n1,1E999,3\r\n", FileFaultKind::kValue, 6},
  };
  for (const Case& c : cases) {
    files_.Write(kName, c.bytes);
    const auto read = ReadStockFile(path_);
    ASSERT_FALSE(read) << c.defect;
    EXPECT_EQ(read.Fault().kind, c.kind) << c.defect;
    EXPECT_EQ(read.Fault().line, c.line) << c.defect;
  }
  EXPECT_EQ(ReadStockFile(files_.Path("none.stc")).Fault().kind, FileFaultKind::kMissing);
  EXPECT_FALSE(WriteStockFile(QStringLiteral("/nowhere/file.stc"), {}));
}

}  // namespace
}  // namespace vexa
