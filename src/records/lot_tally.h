// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <array>
#include <optional>
#include <vector>

#include "records/record_source.h"

namespace vexa {

/// One lens of a lot: the measurements of it that hold, each a row of the store.
struct LotLens {
  struct Measurement {
    QString id;
    Verdict verdict = Verdict::kNone;
  };

  QString number;
  QList<Measurement> measurements;

  /// NG when one measurement is, OK when all are, else none.
  [[nodiscard]] Verdict LensVerdict() const;
};

/// The lenses of a lot, each known by its number, in the order of their first measurement.
class LotTally {
 public:
  /// A measurement, in the place of another one of that lens where it supersedes one.
  void Add(const QString& number, const LotLens::Measurement& measurement,
           const QString& supersedes = {});

  [[nodiscard]] const std::vector<LotLens>& Lenses() const { return lenses_; }
  /// Null when no lens of that number was measured.
  [[nodiscard]] const LotLens* Find(const QString& number) const;
  [[nodiscard]] int Count(Verdict verdict) const {
    return counts_[static_cast<std::size_t>(verdict)];
  }
  /// The share of OK among the lenses with a verdict, 0..1; nothing without one.
  [[nodiscard]] std::optional<double> Yield() const;

  /// The number of a lens that nobody gave one: the one after `last`, its last digits counted on
  /// until no lens has it ("A-09", "A-10"; "A", "A-2"; "1" behind nothing).
  [[nodiscard]] QString NumberAfter(const QString& last) const;

 private:
  std::vector<LotLens> lenses_;
  QHash<QString, std::size_t> places_;
  std::array<int, 3> counts_{};
};

/// What holds of a lot in a store, the oldest measurement first.
[[nodiscard]] Answer<QList<RecordSummary>> LotRows(const RecordSource& store, const QString& lot);

[[nodiscard]] LotTally TallyOf(const QList<RecordSummary>& rows);

}  // namespace vexa
