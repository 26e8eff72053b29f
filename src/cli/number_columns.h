// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace vexa::cli {

// A text file of numbers: one a line, or a table with a heading, with commas, tabs or blanks
// between its columns. Left out are lines that are empty or begin with "#", and the rest of a line
// from a
// "#" with blanks around it. The text is UTF-8 or, when it is no such text, in the program's code
// page. Every cell of a column that is asked for has to be there. A fault is a complaint with the
// number of its line, and nothing.

/// The numbers of a file: those of the column `name`, or, without a name, of the only column, whose
/// heading may be missing.
[[nodiscard]] std::optional<std::vector<double>> ReadNumbers(const QString& path,
                                                             const std::optional<QString>& name);

/// Columns of a table.
struct LabelledNumbers {
  std::vector<QStringList> labels;  ///< a list for each column of labels
  std::vector<double> numbers;
};

/// Columns of labels, and one of numbers, by their names in the heading.
[[nodiscard]] std::optional<LabelledNumbers> ReadLabelledNumbers(const QString& path,
                                                                 const QStringList& labelColumns,
                                                                 const QString& numberColumn);

}  // namespace vexa::cli
