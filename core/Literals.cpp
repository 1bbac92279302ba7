#include "core/Literals.h"

#include "framework/rtl/Convert.h"

namespace {

bool IsControl(char Byte)
{
    return static_cast<unsigned char>(Byte) < 32;
}

bool IsDigit(char Byte)
{
    return Byte >= '0' && Byte <= '9';
}

// Appends Text up to its end or its first control byte, apostrophes doubled.
// Returns how many bytes that was.
size_t AppendQuotable(std::string& Result, std::string_view Text)
{
    size_t Done = 0;
    size_t I = 0;
    for (; I < Text.size() && !IsControl(Text[I]); ++I)
        if (Text[I] == '\'') {
            Result.append(Text, Done, I + 1 - Done);
            Done = I; // the apostrophe once more
        }
    Result.append(Text, Done, I - Done);
    return I;
}

} // namespace

void AppendLiterals(std::string& Result, std::string_view Text)
{
    bool InQuote = Text.empty() || !IsControl(Text[0]);
    if (InQuote)
        Result += '\'';
    size_t I = 0;
    while (I < Text.size()) {
        I += AppendQuotable(Result, Text.substr(I));
        if (I == Text.size())
            break;
        if (InQuote)
            Result += '\'';
        for (; I < Text.size() && IsControl(Text[I]); ++I)
            Result.append(1, '#').append(std::to_string(static_cast<int>(Text[I])));
        InQuote = I < Text.size();
        if (InQuote)
            Result += '\'';
    }
    if (InQuote)
        Result += '\'';
}

std::string ToLiterals(std::string_view Text)
{
    std::string Result;
    Result.reserve(Text.size() + 2);
    AppendLiterals(Result, Text);
    return Result;
}

void ConvertToLiterals(std::string& S)
{
    S = ToLiterals(S);
}

// Nothing is written beyond what has been read, so the text is its own buffer.
void ConvertFromLiterals(std::string& S)
{
    const size_t Size = S.size();
    size_t From = 0;
    size_t To = 0;
    bool InQuote = false;
    while (From < Size) {
        const char Byte = S[From];
        if (Byte == '#' && !InQuote) {
            std::string Digits;
            for (size_t Ahead = From + 1; Ahead <= From + 3 && Ahead < Size; ++Ahead)
                if (IsDigit(S[Ahead]))
                    Digits += S[Ahead];
            S[To++] = static_cast<char>(StrToInt(Digits) % 256);
            From += 1 + Digits.size();
        } else if (Byte != '\'') {
            S[To++] = Byte;
            ++From;
        } else if (InQuote && From + 1 < Size && S[From + 1] == '\'') {
            S[To++] = Byte;
            From += 2;
        } else {
            InQuote = !InQuote;
            ++From;
        }
    }
    S.resize(To);
}

void AssignFromLiterals(std::string& Result, std::string_view Text)
{
    // Nearly every value is one quoted run without apostrophes.
    if (Text.size() >= 2 && Text[0] == '\'' && Text.find('\'', 1) == Text.size() - 1) {
        Result.assign(Text, 1, Text.size() - 2);
        return;
    }
    Result.assign(Text);
    ConvertFromLiterals(Result);
}

std::string FromLiterals(std::string_view Text)
{
    std::string Result;
    AssignFromLiterals(Result, Text);
    return Result;
}
