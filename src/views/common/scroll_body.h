// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>

namespace vexa {

/// The body of a dialog: as large as its content where the screen has room for it, and scrolling
/// where it has not. What a dialog cannot do without, as its buttons, stands beside it. The toolkit
/// opens no dialog larger than two thirds of the screen: one with such a body takes its sizeHint
/// itself.
class ScrollBody : public QScrollArea {
  Q_OBJECT

 public:
  /// Takes the content over.
  explicit ScrollBody(QWidget* content, QWidget* parent = nullptr);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;
};

}  // namespace vexa
