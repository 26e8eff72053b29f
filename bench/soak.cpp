// SPDX-License-Identifier: GPL-3.0-or-later
// Measures again and again on the virtual instrument while faults strike at random commands, and
// checks after each measurement what a user relies on: good data or one message, never both or
// neither; a failed measurement changes nothing; the next one without a fault succeeds; the memory
// stays. Usage: soak [MEASUREMENTS [SEED]]; exit status 1 when anything of this was not so.
#include <unistd.h>

#include <QCoreApplication>
#include <QCoroTask>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "instrument/frm_com_h8_ctrl.h"
#include "instrument/serial_port_path.h"
#include "measurement/measurement_sequence.h"

namespace {

constexpr int kPatienceMs = 10000;
constexpr int kReplyTimeoutMs = 100;
constexpr int kLateMs = 150;
constexpr int kWarmUp = 1000;
constexpr double kLargestGrowthKiB = 2048.0;
// The sample on the stage is the reference itself, measured without noise.
constexpr double kTruthPercent = 4.0;
constexpr double kTolerancePercent = 0.05;

enum class Outcome { kGood, kSaturated, kFailed, kLate, kUnplugged, kGoodOrFailed };

struct FaultKind {
  const char* name;
  std::vector<int> commands;  ///< of a sample at which it may strike
  Outcome outcome;
};

// The commands of a sample: eyepiece shutter, measuring, data, eyepiece shutter. A refused shutter
// is not told from a moved one, so that a refusal is tried where it is noticed; byte by byte the
// data would come later than the reply is awaited here.
const FaultKind kFaults[] = {{"error-reply", {2}, Outcome::kFailed},
                             {"unplug", {1, 2, 3}, Outcome::kUnplugged},
                             {"saturation", {3}, Outcome::kSaturated},
                             {"short-line", {3}, Outcome::kFailed},
                             {"noise-before", {1, 2, 3, 4}, Outcome::kGoodOrFailed},
                             {"split-terminator", {1, 2, 3, 4}, Outcome::kGood},
                             {"byte-by-byte", {1, 2, 4}, Outcome::kGood},
                             {"late-bytes", {1, 2, 3, 4}, Outcome::kLate},
                             {"no-reply", {1, 2, 3, 4}, Outcome::kFailed}};
constexpr int kOneFaultIn = 8;

double ResidentKiB() {
  QFile file(QStringLiteral("/proc/self/statm"));
  const bool open = file.open(QIODevice::ReadOnly);
  const double pages = open ? file.readAll().split(' ').value(1).toDouble() : 0.0;
  return pages * static_cast<double>(::sysconf(_SC_PAGESIZE)) / 1024.0;
}

bool IsTrue(const vexa::ReflectanceSpectrum& spectrum) {
  return std::ranges::all_of(spectrum.Values(), [](double value) {
    return std::abs(value - kTruthPercent) <= kTolerancePercent;
  });
}

class Soak {
 public:
  explicit Soak(unsigned seed)
      : random_(seed),
        controller_([this](int port) { return vexa::SerialPortPath(directory_.path(), port); },
                    kReplyTimeoutMs),
        session_(directory_.path()),
        sequence_(session_) {}

  ~Soak() {
    instrument_.terminate();
    instrument_.waitForFinished(kPatienceMs);
  }

  bool Start() {
    vexa::Settings settings = session_.State();
    settings.instrument.settlingTimeMs = 0;
    settings.instrument.samplingTimeMs = 1000;
    std::ranges::fill(settings.referenceReflectance.Values(), kTruthPercent);
    session_.TakeSettings(settings);
    instrument_.start(
        QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("vexa-simulator")),
        {QStringLiteral("--dir"), directory_.path(), QStringLiteral("--pace"),
         QStringLiteral("none"), QStringLiteral("--noise"), QStringLiteral("off"),
         QStringLiteral("--late"), QString::number(kLateMs), QStringLiteral("--replug"),
         QStringLiteral("20"), QStringLiteral("--stage"), QStringLiteral("reference")});
    if (!instrument_.waitForReadyRead(kPatienceMs) ||
        QCoro::waitFor(controller_.Initialise(5)) != vexa::kSuccess) {
      return false;
    }
    sequence_.UseController(&controller_);
    return QCoro::waitFor(sequence_.MeasureBackground()).IsDone() &&
           QCoro::waitFor(sequence_.MeasureReference()).IsDone();
  }

