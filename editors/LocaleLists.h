// Lists of locale entries (Qlt/LocaleEntries.h), seen as locales.
#pragma once

#include <string>
#include <vector>

#include "core/SortList.h"

struct TNamedLocale {
    std::string Name; // "Swedish, Sweden"
    int Lcid;
};

// The locales in an ordered list that have an English language name. One without
// a country shows that of the locale before it.
std::vector<TNamedLocale> NamedLocales(const TStrings& Entries);

// Puts the entries of a locale into another list, where they take the place of
// those that it has of that locale.
void MoveLocale(TSortList& From, TSortList& To, int Lcid);

// All entries of all locales of the operating system, instead of what Entries has.
void ReadSystemLocales(TSortList& Entries);
