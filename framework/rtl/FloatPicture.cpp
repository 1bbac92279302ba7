#include "framework/rtl/FloatPicture.h"

#include <algorithm>
#include <array>

#include "framework/rtl/FloatDigits.h"
#include "framework/rtl/FormatVars.h"

namespace {

constexpr int GeneralPrecision = 15;

enum class TSign { Zero, Digit, Point, Thousands, Exponent, SectionEnd, Literal };

struct TToken {
    TSign Sign;
    std::string_view Text; // literals without their quotes
};

// "E+000" at the front of Rest; empty when there is none.
std::string_view ExponentSign(std::string_view Rest)
{
    const bool Begins =
        Rest.size() >= 2 && (Rest[0] == 'E' || Rest[0] == 'e') && (Rest[1] == '+' || Rest[1] == '-');
    return Begins ? Rest.substr(0, std::min(Rest.find_first_not_of('0', 2), Rest.size())) : "";
}

// Takes one sign off Rest. Requires: there is one.
TToken Take(std::string_view& Rest)
{
    const char First = Rest[0];
    if (First == '\'' || First == '"') {
        const auto End = std::min(Rest.find(First, 1), Rest.size());
        const TToken Result{TSign::Literal, Rest.substr(1, End - 1)};
        Rest.remove_prefix(std::min(End + 1, Rest.size()));
        return Result;
    }
    TToken Result{TSign::Literal, Rest.substr(0, 1)};
    if (const auto Exponent = ExponentSign(Rest); !Exponent.empty())
        Result = {TSign::Exponent, Exponent};
    else if (First == '0')
        Result.Sign = TSign::Zero;
    else if (First == '#')
        Result.Sign = TSign::Digit;
    else if (First == '.')
        Result.Sign = TSign::Point;
    else if (First == ',')
        Result.Sign = TSign::Thousands;
    else if (First == ';')
        Result.Sign = TSign::SectionEnd;
    Rest.remove_prefix(Result.Text.size());
    return Result;
}

enum TSectionIndex { Positive, Negative, Zero, SectionCount };
using TSections = std::array<std::string_view, SectionCount>;

TSections Split(std::string_view Picture)
{
    TSections Result;
    for (auto& Section : Result) {
        std::string_view Rest = Picture;
        std::size_t Length = 0;
        while (!Rest.empty() && Take(Rest).Sign != TSign::SectionEnd)
            Length = Picture.size() - Rest.size();
        Section = Picture.substr(0, Length);
        Picture = Rest;
    }
    return Result;
}

// What a section asks for. Places count digits; they are numbered from the point,
// 0 for tenths and -1 for ones.
struct TShape {
    int Places = 0;
    int PlacesBeforePoint = 0;
    int LeastDigits = 0;   // before the point
    int LeastDecimals = 0; // behind it
    bool Thousands = false;
    bool Scientific = false;
};

TShape Measure(std::string_view Section)
{
    TShape Result;
    int FirstZero = -1, BehindLastZero = 0, Point = -1;
    while (!Section.empty())
        switch (Take(Section).Sign) {
        case TSign::Zero:
            if (FirstZero < 0)
                FirstZero = Result.Places;
            BehindLastZero = ++Result.Places;
            break;
        case TSign::Digit:
            ++Result.Places;
            break;
        case TSign::Point:
            if (Point < 0)
                Point = Result.Places;
            break;
        case TSign::Thousands:
            Result.Thousands = true;
            break;
        case TSign::Exponent:
            Result.Scientific = true;
            break;
        case TSign::SectionEnd:
        case TSign::Literal:
            break;
        }
    Result.PlacesBeforePoint = Point < 0 ? Result.Places : Point;
    if (FirstZero >= 0)
        Result.LeastDigits = std::max(Result.PlacesBeforePoint - FirstZero, 0);
    Result.LeastDecimals = std::max(BehindLastZero - Result.PlacesBeforePoint, 0);
    return Result;
}

TDecimal RoundedFor(const TShape& Shape, const TDecimal& Value)
{
    if (Shape.Scientific)
        return Rounded(Value, std::max(Shape.Places, 1), AllDigits);
    return Rounded(Value, AllDigits, Shape.Places - Shape.PlacesBeforePoint);
}

// Writes a number, rounded already, by one section.
class TSectionWriter {
public:
    TSectionWriter(const TDecimal& Value, const TShape& Shape) : FValue(Value), FDigits(Value), FShape(Shape)
    {
        if (Shape.Scientific && !Value.IsZero())
            FDigits.Exponent = Shape.PlacesBeforePoint;
    }

