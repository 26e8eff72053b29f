// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/statistics/check_picture.h"

#include <cmath>

#include "base/date_text.h"
#include "base/translation.h"
#include "views/statistics/result_table.h"

namespace vexa {

XmrPicture CheckPicture(const DailyCheckHistory& history, const CheckConditions& conditions,
                        CheckValue value) {
  const auto index = static_cast<std::size_t>(value);
  XmrPicture picture;
  picture.title = CheckValueText(value, conditions);
  if (history.limits && history.limits->conditions == conditions) {
    picture.limits = history.limits->lines[index];
  }
  for (const auto& [check, judgement] : history.checks) {
    const double number = check.values[index];
    if (check.conditions != conditions || !std::isfinite(number)) {
      continue;
    }
    QString hint = DateTimeText(check.time) + u'\n' + ResultText(number);
    bool marked = false;
    if (picture.limits && check.time <= history.limits->frozenAt && !picture.limits->Hold(number)) {
      hint += u'\n' + Text::tr("限界を決める前の点が、限界の外にあります。");
      marked = true;
    }
    for (const CheckFinding& finding : judgement.findings) {
      if (finding.value == value) {
        hint += u'\n' + FindingText(finding, conditions);
        marked = true;
      }
    }
    picture.values.push_back(number);
    picture.hints.push_back(hint);
    if (marked) {
      picture.broken.push_back(picture.values.size());
    }
  }
  return picture;
}

}  // namespace vexa
