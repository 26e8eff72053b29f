// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/text_columns.h"

#include <algorithm>

namespace vexa::cli {
namespace {

bool IsWide(QChar letter) {
  const char16_t code = letter.unicode();
  const bool halfWidthKana = code >= 0xff61 && code <= 0xffdc;
  return code >= 0x2e80 && !halfWidthKana;
}

qsizetype Width(const QString& text) {
  return text.size() + std::count_if(text.begin(), text.end(), IsWide);
}

// What would end the line or move the cursor stands as a blank.
QString OneLine(QString cell) {
  for (QChar& letter : cell) {
    letter = letter.isPrint() ? letter : QChar(u' ');
  }
  return cell;
}

}  // namespace

QString TextColumns(QList<QStringList> rows) {
  QList<qsizetype> widths;
  for (QStringList& row : rows) {
    for (QString& cell : row) {
      cell = OneLine(cell);
    }
  }
  for (const QStringList& row : rows) {
    widths.resize(std::max(widths.size(), row.size()));
    for (qsizetype i = 0; i < row.size(); ++i) {
      widths[i] = std::max(widths[i], Width(row[i]));
    }
  }
  QString text;
  for (const QStringList& row : rows) {
    QString line;
    for (qsizetype i = 0; i < row.size(); ++i) {
      line += row[i] + QString(widths[i] - Width(row[i]) + 2, u' ');
    }
    while (line.endsWith(u' ')) {
      line.chop(1);
    }
    text += line + u'\n';
  }
  return text;
}

}  // namespace vexa::cli
