// SPDX-License-Identifier: GPL-3.0-or-later
#include "measurement/measurement_sequence.h"

#include <gtest/gtest.h>

#include <QTimer>
#include <algorithm>
#include <functional>
#include <stdexcept>

#include "measurement/evaluation.h"
#include "support/slots.h"
#include "support/waiting.h"

namespace vexa {
namespace {

using test::Done;
using test::Flat;

// Answers an acquisition with what a test prepared; other things may happen while it lasts.
class PreparedController : public Controller {
 public:
  QCoro::Task<Status> Initialise(std::int16_t /*port*/) override { co_return kSuccess; }
  QCoro::Task<Status> SetSampling(Sampling /*sampling*/) override { co_return kSuccess; }
  QCoro::Task<Acquisition> Acquire(LightFlag light, AcquisitionSettings settings) override {
    asked = {light, settings.sampling};
    cancelled_ = false;
    co_await QCoro::sleepFor(std::chrono::milliseconds(0));
    if (meanwhile) {
      meanwhile();
    }
    Acquisition ended = next;
    ended.status = cancelled_ ? kCancelled : next.status;
    co_return ended;
  }
  void Cancel() override { cancelled_ = true; }
  void Close() override {}
  [[nodiscard]] QString FailureDetails() const override { return QStringLiteral("no cable"); }
  [[nodiscard]] std::optional<MessageCall> FailureMessage() const override { return own; }
  [[nodiscard]] bool IsLightPathClosed() const override { return false; }

  Acquisition next{kSuccess, {}};
  std::optional<MessageCall> own;
  std::function<void()> meanwhile;
  std::pair<LightFlag, Sampling> asked{};

 private:
  bool cancelled_ = false;
};

class Sequence : public testing::Test {
 protected:
  Sequence() {
    sequence.UseController(&controller);
    Settings settings = session.SettingsInForce();
    settings.instrument.samplingTimeMs = 400;
    settings.instrument.averagingCount = 2;
    settings.referenceReflectance = Flat(4.0);
    settings.thickness.enabled = true;
    settings.thickness.type = ThicknessType::kB;
    settings.thickness.kind = ThicknessKind::kOptical;
    session.TakeSettings(settings);
  }

  // Each frame has its own counts: the background none, reference and sample `counts`.
  void MeasureFrames() {
    ASSERT_TRUE(Done(sequence.MeasureBackground()).IsDone());
    controller.next.counts = CountsOf(Flat(1.0));
    ASSERT_TRUE(Done(sequence.MeasureReference()).IsDone());
  }

  static RawSpectrum CountsOf(const ReflectanceSpectrum& values) {
    RawSpectrum counts;
    for (int nm = RawSpectrum::kFirstNm; nm <= RawSpectrum::kLastNm; ++nm) {
      counts[nm] = 100.0 * values[std::min(nm, ReflectanceSpectrum::kLastNm)];
    }
    return counts;
  }

  static std::vector<Message> Told(const MeasurementOutcome& outcome) {
    std::vector<Message> ids;
    for (const MessageCall& call : outcome.messages) {
      ids.push_back(call.id);
    }
    return ids;
  }

