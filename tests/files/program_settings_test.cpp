// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "files/program_settings_file.h"
#include "support/temporary_files.h"

namespace vexa {
namespace {

TEST(ProgramSettings, AStartTakesThemOrTellsWhatIsWrong) {
  const struct {
    const char* text;
    Language language;
    bool damaged;
  } cases[] = {
      {R"({"language": "en"})", Language::kEnglish, false},
      {R"({"language": "ja"})", Language::kJapanese, false},
      {R"({"later": 1})", Language::kJapanese, false},
      {R"({"language": "fr"})", Language::kJapanese, true},
      {R"({"language": 1})", Language::kJapanese, true},
      {R"(["en"])", Language::kJapanese, true},
      {R"({"language": "en")", Language::kJapanese, true},
      {"", Language::kJapanese, true},
      {"{\"language\": \"\xff\"}", Language::kJapanese, true},
  };
  for (const auto& each : cases) {
    const test::TemporaryFiles files;
    EXPECT_TRUE(StartProgram(files.Directory()).notices.isEmpty()) << "the first start";
    files.Write("program.json", each.text);
    const ProgramStart start = StartProgram(files.Directory());
    EXPECT_EQ(start.settings.language, each.language) << each.text;
    EXPECT_EQ(files.Has("program.json"), !each.damaged) << each.text;
    ASSERT_EQ(start.notices.size(), each.damaged ? 1 : 0) << each.text;
    if (each.damaged) {
      EXPECT_EQ(start.notices[0], (MessageCall{Message::kProgramSettingsUnreadable,
                                               {files.Path("program.json.bad")}}));
      EXPECT_EQ(files.Read("program.json.bad"), each.text);
      EXPECT_TRUE(StartProgram(files.Directory()).notices.isEmpty()) << "it is told once";
    }
  }
}

TEST(ProgramSettings, AFileOfTheDirectoryIsFoundWhereTheDirectoryIs) {
  const test::TemporaryFiles files;
  const test::TemporaryFiles moved;
  ProgramSettings settings;
  for (const QString& path : {files.Path("a.flm"), moved.Path("a.flm"), QString()}) {
    settings.filmStack = path;
    ASSERT_TRUE(WriteProgramSettings(settings, files.Directory()));
    EXPECT_EQ(StartProgram(files.Directory()).settings.filmStack, path);
  }
  settings.filmStack = files.Path("a.flm");
  ASSERT_TRUE(WriteProgramSettings(settings, files.Directory()));
  moved.Write("program.json", files.Read("program.json"));
  EXPECT_EQ(StartProgram(moved.Directory()).settings.filmStack, moved.Path("a.flm"));
  moved.Write("program.json", R"({"filmStack": "/gone/b.flm"})");
  moved.Write("b.flm", "");
  EXPECT_EQ(StartProgram(moved.Directory()).settings.filmStack, moved.Path("b.flm"));
}

TEST(ProgramSettings, WritingKeepsWhatItDoesNotKnow) {
  const test::TemporaryFiles files;
  files.Write("program.json", R"({"language": "en", "later": 7})");
  ASSERT_TRUE(WriteProgramSettings({Language::kJapanese}, files.Directory()));
  EXPECT_EQ(StartProgram(files.Directory()).settings.language, Language::kJapanese);
  EXPECT_TRUE(files.Read("program.json").contains(R"("later": 7)"));

  files.Write("program.json", "damaged while the program ran");
  ASSERT_TRUE(WriteProgramSettings({Language::kEnglish}, files.Directory()));
  EXPECT_EQ(files.Read("program.json.bad"), "damaged while the program ran");

  ASSERT_TRUE(QDir(files.Directory()).remove(QStringLiteral("program.json")));
  ASSERT_TRUE(QDir(files.Directory()).mkdir(QStringLiteral("program.json")));
  EXPECT_EQ(StartProgram(files.Directory()).notices.value(0).id, Message::kSettingsReadError);
  EXPECT_FALSE(WriteProgramSettings({Language::kEnglish}, files.Directory()));
}

}  // namespace
}  // namespace vexa
