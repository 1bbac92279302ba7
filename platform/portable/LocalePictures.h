// From ICU's date, time and currency patterns to what Windows makes of them.
#pragma once

#include <string>
#include <string_view>

#include <unicode/unistr.h>

// The UTF-8 form of a text.
std::string Utf8(const icu::UnicodeString& Text);

// "d. MMMM y 'm'." -> "d. MMMM yyyy 'm'.", "EEEE" -> "dddd", "h:mm a" -> "h:mm tt".
// Words stay in quotes; fields that Windows has no letter for are left out.
std::string WindowsPicture(const icu::UnicodeString& Pattern);

// Of a picture: what stands between its first two fields; empty with fewer.
std::string PictureSeparator(std::string_view Picture);

// Of a date picture: 1 day before month, 2 year before month, else 0.
int PictureOrder(std::string_view Picture);

// Whether Picture has at least Count of Letter in a row outside quotes.
bool HasField(std::string_view Picture, char Letter, std::size_t Count);

// How an amount stands to its currency sign ("¤") and its minus ("-" or
// parentheses): the parts of an ICU pattern such as "¤ #,##0.00;(¤ #,##0.00)".
struct TCurrencyShape {
    bool SymbolFirst = false; // "¤" before the number
    bool Space = false;       // between the two
    enum { Parentheses, First, BeforeSymbol, AfterSymbol, Last } Minus = First;

    int Positive() const; // ICURRENCY, 0 to 3
    int Negative() const; // INEGCURR, 0 to 15
};

// The shape of a pattern; its negative half when it has one.
TCurrencyShape CurrencyShape(const icu::UnicodeString& Pattern);
