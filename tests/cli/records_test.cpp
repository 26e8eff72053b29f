// SPDX-License-Identifier: GPL-3.0-or-later
// The command records, as a program.
#include <gtest/gtest.h>

#include "cli/running_programs.h"
#include "files/data_file.h"
#include "files/environment_file.h"
#include "measurement/reflectance.h"
#include "records/record_store.h"
#include "records/samples.h"
#include "standards/standard_file.h"
#include "support/private_postgres.h"

namespace vexa {
namespace {

using test::Outcome;
using test::With;
using Context = RecordContext;

class Records : public test::CommandLine {
 protected:
  Records() {
    EXPECT_EQ(store.Open(files.Path("records.db"), RecordStore::Mode::kWrite), StoreFault::kNone);
    VEXATYPE state = test::MeasuredState(1);
    state.Slot(1)->reflectance =
        ComputeReflectance(state.sample, state.background, state.reference,
                           state.instrument.calibrationShiftNm, state.referenceReflectance);
    Add(state, With<Context>(&Context::lot, "L1", &Context::station, "一号"));
    state = test::MeasuredState(2);
    state.Slot(1)->judgement.groups[1] = {false, -0.5};
    Add(state, With<Context>(&Context::lot, "L1", &Context::operatorName, "山田"));
  }

  void Add(const VEXATYPE& state, const RecordContext& context) {
    const QList<Row> rows = MeasuredSampleOf(state, 1, context)->Rows();
    ASSERT_TRUE(store.Append(rows));
    ids << rows.last().id.toLatin1();
  }
  [[nodiscard]] Outcome Do(const QByteArray& arguments) const {
    return Run("records " + arguments + " --dir @");
  }
  [[nodiscard]] QStringList Listed(const QByteArray& options = {}) const {
    QStringList found;
    const Outcome outcome = Do("list --json " + options);
    EXPECT_EQ(outcome.status, 0) << outcome.err.constData();
    for (const QJsonValue& record : outcome["records"].toArray()) {
      found << record.toObject()[QStringLiteral("sample")].toString();
    }
    return found;
  }

