#include "framework/rtl/Convert.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <limits>
#include <optional>

#include "framework/rtl/Exceptions.h"
#include "framework/rtl/FormatText.h"
#include "framework/rtl/RtlConsts.h"

namespace {

// The number as it is written: sign, base and magnitude.
struct TWritten {
    bool Negative = false;
    bool Hexadecimal = false;
    std::uint64_t Magnitude = 0;
};

// Takes Prefix off the beginning of Text.
bool Skip(std::string_view& Text, std::string_view Prefix)
{
    if (!Text.starts_with(Prefix))
        return false;
    Text.remove_prefix(Prefix.size());
    return true;
}

std::optional<TWritten> ReadNumber(std::string_view Text)
{
    Text.remove_prefix(std::min(Text.find_first_not_of(' '), Text.size()));
    TWritten Result;
    Result.Negative = Skip(Text, "-");
    if (!Result.Negative)
        Skip(Text, "+");
    for (const std::string_view Prefix : {"$", "0x", "0X", "x", "X"})
        if (Skip(Text, Prefix)) {
            Result.Hexadecimal = true;
            break;
        }
    const char* const End = Text.data() + Text.size();
    const auto [Stop, Error] =
        std::from_chars(Text.data(), End, Result.Magnitude, Result.Hexadecimal ? 16 : 10);
    if (Error != std::errc() || Stop != End)
        return std::nullopt;
    return Result;
}

template<typename TSigned, typename TUnsigned>
bool Convert(std::string_view Text, TSigned& Value)
{
    const auto Written = ReadNumber(Text);
    if (!Written)
        return false;
    const std::uint64_t Limit = Written->Hexadecimal
                                    ? std::numeric_limits<TUnsigned>::max()
                                    : std::uint64_t{std::numeric_limits<TSigned>::max()} + Written->Negative;
    if (Written->Magnitude > Limit)
        return false;
    const auto Bits = static_cast<TUnsigned>(Written->Magnitude);
    Value = static_cast<TSigned>(Written->Negative ? TUnsigned{0} - Bits : Bits);
    return true;
}

std::string Hexadecimal(std::uint64_t Value, int Digits)
{
    char Buffer[16];
    auto* const Stop = std::to_chars(Buffer, std::end(Buffer), Value, 16).ptr;
    std::string Result(Buffer, Stop);
    for (char& Each : Result)
        if (Each >= 'a')
            Each = static_cast<char>(Each - 'a' + 'A');
    const auto Least = static_cast<std::size_t>(std::clamp(Digits, 0, 32));
    if (Result.size() < Least)
        Result.insert(0, Least - Result.size(), '0');
    return Result;
}

[[noreturn]] void RaiseInvalidInteger(std::string_view Text)
{
    throw EConvertError(Format(SInvalidInteger, {Text}));
}

} // namespace

bool TryStrToInt(std::string_view Text, int& Value)
{
    return Convert<int, unsigned>(Text, Value);
}

bool TryStrToInt64(std::string_view Text, std::int64_t& Value)
{
    return Convert<std::int64_t, std::uint64_t>(Text, Value);
}

int StrToInt(std::string_view Text)
{
    int Result = 0;
    if (!TryStrToInt(Text, Result))
        RaiseInvalidInteger(Text);
    return Result;
}

std::int64_t StrToInt64(std::string_view Text)
{
    std::int64_t Result = 0;
    if (!TryStrToInt64(Text, Result))
        RaiseInvalidInteger(Text);
    return Result;
}

int StrToIntDef(std::string_view Text, int Default)
{
    TryStrToInt(Text, Default);
    return Default;
}

std::int64_t StrToInt64Def(std::string_view Text, std::int64_t Default)
{
    TryStrToInt64(Text, Default);
    return Default;
}

std::string IntToStr(std::int64_t Value)
{
    return std::to_string(Value);
}

std::string IntToHex(int Value, int Digits)
{
    return Hexadecimal(static_cast<unsigned>(Value), Digits);
}

std::string IntToHex(std::int64_t Value, int Digits)
{
    return Hexadecimal(static_cast<std::uint64_t>(Value), Digits);
}

std::string IntToHex(unsigned Value, int Digits)
{
    return Hexadecimal(Value, Digits);
}

std::string IntToHex(std::uint64_t Value, int Digits)
{
    return Hexadecimal(Value, Digits);
}
