#include "framework/rtl/Texts.h"

#include <algorithm>
#include <cstddef>

#include "framework/rtl/UnicodeCase.h"
#include "framework/rtl/Utf8.h"

namespace {

char UpperLetter(char Each)
{
    return Each >= 'a' && Each <= 'z' ? static_cast<char>(Each - 32) : Each;
}

char LowerLetter(char Each)
{
    return Each >= 'A' && Each <= 'Z' ? static_cast<char>(Each + 32) : Each;
}

template<typename TMapping>
std::string MapLetters(std::string_view Text, TMapping Mapping)
{
    std::string Result(Text);
    std::transform(Result.begin(), Result.end(), Result.begin(), Mapping);
    return Result;
}

// Bytes that are no UTF-8 stay as they are.
template<typename TMapping>
std::string MapCharacters(std::string_view Text, TMapping Mapping)
{
    std::string Result;
    Result.reserve(Text.size());
    while (!Text.empty()) {
        const auto Next = DecodeCharacter(Text);
        if (Next.Valid)
            AppendCharacter(Result, Mapping(Next.Code));
        else
            Result += Text[0];
        Text.remove_prefix(Next.Size);
    }
    return Result;
}

// Something to compare characters by. A byte that is no UTF-8 keeps its value,
// beyond all characters, so that different texts are never equal by accident.
char32_t FoldedCode(const TUtf8Character& Character, char Byte)
{
    constexpr char32_t BeyondUnicode = 0x110000;
    return Character.Valid ? FoldCharacter(Character.Code) : BeyondUnicode + static_cast<unsigned char>(Byte);
}

// Size in bytes of what Text begins with when that is Prefix apart from case;
// npos otherwise.
std::size_t MatchFolded(std::string_view Text, std::string_view Prefix)
{
    std::size_t Size = 0;
    while (!Prefix.empty()) {
        if (Size == Text.size())
            return std::string_view::npos;
        const auto A = DecodeCharacter(Text.substr(Size));
        const auto B = DecodeCharacter(Prefix);
        if (FoldedCode(A, Text[Size]) != FoldedCode(B, Prefix[0]))
            return std::string_view::npos;
        Size += A.Size;
        Prefix.remove_prefix(B.Size);
    }
    return Size;
}

// Where Old occurs in Text from Start on; Size receives its length there.
std::size_t FindText(std::string_view Text, std::string_view Old, std::size_t Start, TReplaceCase Case,
                     std::size_t& Size)
{
    Size = Old.size();
    if (Case == TReplaceCase::Sensitive)
        return Text.find(Old, Start);
    for (; Start < Text.size(); Start += DecodeCharacter(Text.substr(Start)).Size) {
        Size = MatchFolded(Text.substr(Start), Old);
        if (Size != Text.npos)
            return Start;
    }
    return Text.npos;
}

bool IsBlank(char Each)
{
    return static_cast<unsigned char>(Each) <= ' ';
}

} // namespace

int CompareStr(std::string_view A, std::string_view B)
{
    return A.compare(B);
}

int CompareText(std::string_view A, std::string_view B)
{
    const std::size_t Common = std::min(A.size(), B.size());
    for (std::size_t Index = 0; Index < Common; ++Index) {
        const int Difference = static_cast<unsigned char>(UpperLetter(A[Index])) -
                               static_cast<unsigned char>(UpperLetter(B[Index]));
        if (Difference != 0)
            return Difference;
    }
    return A.size() < B.size() ? -1 : A.size() > B.size();
}

int AnsiCompareStr(std::string_view A, std::string_view B)
{
    return A.compare(B); // the order of UTF-8 bytes is that of the codes
}

int AnsiCompareText(std::string_view A, std::string_view B)
{
    // Most texts are ASCII, and lists are sorted by this.
    const auto IsAscii = [](char Each) { return static_cast<unsigned char>(Each) < 0x80; };
    const std::size_t Common = std::min(A.size(), B.size());
    std::size_t Same = 0;
    while (Same < Common && IsAscii(A[Same]) &&
           (A[Same] == B[Same] || LowerLetter(A[Same]) == LowerLetter(B[Same])))
        ++Same;
    if (Same < Common && IsAscii(A[Same]) && IsAscii(B[Same]))
        return LowerLetter(A[Same]) < LowerLetter(B[Same]) ? -1 : 1;
    A.remove_prefix(Same);
    B.remove_prefix(Same);
    while (!A.empty() && !B.empty()) {
        const auto FirstA = DecodeCharacter(A);
        const auto FirstB = DecodeCharacter(B);
        const char32_t CodeA = FoldedCode(FirstA, A[0]);
        const char32_t CodeB = FoldedCode(FirstB, B[0]);
        if (CodeA != CodeB)
            return CodeA < CodeB ? -1 : 1;
        A.remove_prefix(FirstA.Size);
        B.remove_prefix(FirstB.Size);
    }
    return A.empty() ? (B.empty() ? 0 : -1) : 1;
}

bool SameText(std::string_view A, std::string_view B)
{
    return A.size() == B.size() && CompareText(A, B) == 0;
}

bool AnsiSameText(std::string_view A, std::string_view B)
{
    return AnsiCompareText(A, B) == 0;
}

std::string UpperCase(std::string_view Text)
{
    return MapLetters(Text, UpperLetter);
}

std::string LowerCase(std::string_view Text)
{
    return MapLetters(Text, LowerLetter);
}

std::string AnsiUpperCase(std::string_view Text)
{
    return MapCharacters(Text, UpperCharacter);
}

std::string AnsiLowerCase(std::string_view Text)
{
    return MapCharacters(Text, LowerCharacter);
}

std::string Trim(std::string_view Text)
{
    return TrimLeft(TrimRight(Text));
}

std::string TrimLeft(std::string_view Text)
{
    return {std::find_if_not(Text.begin(), Text.end(), IsBlank), Text.end()};
}

std::string TrimRight(std::string_view Text)
{
    return {Text.begin(), std::find_if_not(Text.rbegin(), Text.rend(), IsBlank).base()};
}

std::string QuotedStr(std::string_view Text)
{
    std::string Result = "'";
    for (const char Each : Text)
        Result.append(Each == '\'' ? 2 : 1, Each);
    return Result + "'";
}

std::string StringReplace(std::string_view Text, std::string_view Old, std::string_view New,
                          TReplaceExtent Extent, TReplaceCase Case)
{
    std::string Result;
    std::size_t Start = 0;
    while (!Old.empty()) {
        std::size_t Size = 0;
        const std::size_t Found = FindText(Text, Old, Start, Case, Size);
        if (Found == Text.npos)
            break;
        Result.append(Text, Start, Found - Start).append(New);
        Start = Found + Size;
        if (Extent == TReplaceExtent::First)
            break;
    }
    return Result.append(Text, Start);
}
