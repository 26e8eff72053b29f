// SPDX-License-Identifier: GPL-3.0-or-later
#include "measurement/session.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>

#include "measurement/evaluation.h"
#include "support/slots.h"

namespace vexa {
namespace {

using test::Flat;
using test::Verdicts;

// With a reference of 4 % at 500 counts over a background of 100, a percent is a hundred counts.
RawSpectrum CountsOf(const ReflectanceSpectrum& percent) {
  RawSpectrum counts;
  for (int nm = RawSpectrum::kFirstNm; nm <= RawSpectrum::kLastNm; ++nm) {
    counts[nm] = 100.0 + 100.0 * percent[std::min(nm, ReflectanceSpectrum::kLastNm)];
  }
  return counts;
}

class SessionTest : public testing::Test {
 protected:
  SessionTest() {
    Settings settings = session.SettingsInForce();
    settings.instrument.calibrationShiftNm = 0;
    settings.referenceReflectance = Flat(4.0);
    settings.thickness.enabled = true;
    settings.thickness.type = ThicknessType::kB;
    settings.thickness.kind = ThicknessKind::kOptical;
    session.TakeSettings(settings);
    session.StoreFrame(FrameKind::kBackground, CountsOf(Flat(0.0)), session.ConditionsNow());
    session.StoreFrame(FrameKind::kReference, CountsOf(Flat(4.0)), session.ConditionsNow());
  }

  SampleStorage Measure(int slot, const ReflectanceSpectrum& reflectance) {
    return test::Store(session, slot, CountsOf(reflectance));
  }

  const MeasurementSlot& Slot(int number) const { return *session.State().Slot(number); }

  template <typename Change>
  void ChangeSettings(Change change) {
    Settings settings = session.SettingsInForce();
    change(settings);
    session.TakeSettings(settings);
  }

  void TypeNumber(int slot, const QString& number) {
    auto infos = Infos();
    infos.at(static_cast<std::size_t>(slot) - 1).sampleNumber = number;
    session.EditInformation(infos);
  }

  [[nodiscard]] std::array<SampleInfo, kSlotCount> Infos() const {
    std::array<SampleInfo, kSlotCount> infos;
    for (std::size_t i = 0; i < infos.size(); ++i) {
      infos.at(i) = session.State().measurementSlots.at(i).info;
    }
    return infos;
  }

