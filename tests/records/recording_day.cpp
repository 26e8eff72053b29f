// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps samples in a store until it is killed, and names each on standard output once it is kept.
// Usage: recording_day STORE SEED COUNT
#include <QCoreApplication>
#include <cstdio>

#include "records/record_keeper.h"
#include "records/samples.h"

int main(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() != 4) {
    return 2;
  }
  vexa::RecordKeeper keeper(arguments[1]);
  const unsigned seed = arguments[2].toUInt() * 10000;
  for (unsigned i = 0; i < arguments[3].toUInt(); ++i) {
    const QList<vexa::Row> rows = vexa::test::SampleRows(seed + i);
    if (keeper.Keep(rows) == vexa::Kept::kHeld) {
      return 1;
    }
    for (const vexa::Row& row : rows) {
      std::printf("%s\n", qPrintable(row.id));
    }
    std::fflush(stdout);
  }
  return 0;
}
