// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>

#include "base/code_page.h"
#include "base/file_fault.h"
#include "base/replace_file.h"

namespace vexa {

/// Reads a text file of the program: lines that end in CR LF or LF, in the program's code page.
/// Every operation that returns a value throws ReadFault at the end of the file or when the text is
/// no such value. Bytes that are no text of the code page never stop it.
class TextReader {
 public:
  /// Takes the whole file; throws ReadFault when it cannot be read; see ReadRegularFile.
  [[nodiscard]] static TextReader Open(const QString& path);

  explicit TextReader(QByteArray bytes) : bytes_(std::move(bytes)) {}

  [[nodiscard]] bool AtEnd() const { return position_ >= bytes_.size(); }

  /// A fault at the place read last, or at one field of its line.
  [[nodiscard]] ReadFault Fault(FileFaultKind kind) const;
  [[nodiscard]] ReadFault Fault(FileFaultKind kind, qsizetype field) const;

  /// The next whole line, without its end.
  QString Line();

  /// The next field: it ends at a comma or at the end of its line; blanks around it are dropped,
  /// and double quotes that enclose it. Fields follow one another over line ends.
  QString Field();

  /// The next line as its first `count` fields; what is left of the line is ignored.
  QStringList Row(qsizetype count) { return Row(count, count); }
  /// Likewise, with up to `most` fields where the line has them.
  QStringList Row(qsizetype least, qsizetype most);

  /// The next field as a number; a text that is no number as a whole is a fault.
  double RealField();
  /// Likewise as a 16-bit number; a fraction is rounded half to even.
  std::int16_t IntegerField();
  /// The next field as "True" or "False", in any case.
  bool BooleanField();

  /// The leading number of the next line (0 when there is none); see LeadingNumber.
  double RealLine();
  std::int16_t IntegerLine();
  /// The next line as "#TRUE#" or "#FALSE#".
  bool FlagLine();

 private:
  QByteArrayView TakeLine();
  [[nodiscard]] double Required(std::optional<double> number) const;
  [[nodiscard]] std::int16_t ToInteger(double value) const;
  [[nodiscard]] bool OneOf(const QString& text, const QString& yes, const QString& no) const;

  QByteArray bytes_;
  qsizetype position_ = 0;
  int line_ = 0;   // of what was read last
  int field_ = 0;  // likewise; 0 after a whole line
  bool withinLine_ = false;
  CodePageDecoder decoder_;
};

/// Collects the lines of a text file of the program.
class FileText {
 public:
  /// A line as it stands.
  FileText& Line(const QString& text);
  /// A number in print form: its sign place, its digits, a blank.
  FileText& Number(double value);
  /// "#TRUE#" or "#FALSE#".
  FileText& Flag(bool value);

  [[nodiscard]] const QString& Text() const { return text_; }

  /// Writes the lines, each with CR LF, in the program's code page; see ReplaceFile.
  WriteResult WriteTo(const QString& path) const;

 private:
  QString text_;
};

}  // namespace vexa
