// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAction>
#include <QDir>
#include <QString>
#include <functional>

namespace vexa {

class VEXA;

/// Pictures of every window and view for the manual, taken from a window that holds measurements.
class Gallery {
 public:
  /// The pictures go into `directory`, one PNG a window, named after it.
  explicit Gallery(const QString& directory);

  /// Shows one after the other; the number of pictures that could not be taken.
  [[nodiscard]] int Take(VEXA& window);

 private:
  void TakeViews(VEXA& window);
  void TakeDialogs(VEXA& window);
  void TakeWindows(VEXA& window);
  void TakeFilmFit(VEXA& window);
  void TakeCie(VEXA& window);
  void TakeRecords(VEXA& window);
  void TakeLot(VEXA& window);
  void TakeMessage();
  /// The dialog that `open` opens, each of its pages; `inside` may do more in it before it closes.
  void TakeDialog(const std::function<void()>& open, const QString& name,
                  const std::function<void(QWidget&)>& inside = {});
  void TakeWindow(const QString& objectName, const QString& name);
  void Save(QWidget& widget, const QString& name);
  void Fail(const QString& name);

  QDir directory_;
  int missing_ = 0;
};

}  // namespace vexa
