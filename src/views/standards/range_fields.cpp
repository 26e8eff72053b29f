// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/standards/range_fields.h"

namespace vexa {

RangeFields::RangeFields(const QString& name)
    : upper(new RealEntry(name + QStringLiteral("Upper"))),
      lower(new RealEntry(name + QStringLiteral("Lower"))) {}

void RangeFields::Show(const StandardLimits& limits) {
  upper->SetValue(limits.upper);
  lower->SetValue(limits.lower);
}

QLineEdit* RangeFields::TakeInto(StandardLimits& limits) const {
  limits.upper = upper->Value().value_or(upper->ValueSet());
  limits.lower = lower->Value().value_or(lower->ValueSet());
  if (!limits.enabled) {
    return nullptr;
  }
  if (!upper->Value()) {
    return upper;
  }
  return lower->Value() ? nullptr : lower;
}

}  // namespace vexa
