// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/analysis_settings.h"

#include <QRegularExpression>
#include <functional>

#include "base/number_text.h"
#include "base/translation.h"
#include "cli/command_line.h"
#include "cli/program_settings.h"
#include "files/configuration.h"
#include "measurement/dispersion_data.h"
#include "standards/standard_file.h"

namespace vexa::cli {
namespace {

const QString kEnv = QStringLiteral("env");
const QString kIlluminant = QStringLiteral("illuminant");
const QString kObserver = QStringLiteral("observer");
const QString kAverage = QStringLiteral("average");
const QString kThickness = QStringLiteral("thickness");
const QString kType = QStringLiteral("type");
const QString kThicknessKind = QStringLiteral("thickness-kind");
const QString kIndex = QStringLiteral("index");
const QString kSubstrate = QStringLiteral("substrate");

// Hands on the place of the option's value among the words that it takes. False, with a complaint,
// for any other word.
bool TakeWord(const QCommandLineParser& parser, const QString& name, const QStringList& words,
              const std::function<void(qsizetype)>& take) {
  if (!parser.isSet(name)) {
    return true;
  }
  const qsizetype index = words.indexOf(parser.value(name));
  if (index < 0) {
    Complain(Text::tr("--%1 は %2 のいずれかです：\"%3\"")
                 .arg(name, words.join(QStringLiteral(", ")), parser.value(name)));
    return false;
  }
  take(index);
  return true;
}

bool TakeAverage(const QCommandLineParser& parser, ColourSettings& colour) {
  if (!parser.isSet(kAverage)) {
    return true;
  }
  static const QRegularExpression kRange(QStringLiteral("^(\\d{3})-(\\d{3})$"));
  const QRegularExpressionMatch match = kRange.match(parser.value(kAverage));
  const short from = match.captured(1).toShort();
  const short to = match.captured(2).toShort();
  if (!match.hasMatch() || from > to || !ReflectanceSpectrum::Contains(from) ||
      !ReflectanceSpectrum::Contains(to)) {
    Complain(Text::tr("--%1 は 440-840 内の FROM-TO です：\"%2\"")
                 .arg(kAverage, parser.value(kAverage)));
    return false;
  }
  colour.avgFrom = from;
  colour.avgTo = to;
  return true;
}

bool TakeWords(const QCommandLineParser& parser, Settings& settings) {
  return TakeWord(
             parser, kIlluminant, QStringLiteral("A B C D65").split(u' '),
             [&](qsizetype i) { settings.colour.illuminant = static_cast<std::int16_t>(i + 1); }) &&
         TakeWord(parser, kObserver, QStringLiteral("2 10").split(u' '),
                  [&](qsizetype i) { settings.colour.observer2Deg = i == 0; }) &&
         TakeAverage(parser, settings.colour) &&
         TakeWord(parser, kType, QStringLiteral("A B C").split(u' '),
                  [&](qsizetype i) { settings.thickness.type = static_cast<std::int16_t>(i); }) &&
         TakeWord(parser, kThicknessKind, QStringLiteral("physical optical").split(u' '),
                  [&](qsizetype i) { settings.thickness.kind = static_cast<std::int16_t>(i); });
}

// An index that the settings window would take, too; a file name is no number.
bool IndexIsInRange(const QCommandLineParser& parser) {
  constexpr double kLowest = 0.1;
  constexpr double kHighest = 10.0;
  const std::optional<double> index =
      parser.isSet(kIndex) ? ParseNumber(parser.value(kIndex)) : std::nullopt;
  const bool inRange = !index || (*index >= kLowest && *index <= kHighest);
  if (!inRange) {
    Complain(Text::tr("--%1 は 0.1 ～ 10 です：\"%2\"").arg(kIndex, parser.value(kIndex)));
  }
  return inRange;
}

// The coat's setting of --index and --substrate; false when neither is given.
bool TakeCoat(const QCommandLineParser& parser, DispersionSetting& coat) {
  if (parser.isSet(kSubstrate)) {
    coat.kind = DispersionKind::kSubstrate;
    coat.dataFileName = parser.value(kSubstrate);
  } else if (parser.isSet(kIndex)) {
    const QString value = parser.value(kIndex);
    if (const std::optional<double> index = ParseNumber(value)) {
      coat.kind = DispersionKind::kFixedValue;
      coat.fixedValue = *index;
    } else {
      coat.kind = DispersionKind::kIndexFile;
      coat.indexFileName = value;
    }
  } else {
    return false;
  }
  return true;
}

}  // namespace

void DeclareAnalysisOptions(QCommandLineParser& parser) {
  const auto add = [&parser](const QString& name, const QString& text, const char* value) {
    parser.addOption({name, text, QLatin1String(value)});
  };
  add(kEnv, Text::tr("環境ファイル（省略時：プログラムディレクトリのもの）。"), "FILE.env");
  add(kIlluminant, Text::tr("光源：A、B、C、D65 のどれか。"), "NAME");
  add(kObserver, Text::tr("視野：2 または 10 度。"), "DEGREES");
  add(kAverage, Text::tr("平均反射率の範囲 (nm)。"), "FROM-TO");
  add(option::kStandard, Text::tr("各スロットを判定します。NG があれば終了ステータスは 3 です。"),
      "FILE.std");
  parser.addOption({kThickness, Text::tr("環境で無効になっていても膜厚を計算します。")});
  add(kType, Text::tr("膜厚に使う極値：A（2個の極小）、B（極大）、C（両方）。"), "TYPE");
  add(kThicknessKind, Text::tr("膜厚の種類：physical（物理）または optical（光学）。"), "KIND");
  add(kIndex, Text::tr("膜の屈折率：数値または屈折率ファイル。"), "V|FILE.ind");
  add(kSubstrate, Text::tr("膜のない基板のデータファイル。"), "FILE");
}

bool TakeEnvironment(const QCommandLineParser& parser, Settings& settings,
                     MessageService& messages) {
  if (!parser.isSet(kEnv)) {
    return true;
  }
  const Environment environment = ReadEnvironment(parser.value(kEnv), settings.programDirectory);
  TellAll(environment.notices, messages);
  if (!ApplyEnvironment(environment, settings)) {
    Complain(Text::tr("%1：環境ファイルとして読み込めません").arg(parser.value(kEnv)));
    return false;
  }
  TellAll(LoadDispersionData(settings).notices, messages);
  return true;
}

std::optional<StandardContents> ReadStandard(const QString& path, MessageService& messages) {
  const ReadResult<StandardContents> contents = ReadStandardFile(path);
  if (!contents) {
    messages.Tell(StandardMessage(path, contents.Fault()));
    Complain(Text::tr("%1：規格ファイルとして読み込めません").arg(path));
    return std::nullopt;
  }
  return *contents;
}

bool TakeStandard(const QCommandLineParser& parser, Settings& settings, MessageService& messages) {
  if (!parser.isSet(option::kStandard)) {
    return true;
  }
  const std::optional<StandardContents> contents =
      ReadStandard(parser.value(option::kStandard), messages);
  if (!contents) {
    return false;
  }
  settings.standard = contents->standard;
  settings.chromaMarker = contents->chromaMarker;
  settings.hueMarker = contents->hueMarker;
  return true;
}

ExitStatus TakeAnalysisOptions(const QCommandLineParser& parser, Settings& settings,
                               MessageService& messages) {
  if (Settings scratch = settings; !TakeWords(parser, scratch) || !IndexIsInRange(parser)) {
    return kUsageError;
  }
  if (!NotBoth(parser, kIndex, kSubstrate)) {
    return kUsageError;
  }
  if (!TakeEnvironment(parser, settings, messages)) {
    return kFailed;
  }
  (void)TakeWords(parser, settings);
  if (TakeCoat(parser, settings.thickness.coat)) {
    const SpectraBuilt built = LoadCoatData(settings);
    TellAll(built.notices, messages);
    if (!built.all) {
      return kFailed;
    }
  }
  if (parser.isSet(kThickness)) {
    settings.thickness.enabled = true;
  }
  if (!TakeStandard(parser, settings, messages)) {
    return kFailed;
  }
  return kDone;
}

}  // namespace vexa::cli
