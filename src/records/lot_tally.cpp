// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/lot_tally.h"

#include <QRegularExpression>
#include <algorithm>

#include "base/translation.h"

namespace vexa {
namespace {

constexpr int kPage = 1000;

Verdict VerdictOfWord(const QString& word) {
  for (const Verdict verdict : {Verdict::kOk, Verdict::kNotGood}) {
    if (word == VerdictWord(verdict)) {
      return verdict;
    }
  }
  return Verdict::kNone;
}

}  // namespace

LensState LotLens::State() const {
  const auto is = [](Verdict verdict) {
    return [verdict](const Measurement& one) { return one.verdict == verdict; };
  };
  const bool held = std::ranges::any_of(
      measurements, [](const Measurement& one) { return !one.heldBy.isEmpty(); });
  if (!held && std::ranges::any_of(measurements, is(Verdict::kNotGood))) {
    return LensState::kNotGood;  // whatever the repeats to come would say
  }
  if (!complete) {
    return LensState::kIncomplete;
  }
  if (held) {
    return LensState::kHeld;
  }
  return std::ranges::all_of(measurements, is(Verdict::kOk)) ? LensState::kOk
                                                             : LensState::kUnjudged;
}

void LotTally::Add(const QString& number, const LotLens::Measurement& measurement,
                   const QString& supersedes) {
  const auto known = places_.constFind(number);
  if (known == places_.constEnd()) {
    places_.insert(number, lenses_.size());
    lenses_.push_back({number, {measurement}, measurement.last});
    ++counts_[static_cast<std::size_t>(lenses_.back().State())];
    return;
  }
  LotLens& lens = lenses_[*known];
  --counts_[static_cast<std::size_t>(lens.State())];
  lens.complete = measurement.last;
  const auto replaced = std::ranges::find(lens.measurements, supersedes, &LotLens::Measurement::id);
  if (!supersedes.isEmpty() && replaced != lens.measurements.end()) {
    *replaced = measurement;
  } else {
    lens.measurements << measurement;
  }
  ++counts_[static_cast<std::size_t>(lens.State())];
}

QStringList LotTally::HoldingChecks() const {
  QStringList checks;
  for (const LotLens& lens : lenses_) {
    for (const LotLens::Measurement& one : lens.measurements) {
      if (!one.heldBy.isEmpty() && !checks.contains(one.heldBy)) {
        checks << one.heldBy;
      }
    }
  }
  return checks;
}

void LotTally::Release(const QString& checkId) {
  counts_ = {};
  for (LotLens& lens : lenses_) {
    for (LotLens::Measurement& one : lens.measurements) {
      if (one.heldBy == checkId) {
        one.heldBy.clear();
      }
    }
    ++counts_[static_cast<std::size_t>(lens.State())];
  }
}

const LotLens* LotTally::Find(const QString& number) const {
  const auto place = places_.constFind(number);
  return place == places_.constEnd() ? nullptr : &lenses_[*place];
}

std::optional<double> LotTally::Yield() const {
  const int judged = Count(LensState::kOk) + Count(LensState::kNotGood);
  return judged == 0 ? std::nullopt
                     : std::optional(static_cast<double>(Count(LensState::kOk)) / judged);
}

QString LotTally::NumberAfter(const QString& last) const {
  static const QRegularExpression kDigits(QStringLiteral("^(.*?)([0-9]{1,9})$"));
  const QRegularExpressionMatch match = kDigits.match(last);
  const QString head = match.hasMatch() ? match.captured(1)
                       : last.isEmpty() ? QString()
                                        : last + u'-';
  const int width = static_cast<int>(match.captured(2).size());
  int number = match.hasMatch() ? match.captured(2).toInt() : last.isEmpty() ? 0 : 1;
  QString next;
  do {
    next = head + QStringLiteral("%1").arg(++number, width, 10, QChar(u'0'));
  } while (places_.contains(next));
  return next;
}

Answer<QList<RecordSummary>> LotRows(const RecordSource& store, const QString& lot) {
  RecordQuery query;
  query.lot = lot;
  query.limit = kPage;
  QList<RecordSummary> rows;
  for (bool more = true; more;) {
    const Answer<QList<RecordSummary>> page = store.Search(query);
    if (!page) {
      return {{}, page.fault};
    }
    rows << page.value;
    more = page.value.size() == kPage;
    if (more) {
      query.after = page.value.constLast();
    }
  }
  std::ranges::reverse(rows);
  return {rows};
}

LotTally TallyOf(const QList<RecordSummary>& rows) {
  LotTally tally;
  for (const RecordSummary& row : rows) {
    tally.Add(row.sampleNumber,
              {row.id, VerdictOfWord(row.verdict), row.repeat >= row.repeats, row.heldBy});
  }
  return tally;
}

LensState StateOf(Verdict verdict, const QString& heldBy) {
  LotLens lens;
  lens.measurements << LotLens::Measurement{{}, verdict, true, heldBy};
  return lens.State();
}

QString LensStateText(LensState state) {
  switch (state) {
    case LensState::kOk:
      return VerdictWord(Verdict::kOk);
    case LensState::kNotGood:
      return VerdictWord(Verdict::kNotGood);
    case LensState::kIncomplete:
      return Text::tr("未完");
    case LensState::kHeld:
      return Text::tr("保留");
    case LensState::kUnjudged:
      break;
  }
  return QStringLiteral("-");
}

}  // namespace vexa
