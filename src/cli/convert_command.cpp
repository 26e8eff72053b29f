// SPDX-License-Identifier: GPL-3.0-or-later
#include <QDir>
#include <QFileInfo>

#include "base/translation.h"
#include "cli/command_line.h"
#include "cli/console.h"
#include "cli/program_settings.h"
#include "files/data_file.h"

namespace vexa::cli {
namespace {

const QString kLayout = QStringLiteral("layout");

void DeclareOptions(QCommandLineParser& parser) {
  parser.addPositionalArgument(QStringLiteral("IN"),
                               Text::tr("読み込むデータファイル（複数可）。"));
  parser.addPositionalArgument(QStringLiteral("OUT"),
                               Text::tr("書き込むデータファイル。複数のときはディレクトリ。"));
  parser.addOption(
      {kLayout,
       Text::tr("1: csv、2: 10ブロックの dat、3: 5ブロックの dat（省略時：OUT の拡張子による）。"),
       QStringLiteral("1|2|3")});
}

// Nothing is asked: no slot is lost.
bool ConvertFile(const QString& in, const QString& out, DataFileLayout layout,
                 MessageService& messages) {
  const ReadResult<DataFileContent> content = ReadDataFile(in);
  if (!content) {
    messages.Tell(DataFileMessage(content.Fault()));
    Complain(Text::tr("%1：読み込めません").arg(in));
    return false;
  }
  Session session({});
  (void)session.LoadSlots(SlotsWith(*content, {}), in, content->comment);
  return ComplainUnwritten(WriteDataFile(out, layout, session.State()), out);
}

int Convert(const QCommandLineParser& parser) {
  QStringList files = parser.positionalArguments();
  const QString out = files.takeLast();
  const bool intoDirectory = QFileInfo(out).isDir();
  if (files.size() > 1 && !intoDirectory) {
    Complain(Text::tr("%1：複数のファイルの出力先はフォルダです").arg(out));
    return kUsageError;
  }
  const std::optional<int> number =
      IntegerOption(parser, kLayout, static_cast<int>(LayoutByEnding(out)), 1, 3);
  if (!number) {
    return kUsageError;
  }
  const auto layout = static_cast<DataFileLayout>(*number);
  const QString ending =
      layout == DataFileLayout::kCsv ? QStringLiteral(".csv") : QStringLiteral(".dat");
  ConsoleMessages messages(parser.isSet(option::kNo));
  int written = 0;
  for (const QString& in : files) {
    const QString path =
        intoDirectory ? QDir(out).filePath(QFileInfo(in).completeBaseName() + ending) : out;
    written += ConvertFile(in, path, layout, messages) ? 1 : 0;
  }
  if (parser.isSet(option::kJson)) {
    PrintJson({{QStringLiteral("out"), out},
               {QStringLiteral("layout"), *number},
               {QStringLiteral("written"), written}});
  }
  return written == files.size() ? kDone : kFailed;
}

}  // namespace

Command ConvertCommand() {
  return {QStringLiteral("convert"),
          QStringLiteral("IN OUT [--layout 1|2|3] | IN... DIRECTORY [--layout 1|2|3]"),
          Text::tr("データファイルを読み込み、別の形式で書き込みます。"),
          -2,
          DeclareOptions,
          Convert};
}

}  // namespace vexa::cli
