// Which of a form's properties are texts that a user reads.
#pragma once

#include <string_view>

// Whether the line Key=Value, as a form translator lists it, is a text to offer
// for translation: a property that controls show (captions, hints, items, column
// titles...) whose literal Value has a letter of any script. Names of fonts and
// fields, queries, formats and the like are not, nor is a text that is only the
// component's own name, which no author has set. Throws EConvertError when Value is
// a malformed literal.
bool IsVisibleText(std::string_view Key, std::string_view Value);
