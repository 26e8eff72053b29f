// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "views/common/number_field.h"

namespace vexa {

/// A field for a limit.
class RealEntry : public NumberField {
  Q_OBJECT

 public:
  explicit RealEntry(const QString& name, QWidget* parent = nullptr);
};

}  // namespace vexa
