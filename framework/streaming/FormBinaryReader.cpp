#include "framework/streaming/FormBinary.h"

#include <bit>
#include <memory>
#include <type_traits>

#include "framework/streaming/FormBinaryTypes.h"
#include "framework/streaming/FormEncoding.h"
#include "framework/streaming/FormLimits.h"
#include "framework/streaming/FormSource.h"

namespace {

class TFormBinaryReader {
public:
    TFormBinaryReader(std::shared_ptr<const TFormSource> Source, const TFormCodec& Codec,
                      TFormBinaryProfile& Profile)
        : FSource(std::move(Source)), FBytes(FSource->Bytes), FCodec(Codec), FProfile(Profile)
    {
    }

    void Read(TFormDocument& Document);

private:
    [[noreturn]] void Fail(std::size_t Pos, const std::string& Message) const
    {
        throw FSource->ErrorAt(static_cast<std::uint32_t>(Pos), Message);
    }
    void Need(std::uint64_t Count, const char* What) const;
    void CheckDepth(int Depth) const;
    TFormSpan SpanFrom(std::size_t Begin) const;

    std::string_view Take(std::size_t Count, const char* What);
    std::string_view TakeShort(const char* What);
    std::string_view TakeLong(unsigned Unit, const char* What);
    template<class TNumber>
    TNumber TakeNumber(const char* What);
    bool SkipNull();
    std::string Name(std::string_view Bytes) const;

    void ReadFrame(TFormSpan& Frame);
    void ReadObject(TFormObject& Object, int Depth);
    void ReadProperties(TFormProperties& Owner, int Depth);
    TFormValue ReadValue(int Depth);
    TFormValue ReadBare(TFormSpan& Span, int Depth);
    std::int64_t ReadInteger();
    TFormValue ReadString(std::string_view Bytes);
    TFormValue ReadWideString();
    TFormValue ReadIdent();
    TFormValue ReadSet();
    TFormValue ReadList(TFormSpan& Span, int Depth);
    TFormValue ReadCollection(TFormSpan& Span, int Depth);
    TFormItem ReadItem(int Depth);

