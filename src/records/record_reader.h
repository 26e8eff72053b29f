// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <functional>

#include "base/background_thread.h"
#include "records/record_store.h"
#include "records/record_value.h"
#include "records/whole_record.h"

namespace vexa {

class RecordReaderWork;

/// Where records are looked for.
enum class RecordPlace { kStation, kShared };

/// Reads the store of a program directory, or the shared one, on a thread of its own with
/// connections of its own: a slow disk or a server that is away holds up nobody. What is asked is
/// answered one after the other, by calling `done` from the event loop, unless `owner` is gone.
class RecordReader : public QObject {
  Q_OBJECT

 public:
  template <typename Value>
  using Done = std::function<void(const Answer<Value>& answer)>;

  /// `connection` names the shared store as PostgresOptions takes it; empty: there is none.
  /// When the reader goes, what is just being read is left unanswered.
  RecordReader(const QString& storePath, const QString& connection);

  [[nodiscard]] bool HasShared() const { return hasShared_; }

  void Search(RecordPlace place, const RecordQuery& query, QObject& owner,
              const Done<QList<RecordSummary>>& done);

  /// The samples of these ids; the fault of the first that could not be read.
  void Load(RecordPlace place, const QStringList& ids, QObject& owner,
            const Done<QList<WholeRecord>>& done);

  /// A value over the samples that the query finds, as LoadSeries gives it.
  void LoadValues(RecordPlace place, const RecordQuery& query, const RecordValue& value,
                  QObject& owner, const Done<ValueSeries>& done);

 private:
  template <typename Value, typename Read>
  void Ask(RecordPlace place, Read read, QObject& owner, const Done<Value>& done);

  bool hasShared_;
  RecordReaderWork* work_;  ///< of the thread
  BackgroundThread thread_;
};

}  // namespace vexa
