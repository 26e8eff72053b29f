// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace vexa {

/// Why a record store did not do what it was asked.
enum class StoreFault {
  kNone,
  kFull,         ///< the disk takes nothing more
  kLocked,       ///< another program holds it longer than the wait
  kReadOnly,     ///< the file or its directory may not be written
  kDamaged,      ///< no database any more, or one whose pages do not fit together
  kMissing,      ///< there is no such file, or no such record
  kForeign,      ///< a database of another kind, or of a newer program
  kRefused,      ///< against the rules of the store: nothing may be changed, deleted or put between
  kUnreachable,  ///< the server does not answer, or does not let in
  kOtherStore,   ///< the shared store has other rows under the name of this station
  kFailed,       ///< anything else
};

/// The fault in words, for the user.
[[nodiscard]] QString StoreFaultText(StoreFault fault);

/// What was asked for, or the fault for which it is not there.
template <typename Value>
struct Answer {
  Value value{};
  StoreFault fault = StoreFault::kNone;

  [[nodiscard]] explicit operator bool() const { return fault == StoreFault::kNone; }
};

}  // namespace vexa
