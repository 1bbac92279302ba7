// The properties that an editor offers, with the values that they have
// untranslated.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "framework/rtl/Strings.h"

// Whether a value is a text: quoted, or beginning with a character code.
bool IsStringLiteral(std::string_view Value);
// A value as the user sees it; one that is malformed as it stands.
std::string ShownText(std::string_view Value);
// What the user has typed in the form that the former value has. A text that
// could not be read back from a bare value is a literal always.
std::string StoredText(const std::string& Text, std::string_view FormerValue);
// The value of a line Key=Value, of any length.
std::string_view WholeValueOf(std::string_view Line);

// Lines Key=Value in the order in which they were found; of several lines of one
// key the first counts.
class TOriginalProps {
public:
    // Takes the place of all lines.
    void Assign(const TStrings& Lines);
    // Adds the lines whose keys are not there yet.
    void AddNew(const TStrings& Lines);
    void Clear();

    const TStringList& Lines() const { return FLines; }
    // The value of a key; null when there is no such property.
    const std::string* Find(const std::string& Key) const;
    // As text; empty when there is no such property.
    std::string Text(const std::string& Key) const;

    // The line with which the translation of a key begins: a text is empty at first,
    // other values are as they are, and a key without a property has none.
    std::string FirstLine(const std::string& Key) const;

private:
    TStringList FLines;
    std::unordered_map<std::string, std::string> FValues;
};
