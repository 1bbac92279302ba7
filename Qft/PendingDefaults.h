// The former values of properties while a form is being translated.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/SortList.h"

// Collects lines Key=Value cheaply and makes them only when they are wanted: when
// a form is restored they never are.
class TPendingDefaults {
public:
    // Line is the index of the translation whose value is remembered: an order
    // that the keys' order follows.
    void Add(std::string_view Key, std::string_view Value, bool AsLiteral, int Line, TObject* Object);

    bool Empty() const { return FItems.empty(); }
    void Clear();

    // Moves all into List, as SortInsert would in the order of Add.
    void InsertInto(TSortList& List);

private:
    struct TItem {
        size_t Start; // of the key, and behind it the value, in FTexts
        size_t KeySize;
        size_t ValueSize;
        TObject* Object;
        int Line;
        bool AsLiteral;
    };
    std::string LineOf(const TItem& Item) const;

    std::string FTexts;
    std::vector<TItem> FItems;
};
