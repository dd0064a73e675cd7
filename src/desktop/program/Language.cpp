#include "desktop/program/Language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "desktop/forms/Words.h"
#include "lang/Lang.h"

namespace ostrel {

QString LanguageCode(const Lang& lang) {
  constexpr int kLastColumn = kLangColumns - 1;
  const int column = lang.SelectedLang();
  if (column <= kSpanishColumn) return "es";
  const QString name = column <= kLastColumn ? ToQt(lang.LangName(column)) : QString();
  const bool isSpanish =
      name.compare(QLocale(QLocale::Spanish).nativeLanguageName(), Qt::CaseInsensitive) == 0;
  return isSpanish ? "es" : "en";
}

void UseLanguage(const QString& code) {
  static QTranslator own;
  static QTranslator system;
  QCoreApplication::removeTranslator(&own);
  QCoreApplication::removeTranslator(&system);
  if (system.load("qtbase_" + code, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QCoreApplication::installTranslator(&system);
  if (own.load(":/i18n/ostrel-configurator_" + code)) QCoreApplication::installTranslator(&own);
}

}  // namespace ostrel
