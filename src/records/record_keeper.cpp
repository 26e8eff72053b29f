// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/record_keeper.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <iterator>
#include <utility>

namespace vexa {
namespace {

constexpr int kAgainMs = 30000;

QString OwedPath(const QString& storePath) {
  const QFileInfo store(storePath);
  return store.dir().filePath(store.completeBaseName() + QStringLiteral(".owed"));
}

}  // namespace

RecordKeeper::RecordKeeper(const QString& storePath, int waitMs)
    : path_(storePath), waitMs_(waitMs), owed_(OwedPath(storePath)) {
  again_.setInterval(kAgainMs);
  connect(&again_, &QTimer::timeout, this, &RecordKeeper::Pay);
}

Kept RecordKeeper::Keep(const QList<Row>& rows) {
  // What is owed comes first, so that the store has all in their order.
  StoreFault fault = PayOwed();
  if (fault == StoreFault::kNone) {
    fault = Store(rows);
  }
  if (fault == StoreFault::kNone) {
    emit Stored();
    return Kept::kStored;
  }
  again_.start();
  // The frames of a sample come with each of theirs.
  std::ranges::copy_if(rows, std::back_inserter(held_), [this](const Row& row) {
    return std::ranges::find(held_, row.id, &Row::id) == held_.end();
  });
  if (owed_.Add(held_)) {
    held_.clear();
    Tell(fault);
    return Kept::kOwed;
  }
  if (!std::exchange(toldHeld_, true)) {
    told_ = true;
    emit Held(fault);
  }
  return Kept::kHeld;
}

bool RecordKeeper::Pay() {
  const StoreFault fault = PayOwed();
  if (fault != StoreFault::kNone) {
    Tell(fault);
    again_.start();
  }
  return fault == StoreFault::kNone;
}

StoreFault RecordKeeper::PayOwed() {
  StoreFault fault = StoreFault::kNone;
  const bool inFile = !owed_.IsEmpty();
  const bool paid = owed_.Pay([this, &fault](const QList<Row>& rows) {
    fault = Store(rows);
    return fault == StoreFault::kNone;
  });
  const bool held = !held_.isEmpty();
  if (paid && held) {
    fault = Store(held_);
  }
  if (!paid || fault != StoreFault::kNone) {
    return fault == StoreFault::kNone ? StoreFault::kFailed : fault;
  }
  held_.clear();
  again_.stop();
  told_ = false;
  toldHeld_ = false;
  if (inFile || held) {
    emit Stored();
    emit Paid();
  }
  return StoreFault::kNone;
}

StoreFault RecordKeeper::Store(const QList<Row>& rows) {
  if (!store_.IsInPlace()) {
    if (const StoreFault fault = store_.Open(path_, RecordStore::Mode::kWrite, waitMs_);
        fault != StoreFault::kNone) {
      return fault;
    }
    if (store_.IsOther()) {
      emit Replaced();
    }
  }
  const StoreFault fault = store_.Append(rows).fault;
  if (fault != StoreFault::kNone && fault != StoreFault::kLocked) {
    store_.Close();  // what is wrong with it may be gone when it is opened anew
  }
  return fault;
}

void RecordKeeper::Tell(StoreFault fault) {
  if (!std::exchange(told_, true)) {
    emit Faulted(fault);
  }
}

}  // namespace vexa
