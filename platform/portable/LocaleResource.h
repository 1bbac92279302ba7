// Texts that ICU keeps in its data without a function that gives them.
#pragma once

#include <initializer_list>
#include <optional>
#include <string>

#include <unicode/unistr.h>

// A step on the way to a text: a key of a table, or, as "#4", an index of an array.
using TResourcePath = std::initializer_list<const char*>;

enum class TRoot { Without, With };

// The text at Path in the data of Locale ("sr_Cyrl_BA") or of the nearest one
// that it inherits from; nothing without one. All inherit from root in the end,
// whose data are those of no language.
std::optional<icu::UnicodeString> FindResource(const std::string& Locale, TResourcePath Path,
                                               TRoot Root = TRoot::With);
