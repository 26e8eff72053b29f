// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/graph/spectrum_table.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <algorithm>
#include <cmath>

#include "base/number_text.h"
#include "base/translation.h"

namespace vexa {
namespace {

constexpr int kHeadingPadding = 16;
constexpr int kLeastWidth = 84;
constexpr int kMostWidth = 220;

}  // namespace

void SpectrumTableModel::Show(std::vector<SpectrumCurve> curves, const DisplaySettings& display,
                              QStringView pattern) {
  beginResetModel();
  curves_ = std::move(curves);
  pattern_ = pattern.toString();
  const auto limited = [](double nm) {
    return static_cast<int>(std::lround(
        std::clamp<double>(nm, ReflectanceSpectrum::kFirstNm, ReflectanceSpectrum::kLastNm)));
  };
  firstNm_ = limited(display.shortestNm);
  stepNm_ = std::max<int>(display.textStepNm, 1);
  const int lastNm = limited(display.longestNm);
  rows_ = curves_.empty() || lastNm < firstNm_ ? 0 : (lastNm - firstNm_) / stepNm_ + 1;
  endResetModel();
}

int SpectrumTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_;
}

int SpectrumTableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : 1 + static_cast<int>(curves_.size());
}

QVariant SpectrumTableModel::data(const QModelIndex& index, int role) const {
  if (role == Qt::TextAlignmentRole) {
    return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
  }
  if (role != Qt::DisplayRole) {
    return {};
  }
  const int nm = firstNm_ + index.row() * stepNm_;
  if (index.column() == 0) {
    return QString::number(nm);
  }
  return FormatNumber(curves_[static_cast<std::size_t>(index.column() - 1)].values[nm], pattern_);
}

QVariant SpectrumTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) {
    return QAbstractTableModel::headerData(section, orientation, role);
  }
  return section == 0 ? Text::tr("波長 [nm]") : curves_[static_cast<std::size_t>(section - 1)].name;
}

SpectrumTable::SpectrumTable(QWidget* parent)
    : QTableView(parent), rows_(new SpectrumTableModel(this)) {
  setModel(rows_);
  setFrameShape(QFrame::NoFrame);
  setAlternatingRowColors(true);
  setShowGrid(false);
  verticalHeader()->hide();
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 5);
  horizontalHeader()->setTextElideMode(Qt::ElideMiddle);
  horizontalHeader()->setHighlightSections(false);

  auto* copy = new QAction(Text::tr("ｺﾋﾟｰ"), this);
  copy->setShortcut(QKeySequence::Copy);
  copy->setShortcutContext(Qt::WidgetShortcut);
  connect(copy, &QAction::triggered, this, &SpectrumTable::CopySelection);
  auto* all = new QAction(Text::tr("全て選択"), this);
  connect(all, &QAction::triggered, this, &QTableView::selectAll);
  addActions({copy, all});
  setContextMenuPolicy(Qt::ActionsContextMenu);
}

void SpectrumTable::Show(std::vector<SpectrumCurve> curves, const DisplaySettings& display,
                         QStringView pattern) {
  rows_->Show(std::move(curves), display, pattern);
  for (int column = 0; column < rows_->columnCount(); ++column) {
    const QString heading = rows_->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    setColumnWidth(column, std::clamp(fontMetrics().horizontalAdvance(heading) + kHeadingPadding,
                                      kLeastWidth, kMostWidth));
  }
}

QString SpectrumTable::SelectedText() const {
  QItemSelectionRange span;
  for (const QItemSelectionRange& range : selectionModel()->selection()) {
    span = span.isValid()
               ? QItemSelectionRange(rows_->index(std::min(span.top(), range.top()),
                                                  std::min(span.left(), range.left())),
                                     rows_->index(std::max(span.bottom(), range.bottom()),
                                                  std::max(span.right(), range.right())))
               : range;
  }
  if (!span.isValid()) {
    return {};
  }
  QString text;
  for (int row = span.top() - 1; row <= span.bottom(); ++row) {
    QStringList cells;
    for (int column = span.left(); column <= span.right(); ++column) {
      cells << (row < span.top()
                    ? rows_->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString()
                    : rows_->index(row, column).data().toString());
    }
    text += cells.join(u'\t') + u'\n';
  }
  return text;
}

void SpectrumTable::CopySelection() const {
  const QString text = SelectedText();
  if (!text.isEmpty()) {
    QGuiApplication::clipboard()->setText(text);
  }
}

}  // namespace vexa
