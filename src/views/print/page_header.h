// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRectF>

#include "measurement/vexatype.h"
#include "views/print/report_request.h"

class QPainter;

namespace vexa {

/// What stands above and below the content of every page of a report: title, operator, date, the
/// files of the settings and of the data, the conditions of the colours and of the measurement, and
/// the page number.
/// Lengths are tenths of a millimetre.
class PageHeader {
 public:
  PageHeader(const VEXATYPE& state, const ReportRequest& request);

  /// What it leaves of a page.
  [[nodiscard]] static QRectF Body(const QSizeF& page);

  /// `number` is 1..count.
  void Paint(QPainter& painter, const QSizeF& page, int number, int count) const;

 private:
  struct Entry {
    QString label;
    QString text;
  };

  QString title_;
  QString proof_;
  std::vector<Entry> entries_;  ///< two in a row
};

/// Paints what stands below a page: the number of the page, and what proves its rows, as
/// ProofText has it.
void PaintFooter(QPainter& painter, const QSizeF& page, int number, int count,
                 const QString& proof);

/// Number and hash of the last row of a record store, by which anyone can check later that all
/// rows up to it are still the same; empty without a store.
[[nodiscard]] QString ProofText(const QString& storePath);

/// The title of the request, or the usual one.
[[nodiscard]] QString ReportTitle(const ReportRequest& request);

}  // namespace vexa
