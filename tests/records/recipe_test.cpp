// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/recipe.h"

#include <gtest/gtest.h>

#include "records/lot_tally.h"
#include "standards/standard_file.h"
#include "support/temporary_files.h"

namespace vexa {
namespace {

constexpr const char* kHead = R"({"format": "VEXA-KT recipe", "version": 1)";

class RecipeFile : public testing::Test {
 protected:
  std::variant<Recipe, RecipeFault> Read(const QByteArray& entries) {
    files.Write("r.json", QByteArray(kHead) + entries + "}");
    return ReadRecipe(files.Path("r.json"));
  }

  test::TemporaryFiles files;
};

TEST_F(RecipeFile, IsReadWhole) {
  const auto read = Read(R"(, "name": "AR 緑", "environment": "a/ar.env", "standard": "/s/ar.std",
      "repeats": 3, "backgroundAgeLimitMinutes": 0, "referenceAgeLimitMinutes": 30,
      "cie": {"limits": {"h": {"lower": 350, "upper": 20}, "deltaE00": {"upper": 1.5}},
              "target": {"L": 20, "a": -1, "b": 2.5}})");
  const auto* recipe = std::get_if<Recipe>(&read);
  ASSERT_NE(recipe, nullptr) << RecipeFaultText(std::get<RecipeFault>(read)).toStdString();
  EXPECT_EQ(recipe->name, QStringLiteral("AR 緑"));
  EXPECT_EQ(recipe->environment, files.Path("a/ar.env"));
  EXPECT_EQ(recipe->standard, QStringLiteral("/s/ar.std"));
  EXPECT_EQ(recipe->filmStack, QString());
  EXPECT_EQ(recipe->repeats, 3);
  EXPECT_EQ(recipe->backgroundAgeMinutes, 0);
  EXPECT_EQ(recipe->referenceAgeMinutes, 30);
  EXPECT_EQ(recipe->cie.hueAngle, (StandardLimits{true, 20.0, 350.0}));
  EXPECT_EQ(recipe->cie.deltaE00, (StandardLimits{true, 1.5, -CieLimits::kNone})) << "one side";
  EXPECT_EQ(recipe->cie.target, (LabColour{20.0, -1.0, 2.5}));
  EXPECT_FALSE(recipe->cie.L.enabled);
}

TEST_F(RecipeFile, NamesWhatIsWrongInIt) {
  struct Case {
    const char* entries;
    FileFaultKind kind;
    const char* entry;
    int line = 0;
  };
  const Case cases[] = {
      {", \"standrad\": \"a.std\"", FileFaultKind::kUnknown, "standrad"},
      {", \"name\": \" \"", FileFaultKind::kValue, "name"},
      {", \"environment\": 1", FileFaultKind::kValue, "environment"},
      {", \"repeats\": 0", FileFaultKind::kRange, "repeats"},
      {", \"repeats\": 1.5", FileFaultKind::kValue, "repeats"},
      {", \"repeats\": \"2\"", FileFaultKind::kValue, "repeats"},
      {", \"referenceAgeLimitMinutes\": -1", FileFaultKind::kRange, "referenceAgeLimitMinutes"},
      {", \"backgroundAgeLimitMinutes\": 1e300", FileFaultKind::kRange,
       "backgroundAgeLimitMinutes"},
      {", \"cie\": []", FileFaultKind::kValue, "cie"},
      {R"(, "cie": {"limits": {"M": {}}})", FileFaultKind::kUnknown, "cie.limits.M"},
      {R"(, "cie": {"limits": {"L": {"lower": 9, "upper": 8}}})", FileFaultKind::kRange,
       "cie.limits.L"},
      {R"(, "cie": {"limits": {"L": {"lowr": 9}}})", FileFaultKind::kUnknown, "cie.limits.L.lowr"},
      {R"(, "cie": {"limits": {"deltaE00": {"upper": 1}}})", FileFaultKind::kLacking, "cie.target"},
      {R"(, "cie": {"limits": {"deltaE00": {"upper": 1}}, "target": {"L": 1, "a": 0}})",
       FileFaultKind::kLacking, "cie.target.b"},
      {R"(, "cie": {"target": {"L": 1, "a": 0}})", FileFaultKind::kLacking, "cie.target.b"},
      {R"(, "cie": {"limits": {"Rv": {}}})", FileFaultKind::kLacking, "cie.limits.Rv"},
      {", \"name\":\n\"a\"\n\"b\"", FileFaultKind::kValue, "", 3},
      {", \"version\": 2", FileFaultKind::kVersion, "version"},
      {", \"format\": \"VEXA-KT records\"", FileFaultKind::kVersion, "format"},
  };
  for (const Case& c : cases) {
    const auto read = Read(c.entries);
    const auto* fault = std::get_if<RecipeFault>(&read);
    ASSERT_NE(fault, nullptr) << c.entries;
    EXPECT_EQ(fault->file.kind, c.kind) << c.entries;
    EXPECT_EQ(fault->entry, QLatin1String(c.entry)) << c.entries;
    EXPECT_EQ(fault->file.line, c.line) << c.entries;
  }
  const auto missing = ReadRecipe(files.Path("none.json"));
  EXPECT_EQ(std::get<RecipeFault>(missing).file.kind, FileFaultKind::kMissing);
}

TEST_F(RecipeFile, IsPutInForceAsAWholeOrNotAtAll) {
  StandardContents contents;
  contents.standard.averageReflectance = {true, 2.0, 1.0};
  ASSERT_TRUE(WriteStandardFile(files.Path("ar.std"), contents));
  Settings settings;
  settings.programDirectory = files.Directory();
  settings.instrument.samplingTimeMs = 77;
  Recipe recipe;
  recipe.standard = files.Path("ar.std");
  recipe.environment = files.Path("none.env");
  const RecipeInForce refused = ApplyRecipe(recipe, settings);
  EXPECT_FALSE(refused.complete);
  EXPECT_EQ(refused.notices.value(0).id, Message::kRecipeFault);
  EXPECT_EQ(settings.instrument.samplingTimeMs, 77);
  EXPECT_FALSE(settings.standard.averageReflectance.enabled);

  recipe.environment.clear();
  EXPECT_TRUE(ApplyRecipe(recipe, settings).complete);
  EXPECT_EQ(settings.standard, contents.standard);
  EXPECT_EQ(settings.instrument.samplingTimeMs, 77);
}

TEST(LotTally, ALensBrokenOffOrHeldIsNeitherOkNorNg) {
  using Measurements = QList<LotLens::Measurement>;
  const QString check = QStringLiteral("check");
  struct Case {
    const char* name;
    Measurements measurements;  // each in the place of the one before where it has its id
    LensState state;
    LensState released;
  };
  using enum LensState;
  const auto first = [](const char* id, Verdict verdict, const QString& heldBy = {}) {
    return LotLens::Measurement{QLatin1String(id), verdict, false, heldBy};
  };
  const auto last = [](const char* id, Verdict verdict, const QString& heldBy = {}) {
    return LotLens::Measurement{QLatin1String(id), verdict, true, heldBy};
  };
  for (const Case& c : {
           Case{"broken off", {first("1", Verdict::kOk)}, kIncomplete, kIncomplete},
           Case{"failed already", {first("1", Verdict::kNotGood)}, kNotGood, kNotGood},
           Case{"whole", {first("1", Verdict::kOk), last("2", Verdict::kOk)}, kOk, kOk},
           Case{"measured again and broken off",
                {first("1", Verdict::kOk), last("2", Verdict::kOk), first("1", Verdict::kOk)},
                kIncomplete,
                kIncomplete},
           Case{"held", {last("1", Verdict::kOk, check)}, kHeld, kOk},
           Case{"held NG", {last("1", Verdict::kNotGood, check)}, kHeld, kNotGood},
           Case{"held and broken off", {first("1", Verdict::kOk, check)}, kIncomplete, kIncomplete},
           Case{"measured again under a green check",
                {last("1", Verdict::kOk, check), last("1", Verdict::kOk)},
                kOk,
                kOk},
       }) {
    LotTally tally;
    for (const LotLens::Measurement& one : c.measurements) {
      tally.Add(QStringLiteral("A"), one, one.id);
    }
    EXPECT_EQ(tally.Lenses().front().State(), c.state) << c.name;
    EXPECT_EQ(tally.Count(c.state), 1) << c.name;
    EXPECT_EQ(tally.Yield().has_value(), c.state == kOk || c.state == kNotGood) << c.name;
    tally.Release(check);
    EXPECT_EQ(tally.Count(c.released), 1) << c.name;
  }
}

TEST(LotTally, CountsEachLensByWhatHoldsOfIt) {
  LotTally tally;
  tally.Add(QStringLiteral("A-09"), {QStringLiteral("1"), Verdict::kOk});
  tally.Add(QStringLiteral("A-10"), {QStringLiteral("2"), Verdict::kNotGood});
  tally.Add(QStringLiteral("A-09"), {QStringLiteral("3"), Verdict::kNotGood});
  EXPECT_EQ(tally.Count(LensState::kNotGood), 2) << "one of two measurements of a lens failed";
  EXPECT_EQ(tally.Yield(), 0.0);
  tally.Add(QStringLiteral("A-09"), {QStringLiteral("4"), Verdict::kOk}, QStringLiteral("3"));
  EXPECT_EQ(tally.Yield(), 0.5);
  tally.Add(QStringLiteral("B"), {QStringLiteral("5"), Verdict::kNone});
  EXPECT_EQ(tally.Yield(), 0.5) << "a lens that was not judged counts on neither side";
  EXPECT_EQ(tally.Lenses().size(), 3U);

  const std::pair<const char*, const char*> next[] = {
      {"", "1"}, {"A-09", "A-11"}, {"B", "B-2"}, {"A-99", "A-100"}, {"0999999999", "01000000000"}};
  for (const auto& [last, expected] : next) {
    EXPECT_EQ(tally.NumberAfter(QLatin1String(last)), QLatin1String(expected));
  }
}

}  // namespace
}  // namespace vexa
