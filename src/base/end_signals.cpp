// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/end_signals.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <system_error>
#include <utility>

namespace vexa {
namespace {

// A handler holds for every thread; a signal that is only blocked would end the program in one that
// was there before, as those of the toolkit are.
std::atomic<int> wakes{-1};

void Wake(int /*number*/) {
  const int error = errno;
  const std::uint64_t one = 1;
  [[maybe_unused]] const auto written = ::write(wakes, &one, sizeof one);
  errno = error;
}

}  // namespace

void TellTooLargeFilesAsErrors() {
  std::signal(SIGXFSZ, SIG_IGN);
}

EndSignals::EndSignals(std::function<void()> asked) {
  descriptor_ = ::eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC);
  if (descriptor_ < 0) {
    throw std::system_error(errno, std::generic_category(), "signals");
  }
  wakes = descriptor_;
  struct sigaction action {};
  action.sa_handler = Wake;
  action.sa_flags = SA_RESTART;
  sigemptyset(&action.sa_mask);
  for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
    ::sigaction(number, &action, nullptr);
  }
  std::signal(SIGPIPE, SIG_IGN);
  notifier_ = std::make_unique<QSocketNotifier>(descriptor_, QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                   [this, asked = std::move(asked)] {
                     std::uint64_t received = 0;
                     if (::read(descriptor_, &received, sizeof received) == sizeof received) {
                       asked();
                     }
                   });
}

EndSignals::~EndSignals() {
  wakes = -1;
  notifier_.reset();
  ::close(descriptor_);
}

}  // namespace vexa
