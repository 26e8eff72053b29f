// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>

namespace vexa {

/// The texts that a user reads, on every floor: `Text::tr("膜厚")` is the text in the language in
/// force. The source texts are Japanese and stand where they are used. A text that is kept for
/// later is marked with QT_TRANSLATE_NOOP("Text", ...) and translated when it is shown: nothing may
/// be translated before the program has chosen its language.
class Text {
  Q_DECLARE_TR_FUNCTIONS(Text)
};

}  // namespace vexa
