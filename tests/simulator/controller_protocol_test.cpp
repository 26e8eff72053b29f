// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/controller_protocol.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace vexa::simulator {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

QByteArray Hex(const char* text) {
  return QByteArray::fromHex(text);
}

class ControllerProtocolTest : public testing::Test {
 protected:
  ControllerProtocol Make(const QStringList& faults = {}) {
    FaultPlan plan;
    for (const QString& text : faults) {
      const auto fault = MakeFault(text.section(u'@', 0, 0), text.section(u'@', 1));
      EXPECT_TRUE(fault) << text.toStdString();
      plan.Add(*fault);
    }
    return ControllerProtocol(
        [this](const Exposure& exposure, int count) {
          exposures_.push_back(exposure);
          std::vector<SensorLine> lines(static_cast<std::size_t>(count));
          for (std::size_t line = 0; line < lines.size(); ++line) {
            lines[line].fill(static_cast<std::uint16_t>(0x0A41 + line));
          }
          return lines;
        },
        plan, 700ms);
  }

  /// The response to one frame, its milestones reached at once unless `running`.
  static Response Ask(ControllerProtocol& protocol, const char* frame, bool running = false) {
    const auto responses = protocol.Receive(Hex(frame));
    EXPECT_EQ(responses.size(), 1U) << frame;
    for (const ReplyStep& step : responses.at(0).steps) {
      if (!running) {
        protocol.Reach(step.milestone);
      }
    }
    return responses.at(0);
  }

  static QByteArray Bytes(const Response& response) {
    QByteArray bytes;
    for (const ReplyStep& step : response.steps) {
      bytes += step.bytes;
    }
    return bytes;
  }

  std::vector<Exposure> exposures_;
};

TEST_F(ControllerProtocolTest, AnswersEachFrameByItsBytes) {
  const std::pair<const char*, const char*> cases[] = {
      {"E1000000", "CHARVEXA-KT H8 1.00REQEND"},
      {"96009100", "CHAROKREQEND"},
      {"96FFFF03", "CHAROKREQEND"},
      {"96000000", "CHARBAD TIMEREQERR"},
      {"96009104", "CHARBAD TIMEREQERR"},
      {"87FF0000", "CHAROKREQEND"},
      {"87000000", "CHAROKREQEND"},
      {"87010000", "CHARBAD SWITCHREQERR"},
      {"A5090000", "CHAROKREQEND"},
      {"B4000100", "CHARNO LINESREQERR"},  // nothing measured yet
      {"C3000100", "CHARBAD COUNTREQERR"},
      {"C3100100", "CHARBAD COUNTREQERR"},
      {"C3020100", "CHARENDREQEND"},
      {"B4000300", "CHARNO LINESREQERR"},  // only two measured
      {"B4000000", "CHARNO LINESREQERR"},
      {"69000000", "CHARQUITREQEND"},
      {"00000000", "CHARBAD COMMANDREQERR"},
      {"52455145", "CHARBAD COMMANDREQERR"},
  };
  ControllerProtocol protocol = Make();
  for (const auto& [frame, reply] : cases) {
    EXPECT_EQ(Bytes(Ask(protocol, frame)), reply) << frame;
  }
}

TEST_F(ControllerProtocolTest, SendsTheFirstLinesLowByteFirst) {
  ControllerProtocol protocol = Make();
  EXPECT_EQ(Bytes(Ask(protocol, "C30F0100")), "CHARENDREQEND");
  EXPECT_EQ(Bytes(Ask(protocol, "B4000200")),
            "DATA" + Hex("410A").repeated(512) + Hex("420A").repeated(512) + "DATEND");
  EXPECT_EQ(Bytes(Ask(protocol, "B4000F00")).size(), 4 + 15 * 1024 + 6);
}

