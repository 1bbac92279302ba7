// Form files on disk and in memory, whatever their format.
#pragma once

#include <string>
#include <string_view>

#include "framework/streaming/FormBinary.h"
#include "framework/streaming/FormDocument.h"
#include "framework/streaming/FormOptions.h"
#include "framework/streaming/FormText.h"

// Reads a form from the bytes of a file, text or binary.
// Throws EFormFileError; so does everything below.
TFormDocument ReadForm(std::string_view Bytes, const TFormFileOptions& Options = {});
// The bytes of the document's file, in its format.
std::string WriteForm(const TFormDocument& Document);

// Reads a file; Options.FileName defaults to FileName. An absent or unreadable
// file throws EFOpenError or EReadError.
TFormDocument ReadFormFile(const std::string& FileName, TFormFileOptions Options = {});
// Replaces the file as a whole: it is either the old or the new one, never a part.
void WriteFormFile(const std::string& FileName, const TFormDocument& Document);
