// SPDX-License-Identifier: GPL-3.0-or-later
#include <QCoreApplication>

#include "cli/command_line.h"

int main(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);
  return vexa::cli::Run(QCoreApplication::arguments().sliced(1));
}
