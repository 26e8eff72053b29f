// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/material.h"

#include <gtest/gtest.h>

#include "optics/film_stack_file.h"
#include "optics/index_file.h"
#include "support/spectra.h"
#include "support/temporary_files.h"

namespace vexa {
namespace {

struct Case {
  const char* text;
  double n, k;  // at 588 nm
};

struct FaultCase {
  const char* text;
  MaterialFault fault;
};

TEST(Material, IsReadFromItsText) {
  const test::TemporaryFiles files;
  ASSERT_TRUE(WriteIndexFile(files.Path("a.IND"), IndexFileContent::kIndex, test::Flat(1.7)));
  files.Write("gold.nk",
              "# nm n k\n400, 1.5,1.9 # blue\r\n\n587\t0.30 2.8\n589 0.20 3.0\n900 0.2 5\n");
  files.Write("short.nk", "450 1.5 0\n840 1.5 0\n");
  files.Write("back.nk", "440 1.5 0\n440 1.5 0\n840 1.5 0\n");
  files.Write("gain.nk", "440 1.5 0\n840 1.5 -0.1\n");
  files.Write("two.nk", "440 1.5\n840 1.5\n");
  files.Write("empty.nk", "");
  const Case cases[] = {
      {" 1.52 ", 1.52, 0.0},
      {"cauchy:1.5,0.0035", 1.5 + 0.0035 / (0.588 * 0.588), 0.0},
      {"Cauchy:1.5,0,0.001", 1.5 + 0.001 / (0.588 * 0.588 * 0.588 * 0.588), 0.0},
      // SCHOTT, data sheet of N-BK7: 1.51680 at 587.56 nm.
      {"sellmeier:1.03961212,0.231792344,1.01046945,0.00600069867,0.0200179144,103.560653", 1.51678,
       0.0},
      {"schott:2.25,0,0,0,0,0", 1.5, 0.0},
      {"a.IND", 1.7, 0.0},
      {"gold.nk", 0.25, 2.9},
  };
  for (const Case& c : cases) {
    const auto material = ReadMaterial(QString::fromUtf8(c.text), files.Path("."));
    ASSERT_TRUE(std::holds_alternative<Material>(material)) << c.text;
    EXPECT_NEAR(std::get<Material>(material).n[588], c.n, 2e-5) << c.text;
    EXPECT_NEAR(std::get<Material>(material).k[588], c.k, 1e-12) << c.text;
  }
  const FaultCase faults[] = {
      {"", MaterialFault::kText},
      {"glass", MaterialFault::kText},
      {"cauchy:1.5", MaterialFault::kText},
      {"cauchy:1.5,x", MaterialFault::kText},
      {"schott:1,2,3", MaterialFault::kText},
      {"0", MaterialFault::kIndex},
      {"-1.5", MaterialFault::kIndex},
      {"cauchy:1.5,1e9", MaterialFault::kIndex},
      {"cauchy:1.5,-0.5", MaterialFault::kIndex},
      {"sellmeier:1,0,0,0.36,0,0", MaterialFault::kIndex},  // a pole at 600 nm
      {"gain.nk", MaterialFault::kIndex},
      {"missing.ind", MaterialFault::kFile},
      {"missing.nk", MaterialFault::kFile},
      {"back.nk", MaterialFault::kFile},
      {"two.nk", MaterialFault::kFile},
      {"short.nk", MaterialFault::kCoverage},
      {"empty.nk", MaterialFault::kCoverage},
  };
  for (const FaultCase& c : faults) {
    const auto material = ReadMaterial(QString::fromUtf8(c.text), files.Path("."));
    ASSERT_TRUE(std::holds_alternative<MaterialFault>(material)) << c.text;
    EXPECT_EQ(std::get<MaterialFault>(material), c.fault) << c.text;
    EXPECT_FALSE(MaterialFaultText(c.fault).isEmpty());
  }
}

TEST(FilmStackFile, IsReadAsItWasWritten) {
  const test::TemporaryFiles files;
  const FilmStackSetting setting{QStringLiteral("レンズ.nk"),
                                 {{QStringLiteral("cauchy:1.58,0.0075"), {1000.0, 6000.5}},
                                  {QStringLiteral("1.5"), {700, 700}}},
                                 {.fromNm = 450,
                                  .toNm = 800,
                                  .scaleFree = false,
                                  .offsetFree = true,
                                  .indexFree = true,
                                  .bandwidthNm = 2.5,
                                  .wavelengthUncertaintyNm = 0.2,
                                  .indexUncertainty = 0.01,
                                  .confidence = 0.99}};
  ASSERT_TRUE(WriteFilmStackFile(files.Path("膜.flm"), setting));
  const auto read = ReadFilmStackFile(files.Path("膜.flm"));
  ASSERT_TRUE(std::holds_alternative<FilmStackSetting>(read));
  EXPECT_EQ(std::get<FilmStackSetting>(read), setting);
  const QByteArray text = files.Read("膜.flm");
  EXPECT_TRUE(text.contains("\"thicknessToNm\": 6000.5"));
  EXPECT_FALSE(WriteFilmStackFile(files.Path("missing/a.flm"), setting));

  const QByteArray head = R"({"format": "vexa film stack", "version": 1, "substrate": "1.5", )";
  const auto bare = [&] {
    files.Write("bare.flm", head + R"("layers": [{"material": "1.6"}]})");
    return std::get<FilmStackSetting>(ReadFilmStackFile(files.Path("bare.flm")));
  }();
  EXPECT_EQ(bare, (FilmStackSetting{QStringLiteral("1.5"), {{QStringLiteral("1.6"), {}}}, {}}));

  const std::pair<QByteArray, FilmStackFileFault> faults[] = {
      {"", FilmStackFileFault::kNoStack},
      {"{\"format\": \"other\"}", FilmStackFileFault::kNoStack},
      {QByteArray(text).replace("\"version\": 1", "\"version\": 2"), FilmStackFileFault::kVersion},
      {head + R"("layers": [{}]})", FilmStackFileFault::kValue},
      {head + R"("layers": 1})", FilmStackFileFault::kValue},
      {head + R"("layers": [{"material": "1", "thicknessToNm": "x"}]})",
       FilmStackFileFault::kValue},
      {head + R"("layers": [], "fit": {"scaleFree": 1}})", FilmStackFileFault::kValue},
      {head + R"("layers": [], "fit": {"rangeFromNm": 450.5}})", FilmStackFileFault::kValue},
      {head + R"("layers": [], "fit": {"rangeFromNm": 1e300}})", FilmStackFileFault::kValue},
      {text.left(text.size() / 2), FilmStackFileFault::kNoStack},
  };
  for (const auto& [bytes, fault] : faults) {
    files.Write("bad.flm", bytes);
    const auto bad = ReadFilmStackFile(files.Path("bad.flm"));
    ASSERT_TRUE(std::holds_alternative<FilmStackFileFault>(bad)) << bytes.constData();
    EXPECT_EQ(std::get<FilmStackFileFault>(bad), fault) << bytes.constData();
  }
  EXPECT_EQ(std::get<FilmStackFileFault>(ReadFilmStackFile(files.Path("none.flm"))),
            FilmStackFileFault::kUnreadable);
}

}  // namespace
}  // namespace vexa
