// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <cstdint>
#include <optional>

namespace vexa {

/// A language of the texts that a user reads. Files and numbers are the same in all.
enum class Language : std::uint8_t { kJapanese, kEnglish };

/// "ja" or "en".
[[nodiscard]] QString LanguageCode(Language language);

/// The language of a code; none of another text.
[[nodiscard]] std::optional<Language> LanguageOf(const QString& code);

/// Puts the texts into a language from now on: to be called before the first of them is shown.
void UseLanguage(Language language);

/// What "--language CODE" (or "--language=CODE") among the arguments asks for.
struct LanguageRequest {
  std::optional<Language> language;
  QString fault;  ///< what is wrong with it, in English; empty when nothing is
};

/// Takes the request out of the arguments: the language has to be known before they are parsed,
/// since the help is a text, too.
[[nodiscard]] LanguageRequest TakeLanguageRequest(QStringList& arguments);

}  // namespace vexa
