#include "Qlt/LocaleValues.h"

#include <algorithm>
#include <cstdint>

#include "framework/rtl/Convert.h"

namespace {

constexpr size_t LocaleDigits = 8;

// -1 when Letter is no hexadecimal digit.
int DigitValue(char Letter)
{
    if (Letter >= '0' && Letter <= '9')
        return Letter - '0';
    if (Letter >= 'A' && Letter <= 'F')
        return Letter - 'A' + 10;
    if (Letter >= 'a' && Letter <= 'f')
        return Letter - 'a' + 10;
    return -1;
}

} // namespace

int HexToInt(std::string_view S)
{
    uint32_t Result = 0;
    for (const char Letter : S.substr(0, S.size() % 256))
        if (const int Digit = DigitValue(Letter); Digit >= 0)
            Result = Result << 4 | static_cast<uint32_t>(Digit);
    return static_cast<int>(Result);
}

std::string LocaleValue(std::string_view Name, int Locale)
{
    return std::string(Name) + " " + IntToHex(Locale, LocaleDigits);
}

bool IsLocaleValue(std::string_view Value)
{
    return Value.size() >= LocaleDigits && DigitValue(Value[Value.size() - LocaleDigits]) >= 0;
}

int LocaleOfValue(std::string_view Value)
{
    return HexToInt(Value.substr(Value.size() - std::min(Value.size(), LocaleDigits)));
}
