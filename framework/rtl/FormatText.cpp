#include "framework/rtl/FormatText.h"

#include <algorithm>
#include <cctype>
#include <utility>

#include "framework/rtl/Convert.h"
#include "framework/rtl/Exceptions.h"
#include "framework/rtl/FloatDigits.h"
#include "framework/rtl/FormatVars.h"
#include "framework/rtl/RtlConsts.h"
#include "framework/rtl/Utf8.h"

namespace {

constexpr int NotGiven = -1;
constexpr int MaxWidth = 65535;

struct TSpecifier {
    bool LeftAligned = false;
    int Width = NotGiven;
    int Precision = NotGiven;
    char Type = 0; // lower case
};

class TFormatter {
public:
    TFormatter(const std::string& Fmt, std::initializer_list<TVarRec> Args) : FFormat(Fmt), FArgs(Args) {}

    std::string Run()
    {
        while (FPosition < FFormat.size()) {
            const auto Percent = FFormat.find('%', FPosition);
            FResult.append(FFormat, FPosition, Percent - FPosition);
            if (Percent == FFormat.npos)
                break;
            FPosition = Percent + 1;
            if (Peek() == '%') {
                FResult += '%';
                ++FPosition;
            } else {
                const TSpecifier Specifier = ReadSpecifier();
                Append(Specifier, Convert(Specifier, NextArgument()));
            }
        }
        return std::move(FResult);
    }

private:
    [[noreturn]] void Raise(const TResStringRec& Text) const
    {
        constexpr std::size_t QuotedBytes = 31;
        throw EConvertError(Format(Text, {CutAtCharacter(FFormat, QuotedBytes)}));
    }

    char Peek() const { return FPosition < FFormat.size() ? FFormat[FPosition] : '\0'; }
    bool Take(char Expected)
    {
        if (Peek() != Expected || FPosition >= FFormat.size())
            return false;
        ++FPosition;
        return true;
    }

    const TVarRec& NextArgument()
    {
        if (FNext >= FArgs.size())
            Raise(SArgumentMissing);
        return FArgs.begin()[FNext++];
    }

    // Digits, "*" or nothing.
    int ReadCount()
    {
        if (Take('*')) {
            const TVarRec& Argument = NextArgument();
            if (Argument.Kind() != TVarRec::TKind::Integer || Argument.AsInteger() < 0 ||
                Argument.AsInteger() > MaxWidth)
                Raise(SInvalidFormat);
            return static_cast<int>(Argument.AsInteger());
        }
        if (Peek() < '0' || Peek() > '9')
            return NotGiven;
        int Result = 0;
        for (; Peek() >= '0' && Peek() <= '9'; ++FPosition) {
            Result = Result * 10 + (Peek() - '0');
            if (Result > MaxWidth)
                Raise(SInvalidFormat);
        }
        return Result;
    }

    // The first number is the index or the width; the ":" behind it decides.
    TSpecifier ReadSpecifier()
    {
        TSpecifier Result;
        Result.LeftAligned = Take('-');
        Result.Width = ReadCount();
        if (!Result.LeftAligned && Take(':')) {
            FNext = static_cast<std::size_t>(Result.Width == NotGiven ? 0 : Result.Width);
            Result.LeftAligned = Take('-');
            Result.Width = ReadCount();
        }
        if (Take('.')) {
            Result.Precision = ReadCount();
            if (Result.Precision == NotGiven)
                Result.Precision = 0;
        }
        Result.Type = static_cast<char>(std::tolower(static_cast<unsigned char>(Peek())));
        ++FPosition;
        return Result;
    }

    std::string Convert(const TSpecifier& Specifier, const TVarRec& Argument) const
    {
        switch (Argument.Kind()) {
        case TVarRec::TKind::Integer:
        case TVarRec::TKind::Int64:
            return ConvertInteger(Specifier, Argument);
        case TVarRec::TKind::Float:
            return ConvertFloat(Specifier, Argument.AsExtended());
        case TVarRec::TKind::Currency:
            return ConvertDecimal(Specifier, TenThousandthsToDecimal(Argument.AsCurrency().TenThousandths()),
                                  MaxCurrencyDigits);
        case TVarRec::TKind::Text:
            if (Specifier.Type == 's')
                return ConvertText(Specifier, Argument.AsText());
            break;
        case TVarRec::TKind::Pointer:
            if (Specifier.Type == 'p')
                return IntToHex(
                    static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(Argument.AsPointer())),
                    2 * static_cast<int>(sizeof(void*)));
            break;
        }
        Raise(SInvalidFormat);
    }

