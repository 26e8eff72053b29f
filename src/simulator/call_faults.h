// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringView>
#include <map>
#include <optional>
#include <vector>

namespace vexa::simulator {

enum class CallFaultKind {
  Number,         ///< the call does nothing and returns a number
  NoRequest,      ///< the service request of the box is lost
  ShortTransfer,  ///< the transfer lacks its last byte
  Hang            ///< the call does not come back
};

/// A fault of a call of the library U2GPLIB: it strikes once, at the call of that name with this
/// number, counted from 1.
struct CallFault {
  QString call;
  CallFaultKind kind = CallFaultKind::Number;
  int number = 0;
  int occurrence = 1;
};

/// A fault by its text "CALL=NUMBER", "gp_wsrq=none", "gp_tfrin=short" or "CALL=hang", with "@N"
/// for the N-th call; empty when it is none.
[[nodiscard]] std::optional<CallFault> MakeCallFault(QStringView text);

/// The faults to come, and the calls so far.
class CallFaultPlan {
 public:
  void Add(const CallFault& fault) { faults_.push_back(fault); }

  /// Counts the call and gives back the fault that strikes at it.
  [[nodiscard]] std::optional<CallFault> Strike(const QString& call);

 private:
  std::vector<CallFault> faults_;
  std::map<QString, int> calls_;
};

}  // namespace vexa::simulator
