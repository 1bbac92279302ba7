// The bytes of a form file that was read, as its document keeps them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "framework/streaming/FormFileError.h"
#include "framework/streaming/FormProfile.h"

// Immutable once the document is read; shared by all of its nodes.
struct TFormSource {
    std::string FileName; // for messages; may be empty
    TFormFormat Format = TFormFormat::Text;
    // The bytes of the file; of a UTF-16 file the same text in UTF-8.
    std::string Bytes;
    // The profile that the bytes follow, as far as the format goes.
    TFormTextProfile Text;
    TFormBinaryProfile Binary;

    std::string_view Slice(std::uint32_t Begin, std::uint32_t End) const
    {
        return std::string_view(Bytes).substr(Begin, End - Begin);
    }

    // The offset of what is not a blank from Offset on; Offset itself in a binary form file.
    std::uint32_t SkipBlanks(std::uint32_t Offset) const;

    // An error at an offset into Bytes, as line and column in a text form file.
    EFormFileError ErrorAt(std::uint32_t Offset, const std::string& Message) const;
};
