#include "framework/forms/MaskEdits.h"

#include <cwctype>
#include <string_view>

#include "framework/forms/EditRows.h"

namespace {

bool IsLetter(char16_t Character)
{
    return Character >= 0x80 || std::iswalpha(static_cast<wint_t>(Character)) != 0;
}

bool IsDigit(char16_t Character)
{
    return Character >= '0' && Character <= '9';
}

// Whether Character may stand where the mask has Kind.
bool Fits(char16_t Kind, char16_t Character, char16_t Blank)
{
    const bool IsBlank = Character == Blank || Character == ' ';
    switch (Kind) {
    case 'L':
        return !IsBlank && IsLetter(Character);
    case 'l':
        return IsBlank || IsLetter(Character);
    case 'A':
        return !IsBlank && (IsLetter(Character) || IsDigit(Character));
    case 'a':
        return IsBlank || IsLetter(Character) || IsDigit(Character);
    case 'C':
        return Character != Blank;
    case 'c':
        return true;
    case '0':
        return IsDigit(Character);
    case '9':
        return IsBlank || IsDigit(Character);
    case '#':
        return IsBlank || IsDigit(Character) || Character == '+' || Character == '-';
    default:
        return Kind == Character;
    }
}

// The mask without its tail, and the character that shows an empty place.
struct TMask {
    std::u16string Places;
    char16_t Blank = '_';
};

TMask SplitMask(const std::string& Text)
{
    TMask Result{Utf8ToUtf16(Text)};
    std::u16string& Places = Result.Places;
    const size_t Last = Places.rfind(u';');
    if (Last == Places.npos || Last < 2 || Places[Last - 2] != u';' || Last + 2 != Places.size())
        return Result;
    Result.Blank = Places.back();
    Places.erase(Last - 2);
    return Result;
}

} // namespace

const TMetaClass& TCustomMaskEdit::MetaClass()
{
    static const TMetaClass Class("TCustomMaskEdit", &TCustomEdit::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TMaskEdit::MetaClass()
{
    static const TMetaClass Class(
        "TMaskEdit", &TCustomMaskEdit::MetaClass(), CreateComponent<TMaskEdit>,
        ControlRows::Sorted(ControlRows::SingleLineRows<TMaskEdit>(), OBX_ROW(TMaskEdit, EditMask)));
    return Class;
}

bool TCustomMaskEdit::IsValid() const
{
    if (!IsMasked())
        return true;
    const TMask Mask = SplitMask(FEditMask);
    const std::u16string Shown = Utf8ToUtf16(Text());
    size_t At = 0;
    for (size_t I = 0; I < Mask.Places.size(); ++I) {
        const char16_t Kind = Mask.Places[I];
        if (Kind == '!' || Kind == '>' || Kind == '<')
            continue;
        const char16_t Character = At < Shown.size() ? Shown[At] : u' ';
        ++At;
        const bool IsLiteral = Kind == '\\' && I + 1 < Mask.Places.size();
        if (IsLiteral ? Mask.Places[++I] != Character : !Fits(Kind, Character, Mask.Blank))
            return false;
    }
    return At >= Shown.size();
}
