// How a form file is spelled: everything about it that is not its tree.
#pragma once

#include <cstdint>
#include <string>

enum class TFormFormat : std::uint8_t { Text, Binary };

// The two layouts in use, named after the usual file name extension.
enum class TFormDialect : std::uint8_t { Dfm, Lfm };

enum class TFormEncoding : std::uint8_t { CodePage, Utf8, Utf16LE, Utf16BE };

enum class TFormNonAscii : std::uint8_t {
    Codes, // #1040: a UTF-16 code unit each
    Raw,   // in the encoding of the file
};

// How a text form file looks. The defaults are a new .dfm file.
struct TFormTextProfile {
    TFormDialect Dialect = TFormDialect::Dfm;
    TFormEncoding Encoding = TFormEncoding::CodePage;
    int CodePage = 1252; // for TFormEncoding::CodePage
    bool Bom = false;
    TFormNonAscii NonAscii = TFormNonAscii::Codes;
    int FloatDecimals = 18; // 0: as many as needed
    std::string LineEnd = "\r\n";
    std::string FinalText = "\r\n"; // what follows the last `end`

    // The profile of a new .lfm file.
    static TFormTextProfile Lfm();

    friend bool operator==(const TFormTextProfile&, const TFormTextProfile&) = default;
};

// How a binary form file looks.
struct TFormBinaryProfile {
    bool ResourceHeader = true; // FF 0A 00 NAME 00 30 10 length
    std::string ResourceName;   // empty: the root's class name in capitals
    int CodePage = 1252;        // of strings that are neither wide nor UTF-8
    // Whether texts and names that are not ASCII are stored in the code page, if
    // it has all of their characters. Otherwise they are UTF-8.
    bool CodePageStrings = false;

    friend bool operator==(const TFormBinaryProfile&, const TFormBinaryProfile&) = default;
};
