// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/record_store.h"

namespace vexa {

/// Puts one sample into the place of another, both by id or number: `decision` (its reason,
/// operator and station) is kept as an event of now. kMissing when one of them is no sample;
/// kRefused when one is superseded already, or both are the same.
[[nodiscard]] StoreFault Supersede(RecordStore& store, const QString& old,
                                   const QString& replacement, EventRecord decision);

}  // namespace vexa
