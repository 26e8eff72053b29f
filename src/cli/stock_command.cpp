// SPDX-License-Identifier: GPL-3.0-or-later
#include <array>

#include "base/number_text.h"
#include "base/translation.h"
#include "cli/command_line.h"
#include "cli/console.h"
#include "cli/program_settings.h"
#include "colour/stock_file.h"

namespace vexa::cli {
namespace {

void DeclareOptions(QCommandLineParser& parser) {
  parser.addPositionalArgument(QStringLiteral("FILE"), Text::tr("累積ファイル (*.stc)。"));
  parser.addOption({option::kOut, Text::tr("点をこのバージョンの累積ファイルに書き込みます。"),
                    QStringLiteral("FILE")});
}

void PrintStockJson(const ColourStock& stock, bool read) {
  QJsonArray points;
  for (std::size_t i = 0; i < static_cast<std::size_t>(stock.Count); ++i) {
    points.append(ToJson(std::array{stock.P1[i], stock.P2[i], stock.P3[i]}));
  }
  PrintJson({{QStringLiteral("read"), read},
             {QStringLiteral("mode"), static_cast<bool>(stock.StockMode)},
             {QStringLiteral("illuminant"), stock.StockIlluminant},
             {QStringLiteral("observer"), static_cast<bool>(stock.StockObserver)},
             {QStringLiteral("points"), points}});
}

void PrintStockText(const ColourStock& stock) {
  const auto row = [](const QString& first, const QString& p1, const QString& p2,
                      const QString& p3) {
    Print(QStringLiteral("%1 %2 %3 %4\n").arg(first, 10).arg(p1, 12).arg(p2, 12).arg(p3, 12));
  };
  Print(
      QStringLiteral("%1 %2\n").arg(QStringLiteral("illuminant"), -12).arg(stock.StockIlluminant));
  Print(QStringLiteral("%1 %2\n")
            .arg(QStringLiteral("observer"), -12)
            .arg(stock.StockObserver ? 2 : 10));
  const QStringList names =
      (stock.StockMode ? QStringLiteral("x y Y") : QStringLiteral("a* b* L*")).split(u' ');
  row(QStringLiteral("point"), names[0], names[1], names[2]);
  for (std::size_t i = 0; i < static_cast<std::size_t>(stock.Count); ++i) {
    const auto text = [](double value) { return FormatNumber(value, u"0.000000"); };
    row(QString::number(i + 1), text(stock.P1[i]), text(stock.P2[i]), text(stock.P3[i]));
  }
}

int Stock(const QCommandLineParser& parser) {
  ConsoleMessages messages(parser.isSet(option::kNo));
  const ReadResult<ColourStock> result = ReadStockFile(parser.positionalArguments().front());
  const bool read = static_cast<bool>(result);
  if (!read) {
    messages.Tell(StockMessage(result.Fault()));
  }
  const ColourStock stock = read ? *result : ColourStock();
  if (parser.isSet(option::kJson)) {
    PrintStockJson(stock, read);
  } else if (read) {
    PrintStockText(stock);
  }
  if (!read) {
    return kFailed;
  }
  if (parser.isSet(option::kOut)) {
    const QString out = parser.value(option::kOut);
    if (!ComplainUnwritten(WriteStockFile(out, stock), out)) {
      return kFailed;
    }
  }
  return kDone;
}

}  // namespace

Command StockCommand() {
  return {QStringLiteral("stock"),
          QStringLiteral("FILE [options]"),
          Text::tr("累積ファイルに累積された色の点を表示します。"),
          1,
          DeclareOptions,
          Stock};
}

}  // namespace vexa::cli
