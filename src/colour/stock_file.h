// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "base/file_fault.h"
#include "base/message.h"
#include "base/replace_file.h"
#include "colour/colour_stock.h"

namespace vexa {

/// Reads a stock file of version 3.21 or 3.00 with at most 100 points.
ReadResult<ColourStock> ReadStockFile(const QString& path);

/// Writes the stock, always as version 3.21; see ReplaceFile.
WriteResult WriteStockFile(const QString& path, const ColourStock& stock);

/// What to tell of a stock file that cannot be read.
[[nodiscard]] MessageCall StockMessage(const FileFault& fault);

}  // namespace vexa
