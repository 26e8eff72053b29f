// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QGroupBox>

#include "measurement/evaluation.h"
#include "standards/standard_file.h"
#include "support/window_test.h"
#include "views/standards/standard_frm.h"

namespace vexa {
namespace {

using test::Shown;
using test::ShownMessage;

const ShownMessage kExists{Message::kReplaceFile};
const ShownMessage kUnsaved{Message::kSaveStandards};

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

class StandardsWindow : public test::WindowTest {
 protected:
  StandardsWindow() { Open(); }

  void Open() { window = std::make_unique<StandardFrm>(session, messages, dialogs); }
  QWidget& Window() override { return *window; }

  void Enter(const char* field, const char* text) {
    auto& line = Find<QLineEdit>(field);
    line.setText(QLatin1String(text));
    emit line.editingFinished();
  }
  void Use(const char* group) { Find<QGroupBox>(group).setChecked(true); }
  void Use(int condition) {
    Find<QCheckBox>(qPrintable(QStringLiteral("condition%1").arg(condition))).setChecked(true);
  }
  bool HintIsShown() { return Find<QWidget>("fileHint").isVisibleTo(window.get()); }
  QString Write(const char* name, const StandardContents& contents) const {
    EXPECT_TRUE(WriteStandardFile(files.Path(name), contents));
    return files.Path(name);
  }

