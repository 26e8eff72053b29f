// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/faults.h"

#include <algorithm>
#include <utility>

namespace vexa::simulator {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

constexpr qsizetype kTerminatorLength = 6;
constexpr qsizetype kHeaderLength = 4;
constexpr int kLastExchange = 1'000'000;
constexpr auto kBetweenBytes = 2ms;
constexpr auto kInsideTerminator = 50ms;

bool NeedsLines(FaultKind kind) {
  return kind == FaultKind::Saturation || kind == FaultKind::ShortLine;
}

void KeepBack(ReplyStep& step) {
  step.bytes.clear();
  if (step.milestone == Milestone::LightLinesSent) {
    step.milestone = Milestone::None;
  }
}

void Saturate(ReplyStep& step) {
  for (qsizetype at = kHeaderLength; at + 1 < step.bytes.size() - kTerminatorLength; at += 2) {
    step.bytes[at] = '\xFF';
    step.bytes[at + 1] = '\x0F';
  }
}

/// The step as two: all but the last `count` bytes, and those after a pause.
std::vector<ReplyStep> SplitOff(const ReplyStep& step, qsizetype count,
                                std::chrono::milliseconds pause) {
  ReplyStep first = step;
  first.bytes.chop(count);
  first.milestone = Milestone::None;
  return {first, {step.bytes.last(count), 0ms, pause, step.milestone}};
}

std::vector<ReplyStep> SplitBytes(const ReplyStep& step) {
  std::vector<ReplyStep> parts;
  for (const char byte : step.bytes) {
    parts.push_back({QByteArray(1, byte), 0ms, kBetweenBytes, Milestone::None});
  }
  parts.front().exposure = step.exposure;
  parts.front().pause = step.pause;
  parts.back().milestone = step.milestone;
  return parts;
}

}  // namespace

const std::array<FaultInfo, 9>& AllFaults() {
  static constexpr std::array<FaultInfo, 9> kFaults = {{
      {FaultKind::ErrorReply, "error-reply"_L1, "the command is refused with REQERR"_L1},
      {FaultKind::Unplug, "unplug"_L1, "the port and its link go away"_L1},
      {FaultKind::Saturation, "saturation"_L1, "every pixel of the next lines sent is 4095"_L1},
      {FaultKind::ShortLine, "short-line"_L1, "the next lines sent lack their last byte"_L1},
      {FaultKind::NoiseBefore, "noise-before"_L1, "five stray bytes come before the reply"_L1},
      {FaultKind::SplitTerminator, "split-terminator"_L1,
       "50 ms pass between the two halves of the terminator"_L1},
      {FaultKind::ByteByByte, "byte-by-byte"_L1, "every byte comes alone, 2 ms apart"_L1},
      {FaultKind::LateBytes, "late-bytes"_L1, "the reply comes later by --late"_L1},
      {FaultKind::NoReply, "no-reply"_L1, "the command is acted on, nothing is sent"_L1},
  }};
  return kFaults;
}

std::optional<Fault> MakeFault(QStringView name, QStringView exchange) {
  const auto& all = AllFaults();
  const auto found =
      std::ranges::find_if(all, [name](const auto& info) { return name == info.name; });
  bool isNumber = true;
  const int number = exchange.isEmpty() ? 1 : exchange.toInt(&isNumber);
  if (found == all.end() || !isNumber || number < 1 || number > kLastExchange) {
    return std::nullopt;
  }
  return Fault{found->kind, number, exchange.startsWith(u'+')};
}

std::vector<FaultKind> FaultPlan::Strike(int exchange, bool sendsLines) {
  std::vector<FaultKind> struck;
  std::erase_if(faults_, [&](const Fault& fault) {
    if (exchange < fault.exchange || (NeedsLines(fault.kind) && !sendsLines)) {
      return false;
    }
    struck.push_back(fault.kind);
    return true;
  });
  std::ranges::sort(struck);
  return struck;
}

Response ApplyFault(FaultKind kind, Response response, std::chrono::milliseconds lateBy) {
  if (kind == FaultKind::Unplug) {
    return {.dropsPending = true, .unplugs = true, .steps = {}};
  }
  if (response.steps.empty()) {
    return response;
  }
  ReplyStep& first = response.steps.front();
  ReplyStep& last = response.steps.back();
  switch (kind) {
    case FaultKind::ErrorReply:
    case FaultKind::Unplug:
      break;
    case FaultKind::Saturation:
      Saturate(first);
      break;
    case FaultKind::ShortLine:
      first.bytes.remove(first.bytes.size() - kTerminatorLength - 1, 1);
      first.milestone = Milestone::None;
      break;
    case FaultKind::NoiseBefore:
      first.bytes.prepend("\x00\xFF\x7E\x1B\x80", 5);
      break;
    case FaultKind::SplitTerminator: {
      const auto parts = SplitOff(last, kTerminatorLength / 2, kInsideTerminator);
      response.steps.pop_back();
      response.steps.insert(response.steps.end(), parts.begin(), parts.end());
      break;
    }
    case FaultKind::ByteByByte: {
      std::vector<ReplyStep> singles;
      for (const ReplyStep& step : response.steps) {
        const auto parts = SplitBytes(step);
        singles.insert(singles.end(), parts.begin(), parts.end());
      }
      response.steps = std::move(singles);
      break;
    }
    case FaultKind::LateBytes:
      first.pause += lateBy;
      break;
    case FaultKind::NoReply:
      std::ranges::for_each(response.steps, KeepBack);
      break;
  }
  return response;
}

}  // namespace vexa::simulator
