// The dictionary file: source texts and their translations in one language, to be
// shared between forms and projects. One pair a line, both texts escaped as
// DictionaryText.h tells, a TAB between them:
//
//     Yes<TAB>Ja
//     First\nSecond<TAB>Första\nAndra
//
// Lines are in the order of Bisection.h.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/LineBlocks.h"
#include "core/SortList.h"

// Calls Visit with the plain texts of each pair in the order of the file. A line
// without TAB is passed over; at most 4095 bytes behind the TAB are taken, cut
// between characters. Every CR and every LF ends a line.
// Throws as ReadTextFile (core/TextFile.h).
void ForEachDictionaryPair(
    const std::string& FileName,
    const std::function<void(const std::string& Source, const std::string& Translation)>& Visit);

// All pairs of a file. Throws as ForEachDictionaryPair.
using TDictionaryPairs = std::vector<std::pair<std::string, std::string>>;
TDictionaryPairs ReadDictionaryPairs(const std::string& FileName);

// A dictionary in memory, for adding to a file. Lines that are no pairs are kept.
class TDictionary {
public:
    // The lines of the file; a missing file gives an empty dictionary. Throws as
    // ReadTextFile.
    void Load(const std::string& FileName);

    // Replaces the line of Source that a search for it lands on, or adds one.
    void Put(std::string_view Source, std::string_view Translation);

    // Replaces the file as a whole. Throws EFCreateError and EWriteError.
    void Save(const std::string& FileName);

private:
    TLineBlocks<std::string> FLines;
};
