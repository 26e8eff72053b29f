// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/paper/page_flow.h"

#include <algorithm>

namespace vexa {

PageFlow::PageFlow(const QRectF& body) : body_(body), y_(body.top()) {}

void PageFlow::NewPage() {
  if (!pages_.back().empty()) {
    pages_.emplace_back();
    y_ = body_.top();
  }
}

void PageFlow::Add(double height, const Paint& paint) {
  if (height > Left()) {
    NewPage();
  }
  pages_.back().push_back({QRectF(body_.left(), y_, body_.width(), height), paint});
  y_ += height + kGap;
}

void PageFlow::Add(const PageTable& table) {
  if (const double height = table.Height(Width()); height > Left() && height <= PageHeight()) {
    NewPage();
  }
  auto row = table.rows.begin();
  while (row != table.rows.end()) {
    if (Left() < table.HeadHeight(Width()) + table.RowHeight(*row, Width())) {
      NewPage();
    }
    PageTable part = table;
    part.rows.clear();
    do {
      part.rows.push_back(*row++);
    } while (row != table.rows.end() &&
             part.Height(Width()) + table.RowHeight(*row, Width()) <= Left());
    Add(part.Height(Width()),
        [part](QPainter& painter, const QRectF& place) { part.Paint(painter, place); });
  }
}

void PageFlow::PaintPage(QPainter& painter, int page) const {
  for (const Piece& piece : pages_[static_cast<std::size_t>(page)]) {
    piece.paint(painter, piece.place);
  }
}

}  // namespace vexa
