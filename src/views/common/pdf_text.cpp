// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/pdf_text.h"

#include <QHash>
#include <QRawFont>

#include "base/code_page.h"

namespace vexa {
namespace {

constexpr qsizetype kDigits = 4;

// Every character that the code page writes with two bytes, and some more.
QString CodePageCharacters() {
  QByteArray bytes;
  for (int lead = 0x81; lead <= 0xfc; ++lead) {
    for (int trail = 0x40; trail <= 0xfc; ++trail) {
      bytes.append(static_cast<char>(lead)).append(static_cast<char>(trail));
    }
  }
  return CodePageDecoder().Decode(bytes).remove(QChar::ReplacementCharacter);
}

// The characters of the code page by their glyphs.
QHash<quint32, QChar> CharactersByGlyph(const QRawFont& font) {
  const QString characters = CodePageCharacters();
  const QList<quint32> glyphs = font.glyphIndexesForString(characters);
  QHash<quint32, QChar> byGlyph;
  for (qsizetype i = 0; i < glyphs.size() && i < characters.size(); ++i) {
    if (glyphs[i] != 0) {
      byGlyph.insert(glyphs[i], characters[i]);
    }
  }
  return byGlyph;
}

}  // namespace

void NameCharacters(QByteArray& pdf, const QFont& font) {
  const QRawFont raw = QRawFont::fromFont(font);
  const QHash<quint32, QChar> byGlyph = CharactersByGlyph(raw);
  // The only part of the file that holds the names, as "<2F4C>".
  qsizetype from = 0;
  while ((from = pdf.indexOf("beginbfrange", from)) >= 0) {
    const qsizetype end = pdf.indexOf("endbfrange", from);
    while ((from = pdf.indexOf('<', from)) >= 0 && from < end) {
      ++from;
      const QChar name(static_cast<char16_t>(pdf.mid(from, kDigits).toUInt(nullptr, 16)));
      if (name.unicode() < 0x80 || IsEncodable(name)) {
        continue;
      }
      const QList<quint32> glyph = raw.glyphIndexesForString(name);
      if (const auto known = byGlyph.constFind(glyph.value(0)); known != byGlyph.constEnd()) {
        pdf.replace(
            from, kDigits,
            QByteArray::number(known->unicode(), 16).rightJustified(kDigits, '0').toUpper());
      }
    }
  }
}

}  // namespace vexa
