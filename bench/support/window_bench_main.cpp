// SPDX-License-Identifier: GPL-3.0-or-later
// Runs the benchmarks of windows, without a display.
#include <benchmark/benchmark.h>

#include <QApplication>

#include "views/common/theme.h"

int main(int argc, char* argv[]) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  vexa::ApplyTheme(application);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
