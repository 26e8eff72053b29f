// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "cli/running_programs.h"
#include "support/published_statistics.h"

namespace vexa {
namespace {

using test::Outcome;

class StatisticsCommandLine : public test::CommandLine {
 protected:
  [[nodiscard]] Outcome Ask(const QByteArray& arguments) const {
    return Run("statistics " + arguments);
  }
};

TEST_F(StatisticsCommandLine, SummarisesEveryFormOfNumbers) {
  const std::pair<const char*, const char*> cases[] = {
      {"1\n2\n6\n", ""},
      {"\xef\xbb\xbf# comment\r\n\r\n 1 # first\r\n2.0\r\n6E0\r\n", ""},
      {"Rv\n1\n2\n6", ""},
      {"lot,Rv\nA #1,1\n\"B, late\",2\n,6\n", "--column Rv"},
      {"lot\t440 nm\tRv\na\t1\t1\nb\t\t2\nc\tx\t6\n", "--column Rv"},
      {"440   550\n9  1\n9\t2\n9 6\n", "--column 550"},
      {"\x94\xbd\x8e\xcb\x97\xa6\n1\n2\n6\n", "--column 反射率"},  // in the code page
  };
  for (const auto& [content, options] : cases) {
    files.Write("値.txt", content);
    const Outcome outcome = Ask(QByteArray("summary @値.txt --json ") + options);
    EXPECT_EQ(outcome.status, 0) << content << outcome.err.constData();
    EXPECT_EQ(outcome["n"].toInt(), 3) << content;
    EXPECT_EQ(outcome["mean"].toDouble(), 3) << content;
    EXPECT_EQ(outcome["median"].toDouble(), 2) << content;
  }
  files.Write("equal.txt", "2\n2\n");
  EXPECT_EQ(Ask("summary @equal.txt --json").out,
            "{\"interval\":[2,2],\"lag1\":null,\"max\":2,\"mean\":2,\"median\":2,\"min\":2,\"n\":2,"
            "\"s\":0,\"standardError\":0}\n");
  EXPECT_TRUE(Ask("summary @equal.txt").out.contains("\nlag1            -\n"));
}

TEST_F(StatisticsCommandLine, ChartsIndividuals) {
  files.Write("a.txt", "10\n12\n11\n13\n11\n30\n11\n12\n13\n14\n15\n16\n");
  const Outcome chart = Ask("xmr @a.txt --baseline 5 --json");
  const std::pair<const char*, double> lines[] = {{"centre", 11.4},
                                                  {"lower", 11.4 - 2.66 * 1.75},
                                                  {"upper", 11.4 + 2.66 * 1.75},
                                                  {"meanRange", 1.75},
                                                  {"upperRange", 3.267 * 1.75}};
  for (const auto& [name, value] : lines) {
    EXPECT_NEAR(chart[name].toDouble(), value, 1e-12) << name;
  }
  const std::pair<const char*, const char*> broken[] = {
      {"western", "6:1 12:2 12:3"},
      {"nelson", "6:1 12:3 12:5 12:6"},
      {"6,3", "12:3 12:6"},
  };
  for (const auto& [rules, expected] : broken) {
    QStringList found;
    const Outcome outcome = Ask(QByteArray("xmr @a.txt --baseline 5 --json --rules ") + rules);
    for (const QJsonValue signal : outcome["signals"].toArray()) {
      found.append(
          QStringLiteral("%1:%2").arg(signal[u"index"].toInt()).arg(signal[u"rule"].toInt()));
    }
    EXPECT_EQ(found.join(u' ').toStdString(), expected) << rules;
  }
  const QByteArray text = Ask("xmr @a.txt --baseline 5").out;
  EXPECT_TRUE(text.contains("\n12  rule 3  連続する5点中4点が同じ側で1σの外にある\n"))
      << text.constData();
  EXPECT_TRUE(text.endsWith("\n7   range   移動範囲が上限を超えている\n")) << text.constData();
}

TEST_F(StatisticsCommandLine, JudgesCapabilityByOneLimitOrTwo) {
  files.Write("a.txt", "9\n11\n9\n11\n9\n11\n");
  const Outcome both = Ask("capability @a.txt --lower 4 --upper 13 --json");
  EXPECT_EQ(
      both.Json().keys().join(u' '),
      QStringLiteral("Cp CpInterval Cpk CpkInterval Pp Ppk expectedOutside n sOverall sWithin"));
  EXPECT_NEAR(both["Cp"].toDouble(), 1.5 * both["Cpk"].toDouble(), 1e-12);
  EXPECT_EQ(both["CpInterval"].toArray().size(), 2);
  const Outcome one = Ask("capability @a.txt --upper 13 --json");
  for (const char* name : {"Cp", "CpInterval", "Pp"}) {
    EXPECT_TRUE(one["Cpk"].isDouble() && one[name].isNull() &&
                one.Json().contains(QLatin1String(name)));
  }
}

TEST_F(StatisticsCommandLine, TellsTheGaugeFromTheParts) {
  QByteArray table = "value,operator,part\n";
  for (const statistics::GaugeReading& reading : test::PublishedGaugeStudy()) {
    table += QByteArray::number(reading.value) + ',' + QByteArray::number(reading.gaugeOperator) +
             ",P" + QByteArray::number(reading.part) + '\n';
  }
  files.Write("grr.csv", table);
  const Outcome outcome = Ask("grr @grr.csv --tolerance 10 --json");
  EXPECT_EQ(outcome["method"], QStringLiteral("anova"));
  EXPECT_NEAR(outcome["percentGrr"].toDouble(), 27.86, 5e-3);
  EXPECT_NEAR(outcome["percentTolerance"].toDouble(), 18.14, 5e-3);
  EXPECT_EQ(outcome["ndc"].toInt(), 4);
  EXPECT_TRUE(outcome["pooled"].toBool());
  const QJsonObject last = outcome["table"].toArray().last().toObject();
  EXPECT_EQ(last[u"source"], QStringLiteral("total"));
  EXPECT_EQ(last[u"df"].toInt(), 89);
  EXPECT_TRUE(last[u"F"].isNull() && last[u"p"].isNull() && last[u"ms"].isNull());
  EXPECT_TRUE(Ask("grr @grr.csv --json")["percentTolerance"].isNull());
}

TEST_F(StatisticsCommandLine, RefusesWithAMessageAndNothingElse) {
  files.Write("ok", "1\n2\n3\n");
  files.Write("one", "1\n");
  files.Write("equal", "1\n1\n1\n");
  files.Write("empty", "");
  files.Write("nan", "nan\n1\n2\n");
  files.Write("comma", "1,5\n2,5\n");
  files.Write("letters", "1\n2x\n");
  files.Write("huge", "1e200\n2\n");
  files.Write("ragged", "a,b\n1,2\n3\n");
  files.Write("hole", "part,operator,value\n1,,2\n");
  files.Write("unbalanced", "part,operator,value\n1,1,2\n1,2,2\n2,1,2\n2,2,2\n2,2,3\n");
  const struct {
    const char* arguments;
    int status;
    const char* message;
  } cases[] = {
      {"summary @missing", 1, "cannot be read"},
      {"summary @", 1, "cannot be read"},
      {"summary @empty", 1, "too few data"},
      {"summary @one", 1, "too few data"},
      {"summary @nan", 1, "line 1: \"nan\" is no number"},
      {"summary @comma", 1, "line 1: several columns"},
      {"summary @letters", 1, "line 2: \"2x\" is no number"},
      {"summary @huge", 1, "not a number, or is too large"},
      {"summary @ragged --column b", 1, "line 3: 1 columns, but 2 in the heading"},
      {"summary @ragged --column c", 1, "line 1: the heading has no column \"c\""},
      {"xmr @equal", 1, "no variation"},
      {"xmr @ok --baseline 4", 1, "too few data"},
      {"capability @equal --upper 2", 1, "no variation"},
      {"grr @hole", 1, "line 2: \"operator\" is empty"},
      {"grr @unbalanced", 1, "differs among the pairs"},
      {"grr @ok", 1, "no column \"part\""},
      {"mean @ok", 2, "none of summary, xmr, capability, grr"},
      {"summary", 2, "Usage:"},
      {"summary @ok --rules nelson", 2, "takes no --rules"},
      {"xmr @ok --baseline 1", 2, "--baseline"},
      {"xmr @ok --rules 1,9", 2, "--rules"},
      {"xmr @ok --rules 2,2", 2, "--rules"},
      {"capability @ok", 2, "--lower, --upper or both"},
      {"capability @ok --lower 2 --upper 2", 2, "below"},
      {"capability @ok --lower nan", 2, "--lower"},
      {"grr @ok --tolerance 0", 2, "--tolerance"},
  };
  for (const auto& c : cases) {
    const Outcome outcome = Ask(QByteArray(c.arguments) + " --language en");
    EXPECT_EQ(outcome.status, c.status) << c.arguments;
    EXPECT_EQ(outcome.out, "") << c.arguments;
    EXPECT_TRUE(outcome.err.startsWith("vexa-cli: ") && outcome.err.contains(c.message))
        << c.arguments << ": " << outcome.err.constData();
    EXPECT_EQ(outcome.err.count('\n'), 1) << c.arguments;
  }
}

}  // namespace
}  // namespace vexa
