// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRectF>
#include <QStringList>

#include "optics/extremum_list.h"
#include "optics/thickness_history.h"

class QPainter;

namespace vexa {

/// Paints the history onto the page: caption, graph and the list of its points.
void PaintHistoryPage(QPainter& painter, const QRectF& page, const ThicknessHistory& history,
                      const ThicknessScale& scale);

/// The titles of the columns of ExtremumRows.
[[nodiscard]] QStringList WaveListTitles();

/// Paints the wavelength list onto the page: caption, whose it is, the doubts about its thickness
/// in a line each, and a row for each extremum.
void PaintWaveListPage(QPainter& painter, const QRectF& page, const QString& whose,
                       const QString& doubts, const ExtremumList& list);

}  // namespace vexa
