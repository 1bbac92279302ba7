// Reads and writes text form files. See docs/form-files.md for the grammar.
#pragma once

#include <string>
#include <string_view>

#include "framework/streaming/FormDocument.h"
#include "framework/streaming/FormOptions.h"

// Reads a text form file of either dialect, in any encoding of TFormEncoding.
// Liberal in layout (blanks, line ends, widths, letter case of keywords) and
// strict in structure. Throws EFormFileError with line and column.
TFormDocument ReadFormText(std::string_view Bytes, const TFormFileOptions& Options = {});

// The file as text. What was read from a text form file and has not changed is
// written byte for byte; everything else in the canonical layout of the
// profile. A character that the encoding lacks is written as char code.
// Throws EFormFileError when a name cannot be written in the encoding.
std::string WriteFormText(const TFormDocument& Document);

// The same in another profile. Unless it equals the profile that the document
// was read with, all of it is written in the canonical layout.
std::string WriteFormText(const TFormDocument& Document, const TFormTextProfile& Profile);
