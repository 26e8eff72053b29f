// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>
#include <QCoroTask>
#include <QLabel>
#include <QLineEdit>
#include <QWidget>
#include <optional>

#include "records/recipe.h"
#include "views/common/file_dialogs.h"

namespace vexa {

/// What is entered once for a lot: recipe, lot, operator. Return goes from field to field, and from
/// the last one on.
class LotStartPage : public QWidget {
  Q_OBJECT

 public:
  /// Offers the recipes of the program directory.
  LotStartPage(const QString& programDirectory, FileDialogs& dialogs, QWidget* parent = nullptr);

  /// The recipe, read now; nothing, and the page says why, when it cannot be read.
  [[nodiscard]] std::optional<Recipe> ReadChosenRecipe();
  [[nodiscard]] QString Lot() const { return lot_->text().simplified(); }
  [[nodiscard]] QString OperatorName() const { return operator_->text().simplified(); }

 signals:
  void StartRequested();
  void ReportRequested();  ///< of the lot that is entered

 private:
  void FillRecipes(const QString& programDirectory);
  void AddRecipe(const QString& path);
  QCoro::Task<> Browse();
  void ShowRecipe();

  FileDialogs& dialogs_;
  QComboBox* recipes_;
  QLineEdit* lot_;
  QLineEdit* operator_;
  QLabel* about_;
};

}  // namespace vexa
