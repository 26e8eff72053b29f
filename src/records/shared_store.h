// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "records/record_source.h"
#include "records/record_store.h"

namespace vexa {

/// How far a store has been sent.
struct SharedStatus {
  qint64 sent = 0;     ///< rows, by this sending
  qint64 waiting = 0;  ///< rows that the shared store lacks
  StoreFault fault = StoreFault::kNone;

  bool operator==(const SharedStatus&) const = default;
};

/// The store that stations share, in a PostgreSQL database; its table is made at the first use. It
/// holds the rows of every station with their numbers and hashes, and changes and deletes none.
class SharedStore : public RecordSource {
 public:
  /// `connection` as PostgresOptions takes it; kRefused when it does not.
  [[nodiscard]] StoreFault Open(const QString& connection);
  void Close() { session_.Close(); }
  [[nodiscard]] bool IsOpen() const { return session_.IsOpen(); }

  /// Sends what is lacking, in order and in batches, each whole or not at all, until nothing waits,
  /// a fault, or `goOn`, which hears of every batch, returns false. What was sent already stays as
  /// it is, by station and number.
  [[nodiscard]] SharedStatus Send(
      const RecordStore& local, const std::function<bool(const SharedStatus& status)>& goOn) const;

  [[nodiscard]] Answer<QList<RecordSummary>> Search(const RecordQuery& query) const override;
  [[nodiscard]] StoreFault Visit(
      const RecordQuery& query,
      const std::function<void(const StoredRow& row)>& visit) const override;
  [[nodiscard]] Answer<StoredRow> Find(const QString& id) const override;

 private:
  [[nodiscard]] StoreFault MakeTable() const;
  [[nodiscard]] Answer<qint64> LastSent(const RecordStore& local) const;
  [[nodiscard]] StoreFault Insert(const QList<StoredRow>& rows) const;

  SqlSession session_;
};

}  // namespace vexa
