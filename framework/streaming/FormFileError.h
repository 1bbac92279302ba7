// The error of every form-file reader and writer.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "framework/rtl/Exceptions.h"

// A form file that cannot be read or written. The message starts with the
// place: `file:line:column: message` in a text form file and
// `file: offset N: message` in a binary one. Without a file name the place
// stands alone.
class EFormFileError : public EReadError {
public:
    EFormFileError(const std::string& AFileName, int ALine, int AColumn, const std::string& Message)
        : EReadError(Prefix(AFileName) + std::to_string(ALine) + ":" + std::to_string(AColumn) + ": " +
                     Message),
          FileName(AFileName), Line(ALine), Column(AColumn)
    {
    }
    EFormFileError(const std::string& AFileName, std::uint64_t AByteOffset, const std::string& Message)
        : EReadError(Prefix(AFileName) + (AFileName.empty() ? "" : " ") + "offset " +
                     std::to_string(AByteOffset) + ": " + Message),
          FileName(AFileName), ByteOffset(AByteOffset)
    {
    }

    std::string FileName;
    int Line = 0;                 // from 1; 0 for a binary form file
    int Column = 0;               // in characters, from 1; 0 for a binary form file
    std::uint64_t ByteOffset = 0; // from 0; binary form files only

private:
    static std::string Prefix(const std::string& FileName) { return FileName.empty() ? "" : FileName + ":"; }
};
