// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRectF>
#include <QString>
#include <vector>

class QPainter;

namespace vexa {

/// A table on a page. Lengths are tenths of a millimetre.
struct PageTable {
  struct Column {
    QString title;
    double width = 0.0;  ///< when the table is as wide as its columns; all are stretched alike
    Qt::Alignment alignment = Qt::AlignRight;
    bool wraps = false;  ///< a text too wide goes on in further lines, its row grows with it
  };
  struct Cell {
    QString text;
    bool alarming = false;  ///< stands out
  };

  QString caption;
  std::vector<Column> columns;
  std::vector<std::vector<Cell>> rows;
  int fontSize = 28;
  double rowHeight = 45.0;
  int rowsPerRule = 1;  ///< a fine line below each so many rows
  /// Titles are never cut: they go on in further lines, and a column is as wide as their longest
  /// word. Otherwise they lose their middle.
  bool wholeTitles = true;

  [[nodiscard]] double CaptionHeight() const { return caption.isEmpty() ? 0.0 : 56.0; }
  /// Of caption and titles, without a row, in a table of this width.
  [[nodiscard]] double HeadHeight(double width) const;
  /// Of a row in a table of this width.
  [[nodiscard]] double RowHeight(const std::vector<Cell>& row, double width) const;
  /// Of all in a table of this width.
  [[nodiscard]] double Height(double width) const;

  /// Paints the table over the width of the place. Texts too wide for their column lose their
  /// middle, unless the column wraps them: of those thirty lines are shown.
  void Paint(QPainter& painter, const QRectF& place) const;

 private:
  [[nodiscard]] double Natural(const Column& column) const;
  [[nodiscard]] double Stretch(double width) const;
  [[nodiscard]] int FontSize(double width) const;
};

}  // namespace vexa
