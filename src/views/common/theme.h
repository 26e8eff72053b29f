// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QColor>
#include <QIcon>
#include <QPixmap>

namespace vexa {

/// Gives the application its calm light look, a font with Japanese letters and tool tips that break
/// into lines.
void ApplyTheme(QApplication& application);

/// A transparent canvas for an icon of the size, as fine as the screen.
[[nodiscard]] QPixmap IconCanvas(QSize size);

/// A filled mark with a tick when `done`, else an empty ring.
[[nodiscard]] QIcon DoneIcon(bool done);

/// A calm amber triangle: the number beside it is in doubt.
[[nodiscard]] QPixmap DoubtMark();

namespace theme {
inline constexpr QColor kText{0x1f, 0x29, 0x33};
inline constexpr QColor kMutedText{0x5b, 0x68, 0x76};
inline constexpr QColor kWindow{0xee, 0xf1, 0xf4};
inline constexpr QColor kPanel{0xff, 0xff, 0xff};
inline constexpr QColor kBorder{0xc3, 0xcb, 0xd3};
inline constexpr QColor kGrid{0xe3, 0xe8, 0xec};
inline constexpr QColor kAccent{0x1c, 0x64, 0xa8};
inline constexpr QColor kGood{0x1d, 0x7a, 0x46};
inline constexpr QColor kBad{0xb3, 0x1b, 0x1b};
inline constexpr QColor kDoubt{0x94, 0x5a, 0x00};
}  // namespace theme

}  // namespace vexa
