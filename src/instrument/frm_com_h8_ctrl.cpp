// SPDX-License-Identifier: GPL-3.0-or-later
#include "instrument/frm_com_h8_ctrl.h"

#include <QScopeGuard>
#include <algorithm>
#include <span>
#include <utility>

#include "instrument/h8_reply.h"
#include "instrument/port_diagnosis.h"

namespace vexa {
namespace {

constexpr Sampling kInitialSampling{.timeMs = 30, .averagingCount = 1};
constexpr int kSettlingMarginMs = 50;
constexpr int kBytesPerSecond = 5760;

using End = SerialLink::Reply::End;

std::span<const std::uint8_t> Bytes(const SerialLink::Reply& reply) {
  return {reinterpret_cast<const std::uint8_t*>(reply.body.constData()),
          static_cast<std::size_t>(reply.body.size())};
}

// What the reply says, empty when it is none.
QString Text(const SerialLink::Reply& reply) {
  return reply.end == End::kComplete ? ReplyText(Bytes(reply)) : QString();
}

// The status of an operation whose reply need not say anything.
Status AnswerStatus(End end) {
  switch (end) {
    case End::kTimeOut:
      return frmComH8Ctrl::kTimeOut;
    case End::kCancelled:
      return Controller::kCancelled;
    default:
      return 0;
  }
}

// The status of a whole operation for the status of one of its steps.
Status StepStatus(Status step, Status failure) {
  const bool itself = step == 0 || step == frmComH8Ctrl::kTimeOut || step == Controller::kCancelled;
  return itself ? step : failure;
}

}  // namespace

frmComH8Ctrl::frmComH8Ctrl(std::function<QString(int)> portPath, int replyTimeoutMs,
                           QObject* parent)
    : Controller(parent), portPath_(std::move(portPath)), link_(replyTimeoutMs) {}

frmComH8Ctrl::~frmComH8Ctrl() {
  link_.EndAtOnce();
}

QCoro::Task<Status> frmComH8Ctrl::H8_MeasStart() {
  if (!SendFrame(MeasureText(static_cast<std::uint8_t>(sampling_.averagingCount), secondCount_))) {
    co_return Status{-1};
  }
  const Reply reply = co_await Receive(SerialLink::Kind::kCommand, AwaitedStep::kMeasurement,
                                       sampling_.timeMs * sampling_.averagingCount);
  if (Text(reply) == QLatin1String("END")) {
    co_return kSuccess;
  }
  if (reply.end == End::kCancelled) {
    link_.Resume(kPartingMs);
    (void)co_await H8_Quit();
    co_return kCancelled;
  }
  if (reply.end == End::kTimeOut) {
    for (int attempt = 0; attempt < 2; ++attempt) {
      const Status quit = co_await H8_Quit();
      if (quit == 0 || quit == kCancelled) {
        co_return quit == 0 ? kTimeOut : quit;
      }
    }
    co_return Status{-3};
  }
  co_return Status{-4};
}

QCoro::Task<Status> frmComH8Ctrl::H8_Quit() {
  if (!SendFrame(QStringLiteral("69"))) {
    co_return Status{-1};
  }
  const Reply reply = co_await Receive(SerialLink::Kind::kCommand, AwaitedStep::kController);
  if (Text(reply) == QLatin1String("QUIT")) {
    co_return kSuccess;
  }
  const Status status = AnswerStatus(reply.end);
  co_return status != 0 ? status : Status{-3};
}

QCoro::Task<Status> frmComH8Ctrl::H8_DataReq() {
  for (LineBuffer& line : lines_) {
    line.complete = false;
  }
  const auto count = static_cast<std::uint8_t>(sampling_.averagingCount);
  if (!SendFrame(DataRequestText(count))) {
    co_return Status{-1};
  }
  const int expectedMs =
      static_cast<int>(1000 * kBytesPerLine * count / std::size_t{kBytesPerSecond});
  const Reply reply = co_await Receive(SerialLink::Kind::kLines, AwaitedStep::kData, expectedMs);
  if (reply.end == End::kCancelled) {
    co_return kCancelled;
  }
  co_return reply.end == End::kComplete&& FillLines(Bytes(reply), lines_) ? kSuccess : Status{-1};
}

QCoro::Task<Status> frmComH8Ctrl::H8_HiScan(bool on) {
  if (!SendFrame(on ? QStringLiteral("87FF") : QStringLiteral("8700"))) {
    co_return Status{-1};
  }
  co_return co_await ReceiveAny(AwaitedStep::kController);
}

QCoro::Task<Status> frmComH8Ctrl::SampleInit(std::int16_t timeMs, std::int16_t averagingCount) {
  wanted_ = {timeMs, averagingCount};
  co_return co_await SendSampling(wanted_);
}

Status frmComH8Ctrl::PHILL(bool /*on*/) {
  return 0;
}

QCoro::Task<Status> frmComH8Ctrl::LghtSht(bool closed) {
  PortBits bits = portBits_;
  bits.lightShutterClosed = closed;
  bits.lightShutterOpen = !closed;
  co_return co_await SwitchShutter(bits, AwaitedStep::kLightShutter);
}

QCoro::Task<Status> frmComH8Ctrl::EyeSht(bool closed) {
  PortBits bits = portBits_;
  bits.eyepieceShutterOpen = !closed;
  co_return co_await SwitchShutter(bits, AwaitedStep::kEyepieceShutter);
}

QString frmComH8Ctrl::ComReset() {
  return {};
}

QCoro::Task<Status> frmComH8Ctrl::H8Init(std::int16_t port) {
  port_ = port;
  if (!link_.Open(portPath_(port))) {
    co_return Status{-1};
  }
  initialisationText_.clear();
  if (!SendFrame(QStringLiteral("E1"))) {
    co_return Status{-2};
  }
  const Reply reply = co_await Receive(SerialLink::Kind::kCommand, AwaitedStep::kController);
  if (const Status status = AnswerStatus(reply.end); status != 0) {
    co_return status;
  }
  initialisationText_ = Text(reply);
  if (const Status status = co_await SendSampling(kInitialSampling); status != 0) {
    co_return status == kCancelled ? status : Status{-4};
  }
  if (const Status status = co_await H8_HiScan(true); status != 0) {
    co_return status == kCancelled ? status : Status{-5};
  }
  if (const Status status = co_await LghtSht(true); status != 0) {
    co_return status == kCancelled ? status : Status{-6};
  }
  if (const Status status = co_await EyeSht(true); status != 0) {
    co_return status == kCancelled ? status : Status{-7};
  }
  secondCount_ = 1;
  co_return kSuccess;
}

QCoro::Task<Acquisition> frmComH8Ctrl::H8GetData(LightFlag light, LinePositions positions,
                                                 int startNm, int settlingTimeMs) {
  Acquisition acquisition;
  acquisition.status = co_await PrepareLink();
  if (acquisition.status == 0) {
    acquisition.status = co_await AcquisitionSteps(light, settlingTimeMs);
  }
  if (acquisition.status == 0) {
    acquisition.status = LinesToWaves(acquisition.counts, positions, startNm);
    acquisition.linesTaken = static_cast<int>(std::ranges::count_if(
        lines_, [](const LineBuffer& line) -> bool { return line.complete; }));
  }
  co_return acquisition;
}

Status frmComH8Ctrl::LinesToWaves(RawSpectrum& spectrum, const LinePositions& positions,
                                  int startNm) const {
  return FillSpectrum(lines_, positions, startNm, spectrum);
}

QCoro::Task<Status> frmComH8Ctrl::Initialise(std::int16_t port) {
  if (std::exchange(busy_, true)) {
    co_return kBusy;
  }
  const auto release = qScopeGuard([this] { busy_ = false; });
  link_.Resume();
  co_return co_await H8Init(port);
}

QCoro::Task<Status> frmComH8Ctrl::SetSampling(Sampling sampling) {
  if (std::exchange(busy_, true)) {
    co_return kBusy;
  }
  const auto release = qScopeGuard([this] { busy_ = false; });
  link_.Resume();
  co_return co_await SampleInit(sampling.timeMs, sampling.averagingCount);
}

QCoro::Task<Acquisition> frmComH8Ctrl::Acquire(LightFlag light, AcquisitionSettings settings) {
  if (std::exchange(busy_, true)) {
    co_return Acquisition{.status = kBusy, .counts = {}};
  }
  const auto release = qScopeGuard([this] { busy_ = false; });
  link_.Resume();
  wanted_ = settings.sampling;
  co_return co_await H8GetData(light, settings.linePositions, kDetectorStartNm,
                               settings.settlingTimeMs);
}

QCoro::Task<Status> frmComH8Ctrl::OpenLightPath() {
  if (std::exchange(busy_, true)) {
    co_return kBusy;
  }
  const auto release = qScopeGuard([this] { busy_ = false; });
  link_.Resume();
  const Status status = co_await LghtSht(false);
  lightOpenAtRest_ = status == 0;
  co_return status;
}

void frmComH8Ctrl::Cancel() {
  if (busy_) {
    link_.Cancel();
  }
}

void frmComH8Ctrl::Close() {
  link_.Close();
}

void frmComH8Ctrl::EndAtOnce() {
  link_.EndAtOnce();
}

QString frmComH8Ctrl::FailureDetails() const {
  if (!link_.IsOpen()) {
    return ExplainClosedPort(portPath_(port_));
  }
  return linkAnswered_ ? QString() : ExplainSilentPort(portPath_(port_));
}

bool frmComH8Ctrl::IsLightPathClosed() const {
  return portBits_.lightShutterClosed;
}

bool frmComH8Ctrl::SendFrame(const QString& hexText) {
  const std::optional<QByteArray> frame = BuildFrame(hexText);
  return frame && link_.Send(*frame);
}

QCoro::Task<SerialLink::Reply> frmComH8Ctrl::Receive(SerialLink::Kind kind, AwaitedStep step,
                                                     int expectedMs) {
  emit WaitBegan(step, expectedMs, link_.LimitMs());
  Reply reply = co_await link_.Receive(kind);
  emit WaitEnded();
  if (reply.end != End::kCancelled) {
    linkAnswered_ = reply.end == End::kComplete || reply.end == End::kError;
  }
  co_return reply;
}

// 0 whatever the controller answers, or that the port was lost: the next frame will tell.
QCoro::Task<Status> frmComH8Ctrl::ReceiveAny(AwaitedStep step) {
  const Reply reply = co_await Receive(SerialLink::Kind::kCommand, step);
  co_return AnswerStatus(reply.end);
}

QCoro::Task<Status> frmComH8Ctrl::SendSampling(Sampling sampling) {
  const QString code = TimerCode(sampling.timeMs);
  if (code == QLatin1String("-1")) {
    co_return Status{-1};
  }
  if (!SendFrame(QStringLiteral("96") + code)) {
    co_return Status{-2};
  }
  const Status status = co_await ReceiveAny(AwaitedStep::kController);
  if (status == 0) {
    sampling_ = sampling;
  }
  co_return status;
}

QCoro::Task<Status> frmComH8Ctrl::SwitchShutter(PortBits bits, AwaitedStep step) {
  if (!SendFrame(PortBitsText(bits))) {
    co_return Status{-1};
  }
  portBits_ = bits;
  co_return co_await ReceiveAny(step);
}

QCoro::Task<> frmComH8Ctrl::Settle(int ms) {
  emit WaitBegan(AwaitedStep::kSettling, ms, ms);
  co_await link_.Sleep(ms);
  emit WaitEnded();
}

QCoro::Task<Status> frmComH8Ctrl::AcquisitionSteps(LightFlag light, int settlingTimeMs) {
  const bool background = light == LightFlag::kBackground;
  Status status = 0;
  if (background) {
    status = StepStatus(co_await LghtSht(true), -1);
  }
  if (status == 0) {
    status = StepStatus(co_await EyeSht(true), -2);
  }
  if (status != 0 && status != kCancelled) {
    co_return status;
  }
  if (status == 0) {
    status = co_await TakeLines(settlingTimeMs);
  }
  if (status != 0) {
    if (status == kCancelled) {
      link_.Resume(kPartingMs);
    }
    if (status != kTimeOut && linkAnswered_) {
      co_await RestShutters(light);
    }
    co_return status;
  }
  status = StepStatus(co_await EyeSht(false), -5);
  if (status == 0 && background) {
    status = StepStatus(co_await LghtSht(false), -6);
    lightOpenAtRest_ = status == 0;
  }
  co_return status;
}

QCoro::Task<Status> frmComH8Ctrl::TakeLines(int settlingTimeMs) {
  if (settlingTimeMs > sampling_.timeMs) {
    co_await Settle(settlingTimeMs - sampling_.timeMs + kSettlingMarginMs);
    if (link_.IsCancelled()) {
      co_return kCancelled;
    }
  }
  Status status = StepStatus(co_await H8_MeasStart(), -3);
  if (status == 0) {
    status = StepStatus(co_await H8_DataReq(), -4);
  }
  co_return status;
}

QCoro::Task<> frmComH8Ctrl::RestShutters(LightFlag light) {
  const Status eyepiece = co_await EyeSht(false);
  if (eyepiece == 0 && light == LightFlag::kBackground) {
    const Status status = co_await LghtSht(false);
    lightOpenAtRest_ = status == 0;
  }
}

// A link that was lost is built again; a sampling that the controller does not have is sent.
QCoro::Task<Status> frmComH8Ctrl::PrepareLink() {
  if (!link_.IsOpen()) {
    const Status status = co_await Reconnect();
    // Any other failure shows at the first frame that cannot be sent.
    co_return status == kTimeOut || status == kCancelled ? status : kSuccess;
  }
  if (sampling_ == wanted_) {
    co_return kSuccess;
  }
  const Sampling wanted = wanted_;
  co_return StepStatus(co_await SendSampling(wanted), kNoSampling);
}

// The link was up before and was lost. Everything that the initialisation sets back is set again.
QCoro::Task<Status> frmComH8Ctrl::Reconnect() {
  if (port_ == 0) {
    co_return Status{-1};
  }
  Status status = co_await H8Init(port_);
  if (status == 0) {
    const Sampling wanted = wanted_;
    status = co_await SendSampling(wanted);
  }
  if (status == 0 && lightOpenAtRest_) {
    status = co_await LghtSht(false);
  }
  if (status != 0) {
    link_.Close();
  }
  co_return status;
}

}  // namespace vexa
