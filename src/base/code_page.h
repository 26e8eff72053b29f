// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringDecoder>

namespace vexa {

/// The text in the code page of the program's files (Shift-JIS, windows-31j). A character that the
/// code page cannot hold becomes "?"; ask IsEncodable first where that would lose something.
[[nodiscard]] QByteArray Encode(const QString& text);

/// True when every character of the text has a place in the code page.
[[nodiscard]] bool IsEncodable(const QString& text);

/// Turns bytes in the code page into text; bytes that are no such text become U+FFFD. Making one is
/// dear, using it is cheap.
class CodePageDecoder {
 public:
  CodePageDecoder();
  QString Decode(QByteArrayView bytes);

 private:
  QStringDecoder decoder_;
};

}  // namespace vexa
