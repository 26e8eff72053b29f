// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCheckBox>
#include <QGroupBox>

#include "optics/film_fit.h"
#include "views/common/number_field.h"

namespace vexa {

/// The options of a film fit.
class FilmFitConditions : public QGroupBox {
  Q_OBJECT

 public:
  explicit FilmFitConditions(QWidget* parent = nullptr);

  void Show(const FilmFitOptions& options);

  /// Puts what is entered into the options. False when an entry is no number or out of its range,
  /// with what to tell of it; the focus is on the field then.
  [[nodiscard]] bool Take(FilmFitOptions& options, QString& fault);

 signals:
  void Edited();

 private:
  IntegerField* from_;
  IntegerField* to_;
  QCheckBox* scaleFree_;
  QCheckBox* offsetFree_;
  QCheckBox* indexFree_;
  NumberField* bandwidth_;
  NumberField* wavelengthUncertainty_;
  NumberField* indexUncertainty_;
  NumberField* confidence_;
};

}  // namespace vexa
