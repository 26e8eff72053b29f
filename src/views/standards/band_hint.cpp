// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/standards/band_hint.h"

#include <algorithm>

#include "base/translation.h"
#include "standards/condition_caption.h"

namespace vexa {

QString BandHint(const StandardSet& standard) {
  const auto& conditions = standard.conditions;
  const auto isOn = [](const StandardLimits& limits) -> bool { return limits.enabled; };
  if (!standard.useReflectance) {
    return {};
  }
  if (!conditions[0].enabled) {
    return Text::tr("条件１が使用されていないため、反射率は判定されません。");
  }
  if (!conditions[1].enabled) {
    return std::any_of(conditions.begin() + 2, conditions.end(), isOn)
               ? Text::tr("条件２が使用されていないため、条件１の波長だけが判定されます。")
               : QString();
  }
  for (std::size_t k = 1; k < kConditionCount; ++k) {
    if (conditions[k].enabled && standard.wavelengths[k] < standard.wavelengths[k - 1]) {
      return Text::tr("%1の波長が%2より短いため、この区間は判定されません。")
          .arg(ConditionCaption(k), ConditionCaption(k - 1));
    }
  }
  for (std::size_t k = 1; k < kConditionCount; ++k) {
    if (conditions[k].enabled && !conditions[k - 1].enabled) {
      return Text::tr("%1の限界は、使用されていない%2の値から引かれます。")
          .arg(ConditionCaption(k), ConditionCaption(k - 1));
    }
  }
  return {};
}

}  // namespace vexa
