// SPDX-License-Identifier: GPL-3.0-or-later
// Measuring over the GP-IB: the command line as a program, with the virtual control box in the
// place of the interface's library.
#include <gtest/gtest.h>

#include <cmath>
#include <utility>

#include "cli/running_programs.h"

namespace vexa {
namespace {

using test::Outcome;

class OverGpib : public test::WithInstrument {
 protected:
  void SetUp() override { Place(QStringLiteral(VEXA_CONTROL_BOX)); }
  void Place(const QString& library) const {
    QFile::remove(files.Path("libU2GPLIB.so"));
    ASSERT_TRUE(QFile::link(library, files.Path("libU2GPLIB.so")));
  }
};

// Rows of wavelength and ten slots behind two lines of header.
double Percent(const QByteArray& file, int nm, int slot) {
  return file.split('\n').at(2 + nm - 440).split(',').at(slot).toDouble();
}

TEST_F(OverGpib, TheSameSamplesReflectTheSameAsOverTheSerialLine) {
  const QByteArray job = "--samples 3 --averaging 6 --sampling-time 3000";
  const auto overBoth = [&](const QByteArray& serialOptions, const QByteArray& gpibOptions) {
    Start(serialOptions);
    EXPECT_EQ(Measure(job).status, 0);
    Stop();
    const QByteArray serial = files.Read("out.csv");
    qputenv("U2GPLIB_OPTIONS", "--pace none " + gpibOptions);
    const Outcome gpib = Measure("--port 0 " + job);
    EXPECT_EQ(gpib.status, 0) << gpib.err.constData();
    EXPECT_EQ(gpib.err, "");
    return std::pair(serial, files.Read("out.csv"));
  };
  const auto [serial, gpib] = overBoth("--noise off", "--noise off");
  EXPECT_GT(serial.size(), 10000);
  EXPECT_EQ(serial, gpib);

  // A mean of six lines has a noise of half a count and is cut off to whole counts; the reference
  // (4 %) has 100 counts at 440 nm and 300 to 575 from 500 to 840 nm. That is 0.01 % a value and
  // 0.015 % a difference, or five times that at 440 nm; the bounds are seven times it.
  const auto [noisy, other] = overBoth("--seed 1", "--seed 2");
  EXPECT_NE(noisy, other);
  for (int slot = 1; slot <= 3; ++slot) {
    double sum = 0.0;
    for (int nm = 440; nm <= 840; ++nm) {
      const double difference = Percent(noisy, nm, slot) - Percent(other, nm, slot);
      EXPECT_LT(std::abs(difference), nm < 500 ? 0.35 : 0.1) << nm << " nm, slot " << slot;
      sum += difference;
    }
    EXPECT_LT(std::abs(sum / 401), 0.01) << slot;
  }
}

struct CallFaultCase {
  const char* fault;
  const char* text;  ///< of the path's own message
  const char* place;
};

// The n-th write: 1, 2 and 3, 4 sampling settings, 5 to 7 light, lamp, eyepiece, 8 MEASDT, 9 to 11
// eyepiece, lamp, light. A request and a poll follow each, and come once before the first and once
// between the seventh and the eighth.
TEST_F(OverGpib, EveryFailingCallIsToldWithItsTextStepAndCode) {
  const CallFaultCase initialising[] = {
      {"gp_init=97", "コントロールボックスの初期化でｴﾗｰ発生しました。", "gp_init 100"},
      {"gp_init=1", "ｺﾝﾄﾛｰﾗｴﾗｰ", "gp_init 100"},
      {"gp_delm=3@2", "GP-IB通信でﾌｫｰﾏｯﾄ･ｴﾗｰ発生しました。", "gp_delm 101"},
      {"gp_tmout=2", "GP-IB通信で予期しないｴﾗｰ発生しました。", "gp_tmout 102"},
      {"gp_cli=-1@2", "GP-IB通信で予期しないｴﾗｰ発生しました。", "gp_cli 103"},
      {"gp_ren=61", "通信でﾃﾞﾊﾞｲｽ･ｴﾗｰ発生しました。", "gp_ren 104"},
      {"gp_clr=54", "GP-IB通信でﾀｲﾑｱｳﾄ･ｴﾗｰ発生しました。", "gp_clr 105"},
      {"gp_wsrq=none", "GP-IB通信でSRQｴﾗｰ発生しました。", "gp_wsrq 106"},
      {"gp_rds=61", "通信でﾃﾞﾊﾞｲｽ･ｴﾗｰ発生しました。", "gp_rds 107"},
      {"gp_wrt=54", "GP-IB通信でﾀｲﾑｱｳﾄ･ｴﾗｰ発生しました。", "gp_wrt INTGTM 500"},
      {"gp_wsrq=none@3", "GP-IB通信でSRQｴﾗｰ発生しました。", "gp_wsrq INTGCT 500"},
  };
  const CallFaultCase measuring[] = {
      {"gp_wrt=61@5", "通信でﾃﾞﾊﾞｲｽ･ｴﾗｰ発生しました。", "gp_wrt LRKSHT 200"},
      {"gp_wsrq=none@7", "GP-IB通信でSRQｴﾗｰ発生しました。", "gp_wsrq PHILL 300"},
      {"gp_rds=54@8", "GP-IB通信でﾀｲﾑｱｳﾄ･ｴﾗｰ発生しました。", "gp_rds EPSHT 400"},
      {"gp_trg=61", "通信でﾃﾞﾊﾞｲｽ･ｴﾗｰ発生しました。", "gp_trg 502"},
      {"gp_wsrq=none@9", "GP-IB通信でSRQｴﾗｰ発生しました。", "gp_wsrq 500"},
      {"gp_rds=61@9", "通信でﾃﾞﾊﾞｲｽ･ｴﾗｰ発生しました。", "gp_rds 501"},
      {"gp_wrt=3@8", "GP-IB通信でﾌｫｰﾏｯﾄ･ｴﾗｰ発生しました。", "gp_wrt MEASDT 503"},
      {"gp_tfrin=62", "GP-IB通信でｵﾊﾞｰﾌﾛｰ･ｴﾗｰ発生しました。", "gp_tfrin 504"},
      {"gp_tfrin=short", "GP-IB通信でﾌｫｰﾏｯﾄ･ｴﾗｰ発生しました。", "gp_tfrin 504"},
      {"gp_wsrq=none@13", "GP-IB通信でSRQｴﾗｰ発生しました。", "gp_wsrq LRKSHT 200"},
  };
  const auto check = [&](const CallFaultCase& fault, const char* step, const char* caller) {
    SCOPED_TRACE(fault.fault);
    qputenv("U2GPLIB_OPTIONS", QByteArray("--pace none --call-fault ") + fault.fault);
    const Outcome outcome = Measure("--port 0");
    EXPECT_EQ(outcome.err.toStdString(),
              std::string("VEXA-KT ｴﾗｰ: ") + fault.text + '(' + fault.place + ")\n" + caller);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome[step].toInt(), -QByteArray(fault.place).split(' ').last().toInt());
  };
  for (const CallFaultCase& fault : initialising) {
    check(fault, "initialise", "ｺﾝﾄﾛｰﾗｴﾗｰ: 通信でﾃﾞﾊﾞｲｽ･ｴﾗｰ発生しました。\n");
  }
  for (const CallFaultCase& fault : measuring) {
    check(fault, "background", "VEXA-KT ﾜｰﾆﾝｸﾞ: データ取得でエラーが発生しました。\n");
  }
}

TEST_F(OverGpib, ALibraryThatOthersMayWriteIsRefusedWithTheReason) {
  const QString library = files.Path("libU2GPLIB.so");
  QFile::remove(library);
  ASSERT_TRUE(QFile::copy(QStringLiteral(VEXA_CONTROL_BOX), library));
  const auto own = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
  qputenv("U2GPLIB_OPTIONS", "--pace none");
  for (const auto& [permissions, refused] :
       {std::pair{own, false}, {own | QFile::WriteGroup, true}, {own | QFile::WriteOther, true}}) {
    for (const QString& opened : {library, files.Path("")}) {
      ASSERT_TRUE(QFile::setPermissions(opened, permissions));
      const Outcome outcome = Measure("--port 0");
      EXPECT_EQ(outcome.status, refused ? 1 : 0) << outcome.err.constData();
      EXPECT_EQ(outcome.err.contains("libU2GPLIB.so を読み込みません"), refused);
      ASSERT_TRUE(QFile::setPermissions(opened, own));
    }
  }
}

TEST_F(OverGpib, AMissingLibraryOrCallIsAFailedInitialisation) {
  const std::pair<QString, const char*> cases[] = {
      {files.Path("nothing"), "U2GPLIB"},
      {files.Write("text", ""), "U2GPLIB"},
      {QStringLiteral("/lib/x86_64-linux-gnu/libm.so.6"), "gp_init"},
  };
  for (const auto& [library, missing] : cases) {
    Place(library);
    const Outcome outcome = Measure("--port 0");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err.toStdString(),
              std::string("VEXA-KT ｴﾗｰ: コントロールボックスの初期化でｴﾗｰ発生しました。(") +
                  missing + " 100)\nｺﾝﾄﾛｰﾗｴﾗｰ: 通信でﾃﾞﾊﾞｲｽ･ｴﾗｰ発生しました。\n");
  }
}

}  // namespace
}  // namespace vexa
