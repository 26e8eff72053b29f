// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/code_page.h"

#include <QStringEncoder>
#include <algorithm>

namespace vexa {
namespace {

constexpr const char* kCodePage = "windows-31j";
// What the converter leaves behind for a character without a place, and for a byte without a sense.
constexpr char kEncoderSubstitute = '\xfc';
constexpr QChar kDecoderSubstitute(0x001a);

}  // namespace

QByteArray Encode(const QString& text) {
  QStringEncoder encoder(kCodePage);
  QByteArray whole = encoder.encode(text);
  if (!encoder.hasError()) {
    return whole;
  }
  QByteArray bytes;
  for (qsizetype i = 0; i < text.size();) {
    const qsizetype length = text[i].isHighSurrogate() && i + 1 < text.size() ? 2 : 1;
    QStringEncoder one(kCodePage);
    const QByteArray encoded = one.encode(QStringView(text).sliced(i, length));
    bytes += one.hasError() || encoded.startsWith(kEncoderSubstitute) ? QByteArray("?") : encoded;
    i += length;
  }
  return bytes;
}

bool IsEncodable(const QString& text) {
  QStringEncoder encoder(kCodePage);
  const QByteArray bytes = encoder.encode(text);
  return !encoder.hasError();
}

CodePageDecoder::CodePageDecoder() : decoder_(kCodePage, QStringConverter::Flag::Stateless) {}

QString CodePageDecoder::Decode(QByteArrayView bytes) {
  // Most fields are plain ASCII, which needs no converter.
  if (std::all_of(bytes.begin(), bytes.end(), [](char c) { return c >= ' ' && c <= '~'; })) {
    return QString::fromLatin1(bytes);
  }
  QString text = decoder_.decode(bytes);
  if (decoder_.hasError()) {
    text.replace(kDecoderSubstitute, QChar(QChar::ReplacementCharacter));
  }
  decoder_.resetState();
  return text;
}

}  // namespace vexa
