// Tables of names for integer values, such as those of colours and cursors.
#pragma once

#include <string>
#include <string_view>

struct TIdentMapEntry {
    int Value;
    const char* Name;
};

// Letter case ignored; false when Name is not in the table.
bool IdentToValue(const TIdentMapEntry* Begin, const TIdentMapEntry* End, std::string_view Ident, int& Value);
// The first name of Value; false when it has none.
bool ValueToIdent(const TIdentMapEntry* Begin, const TIdentMapEntry* End, int Value, std::string& Ident);