  RecordStore store;
  QByteArrayList ids;
};

TEST_F(Records, ListShowAndExportTellWhatWasMeasured) {
  const QJsonObject second = Do("list --limit 1 --json")["records"].toArray()[0].toObject();
  EXPECT_EQ(second[QStringLiteral("id")].toString().toLatin1(), ids[1]);
  EXPECT_EQ(second[QStringLiteral("verdict")], QStringLiteral("NG"));
  EXPECT_EQ(second[QStringLiteral("operator")], QStringLiteral("山田"));
  EXPECT_TRUE(second[QStringLiteral("supersedes")].isNull());
  EXPECT_EQ(Listed("--verdict none"), QStringList{QStringLiteral("ﾚﾝｽﾞ-1")});
  EXPECT_EQ(Listed("--from 2026-11-21 --to 2026/11/21").size(), 2) << "a day with its end";
  EXPECT_EQ(Listed("--to 2026-11-20").size(), 0);

  const Outcome shown = Do("show " + ids[0] + " --json");
  const VEXATYPE state = test::MeasuredState(1);
  EXPECT_EQ(shown["conditions"].toObject()[QStringLiteral("backgroundAge")], 121.0);
  EXPECT_EQ(shown["sample"].toObject()[QStringLiteral("counts")].toArray().size(), 409);
  EXPECT_EQ(shown["background"].toObject()[QStringLiteral("counts")].toArray()[408],
            state.background[848]);
  EXPECT_EQ(shown["reflectance"].toArray().size(), 401);
  EXPECT_TRUE(shown["standard"].toString().startsWith(QLatin1String("VEXA-KT 440-840")));
  EXPECT_EQ(shown["cie"].toObject()[QStringLiteral("observer")], 2);
  EXPECT_GT(shown["cie"].toObject()[QStringLiteral("Rv")].toDouble(), 1.0);
  EXPECT_TRUE(Do("show " + ids[0]).out.contains("440 nm より下は外挿"));
  EXPECT_EQ(shown["station"], QStringLiteral("一号"));
  EXPECT_EQ(Do("show 1").status, 1) << "settings are no sample";

  const QByteArray both = "export " + ids[0] + ' ' + ids[1] + " --out ";
  ASSERT_EQ(Do(both + "@o.json").status, 0);
  const QJsonArray all =
      QJsonDocument::fromJson(files.Read("o.json"))[QStringLiteral("records")].toArray();
  EXPECT_EQ(all[0].toObject(), shown.Json());
  ASSERT_EQ(Do(both + "@o.jdx").status, 0);
  EXPECT_TRUE(files.Read("o.jdx").contains("\n##$CIE illuminant= A\n"));
  ASSERT_EQ(Do(both + "@o.csv").status, 0);
  EXPECT_EQ(Run("judge @o.csv --standard @o.csv").status, 1);
  ASSERT_EQ(Do("import @o.csv --lot L2").status, 0);
  EXPECT_EQ(Listed("--lot L2").size(), 2) << "what was written is read";
  EXPECT_EQ(Do(both + "@o.txt").status, 2);
  EXPECT_EQ(Do("export " + (ids[0] + ' ').repeated(11) + "--out @many.dat").status, 1);
  EXPECT_FALSE(files.Has("many.dat"));
}

TEST_F(Records, TextNamesTheCieValuesThatFailed) {
  Context context;
  context.cieLimits.luminousReflectance = {true, 0.5, -CieLimits::kNone};
  context.cieLimits.a = {true, 9.0, -9.0};
  Add(test::MeasuredState(3), context);
  for (const char* command : {"show ", "evaluate "}) {
    const QByteArray text = Do(command + ids[2]).out;
    EXPECT_TRUE(text.contains("\nCIE Rv:NG ")) << text.constData();
    EXPECT_FALSE(text.contains("CIE a*:NG")) << text.constData();
    EXPECT_TRUE(text.contains("(A / 2°、Rv は D65 / 2°、")) << text.constData();
  }
}

TEST_F(Records, EvaluateComputesAnewFromTheCounts) {
  const QJsonValue stored = Do("show " + ids[0] + " --json")["reflectance"];
  const auto evaluated = [this](const QByteArray& options) {
    return Do("evaluate " + ids[0] + " --json " + options)["records"].toArray()[0].toObject();
  };
  const QJsonObject anew = evaluated({});
  EXPECT_EQ(anew[QStringLiteral("reflectance")], stored) << "with the reference of that time";
  EXPECT_EQ(anew[QStringLiteral("verdict")], QStringLiteral("none"));

  VEXATYPE state;
  state.referenceSetting.kind = DispersionKind::kFixedValue;
  state.referenceSetting.fixedValue = 8.0;
  state.standard.averageReflectance = {true, 1.0, 0.5};
  ASSERT_TRUE(WriteEnvFile(files.Path("a.env"), state));
  ASSERT_TRUE(WriteStandardFile(files.Path("a.std"), {state.standard, {}, {}}));
  const QJsonObject other = evaluated("--env @a.env --standard @a.std");
  EXPECT_DOUBLE_EQ(other[QStringLiteral("reflectance")].toArray()[9].toDouble(),
                   2.0 * stored.toArray()[9].toDouble());
  const auto luminous = [](const QJsonObject& record) {
    return record[QStringLiteral("cie")][QLatin1String("Rv")].toDouble();
  };
  EXPECT_NEAR(luminous(other), 2.0 * luminous(anew), 1e-12);
  EXPECT_EQ(other[QStringLiteral("verdict")], QStringLiteral("NG"));
  EXPECT_EQ(Do("show " + ids[0] + " --json")["reflectance"], stored) << "stored values stay";
}

TEST_F(Records, SupersededOnesAreHiddenAndStay) {
  const QByteArray supersede = "supersede " + ids[0] + " --by " + ids[1];
  EXPECT_EQ(Do(supersede).status, 2) << "a reason is needed";
  ASSERT_EQ(Do(supersede + " --reason 傷").status, 0);
  EXPECT_EQ(Listed(), QStringList{QStringLiteral("ﾚﾝｽﾞ-2")});
  EXPECT_EQ(Listed("--all").size(), 2);
  EXPECT_EQ(Do("show " + ids[1] + " --json")["supersedes"].toString().toLatin1(), ids[0]);
  for (const QByteArray& refused :
       {supersede, "supersede " + ids[1] + " --by " + ids[0],
        "supersede " + ids[1] + " --by " + ids[1], "supersede " + ids[1] + " --by 1"}) {
    EXPECT_EQ(Do(refused + " --reason x").status, 1) << refused.constData();
  }
  EXPECT_EQ(Do("verify").status, 0);
}

TEST_F(Records, ImportTakesAFileOnceAndMakesTheStore) {
  VEXATYPE state;
  for (const int number : {1, 7}) {
    state.Slot(number)->valid = true;
    state.Slot(number)->reflectance = test::Flat(number);
  }
  ASSERT_TRUE(WriteDataFile(files.Path("a.csv"), DataFileLayout::kCsv, state));
  const QByteArray import = "import @a.csv @none.csv --json --store @new.db";
  const Outcome first = Do(import);
  EXPECT_EQ(first.status, 1) << "one of the files";
  EXPECT_EQ(first["imported"], 2);
  EXPECT_EQ(Do(import)["known"], 2);
  EXPECT_EQ(Do("list --json --store @new.db")["records"].toArray().size(), 2);
  EXPECT_EQ(Do("list --store @missing.db").status, 1);
  EXPECT_FALSE(files.Has("missing.db"));
}

TEST_F(Records, VerifyTellsAChangedRow) {
  const Outcome whole = Do("verify --json");
  EXPECT_EQ(whole.status, 0);
  EXPECT_EQ(whole["rows"], store.Head().value.number);
  EXPECT_EQ(whole["head"].toString().toLatin1(), store.Head().value.hash.toHex());
  EXPECT_TRUE(whole["firstDamaged"].isNull());
  ASSERT_EQ(Do("backup @copy.db").status, 0);
  SqlSession hand;
  ASSERT_EQ(hand.Open(QStringLiteral("QSQLITE"), files.Path("copy.db"), {}), StoreFault::kNone);
  ASSERT_EQ(hand.Run(QStringLiteral("DROP TRIGGER no_update")), StoreFault::kNone);
  ASSERT_EQ(hand.Run(QStringLiteral("UPDATE record_row SET numbers = x'00' WHERE number = 3")),
            StoreFault::kNone);
  const Outcome damaged = Do("verify --json --store @copy.db");
  EXPECT_EQ(damaged.status, 1);
  EXPECT_EQ(damaged["intact"], false);
  EXPECT_EQ(damaged["firstDamaged"], 3);
  EXPECT_TRUE(damaged.err.contains(" 3 ")) << damaged.err.constData();
}

TEST_F(Records, SyncSendsWhatTheSharedStoreLacks) {
  test::PrivatePostgres server;
  if (!server.IsInstalled()) {
    GTEST_SKIP() << "PostgreSQL is not installed; scripts/setup --dev installs it";
  }
  server.Create();
  const int rows = static_cast<int>(store.Head().value.number);
  const Outcome sent = Do("sync --json --to " + server.Uri().toUtf8());
  EXPECT_EQ(sent.Json(),
            (QJsonObject{{QStringLiteral("sent"), rows}, {QStringLiteral("waiting"), 0}}))
      << sent.err.constData();
  files.Write("records.json", "{\"shared\": \"" + server.Uri().toUtf8() + "\"}");
  EXPECT_EQ(Do("sync --json")["sent"], 0);
  server.Stop();
  const Outcome away = Do("sync --language en");
  EXPECT_EQ(away.status, 1);
  EXPECT_TRUE(away.err.contains("server cannot be reached")) << away.err.constData();
  files.Write("records.json", "{\"shared\": 1}");
  EXPECT_EQ(Do("sync").status, 1) << "not readable as such";
}

TEST_F(Records, WrongUsageEndsWithStatusTwo) {
  for (const char* arguments :
       {"forget 1", "show", "show 1 2", "list --limit 0", "list --from yesterday",
        "list --verdict maybe", "list --reason x", "sync", "sync --to postgresql://a:b@c/d",
        "export 1", "supersede 1 --by 2"}) {
    const Outcome outcome = Do(arguments);
    EXPECT_EQ(outcome.status, 2) << arguments;
    EXPECT_EQ(outcome.out, "") << arguments;
    EXPECT_TRUE(outcome.err.startsWith("vexa-cli: ")) << outcome.err.constData();
  }
}

}  // namespace
}  // namespace vexa
