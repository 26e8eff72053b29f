// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMarginsF>
#include <QPageLayout>
#include <QString>
#include <array>

#include "base/file_fault.h"
#include "base/replace_file.h"

namespace vexa {

/// The papers to choose from.
inline constexpr std::array kPapers{QPageSize::A4,    QPageSize::A3,    QPageSize::A5,
                                    QPageSize::JisB4, QPageSize::JisB5, QPageSize::Letter};

inline constexpr double kLargestMarginMm = 50.0;
inline constexpr double kSmallestSideMm = 100.0;

/// What pages are printed on.
struct PrintSettings {
  QString printerName;  ///< empty: a PDF file
  QPageSize::PageSizeId paper = QPageSize::A4;
  bool landscape = false;
  QMarginsF marginsMm{15.0, 15.0, 15.0, 15.0};  ///< 0..kLargestMarginMm each

  bool operator==(const PrintSettings&) const = default;
};

/// The settings as a layout of pages.
[[nodiscard]] QPageLayout PageLayoutOf(const PrintSettings& settings);

/// True when the margins leave enough of the paper to print on: kSmallestSideMm on both axes.
[[nodiscard]] bool LeavesRoom(const PrintSettings& settings);

/// The printer's name, or what stands for a PDF file.
[[nodiscard]] QString PrinterText(const QString& printerName);

/// Printer, paper and orientation in one line.
[[nodiscard]] QString PrintSettingsText(const PrintSettings& settings);

/// Reads a print settings file.
ReadResult<PrintSettings> ReadPrintFile(const QString& path);

/// Writes one; see ReplaceFile.
WriteResult WritePrintFile(const QString& path, const PrintSettings& settings);

}  // namespace vexa
