// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCheckBox>
#include <QDialog>

#include "base/message.h"
#include "optics/thickness_history.h"
#include "views/common/number_field.h"

namespace vexa {

/// Asks for the scale of the thickness history graph.
class ThickGSetDlg : public QDialog {
  Q_OBJECT

 public:
  ThickGSetDlg(const ThicknessScale& scale, bool autoScale, MessageService& messages,
               QWidget* parent = nullptr);

  /// "OK" once a scale within the limits was accepted, else "CANCEL".
  [[nodiscard]] QString Outcome() const;

  [[nodiscard]] bool AutoScale() const { return autoScale_->isChecked(); }
  /// The scale accepted.
  [[nodiscard]] const ThicknessScale& Scale() const { return scale_; }

  void accept() override;

 private:
  void EnableFields();
  [[nodiscard]] bool TakeScale();

  MessageService& messages_;
  ThicknessScale scale_;
  NumberField* minimum_;
  NumberField* maximum_;
  QCheckBox* autoScale_;
};

}  // namespace vexa
