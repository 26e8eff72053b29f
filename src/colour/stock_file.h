// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "colour/colour_stock.h"

namespace vexa {

/// Reads a stock file of version 3.21 or 3.00. False when it is no such file, is cut short, holds a
/// value that is none of its kind, or a count outside 0..100. What was read before that stays in
/// `stock`: the conditions field by field; then, once the count is known, the points of the file
/// take the place of the old ones, and `Count` is the number of whole points read.
[[nodiscard]] bool ReadStockFile(const QString& path, ColourStock& stock);

/// Writes the stock, always as version 3.21; true when written. See FileText::WriteTo.
[[nodiscard]] bool WriteStockFile(const QString& path, const ColourStock& stock);

/// The message of a failed ReadStockFile, to be shown as an error with the stop icon.
[[nodiscard]] QString StockReadErrorText();

}  // namespace vexa
