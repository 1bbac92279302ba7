// The languages of the program.
#pragma once

#include <span>

#include "Qbt/LanguageCaptions.h"

class TButtonTranslator;
class TLocaleTranslator;

struct TLanguage {
    int Locale;       // Windows locale identifier
    const char* Code; // in names of picture files
    const char* Name;
    bool IsOwn;        // the language of the form files; the others have translators
    TLangName Buttons; // captions of message boxes; lnUser: as the framework has them
};

// The first one is the program's own.
std::span<const TLanguage> Languages();

// The language of a locale; the program's own for any that is none of them.
const TLanguage& LanguageOf(int Locale);

// Gives message boxes the captions of a language: the built-in ones, and over them
// those of the dictionary buttons-CODE.txt beside the program, if there is one.
void ShowButtonsIn(const TLanguage& Language, TButtonTranslator& Buttons);

// Gives the translator the entries of the program's languages as the system has
// them, and shows them in its selector.
void AddSystemLocales(TLocaleTranslator& Translator);

// Shows all forms of the application in a language, as its locale translator
// does. Requires: a form with one.
void SwitchLanguage(int Locale);