  std::unique_ptr<StandardFrm> window;
};

TEST_F(StandardsWindow, OkTakesTheEntriesOverAndJudgesAgain) {
  EXPECT_EQ(window->windowTitle(), QStringLiteral("規格設定"));
  EXPECT_TRUE(HintIsShown());
  MeasurementSlot& slot = *state.Slot(2);
  slot.valid = true;
  slot.reflectance[550] = 2.0;
  Use("useReflectance");
  Use(1);
  EXPECT_TRUE(Find<QLineEdit>("condition1Upper").isEnabled());
  EXPECT_FALSE(Find<QLineEdit>("condition2Upper").isEnabled());
  Enter("condition1Wavelength", "550");
  Enter("condition1Upper", "1.5");
  Use("wavelengthValue");
  Press("bottom");
  Press("hueMarkerShown");
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
    const char* group;
    std::vector<int> conditions;
    const char* field;
    const char* text;
    const char* message;
  };
  const char* const kBand = "useReflectance";
  const char* const kMean = "averageReflectance";
  const char* const kLuminous = "luminousReflectance";
  const Case cases[] = {
      {kBand, {1}, "condition1Wavelength", "841", "反射率規格波長範囲外エラー"},
      {kBand, {1, 10}, "condition1Lower", "0", "反射率規格同一波長指定エラー"},
      {kBand, {3}, "condition3Wavelength", "", "反射率規格・条件３数値入力エラー"},
      {kBand, {4}, "condition4Wavelength", "40000", "反射率規格・条件４数値入力エラー"},
      {kBand, {10}, "condition10Upper", "1-", "反射率規格・条件１０数値入力エラー"},
      {kMean, {}, "averageReflectanceLower", "-1", "平均反射率規格規格マイナス指定エラー"},
      {"hueAngle", {}, "hueAngleUpper", "361", "色相角規格範囲外エラー<範囲:0°-360°>"},
      {kLuminous, {}, "luminousReflectanceLower", "E", "視感反射率規格数値入力エラー"},
      {"chroma", {}, "chromaUpper", "1E999", "クロマ規格数値入力エラー"},
  };
  for (const Case& c : cases) {
    Open();
    Use(c.group);
    for (const int condition : c.conditions) {
      Use(condition);
    }
    Enter(c.field, c.text);
    window->show();
    dialogs.save = SaveChoice{files.Path("faulty.std")};
    for (const char* button : {"btnOK", "save_bt"}) {
      Press(button);
      const Shown shown = messages.Take();
      ASSERT_EQ(shown.size(), 1U);
      EXPECT_EQ(shown[0].Text(), std::string("VEXA-KT ｴﾗｰ: ") + c.message);
      EXPECT_TRUE(window->isVisible());
      const char* fault = c.conditions.size() > 1 ? "condition10Wavelength" : c.field;
      EXPECT_EQ(window->focusWidget(), &Find<QWidget>(fault)) << fault;
    }
    EXPECT_EQ(state.standard, StandardSet());
    EXPECT_FALSE(files.Has("faulty.std"));
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
  EXPECT_FALSE(HintIsShown());
  dialogs.save = SaveChoice{files.Path("写し")};
  Press("save_bt");
  EXPECT_EQ(dialogs.filter, "Standard Files (*.std)|*.std");
  EXPECT_EQ(files.Read("写し.std"), files.Read("元.std"));
  Press("btnOK");
  EXPECT_EQ(messages.Take(), Shown{});
  EXPECT_EQ(ContentsOf(state), Example());
  EXPECT_EQ(state.standardFileName, files.Path("写し.std"));
  EXPECT_FALSE(state.standardsChanged) << "they are in the file";
}

TEST_F(StandardsWindow, UnreadableFilesAreToldAndLeaveTheFields) {
  files.Write("old.std", "VEXA-KT 440-840 Ver 2.99 Standard File\r\n");
  Write("whole.std", Example());
  const QByteArray whole = files.Read("whole.std");
  files.Write("cut.std", whole.left(whole.size() / 2));
  const std::pair<const char*, Message> cases[] = {
      {"old.std", Message::kStandardVersionRefused},
      {"cut.std", Message::kStandardReadError},
      {"missing.std", Message::kStandardReadError},
      {"€.std", Message::kNameNotEncodable},
  };
  for (const auto& [name, message] : cases) {
    dialogs.open = files.Path(name);
    Press("load_bt");
    EXPECT_EQ(messages.Take(), (Shown{{message, {files.Path(name)}}}));
    EXPECT_FALSE(Find<QGroupBox>("useReflectance").isChecked());
    EXPECT_EQ(Text("fileName"), "規格ﾌｧｲﾙ名:");
  }
}

TEST_F(StandardsWindow, SavingOverAFileIsAskedAndItsFailureShown) {
  dialogs.save = SaveChoice{Write("a.std", Example())};
  const QByteArray before = files.Read("a.std");
  messages.answers = {MessageResult::kNo};
  Press("save_bt");
  EXPECT_EQ(messages.Take(), (Shown{kExists}));
  EXPECT_EQ(files.Read("a.std"), before);

  dialogs.save = SaveChoice{files.Path("missing/b.std")};
  Press("save_bt");
  EXPECT_EQ(messages.Take(),
            (Shown{{Message::kWriteError,
                    {files.Path("missing/b.std"), QStringLiteral("ﾌｫﾙﾀﾞがありません。")}}}));
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
  const std::pair<std::vector<std::pair<int, const char*>>, const char*> cases[] = {
      {{{2, "500"}}, "条件１が使用されていないため、反射率は判定されません。"},
      {{{1, "500"}}, ""},
      {{{1, "500"}, {2, "600"}}, ""},
      {{{1, "500"}, {3, "600"}}, "条件２が使用されていないため、条件１の波長だけが判定されます。"},
      {{{1, "500"}, {2, "600"}, {3, "550"}},
       "条件３の波長が条件２より短いため、この区間は判定されません。"},
      {{{1, "500"}, {2, "600"}, {10, "700"}},
       "条件１０の限界は、使用されていない条件９の値から引かれます。"},
  };
  for (const auto& [conditions, hint] : cases) {
    Open();
    Use("useReflectance");
    for (const auto& [condition, nm] : conditions) {
      Use(condition);
      Enter(qPrintable(QStringLiteral("condition%1Wavelength").arg(condition)), nm);
    }
    EXPECT_EQ(Text("bandHint"), hint);
  }
}

TEST_F(StandardsWindow, AsksAtTheEndOnlyForChangedStandardsOfANamedFile) {
  const QString target = files.Path("end.std");
  const QString bad = files.Path("missing/end.std");
  const ShownMessage unwritten{Message::kWriteError, {bad, QStringLiteral("ﾌｫﾙﾀﾞがありません。")}};
  constexpr MessageResult kYes = MessageResult::kYes;
  struct Case {
    bool changed;
    const char* name;
    MessageResult answer;
    std::optional<QString> save;
    bool goesOn;
    Shown shown;
  };
  const Case cases[] = {
      {false, "a.std", kYes, target, true, {}},
      {true, "", kYes, target, true, {}},
      {true, "a.std", MessageResult::kNo, target, true, {kUnsaved}},
      {true, "a.std", kYes, {}, false, {kUnsaved}},
      {true, "a.std", kYes, bad, false, {kUnsaved, unwritten}},
      {true, "a.std", kYes, target, true, {kUnsaved}},
  };
  for (const Case& c : cases) {
    state.standardsChanged = c.changed;
    state.standardFileName = QLatin1String(c.name);
    messages.answers = {c.answer};
    dialogs.save = c.save ? std::optional(SaveChoice{*c.save}) : std::nullopt;
    EXPECT_FALSE(files.Has("end.std"));
    EXPECT_EQ(QCoro::waitFor(SaveStandardsBeforeExit(session, messages, dialogs)), c.goesOn);
    EXPECT_EQ(messages.Take(), c.shown);
  }
  EXPECT_TRUE(files.Has("end.std"));
  EXPECT_EQ(dialogs.filter, "Standard File (*.std)|*.std");
  EXPECT_EQ(state.standardFileName, target);
  EXPECT_FALSE(state.standardsChanged);
}

}  // namespace
}  // namespace vexa
