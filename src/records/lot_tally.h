// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>
#include <array>
#include <optional>
#include <vector>

#include "records/record_source.h"

namespace vexa {

/// What is to be said of a lens. One that is incomplete or held is neither OK nor NG yet.
enum class LensState {
  kUnjudged,    ///< nothing judges it
  kOk,          ///< all its measurements are
  kNotGood,     ///< one of its measurements is
  kIncomplete,  ///< broken off before the recipe's last repeat
  kHeld,        ///< a daily check that nobody released holds its verdict
};
inline constexpr std::size_t kLensStateCount = 5;

/// One lens of a lot: the measurements of it that hold, each a row of the store.
struct LotLens {
  struct Measurement {
    QString id;
    Verdict verdict = Verdict::kNone;
    bool last = true;     ///< of the repeats
    QString heldBy = {};  ///< the check that holds its verdict
  };

  QString number;
  QList<Measurement> measurements;
  bool complete = true;  ///< the measurement that came last was the last of the repeats

  [[nodiscard]] LensState State() const;
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
  [[nodiscard]] int Count(LensState state) const {
    return counts_[static_cast<std::size_t>(state)];
  }
  /// The checks that hold verdicts of the lot.
  [[nodiscard]] QStringList HoldingChecks() const;
  /// What the check holds is held no more.
  void Release(const QString& checkId);
  /// The share of OK among the lenses that are OK or NG, 0..1; nothing without one.
  [[nodiscard]] std::optional<double> Yield() const;

  /// The number of a lens that nobody gave one: the one after `last`, its last digits counted on
  /// until no lens has it ("A-09", "A-10"; "A", "A-2"; "1" behind nothing).
  [[nodiscard]] QString NumberAfter(const QString& last) const;

 private:
  std::vector<LotLens> lenses_;
  QHash<QString, std::size_t> places_;
  std::array<int, kLensStateCount> counts_{};
};

/// What holds of a lot in a store, the oldest measurement first.
[[nodiscard]] Answer<QList<RecordSummary>> LotRows(const RecordSource& store, const QString& lot);

[[nodiscard]] LotTally TallyOf(const QList<RecordSummary>& rows);

/// Of one measurement alone, whatever the others of its lens say; `heldBy` as in RecordSummary.
[[nodiscard]] LensState StateOf(Verdict verdict, const QString& heldBy);

/// "OK", "NG" or a dash; what is incomplete or held is said in words.
[[nodiscard]] QString LensStateText(LensState state);

}  // namespace vexa
