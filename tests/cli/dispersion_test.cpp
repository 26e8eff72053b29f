// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "cli/running_programs.h"

namespace vexa {
namespace {

using test::Outcome;

class DispersionCommandLine : public test::CommandLine {
 protected:
  [[nodiscard]] Outcome Disperse(const QByteArray& arguments) const {
    return Run("dispersion " + arguments);
  }
};

double At(const Outcome& outcome, int nm) {
  return outcome["values"].toArray().at(nm - 440).toDouble();
}

// SCHOTT, data sheet of N-BK7: constants of dispersion, and the index at the d line.
const char* const kCrown =
    "--sellmeier 1.03961212,0.231792344,1.01046945,0.00600069867,0.0200179144,103.560653 --json";

TEST_F(DispersionCommandLine, GivesTheIndexOrTheReflectanceOfASource) {
  const Outcome crown = Disperse(kCrown);
  EXPECT_EQ(crown.status, 0);
  EXPECT_EQ(crown.err, "");
  EXPECT_EQ(crown.out.count('\n'), 1);
  EXPECT_EQ(crown["first"].toInt(), 440);
  EXPECT_EQ(crown["values"].toArray().size(), 401);
  EXPECT_NEAR(At(crown, 588), 1.51680, 3e-5);  // the d line is 0.44 nm short of 588

  EXPECT_NEAR(At(Disperse("--schott 2.25,0,0,0,0,0 --as-reflectance --json"), 840), 4.0, 1e-12);
  const QByteArray text = Disperse("--fixed 5.5 --as-reflectance").out;
  EXPECT_TRUE(text.startsWith(" 440       5.5000\n")) << text.left(40).constData();
}

TEST_F(DispersionCommandLine, WritesAFileThatItReadsBack) {
  EXPECT_EQ(Disperse("--fixed 1.6 --out @膜.ind").status, 0);
  EXPECT_EQ(At(Disperse("--file @膜.ind --json"), 640), 1.6);

  const struct {
    const char* arguments;
    const char* name;
    QByteArray content;
  } cases[] = {
      {"--fixed 4 --out @a.ref", "a.ref", "Reference"},
      {"--fixed 4 --out @a --as-reflectance", "a", "Reference"},
      {"--fixed 4 --out @b", "b", "Index"},
      {"--fixed 4 --out @a.IND --as-reflectance", "a.IND", "Index"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(Disperse(c.arguments).status, 0) << c.arguments;
    EXPECT_TRUE(
        files.Read(c.name).startsWith("VEXA-KT 440-840 Ver 3.21 " + c.content + " File\r\n"))
        << c.arguments;
  }
}

TEST_F(DispersionCommandLine, FaultsAreAStatusAndNoValues) {
  const std::pair<const char*, int> cases[] = {
      {"--sellmeier 1,0,0,0.36,0,0 --json", 1},  // a pole at 600 nm
      {"--schott -1,0,0,0,0,0 --json", 1},
      {"--file @missing.ind --json", 2},
      {"--substrate @missing.csv --json --out @x.ind", 3},
  };
  for (const auto& [arguments, status] : cases) {
    const Outcome outcome = Disperse(arguments);
    EXPECT_EQ(outcome.status, 1) << arguments;
    EXPECT_EQ(outcome["status"].toInt(), status) << arguments;
    EXPECT_TRUE(outcome["values"].isNull()) << arguments;
    EXPECT_TRUE(outcome.err.contains("vexa-cli: ")) << arguments;
  }
  EXPECT_FALSE(files.Has("x.ind"));
  EXPECT_EQ(Disperse("--fixed 1 --out @missing/x.ind").status, 1);
}

}  // namespace
}  // namespace vexa
