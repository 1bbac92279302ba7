// Dictionaries of a whole project, one a language, for translators: "Booking.1053.txt"
// (core/DictionaryFile.h). Forms, resource strings and dialogs share them.
#pragma once

#include <string>
#include <vector>

#include "wizard/ProjectEdit.h"

// The name of a dictionary in a folder, that of the project file when it is empty.
std::string DictionaryName(const TProject& Project, int Locale, const std::string& Folder = "");
// The locale in such a name; 0 when there is none.
int LocaleOfDictionary(const std::string& FileName);

// Writes a dictionary for each locale (empty: for all that the project has): every source
// text with its translation, or nothing where there is none yet. A dictionary that is
// there already keeps its other lines, and its translations of what the project has no
// translation for.
// Errors as PlanGlobalization; EInvalidOperation when the project has no translators.
TProjectChanges PlanExport(TProjectScan Scan, const std::vector<int>& Locales,
                           const std::string& Folder = "");

struct TDictionaryInput {
    std::string FileName;
    int Locale = 0;
};

// Takes translations over into all lines of the project's translators whose source text
// a dictionary translates; empty translations are passed over. Where texts of one source
// are translated differently, the first of them and those like it are replaced; the others
// stay, so that taking back what was exported changes nothing. Lines of a dictionary that
// are no pairs are told in a note.
// Errors as PlanExport, and those of ReadDictionaryPairs; EConvertError, with the line, for
// a dictionary or a translator with a text that is wrong.
TProjectChanges PlanImport(TProjectScan Scan, const std::vector<TDictionaryInput>& Dictionaries);
