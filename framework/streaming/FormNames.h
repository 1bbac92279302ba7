// Names in form files, in which letter case does not count, and the signs that
// text form files are made of.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

inline char LowerLetter(char Letter)
{
    return Letter >= 'A' && Letter <= 'Z' ? static_cast<char>(Letter + ('a' - 'A')) : Letter;
}

inline bool IsDigit(char Sign)
{
    return Sign >= '0' && Sign <= '9';
}
inline bool IsBlank(char Sign)
{
    return Sign == ' ' || (Sign >= '\t' && Sign <= '\r');
}

// The value of a hexadecimal digit; -1 for any other sign.
inline int HexDigit(char Sign)
{
    if (IsDigit(Sign))
        return Sign - '0';
    const char Lower = LowerLetter(Sign);
    return Lower >= 'a' && Lower <= 'f' ? Lower - 'a' + 10 : -1;
}

// Whether a byte may stand in a name of a text form file: letters, digits, the
// underscore, and all that is not ASCII.
inline bool IsNameSign(char Sign)
{
    const char Lower = LowerLetter(Sign);
    return (Lower >= 'a' && Lower <= 'z') || IsDigit(Sign) || Sign == '_' ||
           static_cast<unsigned char>(Sign) >= 0x80;
}

// Equal but for the case of the letters A to Z.
inline bool SameName(std::string_view One, std::string_view Other)
{
    if (One.size() != Other.size())
        return false;
    for (std::size_t Index = 0; Index < One.size(); ++Index)
        if (LowerLetter(One[Index]) != LowerLetter(Other[Index]))
            return false;
    return true;
}

inline std::string LowerName(std::string_view Name)
{
    std::string Result(Name);
    for (char& Letter : Result)
        Letter = LowerLetter(Letter);
    return Result;
}
