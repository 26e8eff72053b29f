// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <unistd.h>

#include <QElapsedTimer>
#include <QFile>
#include <algorithm>
#include <vector>

namespace vexa::bench {

/// The median of so many runs, in milliseconds.
template <typename Task>
double MedianMs(int times, const Task& task) {
  std::vector<double> all;
  all.reserve(static_cast<std::size_t>(times));
  for (int i = 0; i < times; ++i) {
    QElapsedTimer timer;
    timer.start();
    task();
    all.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
  }
  std::ranges::sort(all);
  return all[all.size() / 2];
}

/// The memory that the process holds.
inline long ResidentKiB() {
  QFile file(QStringLiteral("/proc/self/statm"));
  const bool open = file.open(QIODevice::ReadOnly);
  return open ? file.readAll().split(' ').value(1).toLong() * sysconf(_SC_PAGESIZE) / 1024 : 0;
}

}  // namespace vexa::bench
