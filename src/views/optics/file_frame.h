// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGroupBox>
#include <QLineEdit>

namespace vexa {

/// A frame with the name of a chosen file and a button that asks for another.
class FileFrame : public QGroupBox {
  Q_OBJECT

 public:
  /// `name` begins the object names: the name field is NAMEFileName, the button NAMELoad.
  FileFrame(const QString& caption, const QString& name, const QString& path,
            QWidget* parent = nullptr);

  void SetPath(const QString& path);
  [[nodiscard]] QString Path() const { return path_->text(); }

 signals:
  void LoadRequested();

 private:
  QLineEdit* path_;
};

}  // namespace vexa