    std::string ConvertInteger(const TSpecifier& Specifier, const TVarRec& Argument) const
    {
        // An argument of 32 bits shows as such when its bits are asked for.
        auto Bits = static_cast<std::uint64_t>(Argument.AsInteger());
        if (Argument.Kind() == TVarRec::TKind::Integer)
            Bits &= 0xFFFFFFFFu;
        switch (Specifier.Type) {
        case 'd':
            return Padded(Argument.IsUnsigned() ? std::to_string(Bits) : std::to_string(Argument.AsInteger()),
                          Specifier.Precision);
        case 'u':
            return Padded(std::to_string(Bits), Specifier.Precision);
        case 'x':
            return Padded(IntToHex(Bits, 0), Specifier.Precision);
        default:
            Raise(SInvalidFormat);
        }
    }

    // Zeros in front, behind the sign. More than 16 digits are not asked for.
    static std::string Padded(std::string Digits, int Precision)
    {
        const std::size_t Sign = Digits[0] == '-' ? 1 : 0;
        const auto Least = static_cast<std::size_t>(Precision > 16 || Precision < 0 ? 0 : Precision);
        if (Digits.size() - Sign < Least)
            Digits.insert(Sign, Least - (Digits.size() - Sign), '0');
        return Digits;
    }

    std::string ConvertFloat(const TSpecifier& Specifier, TExtended Value) const
    {
        const std::string NotFinite = NotFiniteText(Value);
        const TDecimal Decimal = NotFinite.empty() ? FloatToDecimal(Value) : TDecimal();
        const std::string Finite = ConvertDecimal(Specifier, Decimal, MaxFloatDigits);
        return NotFinite.empty() ? Finite : NotFinite;
    }

    std::string ConvertDecimal(const TSpecifier& Specifier, const TDecimal& Value, int MaxDigits) const
    {
        constexpr int ExponentDigits = 3;
        constexpr int LeastPrecision = 2;
        const bool Given = Specifier.Precision >= 0 && Specifier.Precision <= MaxFloatDigits;
        const auto Or = [&](int Default) { return Given ? Specifier.Precision : Default; };
        const int Precision = std::max(Or(15), LeastPrecision);
        switch (Specifier.Type) {
        case 'e':
            return DecimalToStrF(Value, TFloatFormat::ffExponent, Precision, ExponentDigits);
        case 'g':
            return DecimalToStrF(Value, TFloatFormat::ffGeneral, Precision, ExponentDigits);
        case 'f':
            return DecimalToStrF(Value, TFloatFormat::ffFixed, MaxDigits, Or(2));
        case 'n':
            return DecimalToStrF(Value, TFloatFormat::ffNumber, MaxDigits, Or(2));
        case 'm':
            return DecimalToStrF(Value, TFloatFormat::ffCurrency, MaxDigits, Or(CurrencyDecimals));
        default:
            Raise(SInvalidFormat);
        }
    }

    static std::string ConvertText(const TSpecifier& Specifier, std::string_view Text)
    {
        if (Specifier.Precision >= 0)
            Text = FirstCharacters(Text, static_cast<std::size_t>(Specifier.Precision));
        return std::string(Text);
    }

    void Append(const TSpecifier& Specifier, const std::string& Text)
    {
        std::size_t Blanks = 0;
        if (Specifier.Width > 0) {
            const auto Width = static_cast<std::size_t>(Specifier.Width);
            const std::size_t Count = CharacterCount(Text);
            Blanks = Width > Count ? Width - Count : 0;
        }
        if (!Specifier.LeftAligned)
            FResult.append(Blanks, ' ');
        FResult += Text;
        if (Specifier.LeftAligned)
            FResult.append(Blanks, ' ');
    }

    const std::string& FFormat;
    std::initializer_list<TVarRec> FArgs;
    std::size_t FPosition = 0;
    std::size_t FNext = 0;
    std::string FResult;
};

} // namespace

std::string Format(const std::string& Fmt, std::initializer_list<TVarRec> Args)
{
    return TFormatter(Fmt, Args).Run();
}
