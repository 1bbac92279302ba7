// The values of text form files: the second half of TFormTextParser.
#include "framework/streaming/FormTextParser.h"

#include <cmath>
#include <limits>

#include "framework/streaming/FormNames.h"

namespace {

constexpr int PieceLength = 64; // of long strings in a .dfm

// `7F` as 0x7F; nothing past 64 bits or without digits.
std::optional<std::uint64_t> ReadDigits(std::string_view Digits, unsigned Base)
{
    std::uint64_t Result = 0;
    for (const char Sign : Digits) {
        const int Digit = HexDigit(Sign);
        if (Digit < 0 || Digit >= static_cast<int>(Base) ||
            Result > (UINT64_MAX - static_cast<unsigned>(Digit)) / Base)
            return std::nullopt;
        Result = Result * Base + static_cast<unsigned>(Digit);
    }
    return Digits.empty() ? std::nullopt : std::optional(Result);
}

} // namespace

TFormValue TFormTextParser::ParseValue(int Depth)
{
    const std::size_t Begin = FPos;
    SkipBlanks();
    if (Depth > MaxFormDepth)
        Fail(FPos, "values are nested more than " + std::to_string(MaxFormDepth) + " deep");
    TFormSpan Span;
    TFormValue Result = ParseBare(Span, Depth);
    if (!Span.Source)
        Span = SpanFrom(Begin);
    Span.Begin = static_cast<std::uint32_t>(Begin);
    Result.SetSpan(std::move(Span));
    return Result;
}

TFormValue TFormTextParser::ParseBare(TFormSpan& Span, int Depth)
{
    switch (Current()) {
    case '\'':
    case '#':
        return ParseString();
    case '[':
        return ParseSet();
    case '(':
        return ParseList(Span, Depth);
    case '<':
        if (FText.substr(FPos, 7) == "<<<<<<<")
            FailExpected("a value");
        return ParseCollection(Span, Depth);
    case '{':
        return ParseBinary();
    case '-':
    case '+':
    case '$':
        return ParseNumber();
    default:
        return IsDigit(Current()) ? ParseNumber() : ParseIdent();
    }
}

// 'It'#39's' + 'more': adjacent parts, or joined by plus signs.
TFormValue TFormTextParser::ParseString()
{
    std::string Text, Raw;
    TUnitJoiner Joiner(Text);
    // Quoted parts that follow each other are decoded together: a character of
    // two bytes may be cut between them.
    const auto FlushRaw = [&] {
        if (Raw.empty())
            return;
        Joiner.Flush();
        if (IsAscii(Raw)) {
            Text += Raw;
        } else {
            FTraits.RawNonAscii = true;
            FCodec.Decode(Raw, Text);
        }
        Raw.clear();
    };
    const std::size_t Start = FPos;
    bool Joined = false;
    for (;;) {
        if (Current() == '\'') {
            ParseQuoted(Raw);
        } else if (Current() == '#') {
            const char32_t Code = ParseCharCode();
            FTraits.CodedNonAscii |= Code > 127;
            FlushRaw();
            if (Code < 0x10000) {
                Joiner.Add(static_cast<char16_t>(Code));
            } else {
                Joiner.Flush();
                AppendChar(Code, Text);
            }
        } else {
            const std::size_t AfterPart = FPos;
            SkipBlanks();
            if (!SkipIf('+')) {
                FPos = AfterPart;
                break;
            }
            SkipBlanks();
            if (Current() != '\'' && Current() != '#')
                FailExpected("the next part of a string");
            Joined = true;
        }
    }
    FlushRaw();
    Joiner.Flush();
    if (Joined)
        ++FTraits.Dfm;
    else if (FPos - Start > 2 * PieceLength + 2 && Text.size() > 2 * PieceLength && FCodec.IsUtf8())
        ++FTraits.Lfm;
    return TFormValue::String(std::move(Text));
}

// Appends what stands between the quotes.
void TFormTextParser::ParseQuoted(std::string& Raw)
{
    const std::size_t Start = FPos++;
    for (;;) {
        const std::size_t Stop = FText.find_first_of("'\r\n", FPos);
        if (Stop == FText.npos || FText[Stop] != '\'')
            Fail(Start, "the string is not closed on its line");
        Raw.append(FText.substr(FPos, Stop - FPos));
        FPos = Stop + 1;
        if (Current() != '\'')
            return;
        ++FTraits.Lfm;
        Raw += '\'';
        ++FPos;
    }
}

