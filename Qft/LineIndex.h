// An ordered translation list by the first names of its keys.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "core/SortList.h"

// Lines First to Last - 1 of a list.
struct TLineRange {
    int First = 0;
    int Last = 0;
    bool Empty() const { return First == Last; }
};

// The lines whose keys have the same name up to some level: "Button1" for
//     Button1=...  Button1.Caption=...  Button1[0]=...
// In an ordered list the lines of each sort follow each other.
struct TNamedLines {
    std::string_view Name; // refers to the list
    TLineRange Equal;      // Name=
    TLineRange Dot;        // Name.
    TLineRange Bracket;    // Name[

    // Takes up the next line, whose character behind the name is End.
    void Add(int Line, char End);
};

// The name at the start of Rest: up to the first "=", "." or "[". Empty, with End
// 0, when there is none of them.
std::string_view FirstName(std::string_view Rest, char& End);

// Valid until the list changes.
class TLineIndex {
public:
    // Requires: List is in order.
    void Build(const TSortList& List);

    const std::vector<TNamedLines>& Names() const { return FNames; }
    // Null when no line begins with that name.
    const TNamedLines* Find(std::string_view Name) const;

private:
    struct TSlot {
        uint32_t Hash = 0;
        int Place = -1; // in FNames, -1 for none
    };
    size_t SlotOf(std::string_view Name, uint32_t Hash) const;
    void Grow();

    std::vector<TNamedLines> FNames;
    std::vector<TSlot> FSlots; // open addressing; a power of two of them
};
