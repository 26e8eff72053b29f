// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/end_signals.h"

#include <sys/signalfd.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <system_error>
#include <utility>

namespace vexa {

EndSignals::EndSignals(std::function<void()> asked) {
  sigset_t endings;
  sigemptyset(&endings);
  for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
    sigaddset(&endings, number);
  }
  ::sigprocmask(SIG_BLOCK, &endings, nullptr);
  std::signal(SIGPIPE, SIG_IGN);
  descriptor_ = ::signalfd(-1, &endings, SFD_NONBLOCK | SFD_CLOEXEC);
  if (descriptor_ < 0) {
    throw std::system_error(errno, std::generic_category(), "signals");
  }
  notifier_ = std::make_unique<QSocketNotifier>(descriptor_, QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                   [this, asked = std::move(asked)] {
                     signalfd_siginfo received{};
                     if (::read(descriptor_, &received, sizeof received) == sizeof received) {
                       asked();
                     }
                   });
}

EndSignals::~EndSignals() {
  notifier_.reset();
  ::close(descriptor_);
}

}  // namespace vexa
