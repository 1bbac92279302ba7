// Reads and writes binary form files. See docs/form-files.md for the format.
#pragma once

#include <string>
#include <string_view>

#include "framework/streaming/FormDocument.h"
#include "framework/streaming/FormOptions.h"

// Reads a binary form file, with its resource header or bare. Every count and
// length is checked against what is left before anything is reserved.
// Throws EFormFileError with the byte offset.
TFormDocument ReadFormBinary(std::string_view Bytes, const TFormFileOptions& Options = {});

// The document as binary form file. What was read from a binary form file and
// has not changed is written byte for byte.
// Throws EFormFileError for what the format cannot hold: a name of more than
// 255 bytes.
std::string WriteFormBinary(const TFormDocument& Document);
std::string WriteFormBinary(const TFormDocument& Document, const TFormBinaryProfile& Profile);