char32_t TFormTextParser::ParseCharCode()
{
    const std::size_t Start = FPos++;
    const unsigned Base = SkipIf('$') ? 16 : 10;
    const std::size_t First = FPos;
    while (HexDigit(Current()) >= 0 && HexDigit(Current()) < static_cast<int>(Base))
        ++FPos;
    const auto Code = ReadDigits(FText.substr(First, FPos - First), Base);
    if (!Code || *Code > 0x10FFFF)
        Fail(Start, "\"#\" must be followed by the code of a character");
    if (*Code == '\'')
        ++FTraits.Dfm;
    return static_cast<char32_t>(*Code);
}

TFormValue TFormTextParser::ParseNumber()
{
    const std::size_t Start = FPos;
    const bool Negative = Current() == '-';
    if (Current() == '-' || Current() == '+')
        ++FPos;
    if (SameName(PeekName(), "inf")) {
        FPos += 3;
        const double Infinity = std::numeric_limits<double>::infinity();
        return TFormValue::Float(Negative ? -Infinity : Infinity);
    }
    const std::size_t First = FPos;
    const bool IsHex = SkipIf('$');
    bool IsFloat = false;
    while (!AtEnd()) {
        const char Sign = Current();
        const bool AfterExponent = IsFloat && LowerLetter(FText[FPos - 1]) == 'e';
        if (IsDigit(Sign) || (IsHex && HexDigit(Sign) >= 0)) {
            ++FPos;
        } else if (!IsHex && (Sign == '.' || LowerLetter(Sign) == 'e')) {
            IsFloat = true;
            ++FPos;
        } else if (AfterExponent && (Sign == '-' || Sign == '+')) {
            ++FPos;
        } else {
            break;
        }
    }
    const std::size_t End = FPos;
    const char Suffix = LowerLetter(Current());
    if (!IsHex && (Suffix == 's' || Suffix == 'c' || Suffix == 'd'))
        ++FPos;
    if (IsNameSign(Current()) && !AtEnd())
        Fail(Start, "this is not a number");
    if (IsFloat || FPos != End)
        return MakeFloat(Start, End, FPos != End ? Suffix : '\0');

    const auto Digits = FText.substr(First + (IsHex ? 1 : 0), End - First - (IsHex ? 1 : 0));
    const auto Value = ReadDigits(Digits, IsHex ? 16 : 10);
    if (Value && (IsHex || *Value <= static_cast<std::uint64_t>(INT64_MAX) + (Negative ? 1 : 0)))
        return TFormValue::Integer(static_cast<std::int64_t>(Negative ? 0 - *Value : *Value));
    if (Value && !Negative)
        return MakeFloat(Start, End, '\0');
    Fail(Start, Digits.empty() ? "this is not a number" : "the number is too large");
}

TFormValue TFormTextParser::MakeFloat(std::size_t Start, std::size_t End, char Suffix)
{
    std::string_view Text = FText.substr(Start, End - Start);
    if (Text.substr(0, 1) == "+")
        Text.remove_prefix(1);
    const auto Value = ExtendedFromText(Text);
    if (!Value)
        Fail(Start, "this is not a number in the range of a float");
    if (Suffix == 's') {
        const double Single = ExtendedToDouble(*Value);
        if (std::fabs(Single) > std::numeric_limits<float>::max())
            Fail(Start, "the number is too large");
        return TFormValue::Single(static_cast<float>(Single));
    }
    if (Suffix == 'd')
        return TFormValue::Date(ExtendedToDouble(*Value));
    if (Suffix == 'c') {
        const double Scaled = std::nearbyint(ExtendedToDouble(*Value));
        if (const auto Exact = ReadDigits(Text.substr(Text[0] == '-'), 10); Exact && *Exact <= INT64_MAX) {
            const auto Units = static_cast<std::int64_t>(*Exact);
            return TFormValue::Currency(Text[0] == '-' ? -Units : Units);
        }
        if (std::fabs(Scaled) > 9.2e18)
            Fail(Start, "the number is too large");
        return TFormValue::Currency(static_cast<std::int64_t>(Scaled));
    }
    const std::size_t Point = Text.find('.');
    if (Point != Text.npos)
        ++(Text.size() - Point == 19 ? FTraits.FixedFloats : FTraits.ShortFloats);
    return TFormValue::Extended(*Value);
}