    std::shared_ptr<const TFormSource> FSource;
    std::string_view FBytes;
    const TFormCodec& FCodec;
    TFormBinaryProfile& FProfile;
    std::size_t FPos = 0;
};

void TFormBinaryReader::Need(std::uint64_t Count, const char* What) const
{
    if (Count > FBytes.size() - FPos)
        Fail(FPos, std::string("the file ends within ") + What + ": " + std::to_string(Count) +
                       " more bytes needed, " + std::to_string(FBytes.size() - FPos) + " left");
}

void TFormBinaryReader::CheckDepth(int Depth) const
{
    if (Depth > MaxFormDepth)
        Fail(FPos, "objects and values are nested more than " + std::to_string(MaxFormDepth) + " deep");
}

TFormSpan TFormBinaryReader::SpanFrom(std::size_t Begin) const
{
    const auto End = static_cast<std::uint32_t>(FPos);
    return {FSource, static_cast<std::uint32_t>(Begin), End, End, End};
}

std::string_view TFormBinaryReader::Take(std::size_t Count, const char* What)
{
    Need(Count, What);
    const auto Result = FBytes.substr(FPos, Count);
    FPos += Count;
    return Result;
}

// A length in one byte and as many bytes.
std::string_view TFormBinaryReader::TakeShort(const char* What)
{
    return Take(TakeNumber<std::uint8_t>(What), What);
}

// A number of units in four bytes and the units.
std::string_view TFormBinaryReader::TakeLong(unsigned Unit, const char* What)
{
    const auto Start = FPos;
    const auto Count = TakeNumber<std::int32_t>(What);
    if (Count < 0)
        Fail(Start, std::string("negative length of ") + What);
    Need(static_cast<std::uint64_t>(Count) * Unit, What);
    return Take(static_cast<std::size_t>(Count) * Unit, What);
}

// Least significant byte first.
template<class TNumber>
TNumber TFormBinaryReader::TakeNumber(const char* What)
{
    std::make_unsigned_t<TNumber> Result = 0;
    const auto Bytes = Take(sizeof(TNumber), What);
    for (std::size_t Index = sizeof(TNumber); Index-- > 0;)
        Result = static_cast<decltype(Result)>(static_cast<std::uint64_t>(Result) << 8 |
                                               static_cast<unsigned char>(Bytes[Index]));
    return static_cast<TNumber>(Result);
}

bool TFormBinaryReader::SkipNull()
{
    Need(1, "a list");
    if (FBytes[FPos] != 0)
        return false;
    ++FPos;
    return true;
}

// Newer files have names in UTF-8, older ones in the code page.
std::string TFormBinaryReader::Name(std::string_view Bytes) const
{
    std::string Result;
    if (IsValidUtf8(Bytes))
        Result = Bytes;
    else
        FCodec.Decode(Bytes, Result);
    return Result;
}

void TFormBinaryReader::Read(TFormDocument& Document)
{
    ReadFrame(Document.Frame);
    ReadObject(Document.Root, 1);
    Document.Frame.Close = static_cast<std::uint32_t>(FPos);
    Document.Frame.End = static_cast<std::uint32_t>(FBytes.size());
}

void TFormBinaryReader::ReadFrame(TFormSpan& Frame)
{
    if (FBytes.substr(0, 3) == DamagedResourceStart)
        Fail(0, "binary form file damaged by line-end conversion: every line feed has become CR LF");
    FProfile.ResourceHeader = FBytes.substr(0, 3) == FormResourceStart;
    if (FProfile.ResourceHeader) {
        FPos = 3;
        const std::size_t Stop = FBytes.substr(0, FPos + 256).find('\0', FPos);
        if (Stop == FBytes.npos)
            Fail(FPos, "the resource name has no end");
        FProfile.ResourceName = FBytes.substr(FPos, Stop - FPos);
        FPos = Stop + 1;
        Take(6, "the resource header");
    }
    const std::size_t Start = FPos;
    if (Take(FormSignature.size(), "the signature") != FormSignature)
        Fail(Start, "not a form file: \"TPF0\" expected");
    Frame = SpanFrom(0);
}

void TFormBinaryReader::ReadObject(TFormObject& Object, int Depth)
{
    const std::size_t Begin = FPos;
    CheckDepth(Depth);
    Need(1, "an object");
    std::uint8_t Flags = static_cast<std::uint8_t>(FBytes[FPos]);
    if ((Flags & FlagsMark) == FlagsMark)
        ++FPos;
    else
        Flags = 0;
    if ((Flags & ~(FlagsMark | FlagInherited | FlagPosition | FlagInline)) != 0)
        Fail(Begin, "unknown flags before an object");
    const auto Kind = Flags & FlagInherited ? TFormObjectKind::Inherited
                      : Flags & FlagInline  ? TFormObjectKind::Inline
                                            : TFormObjectKind::Object;
    std::optional<std::int64_t> Position;
    if (Flags & FlagPosition)
        Position = ReadInteger();
    const std::size_t ClassStart = FPos;
    std::string ClassName = Name(TakeShort("a class name"));
    if (ClassName.empty())
        Fail(ClassStart, "an object without a class");
    std::string ObjectName = Name(TakeShort("an object name"));
    Object.InitHeader(Kind, std::move(ObjectName), std::move(ClassName), Position);
    TFormSpan Span = SpanFrom(Begin);
    ReadProperties(Object, Depth);
    while (!SkipNull())
        ReadObject(Object.Children().emplace_back(), Depth + 1);
    Span.Close = static_cast<std::uint32_t>(FPos) - 1;
    Span.End = static_cast<std::uint32_t>(FPos);
    Object.SetSpan(std::move(Span));
}

void TFormBinaryReader::ReadProperties(TFormProperties& Owner, int Depth)
{
    while (!SkipNull()) {
        const std::size_t Begin = FPos;
        std::string PropertyName = Name(TakeShort("a property name"));
        TFormSpan NameSpan = SpanFrom(Begin);
        Owner.Add(std::move(PropertyName), ReadValue(Depth + 1)).SetNameSpan(std::move(NameSpan));
    }
}

TFormValue TFormBinaryReader::ReadValue(int Depth)
{
    const std::size_t Begin = FPos;
    CheckDepth(Depth);
    TFormSpan Span;
    TFormValue Result = ReadBare(Span, Depth);
    if (!Span.Source)
        Span = SpanFrom(Begin);
    Span.Begin = static_cast<std::uint32_t>(Begin);
    Result.SetSpan(std::move(Span));
    return Result;
}

TFormValue TFormBinaryReader::ReadBare(TFormSpan& Span, int Depth)
{
    const std::size_t Start = FPos;
    const auto Type = TFormWireType(TakeNumber<std::uint8_t>("a value"));
    switch (Type) {
    case TFormWireType::Null:
        return TFormValue::Ident("Null");
    case TFormWireType::Nil:
        return TFormValue::Nil();
    case TFormWireType::False:
    case TFormWireType::True:
        return TFormValue::Boolean(Type == TFormWireType::True);
    case TFormWireType::Int8:
    case TFormWireType::Int16:
    case TFormWireType::Int32:
    case TFormWireType::Int64:
        FPos = Start;
        return TFormValue::Integer(ReadInteger());
    case TFormWireType::Extended: {
        const auto Mantissa = TakeNumber<std::uint64_t>("a number");
        return TFormValue::Extended({Mantissa, TakeNumber<std::uint16_t>("a number")});
    }
    case TFormWireType::Single:
        return TFormValue::Single(std::bit_cast<float>(TakeNumber<std::uint32_t>("a number")));
    case TFormWireType::Double:
        return TFormValue::Double(std::bit_cast<double>(TakeNumber<std::uint64_t>("a number")));
    case TFormWireType::Date:
        return TFormValue::Date(std::bit_cast<double>(TakeNumber<std::uint64_t>("a date")));
    case TFormWireType::Currency:
        return TFormValue::Currency(TakeNumber<std::int64_t>("a number"));
    case TFormWireType::String:
        return ReadString(TakeShort("a string"));
    case TFormWireType::LongString:
        return ReadString(TakeLong(1, "a string"));
    case TFormWireType::Utf8String: {
        std::string Text;
        TFormCodec::Find(TFormEncoding::Utf8, 0)->Decode(TakeLong(1, "a string"), Text);
        return TFormValue::String(std::move(Text));
    }
    case TFormWireType::WideString:
        return ReadWideString();
    case TFormWireType::Ident:
        return ReadIdent();
    case TFormWireType::Binary:
        return TFormValue::Binary(std::string(TakeLong(1, "a binary block")));
    case TFormWireType::Set:
        return ReadSet();
    case TFormWireType::List:
        return ReadList(Span, Depth);
    case TFormWireType::Collection:
        return ReadCollection(Span, Depth);
    }
    Fail(Start, "unknown value type " + std::to_string(static_cast<int>(Type)));
}

std::int64_t TFormBinaryReader::ReadInteger()
{
    const std::size_t Start = FPos;
    switch (TFormWireType(TakeNumber<std::uint8_t>("a number"))) {
    case TFormWireType::Int8:
        return TakeNumber<std::int8_t>("a number");
    case TFormWireType::Int16:
        return TakeNumber<std::int16_t>("a number");
    case TFormWireType::Int32:
        return TakeNumber<std::int32_t>("a number");
    case TFormWireType::Int64:
        return TakeNumber<std::int64_t>("a number");
    default:
        Fail(Start, "a whole number expected");
    }
}

TFormValue TFormBinaryReader::ReadString(std::string_view Bytes)
{
    std::string Text;
    FCodec.Decode(Bytes, Text);
    FProfile.CodePageStrings |= !IsAscii(Bytes);
    return TFormValue::String(std::move(Text));
}

TFormValue TFormBinaryReader::ReadWideString()
{
    const auto Bytes = TakeLong(2, "a string");
    return TFormValue::String(Utf16ToUtf8(Bytes, false));
}

TFormValue TFormBinaryReader::ReadIdent()
{
    std::string Text = Name(TakeShort("an identifier"));
    if (const auto Special = ExtendedFromName(Text))
        return TFormValue::Extended(*Special);
    return TFormValue::Ident(std::move(Text));
}

TFormValue TFormBinaryReader::ReadSet()
{
    std::vector<std::string> Elements;
    for (;;) {
        const auto Element = TakeShort("a set");
        if (Element.empty())
            return TFormValue::Set(std::move(Elements));
        Elements.push_back(Name(Element));
    }
}

TFormValue TFormBinaryReader::ReadList(TFormSpan& Span, int Depth)
{
    std::vector<TFormValue> Values;
    TFormSpan Parts = SpanFrom(FPos - 1);
    while (!SkipNull())
        Values.push_back(ReadValue(Depth + 1));
    Parts.Close = static_cast<std::uint32_t>(FPos) - 1;
    Parts.End = static_cast<std::uint32_t>(FPos);
    Span = std::move(Parts);
    return TFormValue::List(std::move(Values));
}

TFormValue TFormBinaryReader::ReadCollection(TFormSpan& Span, int Depth)
{
    std::vector<TFormItem> Items;
    TFormSpan Parts = SpanFrom(FPos - 1);
    while (!SkipNull())
        Items.push_back(ReadItem(Depth + 1));
    Parts.Close = static_cast<std::uint32_t>(FPos) - 1;
    Parts.End = static_cast<std::uint32_t>(FPos);
    Span = std::move(Parts);
    return TFormValue::Collection(std::move(Items));
}

TFormItem TFormBinaryReader::ReadItem(int Depth)
{
    const std::size_t Begin = FPos;
    TFormItem Item;
    if (TFormWireType(FBytes[FPos]) != TFormWireType::List)
        Item.InitHeader(ReadInteger());
    const std::size_t Start = FPos;
    if (TFormWireType(TakeNumber<std::uint8_t>("a collection")) != TFormWireType::List)
        Fail(Start, "an item of a collection expected");
    TFormSpan Span = SpanFrom(Begin);
    ReadProperties(Item, Depth);
    Span.Close = static_cast<std::uint32_t>(FPos) - 1;
    Span.End = static_cast<std::uint32_t>(FPos);
    Item.SetSpan(std::move(Span));
    return Item;
}

} // namespace

TFormDocument ReadFormBinary(std::string_view Bytes, const TFormFileOptions& Options)
{
    if (Bytes.size() > MaxFormSize)
        throw EFormFileError(Options.FileName, 0, "the form file is larger than 1 GB");
    const auto Codec = TFormCodec::Find(TFormEncoding::CodePage, Options.CodePage);
    if (!Codec)
        throw EFormFileError(Options.FileName, 0,
                             "code page " + std::to_string(Options.CodePage) + " is not known");
    const auto Source = std::make_shared<TFormSource>();
    Source->FileName = Options.FileName;
    Source->Format = TFormFormat::Binary;
    Source->Bytes = Bytes;
    Source->Binary.CodePage = Options.CodePage;

    TFormDocument Document;
    TFormBinaryReader(Source, *Codec, Source->Binary).Read(Document);
    Document.Format = TFormFormat::Binary;
    Document.Binary = Source->Binary;
    Document.Text.CodePage = Options.CodePage;
    Document.Source = Source;
    return Document;
}
