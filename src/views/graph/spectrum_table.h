// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractTableModel>
#include <QTableView>
#include <vector>

#include "measurement/settings.h"
#include "views/graph/spectrum_curves.h"

namespace vexa {

/// Spectra as rows of a wavelength and the value of each curve there.
class SpectrumTableModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  using QAbstractTableModel::QAbstractTableModel;

  /// A row for each step from the shortest wavelength of the settings to the longest; the values
  /// after a format pattern.
  void Show(std::vector<SpectrumCurve> curves, const DisplaySettings& display, QStringView pattern);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                    int role) const override;

 private:
  std::vector<SpectrumCurve> curves_;
  QString pattern_;
  int firstNm_ = ReflectanceSpectrum::kFirstNm;
  int stepNm_ = 1;
  int rows_ = 0;
};

/// Such a table to look at. Cells can be selected and copied (Ctrl+C or the context menu) as
/// tab-separated text with the headings of their columns.
class SpectrumTable : public QTableView {
  Q_OBJECT

 public:
  explicit SpectrumTable(QWidget* parent = nullptr);

  /// See SpectrumTableModel::Show.
  void Show(std::vector<SpectrumCurve> curves, const DisplaySettings& display, QStringView pattern);

  /// The rectangle around the selected cells, its headings first; empty without a selection.
  [[nodiscard]] QString SelectedText() const;

 private:
  void CopySelection() const;

  SpectrumTableModel* rows_;
};

}  // namespace vexa
