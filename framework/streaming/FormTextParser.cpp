#include "framework/streaming/FormTextParser.h"

#include <algorithm>

#include "framework/streaming/FormNames.h"

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
