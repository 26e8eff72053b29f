// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qcustomplot.h>

#include <functional>

#include "base/message.h"
#include "views/common/file_dialogs.h"

namespace vexa {

/// Lets the user take a plot elsewhere: the context menu copies it to the clipboard as a picture
/// (Ctrl+C, at twice the size of the screen) or saves it as PNG, SVG or PDF.
/// `name` proposes a file name without its ending, where it is given.
void AddExport(QCustomPlot& plot, MessageService& messages, FileDialogs& dialogs,
               const std::function<QString()>& name = {});

/// The plot as the bytes of a picture file; the suffix "svg" or "pdf" decides, all else is PNG.
[[nodiscard]] QByteArray PlotPicture(QCustomPlot& plot, const QString& suffix);

}  // namespace vexa
