// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/program_settings.h"

#include <QDir>
#include <algorithm>

#include "base/number_text.h"
#include "base/translation.h"
#include "files/configuration.h"
#include "files/data_file.h"
#include "measurement/dispersion_data.h"
#include "optics/index_file.h"

namespace vexa::cli {

Settings LoadSettings(const QCommandLineParser& parser, MessageService& messages) {
  Settings settings;
  settings.programDirectory =
      parser.isSet(option::kDir) ? parser.value(option::kDir) : QDir::currentPath();
  TellAll(LoadConfiguration(settings, UnnamedEnvironment::kRead), messages);
  TellAll(LoadDispersionData(settings).notices, messages);
  return settings;
}

bool LoadDataFile(const QString& path, Session& session, MessageService& messages) {
  const ReadResult<DataFileContent> content = ReadDataFile(path);
  if (!content) {
    messages.Tell(DataFileMessage(content.Fault()));
    Complain(Text::tr("%1：読み込めません").arg(path));
    return false;
  }
  (void)session.LoadSlots(SlotsWith(*content, {}), path, content->comment);
  return true;
}

void DeclareReferenceReflectance(QCommandLineParser& parser) {
  parser.addOption(
      {option::kReferenceReflectance,
       Text::tr("リファレンスの反射率：0.1～110 %、または *.ref ファイル（省略時：環境による）。"),
       QStringLiteral("V|FILE.ref")});
}

ExitStatus TakeReferenceReflectance(const QCommandLineParser& parser, Settings& settings) {
  if (!parser.isSet(option::kReferenceReflectance)) {
    return kDone;
  }
  const QString value = parser.value(option::kReferenceReflectance);
  if (const std::optional<double> percent = ParseNumber(value)) {
    if (*percent < 0.1 || *percent > 110.0) {
      Complain(
          Text::tr("--%1 は 0.1 ～ 110 %です：\"%2\"").arg(option::kReferenceReflectance, value));
      return kUsageError;
    }
    std::ranges::fill(settings.referenceReflectance.Values(), *percent);
    return kDone;
  }
  const auto reflectance = ReadIndexFile(value);
  if (!reflectance) {
    Complain(Text::tr("%1：数値でも、読み込めるリファレンスファイルでもありません").arg(value));
    return kFailed;
  }
  settings.referenceReflectance = *reflectance;
  return kDone;
}

}  // namespace vexa::cli
