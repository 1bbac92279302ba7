// Exchange of lists of lines Key=Value with dictionary files (DictionaryFile.h).
// Shown holds the lines of what the user sees untranslated; a source text is the
// plain text of such a line's value.
#pragma once

#include <string>

#include "core/DictionaryFile.h"
#include "core/SortList.h"

// Adds a pair for each line of Translations whose key is in Shown, too, and makes
// the file when it is missing. Holds the file's lock, and replaces it as a whole.
// Throws as TDictionary and TFileLock; EConvertError on a malformed literal.
void ExportLines(const std::string& FileName, const TSortList& Translations, const TSortList& Shown);

// Puts the translations of the source texts that Shown has into the lines of
// Translations that are there already, in literal form where the line's value is
// a literal. When several keys show the same text, one of them gets the
// translation: in a list of the unique kind the last.
void ImportPairs(const TDictionaryPairs& Pairs, TSortList& Translations, const TSortList& Shown);
