// SPDX-License-Identifier: GPL-3.0-or-later
#include "instrument/gp_library.h"

#include <QDir>
#include <QLibrary>

namespace vexa {
namespace {

const QString kName = QStringLiteral("U2GPLIB");

template <typename Call>
bool Resolve(QLibrary& file, const char* name, Call& call, QString& missing) {
  call = reinterpret_cast<Call>(file.resolve(name));
  if (call == nullptr) {
    missing = QLatin1String(name);
  }
  return call != nullptr;
}

}  // namespace

QString BindGpLibrary(const QString& directory, GpLibrary& library) {
  QLibrary file(QDir(directory).absoluteFilePath(kName));
  if (!file.load()) {
    file.setFileName(kName);
  }
  if (!file.load()) {
    return kName;
  }
  GpLibrary bound;
  QString missing;
  if (Resolve(file, "gp_init", bound.gp_init, missing) &&
      Resolve(file, "gp_delm", bound.gp_delm, missing) &&
      Resolve(file, "gp_tmout", bound.gp_tmout, missing) &&
      Resolve(file, "gp_cli", bound.gp_cli, missing) &&
      Resolve(file, "gp_ren", bound.gp_ren, missing) &&
      Resolve(file, "gp_clr", bound.gp_clr, missing) &&
      Resolve(file, "gp_trg", bound.gp_trg, missing) &&
      Resolve(file, "gp_wsrq", bound.gp_wsrq, missing) &&
      Resolve(file, "gp_rds", bound.gp_rds, missing) &&
      Resolve(file, "gp_wrt", bound.gp_wrt, missing) &&
      Resolve(file, "gp_tfrin", bound.gp_tfrin, missing)) {
    library = bound;
  }
  return missing;
}

}  // namespace vexa
