// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>

#include "measurement/evaluation.h"
#include "standards/standard_file.h"
#include "support/prepared_answers.h"
#include "support/prepared_files.h"
#include "views/standards/standard_frm.h"

namespace vexa {
namespace {

using test::ShownMessage;
using Shown = std::vector<ShownMessage>;

const ShownMessage kExists{"VEXA-KT ﾜｰﾆﾝｸﾞ: 同ﾌｧｲﾙ名が存在します。上書き保存しますか？", 52};
const ShownMessage kUnsaved{"VEXA-KT ﾒｯｾｰｼﾞ: 規格ﾌｧｲﾙがｾｰﾌﾞされていません。ｾｰﾌﾞしますか。", 36};

StandardContents Example() {
  StandardContents contents;
  StandardSet& standard = contents.standard;
  standard.useReflectance = true;
  standard.conditions[0] = {true, 1.2345678901234, 0.0};
  standard.conditions[1] = {true, 1e-12, 0.0};
  standard.wavelengths[1] = 700;
  standard.wavelengthValue = {{true, 600.0, 500.0}, 0};
  standard.hueAngle = {true, 10.0, 350.0};
  contents.chromaMarker = {true, 12.5};
  return contents;
}

class StandardsWindow : public testing::Test {
 protected:
  StandardsWindow() { Open(); }

  void Open() { window = std::make_unique<StandardFrm>(state, messages, dialogs); }

  template <typename Widget>
  Widget* Find(const char* name) {
    auto* widget = window->findChild<Widget*>(QLatin1String(name));
    EXPECT_NE(widget, nullptr) << name;
    return widget;
  }

  void Press(const char* button) { Find<QPushButton>(button)->click(); }
  void Enter(const char* field, const char* text) {
    auto* line = Find<QLineEdit>(field);
    line->setText(QLatin1String(text));
    emit line->editingFinished();
  }
  void Use(const char* group) { Find<QGroupBox>(group)->setChecked(true); }
  void Use(int condition) {
    Find<QCheckBox>(qPrintable(QStringLiteral("condition%1").arg(condition)))->setChecked(true);
  }
  std::string Text(const char* label) { return Find<QLabel>(label)->text().toStdString(); }

  QString Path(const char* name) const { return directory.filePath(QString::fromUtf8(name)); }
  QString Write(const char* name, const StandardContents& contents) const {
    EXPECT_TRUE(WriteStandardFile(Path(name), contents.standard, contents.chromaMarker,
                                  contents.hueMarker));
    return Path(name);
  }
  static QByteArray Bytes(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }

