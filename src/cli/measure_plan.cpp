// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/measure_plan.h"

#include <variant>

#include "base/translation.h"
#include "cli/command_line.h"
#include "cli/console.h"
#include "cli/program_settings.h"

namespace vexa::cli {
namespace {

const QString kPort = QStringLiteral("port");
const QString kDevice = QStringLiteral("device");
const QString kSamplingTime = QStringLiteral("sampling-time");
const QString kAveraging = QStringLiteral("averaging");
const QString kSamples = QStringLiteral("samples");
const QString kPrompt = QStringLiteral("prompt");
const QString kReplyTimeout = QStringLiteral("reply-timeout");
const QString kRecord = QStringLiteral("record");
const QString kStore = QStringLiteral("store");
const QString kLot = QStringLiteral("lot");
const QString kRecipe = QStringLiteral("recipe");
const QString kOperator = QStringLiteral("operator");
const QString kSampleNumber = QStringLiteral("sample-number");

bool ReadSettings(const QCommandLineParser& parser, Settings& settings) {
  InstrumentSettings& instrument = settings.instrument;
  const auto timeMs = IntegerOption(parser, kSamplingTime, instrument.samplingTimeMs, 30, 20000);
  const auto averaging = IntegerOption(parser, kAveraging, instrument.averagingCount, 1, 16);
  const auto shift = IntegerOption(parser, option::kShift, instrument.calibrationShiftNm, 0, 7);
  if (!timeMs || !averaging || !shift) {
    return false;
  }
  instrument.samplingTimeMs = static_cast<std::int16_t>(*timeMs);
  instrument.averagingCount = static_cast<std::int16_t>(*averaging);
  instrument.calibrationShiftNm = static_cast<std::int16_t>(*shift);
  return true;
}

std::optional<MeasurePlan> Read(const QCommandLineParser& parser, const Settings& settings) {
  const auto port = IntegerOption(parser, kPort, settings.instrument.controllerPort, 0, 256);
  const auto samples = IntegerOption(parser, kSamples, 1, 1, kSlotCount);
  const auto timeoutMs =
      IntegerOption(parser, kReplyTimeout, Controller::kReplyTimeoutMs, 1, 3600000);
  if (!port || !samples || !timeoutMs) {
    return std::nullopt;
  }
  if (!parser.isSet(option::kOut) || parser.value(option::kOut).isEmpty()) {
    Complain(Text::tr("measure には --out FILE が必要です"));
    return std::nullopt;
  }
  if (!parser.isSet(kPort) && !parser.isSet(kDevice)) {
    Complain(Text::tr("measure には --port N または --device PATH が必要です"));
    return std::nullopt;
  }
  if (!NotBoth(parser, kPort, kDevice)) {
    return std::nullopt;
  }
  MeasurePlan plan;
  plan.port = *port;
  plan.device = parser.value(kDevice);
  plan.out = parser.value(option::kOut);
  plan.samples = *samples;
  plan.replyTimeoutMs = *timeoutMs;
  plan.prompt = parser.isSet(kPrompt);
  plan.record = parser.isSet(kRecord);
  plan.store = parser.value(kStore);
  plan.lot = parser.value(kLot);
  plan.operatorName = parser.value(kOperator);
  plan.sampleNumbers = parser.values(kSampleNumber);
  if (!plan.record && (parser.isSet(kStore) || parser.isSet(kLot) || parser.isSet(kOperator))) {
    Complain(Text::tr("--store、--lot、--operator は --record とともに指定してください"));
    return std::nullopt;
  }
  if (plan.sampleNumbers.size() > plan.samples) {
    Complain(Text::tr("--sample-number が試料より多くあります"));
    return std::nullopt;
  }
  return plan;
}

}  // namespace

void DeclareMeasureOptions(QCommandLineParser& parser) {
  const auto add = [&parser](const QString& name, const QString& text, const char* value) {
    parser.addOption({name, text, QLatin1String(value)});
  };
  add(kPort, Text::tr("コントローラのシリアルポート番号。0 は GP-IB のコントロールボックスです。"),
      "N");
  add(kDevice, Text::tr("コントローラの装置ファイル（ポート番号の代わり）。"), "PATH");
  add(option::kOut, Text::tr("測定したスロットのデータファイル。"), "FILE");
  add(kSamplingTime, Text::tr("一ラインの積算時間、30～20000 ms（省略時：環境による）。"), "MS");
  add(kAveraging, Text::tr("一回の測定で平均するライン数、1～16（省略時 1）。"), "N");
  add(kSamples, Text::tr("測定するサンプルの数、1～10（省略時 1）。"), "N");
  parser.addOption({kPrompt, Text::tr("測定のたびに Enter を待ちます。")});
  DeclareReferenceReflectance(parser);
  add(option::kShift,
      Text::tr("キャリブレーションのシフト値、0～7 nm（省略時：vexa.cal の値、なければ 4）。"),
      "K");
  parser.addOption({kRecord, Text::tr("測定した光量とサンプルをすべて記録に残します。")});
  add(kStore, Text::tr("記録のファイル（省略時：プログラムディレクトリの records.db）。"), "FILE");
  add(kLot, Text::tr("記録のロット。"), "NAME");
  add(kRecipe,
      Text::tr("レシピの環境と規格で、各サンプルをレシピの回数だけ測定します。記録にレシピ名が残り"
               "ます。"),
      "FILE.json");
  add(kOperator, Text::tr("記録の測定者。"), "NAME");
  add(kSampleNumber, Text::tr("次のサンプルの試料番号。サンプルごとに1回指定します。"), "TEXT");
  add(kReplyTimeout, Text::tr("コントローラの応答を待つ最長の時間（省略時 40000 ms）。"), "MS");
}

ExitStatus TakeRecipe(const QCommandLineParser& parser, Settings& settings,
                      MessageService& messages, std::optional<Recipe>& recipe) {
  if (!parser.isSet(kRecipe)) {
    return kDone;
  }
  const QString path = parser.value(kRecipe);
  const auto read = ReadRecipe(path);
  if (const auto* fault = std::get_if<RecipeFault>(&read)) {
    Complain(QStringLiteral("%1: %2").arg(path, RecipeFaultText(*fault)));
    return kFailed;
  }
  recipe = std::get<Recipe>(read);
  const RecipeInForce applied = ApplyRecipe(*recipe, settings);
  TellAll(applied.notices, messages);
  if (!applied.complete) {
    Complain(Text::tr("%1：その中のファイルに読み込めないものがあります").arg(path));
    return kFailed;
  }
  return kDone;
}

std::optional<MeasurePlan> ReadMeasurePlan(const QCommandLineParser& parser, Settings& settings) {
  if (!ReadSettings(parser, settings)) {
    return std::nullopt;
  }
  std::optional<MeasurePlan> plan = Read(parser, settings);
  if (plan) {
    settings.instrument.controllerPort = static_cast<std::int16_t>(plan->port);
  }
  return plan;
}

}  // namespace vexa::cli
