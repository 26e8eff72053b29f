// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/supersede.h"

namespace vexa {
namespace {

Answer<QString> SampleId(const RecordStore& store, const QString& idOrNumber) {
  const Answer<StoredRow> row = store.Find(idOrNumber);
  if (!row) {
    return {{}, row.fault};
  }
  return {row.value.row.id, ToSample(row.value.row) ? StoreFault::kNone : StoreFault::kMissing};
}

}  // namespace

StoreFault Supersede(RecordStore& store, const QString& old, const QString& replacement,
                     EventRecord decision) {
  const Answer<QString> oldId = SampleId(store, old);
  const Answer<QString> newId = SampleId(store, replacement);
  if (!oldId || !newId) {
    return oldId ? newId.fault : oldId.fault;
  }
  decision.type = QStringLiteral("supersede");
  decision.subject = newId.value;
  decision.supersedes = oldId.value;
  decision.time = QDateTime::currentDateTime();
  // As neither has been superseded yet, none can come to stand behind itself.
  const auto bothInForce = [&store, &oldId, &newId] {
    const auto inForce = [&store](const QString& id) {
      const Answer<bool> superseded = store.IsSuperseded(id);
      return superseded && !superseded.value;
    };
    return oldId.value != newId.value && inForce(oldId.value) && inForce(newId.value);
  };
  return store.AppendIf({ToRow(decision)}, bothInForce).fault;
}

}  // namespace vexa
