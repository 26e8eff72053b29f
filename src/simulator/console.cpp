// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/console.h"

#include <unistd.h>

#include <QString>
#include <array>
#include <cerrno>
#include <cstdio>
#include <utility>

namespace vexa::simulator {

using namespace Qt::StringLiterals;

std::optional<ConsoleCommand> ParseConsoleLine(QStringView line) {
  const QString simplified = line.toString().simplified();
  const auto words = QStringView(simplified).split(u' ');
  const QStringView verb = words[0];
  if (words.size() == 1 && verb == "next"_L1) {
    return NextSample{};
  }
  if (words.size() == 1 && verb == "quit"_L1) {
    return QuitProgram{};
  }
  if (words.size() == 2 && verb == "stage"_L1) {
    const auto sample = FindSample(words[1]);
    if (sample || words[1] == "auto"_L1) {
      return PutOnStage{sample};
    }
  }
  if ((words.size() == 2 || words.size() == 3) && verb == "fault"_L1) {
    if (const auto fault = MakeFault(words[1], words.size() == 3 ? words[2] : QStringView())) {
      return *fault;
    }
  }
  if (const WearInfo* kind = FindWear(verb); kind != nullptr && words.size() == 2) {
    if (const auto amount = ReadAmount(*kind, words[1])) {
      return SetWear{kind, *amount};
    }
  }
  return std::nullopt;
}

Console::Console(std::function<void(const ConsoleCommand& command)> commanded)
    : commanded_(std::move(commanded)), notifier_(STDIN_FILENO, QSocketNotifier::Read) {
  QObject::connect(&notifier_, &QSocketNotifier::activated, &notifier_, [this] { ReadLines(); });
}

void Console::ReadLines() {
  std::array<char, 1024> buffer;
  const ssize_t count = ::read(STDIN_FILENO, buffer.data(), buffer.size());
  if (count <= 0) {
    if (count == 0 || (errno != EINTR && errno != EAGAIN)) {
      notifier_.setEnabled(false);
    }
    return;
  }
  unread_.append(buffer.data(), count);
  qsizetype end = 0;
  while ((end = unread_.indexOf('\n')) >= 0) {
    const QByteArray line = unread_.first(end).trimmed();
    unread_.remove(0, end + 1);
    if (const auto command = ParseConsoleLine(QString::fromUtf8(line))) {
      commanded_(*command);
    } else if (!line.isEmpty()) {
      std::fprintf(stderr, "vexa-simulator: unknown line \"%s\"\n", line.constData());
    }
  }
}

}  // namespace vexa::simulator
