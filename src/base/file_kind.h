// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

namespace vexa {

/// A kind of file: the header line that the program writes, and what its readers accept. Versions
/// are those of ReadHeaderVersion.
struct FileKind {
  QStringView header;
  QStringView word = {};       ///< that a header names it by; empty where it is not looked at
  double oldest = 0.0;         ///< the oldest version that is read
  double currentLayout = 0.0;  ///< the first version in the layout that is written
};

namespace file_kind {
/// Comma-separated from version 2.99 on. Blocks have one layout up to 2.99 and from 3.21 on; what
/// lies between is none of theirs. A bare substrate is read from version 1.0 on.
inline constexpr FileKind kData{u"VEXA-KT 440-840 Ver 3.21 Data File", u"DAT", 1.0, 2.99};
inline constexpr double kBlockVersion = 3.21;
inline constexpr FileKind kAddData{u"VEXA-KT 440-840 Ver3.21 AddData File", u"ADD", 2.99, 2.99};
inline constexpr FileKind kEnvironment{u"VEXA-KT 440-840 Ver 3.21 Environment File", u"ENV", 1.0,
                                       2.99};
inline constexpr FileKind kStartup{u"VEXA-KT 440-840 Ver 3.21 Environment File", u"ENV", 1.0, 1.0};
/// Versions above the oldest are read.
inline constexpr FileKind kStandard{u"VEXA-KT 440-840 Ver 3.21 Standard File", u"STA", 2.99, 2.99};
/// One of the two headers, to the letter.
inline constexpr FileKind kStock{u"VEXA-KT 440-840 Ver3.21 Stock File"};
inline constexpr FileKind kOlderStock{u"VEXA-KT 440-840 Ver3.00 Stock File"};
/// The header is compared with nothing.
inline constexpr FileKind kIndex{u"VEXA-KT 440-840 Ver 3.21 Index File"};
inline constexpr FileKind kReference{u"VEXA-KT 440-840 Ver 3.21 Reference File"};
inline constexpr FileKind kCalibration{u"VEXA-KT 440-840 Ver 3.21 Calibration File"};
inline constexpr FileKind kThickness{u"VEXA-KT 440-840 Ver 3.21 Thickness File"};
/// Any version.
inline constexpr FileKind kPrint{u"VEXA-KT 440-840 Ver 3.21 Print File", u"PRINT"};
/// To the letter, with its line end.
inline constexpr FileKind kJournal{u"VEXA-KT 440-840 Ver 3.21 Journal File\r\n"};
}  // namespace file_kind

}  // namespace vexa
