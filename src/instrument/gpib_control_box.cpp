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

GpibControlBox::GpibControlBox(QString directory, int replyTimeoutMs, QObject* parent)
    : Controller(parent), directory_(std::move(directory)), replyTimeoutMs_(replyTimeoutMs) {}

GpibControlBox::~GpibControlBox() {
  EndAtOnce();
}

QCoro::Task<Status> GpibControlBox::Initialise(std::int16_t /*port*/) {
  closed_ = false;
  connected_ = false;
  co_return co_await Operate([]() -> QCoro::Task<bool> { co_return true; });
}

QCoro::Task<Status> GpibControlBox::SetSampling(Sampling sampling) {
  if (busy_) {
    co_return kBusy;
  }
  wanted_ = sampling;
  co_return co_await Operate([this] { return SendSampling(); });
}

QCoro::Task<Acquisition> GpibControlBox::Acquire(LightFlag light, AcquisitionSettings settings) {
  Acquisition acquisition;
  if (busy_) {
    acquisition.status = kBusy;
    co_return acquisition;
  }
  wanted_ = settings.sampling;
  acquisition.status = co_await Operate([this, light] { return MeasureLine(light); });
  if (acquisition.status == 0) {
    acquisition.status =
        FillSpectrum({&line_, 1}, settings.linePositions, kDetectorStartNm, acquisition.counts);
  }
  co_return acquisition;
}

void GpibControlBox::Cancel() {
  if (busy_) {
    cancelled_ = true;
    calls_.Abandon();
  }
}

void GpibControlBox::Close() {
  closed_ = true;
  connected_ = false;
  calls_.Abandon();
}

void GpibControlBox::EndAtOnce() {
  closed_ = true;
  connected_ = false;
  calls_.AbandonAtOnce();
}

std::optional<MessageCall> GpibControlBox::FailureMessage() const {
  return failure_ ? std::optional(failure_->message) : std::nullopt;
}

// Does the steps with a box that is initialised.
QCoro::Task<Status> GpibControlBox::Operate(std::function<QCoro::Task<bool>()> steps) {
  if (std::exchange(busy_, true)) {
    co_return kBusy;
  }
  const auto release = qScopeGuard([this] { busy_ = false; });
  failure_.reset();
  failureDetails_.clear();
  cancelled_ = false;
  bool done = connected_;
  if (!done) {
    done = co_await Connect();
  }
  if (done) {
    done = co_await steps();
  }
  if (done) {
    co_return kSuccess;
  }
  connected_ = false;
  if (cancelled_) {
    failure_.reset();
    co_return kCancelled;
  }
  if (closed_ || !failure_) {
    failure_.reset();
    co_return kClosed;
  }
  co_return static_cast<Status>(-failure_->code);
}

QCoro::Task<bool> GpibControlBox::Connect() {
  if (const auto fault = BindGpLibrary(directory_, library_)) {
    failureDetails_ = fault->reason;
    co_return Fail(gpib_error::kControlBox, fault->missing.toLatin1().constData(), {kInitCode});
  }
  const struct {
    const char* function;
    int code;
    LibraryCall call;
  } calls[] = {
      {"gp_init", kInitCode, [](const GpLibrary& gp) { return gp.gp_init(kInterfaceAddress); }},
      {"gp_delm", kDelimiterCode, [](const GpLibrary& gp) { return gp.gp_delm("t", kDelimiter); }},
      {"gp_delm", kDelimiterCode, [](const GpLibrary& gp) { return gp.gp_delm("l", kDelimiter); }},
      {"gp_tmout", kTimeOutCode, [](const GpLibrary& gp) { return gp.gp_tmout(kCallSeconds); }},
      {"gp_cli", kInterfaceClearCode, [](const GpLibrary& gp) { return gp.gp_cli(); }},
      {"gp_cli", kInterfaceClearCode, [](const GpLibrary& gp) { return gp.gp_cli(); }},
      {"gp_ren", kRemoteCode, [](const GpLibrary& gp) { return gp.gp_ren(); }},
      {"gp_clr", kDeviceClearCode, [](const GpLibrary& gp) { return gp.gp_clr(kBoxAddress); }},
  };
  for (const auto& [function, code, call] : calls) {
    const Step step{code};
    const bool done = co_await Call(function, step, call);
    if (!done) {
      co_return false;
    }
  }
  const Step ready{kReadyCode};
  const Step readyStatus{kReadyStatusCode};
  bool done = co_await AwaitRequest(ready, kCommandSeconds);
  if (done) {
    done = co_await ReadStatus(readyStatus);
  }
  if (done) {
    done = co_await SendSampling();
  }
  connected_ = done;
  co_return connected_;
}

