// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/text_file.h"

#include <cmath>
#include <limits>
#include <utility>

#include "base/number_text.h"
#include "base/read_file.h"

namespace vexa {
namespace {

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
  ReadResult<QByteArray> bytes = ReadRegularFile(path);
  if (!bytes) {
    throw ReadFault(bytes.Fault());
  }
  return TextReader(std::move(*bytes));
}

ReadFault TextReader::Fault(FileFaultKind kind) const {
  return Fault(kind, field_);
}

ReadFault TextReader::Fault(FileFaultKind kind, qsizetype field) const {
  return ReadFault({.kind = kind, .line = line_, .field = static_cast<int>(field)});
}

QByteArrayView TextReader::TakeLine() {
  if (!withinLine_) {
    ++line_;
  }
  field_ = 0;
  withinLine_ = false;
  if (AtEnd()) {
    throw Fault(FileFaultKind::kEnd);
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
  const int before = withinLine_ ? field_ : 0;
  QByteArrayView rest = TakeLine();
  const QByteArrayView field = CutField(rest);
  field_ = before + 1;
  if (!rest.isNull()) {
    position_ = rest.data() - bytes_.constData();
    withinLine_ = true;
  }
  return decoder_.Decode(field);
}

QStringList TextReader::Row(qsizetype least, qsizetype most) {
  QByteArrayView rest = TakeLine();
  QStringList fields;
  fields.reserve(most);
  while (fields.size() < most && !rest.isNull()) {
    fields << decoder_.Decode(CutField(rest));
  }
  if (fields.size() < least) {
    throw Fault(FileFaultKind::kFields);
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

double TextReader::Required(std::optional<double> number) const {
  if (!number) {
    throw Fault(FileFaultKind::kValue);
  }
  return *number;
}

std::int16_t TextReader::ToInteger(double value) const {
  const double rounded = std::nearbyint(value);
  if (!(rounded >= std::numeric_limits<std::int16_t>::min() &&
        rounded <= std::numeric_limits<std::int16_t>::max())) {
    throw Fault(FileFaultKind::kRange);
  }
  return static_cast<std::int16_t>(rounded);
}

bool TextReader::OneOf(const QString& text, const QString& yes, const QString& no) const {
  const QString trimmed = text.trimmed();
  if (trimmed.compare(yes, Qt::CaseInsensitive) == 0) {
    return true;
  }
  if (trimmed.compare(no, Qt::CaseInsensitive) == 0) {
    return false;
  }
  throw Fault(FileFaultKind::kValue);
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

WriteResult FileText::WriteTo(const QString& path) const {
  return ReplaceFile(path, Encode(text_));
}

}  // namespace vexa
