#include "core/DictionaryText.h"

namespace {

constexpr std::string_view Plain = "\\\n\r\t";
constexpr std::string_view Letters = "\\nrt";

} // namespace

std::string WriteString(std::string_view S)
{
    std::string Result;
    Result.reserve(S.size());
    for (const char Byte : S)
        if (const size_t Kind = Plain.find(Byte); Kind != Plain.npos)
            Result.append(1, '\\').append(1, Letters[Kind]);
        else
            Result += Byte;
    return Result;
}

std::string ReadString(std::string_view S)
{
    std::string Result;
    Result.reserve(S.size());
    size_t I = 0;
    while (I < S.size()) {
        const char Byte = S[I++];
        if (Byte != '\\') {
            Result += Byte;
            continue;
        }
        if (I < S.size() && S[I] == '\\')
            ++I;
        const size_t Kind = I < S.size() ? Letters.find(S[I]) : Letters.npos;
        if (Kind == Letters.npos || Kind == 0) {
            Result += '\\';
        } else {
            Result += Plain[Kind];
            ++I;
        }
    }
    return Result;
}
