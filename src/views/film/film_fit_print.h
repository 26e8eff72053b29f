// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QStringList>
#include <optional>

#include "optics/film_stack_file.h"
#include "views/paper/page_table.h"
#include "views/paper/printed_pages.h"

class QCustomPlot;

namespace vexa {

/// What a fit window has to tell on paper or on the clipboard.
struct FilmFitReport {
  QList<QStringList> stack;           ///< StackRows
  QList<QStringList> fits;            ///< the slots and their fits, with headings
  QString shown;                      ///< the slot of which the words speak
  QString words;                      ///< all that its fit says
  std::optional<PageTable> settings;  ///< FitSettingTable
};

/// A stack in rows with headings: layer, material, thickness.
[[nodiscard]] QList<QStringList> StackRows(const FilmStackSetting& setting);

/// The cells of a row parted by tabs.
[[nodiscard]] QString ReportText(const FilmFitReport& report);

/// The pages; both plots are drawn as they are now.
[[nodiscard]] PageMaker ReportPages(const QString& title, const FilmFitReport& report,
                                    QCustomPlot& fit, QCustomPlot& fourier);

}  // namespace vexa
