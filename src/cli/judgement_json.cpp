// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/judgement_json.h"

#include <QJsonArray>
#include <algorithm>

namespace vexa::cli {

QJsonObject JudgementJson(const Judgement& judgement) {
  QJsonArray panels;
  for (const QString& text : judgement.panelTexts) {
    panels.append(text);
  }
  return {{QStringLiteral("panels"), panels},
          {QStringLiteral("reflectance"), judgement.reflectancePassed}};
}

bool AnyNotGood(const VEXATYPE& state) {
  return std::ranges::any_of(state.measurementSlots, [](const MeasurementSlot& slot) {
    return slot.valid && std::ranges::any_of(slot.judgement.groups, [](const auto& group) {
             return group.passed && !*group.passed;
           });
  });
}

}  // namespace vexa::cli
