// SPDX-License-Identifier: GPL-3.0-or-later
#include <QCoreApplication>
#include <cstdio>

#include "base/end_signals.h"
#include "simulator/instrument.h"

namespace {

using namespace vexa::simulator;

void Carry(const ConsoleCommand& command, Instrument& instrument) {
  if (const auto* put = std::get_if<PutOnStage>(&command)) {
    instrument.SetStage(*put);
  } else if (std::holds_alternative<NextSample>(command)) {
    instrument.ShowNextSample();
  } else if (const auto* fault = std::get_if<Fault>(&command)) {
    instrument.AddFault(*fault);
  } else if (const auto* wear = std::get_if<SetWear>(&command)) {
    instrument.Age(*wear);
  } else {
    QCoreApplication::quit();
  }
}

void PrintLine(const QString& line) {
  std::printf("%s\n", qUtf8Printable(line));
  std::fflush(stdout);
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const vexa::EndSignals endSignals([] { QCoreApplication::quit(); });
  const auto read = ReadOptions(QCoreApplication::arguments());
  if (const auto* end = std::get_if<EarlyEnd>(&read)) {
    std::fputs(qUtf8Printable(end->text), end->exitStatus == 0 ? stdout : stderr);
    return end->exitStatus;
  }
  Instrument instrument(std::get<Options>(read), PrintLine);
  const QString failure = instrument.PlugIn();
  if (!failure.isEmpty()) {
    std::fprintf(stderr, "vexa-simulator: %s\n", qUtf8Printable(failure));
    return 1;
  }
  const Console console([&](const ConsoleCommand& command) { Carry(command, instrument); });
  return QCoreApplication::exec();
}
