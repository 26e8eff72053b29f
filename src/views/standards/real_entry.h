// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "views/common/number_field.h"

namespace vexa {

/// A field for a limit. A number that was shown and not edited comes back as it was, however many
/// digits the field shows of it.
class RealEntry : public NumberField {
  Q_OBJECT

 public:
  explicit RealEntry(const QString& name, QWidget* parent = nullptr);

  void Show(double value);
  /// The number; nothing when the text is none.
  [[nodiscard]] std::optional<double> Entered() const;
  /// The number shown last.
  [[nodiscard]] double Shown() const { return shown_; }

 private:
  double shown_ = 0.0;
  QString shownText_;
};

}  // namespace vexa
