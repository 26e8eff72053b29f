// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

namespace vexa {

/// A line of text that leaves out its middle where there is no room for it.
class ElidedLabel : public QLabel {
  Q_OBJECT

 public:
  explicit ElidedLabel(QWidget* parent = nullptr);

  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace vexa
