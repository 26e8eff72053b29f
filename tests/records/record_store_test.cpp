// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/record_store.h"

#include <gtest/gtest.h>
#include <sys/fsuid.h>

#include <cmath>
#include <functional>
#include <thread>

#include "base/read_file.h"
#include "base/replace_file.h"
#include "records/samples.h"
#include "support/full_disk.h"
#include "support/temporary_files.h"

namespace vexa {
namespace {

using test::MeasuredState;
using test::SampleRows;
using test::With;
using Context = RecordContext;
using Query = RecordQuery;
using Damage = ChainCheck::Damage;
using Mode = RecordStore::Mode;

class Store : public testing::Test {
 protected:
  Store() { EXPECT_EQ(store.Open(path, Mode::kWrite), StoreFault::kNone); }

  // What a hand with its own tool does to the file.
  void Tamper(const char* statement) const {
    SqlSession other;
    ASSERT_EQ(other.Open(QStringLiteral("QSQLITE"), path, {}), StoreFault::kNone);
    for (const char* trigger : {"no_update", "no_delete", "in_order"}) {
      ASSERT_EQ(other.Run(QStringLiteral("DROP TRIGGER IF EXISTS ") + QLatin1String(trigger)),
                StoreFault::kNone);
    }
    ASSERT_EQ(other.Run(QString::fromUtf8(statement)), StoreFault::kNone) << statement;
  }

