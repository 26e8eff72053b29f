// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/place_choice.h"

#include "base/translation.h"

namespace vexa {

PlaceChoice::PlaceChoice(QWidget* parent) : QComboBox(parent) {
  setObjectName(QStringLiteral("Place"));
  addItem(Text::tr("この測定機"), static_cast<int>(RecordPlace::kStation));
  addItem(Text::tr("全測定機 (共有)"), static_cast<int>(RecordPlace::kShared));
}

RecordPlace PlaceChoice::Place() const {
  return static_cast<RecordPlace>(currentData().toInt());
}

}  // namespace vexa