TFormValue TFormTextParser::ParseIdent()
{
    // Else a missing value would take the end of its object.
    if (SameName(PeekName(), "end"))
        FailExpected("a value");
    std::string Name = TakeName("a value");
    if (const auto Special = ExtendedFromName(Name))
        return TFormValue::Extended(*Special);
    return TFormValue::Ident(std::move(Name));
}

TFormValue TFormTextParser::ParseSet()
{
    std::vector<std::string> Elements;
    ++FPos;
    SkipBlanks();
    while (!SkipIf(']')) {
        if (IsDigit(Current())) {
            const std::size_t Start = FPos;
            while (IsDigit(Current()))
                ++FPos;
            Elements.emplace_back(FText.substr(Start, FPos - Start));
        } else {
            Elements.push_back(TakeName("an element of a set"));
        }
        SkipBlanks();
        if (SkipIf(',')) {
            SkipBlanks();
            if (Current() == ']')
                FailExpected("an element of a set");
        } else if (Current() != ']') {
            FailExpected("\",\" or \"]\"");
        }
    }
    return TFormValue::Set(std::move(Elements));
}

TFormValue TFormTextParser::ParseList(TFormSpan& Span, int Depth)
{
    std::vector<TFormValue> Values;
    const std::size_t Start = FPos++;
    TFormSpan Parts = SpanFrom(Start);
    for (;;) {
        Parts.Close = static_cast<std::uint32_t>(FPos);
        SkipBlanks();
        if (AtEnd())
            Fail(Start, "the list is not closed");
        if (SkipIf(')'))
            break;
        FPos = Parts.Close;
        Values.push_back(ParseValue(Depth + 1));
    }
    if (!Values.empty())
        ++(OwnLine(FPos - 1) ? FTraits.Lfm : FTraits.Dfm);
    Parts.End = static_cast<std::uint32_t>(FPos);
    Span = std::move(Parts);
    return TFormValue::List(std::move(Values));
}

TFormValue TFormTextParser::ParseCollection(TFormSpan& Span, int Depth)
{
    std::vector<TFormItem> Items;
    const std::size_t Start = FPos++;
    TFormSpan Parts = SpanFrom(Start);
    for (;;) {
        Parts.Close = static_cast<std::uint32_t>(FPos);
        SkipBlanks();
        if (AtEnd())
            Fail(Start, "the collection is not closed");
        if (SkipIf('>'))
            break;
        if (!SameName(PeekName(), "item"))
            FailExpected("\"item\" or \">\"");
        // Blanks behind `<` and `end` show one dialect, none there the other.
        ++(FText[Parts.Close] == ' ' ? FTraits.Lfm : FTraits.Dfm);
        FPos = Parts.Close;
        Items.push_back(ParseItem(Depth + 1));
    }
    Parts.End = static_cast<std::uint32_t>(FPos);
    Span = std::move(Parts);
    return TFormValue::Collection(std::move(Items));
}

TFormItem TFormTextParser::ParseItem(int Depth)
{
    const std::size_t Begin = FPos;
    SkipBlanks();
    FPos += PeekName().size();
    TFormItem Item;
    Item.InitHeader(ParseIndex());
    TFormSpan Span = SpanFrom(Begin);
    ParseProperties(Item, Depth);
    ParseEnd(Span, "the item");
    Item.SetSpan(std::move(Span));
    return Item;
}

TFormValue TFormTextParser::ParseBinary()
{
    const std::size_t Start = FPos++;
    const std::size_t Stop = FText.find('}', FPos);
    if (Stop == FText.npos)
        Fail(Start, "the binary block is not closed");
    std::string Bytes;
    Bytes.reserve((Stop - FPos) / 2);
    int High = -1;
    for (; FPos < Stop; ++FPos) {
        const int Digit = HexDigit(FText[FPos]);
        if (Digit < 0 && IsBlank(FText[FPos]))
            continue;
        if (Digit < 0)
            FailExpected("a hexadecimal digit");
        if (High < 0) {
            High = Digit;
        } else {
            Bytes += static_cast<char>(High << 4 | Digit);
            High = -1;
        }
    }
    if (High >= 0)
        Fail(Stop, "the binary block has an odd number of digits");
    ++FPos;
    ++(OwnLine(Stop) ? FTraits.Lfm : FTraits.Dfm);
    return TFormValue::Binary(std::move(Bytes));
}