  QDateTime now{QDate(2026, 3, 9), QTime(7, 5, 3)};
  Session session{QStringLiteral("/nowhere"), [this] { return now; }};
  PreparedController controller;
  MeasurementSequence sequence{session};
};

TEST_F(Sequence, RefusesWhatCannotBeMeasuredYet) {
  int begun = 0;
  QObject::connect(&sequence, &MeasurementSequence::Began, [&] { ++begun; });
  const auto refusal = [&](QCoro::Task<MeasurementOutcome> task) {
    const MeasurementOutcome outcome = Done(std::move(task));
    EXPECT_FALSE(outcome.status);
    return Told(outcome);
  };
  using Messages = std::vector<Message>;
  EXPECT_EQ(refusal(sequence.MeasureReference()), Messages{Message::kMeasureBackground});
  EXPECT_EQ(refusal(sequence.MeasureSample(1)), Messages{Message::kMeasureBackground});
  session.StoreFrame(FrameKind::kBackground, {}, {});
  EXPECT_EQ(refusal(sequence.MeasureSample(1)), Messages{Message::kMeasureReference});
  session.StoreFrame(FrameKind::kReference, {}, {});
  EXPECT_EQ(refusal(sequence.MeasureSample(0)), Messages());
  EXPECT_EQ(refusal(sequence.MeasureSample(11)), Messages());
  Settings settings = session.SettingsInForce();
  settings.referenceReflectance = {};
  session.TakeSettings(settings);
  EXPECT_EQ(refusal(sequence.MeasureSample(1)), Messages{Message::kIndexFileFault});
  sequence.UseController(nullptr);
  EXPECT_EQ(refusal(sequence.MeasureBackground()), Messages{Message::kControllerMissing});
  sequence.Cancel();
  EXPECT_EQ(begun, 0);
}

TEST_F(Sequence, WhateverFailsIsToldAndLeavesTheSessionAsItWas) {
  MeasureFrames();
  ASSERT_TRUE(Done(sequence.MeasureSample(10)).IsDone());
  const RawSpectrum reference = session.State().reference;
  const QDateTime before = now;
  struct Case {
    const char* name;
    Status status;
    std::optional<MessageCall> own;
    std::vector<Message> told;
  };
  using enum Message;
  const Case cases[] = {
      {"saturated", 1, {}, {kSaturated}},
      {"no reply", -15, {}, {kAcquisitionFailed}},
      {"with the controller's own message",
       -500,
       MessageCall{kGpibDevice},
       {kGpibDevice, kAcquisitionFailed}},
      {"cancelled", Controller::kCancelled, MessageCall{kGpibDevice}, {}},
  };
  int announced = 0;
  for (auto changed : {&Session::SlotChanged, &Session::SampleStored}) {
    QObject::connect(&session, changed, [&] { ++announced; });
  }
  QObject::connect(&session, &Session::FrameChanged, [&] { ++announced; });
  for (const Case& c : cases) {
    now = now.addSecs(1);
    controller.next = {c.status, CountsOf(Flat(40.0))};
    controller.own = c.own;
    for (const int slot : {0, 10}) {
      const MeasurementOutcome outcome =
          Done(slot == 0 ? sequence.MeasureReference() : sequence.MeasureSample(slot));
      EXPECT_EQ(outcome.status, c.status) << c.name;
      EXPECT_EQ(Told(outcome), c.told) << c.name;
      if (!c.told.empty() && c.told.back() == kAcquisitionFailed) {
        EXPECT_EQ(outcome.messages.back().details, QStringLiteral("no cable"));
      }
      EXPECT_FALSE(sequence.IsRunning());
    }
  }
  controller.meanwhile = [] { throw std::runtime_error("out of memory"); };
  EXPECT_EQ(Told(Done(sequence.MeasureSample(10))), std::vector{kUnexpectedFault});
  EXPECT_FALSE(sequence.IsRunning());
  EXPECT_EQ(announced, 0);
  EXPECT_EQ(session.State().reference, reference);
  EXPECT_EQ(session.State().Slot(10)->info.measuredAt, before);
}

TEST_F(Sequence, AnOddFrameIsToldAndTakenAllTheSame) {
  MeasureFrames();
  const RawSpectrum light = CountsOf(Flat(0.5));
  using enum Message;
  const struct {
    const char* name;
    Acquisition frame;
    std::vector<Message> told;
  } cases[] = {
      {"as it should be", {kSuccess, light, 2}, {}},
      {"from a controller that sends the mean", {kSuccess, light, 0}, {}},
      {"a dead detector", {kSuccess, {}, 2}, {kNoLight}},
      {"one line of two", {kSuccess, light, 1}, {kLinesMissing}},
  };
  for (const auto& c : cases) {
    controller.next = c.frame;
    const MeasurementOutcome outcome = Done(sequence.MeasureSample(1));
    EXPECT_EQ(Told(outcome), c.told) << c.name;
    EXPECT_EQ(session.State().sample, c.frame.counts) << c.name;
  }
}

TEST_F(Sequence, OneRunsAtATimeAndCanBeCancelled) {
  std::string heard;
  QObject::connect(&sequence, &MeasurementSequence::Began,
                   [&](MeasurementKind, int slot) { heard += 'b' + std::to_string(slot); });
  QObject::connect(&sequence, &MeasurementSequence::Ended,
                   [&](MeasurementKind, int slot) { heard += 'e' + std::to_string(slot); });
  controller.meanwhile = [&] {
    EXPECT_TRUE(sequence.IsRunning());
    const MeasurementOutcome second = Done(sequence.MeasureBackground());
    EXPECT_FALSE(second.status);
    EXPECT_TRUE(second.messages.empty());
  };
  MeasureFrames();
  controller.meanwhile = [&] { sequence.Cancel(); };
  EXPECT_EQ(Done(sequence.MeasureSample(4)).status, Controller::kCancelled);
  EXPECT_FALSE(session.State().Slot(4)->valid);
  EXPECT_EQ(heard, "b0e0b0e0b4e4");
}

TEST_F(Sequence, AFrameCarriesTheSettingsItWasTakenWith) {
  controller.meanwhile = [&] {
    now = now.addSecs(3);
    Settings settings = session.SettingsInForce();
    settings.instrument.samplingTimeMs = 5000;
    settings.instrument.averagingCount = 16;
    session.TakeSettings(settings);
  };
  const QDateTime end = now.addSecs(3);
  ASSERT_TRUE(Done(sequence.MeasureBackground()).IsDone());
  EXPECT_EQ(controller.asked, std::pair(LightFlag::kBackground, Sampling{400, 2}));
  const FrameConditions& background = session.State().backgroundTaken;
  EXPECT_EQ(background.samplingTimeMs, 400);
  EXPECT_EQ(background.averagingCount, 2);
  EXPECT_EQ(background.takenAt, end);
  controller.meanwhile = {};
  ASSERT_TRUE(Done(sequence.MeasureReference()).IsDone());
  EXPECT_EQ(controller.asked, std::pair(LightFlag::kSample, Sampling{5000, 16}));
  EXPECT_EQ(session.State().referenceTaken.averagingCount, 16);
}

TEST_F(Sequence, ASampleIsComputedWithWhatWasInForceWhenItBegan) {
  Settings settings = session.SettingsInForce();
  settings.referenceSetting.fixedValue = 4.0;
  session.TakeSettings(settings);
  MeasureFrames();
  // Twice the light at the shift in force, ten times it at the other.
  controller.next.counts = CountsOf(Flat(2.0));
  controller.next.counts[444] = 200.0;
  controller.next.counts[447] = 1000.0;
  controller.meanwhile = [&] {
    settings.instrument.calibrationShiftNm = 7;
    settings.referenceReflectance = Flat(100.0);
    settings.referenceSetting.fixedValue = 100.0;
    settings.colour.illuminant = 1;
    session.TakeSettings(settings);
  };
  ASSERT_TRUE(Done(sequence.MeasureSample(1)).IsDone());
  const MeasurementSlot& slot = *session.State().Slot(1);
  EXPECT_DOUBLE_EQ(slot.reflectance[440], 8.0);
  ASSERT_TRUE(slot.taken);
  EXPECT_EQ(slot.taken->frame.calibrationShiftNm, 4);
  EXPECT_EQ(slot.taken->frame.samplingTimeMs, 400);
  EXPECT_EQ(slot.taken->reference.fixedValue, 4.0);
  MeasurementSlot evaluated = slot;
  ComputeColours(settings.colour, evaluated);
  EXPECT_EQ(slot.colour.x, evaluated.colour.x) << "as every slot is shown";
}

TEST_F(Sequence, ASampleWhoseFitIsGivenUpIsStoredWithoutIt) {
  const auto constant = [](double n) { return Material{Flat(n), Flat(0.0)}; };
  const FilmStack stack{constant(1.5), {constant(1.7), constant(1.4), constant(1.9)}};
  const FilmFitRequest request{stack, {{}, {{}, {}, {}}, {}}};
  session.FitEachSample(request);
  MeasureFrames();
  controller.next.counts = CountsOf(test::Fringes());
  controller.meanwhile = [&] { QTimer::singleShot(0, &sequence, &MeasurementSequence::Cancel); };
  EXPECT_TRUE(Done(sequence.MeasureSample(4)).IsDone());
  EXPECT_TRUE(session.State().Slot(4)->valid);
  EXPECT_FALSE(session.State().Slot(4)->fit);
}

TEST_F(Sequence, AHistoryThatTakesNothingMoreIsToldOnce) {
  MeasureFrames();
  session.SetAutoThickness(true);
  controller.next.counts = CountsOf(test::Fringes());
  const HistoryPoint optical{1500.0, false};
  while (session.AddToHistory(optical) == HistoryAddResult::kAdded) {
  }
  const auto told = [&](int slot) { return Told(Done(sequence.MeasureSample(slot))); };
  using Messages = std::vector<Message>;
  EXPECT_EQ(told(1), Messages{Message::kHistoryFull});
  EXPECT_EQ(told(2), Messages());
  ASSERT_TRUE(session.RemoveFromHistory(1));
  EXPECT_EQ(told(3), Messages()) << "there is room again";
  EXPECT_EQ(told(4), Messages{Message::kHistoryFull});
  session.ClearHistory();
  (void)session.AddToHistory({1500.0, true});
  EXPECT_EQ(told(5), Messages{Message::kHistoryKindDiffers});
  EXPECT_EQ(told(6), Messages());
  controller.next.counts = CountsOf(Flat(4.0));
  EXPECT_EQ(told(7).size(), 1U) << "a thickness that fails is told each time";
  EXPECT_EQ(told(7).size(), 1U);
}

TEST_F(Sequence, AnIndexThatIsNotLoadedIsTold) {
  MeasureFrames();
  Settings settings = session.SettingsInForce();
  settings.thickness.kind = ThicknessKind::kPhysical;
  settings.filmIndex = {};
  session.TakeSettings(settings);
  session.SetAutoThickness(true);
  controller.next.counts = CountsOf(test::Fringes());
  const MeasurementOutcome outcome = Done(sequence.MeasureSample(1));
  EXPECT_TRUE(outcome.IsDone());
  EXPECT_EQ(outcome.messages,
            std::vector{MessageCall(Message::kIndexFileFault, {QStringLiteral("ｲﾝﾃﾞｯｸｽ\r")})});
  EXPECT_TRUE(session.State().Slot(1)->valid);
}

}  // namespace
}  // namespace vexa
