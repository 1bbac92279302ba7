// Lists of lines Key=Value.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/SortList.h"

// Values read from lists and files are cut at these many bytes, never within a
// character.
inline constexpr size_t MaxListValueBytes = 4098;
inline constexpr size_t MaxFileValueBytes = 4095;

// The text before the first "="; empty without one.
std::string_view KeyOf(std::string_view Line);
// The text behind the first "=", cut; empty without one.
std::string_view ValueOf(std::string_view Line, size_t MaxBytes = MaxListValueBytes);

// Whether List has a line for Key, as far as FindKey (Bisection.h) looks.
bool FindKeyLine(const TStrings& List, std::string_view Key, int& Index);

// Takes up lines Key=Value as if one after the other: a line of the same key
// that FindKeyLine finds is deleted, then the new one is inserted with SortInsert
// and without an object.
// Costs about as much as merging two ordered lists.
void MergeKeyLines(TSortList& List, std::vector<std::string> Lines);
