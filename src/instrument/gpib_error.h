// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "base/message.h"

namespace vexa {

/// Error numbers that this side gives of its own accord; all others are the library's.
namespace gpib_error {
inline constexpr int kNoServiceRequest = 0;
inline constexpr int kFormat = 3;       ///< a transfer of another length
inline constexpr int kTimeOut = 54;     ///< a call that does not come back
inline constexpr int kControlBox = 97;  ///< the library or a call of it is missing
}  // namespace gpib_error

/// What is told of a failed step: the message of the error number, with step and location code.
[[nodiscard]] MessageCall GpibErrorMessage(int number, const QString& step, int code);

}  // namespace vexa