  /// One measurement, with or without a fault; false when something was not as it must be.
  bool Measure(int number) {
    const bool struck = number % kOneFaultIn == kOneFaultIn - 1;
    const FaultKind* fault = struck ? &kFaults[random_() % std::size(kFaults)] : nullptr;
    if (fault != nullptr) {
      Prepare(*fault);
    }
    const int slot = 1 + number % vexa::kSlotCount;
    const vexa::MeasurementSlot before = *session_.State().Slot(slot);
    const vexa::MeasurementOutcome outcome = QCoro::waitFor(sequence_.MeasureSample(slot));
    const std::optional<vexa::Status> status = outcome.status;
    ++outcomes_[std::string(fault == nullptr ? "none" : fault->name) +
                (status == vexa::Status{0}   ? ": good"
                 : status == vexa::Status{1} ? ": saturated"
                                             : ": failed")];
    const bool right = status &&
                       IsExpected(fault == nullptr ? Outcome::kGood : fault->outcome, *status) &&
                       IsConsistent(outcome, *session_.State().Slot(slot), before);
    if (!right) {
      std::fprintf(stderr, "soak: measurement %d, fault %s, last %s: status %d, %d messages\n",
                   number, fault == nullptr ? "none" : fault->name, last_, status.value_or(-99),
                   static_cast<int>(outcome.messages.size()));
    }
    last_ = fault == nullptr ? last_ : fault->name;
    if (fault != nullptr && fault->outcome == Outcome::kUnplugged) {
      WaitForLine("ready ");
    } else if (fault != nullptr && fault->outcome == Outcome::kLate) {
      // A reply has no number: one that comes while the next is awaited would be taken for it.
      ::usleep(2 * 1000 * (kLateMs - kReplyTimeoutMs));
    }
    return right;
  }

  void PrintOutcomes() const {
    for (const auto& [name, count] : outcomes_) {
      std::printf("%8d  %s\n", count, name.c_str());
    }
  }

 private:
  void Prepare(const FaultKind& fault) {
    const int command = fault.commands[random_() % fault.commands.size()];
    instrument_.readAll();
    instrument_.write(QByteArray("fault ") + fault.name + " +" + QByteArray::number(command) +
                      '\n');
    WaitForLine("fault at ");
  }

  static bool IsExpected(Outcome outcome, vexa::Status status) {
    switch (outcome) {
      case Outcome::kGood:
        return status == 0;
      case Outcome::kSaturated:
        return status == 1;
      case Outcome::kFailed:
      case Outcome::kLate:
      case Outcome::kUnplugged:
        return status < 0;
      case Outcome::kGoodOrFailed:
        return status <= 0;
    }
    return false;
  }

  static bool IsConsistent(const vexa::MeasurementOutcome& outcome,
                           const vexa::MeasurementSlot& slot, const vexa::MeasurementSlot& before) {
    if (outcome.IsDone()) {
      return slot.valid && IsTrue(slot.reflectance) && outcome.messages.empty();
    }
    const vexa::Message told =
        outcome.status == 1 ? vexa::Message::kSaturated : vexa::Message::kAcquisitionFailed;
    return slot.reflectance == before.reflectance && slot.valid == before.valid &&
           outcome.messages.size() == 1 && outcome.messages.front().id == told;
  }

  void WaitForLine(QByteArrayView beginning) {
    QByteArray line;
    while (!line.startsWith(beginning) &&
           (instrument_.canReadLine() || instrument_.waitForReadyRead(kPatienceMs))) {
      line = instrument_.readLine();
    }
  }

  std::mt19937 random_;
  const char* last_ = "none";  ///< fault that struck before
  QTemporaryDir directory_;
  QProcess instrument_;
  vexa::frmComH8Ctrl controller_;
  vexa::Session session_;
  vexa::MeasurementSequence sequence_;
  std::map<std::string, int> outcomes_;
};

}  // namespace

int main(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);
  const int measurements = argc > 1 ? std::atoi(argv[1]) : 10000;
  const unsigned seed = argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 1;
  Soak soak(seed);
  if (!soak.Start()) {
    std::fputs("soak: the virtual instrument did not start\n", stderr);
    return 1;
  }
  QElapsedTimer timer;
  timer.start();
  int wrong = 0;
  double warm = 0.0;
  for (int number = 0; number < measurements; ++number) {
    wrong += soak.Measure(number) ? 0 : 1;
    if (number == std::min(kWarmUp, measurements / 2)) {
      warm = ResidentKiB();
    }
  }
  const double growth = ResidentKiB() - warm;
  soak.PrintOutcomes();
  std::printf("%8d  measurements in %.0f s, %d wrong; memory %.0f KiB after warm-up, %+.0f KiB\n",
              measurements, static_cast<double>(timer.elapsed()) / 1000.0, wrong, warm, growth);
  return wrong == 0 && growth < kLargestGrowthKiB ? 0 : 1;
}
