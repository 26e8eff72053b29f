// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/line_input.h"

#include <unistd.h>

#include <array>
#include <cerrno>

namespace vexa::cli {

LineInput::LineInput() : notifier_(STDIN_FILENO, QSocketNotifier::Read) {
  notifier_.setEnabled(false);
  QObject::connect(&notifier_, &QSocketNotifier::activated, &notifier_, [this] { Read(); });
}

QCoro::Task<bool> LineInput::Next() {
  notifier_.setEnabled(!ended_ && !bytes_.contains('\n'));
  while (!bytes_.contains('\n') && !ended_) {
    co_await awakening_.Sleep();
  }
  notifier_.setEnabled(false);
  const qsizetype end = bytes_.indexOf('\n');
  bytes_.remove(0, end < 0 ? bytes_.size() : end + 1);
  co_return end >= 0;
}

void LineInput::Interrupt() {
  ended_ = true;
  bytes_.clear();
  awakening_.Wake();
}

void LineInput::Read() {
  std::array<char, 256> part{};
  const ssize_t count = ::read(STDIN_FILENO, part.data(), part.size());
  if (count > 0) {
    bytes_.append(part.data(), count);
  } else if (count == 0 || errno != EINTR) {
    ended_ = true;
  }
  awakening_.Wake();
}

}  // namespace vexa::cli