  QDateTime now{QDate(2026, 3, 9), QTime(7, 5, 3)};
  Session session{QStringLiteral("/nowhere"), [this] { return now; }};
};

TEST_F(SessionTest, EveryChangeAnnouncesWhatItChangedAndNothingElse) {
  struct Case {
    const char* name;
    std::function<void()> change;
    const char* announced;  ///< frames b and r, a slot by its number, A all slots, m measured,
                            ///< e settings, h history, c stock
  };
  std::string heard;
  QObject::connect(&session, &Session::FrameChanged,
                   [&](FrameKind kind) { heard += kind == FrameKind::kBackground ? 'b' : 'r'; });
  QObject::connect(&session, &Session::SlotChanged,
                   [&](int slot) { heard += std::to_string(slot); });
  QObject::connect(&session, &Session::SlotsReplaced, [&] { heard += 'A'; });
  QObject::connect(&session, &Session::SampleStored,
                   [&](int slot) { heard += 'm' + std::to_string(slot); });
  QObject::connect(&session, &Session::SettingsChanged, [&] { heard += 'e'; });
  QObject::connect(&session, &Session::HistoryChanged, [&] { heard += 'h'; });
  QObject::connect(&session, &Session::StockChanged, [&] { heard += 'c'; });
  const HistoryPoint physical{1500.0, true};
  const VEXATYPE empty;
  // One after another, each on what those before it have left.
  const Case cases[] = {
      {"a background", [&] { session.StoreFrame(FrameKind::kBackground, CountsOf(Flat(0.0)), {}); },
       "b"},
      {"a reference", [&] { session.StoreFrame(FrameKind::kReference, CountsOf(Flat(4.0)), {}); },
       "r"},
      {"a sample", [&] { Measure(3, test::Fringes()); }, "3m3"},
      {"its thickness", [&] { (void)session.ComputeThickness(3); }, "3"},
      {"a thickness that fails", [&] { (void)session.ComputeThickness(4); }, "4"},
      {"the automatic thickness", [&] { session.SetAutoThickness(true); }, "e"},
      {"a sample with it", [&] { Measure(10, test::Fringes()); }, "10hm10"},
      {"a sample that has none", [&] { Measure(2, Flat(4.0)); }, "2m2"},
      {"accumulating", [&] { session.SetAccumulating(true); }, "c"},
      {"a sample into the stock", [&] { Measure(1, Flat(4.0)); }, "1cm1"},
      {"a dark one", [&] { Measure(1, Flat(0.0)); }, "1m1"},
      {"a view", [&] { session.SetView(3); }, "e"},
      {"settings", [&] { session.TakeSettings(session.State()); }, "ce"},
      {"information of two slots",
       [&] {
         auto infos = Infos();
         infos[1].remark2 = infos[6].sampleNumber = QStringLiteral("7");
         session.EditInformation(infos);
       },
       "27"},
      {"the same again", [&] { session.EditInformation(Infos()); }, ""},
      {"a file of one sample",
       [&] {
         SlotTable slotTable;
         slotTable[4].reflectance = Flat(4.0);
         slotTable[4].valid = true;
         (void)session.LoadSlots(slotTable, QStringLiteral("a.csv"), {});
       },
       "Ac"},
      {"the name of a file", [&] { session.SetDataFileName(QStringLiteral("b.csv")); }, "e"},
      {"no more accumulating", [&] { session.SetAccumulating(false); }, "c"},
      {"settings without it", [&] { session.TakeSettings(session.State()); }, "e"},
      {"the last colour", [&] { session.RemoveLastColour(); }, "c"},
      {"all colours", [&] { session.RemoveAllColours(); }, "c"},
      {"another stock", [&] { session.ReplaceStock({}); }, "c"},
      {"a thickness of another kind", [&] { session.AddToHistory(physical); }, ""},
      {"a point that there is not", [&] { EXPECT_FALSE(session.RemoveFromHistory(2)); }, ""},
      {"a point", [&] { EXPECT_TRUE(session.RemoveFromHistory(1)); }, "h"},
      {"a point of the history", [&] { session.AddToHistory(physical); }, "h"},
      {"the history", [&] { session.ClearHistory(); }, "h"},
      {"all slots", [&] { session.ClearSlots(); }, "A"},
      {"another session", [&] { session.Restore(empty); }, "brAch"},
  };
  for (const Case& c : cases) {
    heard.clear();
    c.change();
    EXPECT_EQ(heard, c.announced) << c.name;
  }
}

TEST_F(SessionTest, EachSampleIsFittedBeforeItIsAnnounced) {
  const auto constant = [](double n) { return Material{Flat(n), Flat(0.0)}; };
  FilmFitRequest request{{constant(1.5), {constant(1.6)}}, {{}, {{{}, {1900.0, 2100.0}}}, {}}};
  request.setting.options.bandwidthNm = 0.0;
  ReflectanceSpectrum coat;
  FilmModel(request.stack, 440, 840, 1, 0.0).Reflect({{2000.0}}, coat.Values());
  std::vector<double> heard;
  QObject::connect(&session, &Session::SlotChanged, [&](int slot) {
    heard.push_back(Slot(slot).fit ? Slot(slot).fit->layers.front().thicknessNm : 0.0);
  });
  Measure(1, coat);
  session.FitEachSample(request);
  Measure(2, coat);
  ASSERT_EQ(heard.size(), 2U);
  EXPECT_EQ(heard[0], 0.0);
  EXPECT_NEAR(heard[1], 2000.0, 0.01);
  ASSERT_EQ(session.State().thicknessHistory.count, 1);
  EXPECT_TRUE(session.State().thicknessHistory.notes[0].fitted);
  session.SetAutoThickness(true);
  session.ClearHistory();
  Measure(3, coat);
  const HistoryNote& beside = session.State().thicknessHistory.notes[0];
  EXPECT_FALSE(beside.fitted);
  EXPECT_EQ(beside.fitNm, 0.0) << "the thickness of the extrema is an optical one";
  ChangeSettings([](Settings& s) {
    s.thickness.kind = ThicknessKind::kPhysical;
    s.filmIndex = Flat(1.6);
  });
  session.ClearHistory();
  Measure(3, coat);
  EXPECT_NEAR(session.State().thicknessHistory.notes[0].fitNm, 2000.0, 0.01);

  Measure(2, Flat(4.0));
  EXPECT_EQ(Slot(2).fit->outcome, FitOutcome::kNone) << "of the new spectrum";
  const FilmStackSetting before = request.setting;
  request.setting.layers[0].range.toNm = 2200.0;
  session.FitEachSample(request);
  Measure(2, coat);
  EXPECT_EQ(Slot(2).fit->setting, request.setting);
  EXPECT_EQ(Slot(3).fit->setting, before) << "it tells that it was made of another request";
}

TEST_F(SessionTest, WhatDependsOnAChangeIsThereWhenItIsAnnounced) {
  ChangeSettings([](Settings& s) { s.standard.averageReflectance = {true, 5.0, 0.0}; });
  session.SetAutoThickness(true);
  session.SetAccumulating(true);
  int heard = 0;
  QObject::connect(&session, &Session::SlotChanged, [&](int slot) {
    ++heard;
    EXPECT_TRUE(Slot(slot).valid && Slot(slot).colour.IsComputed());
    EXPECT_TRUE(Slot(slot).thickness.IsComputed());
    EXPECT_EQ(Verdicts(Slot(slot)), "-y----");
    EXPECT_EQ(Slot(slot).info.measuredAt, now);
    EXPECT_EQ(session.State().extrema.count, Slot(slot).thickness.extrema.count);
    EXPECT_EQ(session.State().stock.Count, 1);
    EXPECT_FALSE(session.State().slotsSaved);
  });
  QObject::connect(&session, &Session::SampleStored,
                   [&] { EXPECT_EQ(session.State().thicknessHistory.count, 1); });
  QObject::connect(&session, &Session::StockChanged, [&] {
    EXPECT_EQ(Verdicts(Slot(7)), "-y----");
    EXPECT_EQ(Slot(7).info.measuredAt, now);
  });
  const SampleStorage stored = Measure(7, test::Fringes());
  EXPECT_EQ(heard, 1);
  EXPECT_EQ(stored.stock, StockAddResult::kStored);
  EXPECT_EQ(stored.thickness, kSuccess);
  EXPECT_EQ(stored.history, HistoryAddResult::kAdded);
  QObject::connect(&session, &Session::SettingsChanged, [&] {
    ++heard;
    EXPECT_EQ(Verdicts(Slot(7)), "-n----");
    EXPECT_EQ(session.State().stock.Count, 1) << "evaluating again accumulates nothing";
  });
  session.disconnect(SIGNAL(StockChanged()));
  ChangeSettings([](Settings& s) { s.standard.averageReflectance = {true, 1.0, 0.0}; });
  EXPECT_EQ(heard, 2);
}

TEST_F(SessionTest, ADarkSampleHasNothingOfTheOneBefore) {
  ChangeSettings([](Settings& s) {
    for (StandardLimits* limits : {&s.standard.averageReflectance, &s.standard.luminousReflectance,
                                   &s.standard.chroma, &s.standard.hueAngle}) {
      *limits = {true, 360.0, 0.0};
    }
  });
  session.SetAccumulating(true);
  session.SetAutoThickness(true);
  Measure(10, test::Fringes());
  EXPECT_EQ(Verdicts(Slot(10)), "-yy-yy");
  const SampleStorage dark = Measure(10, Flat(0.0));
  EXPECT_TRUE(Slot(10).valid);
  EXPECT_EQ(Slot(10).colour, ColourResult());
  EXPECT_EQ(Verdicts(Slot(10)), "-yn-nn") << "no colour meets no limit, though all begin at 0";
  EXPECT_FALSE(Slot(10).thickness.IsComputed());
  EXPECT_EQ(session.State().extrema.count, 0);
  EXPECT_EQ(session.State().stock.Count, 1) << "and has no place in a diagram";
  EXPECT_EQ(session.State().thicknessHistory.count, 1);
  EXPECT_FALSE(dark.stock);
  EXPECT_EQ(dark.thickness, kTooFewExtrema);
  EXPECT_FALSE(dark.history);
}

TEST_F(SessionTest, ASampleKeepsOnlyTheInformationThatWasTypedForIt) {
  const QString typed = QStringLiteral("B");
  struct Case {
    const char* name;
    std::function<void()> before;
    QString number;
  };
  const Case cases[] = {
      {"typed into an empty slot", [&] { TypeNumber(2, typed); }, typed},
      {"typed after the earlier measurement",
       [&] {
         Measure(2, Flat(4.0));
         TypeNumber(2, typed);
       },
       typed},
      {"typed before the earlier measurement",
       [&] {
         TypeNumber(2, typed);
         Measure(2, Flat(4.0));
       },
       QString()},
      {"read from a file",
       [&] {
         SlotTable slotTable;
         slotTable[1].valid = true;
         slotTable[1].info.sampleNumber = typed;
         (void)session.LoadSlots(slotTable, {}, {});
       },
       QString()},
      {"where only the date was typed since",
       [&] {
         TypeNumber(2, typed);
         Measure(2, Flat(4.0));
         auto infos = Infos();
         infos[1].measuredAt = now.addDays(-1);
         session.EditInformation(infos);
       },
       QString()},
  };
  for (const Case& c : cases) {
    session.ClearSlots();
    c.before();
    now = now.addSecs(60);
    Measure(2, Flat(4.0));
    EXPECT_EQ(Slot(2).info, (SampleInfo{c.number, {}, {}, now})) << c.name;
  }
}

TEST_F(SessionTest, PointsOfTwoConditionsAreNeverMixed) {
  const std::pair<const char*, std::function<void(Settings&)>> others[] = {
      {"illuminant", [](Settings& s) { s.colour.illuminant = 4; }},
      {"observer", [](Settings& s) { s.colour.observer2Deg = false; }},
      {"diagram", [](Settings& s) { s.display.xyMode = false; }},
  };
  const Settings before = session.SettingsInForce();
  for (const auto& [name, change] : others) {
    session.TakeSettings(before);
    session.RemoveAllColours();
    session.SetAccumulating(true);
    ChangeSettings(change);
    EXPECT_TRUE(session.State().accumulate) << name << ": no point yet";
    EXPECT_FALSE(session.State().stock.DiffersFrom(session.State().ColourConditions())) << name;
    Measure(1, Flat(4.0));
    const ColourStock taken = session.State().stock;
    ChangeSettings([](Settings& s) { s.display.fullScale = false; });
    EXPECT_TRUE(session.State().accumulate) << name << ": nothing of the colours has changed";

    session.TakeSettings(before);
    EXPECT_FALSE(session.State().accumulate) << name;
    Measure(1, Flat(5.0));
    EXPECT_EQ(session.State().stock, taken) << name;
    session.SetAccumulating(true);
    EXPECT_FALSE(session.State().accumulate) << name;

    session.RemoveAllColours();
    session.SetAccumulating(true);
    session.ReplaceStock(taken);
    EXPECT_FALSE(session.State().accumulate) << name << ": a stock of a file";
  }
}

TEST_F(SessionTest, AFullStockIsToldByEachSampleAndAllIsJudgedTheSame) {
  ChangeSettings([](Settings& s) { s.standard.averageReflectance = {true, 5.0, 0.0}; });
  session.SetAccumulating(true);
  for (int i = 1; i <= 101; ++i) {
    const SampleStorage stored = Measure(1, Flat(4.0));
    EXPECT_EQ(stored.stock, i < 100    ? StockAddResult::kStored
                            : i == 100 ? StockAddResult::kStoredLast
                                       : StockAddResult::kRefused)
        << i;
    EXPECT_EQ(Verdicts(Slot(1)), "-y----");
  }
}

}  // namespace
}  // namespace vexa
