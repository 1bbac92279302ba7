// The languages of the program.
#pragma once

#include <span>

class TLocaleTranslator;

struct TLanguage {
    int Locale;       // Windows locale identifier
    const char* Code; // in names of picture files
    const char* Name;
    bool IsOwn; // the language of the form files; the others have translators
};

// The first one is the program's own.
std::span<const TLanguage> Languages();

// Gives the translator the entries of the program's languages as the system has
// them, and shows them in its selector.
void AddSystemLocales(TLocaleTranslator& Translator);

// Shows all forms of the application in a language, as its locale translator
// does. Requires: a form with one.
void SwitchLanguage(int Locale);