TEST_F(ControllerProtocolTest, ActsOnAFrameOnceItsFourthByteIsIn) {
  ControllerProtocol protocol = Make();
  EXPECT_TRUE(protocol.Receive(Hex("6900")).empty());
  EXPECT_TRUE(protocol.Receive(Hex("00")).empty());
  EXPECT_EQ(protocol.Receive(Hex("0069000000A5")).size(), 2U);
  protocol.ForgetPartialFrame();
  EXPECT_EQ(Bytes(Ask(protocol, "69000000")), "CHARQUITREQEND");
}

TEST_F(ControllerProtocolTest, ExposesAsTheSamplingFrameAndThePortBitsSay) {
  const struct {
    const char* sampling;
    double integrationMs;
    const char* portBits;
    bool lightClosed;
    bool eyepieceOpen;
  } cases[] = {
      {"96009100", 30, "A5020000", false, false},      // 146 x 2050 / 10000 = 29.93
      {"96392900", 3000, "A5010000", true, false},     // 14634 x 2050 / 10000 = 2999.97
      {"96BE8B01", 20000, "A50A0000", false, true},    // 48780 x 2050 / 5000 = 19999.8
      {"9603E702", 820, "A5090000", true, true},       // 1000 x 2050 / 2500
      {"96FFFF03", 107479, "A5000000", false, false},  // 65536 x 2050 / 1250 = 107479.04
  };
  ControllerProtocol protocol = Make();
  for (const auto& c : cases) {
    Ask(protocol, c.sampling);
    Ask(protocol, c.portBits);
    const Response response = Ask(protocol, "C3030100");
    EXPECT_EQ(exposures_.back().integrationMs, c.integrationMs) << c.sampling;
    EXPECT_EQ(exposures_.back().lightShutterClosed, c.lightClosed) << c.portBits;
    EXPECT_EQ(exposures_.back().eyepieceShutterOpen, c.eyepieceOpen) << c.portBits;
    EXPECT_EQ(response.steps.front().exposure.count(), 3 * c.integrationMs);
    EXPECT_EQ(response.steps.front().milestone,
              c.lightClosed ? Milestone::DarkMeasured : Milestone::LightMeasured);
    EXPECT_EQ(Ask(protocol, "B4000100").steps.back().milestone,
              c.lightClosed ? Milestone::None : Milestone::LightLinesSent);
  }
}

TEST_F(ControllerProtocolTest, QuitEndsOnlyARunningMeasurement) {
  ControllerProtocol protocol = Make();
  Ask(protocol, "C3010100", true);
  EXPECT_TRUE(Ask(protocol, "69000000").dropsPending);
  EXPECT_EQ(Bytes(Ask(protocol, "B4000100")), "CHARNO LINESREQERR");
  Ask(protocol, "C3010100");
  EXPECT_FALSE(Ask(protocol, "69000000").dropsPending);
  EXPECT_EQ(Bytes(Ask(protocol, "B4000100")).size(), 1034);
}

TEST_F(ControllerProtocolTest, InitialiseGoesBackToPowerOn) {
  ControllerProtocol protocol = Make();
  for (const char* frame : {"96392900", "A50A0000", "C3010100"}) {
    Ask(protocol, frame);
  }
  EXPECT_TRUE(Ask(protocol, "E1000000").dropsPending);
  EXPECT_EQ(Bytes(Ask(protocol, "B4000100")), "CHARNO LINESREQERR");
  Ask(protocol, "C3010100");
  EXPECT_EQ(exposures_.back().integrationMs, 30);
  EXPECT_TRUE(exposures_.back().lightShutterClosed);
  EXPECT_FALSE(exposures_.back().eyepieceShutterOpen);
}

/// A response as text: "[+pause] bytes" a step, joined by "|", long line data shortened; ">" at the
/// end where the stage then moves on.
std::string Shown(const Response& response) {
  if (response.unplugs) {
    return "unplugged";
  }
  QStringList steps;
  for (const ReplyStep& step : response.steps) {
    QByteArray bytes = step.bytes;
    bytes.replace(Hex("410A").repeated(511) + 'A', "<line-1>");
    bytes.replace("<line-1>\n", "<line>");
    bytes.replace(Hex("FF0F").repeated(512), "<full>");
    bytes.replace(Hex("00FF7E1B80"), "<noise>");
    const QString pause = step.pause > 0ms ? u"+%1 "_s.arg(step.pause.count()) : QString();
    steps << pause + QString::fromLatin1(bytes);
  }
  const bool moves =
      !response.steps.empty() && response.steps.back().milestone == Milestone::LightLinesSent;
  return (steps.join(u'|') + (moves ? u">"_s : QString())).toStdString();
}

