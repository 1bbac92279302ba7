#include "framework/streaming/FormTextParser.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "framework/streaming/FormNames.h"

namespace {

constexpr int PieceLength = 64; // of long strings in a .dfm

bool IsBlank(char Sign)
{
    return Sign == ' ' || (Sign >= '\t' && Sign <= '\r');
}

bool IsDigit(char Sign)
{
    return Sign >= '0' && Sign <= '9';
}

int HexDigit(char Sign)
{
    if (IsDigit(Sign))
        return Sign - '0';
    const char Lower = LowerLetter(Sign);
    return Lower >= 'a' && Lower <= 'f' ? Lower - 'a' + 10 : -1;
}

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

void TFormTextParser::SkipBlanks()
{
    while (FPos < FText.size() && IsBlank(FText[FPos]))
        ++FPos;
}

bool TFormTextParser::SkipIf(char Sign)
{
    if (Current() != Sign || AtEnd())
        return false;
    ++FPos;
    return true;
}

// Whether only blanks stand before Pos on its line.
bool TFormTextParser::OwnLine(std::size_t Pos) const
{
    while (Pos > 0 && (FText[Pos - 1] == ' ' || FText[Pos - 1] == '\t'))
        --Pos;
    return Pos > 0 && (FText[Pos - 1] == '\n' || FText[Pos - 1] == '\r');
}

void TFormTextParser::Fail(std::size_t Pos, const std::string& Message) const
{
    throw FSource->ErrorAt(static_cast<std::uint32_t>(Pos), Message);
}

// What stands at the current position, for a message.
std::string TFormTextParser::Found() const
{
    if (AtEnd())
        return "the end of the file";
    for (const char Sign : {'<', '=', '>', '|'})
        if (FText.substr(FPos, 7) == std::string(7, Sign))
            return "a merge conflict mark";
    std::size_t Length = std::min<std::size_t>(NameLength(FPos), 40);
    if (Length == 0)
        Length = FCodec.CharLength(FText.substr(FPos));
    if (static_cast<unsigned char>(Current()) < ' ')
        return "the character with code " + std::to_string(static_cast<int>(Current()));
    std::string Result = "\"";
    FCodec.Decode(FText.substr(FPos, Length), Result);
    return Result + "\"";
}

void TFormTextParser::FailExpected(const std::string& What) const
{
    Fail(FPos, What + " expected but " + Found() + " found");
}

// Of a name with its dots; 0 when there is none. `&` may stand in front.
std::size_t TFormTextParser::NameLength(std::size_t Pos) const
{
    std::size_t End = Pos;
    if (End < FText.size() && FText[End] == '&')
        ++End;
    if (End >= FText.size() || !IsNameSign(FText[End]) || IsDigit(FText[End]))
        return 0;
    while (End < FText.size()) {
        const char Sign = FText[End];
        if (static_cast<unsigned char>(Sign) >= 0x80)
            End += FCodec.CharLength(FText.substr(End));
        else if (IsNameSign(Sign) || (Sign == '.' && End + 1 < FText.size() && IsNameSign(FText[End + 1])))
            ++End;
        else
            break;
    }
    return End - Pos;
}

std::string TFormTextParser::TakeName(const char* What)
{
    SkipBlanks();
    const std::string_view Name = PeekName();
    if (Name.empty())
        FailExpected(What);
    FPos += Name.size();
    std::string Result;
    FCodec.Decode(Name, Result);
    return Result;
}

bool TFormTextParser::NextIsEquals(std::size_t Pos) const
{
    while (Pos < FText.size() && IsBlank(FText[Pos]))
        ++Pos;
    return Pos < FText.size() && FText[Pos] == '=';
}

TFormSpan TFormTextParser::SpanFrom(std::size_t Begin) const
{
    const auto End = static_cast<std::uint32_t>(FPos);
    return {FSource, static_cast<std::uint32_t>(Begin), End, End, End};
}

void TFormTextParser::Parse(TFormDocument& Document)
{
    if (FSource->Text.Bom)
        FPos = 3;
    Document.Frame = SpanFrom(0);
    TFormObjectKind Kind;
    const std::size_t Begin = FPos;
    SkipBlanks();
    if (!AtObject(Kind))
        Fail(FPos,
             "not a form file: \"object\", \"inherited\" or \"inline\" expected but " + Found() + " found");
    FPos = Begin;
    ParseObject(Document.Root, 1);
    Document.Frame.Close = static_cast<std::uint32_t>(FPos);
    // Old editors end a file with code 26 or fill its last block with zeros.
    while (!AtEnd() && (IsBlank(Current()) || Current() == '\0' || Current() == '\x1A'))
        ++FPos;
    if (!AtEnd())
        FailExpected("the end of the file");
    Document.Frame.End = static_cast<std::uint32_t>(FPos);
}

bool TFormTextParser::AtObject(TFormObjectKind& Kind) const
{
    const std::string_view Name = PeekName();
    if (SameName(Name, "object"))
        Kind = TFormObjectKind::Object;
    else if (SameName(Name, "inherited"))
        Kind = TFormObjectKind::Inherited;
    else if (SameName(Name, "inline"))
        Kind = TFormObjectKind::Inline;
    else
        return false;
    return !NextIsEquals(FPos + Name.size());
}

// At the blanks before `object`.
void TFormTextParser::ParseObject(TFormObject& Object, int Depth)
{
    const std::size_t Begin = FPos;
    SkipBlanks();
    if (Depth > MaxFormDepth)
        Fail(FPos, "objects are nested more than " + std::to_string(MaxFormDepth) + " deep");
    TFormObjectKind Kind = TFormObjectKind::Object;
    AtObject(Kind);
    FPos += PeekName().size();
    ParseHeader(Object, Kind);
    TFormSpan Span = SpanFrom(Begin);
    ParseProperties(Object, Depth);
    for (;;) {
        const std::size_t Before = FPos;
        SkipBlanks();
        const bool IsChild = AtObject(Kind);
        FPos = Before;
        if (!IsChild)
            break;
        ParseObject(Object.Children().emplace_back(), Depth + 1);
    }
    ParseEnd(Span, Object.Name().empty() ? Object.ClassName() : Object.Name());
    Object.SetSpan(std::move(Span));
}

void TFormTextParser::ParseHeader(TFormObject& Object, TFormObjectKind Kind)
{
    SkipBlanks();
    std::string Name, ClassName;
    if (Current() != ':')
        Name = TakeName("the name of an object");
    const std::size_t AfterName = FPos;
    SkipBlanks();
    if (SkipIf(':')) {
        ClassName = TakeName("the class of an object");
        while (Current() == '/') { // a class with its unit
            ++FPos;
            ClassName += '/' + TakeName("the class of an object");
        }
    } else {
        FPos = AfterName;
        ClassName.swap(Name);
    }
    const std::size_t AfterClass = FPos;
    const auto Position = ParseIndex();
    if (Position)
        ++(FText[AfterClass] == '[' ? FTraits.Lfm : FTraits.Dfm);
    Object.InitHeader(Kind, std::move(Name), std::move(ClassName), Position);
}

// `[3]`, or nothing.
std::optional<std::int64_t> TFormTextParser::ParseIndex()
{
    const std::size_t Before = FPos;
    SkipBlanks();
    if (!SkipIf('[')) {
        FPos = Before;
        return std::nullopt;
    }
    SkipBlanks();
    if (!IsDigit(Current()) && Current() != '-')
        FailExpected("a position");
    const std::size_t Start = FPos;
    const TFormValue Value = ParseNumber();
    if (!Value.Is(TFormValueKind::Integer))
        Fail(Start, "a position must be a whole number");
    SkipBlanks();
    if (!SkipIf(']'))
        FailExpected("\"]\"");
    return Value.AsInteger();
}

void TFormTextParser::ParseProperties(TFormProperties& Owner, int Depth)
{
    for (;;) {
        const std::size_t Begin = FPos;
        SkipBlanks();
        const std::string_view Name = PeekName();
        if (Name.empty() || !NextIsEquals(FPos + Name.size())) {
            TFormObjectKind Kind;
            if (!Name.empty() && !SameName(Name, "end") && !AtObject(Kind)) {
                const std::string What = Found();
                FPos += Name.size();
                SkipBlanks();
                FailExpected("\"=\" after " + What);
            }
            FPos = Begin;
            return;
        }
        std::string Decoded;
        FCodec.Decode(Name, Decoded);
        if (Decoded == "LCLVersion")
            FTraits.Lfm += 5;
        FPos += Name.size();
        SkipBlanks();
        SkipIf('=');
        TFormSpan NameSpan = SpanFrom(Begin);
        Owner.Add(std::move(Decoded), ParseValue(Depth + 1)).SetNameSpan(std::move(NameSpan));
    }
}

void TFormTextParser::ParseEnd(TFormSpan& Span, const std::string& Whose)
{
    Span.Close = static_cast<std::uint32_t>(FPos);
    SkipBlanks();
    const std::string_view Name = PeekName();
    if (!SameName(Name, "end"))
        FailExpected("a property, an object or the \"end\" of " + Whose);
    FPos += Name.size();
    Span.End = static_cast<std::uint32_t>(FPos);
}

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
