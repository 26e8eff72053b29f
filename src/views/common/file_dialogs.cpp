// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/file_dialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

namespace vexa {
namespace {

// "text|*.csv;*.dat|" becomes "text (*.csv *.dat)"; the dialog shows the text alone.
QStringList NameFilters(const QString& filter) {
  const QStringList parts = filter.split(u'|', Qt::SkipEmptyParts);
  QStringList names;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QString patterns = parts[i + 1];
    patterns.replace(u';', u' ').replace(QStringLiteral("*.*"), QStringLiteral("*"));
    names << QStringLiteral("%1 (%2)").arg(parts[i], patterns);
  }
  return names;
}

void Prepare(QFileDialog& dialog, const QString& filter, const QString& folder) {
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  dialog.setNameFilters(NameFilters(filter));
  if (!folder.isEmpty()) {
    dialog.setDirectory(folder);
  }
}

}  // namespace

std::optional<QString> WindowFileDialogs::AskOpen(const QString& title, const QString& filter) {
  QFileDialog dialog(window_, title);
  dialog.setFileMode(QFileDialog::ExistingFile);
  Prepare(dialog, filter, folder_);
  if (dialog.exec() != QDialog::Accepted) {
    return std::nullopt;
  }
  const QString path = dialog.selectedFiles().value(0);
  folder_ = QFileInfo(path).absolutePath();
  return path;
}

std::optional<SaveChoice> WindowFileDialogs::AskSave(const QString& title, const QString& filter) {
  QFileDialog dialog(window_, title);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  Prepare(dialog, filter, folder_);
  if (dialog.exec() != QDialog::Accepted) {
    return std::nullopt;
  }
  const QString path = dialog.selectedFiles().value(0);
  folder_ = QFileInfo(path).absolutePath();
  const auto index = dialog.nameFilters().indexOf(dialog.selectedNameFilter());
  return SaveChoice{path, static_cast<int>(index) + 1};
}

QString WithDefaultExtension(const QString& path, const QString& extension) {
  return QFileInfo(path).suffix().isEmpty() ? path + extension : path;
}

}  // namespace vexa