QCoro::Task<bool> GpibControlBox::SendSampling() {
  const Sampling sampling = wanted_;
  const Step time{.code = kSamplingCode,
                  .command = QStringLiteral("INTGTM %1").arg(sampling.timeMs)};
  const Step count{.code = kSamplingCode,
                   .command = QStringLiteral("INTGCT %1").arg(sampling.averagingCount)};
  bool sent = co_await Send(time);
  if (sent) {
    sent = co_await Send(count);
  }
  if (sent) {
    sampling_ = sampling;
  }
  co_return sent;
}

QCoro::Task<bool> GpibControlBox::MeasureLine(LightFlag light) {
  bool measured = true;
  if (sampling_ != wanted_) {
    measured = co_await SendSampling();
  }
  if (!measured) {
    co_return false;
  }
  measured = co_await SetLight(light);
  if (measured) {
    measured = co_await TakeLine();
  }
  const bool rested = co_await RestLight();
  if (measured && !rested) {
    (void)co_await RestLight();  // what failed is the setting back itself
  }
  co_return measured&& rested;
}

QCoro::Task<bool> GpibControlBox::SetLight(LightFlag light) {
  const bool dark = light == LightFlag::kBackground;
  const Step shutter{kLightCode, AwaitedStep::kLightShutter, dark ? kLightClosed : kLightOpen};
  const Step lamp{kLampCode, AwaitedStep::kLamp, kLampOn};
  const Step eyepiece{kEyepieceCode, AwaitedStep::kEyepieceShutter, kEyepieceClosed};
  bool set = co_await Send(shutter);
  lightClosed_ = set && dark;
  for (const Step& step : {lamp, eyepiece}) {
    if (set) {
      set = co_await Send(step);
    }
  }
  co_return set;
}

// After whatever failed, a command that is not confirmed included; only a box that takes no command
// is left alone.
QCoro::Task<bool> GpibControlBox::RestLight() {
  const Step steps[] = {{kEyepieceCode, AwaitedStep::kEyepieceShutter, kEyepieceOpen},
                        {kLampCode, AwaitedStep::kLamp, kLampOff},
                        {kLightCode, AwaitedStep::kLightShutter, kLightOpen}};
  bool allSet = true;
  bool set = false;
  for (const Step& step : steps) {
    const bool written = co_await Write(step);
    if (!written) {
      co_return false;
    }
    set = co_await Confirm(step);
    allSet = allSet && set;
  }
  lightClosed_ = lightClosed_ && !set;
  co_return allSet;
}

