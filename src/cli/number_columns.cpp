// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/number_columns.h"

#include <QFile>
#include <QStringDecoder>

#include "base/code_page.h"
#include "base/number_text.h"
#include "base/translation.h"
#include "cli/console.h"

namespace vexa::cli {
namespace {

constexpr qint64 kLargestFile = 64LL * 1024 * 1024;

std::optional<QString> ReadText(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    Complain(Text::tr("%1：読み込めません").arg(path));
    return std::nullopt;
  }
  const QByteArray bytes = file.read(kLargestFile + 1);
  if (file.error() != QFile::NoError || bytes.size() > kLargestFile) {
    Complain(Text::tr("%1：読み込めないか、64 MiB を超えています").arg(path));
    return std::nullopt;
  }
  QStringDecoder utf8(QStringDecoder::Utf8);
  QString text = utf8(bytes);
  return utf8.hasError() ? CodePageDecoder().Decode(bytes) : text;
}

// The rows of a text one after another. What separates the columns of the first row does so in all.
class RowReader {
 public:
  RowReader(const QString& path, const QString& text) : path_(path), rest_(text) {}

  /// Takes the next row that holds anything; false at the end.
  bool Next() {
    while (!rest_.isEmpty()) {
      const qsizetype end = rest_.indexOf(u'\n');
      const QStringView line = WithoutComment(end < 0 ? rest_ : rest_.first(end)).trimmed();
      rest_ = end < 0 ? QStringView() : rest_.sliced(end + 1);
      ++line_;
      if (!line.isEmpty()) {
        Split(line);
        return true;
      }
    }
    return false;
  }

  [[nodiscard]] const QStringList& Cells() const { return cells_; }

  [[nodiscard]] std::optional<double> Number(qsizetype column) const {
    const std::optional<double> number = ParseNumber(cells_[column]);
    if (!number) {
      Fault(Text::tr("\"%1\" は数値ではありません").arg(cells_[column]));
    }
    return number;
  }

  void Fault(const QString& text) const {
    Complain(Text::tr("%1：%2 行目：%3").arg(path_).arg(line_).arg(text));
  }

 private:
  static QStringView WithoutComment(QStringView line) {
    const auto isBlank = [line](qsizetype i) { return i >= line.size() || line[i].isSpace(); };
    for (qsizetype i = line.indexOf(u'#'); i >= 0; i = line.indexOf(u'#', i + 1)) {
      if (i == 0 || (isBlank(i - 1) && isBlank(i + 1))) {
        return line.first(i);
      }
    }
    return line;
  }

  void Split(QStringView line) {
    if (separator_.isNull()) {
      separator_ = line.contains(u',') ? u',' : line.contains(u'\t') ? u'\t' : u' ';
    }
    cells_.clear();
    QString cell;
    bool quoted = false;
    for (const QChar c : line) {
      if (c == u'"') {
        quoted = !quoted;
      } else if (!quoted && (c == separator_ || (separator_ == u' ' && c == u'\t'))) {
        Add(cell);
      } else {
        cell += c;
      }
    }
    Add(cell);
  }

  // Several blanks are one separator; several commas have empty cells between.
  void Add(QString& cell) {
    if (separator_ != u' ' || !cell.isEmpty()) {
      cells_.append(cell.trimmed());
    }
    cell.clear();
  }

  QString path_;
  QStringView rest_;
  QStringList cells_;
  QChar separator_;
  int line_ = 0;
};

// Places of the named columns in the heading that is the reader's row.
std::optional<std::vector<qsizetype>> FindColumns(const RowReader& reader,
                                                  const QStringList& names) {
  std::vector<qsizetype> columns;
  for (const QString& name : names) {
    const qsizetype column = reader.Cells().indexOf(name);
    if (column < 0) {
      reader.Fault(Text::tr("見出しに列 \"%1\" がありません").arg(name));
      return std::nullopt;
    }
    columns.push_back(column);
  }
  return columns;
}

// A missing or spoilt number at the top of a column must not pass for its heading.
bool IsHeading(const QString& cell) {
  static const QStringList kNoNumbers =
      QStringLiteral("nan inf infinity na n/a null none").split(u' ');
  return !cell.isEmpty() && cell.front().isLetter() &&
         !kNoNumbers.contains(cell, Qt::CaseInsensitive);
}

std::optional<std::vector<double>> ReadOnlyColumn(RowReader& reader) {
  std::vector<double> numbers;
  for (bool first = true; reader.Next(); first = false) {
    if (reader.Cells().size() != 1) {
      reader.Fault(
          Text::tr("複数の列があります。見出しのある表の列を --column で指定してください"));
      return std::nullopt;
    }
    if (first && IsHeading(reader.Cells().front())) {
      continue;
    }
    const std::optional<double> number = reader.Number(0);
    if (!number) {
      return std::nullopt;
    }
    numbers.push_back(*number);
  }
  return numbers;
}

}  // namespace

std::optional<std::vector<double>> ReadNumbers(const QString& path,
                                               const std::optional<QString>& name) {
  if (name) {
    const auto columns = ReadLabelledNumbers(path, {}, *name);
    return columns ? std::optional(columns->numbers) : std::nullopt;
  }
  const std::optional<QString> text = ReadText(path);
  if (!text) {
    return std::nullopt;
  }
  RowReader reader(path, *text);
  return ReadOnlyColumn(reader);
}

std::optional<LabelledNumbers> ReadLabelledNumbers(const QString& path,
                                                   const QStringList& labelColumns,
                                                   const QString& numberColumn) {
  const std::optional<QString> text = ReadText(path);
  if (!text) {
    return std::nullopt;
  }
  LabelledNumbers result{
      .labels = std::vector<QStringList>(static_cast<std::size_t>(labelColumns.size())),
      .numbers = {}};
  RowReader reader(path, *text);
  if (!reader.Next()) {
    return result;
  }
  const auto width = reader.Cells().size();
  const auto columns = FindColumns(reader, labelColumns + QStringList{numberColumn});
  if (!columns) {
    return std::nullopt;
  }
  while (reader.Next()) {
    if (reader.Cells().size() != width) {
      reader.Fault(
          Text::tr("列が %1 個ですが、見出しは %2 個です").arg(reader.Cells().size()).arg(width));
      return std::nullopt;
    }
    for (std::size_t i = 0; i < result.labels.size(); ++i) {
      const QString& label = reader.Cells()[(*columns)[i]];
      if (label.isEmpty()) {
        reader.Fault(Text::tr("\"%1\" が空です").arg(labelColumns[static_cast<int>(i)]));
        return std::nullopt;
      }
      result.labels[i].append(label);
    }
    const std::optional<double> number = reader.Number(columns->back());
    if (!number) {
      return std::nullopt;
    }
    result.numbers.push_back(*number);
  }
  return result;
}

}  // namespace vexa::cli
