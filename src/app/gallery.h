// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAction>
#include <QCoroTask>
#include <QDir>
#include <QPointer>
#include <QString>

namespace vexa {

class VEXA;

/// Pictures of every window and view for the manual, taken from a window that holds measurements.
class Gallery {
 public:
  /// The pictures go into `directory`, one PNG a window, named after it.
  Gallery(const QString& directory, VEXA& window);

  /// Shows one after the other; the number of pictures that could not be taken.
  [[nodiscard]] QCoro::Task<int> Take();

 private:
  QCoro::Task<> TakeViews();
  QCoro::Task<> TakeDialogs();
  QCoro::Task<> TakePrint();
  QCoro::Task<> TakeWindows();
  QCoro::Task<> TakeFilmFit();
  QCoro::Task<> TakeThicknessGraph();
  QCoro::Task<> TakeCie();
  QCoro::Task<> TakeRecords(const QString& suffix);
  QCoro::Task<> TakeLot();
  QCoro::Task<> TakeMessage();
  /// The dialog that has just been opened over `below` (null: over the windows), each of its pages.
  /// It stays open; null when there is none.
  QCoro::Task<QPointer<QWidget>> TakePages(QString name, const QWidget* below);
  /// The same, and closes it.
  QCoro::Task<> TakeDialog(QString name, const QWidget* below);
  QCoro::Task<> TakeWindow(QString objectName, QString name);
  QCoro::Task<> Save(QWidget& widget, QString name);
  void Fail(const QString& name);

  QDir directory_;
  VEXA& window_;
  int missing_ = 0;
};

}  // namespace vexa
