// SPDX-License-Identifier: GPL-3.0-or-later
#include "instrument/frm_com_h8_ctrl.h"

#include <QScopeGuard>
#include <utility>

#include "instrument/h8_reply.h"
#include "instrument/port_diagnosis.h"

namespace vexa {
namespace {

const QString kTimeOutReply = QStringLiteral("Time Out");
const QString kPortClosedReply = QStringLiteral("PORT close");
const QString kErrorReply = QStringLiteral("ERROR");
const QString kLinesReply = QStringLiteral("TREND");
const QString kPartialLinesReply = QStringLiteral("LDATA");

constexpr std::int16_t kInitialSamplingMs = 30;
constexpr int kSettlingMarginMs = 50;
constexpr int kBytesPerSecond = 5760;
constexpr int kWoken = 1;

// The status of a whole acquisition for the status of one of its steps.
Status StepStatus(Status step, Status failure) {
  return step == 0 || step == frmComH8Ctrl::kTimeOut ? step : failure;
}

}  // namespace

frmComH8Ctrl::frmComH8Ctrl(std::function<QString(int)> portPath, int replyTimeoutMs,
                           QObject* parent)
    : Controller(parent), portPath_(std::move(portPath)), replyTimeoutMs_(replyTimeoutMs) {
  TTmout_.setSingleShot(true);
  connect(&TTmout_, &QTimer::timeout, this, &frmComH8Ctrl::OnTimeOut);
  connect(&H8Comm_, &QSerialPort::readyRead, this, &frmComH8Ctrl::OnBytesReceived);
  // Queued: the port must not be closed from within its own notification.
  connect(&H8Comm_, &QSerialPort::errorOccurred, this, &frmComH8Ctrl::OnPortError,
          Qt::QueuedConnection);
}

frmComH8Ctrl::~frmComH8Ctrl() {
  ClosePort();
}

Status frmComH8Ctrl::H8_MeasStart() {
  if (SendFrame(MeasureText(averagingCount_, secondCount_)) != 0) {
    return -1;
  }
  const QString reply = ReceiveReply(ReplyMode::kCommand, AwaitedStep::kMeasurement,
                                     samplingTimeMs_ * averagingCount_);
  if (reply == QLatin1String("END")) {
    return 0;
  }
  if (reply == kTimeOutReply) {
    const bool quit = H8_Quit() == 0 || H8_Quit() == 0;
    return quit ? kTimeOut : -3;
  }
  return -4;
}

Status frmComH8Ctrl::H8_Quit() {
  if (SendFrame(QStringLiteral("69")) != 0) {
    return -1;
  }
  const QString reply = ReceiveReply(ReplyMode::kCommand, AwaitedStep::kController);
  if (reply == QLatin1String("QUIT")) {
    return 0;
  }
  return reply == kTimeOutReply ? kTimeOut : -3;
}

Status frmComH8Ctrl::H8_DataReq() {
  for (LineBuffer& line : lines_) {
    line.complete = false;
  }
  if (SendFrame(DataRequestText(averagingCount_)) != 0) {
    return -1;
  }
  const int expectedMs =
      static_cast<int>(1000 * kBytesPerLine * averagingCount_ / std::size_t{kBytesPerSecond});
  return ReceiveReply(ReplyMode::kLines, AwaitedStep::kData, expectedMs) == kLinesReply ? 0 : -1;
}

Status frmComH8Ctrl::H8_HiScan(bool on) {
  if (SendFrame(on ? QStringLiteral("87FF") : QStringLiteral("8700")) != 0) {
    return -1;
  }
  const QString reply = ReceiveReply(ReplyMode::kCommand, AwaitedStep::kController);
  return reply == kTimeOutReply ? kTimeOut : 0;
}

Status frmComH8Ctrl::SampleInit(std::int16_t timeMs, std::int16_t averagingCount) {
  const QString code = TimerCode(timeMs);
  if (code == QLatin1String("-1")) {
    return -1;
  }
  if (SendFrame(QStringLiteral("96") + code) != 0) {
    return -2;
  }
  if (ReceiveReply(ReplyMode::kCommand, AwaitedStep::kController) == kTimeOutReply) {
    return kTimeOut;
  }
  averagingCount_ = static_cast<std::uint8_t>(averagingCount);
  samplingTimeMs_ = timeMs;
  return 0;
}

Status frmComH8Ctrl::PHILL(bool /*on*/) {
  return 0;
}

Status frmComH8Ctrl::LghtSht(bool closed) {
  PortBits bits = portBits_;
  bits.lightShutterClosed = closed;
  bits.lightShutterOpen = !closed;
  return SwitchShutter(bits, AwaitedStep::kLightShutter);
}

Status frmComH8Ctrl::EyeSht(bool closed) {
  PortBits bits = portBits_;
  bits.eyepieceShutterOpen = !closed;
  return SwitchShutter(bits, AwaitedStep::kEyepieceShutter);
}

QString frmComH8Ctrl::ComReset() {
  return {};
}

Status frmComH8Ctrl::H8Init(std::int16_t port, QString& replyText) {
  port_ = port;
  if (OpenPort() != 0) {
    return -1;
  }
  if (SendFrame(QStringLiteral("E1")) != 0) {
    return -2;
  }
  replyText = ReceiveReply(ReplyMode::kCommand, AwaitedStep::kController);
  if (replyText == kTimeOutReply) {
    replyText.clear();
    return kTimeOut;
  }
  if (SampleInit(kInitialSamplingMs, 1) != 0) {
    return -4;
  }
  if (H8_HiScan(true) != 0) {
    return -5;
  }
  if (LghtSht(true) != 0) {
    return -6;
  }
  if (EyeSht(true) != 0) {
    return -7;
  }
  secondCount_ = 1;
  return 0;
}

Status frmComH8Ctrl::H8GetData(LightFlag light, RawSpectrum& spectrum,
                               const LinePositions& positions, int startNm, int settlingTimeMs) {
  if (busy_) {
    return kBusy;
  }
  busy_ = true;
  const auto release = qScopeGuard([this] { busy_ = false; });

  if (!H8Comm_.isOpen() && Reconnect() == kTimeOut) {
    return kTimeOut;
  }
  const Status status = AcquisitionSteps(light, settlingTimeMs);
  return status == 0 ? LinesToWaves(spectrum, positions, startNm) : status;
}

Status frmComH8Ctrl::LinesToWaves(RawSpectrum& spectrum, const LinePositions& positions,
                                  int startNm) const {
  return FillSpectrum(lines_, positions, startNm, spectrum);
}

Status frmComH8Ctrl::Initialise(std::int16_t port) {
  QString replyText;
  return H8Init(port, replyText);
}

Status frmComH8Ctrl::SetSampling(std::int16_t timeMs, std::int16_t averagingCount) {
  return SampleInit(timeMs, averagingCount);
}

Status frmComH8Ctrl::Acquire(LightFlag light, const AcquisitionSettings& settings,
                             RawSpectrum& spectrum) {
  return H8GetData(light, spectrum, settings.linePositions, kDetectorStartNm,
                   settings.settlingTimeMs);
}

Status frmComH8Ctrl::OpenLightPath() {
  const Status status = LghtSht(false);
  lightOpenAtRest_ = status == 0;
  return status;
}

void frmComH8Ctrl::Close() {
  ClosePort();
  Wake();
}

QString frmComH8Ctrl::FailureDetails() const {
  if (!H8Comm_.isOpen()) {
    return ExplainClosedPort(portPath_(port_));
  }
  return linkAnswered_ ? QString() : ExplainSilentPort(portPath_(port_));
}

bool frmComH8Ctrl::IsLightPathClosed() const {
  return portBits_.lightShutterClosed;
}

Status frmComH8Ctrl::OpenPort() {
  if (H8Comm_.isOpen()) {
    return 1;
  }
  H8Comm_.setPortName(portPath_(port_));
  H8Comm_.setBaudRate(57600);
  H8Comm_.setDataBits(QSerialPort::Data8);
  H8Comm_.setParity(QSerialPort::NoParity);
  H8Comm_.setStopBits(QSerialPort::OneStop);
  H8Comm_.setFlowControl(QSerialPort::NoFlowControl);
  return H8Comm_.open(QIODevice::ReadWrite) ? 0 : 1;
}

void frmComH8Ctrl::ClosePort() {
  if (H8Comm_.isOpen()) {
    H8Comm_.close();
  }
}

Status frmComH8Ctrl::SendFrame(const QString& hexText) {
  const std::optional<QByteArray> frame = BuildFrame(hexText);
  if (!frame) {
    return 2;
  }
  if (!H8Comm_.isOpen() || waiting_ != nullptr) {
    return 1;
  }
  // What came late from an earlier exchange must not answer this one, whether it is read already or
  // still lies in the system's buffer.
  H8Comm_.clear(QSerialPort::Input);
  ForgetReply();
  if (H8Comm_.write(*frame) != frame->size()) {
    return 1;
  }
  H8Comm_.flush();
  return 0;
}

Status frmComH8Ctrl::SwitchShutter(const PortBits& bits, AwaitedStep step) {
  if (SendFrame(PortBitsText(bits)) != 0) {
    return -1;
  }
  portBits_ = bits;
  return ReceiveReply(ReplyMode::kCommand, step) == kTimeOutReply ? kTimeOut : 0;
}

QString frmComH8Ctrl::ReceiveReply(ReplyMode mode, AwaitedStep step, int expectedMs) {
  QString reply;
  timedOut_ = false;
  TTmout_.start(replyTimeoutMs_);
  emit WaitBegan(step, expectedMs, replyTimeoutMs_);
  while (!TakeReply(mode, reply)) {
    if (timedOut_ || !H8Comm_.isOpen()) {
      reply = timedOut_ ? kTimeOutReply : kPortClosedReply;
      break;
    }
    if (!SleepUntilWoken()) {
      ClosePort();
    }
  }
  TTmout_.stop();
  emit WaitEnded();
  ForgetReply();
  linkAnswered_ = reply != kTimeOutReply && reply != kPortClosedReply;
  return reply;
}

bool frmComH8Ctrl::TakeReply(ReplyMode mode, QString& reply) {
  if (mode == ReplyMode::kCommand && linkStatus_ == LinkStatus::kRequestError) {
    reply = kErrorReply;
    return true;
  }
  if (mode == ReplyMode::kCommand && linkStatus_ == LinkStatus::kRequestEnd) {
    reply = ReplyText(ring_.Body());
    return true;
  }
  if (mode == ReplyMode::kLines && linkStatus_ == LinkStatus::kDataEnd) {
    reply = FillLines(ring_.Body(), lines_) ? kLinesReply : kPartialLinesReply;
    return true;
  }
  if (mode == ReplyMode::kCommand && linkStatus_ == LinkStatus::kBytesArriving) {
    linkStatus_ = LinkStatus::kNone;
  }
  return false;
}

void frmComH8Ctrl::ForgetReply() {
  ring_.Reset();
  linkStatus_ = LinkStatus::kNone;
}

// False when the whole application ends instead.
bool frmComH8Ctrl::SleepUntilWoken() {
  QEventLoop loop;
  waiting_ = &loop;
  const int result = loop.exec();
  waiting_ = nullptr;
  return result == kWoken;
}

void frmComH8Ctrl::Settle(int ms) {
  QTimer timer;
  timer.setTimerType(Qt::PreciseTimer);
  timer.setSingleShot(true);
  connect(&timer, &QTimer::timeout, this, &frmComH8Ctrl::Wake);
  timer.start(ms);
  emit WaitBegan(AwaitedStep::kSettling, ms, ms);
  while (timer.isActive() && H8Comm_.isOpen() && SleepUntilWoken()) {
  }
  emit WaitEnded();
}

Status frmComH8Ctrl::AcquisitionSteps(LightFlag light, int settlingTimeMs) {
  const bool background = light == LightFlag::kBackground;
  if (background) {
    if (const Status status = StepStatus(LghtSht(true), -1); status != 0) {
      return status;
    }
  }
  if (const Status status = StepStatus(EyeSht(true), -2); status != 0) {
    return status;
  }
  if (settlingTimeMs > samplingTimeMs_) {
    Settle(settlingTimeMs - samplingTimeMs_ + kSettlingMarginMs);
  }
  Status status = StepStatus(H8_MeasStart(), -3);
  if (status == 0) {
    status = StepStatus(H8_DataReq(), -4);
  }
  if (status != 0) {
    if (status != kTimeOut && linkAnswered_) {
      RestShutters(light);
    }
    return status;
  }
  if (status = StepStatus(EyeSht(false), -5); status != 0) {
    return status;
  }
  if (background) {
    status = StepStatus(LghtSht(false), -6);
    lightOpenAtRest_ = status == 0;
  }
  return status;
}

void frmComH8Ctrl::RestShutters(LightFlag light) {
  if (EyeSht(false) == 0 && light == LightFlag::kBackground) {
    lightOpenAtRest_ = LghtSht(false) == 0;
  }
}

// The link was up before and was lost. Everything that Initialise sets back is set again.
Status frmComH8Ctrl::Reconnect() {
  if (port_ == 0) {
    return -1;
  }
  const std::int16_t timeMs = samplingTimeMs_;
  const std::int16_t averagingCount = averagingCount_;
  Status status = Initialise(port_);
  if (status == 0) {
    status = SampleInit(timeMs, averagingCount);
  }
  if (status == 0 && lightOpenAtRest_) {
    status = LghtSht(false);
  }
  if (status != 0) {
    ClosePort();
    samplingTimeMs_ = timeMs;
    averagingCount_ = static_cast<std::uint8_t>(averagingCount);
  }
  return status;
}

void frmComH8Ctrl::OnBytesReceived() {
  ring_.Append(H8Comm_.readAll());
  linkStatus_ = ring_.Evaluate(linkStatus_);
  Wake();
}

// Looks at the error that the port has by now: an older one may lie before a successful opening.
void frmComH8Ctrl::OnPortError() {
  switch (H8Comm_.error()) {
    case QSerialPort::NoError:
    case QSerialPort::TimeoutError:
      return;
    case QSerialPort::DeviceNotFoundError:
    case QSerialPort::ReadError:
    case QSerialPort::WriteError:
    case QSerialPort::ResourceError:
    case QSerialPort::NotOpenError:
      ClosePort();
      break;
    default:
      linkStatus_ = LinkStatus::kPortError;
  }
  Wake();
}

void frmComH8Ctrl::OnTimeOut() {
  timedOut_ = true;
  Wake();
}

void frmComH8Ctrl::Wake() {
  if (waiting_ != nullptr) {
    waiting_->exit(kWoken);
  }
}

}  // namespace vexa
