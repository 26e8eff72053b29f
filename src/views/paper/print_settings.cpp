// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/paper/print_settings.h"

#include <QRectF>
#include <algorithm>

#include "base/file_kind.h"
#include "base/header_version.h"
#include "base/text_file.h"
#include "base/translation.h"

namespace vexa {
namespace {

double ReadMargin(TextReader& reader) {
  const double margin = reader.RealField();
  if (!(margin >= 0.0 && margin <= kLargestMarginMm)) {
    throw reader.Fault(FileFaultKind::kRange);
  }
  return margin;
}

}  // namespace

QPageLayout PageLayoutOf(const PrintSettings& settings) {
  return {QPageSize(settings.paper),
          settings.landscape ? QPageLayout::Landscape : QPageLayout::Portrait, settings.marginsMm,
          QPageLayout::Millimeter};
}

bool LeavesRoom(const PrintSettings& settings) {
  const QSizeF room = PageLayoutOf(settings).paintRect(QPageLayout::Millimeter).size();
  return std::min(room.width(), room.height()) >= kSmallestSideMm;
}

QString PrinterText(const QString& printerName) {
  return printerName.isEmpty() ? Text::tr("PDFﾌｧｲﾙ") : printerName;
}

QString PrintSettingsText(const PrintSettings& settings) {
  return QStringLiteral("%1　%2 %3")
      .arg(PrinterText(settings.printerName), QPageSize::name(settings.paper),
           settings.landscape ? Text::tr("横") : Text::tr("縦"));
}

ReadResult<PrintSettings> ReadPrintFile(const QString& path) {
  return TryRead([&path] {
    TextReader reader = TextReader::Open(path);
    if (ReadHeaderVersion(reader.Line(), file_kind::kPrint.word) <= 0.0) {
      throw reader.Fault(FileFaultKind::kVersion);
    }
    PrintSettings settings;
    settings.printerName = reader.Line();
    const QString paper = reader.Line();
    const auto* const known =
        std::ranges::find(kPapers, paper, [](auto id) { return QPageSize::key(id); });
    if (known == kPapers.end()) {
      throw reader.Fault(FileFaultKind::kValue);
    }
    settings.paper = *known;
    settings.landscape = reader.FlagLine();
    const double left = ReadMargin(reader);
    const double top = ReadMargin(reader);
    const double right = ReadMargin(reader);
    settings.marginsMm = {left, top, right, ReadMargin(reader)};
    if (!LeavesRoom(settings)) {
      throw reader.Fault(FileFaultKind::kRange);
    }
    return settings;
  });
}

WriteResult WritePrintFile(const QString& path, const PrintSettings& settings) {
  const QMarginsF& margins = settings.marginsMm;
  return FileText()
      .Line(file_kind::kPrint.header.toString())
      .Line(settings.printerName)
      .Line(QPageSize::key(settings.paper))
      .Flag(settings.landscape)
      .Number(margins.left())
      .Number(margins.top())
      .Number(margins.right())
      .Number(margins.bottom())
      .WriteTo(path);
}

}  // namespace vexa
