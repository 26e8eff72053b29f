// SPDX-License-Identifier: GPL-3.0-or-later
#include "instrument/gp_library.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLibrary>

#include "base/translation.h"

namespace vexa {
namespace {

const QString kName = QStringLiteral("U2GPLIB");
const QString kFileName = QStringLiteral("libU2GPLIB.so");

template <typename Call>
bool Resolve(QLibrary& file, const char* name, Call& call, QString& missing) {
  call = reinterpret_cast<Call>(file.resolve(name));
  if (call == nullptr) {
    missing = QLatin1String(name);
  }
  return call != nullptr;
}

// Others may write it, or another than the user or the system has put it there.
bool IsOpenToOthers(const QString& path) {
  struct stat status {};
  if (::lstat(QFile::encodeName(path).constData(), &status) != 0) {
    return false;
  }
  if (status.st_uid != 0 && status.st_uid != ::geteuid()) {
    return true;
  }
  // Only an owner takes anything out of a directory that is sticky; a link has no rights itself.
  const bool kept =
      S_ISLNK(status.st_mode) || (S_ISDIR(status.st_mode) && (status.st_mode & S_ISVTX) != 0);
  return !kept && (status.st_mode & (S_IWGRP | S_IWOTH)) != 0;
}

// The file, what leads to it by a link, or a directory of these that is open to others; empty where
// none is.
QString OpenToOthers(const QString& path) {
  const QFileInfo named(path);
  const QFileInfo file(named.canonicalFilePath());
  for (const QString& part :
       {QFileInfo(named.absolutePath()).canonicalFilePath(), named.absoluteFilePath(),
        file.absolutePath(), file.absoluteFilePath()}) {
    if (IsOpenToOthers(part)) {
      return part;
    }
  }
  return {};
}

}  // namespace

std::optional<GpBindingFault> BindGpLibrary(const QString& directory, GpLibrary& library) {
  const QString here = QDir(directory).absoluteFilePath(kFileName);
  if (QFileInfo::exists(here)) {
    if (const QString part = OpenToOthers(here); !part.isEmpty()) {
      return GpBindingFault{kName,
                            Text::tr("%1 を他のユーザーが書き換えられるので、%2 を読み込みません。")
                                .arg(part, kFileName)};
    }
  }
  QLibrary file(QDir(directory).absoluteFilePath(kName));
  if (!file.load()) {
    file.setFileName(kName);
  }
  if (!file.load()) {
    return GpBindingFault{kName};
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
    return std::nullopt;
  }
  return GpBindingFault{missing};
}

}  // namespace vexa