    std::string Write(std::string_view Section)
    {
        int Place = -FShape.PlacesBeforePoint;
        bool FirstPlace = true;
        while (!Section.empty()) {
            const TToken Token = Take(Section);
            switch (Token.Sign) {
            case TSign::Zero:
            case TSign::Digit:
                if (FirstPlace)
                    for (int Extra = -FDigits.Exponent; Extra < Place; ++Extra)
                        AppendPlace(Extra);
                FirstPlace = false;
                AppendPlace(Place++);
                break;
            case TSign::Exponent:
                AppendExponent(Token.Text);
                break;
            case TSign::Literal:
                FResult += Token.Text;
                break;
            case TSign::Point:
            case TSign::Thousands:
            case TSign::SectionEnd:
                break;
            }
        }
        return FResult;
    }

private:
    void AppendPlace(int Place)
    {
        const int Index = FDigits.Exponent + Place;
        const bool Wanted =
            Place < 0 ? Index >= 0 || -Place <= FShape.LeastDigits
                      : Index < static_cast<int>(FDigits.Digits.size()) || Place < FShape.LeastDecimals;
        if (!Wanted)
            return;
        if (Place == 0)
            FResult += DecimalSeparator;
        FResult += FDigits[Index];
        if (FShape.Thousands && Place < -1 && (-Place - 1) % 3 == 0)
            FResult += ThousandSeparator;
    }

    // Sign is as "E+00": the letter, whether a plus is written, the least digits.
    void AppendExponent(std::string_view Sign)
    {
        TDecimal Shifted = FValue;
        Shifted.Exponent -= FShape.PlacesBeforePoint - 1;
        const int LeastDigits = static_cast<int>(std::min<std::size_t>(Sign.size() - 2, 4));
        const std::string Text = ExponentText(Shifted, Sign[1] == '+' ? "+" : "", LeastDigits);
        FResult += Sign[0] + Text.substr(1);
    }

    const TDecimal& FValue;
    TDecimal FDigits; // with the point where the section has it
    const TShape& FShape;
    std::string FResult;
};

std::string DecimalByPicture(std::string_view Picture, const TDecimal& Value)
{
    const TSections Sections = Split(Picture);
    const auto IndexFor = [&](const TDecimal& Number) {
        const TSectionIndex Own = Number.IsZero() ? Zero : Number.Negative ? Negative : Positive;
        return Sections[Own].empty() ? Positive : Own;
    };
    TSectionIndex Index = IndexFor(Value);
    TShape Shape = Measure(Sections[Index]);
    TDecimal Number = RoundedFor(Shape, Value);
    if (Number.IsZero()) {
        Index = IndexFor(Number);
        Shape = Measure(Sections[Index]);
    }
    if (Sections[Index].empty() || (!Shape.Scientific && Number.Exponent > MaxFloatDigits))
        return DecimalToStrF(Value, TFloatFormat::ffGeneral, GeneralPrecision, 0);
    const std::string Minus = Number.Negative && Index == Positive ? "-" : "";
    return Minus + TSectionWriter(Number, Shape).Write(Sections[Index]);
}

} // namespace

std::string FormatFloat(std::string_view Picture, TExtended Value)
{
    const std::string NotFinite = NotFiniteText(Value);
    return NotFinite.empty() ? DecimalByPicture(Picture, FloatToDecimal(Value)) : NotFinite;
}

std::string FormatCurr(std::string_view Picture, TCurrency Value)
{
    return DecimalByPicture(Picture, TenThousandthsToDecimal(Value.TenThousandths()));
}
