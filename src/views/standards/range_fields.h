// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "standards/standard_set.h"
#include "views/standards/real_entry.h"

namespace vexa {

/// The two fields of a range, to be put into a layout. They are named after `name`.
struct RangeFields {
  explicit RangeFields(const QString& name);

  void Show(const StandardLimits& limits);

  /// Takes the entries over; of a range that is off, those that are numbers. Returns the first
  /// field that holds no number although the range is on, or null.
  [[nodiscard]] QLineEdit* TakeInto(StandardLimits& limits) const;

  RealEntry* upper;
  RealEntry* lower;
};

}  // namespace vexa
