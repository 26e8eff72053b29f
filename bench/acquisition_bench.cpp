// SPDX-License-Identifier: GPL-3.0-or-later
// Measures whole acquisitions on the virtual instrument, which integrates and sends in real time,
// and sets each beside what the instrument itself needs: settling wait, integration and bytes.
#include <QCoreApplication>
#include <QCoroTask>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <vector>

#include "instrument/frm_com_h8_ctrl.h"
#include "instrument/serial_port_path.h"

namespace {

constexpr int kSettlingMs = 380;
constexpr double kBytesPerMs = 5.76;
constexpr int kRepeats = 9;

// Four shutter and measuring frames of 4 bytes, two shutter replies "CHAROKREQEND", the reply
// "CHARENDREQEND", and the data reply of header, lines and terminator.
double FloorMs(int timeMs, int lines) {
  const double settling = timeMs < kSettlingMs ? kSettlingMs - timeMs + 50 : 0;
  const double bytes = 4 * 4 + 2 * 12 + 13 + 4 + 1024.0 * lines + 6;
  return settling + static_cast<double>(timeMs) * lines + bytes / kBytesPerMs;
}

}  // namespace

int main(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);
  const QTemporaryDir directory;
  QProcess instrument;
  instrument.start(
      QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("vexa-simulator")),
      {QStringLiteral("--dir"), directory.path()});
  if (!instrument.waitForReadyRead(10000)) {
    std::fputs("the virtual instrument did not start\n", stderr);
    return 1;
  }
  vexa::frmComH8Ctrl controller(
      [&directory](int port) { return vexa::SerialPortPath(directory.path(), port); });
  if (QCoro::waitFor(controller.Initialise(5)) != vexa::kSuccess) {
    std::fputs("the virtual instrument does not answer\n", stderr);
    return 1;
  }
  std::printf("time ms  lines  floor ms  over the floor, ms: min  median  max\n");
  for (const auto& [timeMs, lines] : {std::pair{30, 1}, {30, 15}, {100, 4}, {380, 1}, {500, 2}}) {
    const vexa::AcquisitionSettings settings{
        .settlingTimeMs = kSettlingMs,
        .sampling = {static_cast<std::int16_t>(timeMs), static_cast<std::int16_t>(lines)}};
    if (QCoro::waitFor(controller.SetSampling(settings.sampling)) != vexa::kSuccess) {
      return 1;
    }
    std::vector<double> over;
    for (int i = 0; i < kRepeats; ++i) {
      QElapsedTimer timer;
      timer.start();
      if (QCoro::waitFor(controller.Acquire(vexa::LightFlag::kSample, settings)).status < 0) {
        return 1;
      }
      over.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6 - FloorMs(timeMs, lines));
    }
    std::sort(over.begin(), over.end());
    std::printf("%7d  %5d  %8.1f  %22.1f  %6.1f  %5.1f\n", timeMs, lines, FloorMs(timeMs, lines),
                over.front(), over[over.size() / 2], over.back());
  }
  instrument.terminate();
  instrument.waitForFinished();
  return 0;
}
