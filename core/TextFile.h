// Files of lines in UTF-8.
#pragma once

#include <string>

// The file as a whole, without the byte-order mark that some editors put in front.
// Throws EFOpenError and EReadError; EConvertError "lang.txt:1: the text is UTF-16,
// not UTF-8" when the mark says so: taken byte by byte its lines would be passed
// over, and torn apart when they are saved.
std::string ReadTextFile(const std::string& FileName);
