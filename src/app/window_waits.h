// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoroTask>
#include <functional>

namespace vexa {

// What the demonstration and the gallery wait for, who work the window by themselves.

/// Done when the windows have been laid out and drawn.
[[nodiscard]] QCoro::Task<> Drawn();

/// Done when `done` says so, or after ten seconds. A closure that is given owns nothing: g++ 12
/// lets go of it twice.
[[nodiscard]] QCoro::Task<> Until(std::function<bool()> done);

}  // namespace vexa
