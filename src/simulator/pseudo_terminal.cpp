// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/pseudo_terminal.h"

#include <fcntl.h>
#include <stdlib.h>
#include <sys/inotify.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

namespace vexa::simulator {

bool PseudoTerminal::Open() {
  Close();
  master_ = ::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
  std::array<char, 128> path{};
  termios settings{};
  const bool opened = master_ >= 0 && ::grantpt(master_) == 0 && ::unlockpt(master_) == 0 &&
                      ::ptsname_r(master_, path.data(), path.size()) == 0 &&
                      (device_ = ::open(path.data(), O_RDWR | O_NOCTTY | O_CLOEXEC)) >= 0 &&
                      ::tcgetattr(device_, &settings) == 0;
  if (opened) {
    ::cfmakeraw(&settings);
    ::cfsetspeed(&settings, B57600);
    if (::tcsetattr(device_, TCSANOW, &settings) == 0) {
      devicePath_ = path.data();
      visits_ = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
      if (visits_ >= 0 && ::inotify_add_watch(visits_, path.data(), IN_OPEN | IN_CLOSE) < 0) {
        ::close(std::exchange(visits_, -1));
      }
      return true;
    }
  }
  const int reason = errno;
  Close();
  errno = reason;
  return false;
}

void PseudoTerminal::Close() {
  for (int* descriptor : {&visits_, &device_, &master_}) {
    if (*descriptor >= 0) {
      ::close(*descriptor);
      *descriptor = -1;
    }
  }
  devicePath_.clear();
  visitors_ = 0;
}

bool PseudoTerminal::IsVisited() {
  // Events of a watched file itself have no name behind them.
  inotify_event event{};
  while (visits_ >= 0 && ::read(visits_, &event, sizeof event) == sizeof event) {
    visitors_ = (event.mask & IN_OPEN) != 0 ? visitors_ + 1 : std::max(visitors_ - 1, 0);
    if (visitors_ == 0) {
      DiscardUnread();
      // Our own descriptor keeps the device open, and with it the claim of a visitor that was
      // killed.
      ::ioctl(device_, TIOCNXCL);
    }
  }
  return visits_ < 0 || visitors_ > 0;
}

QByteArray PseudoTerminal::Read() {
  std::array<char, 4096> buffer;
  const ssize_t count = ::read(master_, buffer.data(), buffer.size());
  return count > 0 ? QByteArray(buffer.data(), count) : QByteArray();
}

qsizetype PseudoTerminal::Write(QByteArrayView bytes) {
  qsizetype taken = 0;
  while (taken < bytes.size()) {
    const QByteArrayView rest = bytes.sliced(taken);
    const ssize_t count = ::write(master_, rest.data(), static_cast<std::size_t>(rest.size()));
    if (count > 0) {
      taken += count;
    } else if (count == 0 || errno != EINTR) {
      break;
    }
  }
  return taken;
}

void PseudoTerminal::DiscardUnread() {
  // On its way to the other end first, then what waits there.
  ::tcflush(master_, TCOFLUSH);
  ::tcflush(device_, TCIFLUSH);
}

}  // namespace vexa::simulator
