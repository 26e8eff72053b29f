// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/command_line.h"
#include "cli/console.h"
#include "cli/program_settings.h"
#include "files/data_file.h"

namespace vexa::cli {
namespace {

const QString kLayout = QStringLiteral("layout");

void DeclareOptions(QCommandLineParser& parser) {
  parser.addPositionalArgument(QStringLiteral("IN"), QStringLiteral("Data file to read."));
  parser.addPositionalArgument(QStringLiteral("OUT"), QStringLiteral("Data file to write."));
  parser.addOption({kLayout,
                    QStringLiteral("1 csv, 2 dat with ten blocks, 3 dat with five (default: by the "
                                   "ending of OUT)."),
                    QStringLiteral("1|2|3")});
}

int Convert(const QCommandLineParser& parser) {
  const QString in = parser.positionalArguments().front();
  const QString out = parser.positionalArguments().back();
  const bool dat = out.endsWith(QLatin1String("dat"), Qt::CaseInsensitive);
  const std::optional<int> layout = IntegerOption(
      parser, kLayout, static_cast<int>(dat ? DataFileLayout::kTenBlocks : DataFileLayout::kCsv), 1,
      3);
  if (!layout) {
    return kUsageError;
  }
  ConsoleMessages messages(parser.isSet(option::kNo));
  VEXATYPE state;
  if (!ReadDataFile(in, state, messages)) {
    Complain(QStringLiteral("%1: not read").arg(in));
    return kFailed;
  }
  if (!WriteDataFile(out, static_cast<DataFileLayout>(*layout), state)) {
    Complain(QStringLiteral("%1: cannot be written").arg(out));
    return kFailed;
  }
  if (parser.isSet(option::kJson)) {
    PrintJson({{QStringLiteral("in"), in},
               {QStringLiteral("out"), out},
               {QStringLiteral("layout"), *layout}});
  }
  return kDone;
}

}  // namespace

Command ConvertCommand() {
  return {QStringLiteral("convert"),
          QStringLiteral("IN OUT [--layout 1|2|3]"),
          QStringLiteral("Reads a data file and writes it in another layout."),
          2,
          DeclareOptions,
          Convert};
}

}  // namespace vexa::cli
