// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractTableModel>
#include <QList>

#include "records/record_reader.h"

namespace vexa {

/// The samples that a search finds, the newest first: read page after page as a table asks for
/// more, never all at once.
class RecordList : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column {
    kTime,
    kLot,
    kSampleNumber,
    kVerdict,
    kLightness,
    kRedGreen,
    kYellowBlue,
    kMeanReflectance,
    kThickness,
    kRecipe,
    kOperator,
    kStation,
    kColumnCount,
  };

  explicit RecordList(RecordReader& reader, QObject* parent = nullptr);

  /// Begins anew with the first page; what was shown goes when that is there.
  void Search(RecordPlace place, const RecordQuery& query);

  /// Puts above all what was measured since.
  void TakeNewer();

  /// Whether the columns of the colour say that they are the instrument's own; at first they do
  /// not.
  void SetNamed(bool named);

  [[nodiscard]] const RecordSummary& At(int row) const { return found_.at(row); }
  [[nodiscard]] RecordPlace Place() const { return place_; }
  /// Nothing is left to be read.
  [[nodiscard]] bool IsComplete() const { return complete_; }
  /// Why the last page could not be read.
  [[nodiscard]] StoreFault Fault() const { return fault_; }

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                    int role) const override;
  [[nodiscard]] bool canFetchMore(const QModelIndex& parent) const override;
  void fetchMore(const QModelIndex& parent) override;

 signals:
  /// A page was read, or could not be.
  void Answered();

 private:
  void TakeFirst(const Answer<QList<RecordSummary>>& page);
  void TakeMore(const Answer<QList<RecordSummary>>& page);
  void TakeAbove(const Answer<QList<RecordSummary>>& page);
  void RemoveSuperseded(const QList<RecordSummary>& by);
  void Ask(const RecordQuery& query,
           void (RecordList::*take)(const Answer<QList<RecordSummary>>& page));

  RecordReader& reader_;
  RecordPlace place_ = RecordPlace::kStation;
  RecordQuery query_;
  QList<RecordSummary> found_;
  StoreFault fault_ = StoreFault::kNone;
  bool named_ = false;
  bool complete_ = true;
  bool reading_ = false;
  int searches_ = 0;  ///< an answer to an earlier search is dropped
};

}  // namespace vexa
