// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <QRectF>
#include <QRegularExpression>
#include <vector>

namespace vexa::test {

/// Runs pdftotext (package poppler-utils) on a PDF file and returns what it prints, as UTF-8.
inline QString RunPdfToText(const QString& path, const QStringList& options) {
  QProcess process;
  process.start(QStringLiteral("pdftotext"), options + QStringList{path, QStringLiteral("-")});
  EXPECT_TRUE(process.waitForFinished() && process.exitCode() == 0)
      << "pdftotext: " << process.errorString().toStdString()
      << process.readAllStandardError().constData();
  return QString::fromUtf8(process.readAllStandardOutput());
}

/// The texts of a PDF file, page by page, rows as they stand with single blanks between words.
inline QStringList PdfPages(const QString& path) {
  static const QRegularExpression kBlanks(QStringLiteral(" +"));
  QString text = RunPdfToText(path, {QStringLiteral("-layout")});
  QStringList pages = text.replace(kBlanks, QStringLiteral(" ")).split(u'\f');
  pages.removeLast();
  return pages;
}

/// The parts of their page (0..1 on either axis) that the words of a PDF file take, page by page.
inline std::vector<std::vector<QRectF>> PdfWordPlaces(const QString& path) {
  static const QRegularExpression kPlace(QStringLiteral(
      "<(page) width=\"([\\d.]+)\" height=\"([\\d.]+)\"|"
      "<word xMin=\"([-\\d.]+)\" yMin=\"([-\\d.]+)\" xMax=\"([-\\d.]+)\" yMax=\"([-\\d.]+)\""));
  std::vector<std::vector<QRectF>> places;
  QSizeF page;
  for (const QRegularExpressionMatch& match :
       kPlace.globalMatch(RunPdfToText(path, {QStringLiteral("-bbox")}))) {
    const auto number = [&match](int i) { return match.captured(i).toDouble(); };
    if (match.hasCaptured(1)) {
      page = {number(2), number(3)};
      places.emplace_back();
    } else {
      places.back().emplace_back(QPointF(number(4) / page.width(), number(5) / page.height()),
                                 QPointF(number(6) / page.width(), number(7) / page.height()));
    }
  }
  return places;
}

}  // namespace vexa::test
