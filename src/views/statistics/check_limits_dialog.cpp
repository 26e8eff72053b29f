// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/statistics/check_limits_dialog.h"

#include <algorithm>

#include "base/translation.h"

namespace vexa {

CheckLimitsDialog::CheckLimitsDialog(const DailyCheckHistory& history,
                                     const CheckConditions& conditions, const QString& operatorName,
                                     QWidget* parent)
    : DecisionDialog(
          Text::tr("限界の決定"),
          Text::tr("異常でなかった点検から管理限界を決めます。次に決め直すまで変わりません。"
                   "ﾗﾝﾌﾟの交換や修理の後は、その日から後の点検だけを使ってください。"),
          operatorName, parent),
      history_(history),
      conditions_(conditions),
      since_(new QDateEdit),
      days_(new QLabel) {
  since_->setObjectName(QStringLiteral("LimitsSince"));
  since_->setLocale(QLocale::c());
  since_->setDisplayFormat(QStringLiteral("yyyy/MM/dd"));
  since_->setCalendarPopup(true);
  const std::vector<DailyCheck> usable = history.UsableChecks();
  const auto first = std::ranges::find(usable, conditions, &DailyCheck::conditions);
  since_->setDate(first != usable.end() ? first->time.date() : QDate(2000, 1, 1));
  days_->setObjectName(QStringLiteral("LimitsDays"));
  Form().insertRow(0, Text::tr("この日から"), since_);
  Form().insertRow(1, Text::tr("日数"), days_);
  connect(since_, &QDateEdit::dateChanged, this, &CheckLimitsDialog::CountDays);
  CountDays();
}

void CheckLimitsDialog::CountDays() {
  const int days = CountCheckDays(history_.UsableChecks(Since()), conditions_);
  days_->setText(days < kFewestCheckDays
                     ? Text::tr("%1 日 (%2 日必要です)").arg(days).arg(kFewestCheckDays)
                     : Text::tr("%1 日").arg(days));
  SetAcceptable(days >= kFewestCheckDays);
}

}  // namespace vexa