TEST_F(ControllerProtocolTest, EachFaultSpoilsItsReplyOnce) {
  // Frames 1 to 3 of a measurement, and a second transfer as frame 4.
  const std::string shut = "CHAROKREQEND";
  const std::string end = "CHARENDREQEND";
  const std::string data = "DATA<line>DATEND>";
  const std::string dark = "DATA<line>DATEND";
  const struct {
    QStringView fault;
    std::array<std::string, 4> replies;
  } cases[] = {
      {u"no-reply", {"", end, data, data}},
      {u"no-reply@3", {shut, end, "", data}},
      {u"error-reply@1", {"CHARREFUSEDREQERR", end, dark, dark}},
      {u"error-reply@2", {shut, "CHARREFUSEDREQERR", "CHARNO LINESREQERR", "CHARNO LINESREQERR"}},
      {u"error-reply@3", {shut, end, "CHARREFUSEDREQERR", data}},
      {u"short-line", {shut, end, "DATA<line-1>DATEND", data}},
      {u"short-line@4", {shut, end, data, "DATA<line-1>DATEND"}},
      {u"saturation", {shut, end, "DATA<full>DATEND>", data}},
      {u"late-bytes@2", {shut, "+700 " + end, data, data}},
      {u"late-bytes@3", {shut, end, "+700 " + data, data}},
      {u"split-terminator@2", {shut, "CHARENDREQ|+50 END", data, data}},
      {u"split-terminator@3", {shut, end, "DATA<line>DAT|+50 END>", data}},
      {u"noise-before@3", {shut, end, "<noise>" + data, data}},
      {u"byte-by-byte@1",
       {"C|+2 H|+2 A|+2 R|+2 O|+2 K|+2 R|+2 E|+2 Q|+2 E|+2 N|+2 D", end, data, data}},
      {u"unplug@2", {shut, "unplugged", "CHARNO LINESREQERR", "CHARNO LINESREQERR"}},
      {u"unplug@3", {shut, end, "unplugged", "CHARNO LINESREQERR"}},
  };
  for (const auto& c : cases) {
    ControllerProtocol protocol = Make({c.fault.toString()});
    std::size_t exchange = 0;
    for (const char* frame : {"A5020000", "C3010100", "B4000100", "B4000100"}) {
      EXPECT_EQ(Shown(Ask(protocol, frame)), c.replies[exchange++])
          << c.fault.toString().toStdString() << ", frame " << exchange;
    }
  }
}

TEST_F(ControllerProtocolTest, FaultsOfOneExchangeAddUp) {
  ControllerProtocol protocol =
      Make({u"late-bytes"_s, u"split-terminator"_s, u"noise-before"_s, u"short-line"_s});
  EXPECT_EQ(Shown(Ask(protocol, "69000000")), "+700 <noise>CHARQUITREQ|+50 END");
  Ask(protocol, "C3010100");
  EXPECT_EQ(Shown(Ask(protocol, "B4000100")), "DATA<line-1>DATEND");
}

TEST_F(ControllerProtocolTest, AMeasurementWithoutReplyStillEnds) {
  ControllerProtocol protocol = Make({u"no-reply@1"_s, u"byte-by-byte@1"_s});
  EXPECT_EQ(Bytes(Ask(protocol, "C3010100")), "");
  EXPECT_FALSE(Ask(protocol, "69000000").dropsPending);
  EXPECT_EQ(Bytes(Ask(protocol, "B4000100")).size(), 1034);
}

}  // namespace
}  // namespace vexa::simulator
