// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/records/record_list.h"

#include <QDateTime>
#include <algorithm>
#include <utility>

#include "base/date_text.h"
#include "base/number_text.h"
#include "base/translation.h"
#include "records/lot_tally.h"
#include "views/common/colour_kind.h"
#include "views/common/doubt_text.h"
#include "views/common/theme.h"

namespace vexa {
namespace {

constexpr int kPage = 200;
const QString kNotGood = QStringLiteral("NG");

QString ThicknessText(const RecordSummary& record) {
  return record.thicknessNm ? DoubtMarkText(!record.doubts.isEmpty()) +
                                  FormatNumber(*record.thicknessNm, u"###0.0").trimmed() +
                                  ThicknessUnit(record.physical)
                            : QStringLiteral("-");
}

QString CellText(const RecordSummary& record, int column) {
  const auto number = [](double value, QStringView pattern) {
    return FormatNumber(value, pattern).trimmed();
  };
  switch (column) {
    case RecordList::kTime:
      return DateTimeText(QDateTime::fromMSecsSinceEpoch(record.utcMs));
    case RecordList::kLot:
      return record.lot;
    case RecordList::kSampleNumber:
      return record.sampleNumber.simplified();
    case RecordList::kVerdict:
      return !record.heldBy.isEmpty()                  ? LensStateText(LensState::kHeld)
             : record.verdict == QLatin1String("none") ? QStringLiteral("-")
                                                       : record.verdict;
    case RecordList::kLightness:
      return number(record.colour.L, u"##0.00");
    case RecordList::kRedGreen:
      return number(record.colour.a, u"##0.00");
    case RecordList::kYellowBlue:
      return number(record.colour.b, u"##0.00");
    case RecordList::kMeanReflectance:
      return number(record.colour.Rm, u"##0.0##");
    case RecordList::kThickness:
      return ThicknessText(record);
    case RecordList::kRecipe:
      return record.recipe;
    case RecordList::kOperator:
      return record.operatorName;
    case RecordList::kStation:
      return record.station;
    default:
      return {};
  }
}

bool IsNumber(int column) {
  return column >= RecordList::kLightness && column <= RecordList::kThickness;
}

}  // namespace

RecordList::RecordList(RecordReader& reader, QObject* parent)
    : QAbstractTableModel(parent), reader_(reader) {}

void RecordList::Search(RecordPlace place, const RecordQuery& query) {
  place_ = place;
  query_ = query;
  query_.limit = kPage;
  ++searches_;
  Ask(query_, &RecordList::TakeFirst);
}

void RecordList::TakeNewer() {
  if (found_.isEmpty() || reading_) {
    Search(place_, query_);
    return;
  }
  RecordQuery newer = query_;
  newer.newerThan = found_.first();
  Ask(newer, &RecordList::TakeAbove);
}

int RecordList::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(found_.size());
}

int RecordList::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kColumnCount;
}

QVariant RecordList::data(const QModelIndex& index, int role) const {
  const RecordSummary& record = found_.at(index.row());
  switch (role) {
    case Qt::DisplayRole:
      return CellText(record, index.column());
    case Qt::ToolTipRole:
      return index.column() == kThickness ? QVariant(DoubtTexts(record.doubts))
             : IsNumber(index.column())   ? QVariant()
                                          : CellText(record, index.column());
    case Qt::TextAlignmentRole:
      return QVariant::fromValue(
          (IsNumber(index.column())
               ? Qt::AlignRight
               : (index.column() == kVerdict ? Qt::AlignHCenter : Qt::AlignLeft)) |
          Qt::AlignVCenter);
    case Qt::ForegroundRole:
      return index.column() == kVerdict && record.verdict == kNotGood && record.heldBy.isEmpty()
                 ? QVariant(theme::kBad)
                 : QVariant();
    default:
      return {};
  }
}

QVariant RecordList::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
    return {};
  }
  const QStringList titles{Text::tr("測定日時"), Text::tr("ロット"),   Text::tr("試料No"),
                           Text::tr("判定"),     QStringLiteral("L*"), QStringLiteral("a*"),
                           QStringLiteral("b*"), Text::tr("平均[%]"),  Text::tr("膜厚", "column"),
                           Text::tr("レシピ"),   Text::tr("測定者"),   Text::tr("測定機")};
  const bool colour = section >= kLightness && section <= kYellowBlue;
  return colour && named_ ? ColourKindText(ColourKind::kInstrument) + u'\n' + titles.value(section)
                          : titles.value(section);
}

void RecordList::SetNamed(bool named) {
  named_ = named;
  emit headerDataChanged(Qt::Horizontal, kLightness, kYellowBlue);
}

bool RecordList::canFetchMore(const QModelIndex& parent) const {
  return !parent.isValid() && !complete_ && !reading_;
}

void RecordList::fetchMore(const QModelIndex& parent) {
  if (canFetchMore(parent)) {
    RecordQuery next = query_;
    next.after = found_.last();
    Ask(next, &RecordList::TakeMore);
  }
}

void RecordList::Ask(const RecordQuery& query,
                     void (RecordList::*take)(const Answer<QList<RecordSummary>>& page)) {
  reading_ = true;
  const auto done = [this, take, search = searches_](const Answer<QList<RecordSummary>>& page) {
    if (search == searches_) {
      reading_ = false;
      fault_ = page.fault;
      (this->*take)(page);
      emit Answered();
    }
  };
  reader_.Search(place_, query, *this, done);
}

void RecordList::TakeFirst(const Answer<QList<RecordSummary>>& page) {
  beginResetModel();
  found_ = page.value;
  complete_ = !page || page.value.size() < kPage;
  endResetModel();
}

void RecordList::TakeMore(const Answer<QList<RecordSummary>>& page) {
  complete_ = !page || page.value.size() < kPage;
  if (page.value.isEmpty()) {
    return;
  }
  const int end = rowCount();
  beginInsertRows({}, end, end + static_cast<int>(page.value.size()) - 1);
  found_ << page.value;
  endInsertRows();
}

void RecordList::TakeAbove(const Answer<QList<RecordSummary>>& page) {
  if (page.value.size() == kPage) {
    Search(place_, query_);  // there may be still more between
    return;
  }
  if (page.value.isEmpty()) {
    return;
  }
  RemoveSuperseded(page.value);
  beginInsertRows({}, 0, static_cast<int>(page.value.size()) - 1);
  found_ = page.value + found_;
  endInsertRows();
}

void RecordList::RemoveSuperseded(const QList<RecordSummary>& by) {
  if (query_.withSuperseded) {
    return;
  }
  for (const RecordSummary& record : by) {
    const auto superseded = std::ranges::find(found_, record.supersedes, &RecordSummary::id);
    if (!record.supersedes.isEmpty() && superseded != found_.end()) {
      const int row = static_cast<int>(superseded - found_.begin());
      beginRemoveRows({}, row, row);
      found_.erase(superseded);
      endRemoveRows();
    }
  }
}

}  // namespace vexa
