// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <array>
#include <optional>
#include <vector>

#include "colour/cie_colour.h"

class QGridLayout;

namespace vexa {

/// The CIE colour as a further column of the colour values, beside the instrument's own: a heading
/// above both, the values, their spread, and what is said of the range.
class CieColumn {
 public:
  /// Where the rows of the values stand in the grid, whose row 0 is free; behind its last row come
  /// further ones.
  struct Rows {
    std::array<int, 3> coordinates;
    int chroma;
    int hue;
    int average;
    int luminous;
  };

  CieColumn(QGridLayout& grid, const Rows& rows);

  /// Shows x, y, Y or a*, b*, L* in the rows of the coordinates; "-" for what does not exist.
  void Show(const std::optional<CieColour>& colour, bool xyMode);

 private:
  static QLabel* AddText(QGridLayout& grid, int row, int column, const char* name,
                         const QString& text, int columns = 1);
  static QLabel* AddNumber(QGridLayout& grid, int row, const char* name);
  void AddRow(QGridLayout& grid, int row, const QString& caption, const char* name,
              double CieColour::*value, const QString& tip);

  /// A label that always shows the same value.
  struct Fixed {
    QLabel* label;
    double CieColour::*value;
  };

  std::vector<Fixed> fixed_;
  std::array<QLabel*, 3> coordinates_{};
};

}  // namespace vexa
