// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <vector>

#include "records/lot_tally.h"
#include "records/record_store.h"
#include "records/record_value.h"
#include "standards/standard_file.h"

namespace vexa {

/// One measurement of a lot.
struct LotRow {
  SampleRecord sample;  ///< without the counts of its frame
  QString id;
  bool holds = true;  ///< no other one has taken its place
  QString heldBy;     ///< the daily check that holds its verdict
};

/// All of a lot, as a report is made from it.
struct LotContent {
  QString lot;
  std::vector<LotRow> rows;   ///< the oldest first
  StandardContents standard;  ///< in force at the last of them
  LotTally tally;             ///< of the rows that hold
  ChainHead head;             ///< of the store when it was read
};

/// What the store has of a lot; no rows when there is none of that name.
[[nodiscard]] Answer<LotContent> ReadLot(const RecordStore& store, const QString& lot);

/// A value that a lot is judged by, or worth a statistic all the same.
struct LotValue {
  QString title;  ///< with its unit
  statistics::SpecificationLimits limits;
  std::optional<double> bound;  ///< that the value cannot pass
  std::function<std::optional<double>(const SampleRecord&)> of;
  bool hue = false;  ///< limits and values lie on one turn, perhaps not that of 0 to 360
};

/// The values that the standard and the CIE limits of the lot judge, in their order; where they
/// judge none, luminous and average reflectance and the thickness, as far as they are there.
[[nodiscard]] std::vector<LotValue> LotValues(const LotContent& lot);

/// The value of each row that holds and has it.
[[nodiscard]] std::vector<double> ValuesOf(const LotContent& lot, const LotValue& value);

}  // namespace vexa
