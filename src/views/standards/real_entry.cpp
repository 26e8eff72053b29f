// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/standards/real_entry.h"

namespace vexa {
namespace {

constexpr int kWidth = 84;

}  // namespace

RealEntry::RealEntry(const QString& name, QWidget* parent)
    : NumberField(QStringLiteral("0.0########"), parent) {
  setObjectName(name);
  setFixedWidth(kWidth);
}

}  // namespace vexa
