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
    Complain(QStringLiteral("measure needs --out FILE"));
    return std::nullopt;
  }
  if (!parser.isSet(kPort) && !parser.isSet(kDevice)) {
    Complain(QStringLiteral("measure needs --port N or --device PATH"));
    return std::nullopt;
  }
  if (parser.isSet(kPort) && parser.isSet(kDevice)) {
    Complain(QStringLiteral("--port and --device exclude each other"));
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
    Complain(QStringLiteral("--store, --lot and --operator belong to --record"));
    return std::nullopt;
  }
  if (plan.sampleNumbers.size() > plan.samples) {
    Complain(QStringLiteral("more --sample-number than samples"));
    return std::nullopt;
  }
  return plan;
}

}  // namespace

void DeclareMeasureOptions(QCommandLineParser& parser) {
  const auto add = [&parser](const QString& name, const char* text, const char* value) {
    parser.addOption({name, QLatin1String(text), QLatin1String(value)});
  };
  add(kPort, "Serial port number of the controller; 0 is the control box on the GP-IB.", "N");
  add(kDevice, "Device of the controller, instead of a port number.", "PATH");
  add(option::kOut, "Data file for the measured slots.", "FILE");
  add(kSamplingTime, "Integration time of a line, 30 to 20000 ms (default: from the environment).",
      "MS");
  add(kAveraging, "Lines averaged for a frame, 1 to 16 (default 1).", "N");
  add(kSamples, "Samples to measure, 1 to 10 (default 1).", "N");
  parser.addOption({kPrompt, Text::tr("Waits for Enter before each measurement.")});
  DeclareReferenceReflectance(parser);
  add(option::kShift, "Calibration shift, 0 to 7 nm (default: from vexa.cal, else 4).", "K");
  parser.addOption({kRecord, QStringLiteral("Keeps every frame and sample in the record store.")});
  add(kStore, "The record store (default: records.db of the program directory).", "FILE");
  add(kLot, "Lot of the records.", "NAME");
  add(kRecipe,
      "Measures under the environment and the standard of a recipe, each sample as often as it "
      "wants; the records name it.",
      "FILE.json");
  add(kOperator, "Operator of the records.", "NAME");
  add(kSampleNumber, "Number of the next sample; once a sample.", "TEXT");
  add(kReplyTimeout, "Longest wait for a reply of the controller (default 40000 ms).", "MS");
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
    Complain(QStringLiteral("%1: not all of its files can be read").arg(path));
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
