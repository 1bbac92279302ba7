// The locales: their Windows numbers and names, and what only Windows' own lists
// tell about them. Everything else about a locale comes from ICU (LocaleData.h).
#pragma once

#include <span>
#include <string>

#include "platform/portable/wintypes.h"

struct TLocaleRow {
    LCID Id; // of its default sort order
    const char* Name;
    const char* Abbreviation; // of the language, as Windows makes it: DEU, DES for Swiss German
    int AnsiCodePage;         // 0 when its script has none
    int OemCodePage;          // 1 when its script has none
    const char* List;         // separator of list items
    const char* IcuName;      // null where Name tells it
};

// A locale with another sort order: the low word of its number is the number of
// the locale that it is otherwise equal to.
struct TLocaleSort {
    LCID Id;
    const char* Name;
};

// Both in the order of their names, as EnumSystemLocalesA lists them; without the
// invariant locale.
std::span<const TLocaleRow> LocaleRows();
std::span<const TLocaleSort> LocaleSorts();

// The row of a locale with a country or of the invariant one; a sort order may be
// in the number. Null for every other number.
const TLocaleRow* FindLocale(LCID Locale);

// The row with this Windows name, without regard to case; null without one.
const TLocaleRow* FindLocaleName(const std::string& Name);

// The locale that a language without a country, or an older number, stands for;
// 0 for other numbers.
LCID LocaleAlias(LCID Locale);

// The name by which ICU knows the locale: "de_CH".
std::string IcuName(const TLocaleRow& Row);
