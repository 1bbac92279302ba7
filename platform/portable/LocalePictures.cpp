#include "platform/portable/LocalePictures.h"

#include <algorithm>

namespace {

// Calls Field(letter, count) for each run of letters and Text(unit) for what
// stands between them, with quotes as they are.
template<class TField, class TText>
void Scan(const icu::UnicodeString& Pattern, TField Field, TText Text)
{
    bool Quoted = false;
    for (int Index = 0; Index < Pattern.length(); ++Index) {
        const char16_t Unit = Pattern[Index];
        const bool IsLetter = (Unit >= u'a' && Unit <= u'z') || (Unit >= u'A' && Unit <= u'Z');
        Quoted ^= Unit == u'\'';
        if (Quoted || !IsLetter) {
            Text(Unit);
            continue;
        }
        int Count = 1;
        while (Index + 1 < Pattern.length() && Pattern[Index + 1] == Unit) {
            ++Index;
            ++Count;
        }
        Field(Unit, Count);
    }
}

std::string Field(char16_t Letter, int Count)
{
    const auto Run = [](char Each, int Times) { return std::string(static_cast<std::size_t>(Times), Each); };
    switch (Letter) {
    case u'y':
        return Run('y', Count == 2 ? 2 : 4);
    case u'M':
    case u'L':
        return Run('M', std::min(Count, 4));
    case u'd':
        return Run('d', std::min(Count, 2));
    case u'E':
    case u'c':
        return Run('d', Count == 4 ? 4 : 3);
    case u'H':
    case u'k':
        return Run('H', std::min(Count, 2));
    case u'h':
    case u'K':
        return Run('h', std::min(Count, 2));
    case u'm':
    case u's':
        return Run(static_cast<char>(Letter), std::min(Count, 2));
    case u'a':
    case u'b':
    case u'B':
        return "tt";
    case u'G':
        return "gg";
    default:
        return "";
    }
}

bool IsField(char Letter)
{
    return std::string_view("dMyghHmst").find(Letter) != std::string_view::npos;
}

} // namespace

std::string Utf8(const icu::UnicodeString& Text)
{
    std::string Result;
    Text.toUTF8String(Result);
    return Result;
}

std::string WindowsPicture(const icu::UnicodeString& Pattern)
{
    icu::UnicodeString Result;
    Scan(
        Pattern,
        [&](char16_t Letter, int Count) { Result += icu::UnicodeString::fromUTF8(Field(Letter, Count)); },
        [&](char16_t Unit) { Result += Unit; });
    return Utf8(Result);
}

std::string PictureSeparator(std::string_view Picture)
{
    const auto First = std::find_if(Picture.begin(), Picture.end(), IsField);
    if (First == Picture.end())
        return "";
    const auto Begin = std::find_if(First, Picture.end(), [&](char Each) { return Each != *First; });
    bool Quoted = false;
    const auto End = std::find_if(Begin, Picture.end(), [&](char Each) {
        Quoted ^= Each == '\'';
        return !Quoted && IsField(Each);
    });
    return End == Picture.end() ? "" : std::string(Begin, End);
}

int PictureOrder(std::string_view Picture)
{
    std::size_t Places[3] = {Picture.npos, Picture.npos, Picture.npos}; // of M, d, y
    bool Quoted = false;
    for (std::size_t Index = 0; Index < Picture.size(); ++Index) {
        const char Letter = Picture[Index];
        Quoted ^= Letter == '\'';
        const std::size_t Field = Quoted ? 3 : std::string_view("Mdy").find(Letter);
        if (Field > 2)
            continue;
        const std::size_t End = std::min(Picture.find_first_not_of(Letter, Index), Picture.size());
        // Three letters and more are the name of the day.
        if (Letter != 'd' || End - Index <= 2)
            Places[Field] = std::min(Places[Field], Index);
        Index = End - 1;
    }
    const auto [Month, Day, Year] = Places;
    if (Day < Month)
        return 1;
    return Year < Month ? 2 : 0;
}

bool HasField(std::string_view Picture, char Letter, std::size_t Count)
{
    bool Quoted = false;
    std::size_t Run = 0;
    for (const char Each : Picture) {
        Quoted ^= Each == '\'';
        Run = !Quoted && Each == Letter ? Run + 1 : 0;
        if (Run == Count)
            return true;
    }
    return false;
}

int TCurrencyShape::Positive() const
{
    return (SymbolFirst ? 0 : 1) + (Space ? 2 : 0);
}

int TCurrencyShape::Negative() const
{
    // By symbol first, space between; in the order of the kinds of minus.
    static constexpr int Numbers[2][2][5] = {{{4, 5, 6, 7, 7}, {15, 8, 13, 10, 10}},
                                             {{0, 1, 1, 2, 3}, {14, 9, 9, 12, 11}}};
    return Numbers[SymbolFirst][Space][Minus];
}

TCurrencyShape CurrencyShape(const icu::UnicodeString& Pattern)
{
    const int Half = Pattern.indexOf(u';');
    icu::UnicodeString Shape(Pattern, Half + 1);
    // Marks of direction do not count.
    for (const char16_t Mark : {u'\u200E', u'\u200F', u'\u061C'})
        Shape.findAndReplace(icu::UnicodeString(Mark), icu::UnicodeString());
    const auto IsDigit = [](char16_t Unit) { return Unit == u'#' || Unit == u'0'; };
    int First = 0, Last = Shape.length() - 1;
    while (First < Shape.length() && !IsDigit(Shape[First]))
        ++First;
    while (Last >= 0 && !IsDigit(Shape[Last]))
        --Last;
    const int Symbol = Shape.indexOf(u'\u00A4');
    TCurrencyShape Result;
    Result.SymbolFirst = Symbol < First;
    Result.Space = Shape.indexOf(u'\u00A0') >= 0 || Shape.indexOf(u' ') >= 0;
    const int Minus = Shape.indexOf(u'-');
    if (Shape.indexOf(u'(') >= 0)
        Result.Minus = TCurrencyShape::Parentheses;
    else if (Minus < 0 || (Minus < First && (Minus < Symbol || !Result.SymbolFirst)))
        Result.Minus = TCurrencyShape::First;
    else if (Minus < First)
        Result.Minus = TCurrencyShape::AfterSymbol;
    else if (!Result.SymbolFirst && Minus < Symbol)
        Result.Minus = TCurrencyShape::BeforeSymbol;
    else
        Result.Minus = Result.SymbolFirst ? TCurrencyShape::Last : TCurrencyShape::AfterSymbol;
    return Result;
}
