// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace vexa::test {

/// A directory of its own, whose name holds a blank and Japanese letters, and files in it by bytes.
class TemporaryFiles {
 public:
  [[nodiscard]] QString Directory() const { return directory_.path(); }
  [[nodiscard]] QString Path(const char* name) const {
    return directory_.filePath(QString::fromUtf8(name));
  }

  /// The words of a text; "@NAME" is the file of that name, "@" the directory itself.
  [[nodiscard]] QStringList Words(const QByteArray& text) const {
    QStringList words = QString::fromUtf8(text).split(u' ', Qt::SkipEmptyParts);
    for (QString& word : words) {
      if (word.startsWith(u'@')) {
        word = Path(word.sliced(1).toUtf8());
      }
    }
    return words;
  }

  /// Writes the file and returns its path.
  QString Write(const char* name, const QByteArray& bytes) const {
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return file.fileName();
  }

  [[nodiscard]] bool Has(const char* name) const { return QFile::exists(Path(name)); }

  [[nodiscard]] QByteArray Read(const char* name) const {
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll();
  }

 private:
  QTemporaryDir directory_{QDir::tempPath() + QStringLiteral("/表 示-XXXXXX")};
};

}  // namespace vexa::test
