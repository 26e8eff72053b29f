// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/call_faults.h"

#include <algorithm>
#include <array>

namespace vexa::simulator {
namespace {

using namespace Qt::StringLiterals;

constexpr std::array kCalls = {"gp_init"_L1, "gp_delm"_L1, "gp_tmout"_L1, "gp_cli"_L1,
                               "gp_ren"_L1,  "gp_clr"_L1,  "gp_trg"_L1,   "gp_wsrq"_L1,
                               "gp_rds"_L1,  "gp_wrt"_L1,  "gp_tfrin"_L1};

}  // namespace

std::optional<CallFault> MakeCallFault(QStringView text) {
  const qsizetype equals = text.indexOf(u'=');
  const qsizetype at = text.indexOf(u'@');
  if (equals < 0 || (at >= 0 && at < equals)) {
    return std::nullopt;
  }
  CallFault fault{.call = text.first(equals).toString()};
  const QStringView what = text.sliced(equals + 1, (at < 0 ? text.size() : at) - equals - 1);
  bool isNumber = true;
  bool isOccurrence = true;
  if (at >= 0) {
    fault.occurrence = text.sliced(at + 1).toInt(&isOccurrence);
  }
  if (what == "none"_L1 && fault.call == "gp_wsrq"_L1) {
    fault.kind = CallFaultKind::NoRequest;
  } else if (what == "short"_L1 && fault.call == "gp_tfrin"_L1) {
    fault.kind = CallFaultKind::ShortTransfer;
  } else if (what == "hang"_L1) {
    fault.kind = CallFaultKind::Hang;
  } else {
    fault.number = what.toInt(&isNumber);
  }
  const bool known = std::ranges::find(kCalls, fault.call) != kCalls.end();
  return known && isNumber && isOccurrence && fault.occurrence >= 1 ? std::optional(fault)
                                                                    : std::nullopt;
}

std::optional<CallFault> CallFaultPlan::Strike(const QString& call) {
  const int occurrence = ++calls_[call];
  const auto found = std::ranges::find_if(faults_, [&](const CallFault& fault) {
    return fault.call == call && fault.occurrence == occurrence;
  });
  return found == faults_.end() ? std::nullopt : std::optional(*found);
}

}  // namespace vexa::simulator
