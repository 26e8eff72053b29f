// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRectF>
#include <functional>
#include <vector>

#include "views/paper/page_table.h"

namespace vexa {

/// Puts pieces below one another, page after page. Lengths are tenths of a millimetre.
class PageFlow {
 public:
  using Paint = std::function<void(QPainter& painter, const QRectF& place)>;

  /// Between two pieces.
  static constexpr double kGap = 40.0;

  /// `body` is the place of each page that the flow may fill.
  explicit PageFlow(const QRectF& body);

  /// What is left of the present page.
  [[nodiscard]] double Left() const { return body_.bottom() - y_; }
  [[nodiscard]] double PageHeight() const { return body_.height(); }
  [[nodiscard]] double Width() const { return body_.width(); }

  /// Goes on at the top of a page; stays where nothing stands on it yet.
  void NewPage();

  /// Adds a piece as wide as the page, on the next page when it does not fit onto this one.
  void Add(double height, const Paint& paint);

  /// Adds a table: on one page where that is possible, else cut between rows with its titles
  /// repeated.
  void Add(const PageTable& table);

  [[nodiscard]] int PageCount() const { return static_cast<int>(pages_.size()); }
  void PaintPage(QPainter& painter, int page) const;

 private:
  struct Piece {
    QRectF place;
    Paint paint;
  };

  QRectF body_;
  double y_;
  std::vector<std::vector<Piece>> pages_{1};
};

}  // namespace vexa
