// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>
#include <QCoroTask>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <array>

#include "optics/film_stack_file.h"
#include "views/common/file_dialogs.h"
#include "views/common/number_field.h"

class QGridLayout;

namespace vexa {

/// The table of a film stack: two lines a layer from the air to the substrate, its material and
/// below it the thickness that is known or the range in which it is looked for.
class FilmStackEditor : public QGroupBox {
  Q_OBJECT

 public:
  explicit FilmStackEditor(FileDialogs& dialogs, QWidget* parent = nullptr);

  /// Shows substrate and layers of a setting, at least one layer.
  void Show(const FilmStackSetting& setting);

  /// Puts substrate and layers into a setting. False when a thickness is no number or its range is
  /// none; the focus is on it then.
  [[nodiscard]] bool Take(FilmStackSetting& setting);

  /// Puts the focus on the material of a layer, from 0, or behind the last one on the substrate's.
  void EnterMaterialAgain(std::size_t place);

 signals:
  void Edited();

 private:
  struct Row {
    QLabel* number = nullptr;
    QLineEdit* material = nullptr;
    QPushButton* file = nullptr;
    QComboBox* kind = nullptr;  ///< a range, or a known thickness
    NumberField* from = nullptr;
    QLabel* until = nullptr;
    NumberField* to = nullptr;
    QLabel* unit = nullptr;
    QPushButton* remove = nullptr;

    [[nodiscard]] std::array<QWidget*, 5> Thickness() const {
      return {kind, from, until, to, unit};
    }
  };

  void BuildRow(QGridLayout& grid, std::size_t place);
  void BuildMaterial(Row& row, const QString& name);
  static void PlaceMaterial(QGridLayout& grid, const Row& row, QPushButton& button, int line);
  void AddLayer();
  void RemoveLayer(std::size_t place);
  void ShowRows();
  QCoro::Task<> AskFile(QLineEdit& material);

  FileDialogs& dialogs_;
  std::size_t layers_ = 1;
  std::array<Row, kMostFilmLayers> rows_;
  Row substrate_;
  QPushButton* add_;
};

}  // namespace vexa
