// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/record_keeper.h"

#include <gtest/gtest.h>

#include "records/samples.h"
#include "support/full_disk.h"
#include "support/temporary_files.h"

namespace vexa {
namespace {

using test::SampleRows;

Row Sample(unsigned seed) {
  return SampleRows(seed).last();
}

class Keeper : public testing::Test {
 protected:
  Keeper() {
    QObject::connect(&keeper, &RecordKeeper::Faulted,
                     [this](StoreFault fault) { faults << fault; });
    QObject::connect(&keeper, &RecordKeeper::Paid, [this] { ++paid; });
  }

  // The ids in the store, in their order.
  [[nodiscard]] QStringList Ids() const {
    RecordStore store;
    EXPECT_EQ(store.Open(path, RecordStore::Mode::kRead), StoreFault::kNone);
    EXPECT_EQ(store.Verify().value.damage, ChainCheck::Damage::kNone);
    QStringList ids;
    for (const StoredRow& row : store.RowsAfter(0, 1000).value) {
      ids << row.row.id;
    }
    return ids;
  }

  test::TemporaryFiles files;
  QString path = files.Path("records.db");
  RecordKeeper keeper{path, 10};
  QList<StoreFault> faults;
  int paid = 0;
};

TEST_F(Keeper, PaysALockedStoreInOrder) {
  EXPECT_EQ(keeper.Keep({Sample(1)}), Kept::kStored);
  RecordStore holder;
  ASSERT_EQ(holder.Open(path, RecordStore::Mode::kWrite), StoreFault::kNone);
  (void)holder.AppendIf({}, [this] {
    EXPECT_EQ(keeper.Keep({Sample(2)}), Kept::kOwed);
    EXPECT_EQ(keeper.Keep({Sample(3)}), Kept::kOwed);
    return false;
  });
  EXPECT_EQ(faults, QList<StoreFault>{StoreFault::kLocked}) << "told once";
  EXPECT_EQ(keeper.OwedCount(), 2);
  EXPECT_EQ(keeper.Keep({Sample(4)}), Kept::kStored);
  EXPECT_EQ(paid, 1);
  EXPECT_EQ(keeper.OwedCount(), 0);
  QStringList expected;
  for (unsigned seed = 1; seed <= 4; ++seed) {
    expected << Sample(seed).id;
  }
  EXPECT_EQ(Ids(), expected);
}

TEST_F(Keeper, OwesWhatADamagedStoreCannotTake) {
  files.Write("records.db", "this is no database, and it stays as it is");
  const QByteArray damaged = files.Read("records.db");
  EXPECT_EQ(keeper.Keep({Sample(1)}), Kept::kOwed);
  EXPECT_EQ(files.Read("records.db"), damaged);
  EXPECT_EQ(faults, QList<StoreFault>{StoreFault::kDamaged});
  // Another program pays, once the file is out of the way.
  ASSERT_TRUE(QFile::rename(path, files.Path("records.bad")));
  RecordKeeper other(path);
  EXPECT_TRUE(other.Pay());
  EXPECT_EQ(Ids(), QStringList{Sample(1).id});
  EXPECT_TRUE(keeper.Pay());
}

TEST_F(Keeper, HoldsWhatAFullDiskTakesNowhere) {
  QList<StoreFault> held;
  QObject::connect(&keeper, &RecordKeeper::Held, &keeper, [&held](auto fault) { held << fault; });
  ASSERT_EQ(keeper.Keep({Sample(1)}), Kept::kStored);
  {
    const test::FullDisk disk(0);
    EXPECT_EQ(keeper.Keep({Sample(2)}), Kept::kHeld);
    EXPECT_EQ(keeper.Keep({Sample(3)}), Kept::kHeld);
    EXPECT_EQ(keeper.OwedCount(), 2);
  }
  EXPECT_EQ(held, QList<StoreFault>{StoreFault::kFull});
  EXPECT_TRUE(faults.isEmpty()) << "nothing promises to keep them";
  EXPECT_TRUE(keeper.Pay());
  EXPECT_EQ(Ids(), (QStringList{Sample(1).id, Sample(2).id, Sample(3).id}));
}

TEST_F(Keeper, PayingTwiceKeepsOnce) {
  const OwedRows owed(files.Path("records.owed"));
  ASSERT_TRUE(owed.Add({Sample(1)}));
  const QByteArray bytes = files.Read("records.owed");
  ASSERT_TRUE(keeper.Pay());
  files.Write("records.owed", bytes);  // killed before the file was emptied
  ASSERT_TRUE(keeper.Pay());
  EXPECT_EQ(Ids(), QStringList{Sample(1).id});
}

TEST_F(Keeper, NewStoreTakesThePlaceOfADeletedOne) {
  ASSERT_EQ(keeper.Keep({Sample(1)}), Kept::kStored);
  for (const char* suffix : {"", "-wal", "-shm"}) {
    QFile::remove(path + QLatin1String(suffix));
  }
  int replaced = 0;
  QObject::connect(&keeper, &RecordKeeper::Replaced, &keeper, [&replaced] { ++replaced; });
  ASSERT_EQ(keeper.Keep({Sample(2)}), Kept::kStored);
  ASSERT_EQ(keeper.Keep({Sample(3)}), Kept::kStored);
  EXPECT_EQ(Ids(), (QStringList{Sample(2).id, Sample(3).id}));
  EXPECT_EQ(replaced, 1) << "told once";
}

TEST(OwedRowsFile, DamageCostsItsOwnEntryAlone) {
  const test::TemporaryFiles files;
  const OwedRows owed(files.Path("records.owed"));
  ASSERT_TRUE(owed.Add({Sample(1), Sample(2), Sample(3)}));
  const QByteArray whole = files.Read("records.owed");
  const qsizetype second = whole.indexOf("OWED", 1);
  struct Case {
    const char* name;
    QByteArray bytes;
    QList<unsigned> left;
  };
  QByteArray changed = whole;
  changed[second + 100] = static_cast<char>(~changed[second + 100]);
  QByteArray length = whole;
  length[second + 7] = '\x7f';
  for (const Case& item : {Case{"changed", changed, {1, 3}}, Case{"length", length, {1, 3}},
                           Case{"torn", whole.chopped(1), {1, 2}}, Case{"other", "OWED", {}}}) {
    files.Write("records.owed", item.bytes);
    QStringList expected;
    for (const unsigned seed : item.left) {
      expected << Sample(seed).id;
    }
    QStringList paid;
    EXPECT_TRUE(owed.Pay([&paid](const QList<Row>& rows) {
      for (const Row& row : rows) {
        paid << row.id;
      }
      return true;
    }));
    EXPECT_EQ(paid, expected) << item.name;
    EXPECT_EQ(files.Read("records.owed.bad"), item.bytes) << item.name;
  }
}

}  // namespace
}  // namespace vexa
