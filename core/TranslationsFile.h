// The translations file: the texts of all forms and translators of an application
// in all its languages. One entry a line, no header, no comments:
//
//     Section "." Key "%" Locale "=" Value
//     Form1.Button1.Caption%1053='Ja'
//
//   Section  the form's name, for some translators behind a marker (core/Frame.h);
//            ends at the line's first "."
//   Key      names the text; holds no "=" and no "%"
//   Locale   signed decimal; -1 marks the untranslated text; at most 255 bytes
//   Value    the rest of the line; at most 4095 bytes, cut between characters
//
// Lines are in the order of Bisection.h. They end at CR LF, LF or CR when read and
// at CR LF when written; a byte-order mark in front is read and not written.
// docs/formats.md has an example.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "core/SortList.h"

inline constexpr int DefaultsLocale = -1;

// One entry. The texts refer to the line.
struct TTranslation {
    std::string_view Key;
    std::string_view Value;
    int Locale = 0;
};

// Whose entries are meant. Section is what stands before the ".".
struct TTranslationsOwner {
    std::string Section;
    int Locale = 0;
};

// Calls Visit for each entry of a section, in the order of the file. False, and
// no call, when there is no such file.
// Throws as ReadTextFile (core/TextFile.h); EConvertError "lang.txt:12: locale
// '1O53' is not a number" when an entry of this section has a malformed locale;
// that may be after calls of Visit.
bool ForEachTranslation(const std::string& FileName, std::string_view Section,
                        const std::function<void(const TTranslation&)>& Visit);

// Merges the entries of Owner's section and locale into List as lines Key=Value,
// each in place of the line of the same key (MergeKeyLines). False when there is
// no such file. Errors as above; List is unchanged then.
bool LoadTranslations(const std::string& FileName, const TTranslationsOwner& Owner, TSortList& List);

// Replaces the entries of Owner's section and locale by Translations, and the
// section's untranslated texts by Defaults (lines Key=Value; others are passed
// over). All other lines of the file are kept; the file is created when missing.
// Holds the file's lock, and replaces the file as a whole.
// Throws as above, and EFCreateError, EWriteError, EInOutError; the file is
// unchanged then.
void SaveTranslations(const std::string& FileName, const TTranslationsOwner& Owner,
                      const TStrings& Translations, const TStrings& Defaults);
