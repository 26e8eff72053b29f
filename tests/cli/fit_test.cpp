// SPDX-License-Identifier: GPL-3.0-or-later
// Films fitted, and peak/valley results doubted, by the command line as a program.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "cli/running_programs.h"

namespace vexa {
namespace {

using test::Outcome;

// Airy's sum for a film of index 1.6 on a substrate of 1.5, in percent.
double Percent(double thicknessNm, int nm) {
  const double above = (1.0 - 1.6) / (1.0 + 1.6);
  const double below = (1.6 - 1.5) / (1.6 + 1.5);
  const double phase = std::cos(4.0 * std::numbers::pi * 1.6 * thicknessNm / nm);
  const double both = above * below;
  return 100.0 * (above * above + below * below + 2.0 * both * phase) /
         (1.0 + both * both + 2.0 * both * phase);
}

class FilmFits : public test::CommandLine {
 protected:
  // Slot 1 is 1500 nm, slot 2 2000 nm at 1.2 of the scale, slot 4 dark but for its ends.
  FilmFits() {
    QByteArray text = "VEXA-KT 440-840 Ver 3.21 Data File\r\nwave,S-001,S-002,,S-004,,,,,,\r\n";
    for (int nm = 440; nm <= 840; ++nm) {
      text += QStringLiteral(" %1,%2,%3,0,%4,0,0,0,0,0,0\r\n")
                  .arg(nm)
                  .arg(Percent(1500.0, nm), 0, 'f', 6)
                  .arg(1.2 * Percent(2000.0, nm), 0, 'f', 6)
                  .arg(nm == 840 ? 1 : 0)
                  .toLatin1();
    }
    files.Write("data.csv", text);
    files.Write("coat.nk", "400 1.6 0\n900 1.6 0\n");
  }

  [[nodiscard]] Outcome Fit(const QByteArray& options) const {
    return Run("fit @data.csv --bandwidth 0 " + options);
  }
};

QJsonObject Object(const Outcome& outcome, int slot, const char* name) {
  return outcome["slots"].toArray()[slot].toObject()[QLatin1String(name)].toObject();
}

TEST_F(FilmFits, PrintsEveryValidSlot) {
  const Outcome outcome = Fit("--substrate 1.5 --layer @coat.nk --json");
  EXPECT_EQ(outcome.status, 0) << outcome.err.constData();
  ASSERT_EQ(outcome["slots"].toArray().size(), 3);
  const QJsonObject first = Object(outcome, 0, "fit");
  EXPECT_EQ(first[QLatin1String("outcome")].toString(), QStringLiteral("ok"));
  const QJsonObject layer = first[QLatin1String("layers")].toArray()[0].toObject();
  EXPECT_NEAR(layer[QLatin1String("thickness")].toDouble(), 1500.0, 0.01);
  EXPECT_NEAR(layer[QLatin1String("uncertainty")].toDouble(), 1500.0 * 0.1 / 577.0, 0.03);
  EXPECT_EQ(first.keys().join(u' '),  // sorted
            QStringLiteral("alternatives index layers noise offset outcome rms scale spread "
                           "warnings"));
  EXPECT_NEAR(Object(outcome, 0, "fourier")[QLatin1String("thickness")].toDouble(), 1500.0, 2.0);
  EXPECT_GT(Object(outcome, 0, "fourier")[QLatin1String("peakRatio")].toDouble(), 20.0);
  EXPECT_NEAR(Object(outcome, 1, "fit")[QLatin1String("scale")].toDouble(), 1.2, 1e-3);
  const QJsonObject dark = Object(outcome, 2, "fit");
  EXPECT_EQ(dark[QLatin1String("outcome")].toString(), QStringLiteral("none"));
  EXPECT_TRUE(
      dark[QLatin1String("layers")].toArray()[0].toObject()[QLatin1String("thickness")].isNull());

  const Outcome text = Fit("--substrate 1.5 --layer 1.6 --thickness 1900-2100 --slot 2");
  EXPECT_EQ(text.out.count('\n'), 2);
  EXPECT_TRUE(text.out.contains("2000.0 ± ")) << text.out.constData();
}

TEST_F(FilmFits, RefusesWhatItCannotUse) {
  const std::pair<const char*, int> cases[] = {
      {"--substrate 1.5 --layer @missing.ind", 1},
      {"--substrate 0 --layer 1.6", 1},
      {"--substrate 1.5 --layer glass", 1},
      {"--substrate 1.5 --layer 1.6 --slot 3", 1},
      {"--substrate 1.5", 2},
      {"--layer 1.6", 2},
      {"--substrate 1.5 --layer 1 --layer 1 --layer 1 --layer 1 --layer 1", 2},
      {"--substrate 1.5 --layer 1.6 --thickness 900-800", 2},
      {"--substrate 1.5 --layer 1.6 --thickness 900", 2},
      {"--substrate 1.5 --layer 1.6 --layer 1.5 --thickness 800-900", 2},
      {"--substrate 1.5 --layer 1.6 --range 440-458", 2},
      {"--substrate 1.5 --layer 1.6 --range 400-840", 2},
      {"--substrate 1.5 --layer 1.6 --reference-free --reference-fixed", 2},
      {"--substrate 1.5 --layer 1.6 --confidence 1", 2},
      {"--substrate 1.5 --layer 1.6 --slot 11", 2},
  };
  for (const auto& [options, status] : cases) {
    const Outcome outcome = Fit(options);
    EXPECT_EQ(outcome.status, status) << options;
    EXPECT_EQ(outcome.out, "") << options;
    EXPECT_TRUE(outcome.err.contains("vexa-cli: ")) << options;
  }
  EXPECT_EQ(Run("fit @missing.csv --substrate 1.5 --layer 1.6").status, 1);
}

TEST_F(FilmFits, AnalyseShowsTheDoubts) {
  const auto doubts = [this](const QByteArray& options, int slot) -> QJsonValue {
    return Object(Run("analyse @data.csv --dir @ --thickness --json " + options), slot,
                  "thickness")[QLatin1String("doubts")];
  };
  EXPECT_EQ(doubts("--type B --index 1.6", 0), QJsonValue(QJsonArray()));
  EXPECT_TRUE(doubts("--type B --index 1.6", 1).isArray());
  EXPECT_EQ(doubts("--type A --index 1.6", 2), QJsonValue(QJsonArray())) << "nothing computed";
  EXPECT_TRUE(Run("analyse @data.csv --dir @ --thickness --index 1.6").out.contains("doubts\n"));
}

}  // namespace
}  // namespace vexa
