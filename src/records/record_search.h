// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QList>
#include <QString>
#include <optional>

#include "records/record.h"
#include "records/sql_session.h"

namespace vexa {

/// What a table shows of one sample.
struct RecordSummary {
  QString id;
  qint64 number = 0;
  qint64 utcMs = 0;
  QString time;  ///< ISO 8601 with offset
  QString station;
  QString lot;
  QString recipe;
  QString sampleNumber;
  QString operatorName;
  QString verdict;      ///< "OK", "NG" or "none"
  QString supersedes;   ///< the id of the sample that it replaces, or empty
  QString reason;       ///< why it does
  int repeat = 1;       ///< which measurement of its lens, from 1
  int repeats = 1;      ///< that its recipe wants
  QString heldBy;       ///< the daily check that holds its verdict; empty when none does any more
  ColourResult colour;  ///< not a number what could not be computed
  std::optional<double> thicknessNm;
  bool physical = false;    ///< the thickness is no optical one
  QStringList doubts = {};  ///< about the thickness, by their names
};

/// Which samples are wanted; what is not given does not restrict.
struct RecordQuery {
  std::optional<QString> id;  ///< also one that is superseded
  std::optional<QString> lot;
  std::optional<QString> recipe;
  std::optional<QString> operatorName;
  QString samplePart;  ///< of the sample number; the case of A to Z does not matter
  QDateTime from;      ///< this moment included
  QDateTime to;        ///< this moment not included
  std::optional<Verdict> verdict;
  bool withSuperseded = false;
  int limit = 100;

  /// Only what comes behind this one: the last of the page before.
  std::optional<RecordSummary> after;
  /// Only what comes before this one, as it was measured since.
  std::optional<RecordSummary> newerThan;
};

/// The newest first; samples of the same millisecond by station and number.
[[nodiscard]] Answer<QList<RecordSummary>> SearchRecords(const SqlSession& session,
                                                         const RecordQuery& query);

}  // namespace vexa
