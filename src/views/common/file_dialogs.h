// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

class QWidget;

namespace vexa {

/// A file chosen for saving, and the place (from 1) of the filter it was chosen under.
struct SaveChoice {
  QString path;
  int filterIndex = 1;
};

/// Where the commands ask for file names: the toolkit's dialogs, or prepared answers in a test.
/// A filter is pairs of a text and its patterns: "text|*.csv;*.dat|text|*.env".
class FileDialogs {
 public:
  FileDialogs() = default;
  virtual ~FileDialogs() = default;
  FileDialogs(const FileDialogs&) = delete;
  FileDialogs& operator=(const FileDialogs&) = delete;

  /// An existing file; nothing when cancelled.
  virtual std::optional<QString> AskOpen(const QString& title, const QString& filter) = 0;

  /// A file name without a question about overwriting; nothing when cancelled. `proposed` stands in
  /// the entry at first.
  virtual std::optional<SaveChoice> AskSave(const QString& title, const QString& filter,
                                            const QString& proposed) = 0;
  std::optional<SaveChoice> AskSave(const QString& title, const QString& filter) {
    return AskSave(title, filter, {});
  }
};

/// The toolkit's dialogs over a window. They remember the folder used last.
class WindowFileDialogs : public FileDialogs {
 public:
  void SetWindow(QWidget* window) { window_ = window; }

  std::optional<QString> AskOpen(const QString& title, const QString& filter) override;
  using FileDialogs::AskSave;
  std::optional<SaveChoice> AskSave(const QString& title, const QString& filter,
                                    const QString& proposed) override;

 private:
  QWidget* window_ = nullptr;
  QString folder_;
};

/// The name with the extension (".csv") added, unless it ends with it or with one of the others.
[[nodiscard]] QString WithExtension(const QString& path, const QString& extension,
                                    const QStringList& others = {});

}  // namespace vexa
