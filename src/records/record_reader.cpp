// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/record_reader.h"

#include <QThread>
#include <utility>

#include "records/shared_store.h"

namespace vexa {

/// Lives on the thread of the reader.
class RecordReaderWork : public BackgroundWork {
 public:
  RecordReaderWork(QString storePath, QString connection)
      : storePath_(std::move(storePath)), connection_(std::move(connection)) {}

  /// What `read` finds in the store of that place, which is opened when it is not.
  template <typename Value, typename Read>
  Answer<Value> From(RecordPlace place, const Read& read) {
    const bool shared = place == RecordPlace::kShared;
    const StoreFault fault = shared ? OpenShared() : OpenLocal();
    if (fault != StoreFault::kNone) {
      return {{}, fault};
    }
    Answer<Value> answer = shared ? read(static_cast<const RecordSource&>(shared_)) : read(local_);
    if (!answer && answer.fault != StoreFault::kMissing) {
      Close(shared);  // it may be well when it is opened anew
    }
    return answer;
  }

 private:
  StoreFault OpenLocal() {
    return local_.IsInPlace() ? StoreFault::kNone
                              : local_.Open(storePath_, RecordStore::Mode::kRead);
  }
  void Close(bool shared) {
    if (shared) {
      shared_.Close();
    } else {
      local_.Close();
    }
  }
  StoreFault OpenShared() {
    return shared_.IsOpen() ? StoreFault::kNone : shared_.Open(connection_);
  }

  QString storePath_;
  QString connection_;
  RecordStore local_;
  SharedStore shared_;
};

RecordReader::RecordReader(const QString& storePath, const QString& connection)
    : hasShared_(!connection.isEmpty()),
      work_(new RecordReaderWork(storePath, connection)),
      thread_(work_, *this) {}

void RecordReader::Search(RecordPlace place, const RecordQuery& query, QObject& owner,
                          const Done<QList<RecordSummary>>& done) {
  const auto search = [query](const RecordSource& source) { return source.Search(query); };
  Ask<QList<RecordSummary>>(place, search, owner, done);
}

void RecordReader::Load(RecordPlace place, const QStringList& ids, QObject& owner,
                        const Done<QList<WholeRecord>>& done) {
  const auto load = [ids](const RecordSource& source) {
    Answer<QList<WholeRecord>> records;
    records.value.reserve(ids.size());
    for (const QString& id : ids) {
      Answer<WholeRecord> record = LoadRecord(source, id);
      if (!record) {
        return Answer<QList<WholeRecord>>{{}, record.fault};
      }
      records.value << std::move(record.value);
    }
    return records;
  };
  Ask<QList<WholeRecord>>(place, load, owner, done);
}

void RecordReader::LoadValues(RecordPlace place, const RecordQuery& query, const RecordValue& value,
                              QObject& owner, const Done<ValueSeries>& done) {
  const auto load = [query, value](const RecordSource& source) {
    return LoadSeries(source, query, value);
  };
  Ask<ValueSeries>(place, load, owner, done);
}

template <typename Value, typename Read>
void RecordReader::Ask(RecordPlace place, Read read, QObject& owner, const Done<Value>& done) {
  const auto work = [work = work_, place, read = std::move(read), owner = QPointer<QObject>(&owner),
                     done] {
    if (QThread::currentThread()->isInterruptionRequested()) {
      return;
    }
    const Answer<Value> answer = work->template From<Value>(place, read);
    emit work->Posted([owner, done, answer] {
      if (!owner.isNull()) {
        done(answer);
      }
    });
  };
  QMetaObject::invokeMethod(work_, work);
}

}  // namespace vexa