  QTemporaryDir directory{QDir::tempPath() + QStringLiteral("/規 格-XXXXXX")};
  VEXATYPE state;
  test::PreparedAnswers messages;
  test::PreparedFiles dialogs;
  std::unique_ptr<StandardFrm> window;
};

TEST_F(StandardsWindow, OkTakesTheEntriesOverAndJudgesAgain) {
  EXPECT_EQ(window->windowTitle(), QStringLiteral("規格設定"));
  EXPECT_TRUE(Find<QWidget>("fileHint")->isVisibleTo(window.get()));
  MeasurementSlot& slot = *state.Slot(2);
  slot.valid = true;
  slot.reflectance[550] = 2.0;
  Use("useReflectance");
  Use(1);
  EXPECT_TRUE(Find<QLineEdit>("condition1Upper")->isEnabled());
  EXPECT_FALSE(Find<QLineEdit>("condition2Upper")->isEnabled());
  Enter("condition1Wavelength", "550");
  Enter("condition1Upper", "1.5");
  Use("wavelengthValue");
  Find<QRadioButton>("bottom")->click();
  Find<QCheckBox>("hueMarkerShown")->setChecked(true);
  Enter("hueMarkerValue", "270");
  Press("btnOK");
  EXPECT_EQ(messages.Take(), Shown{});
  EXPECT_EQ(window->result(), QDialog::Accepted);
  EXPECT_TRUE(state.standardsChanged);
  EXPECT_EQ(state.standard.wavelengths[0], 550);
  EXPECT_EQ(state.standard.conditions[0], (StandardLimits{true, 1.5, 0.0}));
  EXPECT_EQ(state.standard.wavelengthValue.selector, 0);
  EXPECT_EQ(state.hueMarker, (ReferenceMarker{true, 270.0}));
  EXPECT_EQ(slot.judgement.panelTexts[0], QStringLiteral("反射率:NG"));
  EXPECT_EQ(slot.judgement.panelTexts[3], QStringLiteral("波長:OK"));
  EXPECT_EQ(state.Slot(1)->judgement.panelTexts[0], QString()) << "an empty slot";
}

TEST_F(StandardsWindow, WhatIsNotEditedStaysToTheLastDigit) {
  const StandardContents example = Example();
  state.standard = example.standard;
  state.chromaMarker = example.chromaMarker;
  Open();
  Press("btnOK");
  EXPECT_EQ(ContentsOf(state), example);
  EXPECT_FALSE(state.standardsChanged);

  state.standardsChanged = true;
  Open();
  Press("btnOK");
  EXPECT_TRUE(state.standardsChanged) << "changed earlier and not saved yet";
}

TEST_F(StandardsWindow, CancelChangesNothing) {
  Use("chroma");
  Enter("chromaUpper", "3");
  dialogs.open = Write("a.std", Example());
  Press("load_bt");
  Press("btnCancel");
  EXPECT_EQ(ContentsOf(state), StandardContents());
  EXPECT_EQ(state.standardFileName, QString());
  EXPECT_FALSE(state.standardsChanged);
}

TEST_F(StandardsWindow, RefusesFaultyEntriesAndStaysOpen) {
  struct Case {
    std::vector<const char*> groups;
    std::vector<int> conditions;
    std::vector<std::pair<const char*, const char*>> entries;
    const char* message;
  };
  const Case cases[] = {
      {{"useReflectance"}, {1}, {{"condition1Wavelength", "841"}}, "反射率規格波長範囲外エラー"},
      {{"useReflectance"}, {1}, {{"condition1Lower", "101"}}, "反射率規格大小反転エラー"},
      {{"useReflectance"}, {1, 10}, {}, "反射率規格同一波長指定エラー"},
      {{"averageReflectance"},
       {},
       {{"averageReflectanceLower", "-1"}},
       "平均反射率規格規格マイナス指定エラー"},
      {{"hueAngle"}, {}, {{"hueAngleUpper", "361"}}, "色相角規格範囲外エラー<範囲:0°-360°>"},
      {{"useReflectance"}, {3}, {{"condition3Wavelength", ""}}, "反射率規格・条件３数値入力エラー"},
      {{"useReflectance"},
       {4},
       {{"condition4Wavelength", "40000"}},
       "反射率規格・条件４数値入力エラー"},
      {{"useReflectance"},
       {10},
       {{"condition10Upper", "1-"}},
       "反射率規格・条件１０数値入力エラー"},
      {{"luminousReflectance"},
       {},
       {{"luminousReflectanceLower", "E"}},
       "視感反射率規格数値入力エラー"},
      {{"chroma"}, {}, {{"chromaUpper", "1E999"}}, "クロマ規格数値入力エラー"},
  };
  for (const Case& c : cases) {
    Open();
    for (const char* group : c.groups) {
      Use(group);
    }
    for (const int condition : c.conditions) {
      Use(condition);
    }
    for (const auto& [field, text] : c.entries) {
      Enter(field, text);
    }
    window->show();
    dialogs.save = SaveChoice{Path("faulty.std")};
    for (const char* button : {"btnOK", "save_bt"}) {
      Press(button);
      EXPECT_EQ(messages.Take(), (Shown{{std::string("VEXA-KT ｴﾗｰ: ") + c.message, 48}}));
      EXPECT_TRUE(window->isVisible());
    }
    EXPECT_EQ(state.standard, StandardSet());
    EXPECT_FALSE(QFile::exists(Path("faulty.std")));
  }
}

TEST_F(StandardsWindow, EntriesOfWhatIsOffAreNotLookedAt) {
  state.standard.conditions[1] = {false, 7.0, 3.0};
  Open();
  Use("useReflectance");
  Enter("condition2Upper", "");
  Enter("condition2Wavelength", "");
  Enter("averageReflectanceUpper", "-");
  Press("btnOK");
  EXPECT_EQ(messages.Take(), Shown{});
  EXPECT_EQ(state.standard.conditions[1], (StandardLimits{false, 7.0, 3.0}));
  EXPECT_EQ(state.standard.wavelengths[1], 440);
}

TEST_F(StandardsWindow, LoadedFilesAreSavedAgainByteForByte) {
  dialogs.open = Write("元.std", Example());
  Press("load_bt");
  EXPECT_EQ(dialogs.filter, "Standard Files (*.std)|*.std");
  EXPECT_EQ(Text("fileName"), "規格ﾌｧｲﾙ名:" + dialogs.open->toStdString());
  EXPECT_FALSE(Find<QWidget>("fileHint")->isVisibleTo(window.get()));
  dialogs.save = SaveChoice{Path("写し")};
  Press("save_bt");
  EXPECT_EQ(dialogs.filter, "Standard Files (*.std)|*.std");
  EXPECT_EQ(Bytes(Path("写し.std")), Bytes(*dialogs.open));
  Press("btnOK");
  EXPECT_EQ(messages.Take(), Shown{});
  EXPECT_EQ(ContentsOf(state), Example());
  EXPECT_EQ(state.standardFileName, Path("写し.std"));
  EXPECT_FALSE(state.standardsChanged) << "they are in the file";
}

TEST_F(StandardsWindow, UnreadableFilesAreToldAndLeaveTheFields) {
  QFile old(Path("old.std"));
  ASSERT_TRUE(old.open(QIODevice::WriteOnly));
  old.write("VEXA-KT 440-840 Ver 2.99 Standard File\r\n");
  old.close();
  const QByteArray whole = Bytes(Write("whole.std", Example()));
  QFile cut(Path("cut.std"));
  ASSERT_TRUE(cut.open(QIODevice::WriteOnly));
  cut.write(whole.left(whole.size() / 2));
  cut.close();
  const std::string unreadable =
      "VEXA-KT ｴﾗｰ: 規格ﾌｧｲﾙの読み込みでエラーが発生しました。\r\r規格ﾌｧｲﾙ名:";
  const std::pair<const char*, std::string> cases[] = {
      {"old.std", "VEXA-KT: 規格ﾌｧｲﾙ名:" + Path("old.std").toStdString() +
                      "\r\rVer1.10以前の規格ﾌｧｲﾙは読み込めません。"},
      {"cut.std", unreadable + Path("cut.std").toStdString()},
      {"missing.std", unreadable + Path("missing.std").toStdString()},
      {"€.std", "VEXA-KT ｴﾗｰ: ﾌｧｲﾙ名に、設定ﾌｧｲﾙに保存できない文字が含まれています。\r\r" +
                    Path("€.std").toStdString()},
  };
  for (const auto& [name, message] : cases) {
    dialogs.open = Path(name);
    Press("load_bt");
    EXPECT_EQ(messages.Take(), (Shown{{message, 16}}));
    EXPECT_FALSE(Find<QGroupBox>("useReflectance")->isChecked());
    EXPECT_EQ(Text("fileName"), "規格ﾌｧｲﾙ名:");
  }
}

TEST_F(StandardsWindow, SavingOverAFileIsAskedAndItsFailureShown) {
  const QByteArray before = Bytes(Write("a.std", Example()));
  dialogs.save = SaveChoice{Path("a.std")};
  messages.answers = {MessageResult::kNo};
  Press("save_bt");
  EXPECT_EQ(messages.Take(), (Shown{kExists}));
  EXPECT_EQ(Bytes(Path("a.std")), before);

  dialogs.save = SaveChoice{Path("missing/b.std")};
  Press("save_bt");
  EXPECT_EQ(messages.Take(), (Shown{{"VEXA-KT ｴﾗｰ: ﾌｧｲﾙの書き込みでエラーが発生しました。\r\r" +
                                         Path("missing/b.std").toStdString(),
                                     16}}));
  EXPECT_EQ(Text("fileName"), "規格ﾌｧｲﾙ名:");
}

TEST_F(StandardsWindow, SavingOverTheFileInUseAndCancellingLeavesUnsavedStandards) {
  state.standardFileName = Write("a.std", {});
  Open();
  Use("chroma");
  dialogs.save = SaveChoice{state.standardFileName};
  messages.answers = {MessageResult::kYes};
  Press("save_bt");
  Press("btnCancel");
  EXPECT_EQ(ContentsOf(state), StandardContents());
  EXPECT_TRUE(state.standardsChanged);
}

TEST_F(StandardsWindow, TellsWhatTheConditionsDoNotTest) {
  struct Case {
    std::vector<std::pair<int, const char*>> conditions;
    const char* hint;
  };
  const Case cases[] = {
      {{{2, "500"}}, "条件１が使用されていないため、反射率は判定されません。"},
      {{{1, "500"}}, ""},
      {{{1, "500"}, {2, "600"}}, ""},
      {{{1, "500"}, {3, "600"}}, "条件２が使用されていないため、条件１の波長だけが判定されます。"},
      {{{1, "500"}, {2, "600"}, {3, "550"}},
       "条件３の波長が条件２より短いため、この区間は判定されません。"},
      {{{1, "500"}, {2, "600"}, {10, "700"}},
       "条件１０の限界は、使用されていない条件９の値から引かれます。"},
  };
  for (const Case& c : cases) {
    Open();
    Use("useReflectance");
    for (const auto& [condition, nm] : c.conditions) {
      Use(condition);
      Enter(qPrintable(QStringLiteral("condition%1Wavelength").arg(condition)), nm);
    }
    EXPECT_EQ(Text("bandHint"), c.hint);
  }
}

TEST_F(StandardsWindow, AsksAtTheEndOnlyForChangedStandardsOfANamedFile) {
  struct Case {
    bool changed;
    const char* name;
    MessageResult answer;
    std::optional<QString> save;
    bool goesOn;
    std::vector<ShownMessage> shown;
  };
  const QString target = Path("end.std");
  const QString bad = Path("missing/end.std");
  const Case cases[] = {
      {false, "a.std", MessageResult::kYes, target, true, {}},
      {true, "", MessageResult::kYes, target, true, {}},
      {true, "a.std", MessageResult::kNo, target, true, {kUnsaved}},
      {true, "a.std", MessageResult::kYes, std::nullopt, false, {kUnsaved}},
      {true,
       "a.std",
       MessageResult::kYes,
       bad,
       false,
       {kUnsaved,
        {"VEXA-KT ｴﾗｰ: ﾌｧｲﾙの書き込みでエラーが発生しました。\r\r" + bad.toStdString(), 16}}},
      {true, "a.std", MessageResult::kYes, target, true, {kUnsaved}},
  };
  for (const Case& c : cases) {
    state.standardsChanged = c.changed;
    state.standardFileName = QLatin1String(c.name);
    messages.answers = {c.answer};
    dialogs.save = c.save ? std::optional(SaveChoice{*c.save}) : std::nullopt;
    EXPECT_FALSE(QFile::exists(target));
    EXPECT_EQ(SaveStandardsBeforeExit(state, messages, dialogs), c.goesOn);
    EXPECT_EQ(messages.Take(), c.shown);
  }
  EXPECT_TRUE(QFile::exists(target));
  EXPECT_EQ(dialogs.filter, "Standard File (*.std)|*.std");
  EXPECT_EQ(state.standardFileName, target);
  EXPECT_FALSE(state.standardsChanged);
}

}  // namespace
}  // namespace vexa
