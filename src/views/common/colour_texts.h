// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include "base/flag.h"
#include "base/translation.h"

namespace vexa {

/// "2" or "10", in degrees.
[[nodiscard]] inline QString ObserverText(Flag observer2Deg) {
  return observer2Deg ? QStringLiteral("2") : QStringLiteral("10");
}

/// The kinds of chromaticity diagram: xy, a*b*.
[[nodiscard]] inline QStringList DiagramTexts() {
  return {Text::tr("XYZ色度図"), Text::tr("L*a*b色度図")};
}

/// How far the a*b* axes reach, by the scale 0, 1, 2.
[[nodiscard]] inline QStringList LabScaleTexts() {
  return {QStringLiteral("10"), QStringLiteral("20"), QStringLiteral("40")};
}

}  // namespace vexa
