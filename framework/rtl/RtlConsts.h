// The framework's message texts. Each is a constant that converts to its text:
//     throw EListError(Format(SListIndexError, {Index}));
// The table itself is RtlConsts.inc: one row a text.
#pragma once

#include <cstdint>
#include <string>

// One message text. Identifier is its number in the module's string table
// (upper half of 16 bits), Text its English original (static storage).
struct TResStringRec {
    std::uint16_t Identifier;
    const char* Text;
    operator std::string() const { return Text; }
};

#define ORBILEX_TEXT(Name, Identifier, Text) extern const TResStringRec Name;
#include "framework/rtl/RtlConsts.inc"
#undef ORBILEX_TEXT