  test::TemporaryFiles files;
  QString path = files.Path("records.db");
  RecordStore store;
};

TEST_F(Store, KeepsEveryBitOfAMeasuredSample) {
  VEXATYPE state = MeasuredState();
  MeasurementSlot& slot = *state.Slot(1);
  slot.thickness = {{500.5, 1.5}, {600.0, 2.5}, 1500.0, false, 1.5, 1.6, {}};
  slot.thickness.extrema.count = 1;
  slot.thickness.extrema.entries[0] = {{500.5, 1.5}, true};
  slot.doubts = {ThicknessDoubt::kEdge};
  slot.fit.emplace();
  slot.fit->layers = {{1500.0, 1.5, 0.5}};
  slot.fit->warnings = {QStringLiteral("W")};
  slot.judgement.groups[0] = {true, 0.25};
  slot.judgement.groups[4] = {false, std::nullopt};
  state.sampleBasis.referenceReflectance[440] = 1.0 / 3.0;  // another was set since it began
  state.colour.avgFrom = 900;                               // no average can be computed
  const MeasuredSample measured =
      *MeasuredSampleOf(state, 1, With<Context>(&Context::lot, "ロット 1"));
  const Answer<QList<qint64>> numbers = store.Append(measured.Rows());
  EXPECT_EQ(numbers.value, (QList<qint64>{1, 2, 3, 4}));

  const std::optional<SampleRecord> sample = ToSample(store.Find(QStringLiteral("4")).value.row);
  ASSERT_TRUE(sample);
  EXPECT_EQ(ToRow(*sample), measured.Rows().last());
  EXPECT_EQ(sample->frame->counts, state.sample);
  EXPECT_EQ(sample->reflectance, slot.reflectance);
  EXPECT_EQ(sample->measuredAt, slot.info.measuredAt);
  EXPECT_TRUE(std::isnan(sample->colour.Rm));
  EXPECT_GT(sample->colour.Y, 0.0);
  EXPECT_EQ(sample->thickness->extrema.Found()[0].point, slot.thickness.extrema.entries[0].point);
  EXPECT_EQ(VerdictOf(*sample), Verdict::kNotGood);
  const auto frame = ToFrame(store.Find(sample->backgroundId).value.row);
  EXPECT_EQ(frame->counts, state.background);
  EXPECT_EQ(frame->kind, RecordFrameKind::kBackground);
  EXPECT_EQ(ToFrame(store.Find(sample->referenceId).value.row)->counts, state.reference);
  const auto settings = ToSettings(store.Find(sample->settingsId).value.row);
  EXPECT_EQ(settings->referenceReflectance, state.sampleBasis.referenceReflectance);
}

TEST_F(Store, KeepsTheCieColourAndItsVerdict) {
  VEXATYPE state = MeasuredState();
  state.colour.illuminant = 4;
  state.colour.observer2Deg = false;
  state.Slot(1)->reflectance = test::Flat(18.0);
  state.Slot(1)->judgement.groups[0] = {true, 0.5};
  const auto keep = [&state](const CieLimits& limits) {
    return *ToSample(
        MeasuredSampleOf(state, 1, With<Context>(&Context::cieLimits, limits))->Rows().last());
  };
  const SampleRecord plain = keep({});
  EXPECT_EQ((*plain.cie)[QLatin1String("observer")], 10);
  EXPECT_EQ((*plain.cie)[QLatin1String("illuminant")], QLatin1String("D65"));
  EXPECT_NEAR((*plain.cie)[QLatin1String("Rv")].toDouble(), 18.0, 1e-9);
  EXPECT_TRUE((*plain.cie)[QLatin1String("h")].isNull()) << "a grey has no hue";
  EXPECT_EQ(VerdictOf(plain), Verdict::kOk);

  CieLimits limits;
  limits.luminousReflectance = {true, 20.0, 17.0};
  EXPECT_EQ(VerdictOf(keep(limits)), Verdict::kOk);
  limits.deltaE00 = {true, 1.0, -CieLimits::kNone};
  limits.target = {50.0, 0.0, 0.0};
  limits.hueAngle = {true, 20.0, 340.0};
  const SampleRecord judged = keep(limits);
  EXPECT_EQ(VerdictOf(judged), Verdict::kNotGood) << "the standard alone says OK";
  EXPECT_EQ(judged.cieLimits, limits);
  EXPECT_NEAR(*judged.cieGroups[0].margin, 1.0, 1e-9);
  EXPECT_EQ(judged.cieGroups[5].passed, false);
  EXPECT_FALSE(judged.cieGroups[5].margin);
  EXPECT_EQ(judged.cieGroups[6].passed, true) << "18 % is L* 49.5";
  EXPECT_FALSE(judged.cieGroups[1].passed) << "not asked for";
  state.Slot(1)->judgement.groups[0] = {};
  EXPECT_EQ(VerdictOf(keep({})), Verdict::kNone);
}

TEST_F(Store, FramesAndSettingsAreKeptOnce) {
  VEXATYPE state = MeasuredState();
  ASSERT_TRUE(store.Append(MeasuredSampleOf(state, 1, {})->Rows()));
  state.sample[500] += 1.0;
  EXPECT_EQ(store.Append(MeasuredSampleOf(state, 1, {})->Rows()).value,
            (QList<qint64>{1, 2, 3, 5}));
  state.backgroundMeasured = false;
  EXPECT_FALSE(MeasuredSampleOf(state, 1, {})) << "nothing to compute it anew with";
}

TEST_F(Store, RefusesWhatWouldChangeARow) {
  ASSERT_TRUE(store.Append(SampleRows(1)));
  SqlSession other;
  ASSERT_EQ(other.Open(QStringLiteral("QSQLITE"), path, {}), StoreFault::kNone);
  for (const char* statement :
       {"UPDATE record_row SET document = '{}' WHERE number = 2", "DELETE FROM record_row",
        "INSERT OR REPLACE INTO record_row (number, document, numbers, hash)"
        " VALUES (2, '{}', x'', x'')",
        "INSERT INTO record_row (number, document, numbers, hash) VALUES (9, '{}', x'', x'')"}) {
    EXPECT_EQ(other.Run(QLatin1String(statement)), StoreFault::kRefused) << statement;
  }
  EXPECT_EQ(store.Verify().value.damage, Damage::kNone);
}

TEST_F(Store, VerifyNamesTheFirstDamagedRow) {
  struct Case {
    const char* statement;
    Damage damage;
    qint64 first;
  };
  const Case cases[] = {
      {"UPDATE record_row SET document = replace(document, 'ﾚﾝｽﾞ', 'ﾏﾄﾞ') WHERE number = 8",
       Damage::kChanged, 8},
      {"UPDATE record_row SET numbers = zeroblob(length(numbers)) WHERE number >= 6",
       Damage::kChanged, 6},
      {"UPDATE record_row SET lot = 'other' WHERE number = 4", Damage::kChanged, 4},
      {"UPDATE record_row SET document = 'x' WHERE number = 2", Damage::kChanged, 2},
      {"UPDATE record_row SET hash = zeroblob(32) WHERE number = 3", Damage::kChanged, 3},
      {"DELETE FROM record_row WHERE number = 5", Damage::kMissing, 5},
      {"DELETE FROM record_row WHERE number >= 7", Damage::kMissing, 7},
      {"INSERT INTO record_row (document, numbers, hash) VALUES ('{}', x'', zeroblob(32))",
       Damage::kChanged, 13},
  };
  for (unsigned seed = 1; seed <= 3; ++seed) {
    ASSERT_TRUE(
        store.Append(SampleRows(seed, With<Context>(&Context::station, QString::number(seed)))));
  }
  const Answer<ChainCheck> whole = store.Verify();
  EXPECT_EQ(whole.value.damage, Damage::kNone);
  EXPECT_EQ(whole.value.head.hash, store.Head().value.hash);
  ASSERT_EQ(store.Backup(files.Path("whole.db")), StoreFault::kNone);
  for (const Case& item : cases) {
    store.Close();
    ASSERT_TRUE(QFile::remove(path));
    ASSERT_TRUE(QFile::copy(files.Path("whole.db"), path));
    Tamper(item.statement);
    ASSERT_EQ(store.Open(path, Mode::kWrite), StoreFault::kNone);
    ASSERT_TRUE(store.Append(SampleRows(9, With<Context>(&Context::station, "9"))))
        << "measuring goes on";
    const ChainCheck check = store.Verify().value;
    EXPECT_EQ(check.damage, item.damage) << item.statement;
    EXPECT_EQ(check.firstDamaged, item.first) << item.statement;
  }
}

TEST_F(Store, ManyWritersLoseNothing) {
  constexpr unsigned kWriters = 4;
  constexpr unsigned kEach = 12;
  std::vector<std::thread> writers;
  for (unsigned writer = 0; writer < kWriters; ++writer) {
    writers.emplace_back([this, writer] {
      RecordStore own;
      ASSERT_EQ(own.Open(files.Path("new.db"), Mode::kWrite, 60000), StoreFault::kNone);
      for (unsigned i = 0; i < kEach; ++i) {
        EXPECT_TRUE(own.Append({SampleRows(1000 * writer + i).last()}));
      }
    });
  }
  for (std::thread& writer : writers) {
    writer.join();
  }
  ASSERT_EQ(store.Open(files.Path("new.db"), Mode::kRead), StoreFault::kNone);
  const ChainCheck check = store.Verify().value;
  EXPECT_EQ(check.rows, qint64{kWriters} * kEach);
  EXPECT_EQ(check.damage, Damage::kNone);
}

TEST_F(Store, FaultsAreToldApart) {
  ASSERT_TRUE(store.Append(SampleRows(1)));
  {
    RecordStore holder;
    ASSERT_EQ(holder.Open(path, Mode::kWrite), StoreFault::kNone);
    const auto inside = [this] {
      RecordStore impatient;
      EXPECT_EQ(impatient.Open(path, Mode::kWrite, 10), StoreFault::kNone);
      EXPECT_EQ(impatient.Append(SampleRows(2)).fault, StoreFault::kLocked);
      return false;
    };
    EXPECT_EQ(holder.AppendIf({}, inside).fault, StoreFault::kRefused);
  }
  {
    const test::FullDisk disk(static_cast<rlim_t>(QFileInfo(path + QStringLiteral("-wal")).size()));
    EXPECT_EQ(store.Append(SampleRows(3)).fault, StoreFault::kFull);
  }
  EXPECT_EQ(store.Append(SampleRows(3)).fault, StoreFault::kNone) << "there is room again";
  EXPECT_EQ(store.Verify().value.damage, Damage::kNone);

  RecordStore other;
  EXPECT_EQ(other.Open(files.Path("none.db"), Mode::kRead), StoreFault::kMissing);
  EXPECT_FALSE(files.Has("none.db"));
  files.Write("text.db", QByteArray(5000, 'x'));
  EXPECT_EQ(other.Open(files.Path("text.db"), Mode::kWrite), StoreFault::kDamaged);
  EXPECT_EQ(files.Read("text.db"), QByteArray(5000, 'x'));

  // Another kind of database, and a store of a newer program.
  for (const char* statement : {"CREATE TABLE t (a)", "PRAGMA user_version = 99"}) {
    const QString name = files.Path(statement[0] == 'C' ? "foreign.db" : "newer.db");
    if (statement[0] == 'P') {
      ASSERT_EQ(store.Backup(name), StoreFault::kNone);
    }
    SqlSession session;
    ASSERT_EQ(session.Open(QStringLiteral("QSQLITE"), name, {}), StoreFault::kNone);
    ASSERT_EQ(session.Run(QLatin1String(statement)), StoreFault::kNone);
    session.Close();
    EXPECT_EQ(other.Open(name, Mode::kWrite), StoreFault::kForeign) << statement;
    EXPECT_EQ(other.Open(name, Mode::kRead), StoreFault::kForeign) << statement;
  }
}

TEST_F(Store, ReadOnlyFilesAreToldAndRead) {
  ASSERT_TRUE(store.Append(SampleRows(1)));
  ASSERT_EQ(store.Backup(files.Path("copy.db")), StoreFault::kNone);
  constexpr auto kRead = QFile::ReadOwner | QFile::ReadGroup;
  QFile::setPermissions(files.Path("copy.db"), kRead);
  QFile::setPermissions(files.Directory(), kRead | QFile::ExeOwner | QFile::ExeGroup);
  const int before = setfsuid(65534);  // root may write anything
  RecordStore copy;
  const StoreFault written = copy.Open(files.Path("copy.db"), Mode::kWrite);
  const StoreFault made = copy.Open(files.Path("new.db"), Mode::kWrite);
  EXPECT_EQ(copy.Open(files.Path("copy.db"), Mode::kRead), StoreFault::kNone);
  EXPECT_EQ(copy.Head().value.number, 4);
  setfsuid(static_cast<uid_t>(before));
  QFile::setPermissions(files.Directory(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  EXPECT_EQ(written, StoreFault::kReadOnly);
  EXPECT_EQ(made, StoreFault::kReadOnly);
}

TEST_F(Store, BackupIsWholeAndNeverTheStore) {
  ASSERT_TRUE(store.Append(SampleRows(1)));
  EXPECT_EQ(store.Backup(files.Path("copy.db")), StoreFault::kNone);
  ASSERT_TRUE(store.Append(SampleRows(2)));
  EXPECT_EQ(store.Backup(files.Path("copy.db")), StoreFault::kNone) << "over an earlier copy";
  files.Write("data.csv", "something else");
  EXPECT_EQ(store.Backup(files.Path("data.csv")), StoreFault::kRefused);
  EXPECT_EQ(files.Read("data.csv"), "something else");
  {
    RecordStore other;
    ASSERT_EQ(other.Open(files.Path("other.db"), Mode::kWrite), StoreFault::kNone);
    ASSERT_TRUE(other.Append(SampleRows(3)));
  }
  EXPECT_EQ(store.Backup(files.Path("other.db")), StoreFault::kRefused);
  EXPECT_EQ(store.Backup(path), StoreFault::kRefused);
  EXPECT_NE(store.Backup(files.Path("none/copy.db")), StoreFault::kNone);
  EXPECT_FALSE(files.Has("copy.db.part"));
  RecordStore copy;
  ASSERT_EQ(copy.Open(files.Path("copy.db"), Mode::kRead), StoreFault::kNone);
  EXPECT_EQ(copy.Verify().value.head.hash, store.Head().value.hash);
}

TEST_F(Store, SearchFindsBySeveralConditions) {
  const auto add = [this](unsigned seed, const RecordContext& context, Verdict verdict) {
    VEXATYPE state = MeasuredState(seed);
    if (verdict != Verdict::kNone) {
      state.Slot(1)->judgement.groups[1].passed = verdict == Verdict::kOk;
    }
    const QList<Row> rows = MeasuredSampleOf(state, 1, context)->Rows();
    EXPECT_TRUE(store.Append(rows));
    return rows.last().id;
  };
  const QString first =
      add(1, With<Context>(&Context::lot, "A", &Context::recipe, "r"), Verdict::kOk);
  add(2, With<Context>(&Context::lot, "A", &Context::operatorName, "山田"), Verdict::kNotGood);
  add(3, With<Context>(&Context::lot, "B"), Verdict::kNone);
  const QString fourth =
      add(4, With<Context>(&Context::lot, "A", &Context::supersedes, first, &Context::reason, "傷"),
          Verdict::kOk);
  const QDateTime second = MeasuredState(2).Slot(1)->info.measuredAt;

  struct Case {
    const char* name;
    RecordQuery query;
    const char* found;
  };
  const Case cases[] = {
      {"all", {}, "4 3 2"},
      {"lot", With<Query>(&Query::lot, "A"), "4 2"},
      {"superseded", With<Query>(&Query::lot, "A", &Query::withSuperseded, true), "4 2 1"},
      {"recipe", With<Query>(&Query::recipe, "r", &Query::withSuperseded, true), "1"},
      {"operator", With<Query>(&Query::operatorName, "山田"), "2"},
      {"no operator", With<Query>(&Query::operatorName, QString()), "4 3"},
      {"part", With<Query>(&Query::samplePart, "ｽﾞ-3"), "3"},
      {"wild cards are letters", With<Query>(&Query::samplePart, "%_"), ""},
      {"from", With<Query>(&Query::from, second), "4 3 2"},
      {"to", With<Query>(&Query::to, second.addMSecs(1), &Query::withSuperseded, true), "2 1"},
      {"to, not included", With<Query>(&Query::to, second, &Query::withSuperseded, true), "1"},
      {"OK", With<Query>(&Query::verdict, Verdict::kOk), "4"},
      {"NG", With<Query>(&Query::verdict, Verdict::kNotGood), "2"},
      {"none", With<Query>(&Query::verdict, Verdict::kNone), "3"},
      {"limit", With<Query>(&Query::limit, 2), "4 3"},
  };
  for (const Case& item : cases) {
    QStringList found;
    for (const RecordSummary& summary : store.Search(item.query).value) {
      found << summary.sampleNumber.mid(5);
    }
    EXPECT_EQ(found.join(u' '), QLatin1String(item.found)) << item.name;
  }
  // Page by page, one row each.
  auto page = With<Query>(&Query::withSuperseded, true, &Query::limit, 1);
  QStringList ids;
  for (auto rows = store.Search(page).value; !rows.isEmpty(); rows = store.Search(page).value) {
    ids << rows.last().id;
    page.after = rows.last();
  }
  EXPECT_EQ(ids.size(), 4);
  EXPECT_EQ(ids.first(), fourth);
  EXPECT_EQ(store.Search({}).value.first().supersedes, first);
}

TEST_F(Store, DecisionsAreFoundByTypeAndSubject) {
  EventRecord event;
  event.data = {{QStringLiteral("limit"), 4.5}};
  for (const char* name : {"release a", "freeze b", "release b", "release"}) {
    const QStringList words = QString::fromLatin1(name).split(u' ');
    event.type = words[0];
    event.subject = words.value(1);
    event.time = QDateTime::fromSecsSinceEpoch(1763000000 + store.Head().value.number);
    ASSERT_TRUE(store.Append({ToRow(event)}));
  }
  const auto found = [this](const char* type, const char* subject) {
    QStringList subjects;
    for (const StoredRow& row : store.Events(QLatin1String(type), QLatin1String(subject)).value) {
      const std::optional<EventRecord> read = ToEvent(row.row);
      EXPECT_EQ(read->data[QStringLiteral("limit")], 4.5);
      subjects << read->subject;
    }
    return subjects.join(u',').toStdString();
  };
  EXPECT_EQ(found("release", ""), ",b,a");
  EXPECT_EQ(found("release", "b"), "b");
  EXPECT_EQ(found("freeze", "a"), "");
}

TEST_F(Store, NothingElseOfTheProgramOpensItsFiles) {
  for (const QString& name : {path, path + QStringLiteral("-wal"), path + QStringLiteral("-shm")}) {
    EXPECT_FALSE(ReadRegularFile(name)) << name.toStdString();
  }
  EXPECT_FALSE(ReplaceFile(path, "x"));
  store.Close();
  EXPECT_TRUE(ReadRegularFile(path)) << "like any other file";
}

TEST_F(Store, NoticesThatItsFileIsGone) {
  ASSERT_TRUE(store.IsInPlace());
  ASSERT_TRUE(QFile::remove(path));
  EXPECT_FALSE(store.IsInPlace());
}

}  // namespace
}  // namespace vexa
