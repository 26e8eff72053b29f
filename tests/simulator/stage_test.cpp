// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/stage.h"

#include <gtest/gtest.h>

#include <QStringList>

#include "simulator/console.h"

namespace vexa::simulator {
namespace {

using namespace Qt::StringLiterals;

constexpr Milestone kDark = Milestone::DarkMeasured;
constexpr Milestone kMeasured = Milestone::LightMeasured;
constexpr Milestone kSent = Milestone::LightLinesSent;

class StageTest : public testing::Test {
 protected:
  Stage Make(std::optional<Sample> fixed) {
    return Stage(fixed, [this](Sample sample) { seen_ << QString(SampleName(sample)); });
  }

  QStringList seen_;
};

TEST_F(StageTest, UnattendedShowsAllInTurnAndTheReferenceAfterABackground) {
  Stage stage = Make({});
  EXPECT_EQ(stage.Current(), Sample::Reference);
  for (int lines = 0; lines < 11; ++lines) {
    stage.Reach(kMeasured);
    stage.Reach(kSent);
  }
  stage.Reach(kDark);
  stage.Reach(kDark);
  stage.Reach(kSent);
  EXPECT_EQ(seen_.join(u' '),
            u"glass mgf2 ar4 hardcoat1.5 hardcoat4 mirror "
            "primed2.5 thin0.15 bluecut glass mgf2 reference glass"_s);
}

QString Meaning(QStringView line) {
  const auto command = ParseConsoleLine(line);
  if (!command) {
    return u"unknown"_s;
  }
  if (const auto* put = std::get_if<PutOnStage>(&*command)) {
    return put->sample ? QString(SampleName(*put->sample)) : u"unattended"_s;
  }
  if (const auto* fault = std::get_if<Fault>(&*command)) {
    return u"%1 at %2"_s.arg(QString(AllFaults()[static_cast<std::size_t>(fault->kind)].name))
        .arg(fault->exchange);
  }
  if (const auto* wear = std::get_if<SetWear>(&*command)) {
    return u"%1: %2"_s.arg(QString(wear->kind->name)).arg(wear->amount);
  }
  return std::holds_alternative<NextSample>(*command) ? u"next"_s : u"quit"_s;
}

TEST(ConsoleLine, IsUnderstoodOrRefusedWhole) {
  const std::pair<QStringView, QStringView> cases[] = {
      {u"stage hardcoat1.5", u"hardcoat1.5"},
      {u"  stage \t ar4\r", u"ar4"},
      {u"stage auto", u"unattended"},
      {u"next", u"next"},
      {u"quit", u"quit"},
      {u"fault no-reply", u"no-reply at 1"},
      {u"fault late-bytes 12", u"late-bytes at 12"},
      {u"lamp-age 1500", u"lamp-age: 1500"},
      {u"shutter-leak 0.25", u"shutter-leak: 0.25"},
      {u"lamp-age", u"unknown"},
      {u"lamp-age -1", u"unknown"},
      {u"lamp-age nan", u"unknown"},
      {u"shutter-leak 101", u"unknown"},
      {u"", u"unknown"},
      {u"stage", u"unknown"},
      {u"stage Mirror", u"unknown"},
      {u"stage ar4 now", u"unknown"},
      {u"next 2", u"unknown"},
      {u"fault no-reply 0", u"unknown"},
      {u"fault no-reply x", u"unknown"},
      {u"fault none", u"unknown"},
      {u"ｑｕｉｔ", u"unknown"},
  };
  for (const auto& [line, meaning] : cases) {
    EXPECT_EQ(Meaning(line), meaning) << line.toString().toStdString();
  }
}

}  // namespace
}  // namespace vexa::simulator
