// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/stock_file.h"

#include "base/file_kind.h"
#include "base/number_text.h"
#include "base/text_file.h"

namespace vexa {
namespace {

const QString kPattern = QStringLiteral("0.000000");

QString FlagWord(Flag flag) {
  return flag ? QStringLiteral("True") : QStringLiteral("False");
}

void ReadPoints(TextReader& reader, int count, ColourStock& stock) {
  for (int i = 0; i < count; ++i) {
    const auto index = static_cast<std::size_t>(i);
    stock.P1[index] = reader.RealField();
    stock.P2[index] = reader.RealField();
    stock.P3[index] = reader.RealField();
    ++stock.Count;
  }
}

}  // namespace

ReadResult<ColourStock> ReadStockFile(const QString& path) {
  return TryRead([&path] {
    TextReader reader = TextReader::Open(path);
    const QString header = reader.Line();
    if (header != file_kind::kStock.header && header != file_kind::kOlderStock.header) {
      throw reader.Fault(FileFaultKind::kVersion);
    }
    ColourStock stock;
    stock.StockMode = reader.BooleanField();
    stock.StockIlluminant = reader.IntegerField();
    stock.StockObserver = reader.BooleanField();
    const std::int16_t count = reader.IntegerField();
    if (count < 0 || count > ColourStock::kCapacity) {
      throw reader.Fault(FileFaultKind::kRange);
    }
    ReadPoints(reader, count, stock);
    return stock;
  });
}

WriteResult WriteStockFile(const QString& path, const ColourStock& stock) {
  FileText text;
  text.Line(file_kind::kStock.header.toString())
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

MessageCall StockMessage(const FileFault& fault) {
  return {Message::kStockReadError, {file_kind::kStock.header.toString()}, FaultText(fault)};
}

}  // namespace vexa
