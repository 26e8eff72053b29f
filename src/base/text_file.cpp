// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/text_file.h"

#include <QFile>
#include <cmath>
#include <limits>
#include <optional>

#include "base/number_text.h"
#include "base/replace_file.h"

namespace vexa {
namespace {

constexpr qsizetype kLargestFile = qsizetype{64} * 1024 * 1024;
constexpr qint64 kChunk = qint64{128} * 1024;

std::int16_t ToInteger(double value) {
  const double rounded = std::nearbyint(value);
  if (!(rounded >= std::numeric_limits<std::int16_t>::min() &&
        rounded <= std::numeric_limits<std::int16_t>::max())) {
    throw ReadFault("number outside 16 bits");
  }
  return static_cast<std::int16_t>(rounded);
}

double Required(std::optional<double> number) {
  if (!number) {
    throw ReadFault("not a number");
  }
  return *number;
}

bool OneOf(const QString& text, const QString& yes, const QString& no) {
  const QString trimmed = text.trimmed();
  if (trimmed.compare(yes, Qt::CaseInsensitive) == 0) {
    return true;
  }
  if (trimmed.compare(no, Qt::CaseInsensitive) == 0) {
    return false;
  }
  throw ReadFault("not a flag");
}

// Lead and trail bytes of the code page never hold a comma or a quote below 0x40, so fields can be
// cut from the bytes.
QByteArrayView CutField(QByteArrayView& line) {
  qsizetype start = 0;
  while (start < line.size() && line[start] == ' ') {
    ++start;
  }
  line = line.sliced(start);
  if (line.startsWith('"')) {
    const qsizetype close = line.indexOf('"', 1);
    const qsizetype end = close < 0 ? line.size() : close;
    const QByteArrayView field = line.sliced(1, end - 1);
    const qsizetype comma = line.indexOf(',', end);
    line = comma < 0 ? QByteArrayView() : line.sliced(comma + 1);
    return field;
  }
  const qsizetype comma = line.indexOf(',');
  const QByteArrayView field = comma < 0 ? line : line.first(comma);
  line = comma < 0 ? QByteArrayView() : line.sliced(comma + 1);
  return field.trimmed();
}

}  // namespace

TextReader TextReader::Open(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    throw ReadFault("file cannot be opened");
  }
  QByteArray bytes;
  for (QByteArray chunk = file.read(kChunk); !chunk.isEmpty(); chunk = file.read(kChunk)) {
    bytes += chunk;
    if (bytes.size() > kLargestFile) {
      throw ReadFault("file is too large");
    }
  }
  if (file.error() != QFile::NoError) {
    throw ReadFault("file cannot be read");
  }
  return TextReader(std::move(bytes));
}

QByteArrayView TextReader::TakeLine() {
  if (AtEnd()) {
    throw ReadFault("end of file");
  }
  const qsizetype lineFeed = bytes_.indexOf('\n', position_);
  const qsizetype end = lineFeed < 0 ? bytes_.size() : lineFeed;
  QByteArrayView line = QByteArrayView(bytes_).sliced(position_, end - position_);
  position_ = end + 1;
  if (line.endsWith('\r')) {
    line.chop(1);
  }
  return line;
}

QString TextReader::Line() {
  return decoder_.Decode(TakeLine());
}

QString TextReader::Field() {
  QByteArrayView rest = TakeLine();
  const QByteArrayView field = CutField(rest);
  if (!rest.isNull()) {
    position_ = rest.data() - bytes_.constData();
  }
  return decoder_.Decode(field);
}

QStringList TextReader::Row(qsizetype count) {
  QByteArrayView rest = TakeLine();
  QStringList fields;
  fields.reserve(count);
  while (fields.size() < count) {
    if (rest.isNull()) {
      throw ReadFault("too few fields");
    }
    fields << decoder_.Decode(CutField(rest));
  }
  return fields;
}

double TextReader::RealField() {
  return Required(ParseNumber(Field()));
}

std::int16_t TextReader::IntegerField() {
  return ToInteger(RealField());
}

bool TextReader::BooleanField() {
  return OneOf(Field(), QStringLiteral("True"), QStringLiteral("False"));
}

double TextReader::RealLine() {
  return Required(LeadingNumber(Line()));
}

std::int16_t TextReader::IntegerLine() {
  return ToInteger(RealLine());
}

bool TextReader::FlagLine() {
  return OneOf(Line(), QStringLiteral("#TRUE#"), QStringLiteral("#FALSE#"));
}

FileText& FileText::Line(const QString& text) {
  text_ += text + QStringLiteral("\r\n");
  return *this;
}

FileText& FileText::Number(double value) {
  return Line(SignedText(value) + u' ');
}

FileText& FileText::Flag(bool value) {
  return Line(value ? QStringLiteral("#TRUE#") : QStringLiteral("#FALSE#"));
}

bool FileText::WriteTo(const QString& path) const {
  return ReplaceFile(path, Encode(text_));
}

}  // namespace vexa
