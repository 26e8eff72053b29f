// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/print/pdf_text.h"

#include <QHash>
#include <QRawFont>

namespace vexa {
namespace {

constexpr char16_t kFirstRadical = 0x2e80;
constexpr char16_t kLastRadical = 0x2fdf;
constexpr char16_t kFirstIdeograph = 0x4e00;
constexpr char16_t kLastIdeograph = 0x9fff;
constexpr qsizetype kDigits = 4;

QList<quint32> Glyphs(const QRawFont& font, char16_t first, char16_t last) {
  QString characters;
  for (char32_t code = first; code <= last; ++code) {
    characters += QChar(static_cast<char16_t>(code));
  }
  return font.glyphIndexesForString(characters);
}

// The ideographs that share their glyph with a radical, by the radical.
QHash<char16_t, char16_t> SharedIdeographs(const QFont& font) {
  const QRawFont raw = QRawFont::fromFont(font);
  QHash<quint32, char16_t> ideographs;
  char16_t code = kFirstIdeograph;
  for (const quint32 glyph : Glyphs(raw, kFirstIdeograph, kLastIdeograph)) {
    ideographs.insert(glyph, code++);
  }
  QHash<char16_t, char16_t> shared;
  code = kFirstRadical;
  for (const quint32 glyph : Glyphs(raw, kFirstRadical, kLastRadical)) {
    if (glyph != 0 && ideographs.contains(glyph)) {
      shared.insert(code, ideographs[glyph]);
    }
    ++code;
  }
  return shared;
}

}  // namespace

void NameIdeographs(QByteArray& pdf, const QFont& font) {
  const QHash<char16_t, char16_t> shared = SharedIdeographs(font);
  // The only part of the file that holds the names, as "<2F4C>".
  qsizetype from = 0;
  while ((from = pdf.indexOf("beginbfrange", from)) >= 0) {
    const qsizetype end = pdf.indexOf("endbfrange", from);
    while ((from = pdf.indexOf('<', from)) >= 0 && from < end) {
      ++from;
      const auto name = static_cast<char16_t>(pdf.mid(from, kDigits).toUInt(nullptr, 16));
      if (const auto ideograph = shared.constFind(name); ideograph != shared.constEnd()) {
        pdf.replace(from, kDigits, QByteArray::number(*ideograph, 16).toUpper());
      }
    }
  }
}

}  // namespace vexa
