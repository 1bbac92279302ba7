// Comparing, trimming and changing texts.
//
// Functions without "Ansi" know the letters A to Z only and are for identifiers;
// those with it know the upper and lower case of every letter in Unicode, and
// are for what people read. All compare by character code, so an order is the same
// on every machine and in every language; without case, CompareText compares the
// upper-case letters and AnsiCompareText the lower-case ones.
#pragma once

#include <string>
#include <string_view>

// Negative, 0 or positive as A comes before B, is equal, or comes after.
int CompareStr(std::string_view A, std::string_view B);
int CompareText(std::string_view A, std::string_view B); // A to Z without case
int AnsiCompareStr(std::string_view A, std::string_view B);
int AnsiCompareText(std::string_view A, std::string_view B); // without case
bool SameText(std::string_view A, std::string_view B);       // A to Z without case
bool AnsiSameText(std::string_view A, std::string_view B);

std::string UpperCase(std::string_view Text);
std::string LowerCase(std::string_view Text);
std::string AnsiUpperCase(std::string_view Text);
std::string AnsiLowerCase(std::string_view Text);

// Without the blanks and control characters (codes up to 32) at both ends, at
// the left end, at the right end.
std::string Trim(std::string_view Text);
std::string TrimLeft(std::string_view Text);
std::string TrimRight(std::string_view Text);

// In single quotes, with quotes inside doubled: it's -> 'it''s'.
std::string QuotedStr(std::string_view Text);

enum class TReplaceExtent { First, All };
enum class TReplaceCase { Sensitive, Ignore }; // Ignore as AnsiCompareText does

// Text with the first or all occurrences of Old replaced by New. Occurrences are
// looked for in Text only, never in what has been put in. An empty Old changes
// nothing.
std::string StringReplace(std::string_view Text, std::string_view Old, std::string_view New,
                          TReplaceExtent Extent, TReplaceCase Case = TReplaceCase::Sensitive);
