// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>

#include "records/record_reader.h"

namespace vexa {

/// The choice of the store in which records are looked for.
class PlaceChoice : public QComboBox {
  Q_OBJECT

 public:
  explicit PlaceChoice(QWidget* parent = nullptr);

  [[nodiscard]] RecordPlace Place() const;
};

}  // namespace vexa
