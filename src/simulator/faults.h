// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLatin1StringView>
#include <QStringView>
#include <array>
#include <chrono>
#include <optional>
#include <vector>

#include "simulator/reply.h"

namespace vexa::simulator {

/// What can go wrong, in the order in which several faults of one exchange are applied.
enum class FaultKind {
  ErrorReply,
  Unplug,
  Saturation,
  ShortLine,
  NoiseBefore,
  SplitTerminator,
  ByteByByte,
  LateBytes,
  NoReply
};

struct FaultInfo {
  FaultKind kind;
  QLatin1StringView name;  // as options and console lines write it
  QLatin1StringView description;
};

/// Every fault once, in the order of the enumeration.
[[nodiscard]] const std::array<FaultInfo, 9>& AllFaults();

/// A fault to come: it strikes once, at the first exchange numbered `exchange` or later to which
/// it can apply. Exchanges are the command frames received since the start, counted from 1.
struct Fault {
  FaultKind kind = FaultKind::NoReply;
  int exchange = 1;
  bool fromNow = false;  ///< `exchange` counts from when the fault is added instead
};

/// A fault by its name and the text of its exchange number: "7", "+7" from now on, empty for 1.
/// Empty when the name is unknown or the number is not one from 1 to 1000000.
[[nodiscard]] std::optional<Fault> MakeFault(QStringView name, QStringView exchange);

/// The faults that have not struck yet.
class FaultPlan {
 public:
  void Add(const Fault& fault) { faults_.push_back(fault); }

  /// Takes out, in order of application, the faults that strike at this exchange. Saturation and
  /// the short line wait for an exchange that sends lines.
  [[nodiscard]] std::vector<FaultKind> Strike(int exchange, bool sendsLines);

 private:
  std::vector<Fault> faults_;
};

/// The response as the fault leaves it. ErrorReply is not applied here: a command that is refused
/// must not be acted on in the first place. A transfer that the fault cuts short or keeps back has
/// no milestone any more.
[[nodiscard]] Response ApplyFault(FaultKind kind, Response response,
                                  std::chrono::milliseconds lateBy);

}  // namespace vexa::simulator
