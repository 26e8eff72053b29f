// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/file_dialogs.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileInfo>
#include <algorithm>
#include <coroutine>

#include "base/translation.h"

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

/// Icons and kinds of files by what their names say. The toolkit's provider looks into every file
/// of a folder, and closing one that is locked (the records) gives up this program's locks on it.
class NamesAloneIcons : public QFileIconProvider {
 public:
  using QFileIconProvider::icon;
  [[nodiscard]] QIcon icon(const QFileInfo& file) const override {
    return icon(file.isDir() ? IconType::Folder : IconType::File);
  }
  [[nodiscard]] QString type(const QFileInfo& file) const override {
    return file.isDir() ? Text::tr("ﾌｫﾙﾀﾞ") : file.suffix();
  }
};

/// Opens the dialog, and waits until it is closed or goes, which is as good as cancelled.
class Choice {
 public:
  explicit Choice(QFileDialog& dialog) : dialog_(dialog) {}

  [[nodiscard]] bool await_ready() const { return false; }
  void await_suspend(std::coroutine_handle<> asking) {
    const auto goOn = [this, asking](bool accepted) {
      QObject::disconnect(closed_);
      QObject::disconnect(gone_);
      accepted_ = accepted;
      asking.resume();
    };
    closed_ = QObject::connect(&dialog_, &QDialog::finished,
                               [goOn](int result) { goOn(result == QDialog::Accepted); });
    gone_ = QObject::connect(&dialog_, &QObject::destroyed, [goOn] { goOn(false); });
    dialog_.open();
  }
  [[nodiscard]] bool await_resume() const { return accepted_; }

 private:
  QFileDialog& dialog_;
  QMetaObject::Connection closed_;
  QMetaObject::Connection gone_;
  bool accepted_ = false;
};

}  // namespace

QCoro::Task<std::optional<QString>> WindowFileDialogs::AskOpen(QString title, QString filter) {
  QFileDialog* dialog = Make(title, Split(filter).filters);
  dialog->setFileMode(QFileDialog::ExistingFile);
  Choice choice(*dialog);
  const bool accepted = co_await choice;
  if (!accepted) {
    co_return std::nullopt;
  }
  const QString path = dialog->selectedFiles().value(0);
  folder_ = QFileInfo(path).absolutePath();
  co_return path;
}

QCoro::Task<std::optional<SaveChoice>> WindowFileDialogs::AskSave(QString title, QString filter,
                                                                  QString proposed) {
  const NameFilters names = Split(filter);
  QFileDialog* dialog = Make(title, names.filters);
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  dialog->setFileMode(QFileDialog::AnyFile);
  dialog->setOption(QFileDialog::DontConfirmOverwrite);
  if (!proposed.isEmpty()) {
    dialog->selectFile(proposed);
  }
  Choice choice(*dialog);
  const bool accepted = co_await choice;
  if (!accepted) {
    co_return std::nullopt;
  }
  const QString path = dialog->selectedFiles().value(0);
  folder_ = QFileInfo(path).absolutePath();
  // With the patterns hidden, the toolkit's own dialog names the filter by its text alone.
  const QString selected = dialog->selectedNameFilter();
  const qsizetype index = std::max(names.filters.indexOf(selected), names.texts.indexOf(selected));
  const SaveChoice chosen{path, static_cast<int>(index) + 1};
  co_return chosen;
}

// A child of the window that asks, and so gone with it.
QFileDialog* WindowFileDialogs::Make(const QString& title, const QStringList& filters) {
  QWidget* asking = QApplication::activeModalWidget();
  auto* dialog = new QFileDialog(asking != nullptr ? asking : window_.data(), title);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  // The desktop's own dialog would look into the files, too, within this process.
  dialog->setOption(QFileDialog::DontUseNativeDialog);
  static NamesAloneIcons icons;
  dialog->setIconProvider(&icons);
  dialog->setOption(QFileDialog::HideNameFilterDetails);
  dialog->setNameFilters(filters);
  if (!folder_.isEmpty()) {
    dialog->setDirectory(folder_);
  }
  QObject::connect(&end_, &QObject::destroyed, dialog, [dialog] { delete dialog; });
  return dialog;
}

QString WithExtension(const QString& path, const QString& extension, const QStringList& others) {
  const QString suffix = u'.' + QFileInfo(path).suffix();
  return suffix.compare(extension, Qt::CaseInsensitive) == 0 ||
                 others.contains(suffix, Qt::CaseInsensitive)
             ? path
             : path + extension;
}

}  // namespace vexa
