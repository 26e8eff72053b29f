// SPDX-License-Identifier: GPL-3.0-or-later
#include <QCoreApplication>

#include "base/end_signals.h"
#include "cli/command_line.h"

int main(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);
  vexa::TellTooLargeFilesAsErrors();
  return vexa::cli::Run(QCoreApplication::arguments().sliced(1));
}
