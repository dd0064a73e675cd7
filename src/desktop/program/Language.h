#pragma once

#include <QString>

namespace ostrel {

class Lang;

/// The window's language that goes with the language in use: "es" for the keys' own, else by the
/// name of the language in the table, "en" where the window has no words of it.
QString LanguageCode(const Lang& lang);

/// Makes the window's own words, and those of the window system, speak a language from now on.
void UseLanguage(const QString& code);

}  // namespace ostrel
