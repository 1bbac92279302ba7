// What ICU knows about a locale, as the answers that Windows gives.
#pragma once

#include <map>
#include <string>

#include <unicode/locid.h>
#include <unicode/ucurr.h>

#include "platform/portable/LocaleTable.h"
#include "platform/portable/winnls.h"

using TLocaleItems = std::map<LCTYPE, std::string>;

// The answers that do not depend on the sort order, made at the locale's first
// question and kept until the program ends. Any thread.
const TLocaleItems& LocaleItems(const TLocaleRow& Row);

// Whether the item is a number in text form.
bool IsNumber(LCTYPE Item);

// The three letters of the country's currency.
std::string CurrencyOf(const icu::Locale& Locale);

// The name or sign of a currency in a language; Code when it has none.
std::string CurrencyText(const std::string& Code, const icu::Locale& In, UCurrNameStyle Style);

// The parts of it, each in a file of its name.
void AddLocaleNames(TLocaleItems& Items, const TLocaleRow& Row, const icu::Locale& Locale);
void AddLocaleDates(TLocaleItems& Items, const icu::Locale& Locale);
void AddLocaleNumbers(TLocaleItems& Items, const icu::Locale& Locale);

// Makes the items of English (United States) those of the invariant locale.
void MakeInvariant(TLocaleItems& Items);
