// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCheckBox>
#include <QGroupBox>

#include "standards/standard_set.h"
#include "views/standards/real_entry.h"

namespace vexa {

/// A reference value that the a*b* diagram may show beside the standard.
class MarkerGroup : public QGroupBox {
  Q_OBJECT

 public:
  /// `tip` says what is drawn.
  MarkerGroup(const QString& name, const QString& caption, const QString& valueCaption,
              const QString& tip);

  void Show(const ReferenceMarker& marker);
  /// Takes the entries over. Returns the field when it holds no number although the marker is
  /// shown, or null.
  [[nodiscard]] QLineEdit* TakeInto(ReferenceMarker& marker) const;

 private:
  QCheckBox* shown_;
  RealEntry* value_;
};

}  // namespace vexa
