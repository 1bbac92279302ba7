// The built-in captions of message boxes in 25 languages.
#pragma once

#include "framework/rtl/TypInfo.h"

// lnUser is no language: the captions are the user's own.
OBX_ENUM(TLangName, lnUser, lnArabic, lnCatalan, lnChinese, lnCzech, lnDanish, lnDutch, lnEnglish, lnFinnish,
         lnFrench, lnGerman, lnGreek, lnHebrew, lnHungary, lnItalian, lnJapan, lnKorean, lnNorway, lnPolish,
         lnRussian, lnSlovak, lnSlovenia, lnSpanish, lnSwedish, lnTaiwanese, lnTurkish)

// What the buttons of a language say, in UTF-8; static storage.
struct TLanguageCaptions {
    TLangName Language;
    const char* Yes;
    const char* No;
    const char* OK;
    const char* Cancel;
    const char* Help;
    const char* Abort;
    const char* Retry;
    const char* Ignore;
    const char* All;
};

// Null for lnUser and for what is no language.
const TLanguageCaptions* FindLanguageCaptions(TLangName Language);
