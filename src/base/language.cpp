// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include "base/translation.h"

// A resource of a static library has to be asked for, outside any namespace.
static void LoadTranslations() {
  Q_INIT_RESOURCE(translations);
}

namespace vexa {

QString LanguageCode(Language language) {
  return language == Language::kEnglish ? QStringLiteral("en") : QStringLiteral("ja");
}

std::optional<Language> LanguageOf(const QString& code) {
  for (const Language language : {Language::kJapanese, Language::kEnglish}) {
    if (code == LanguageCode(language)) {
      return language;
    }
  }
  return std::nullopt;
}

void UseLanguage(Language language) {
  LoadTranslations();
  static QTranslator toolkit;
  static QTranslator translator;
  QCoreApplication::removeTranslator(&toolkit);
  QCoreApplication::removeTranslator(&translator);
  if (toolkit.load(QStringLiteral("qtbase_") + LanguageCode(language),
                   QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(&toolkit);
  }
  // The source texts are Japanese.
  if (language == Language::kEnglish &&
      translator.load(QStringLiteral(":/translations/vexa_en.qm"))) {
    QCoreApplication::installTranslator(&translator);
  }
}

LanguageRequest TakeLanguageRequest(QStringList& arguments) {
  const QString option = QStringLiteral("--language");
  LanguageRequest request;
  for (qsizetype i = 0; i < arguments.size() && arguments[i] != QLatin1String("--");) {
    if (arguments[i] != option && !arguments[i].startsWith(option + u'=')) {
      ++i;
      continue;
    }
    const QString word = arguments.takeAt(i);
    const QString code = word != option         ? word.sliced(option.size() + 1)
                         : i < arguments.size() ? arguments.takeAt(i)
                                                : QString();
    request.language = LanguageOf(code);
    if (!request.language) {
      request.fault = Text::tr("--language は ja または en です：\"%1\"").arg(code);
      return request;
    }
  }
  return request;
}

}  // namespace vexa
