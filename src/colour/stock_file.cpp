// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/stock_file.h"

#include "base/number_text.h"
#include "base/text_file.h"

namespace vexa {
namespace {

const QString kHeader = QStringLiteral("VEXA-KT 440-840 Ver3.21 Stock File");
const QString kOlderHeader = QStringLiteral("VEXA-KT 440-840 Ver3.00 Stock File");
const QString kPattern = QStringLiteral("0.000000");

QString FlagWord(Flag flag) {
  return flag ? QStringLiteral("True") : QStringLiteral("False");
}

void ReadPoints(TextReader& reader, int count, ColourStock& stock) {
  stock.RemoveAll();
  for (int i = 0; i < count; ++i) {
    const double first = reader.RealField();
    const double second = reader.RealField();
    const double third = reader.RealField();
    const auto index = static_cast<std::size_t>(i);
    stock.P1[index] = first;
    stock.P2[index] = second;
    stock.P3[index] = third;
    ++stock.Count;
  }
}

}  // namespace

bool ReadStockFile(const QString& path, ColourStock& stock) {
  try {
    TextReader reader = TextReader::Open(path);
    const QString header = reader.Line();
    if (header != kHeader && header != kOlderHeader) {
      return false;
    }
    stock.StockMode = reader.BooleanField();
    stock.StockIlluminant = reader.IntegerField();
    stock.StockObserver = reader.BooleanField();
    const std::int16_t count = reader.IntegerField();
    if (count < 0 || count > ColourStock::kCapacity) {
      return false;
    }
    ReadPoints(reader, count, stock);
    return true;
  } catch (const ReadFault&) {
    return false;
  }
}

bool WriteStockFile(const QString& path, const ColourStock& stock) {
  FileText text;
  text.Line(kHeader)
      .Line(FlagWord(stock.StockMode))
      .Number(stock.StockIlluminant)
      .Line(FlagWord(stock.StockObserver))
      .Number(stock.Count);
  for (std::size_t i = 0; i < static_cast<std::size_t>(stock.Count); ++i) {
    text.Line(FormatNumber(stock.P1[i], kPattern) + u',' + FormatNumber(stock.P2[i], kPattern) +
              u',' + FormatNumber(stock.P3[i], kPattern));
  }
  return text.WriteTo(path);
}

QString StockReadErrorText() {
  return QStringLiteral("ﾃﾞｰﾀ･ﾌｧｲﾙの読み込みでエラーが発生しました。\r\r") + kHeader +
         QStringLiteral("ﾌｧｲﾙではありません\r\rﾌｧｲﾙを確認してください。");
}

}  // namespace vexa
