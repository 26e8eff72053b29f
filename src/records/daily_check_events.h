// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <optional>
#include <vector>

#include "records/daily_check.h"
#include "records/record_store.h"

namespace vexa {

/// What a station has decided about its daily check.
struct CheckSettings {
  std::array<int, 3> wavelengthsNm = CheckConditions().wavelengthsNm;
  bool holdsVerdicts = true;  ///< a red check holds the verdicts of lots until it is released

  bool operator==(const CheckSettings&) const = default;
};

/// A check as it was kept, with what it came to then.
struct JudgedCheck {
  DailyCheck check;
  CheckJudgement judgement;
};

/// The verdicts of lots are held: since which check, and why.
struct VerdictHold {
  QString checkId;
  QDateTime since;
  CheckConditions conditions;
  std::vector<CheckFinding> findings;

  /// The reason in words, a line each rule that was broken.
  [[nodiscard]] QString Why() const;
};

/// All that the store of a station knows of its daily checks.
struct DailyCheckHistory {
  CheckSettings settings;              ///< in force
  std::vector<JudgedCheck> checks;     ///< the oldest first
  std::optional<CheckLimits> limits;   ///< in force
  std::optional<VerdictHold> hold;     ///< the newest check is red, holds, and was not released
  std::optional<EventRecord> release;  ///< of the newest check, when it was red

  [[nodiscard]] std::vector<DailyCheck> Checks() const;
  /// Those since a day that may set limits: red ones may not.
  [[nodiscard]] std::vector<DailyCheck> UsableChecks(const QDate& since = {}) const;
};

/// Reads the checks of a store: all are of the one instrument of its directory, whatever the
/// station was called. A store without any, or that is not there yet, has an empty history.
[[nodiscard]] Answer<DailyCheckHistory> LoadDailyChecks(const QString& storePath);

/// Whether the verdicts of lots are held now, and why.
[[nodiscard]] Answer<std::optional<VerdictHold>> FindVerdictHold(const QString& storePath);

/// Who decides what, when, and why.
struct Decision {
  QString station;
  QString operatorName;
  QString reason;
  QDateTime time;
};

/// The events that make the history: a check with its verdict; limits that hold from then on; the
/// release of a held verdict; other settings.
[[nodiscard]] EventRecord CheckEvent(const JudgedCheck& judged, const QString& station);
[[nodiscard]] EventRecord LimitsEvent(const CheckLimits& limits, const Decision& decision);
[[nodiscard]] EventRecord ReleaseEvent(const VerdictHold& hold, const Decision& decision);
[[nodiscard]] EventRecord SettingsEvent(const CheckSettings& settings, const Decision& decision);

/// The verdict on a sample is held, as long as nothing releases the check; its own row tells the
/// verdict itself.
[[nodiscard]] EventRecord HeldEvent(const VerdictHold& hold, const QString& sampleId,
                                    const Decision& decision);

/// Whether the check was released: what it holds is then held no more.
[[nodiscard]] Answer<bool> IsReleased(const QString& storePath, const QString& checkId);

/// Puts an event into the store; what it is then known by.
[[nodiscard]] Answer<QString> KeepEvent(const QString& storePath, const EventRecord& event);

}  // namespace vexa
