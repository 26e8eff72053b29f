// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/file_dialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <algorithm>

namespace vexa {
namespace {

struct NameFilters {
  QStringList texts;
  QStringList filters;  ///< "text (*.csv *.dat)"
};

NameFilters Split(const QString& filter) {
  const QStringList parts = filter.split(u'|', Qt::SkipEmptyParts);
  NameFilters names;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QString patterns = parts[i + 1];
    patterns.replace(u';', u' ').replace(QStringLiteral("*.*"), QStringLiteral("*"));
    names.texts << parts[i];
    names.filters << QStringLiteral("%1 (%2)").arg(parts[i], patterns);
  }
  return names;
}

void Prepare(QFileDialog& dialog, const NameFilters& names, const QString& folder) {
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  dialog.setNameFilters(names.filters);
  if (!folder.isEmpty()) {
    dialog.setDirectory(folder);
  }
}

}  // namespace

std::optional<QString> WindowFileDialogs::AskOpen(const QString& title, const QString& filter) {
  QFileDialog dialog(window_, title);
  dialog.setFileMode(QFileDialog::ExistingFile);
  Prepare(dialog, Split(filter), folder_);
  if (dialog.exec() != QDialog::Accepted) {
    return std::nullopt;
  }
  QString path = dialog.selectedFiles().value(0);
  folder_ = QFileInfo(path).absolutePath();
  return path;
}

std::optional<SaveChoice> WindowFileDialogs::AskSave(const QString& title, const QString& filter,
                                                     const QString& proposed) {
  QFileDialog dialog(window_, title);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  const NameFilters names = Split(filter);
  Prepare(dialog, names, folder_);
  if (!proposed.isEmpty()) {
    dialog.selectFile(proposed);
  }
  if (dialog.exec() != QDialog::Accepted) {
    return std::nullopt;
  }
  const QString path = dialog.selectedFiles().value(0);
  folder_ = QFileInfo(path).absolutePath();
  // With the patterns hidden, the toolkit's own dialog names the filter by its text alone.
  const QString selected = dialog.selectedNameFilter();
  const qsizetype index = std::max(names.filters.indexOf(selected), names.texts.indexOf(selected));
  return SaveChoice{path, static_cast<int>(index) + 1};
}

QString WithExtension(const QString& path, const QString& extension, const QStringList& others) {
  const QString suffix = u'.' + QFileInfo(path).suffix();
  return suffix.compare(extension, Qt::CaseInsensitive) == 0 ||
                 others.contains(suffix, Qt::CaseInsensitive)
             ? path
             : path + extension;
}

}  // namespace vexa
