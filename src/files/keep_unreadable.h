// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <functional>

#include "base/replace_file.h"

namespace vexa {

/// A name beside the path that is free: NAME.bad, NAME.bad2, ...
[[nodiscard]] QString FreeBadName(const QString& path);

/// Before a settings file is overwritten: where it exists but `isReadable()` denies it, a copy is
/// kept beside it under a free name. What stands in the way of the copy, where it cannot be made.
WriteResult KeepUnreadable(const QString& path, const std::function<bool()>& isReadable);

}  // namespace vexa
