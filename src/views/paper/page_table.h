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

  [[nodiscard]] double CaptionHeight() const { return caption.isEmpty() ? 0.0 : 56.0; }
  /// Of caption and titles, without a row.
  [[nodiscard]] double HeadHeight() const { return CaptionHeight() + rowHeight + 6.0; }
  [[nodiscard]] double Height() const {
    return HeadHeight() + static_cast<double>(rows.size()) * rowHeight;
  }

  /// Paints the table over the width of the place; texts too wide for their column are cut.
  void Paint(QPainter& painter, const QRectF& place) const;
};

}  // namespace vexa
