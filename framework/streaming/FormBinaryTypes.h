// The bytes of binary form files that reader and writer share.
#pragma once

#include <cstdint>
#include <string_view>

constexpr std::string_view FormSignature = "TPF0";
constexpr std::string_view FormResourceStart("\xFF\x0A\x00", 3);
constexpr std::string_view FormResourceFlags("\x30\x10", 2);
// How FormResourceStart looks once every LF has become CR LF.
constexpr std::string_view DamagedResourceStart("\xFF\x0D\x0A", 3);

// The byte before a value.
enum class TFormWireType : std::uint8_t {
    Null, // also ends lists, properties and objects
    List, // values, Null
    Int8,
    Int16,
    Int32,
    Extended, // 10 bytes
    String,   // length in 1 byte, bytes of the code page
    Ident,    // like String
    False,
    True,
    Binary,     // length in 4 bytes, bytes
    Set,        // Strings without type byte, ended by an empty one
    LongString, // length in 4 bytes, bytes of the code page
    Nil,
    Collection, // items, each: an integer value if it has an index; List; properties; Null. Null
    Single,     // 4 bytes
    Currency,   // 8 bytes: a whole number of ten-thousandths
    Date,       // 8 bytes: a double
    WideString, // number of UTF-16 code units in 4 bytes, code units
    Int64,
    Utf8String, // length in 4 bytes, bytes
    Double,     // 8 bytes
};

// Bits of the byte that may stand before a class name; its upper half is F.
constexpr std::uint8_t FlagsMark = 0xF0, FlagInherited = 1, FlagPosition = 2, FlagInline = 4;