QCoro::Task<bool> GpibControlBox::TakeLine() {
  const Step trigger{kTriggerCode, AwaitedStep::kMeasurement};
  const Step measure{.code = kMeasuredCode,
                     .awaited = AwaitedStep::kMeasurement,
                     .expectedMs = sampling_.timeMs * sampling_.averagingCount};
  const Step measured{kMeasuredStatusCode, AwaitedStep::kMeasurement};
  const Step request{kMeasurementCode, AwaitedStep::kData, QStringLiteral("MEASDT 0")};
  const Step fetch{kTransferCode, AwaitedStep::kData};
  constexpr int kLength = static_cast<int>(kBytesPerLine);
  struct Transfer {
    std::array<unsigned char, kBytesPerLine> bytes{};
    int received = 0;
  };
  const auto transfer = std::make_shared<Transfer>();
  const LibraryCall triggerBox = [](const GpLibrary& gp) { return gp.gp_trg(kBoxAddress); };
  const LibraryCall takeBytes = [transfer](const GpLibrary& gp) {
    return gp.gp_tfrin(kBoxAddress, kLength, transfer->bytes.data(), &transfer->received);
  };
  bool taken = co_await Call("gp_trg", trigger, triggerBox);
  if (taken) {
    taken = co_await AwaitRequest(measure, kMeasurementSeconds);
  }
  if (taken) {
    taken = co_await ReadStatus(measured);
  }
  if (taken) {
    taken = co_await Send(request);
  }
  if (taken) {
    taken = co_await Call("gp_tfrin", fetch, takeBytes);
  }
  if (!taken) {
    co_return false;
  }
  if (transfer->received != kLength) {
    co_return Fail(gpib_error::kFormat, "gp_tfrin", fetch);
  }
  line_.bytes = transfer->bytes;
  line_.complete = true;
  co_return true;
}

QCoro::Task<bool> GpibControlBox::Send(Step step) {
  bool sent = co_await Write(step);
  if (sent) {
    sent = co_await Confirm(step);
  }
  co_return sent;
}

QCoro::Task<bool> GpibControlBox::Confirm(Step step) {
  bool confirmed = co_await AwaitRequest(step, kCommandSeconds);
  if (confirmed) {
    confirmed = co_await ReadStatus(step);
  }
  co_return confirmed;
}

QCoro::Task<bool> GpibControlBox::Write(Step step) {
  const LibraryCall call = [text = step.command.toLatin1()](const GpLibrary& gp) {
    return gp.gp_wrt(kBoxAddress, text.constData());
  };
  co_return co_await Call("gp_wrt", step, call);
}

QCoro::Task<bool> GpibControlBox::AwaitRequest(Step step, int seconds) {
  const LibraryCall call = [seconds](const GpLibrary& gp) { return gp.gp_wsrq(seconds); };
  const std::optional<int> number = co_await Run("gp_wsrq", step, call, seconds);
  co_return number &&
      (*number == 0 || Fail(std::max(*number, gpib_error::kNoServiceRequest), "gp_wsrq", step));
}

QCoro::Task<bool> GpibControlBox::ReadStatus(Step step) {
  const LibraryCall call = [statusByte = std::make_shared<int>(0)](const GpLibrary& gp) {
    return gp.gp_rds(kBoxAddress, statusByte.get());
  };
  co_return co_await Call("gp_rds", step, call);
}

QCoro::Task<bool> GpibControlBox::Call(const char* function, Step step, LibraryCall call) {
  const std::optional<int> number = co_await Run(function, step, call, kCallSeconds);
  co_return number && (*number == 0 || Fail(*number, function, step));
}

// What the call returned; nothing when it did not come back, which is a failure, or when it was
// given up meanwhile, which is none.
QCoro::Task<std::optional<int>> GpibControlBox::Run(const char* function, Step step,
                                                    LibraryCall call, int seconds) {
  if (closed_) {
    co_return std::nullopt;
  }
  emit WaitBegan(step.awaited, step.expectedMs, std::min(1000 * seconds, replyTimeoutMs_));
  const std::function<int()> bound = [call, library = library_] { return call(library); };
  const BlockingCalls::Outcome outcome = co_await calls_.Run(bound, replyTimeoutMs_);
  emit WaitEnded();
  if (outcome.end == BlockingCalls::End::kReturned) {
    co_return outcome.value;
  }
  if (outcome.end == BlockingCalls::End::kOverdue) {
    (void)Fail(gpib_error::kTimeOut, function, step);
  } else if (!cancelled_) {
    closed_ = true;
  }
  co_return std::nullopt;
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
