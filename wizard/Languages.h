// What the wizard knows of a language, by its locale identifier.
#pragma once

#include <string>
#include <vector>

#include "Qbt/LanguageCaptions.h"

// Whether it names a language that the operating system knows.
bool IsKnownLocale(int Locale);

// "Swedish", "Swedish, Sweden"; as the operating system has them.
std::string LanguageName(int Locale);
std::string LanguageAndCountry(int Locale);

// Names for a component of that language, the first one to be preferred:
// "FormTranslatorSwedish", "FormTranslatorSwedishSweden".
std::vector<std::string> NamesWithLanguage(const std::string& Start, int Locale);

// The entries of a locale translator (Qlt/LocaleEntries.h), with days counted from
// Sunday, as the format variables count them.
std::vector<std::string> LocaleTranslatorEntries(int Locale);

// lnUser when there are no built-in captions in that language.
TLangName ButtonLanguage(int Locale);
