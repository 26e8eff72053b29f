// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "optics/index_file.h"
#include "support/window_test.h"
#include "views/optics/ref_set_dlg.h"

namespace vexa {
namespace {

using Mode = RefSetDlg::Mode;
using test::Shown;
using test::ShownMessage;

class OpticsSettings : public test::WindowTest {
 protected:
  void Open(Mode mode) {
    dialog = std::make_unique<RefSetDlg>(mode, session, messages, dialogs);
    dialog->show();
  }
  QWidget& Window() override { return *dialog; }
  QString Type(const char* field, const char* keys) { return test::Type(*dialog, field, keys); }

  std::unique_ptr<RefSetDlg> dialog;
};

TEST_F(OpticsSettings, PagesAndFieldsAreThoseOfTheModeAndTheKind) {
  const char* const fieldOfKind[] = {"FixedValue", "Schott5", "Sellmeier0", "IndexLoad",
                                     "SubstrateLoad"};
  for (const Mode mode : {Mode::kReference, Mode::kThickness}) {
    const bool thickness = mode == Mode::kThickness;
    Open(mode);
    EXPECT_EQ(dialog->windowTitle(),
              thickness ? QStringLiteral("膜厚設定") : QStringLiteral("ﾘﾌｧﾚﾝｽ設定"));
    EXPECT_EQ(dialog->focusWidget()->objectName(),
              thickness ? QStringLiteral("ThicknessEnabled")
                        : QStringLiteral("Kind%1").arg(state.referenceSetting.kind));
    auto& pages = Find<QTabWidget>("Pages");
    ASSERT_EQ(pages.count(), 7);
    for (int i = 0; i < 7; ++i) {
      EXPECT_EQ(pages.isTabEnabled(i), thickness || (i > 0 && i < 6)) << i;
    }
    EXPECT_EQ(Find<QWidget>("Kind4").isEnabled(), thickness);
    for (int kind = 0; kind < (thickness ? 5 : 4); ++kind) {
      Press(qPrintable(QStringLiteral("Kind%1").arg(kind)));
      for (int field = 0; field < 5; ++field) {
        EXPECT_EQ(Find<QWidget>(fieldOfKind[field]).isEnabledTo(dialog.get()), field == kind)
            << kind << fieldOfKind[field];
      }
    }
  }
}

TEST_F(OpticsSettings, FieldsTakeNumbersAloneAndShowThemInTheirPattern) {
  Open(Mode::kReference);
  Press("Kind0");
  EXPECT_EQ(Type("FixedValue", "x5,2a.5 "), QStringLiteral("52.5"));
  emit Find<QLineEdit>("FixedValue").editingFinished();
  EXPECT_EQ(Find<QLineEdit>("FixedValue").text(), QStringLiteral("52.500000"));
  EXPECT_EQ(Find<QLineEdit>("Sellmeier4").text(), QStringLiteral("-1.18225190E-02"));
  EXPECT_EQ(Find<QLineEdit>("Schott3").text(), QStringLiteral("-7.61239110E-05"));
}

TEST_F(OpticsSettings, FixedValuesHaveTheirRange) {
  const ShownMessage reflectance{Message::kReferenceOutOfRange};
  const ShownMessage index{Message::kIndexOutOfRange};
  const struct {
    Mode mode;
    const char* typed;
    Shown shown;
  } cases[] = {
      {Mode::kReference, "110", {}},       {Mode::kReference, "110.0001", {reflectance}},
      {Mode::kReference, "0.1", {}},       {Mode::kReference, "0.0999", {reflectance}},
      {Mode::kReference, "1E1", {}},       {Mode::kReference, "", {reflectance}},
      {Mode::kThickness, "0.1", {}},       {Mode::kThickness, "0.0999", {index}},
      {Mode::kThickness, "10", {}},        {Mode::kThickness, "10.0001", {index}},
      {Mode::kThickness, "1.5+", {index}},
  };
  for (const auto& c : cases) {
    state = {};
    Open(c.mode);
    Press("Kind0");
    Type("FixedValue", c.typed);
    Press("OK");
    EXPECT_EQ(messages.Take(), c.shown) << c.typed;
    EXPECT_EQ(dialog->isVisible(), !c.shown.empty()) << c.typed;
    EXPECT_EQ(dialog->Outcome(), c.shown.empty() ? QStringLiteral("OK") : QStringLiteral("CANCEL"));
    const bool reference = c.mode == Mode::kReference;
    const double stored = reference ? state.referenceReflectance[640] : state.filmIndex[640];
    EXPECT_EQ(stored, c.shown.empty() ? QString::fromLatin1(c.typed).toDouble() : 0.0) << c.typed;
    const DispersionSetting& setting = reference ? state.referenceSetting : state.thickness.coat;
    EXPECT_EQ(setting.kind, c.shown.empty() ? 0 : 2) << c.typed;
  }
}

TEST_F(OpticsSettings, NumbersThatWereNotEditedKeepTheirDigits) {
  state.thickness.coat.sellmeier[0] = 1.151501912345678;
  Open(Mode::kThickness);
  Type("Sellmeier1", "0.25");
  Press("OK");
  EXPECT_EQ(state.thickness.coat.sellmeier[0], 1.151501912345678);
  EXPECT_EQ(state.thickness.coat.sellmeier[1], 0.25);
}

TEST_F(OpticsSettings, RejectedSettingsChangeNothing) {
  const ShownMessage computed{Message::kDispersionFault, {QStringLiteral("")}};
  const ShownMessage noFile{Message::kIndexFileFault, {QStringLiteral("")}};
  const ShownMessage noSubstrate{Message::kSubstrateFileFault, {QStringLiteral("")}};
  const ShownMessage typeC{Message::kTypeCWithSubstrate};
  const ShownMessage noNumber{Message::kCoefficientNotANumber};
  const struct {
    const char* kind;
    const char* type;
    const char* field;
    const char* typed;
    ShownMessage shown;
  } cases[] = {
      {"Kind2", "Type0", "Sellmeier3", "0.36", computed},  // a pole at 600 nm
      {"Kind1", "Type0", "Schott0", "-9", computed},
      {"Kind1", "Type0", "Schott5", "1E", noNumber},
      {"Kind3", "Type2", nullptr, "", noFile},
      {"Kind4", "Type1", nullptr, "", noSubstrate},
      {"Kind4", "Type2", nullptr, "", typeC},
  };
  for (const auto& c : cases) {
    for (const char* button : {"OK", "Save"}) {
      state = {};
      Open(Mode::kThickness);
      Press("ThicknessEnabled");
      Press(c.kind);
      Press(c.type);
      if (c.field != nullptr) {
        Type(c.field, c.typed);
      }
      dialogs.filter.clear();
      Press(button);
      EXPECT_EQ(messages.Take(), std::vector{c.shown}) << c.kind << button;
      EXPECT_TRUE(dialog->isVisible());
      if (c.shown == noNumber) {
        EXPECT_EQ(dialog->focusWidget(), &Find<QWidget>(c.field)) << "on its page";
        EXPECT_EQ(Find<QTabWidget>("Pages").currentIndex(), 3);
      }
      EXPECT_EQ(dialogs.filter, "") << "no name is asked for";
      EXPECT_FALSE(state.thickness.enabled);
      EXPECT_EQ(state.thickness.coat, DefaultCoatSetting());
      EXPECT_EQ(state.filmIndex, ReflectanceSpectrum());
      Press("Cancel");
      EXPECT_EQ(dialog->Outcome(), QStringLiteral("CANCEL"));
    }
  }
}

TEST_F(OpticsSettings, OkStoresTheThicknessMeasurement) {
  Open(Mode::kThickness);
  for (const char* choice : {"ThicknessEnabled", "Type1", "ThicknessKind1", "Kind2"}) {
    Press(choice);
  }
  Press("OK");
  EXPECT_TRUE(state.thickness.enabled);
  EXPECT_EQ(state.thickness.type, ThicknessType::kB);
  EXPECT_EQ(state.thickness.kind, ThicknessKind::kOptical);
  EXPECT_GT(state.filmIndex[440], state.filmIndex[840]);

  Open(Mode::kReference);
  Press("OK");
  EXPECT_NEAR(state.referenceReflectance[588], 4.2, 0.5) << "a glass, in percent";
}

TEST_F(OpticsSettings, FilesAreSavedAndLoaded) {
  const struct {
    Mode mode;
    const char* name;
    const char* header;
    const char* filter;
  } cases[] = {
      {Mode::kReference, "基準.ref", "VEXA-KT 440-840 Ver 3.21 Reference File\r\n",
       "ﾘﾌｧﾚﾝｽ･ﾃﾞｰﾀﾌｧｲﾙ(*.ref)|*.ref|"},
      {Mode::kThickness, "膜.ind", "VEXA-KT 440-840 Ver 3.21 Index File\r\n",
       "ｲﾝﾃﾞｯｸｽ･ﾃﾞｰﾀﾌｧｲﾙ(*.ind)|*.ind|"},
  };
  const ShownMessage question{Message::kReplaceFileOrCancel};
  for (const auto& c : cases) {
    Open(c.mode);
    Press("Kind0");
    Type("FixedValue", "1.75");
    dialogs.save = SaveChoice{files.Path(c.name).section(u'.', 0, -2), 2};
    Press("Save");
    EXPECT_EQ(dialogs.filter, std::string("全てのﾌｧｲﾙ(*.*)|*.*|") + c.filter);
    EXPECT_TRUE(files.Read(c.name).startsWith(c.header));
    EXPECT_TRUE(messages.Take().empty());

    Type("FixedValue", "2");
    messages.answers = {MessageResult::kCancel};
    Press("Save");
    EXPECT_EQ(messages.Take(), std::vector{question});

    Press("Kind3");
    dialogs.open = files.Path(c.name);
    Press("IndexLoad");
    EXPECT_EQ(dialogs.filter, c.filter);
    Press("OK");
    EXPECT_TRUE(messages.Take().empty());
    EXPECT_EQ((c.mode == Mode::kReference ? state.referenceReflectance : state.filmIndex)[700],
              1.75);
  }
}

TEST_F(OpticsSettings, BadFilesLeaveTheFieldsAsTheyWere) {
  const ShownMessage reference{Message::kReferenceFileReadError};
  const ShownMessage index{Message::kIndexFileReadError};
  const struct {
    Mode mode;
    const char* kind;
    const char* button;
    const char* field;
    ShownMessage shown;
  } cases[] = {{Mode::kReference, "Kind3", "IndexLoad", "IndexFileName", reference},
               {Mode::kThickness, "Kind3", "IndexLoad", "IndexFileName", index},
               {Mode::kThickness, "Kind4", "SubstrateLoad", "SubstrateFileName", index}};
  for (const auto& c : cases) {
    state.referenceSetting.indexFileName = QStringLiteral("old");
    state.thickness.coat.indexFileName = QStringLiteral("old");
    state.thickness.coat.dataFileName = QStringLiteral("old");
    Open(c.mode);
    Press(c.kind);
    dialogs.open = files.Path("missing");
    Press(c.button);
    EXPECT_EQ(messages.Take(), std::vector{c.shown}) << c.button;
    EXPECT_EQ(Find<QLineEdit>(c.field).text(), QStringLiteral("old"));

    dialogs.open = files.Path("한글.ind");
    ASSERT_TRUE(WriteIndexFile(*dialogs.open, IndexFileContent::kIndex, {}));
    Press(c.button);
    EXPECT_EQ(messages.Take().size(), 1U) << "the environment file cannot hold the name";
    EXPECT_EQ(Find<QLineEdit>(c.field).text(), QStringLiteral("old"));
  }
  dialogs.save = SaveChoice{files.Path("missing/x"), 1};
  Press("Kind2");
  Press("Save");
  EXPECT_EQ(messages.Take(), (Shown{{Message::kIndexFileWriteError}}));
}

TEST_F(OpticsSettings, SubstrateFilesGiveTheIndexOfTheSubstrate) {
  dialogs.open = files.Write(
      "基板.dat", "VEXA for Windows ver 1.10 Data File\r\na comment\r\n 1 \r\nsample\r\n" +
                      QByteArray("4\r\n").repeated(401));
  state.filmIndex[500] = 1.25;
  Open(Mode::kThickness);
  Press("Kind4");
  Press("SubstrateLoad");
  EXPECT_EQ(dialogs.filter, "ﾃﾞｰﾀ･ﾌｧｲﾙ(*.csv,*.dat)|*.csv;*.dat|");
  Press("OK");
  EXPECT_TRUE(messages.Take().empty());
  EXPECT_NEAR(state.substrateIndex[500], 1.5, 1e-12);  // 4 % of a bare surface
  EXPECT_EQ(state.filmIndex[500], 1.25);
}

}  // namespace
}  // namespace vexa
