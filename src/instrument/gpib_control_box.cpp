// SPDX-License-Identifier: GPL-3.0-or-later
#include "instrument/gpib_control_box.h"

#include <QScopeGuard>
#include <algorithm>
#include <array>
#include <memory>
#include <utility>

#include "instrument/gpib_error.h"

namespace vexa {
namespace {

constexpr int kCallSeconds = 10;
constexpr int kCommandSeconds = 5;
constexpr int kMeasurementSeconds = 20;
constexpr int kDelimiter = 128;

const QString kLightClosed = QStringLiteral("LRKSHT 1");
const QString kLightOpen = QStringLiteral("LRKSHT 0");
const QString kLampOn = QStringLiteral("PHILL 1,I");
const QString kLampOff = QStringLiteral("PHILL 0,I");
const QString kEyepieceClosed = QStringLiteral("EPSHT 1,I");
const QString kEyepieceOpen = QStringLiteral("EPSHT 0,I");

// Location codes.
constexpr int kInitCode = 100;
constexpr int kDelimiterCode = 101;
constexpr int kTimeOutCode = 102;
constexpr int kInterfaceClearCode = 103;
constexpr int kRemoteCode = 104;
constexpr int kDeviceClearCode = 105;
constexpr int kReadyCode = 106;
constexpr int kReadyStatusCode = 107;
constexpr int kLightCode = 200;
constexpr int kLampCode = 300;
constexpr int kEyepieceCode = 400;
constexpr int kSamplingCode = 500;
constexpr int kMeasuredCode = 500;
constexpr int kMeasuredStatusCode = 501;
constexpr int kTriggerCode = 502;
constexpr int kMeasurementCode = 503;
constexpr int kTransferCode = 504;

}  // namespace

GpibControlBox::GpibControlBox(QString directory, MessageService& messages, int replyTimeoutMs,
                               QObject* parent)
    : Controller(parent),
      directory_(std::move(directory)),
      messages_(messages),
      replyTimeoutMs_(replyTimeoutMs) {}

Status GpibControlBox::Initialise(std::int16_t /*port*/) {
  closed_ = false;
  connected_ = false;
  return Operate([] { return true; });
}

Status GpibControlBox::SetSampling(std::int16_t timeMs, std::int16_t averagingCount) {
  if (busy_) {
    return kBusy;
  }
  samplingTimeMs_ = timeMs;
  averagingCount_ = averagingCount;
  return Operate([this] { return SendSampling(); });
}

Status GpibControlBox::Acquire(LightFlag light, const AcquisitionSettings& settings,
                               RawSpectrum& spectrum) {
  LineBuffer line;
  const Status status = Operate([&] { return MeasureLine(light, line); });
  return status == 0 ? FillSpectrum({&line, 1}, settings.linePositions, kDetectorStartNm, spectrum)
                     : status;
}

void GpibControlBox::Close() {
  closed_ = true;
  connected_ = false;
  calls_.Abandon();
}

// Does the steps with a box that is initialised, and shows what failed once all is over.
Status GpibControlBox::Operate(const std::function<bool()>& steps) {
  if (busy_) {
    return kBusy;
  }
  busy_ = true;
  const auto release = qScopeGuard([this] { busy_ = false; });
  failure_.reset();
  if ((connected_ || Connect()) && steps()) {
    return 0;
  }
  connected_ = false;
  if (closed_ || !failure_) {
    return kClosed;
  }
  const Failure failure = *failure_;
  messages_.MsgCall(failure.message, message_type::kOk + message_type::kStopIcon,
                    message_title::kError);
  return static_cast<Status>(-failure.code);
}

bool GpibControlBox::Connect() {
  if (const QString missing = BindGpLibrary(directory_, library_); !missing.isEmpty()) {
    return Fail(gpib_error::kControlBox, missing.toLatin1().constData(), {kInitCode});
  }
  const auto setDelimiter = [this](const char* direction) {
    return Call("gp_delm", {kDelimiterCode},
                [direction](const GpLibrary& gp) { return gp.gp_delm(direction, kDelimiter); });
  };
  const auto clearInterface = [this] {
    return Call("gp_cli", {kInterfaceClearCode}, [](const GpLibrary& gp) { return gp.gp_cli(); });
  };
  connected_ = Call("gp_init", {kInitCode},
                    [](const GpLibrary& gp) { return gp.gp_init(kInterfaceAddress); }) &&
               setDelimiter("t") && setDelimiter("l") &&
               Call("gp_tmout", {kTimeOutCode},
                    [](const GpLibrary& gp) { return gp.gp_tmout(kCallSeconds); }) &&
               clearInterface() && clearInterface() &&
               Call("gp_ren", {kRemoteCode}, [](const GpLibrary& gp) { return gp.gp_ren(); }) &&
               Call("gp_clr", {kDeviceClearCode},
                    [](const GpLibrary& gp) { return gp.gp_clr(kBoxAddress); }) &&
               AwaitRequest({kReadyCode}, kCommandSeconds) && ReadStatus({kReadyStatusCode}) &&
               SendSampling();
  return connected_;
}

bool GpibControlBox::SendSampling() {
  return Send({.code = kSamplingCode,
               .command = QStringLiteral("INTGTM %1").arg(samplingTimeMs_)}) &&
         Send({.code = kSamplingCode, .command = QStringLiteral("INTGCT %1").arg(averagingCount_)});
}

bool GpibControlBox::MeasureLine(LightFlag light, LineBuffer& line) {
  const bool measured = SetLight(light) && TakeLine(line);
  const bool rested = RestLight();
  if (measured && !rested) {
    (void)RestLight();  // what failed is the setting back itself
  }
  return measured && rested;
}

bool GpibControlBox::SetLight(LightFlag light) {
  const bool dark = light == LightFlag::kBackground;
  const bool set = Send({kLightCode, AwaitedStep::kLightShutter, dark ? kLightClosed : kLightOpen});
  lightClosed_ = set && dark;
  return set && Send({kLampCode, AwaitedStep::kLamp, kLampOn}) &&
         Send({kEyepieceCode, AwaitedStep::kEyepieceShutter, kEyepieceClosed});
}

// After whatever failed, a command that is not confirmed included; only a box that takes no command
// is left alone.
bool GpibControlBox::RestLight() {
  bool allSet = true;
  bool set = false;
  for (const Step& step : {Step{kEyepieceCode, AwaitedStep::kEyepieceShutter, kEyepieceOpen},
                           Step{kLampCode, AwaitedStep::kLamp, kLampOff},
                           Step{kLightCode, AwaitedStep::kLightShutter, kLightOpen}}) {
    if (!Write(step)) {
      return false;
    }
    set = AwaitRequest(step, kCommandSeconds) && ReadStatus(step);
    allSet = allSet && set;
  }
  lightClosed_ = lightClosed_ && !set;
  return allSet;
}

bool GpibControlBox::TakeLine(LineBuffer& line) {
  const Step measure{.code = kMeasuredCode,
                     .awaited = AwaitedStep::kMeasurement,
                     .expectedMs = samplingTimeMs_ * averagingCount_};
  struct Transfer {
    std::array<unsigned char, kBytesPerLine> bytes{};
    int received = 0;
  };
  const auto transfer = std::make_shared<Transfer>();
  const Step fetch{kTransferCode, AwaitedStep::kData};
  constexpr int kLength = static_cast<int>(kBytesPerLine);
  if (!Call("gp_trg", {kTriggerCode, AwaitedStep::kMeasurement},
            [](const GpLibrary& gp) { return gp.gp_trg(kBoxAddress); }) ||
      !AwaitRequest(measure, kMeasurementSeconds) ||
      !ReadStatus({kMeasuredStatusCode, AwaitedStep::kMeasurement}) ||
      !Send({kMeasurementCode, AwaitedStep::kData, QStringLiteral("MEASDT 0")}) ||
      !Call("gp_tfrin", fetch, [transfer](const GpLibrary& gp) {
        return gp.gp_tfrin(kBoxAddress, kLength, transfer->bytes.data(), &transfer->received);
      })) {
    return false;
  }
  if (transfer->received != kLength) {
    return Fail(gpib_error::kFormat, "gp_tfrin", fetch);
  }
  line.bytes = transfer->bytes;
  line.complete = true;
  return true;
}

bool GpibControlBox::Send(const Step& step) {
  return Write(step) && AwaitRequest(step, kCommandSeconds) && ReadStatus(step);
}

bool GpibControlBox::Write(const Step& step) {
  return Call("gp_wrt", step, [text = step.command.toLatin1()](const GpLibrary& gp) {
    return gp.gp_wrt(kBoxAddress, text.constData());
  });
}

bool GpibControlBox::AwaitRequest(const Step& step, int seconds) {
  const std::optional<int> number = Run(
      "gp_wsrq", step, [seconds](const GpLibrary& gp) { return gp.gp_wsrq(seconds); }, seconds);
  return number &&
         (*number == 0 || Fail(std::max(*number, gpib_error::kNoServiceRequest), "gp_wsrq", step));
}

bool GpibControlBox::ReadStatus(const Step& step) {
  const auto statusByte = std::make_shared<int>(0);
  return Call("gp_rds", step, [statusByte](const GpLibrary& gp) {
    return gp.gp_rds(kBoxAddress, statusByte.get());
  });
}

bool GpibControlBox::Call(const char* function, const Step& step, LibraryCall call) {
  const std::optional<int> number = Run(function, step, std::move(call), kCallSeconds);
  return number && (*number == 0 || Fail(*number, function, step));
}

// What the call returned; nothing when it did not come back, which is a failure, or when the link
// was closed meanwhile, which is none.
std::optional<int> GpibControlBox::Run(const char* function, const Step& step, LibraryCall call,
                                       int seconds) {
  if (closed_) {
    return std::nullopt;
  }
  emit WaitBegan(step.awaited, step.expectedMs, std::min(1000 * seconds, replyTimeoutMs_));
  const BlockingCalls::Outcome outcome = calls_.Run(
      [call = std::move(call), library = library_] { return call(library); }, replyTimeoutMs_);
  emit WaitEnded();
  if (outcome.end == BlockingCalls::End::kReturned) {
    return outcome.value;
  }
  if (outcome.end == BlockingCalls::End::kOverdue) {
    (void)Fail(gpib_error::kTimeOut, function, step);
  } else {
    closed_ = true;
  }
  return std::nullopt;
}

// Always false.
bool GpibControlBox::Fail(int number, const char* function, const Step& step) {
  if (!failure_) {
    const QString name =
        (QLatin1String(function) + u' ' + step.command.section(u' ', 0, 0)).trimmed();
    failure_ = {GpibErrorMessage(number, name, step.code), step.code};
  }
  return false;
}

}  // namespace vexa
