// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoroTask>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>
#include <optional>
#include <utility>

class QFileDialog;

namespace vexa {

/// A file chosen for saving, and the place (from 1) of the filter it was chosen under.
struct SaveChoice {
  QString path;
  int filterIndex = 1;
};

/// Where the commands ask for file names: the toolkit's dialogs, or prepared answers in a test.
/// A filter is pairs of a text and its patterns: "text|*.csv;*.dat|text|*.env".
/// Who is there to answer at once (a test) has answered when a call returns. A dialog that goes
/// with its window answers nothing: what follows that touches nothing that goes with a window.
class FileDialogs {
 public:
  FileDialogs() = default;
  virtual ~FileDialogs() = default;
  FileDialogs(const FileDialogs&) = delete;
  FileDialogs& operator=(const FileDialogs&) = delete;

  /// An existing file; nothing when cancelled.
  virtual QCoro::Task<std::optional<QString>> AskOpen(QString title, QString filter) = 0;

  /// A file name without a question about overwriting; nothing when cancelled. `proposed` stands in
  /// the entry at first.
  virtual QCoro::Task<std::optional<SaveChoice>> AskSave(QString title, QString filter,
                                                         QString proposed) = 0;
  QCoro::Task<std::optional<SaveChoice>> AskSave(QString title, QString filter) {
    return AskSave(std::move(title), std::move(filter), {});
  }
};

/// The toolkit's dialogs over the window that asks. They remember the folder used last. Those that
/// are open when this object ends are cancelled.
class WindowFileDialogs : public FileDialogs {
 public:
  /// The window over which a dialog opens where no other is in front; null for none.
  void SetWindow(QWidget* window) { window_ = window; }

  QCoro::Task<std::optional<QString>> AskOpen(QString title, QString filter) override;
  using FileDialogs::AskSave;
  QCoro::Task<std::optional<SaveChoice>> AskSave(QString title, QString filter,
                                                 QString proposed) override;

 private:
  [[nodiscard]] QFileDialog* Make(const QString& title, const QStringList& filters);

  QPointer<QWidget> window_;
  QString folder_;
  QObject end_;  ///< the open dialogs go with it
};

/// The name with the extension (".csv") added, unless it ends with it or with one of the others.
[[nodiscard]] QString WithExtension(const QString& path, const QString& extension,
                                    const QStringList& others = {});

}  // namespace vexa
