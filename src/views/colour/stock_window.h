// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <functional>
#include <memory>

#include "base/message.h"
#include "measurement/session.h"
#include "views/common/file_dialogs.h"

namespace vexa {

class BackgroundPicture;
class ChromaticityDiagram;

/// The accumulated colour points on a diagram of their own, and the stock file.
class StockWindow : public QDialog {
  Q_OBJECT

 public:
  StockWindow(Session& session, MessageService& messages, FileDialogs& dialogs,
              std::shared_ptr<BackgroundPicture> picture, QWidget* parent = nullptr);

  /// Whether the diagram says that the points are of the instrument's own colours.
  void SetNamed(bool named);

  /// Shows the stock as it is now.
  void Refresh();

 private:
  QPushButton* AddButton(const char* name, const QString& caption,
                         const std::function<void()>& run);
  void ClearAll();
  void ClearLast();
  QCoro::Task<> Load();
  QCoro::Task<> Save();
  void CloseWindow();

  Session& session_;
  const VEXATYPE& state_;
  MessageService& messages_;
  FileDialogs& dialogs_;
  ChromaticityDiagram* diagram_;
  QLabel* count_;
  QPushButton* load_;
  QPushButton* save_;
  QPushButton* clear_;
  QPushButton* clearAll_;
  QPushButton* close_;
};

}  // namespace vexa
