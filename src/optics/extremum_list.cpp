// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/extremum_list.h"

#include "base/number_text.h"

namespace vexa {

QStringList ExtremumRows(const ExtremumList& list) {
  QStringList rows;
  for (const Extremum& extremum : list.Found()) {
    const QStringList columns{FormatNumber(static_cast<double>(rows.size() + 1), u"##0"),
                              extremum.maximum ? QStringLiteral("P") : QStringLiteral("V"),
                              FormatNumber(extremum.point.wavelengthNm, u"##0"),
                              FormatNumber(extremum.point.reflectance, u"###0.0000")};
    rows << columns.join(u'\t');
  }
  return rows;
}

}  // namespace vexa
