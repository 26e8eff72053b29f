// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/journal.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "support/full_disk.h"
#include "support/temporary_files.h"

namespace vexa {
namespace {

// Three moments of a session: a background, a slot with everything, and all cleared.
std::array<SessionImage, 4> Moments() {
  VEXATYPE state;
  std::array<SessionImage, 4> moments{EmptySession()};
  state.backgroundMeasured = true;
  state.backgroundTaken = {QDateTime({2026, 3, 29}, {2, 30, 0, 7}), 3000, 4, 5};
  state.background[848] = 1.0 / 3.0;
  moments[1] = TakeImage(state);
  MeasurementSlot& slot = *state.Slot(10);
  slot.valid = true;
  slot.info = {QStringLiteral("№1, ﾚﾝｽﾞ"), QString(), QStringLiteral("\"備考\""),
               QDateTime({1999, 12, 31}, {0, 0})};
  slot.reflectance[840] = 4.2;
  slot.thickness = {{500.5, 1.5}, {600.0, 2.5}, 1500.0, false, 1.5, 1.6, {}};
  slot.thickness.extrema.count = 1;
  slot.thickness.extrema.entries[0] = {{500.5, 1.5}, true};
  slot.taken = {state.backgroundTaken, {DispersionKind::kFixedValue, 3.5, {}, {}, {}, {}}};
  state.Slot(9)->fit = FilmFit{.outcome = FitOutcome::kNone, .layers = {{std::nan("")}}};
  slot.noise[840] = 0.02;
  slot.fit = FilmFit{.outcome = FitOutcome::kAmbiguous,
                     .layers = {{1500.1, 1.5, 0.5, 1.25, 0.25}, {300.0}},
                     .scale = 0.98,
                     .offset = 0.01,
                     .spread = 0.002,
                     .index = 1.001,
                     .rms = 0.05,
                     .noise = 0.04,
                     .fromNm = 838,
                     .fitted = {4.0, 4.1, 4.2},
                     .alternatives = {{{1602.3, 310.0}, 0.06}},
                     .warnings = {QStringLiteral("倍率")},
                     .setting = {QStringLiteral("1.5"), {{QStringLiteral("ﾚﾝｽﾞ.nk"), {}}}, {}}};
  moments[2] = TakeImage(state);
  state.ClearSlots();
  state.accumulate = true;
  state.stock.Record({false, 3, false});
  (void)state.stock.StockAdd({}, false);
  state.stock.P2[0] = 12.5;
  (void)state.thicknessHistory.Append({1500.25, false, {{ThicknessDoubt::kNoise}, false, 1501.5}});
  moments[3] = TakeImage(state);
  return moments;
}

QByteArray JournalOf(const std::array<SessionImage, 4>& moments, std::vector<qsizetype>& ends) {
  QByteArray bytes = JournalHeader();
  ends = {bytes.size()};
  for (std::size_t i = 1; i < moments.size(); ++i) {
    bytes += ChangeRecord(moments[i - 1], moments[i]);
    ends.push_back(bytes.size());
  }
  return bytes;
}

TEST(Journal, KeepsEveryBitOfASession) {
  for (const SessionImage& moment : Moments()) {
    VEXATYPE restored;
    ASSERT_TRUE(PutImage(moment, restored));
    EXPECT_EQ(TakeImage(restored), moment);
  }
}

TEST(Journal, AFitComesBackWithItsSlot) {
  VEXATYPE restored;
  ASSERT_TRUE(PutImage(Moments()[2], restored));
  const MeasurementSlot& slot = *restored.Slot(10);
  EXPECT_EQ(slot.noise[840], 0.02);
  ASSERT_TRUE(slot.fit);
  EXPECT_EQ(slot.fit->layers.at(1).thicknessNm, 300.0);
  EXPECT_EQ(slot.fit->fitted, (std::vector<double>{4.0, 4.1, 4.2}));
  EXPECT_EQ(slot.fit->alternatives.at(0).thicknessesNm.at(1), 310.0);
  EXPECT_EQ(slot.fit->setting.layers.at(0).material, QStringLiteral("ﾚﾝｽﾞ.nk"));
  const std::optional<FilmFit>& none = restored.Slot(9)->fit;
  EXPECT_TRUE(none && std::isnan(none->layers.at(0).thicknessNm));

  SessionImage image = Moments()[2];
  // A curve that reaches beyond the spectrum would be drawn from there.
  const qsizetype at = image[11].indexOf(QByteArray("\x46\x03\0\0\x03\0", 6));
  ASSERT_GT(at, 0);
  image[11][at] = '\x47';
  EXPECT_FALSE(PutImage(image, restored));
}

TEST(Journal, CutAnywhereHoldsEveryWholeRecord) {
  const auto moments = Moments();
  std::vector<qsizetype> ends;
  const QByteArray whole = JournalOf(moments, ends);
  for (qsizetype size = 0; size <= whole.size(); ++size) {
    const auto records =
        static_cast<std::size_t>(std::ranges::upper_bound(ends, size) - ends.begin());
    const JournalContent content = ReadJournal(whole.first(size));
    ASSERT_TRUE(content.readable && !content.damaged) << size;
    ASSERT_EQ(content.end, records == 0 ? 0 : ends[records - 1]) << size;
    ASSERT_EQ(content.image, moments[records == 0 ? 0 : records - 1]) << size;
  }
}

TEST(Journal, DamageCostsItsOwnRecordAlone) {
  const auto moments = Moments();
  std::vector<qsizetype> ends;
  QByteArray bytes = JournalOf(moments, ends);
  bytes[ends[0] + 5] = static_cast<char>(~bytes[ends[0] + 5]);  // the length of the first record
  const JournalContent content = ReadJournal(bytes.first(ends[2]));
  EXPECT_TRUE(content.damaged);
  EXPECT_EQ(content.image[0], EmptySession()[0]);
  EXPECT_EQ(content.image[11], moments[2][11]);
  const QByteArray noise(100, 'x');
  EXPECT_TRUE(ReadJournal(bytes.first(ends[0]) + noise).damaged) << "no record cut short";
  bytes[20] = '9';
  EXPECT_FALSE(ReadJournal(bytes).readable) << "another version";
}

// Each mark begins a record of 60 kB whose sum is wrong: summing all of them would take hours.
TEST(Journal, AJournalOfMarksIsReadInLinearTime) {
  QByteArray marks("VREC\x60\xea\0\0", 8);
  const JournalContent content = ReadJournal(JournalHeader() + marks.repeated(1 << 20));
  EXPECT_TRUE(content.readable && content.damaged);
  EXPECT_EQ(content.image, EmptySession());
}

TEST(Journal, RunningProgramsKeepApart) {
  const test::TemporaryFiles files;
  const auto moments = Moments();
  const QByteArray record = ChangeRecord(moments[0], moments[2]);
  JournalsSetAside setAside;
  Journal first(files.Directory());
  ASSERT_TRUE(first.Append(record));
  {
    Journal second(files.Directory());
    EXPECT_FALSE(second.TakeLeft(setAside)) << "the first one's session is no left one";
    ASSERT_TRUE(second.Append(record));
    EXPECT_EQ(second.Path(), files.Path("vexa-2.journal"));
  }
  Journal third(files.Directory());
  const std::optional<JournalContent> left = third.TakeLeft(setAside);
  ASSERT_TRUE(left);
  EXPECT_EQ(left->image, moments[2]);
  ASSERT_TRUE(third.Append(ChangeRecord(moments[2], moments[3])));
  third.Release();
  EXPECT_EQ(ReadJournal(files.Read("vexa-2.journal")).image, moments[3]);
  EXPECT_TRUE(first.IsInPlace());
  first.Remove();
  EXPECT_FALSE(QFile::exists(files.Path("vexa.journal")));
}

TEST(Journal, ForeignOnesGetOutOfTheWay) {
  const test::TemporaryFiles files;
  files.Write("vexa.journal", "VEXA-KT 440-840 Ver 4.00 Journal File\r\nabc");
  files.Write("vexa.journal.bad", "earlier");
  files.Write("vexa-2.journal", "VEXA-KT");
  QByteArray damaged = JournalHeader() + ChangeRecord(Moments()[0], Moments()[1]);
  damaged.back() = static_cast<char>(~damaged.back());
  files.Write("vexa-3.journal", damaged);
  QFile huge(files.Write("vexa-4.journal", JournalHeader()));
  ASSERT_TRUE(huge.resize(qint64{6} << 30));
  JournalsSetAside setAside;
  Journal journal(files.Directory());
  EXPECT_FALSE(journal.TakeLeft(setAside));
  EXPECT_EQ(setAside.otherVersions, QStringList{files.Path("vexa.journal.bad2")});
  EXPECT_EQ(setAside.unreadable,
            (QStringList{files.Path("vexa-3.journal.bad"), files.Path("vexa-4.journal.bad")}));
  EXPECT_TRUE(files.Read("vexa.journal.bad2").endsWith("abc"));
  EXPECT_EQ(files.Read("vexa.journal.bad"), "earlier");
  EXPECT_FALSE(QFile::exists(files.Path("vexa-2.journal"))) << "ended before its first record";
}

TEST(Journal, FullDiskLosesNothingThatWasKept) {
  const test::TemporaryFiles files;
  const auto moments = Moments();
  Journal journal(files.Directory());
  ASSERT_TRUE(journal.Append(ChangeRecord(moments[0], moments[1])));

  {
    const test::FullDisk disk(5000);
    EXPECT_FALSE(journal.Append(ChangeRecord(moments[1], moments[2])));
  }
  EXPECT_EQ(ReadJournal(files.Read("vexa.journal")).image, moments[1]);

  ASSERT_TRUE(journal.Append(ChangeRecord(moments[1], moments[3])));
  const JournalContent content = ReadJournal(files.Read("vexa.journal"));
  EXPECT_EQ(content.image, moments[3]);
  EXPECT_FALSE(content.damaged);
}

}  // namespace
}  // namespace vexa
