#include "core/VisibleTexts.h"

#include <algorithm>
#include <string>

#include "core/Literals.h"

namespace {

// The last names of property paths whose texts are shown, counted in real forms.
constexpr std::string_view ShownNames[] = {
    "BalloonHint", "Caption",     "Categories",   "Category", "Cells",    "CommandLinkHint",
    "Description", "DialogTitle", "DisplayLabel", "Filter",   "Header",   "Hint",
    "Items",       "Lines",       "Memo",         "Pages",    "PickList", "SimpleText",
    "Tabs",        "Text",        "TextHint",     "Title"};

// The name behind the last ".", without an index.
std::string_view LastName(std::string_view Key)
{
    const size_t Dot = Key.rfind('.');
    std::string_view Name = Dot == Key.npos ? Key : Key.substr(Dot + 1);
    return Name.substr(0, Name.find('['));
}

bool IsShown(std::string_view Key)
{
    return Key.starts_with("SystemMenu") ||
           std::binary_search(std::begin(ShownNames), std::end(ShownNames), LastName(Key));
}

bool HasLetter(std::string_view Text)
{
    return std::any_of(Text.begin(), Text.end(), [](char Byte) {
        const auto Code = static_cast<unsigned char>(Byte);
        return (Code >= 'A' && Code <= 'Z') || (Code >= 'a' && Code <= 'z') || Code >= 0x80;
    });
}

} // namespace

bool IsVisibleText(std::string_view Key, std::string_view Value)
{
    if (Value.empty() || (Value[0] != '\'' && Value[0] != '#') || !IsShown(Key))
        return false;
    const std::string Text = FromLiterals(Value);
    return HasLetter(Text) && Text != Key.substr(0, Key.find('.'));
}
