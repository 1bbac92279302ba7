// The languages of the program.
#pragma once

#include <span>

class TMenuItem;

struct TLanguage {
    int Locale;       // Windows locale identifier; 0 for the language of the form files
    const char* Code; // in names of picture files
    const char* Name;
};

// English, which the forms are made in, comes first.
std::span<const TLanguage> Languages();

// Shows all forms of the application in the language of that locale identifier;
// 0 gives them back their own texts.
void SwitchLanguage(int Locale);

// The language that SwitchLanguage was last called with.
int CurrentLanguage();

// Sets the mark of the item, among Menu's items, whose Tag is the current language.
void MarkLanguage(TMenuItem& Menu);
