// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QButtonGroup>
#include <QGroupBox>
#include <QStringList>
#include <cstdint>

namespace vexa {

/// A frame of exclusive options with the numbers 0, 1, ... in `group`; their object names are
/// `name` with the number behind it. A `chosen` that is none of the numbers leaves all unchosen.
/// `tips` explain the options, in their order.
[[nodiscard]] QGroupBox* OptionFrame(const QString& caption, const QString& name,
                                     const QStringList& options, QButtonGroup& group,
                                     std::int16_t chosen, const QStringList& tips = {});

/// Makes Tab enter the exclusive group on the option chosen; on the first one when none is.
void TabToChosen(QButtonGroup& group);

/// The number of the option chosen; `otherwise` when none is.
[[nodiscard]] std::int16_t ChosenOption(const QButtonGroup& group, std::int16_t otherwise);

}  // namespace vexa
