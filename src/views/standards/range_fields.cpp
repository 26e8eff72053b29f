// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/standards/range_fields.h"

namespace vexa {

RangeFields::RangeFields(const QString& name)
    : upper(new RealEntry(name + QStringLiteral("Upper"))),
      lower(new RealEntry(name + QStringLiteral("Lower"))) {}

void RangeFields::Show(const StandardLimits& limits) {
  upper->Show(limits.upper);
  lower->Show(limits.lower);
}

QLineEdit* RangeFields::TakeInto(StandardLimits& limits) const {
  limits.upper = upper->Entered().value_or(upper->Shown());
  limits.lower = lower->Entered().value_or(lower->Shown());
  if (!limits.enabled) {
    return nullptr;
  }
  if (!upper->Entered()) {
    return upper;
  }
  return lower->Entered() ? nullptr : lower;
}

}  // namespace vexa
