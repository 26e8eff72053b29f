// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QString>
#include <QWidget>

namespace vexa {

/// One word as large as there is room for, on its own colour, above the number of the lens and a
/// few words more: to be read from two metres, by whoever sees no colours, too.
class VerdictPanel : public QWidget {
  Q_OBJECT

 public:
  struct Content {
    QString word;
    QColor background;
    QString number;
    QString details;  ///< lines
  };

  explicit VerdictPanel(QWidget* parent = nullptr);

  void Show(const Content& content);
  [[nodiscard]] const Content& Shown() const { return content_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Content content_;
};

}  // namespace vexa
