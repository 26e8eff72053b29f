// SPDX-License-Identifier: GPL-3.0-or-later
#include <QFileInfo>
#include <QTextStream>

#include "cli/command_line.h"
#include "cli/console.h"
#include "cli/program_settings.h"
#include "files/data_file.h"
#include "instrument/frm_com_h8_ctrl.h"
#include "measurement/controller_start.h"
#include "measurement/measurement_sequence.h"

namespace vexa::cli {
namespace {

const QString kPort = QStringLiteral("port");
const QString kDevice = QStringLiteral("device");
const QString kSamplingTime = QStringLiteral("sampling-time");
const QString kAveraging = QStringLiteral("averaging");
const QString kSamples = QStringLiteral("samples");
const QString kPrompt = QStringLiteral("prompt");
const QString kReplyTimeout = QStringLiteral("reply-timeout");

void DeclareOptions(QCommandLineParser& parser) {
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
  parser.addOption({kPrompt, QStringLiteral("Waits for Enter before each measurement.")});
  DeclareReferenceReflectance(parser);
  add(option::kShift, "Calibration shift, 0 to 7 nm (default: from vexa.cal, else 4).", "K");
  add(kReplyTimeout, "Longest wait for a reply of the controller (default 40000 ms).", "MS");
}

// The options of a run, checked.
struct Plan {
  int port = 0;
  QString device;
  QString out;
  int samples = 1;
  int replyTimeoutMs = Controller::kReplyTimeoutMs;
  bool prompt = false;
};

bool ReadSettings(const QCommandLineParser& parser, VEXATYPE& state) {
  InstrumentSettings& instrument = state.instrument;
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

std::optional<Plan> ReadPlan(const QCommandLineParser& parser, const VEXATYPE& state) {
  const auto port = IntegerOption(parser, kPort, state.instrument.controllerPort, 0, 256);
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
  return Plan{*port,      parser.value(kDevice), parser.value(option::kOut), *samples,
              *timeoutMs, parser.isSet(kPrompt)};
}

// False when nobody is there to answer.
bool AskFor(const Plan& plan, const QString& what) {
  if (!plan.prompt) {
    return true;
  }
  std::fputs(qUtf8Printable(QStringLiteral("Place the %1 and press Enter: ").arg(what)), stderr);
  if (QTextStream(stdin).readLine().isNull()) {
    Complain(QStringLiteral("standard input ended"));
    return false;
  }
  return true;
}

// Said before the instrument is asked for anything.
bool CanBeWritten(const QString& path) {
  const QFileInfo file(path);
  const QFileInfo directory(file.absolutePath());
  return directory.isDir() && directory.isWritable() && (!file.exists() || file.isFile());
}

QJsonValue ToJson(const std::optional<Status>& status) {
  return status ? QJsonValue(*status) : QJsonValue();
}

// The statuses of the steps made so far.
struct Report {
  Status initialise = 0;
  std::optional<Status> background;
  std::optional<Status> reference;
  QJsonArray samples;
  QString file;
  bool complete = false;
};

void MeasureAll(const Plan& plan, MeasurementSequence& sequence, Report& report) {
  if (!AskFor(plan, QStringLiteral("reference (background)"))) {
    return;
  }
  report.background = sequence.MeasureBackground();
  if (report.background != Status{0}) {
    return;
  }
  if (!AskFor(plan, QStringLiteral("reference"))) {
    return;
  }
  report.reference = sequence.MeasureReference();
  if (report.reference != Status{0}) {
    return;
  }
  for (int slot = 1; slot <= plan.samples; ++slot) {
    if (!AskFor(plan, QStringLiteral("sample %1").arg(slot))) {
      return;
    }
    const std::optional<Status> status = sequence.MeasureSample(slot);
    report.samples.append(ToJson(status));
    if (status != Status{0}) {
      return;
    }
  }
  report.complete = true;
}

Status StartController(Controller& controller, const InstrumentSettings& settings,
                       MessageService& messages) {
  const Status status = controller.Initialise(settings.controllerPort);
  if (status != 0) {
    ReportControllerFailure(controller, messages);
    return status;
  }
  return SendSamplingSettings(controller, settings, messages);
}

std::unique_ptr<Controller> ConnectTo(const Plan& plan, const VEXATYPE& state,
                                      MessageService& messages) {
  if (plan.device.isEmpty()) {
    return MakeController(state, messages, plan.replyTimeoutMs);
  }
  return std::make_unique<frmComH8Ctrl>([device = plan.device](int) { return device; },
                                        plan.replyTimeoutMs);
}

void PrintReport(const Report& report, bool json) {
  if (json) {
    PrintJson(
        {{QStringLiteral("initialise"), report.initialise},
         {QStringLiteral("background"), ToJson(report.background)},
         {QStringLiteral("reference"), ToJson(report.reference)},
         {QStringLiteral("samples"), report.samples},
         {QStringLiteral("file"), report.file.isEmpty() ? QJsonValue() : QJsonValue(report.file)}});
    return;
  }
  const auto line = [](const QString& name, const QJsonValue& status) {
    if (!status.isNull()) {
      Print(QStringLiteral("%1 %2\n").arg(name, -12).arg(status.toInt(), 3));
    }
  };
  line(QStringLiteral("initialise"), report.initialise);
  line(QStringLiteral("background"), ToJson(report.background));
  line(QStringLiteral("reference"), ToJson(report.reference));
  for (qsizetype i = 0; i < report.samples.size(); ++i) {
    line(QStringLiteral("sample %1").arg(i + 1), report.samples[i]);
  }
  if (!report.file.isEmpty()) {
    Print(QStringLiteral("%1 %2\n").arg(QStringLiteral("file"), -12).arg(report.file));
  }
}

int Measure(const QCommandLineParser& parser) {
  ConsoleMessages messages(parser.isSet(option::kNo));
  VEXATYPE state = LoadSettings(parser, messages);
  if (!ReadSettings(parser, state)) {
    return kUsageError;
  }
  if (const ExitStatus taken = TakeReferenceReflectance(parser, state); taken != kDone) {
    return taken;
  }
  const std::optional<Plan> plan = ReadPlan(parser, state);
  if (!plan) {
    return kUsageError;
  }
  if (!CanBeWritten(plan->out)) {
    Complain(QStringLiteral("%1: cannot be written").arg(plan->out));
    return kFailed;
  }
  state.instrument.controllerPort = static_cast<std::int16_t>(plan->port);

  const std::unique_ptr<Controller> controller = ConnectTo(*plan, state, messages);
  MeasurementSequence sequence(state, messages, [] { return QDateTime::currentDateTime(); });
  sequence.UseController(controller.get());

  Report report;
  report.initialise = StartController(*controller, state.instrument, messages);
  if (report.initialise == 0) {
    MeasureAll(*plan, sequence, report);
  }
  bool saved = true;
  if (state.HasValidSlot()) {
    saved =
        ComplainUnwritten(WriteDataFile(plan->out, LayoutByEnding(plan->out), state), plan->out);
    if (saved) {
      report.file = plan->out;
    }
  }
  PrintReport(report, parser.isSet(option::kJson));
  return report.complete && saved ? kDone : kFailed;
}

}  // namespace

Command MeasureCommand() {
  return {QStringLiteral("measure"),
          QStringLiteral("(--port N | --device PATH) --out FILE [options]"),
          QStringLiteral("Measures background, reference and samples into a data file."),
          0,
          DeclareOptions,
          Measure};
}

}  // namespace vexa::cli
