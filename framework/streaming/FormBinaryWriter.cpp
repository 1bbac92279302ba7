#include "framework/streaming/FormBinary.h"

#include <bit>
#include <limits>

#include "framework/streaming/FormBinaryTypes.h"
#include "framework/streaming/FormEncoding.h"
#include "framework/streaming/FormSource.h"

namespace {

constexpr std::size_t MaxShort = 255;

template<class TNumber>
bool Fits(std::int64_t Value)
{
    return Value >= std::numeric_limits<TNumber>::min() && Value <= std::numeric_limits<TNumber>::max();
}

class TFormBinaryWriter {
public:
    TFormBinaryWriter(const TFormDocument& Document, const TFormBinaryProfile& Profile,
                      const TFormCodec& Codec);

    std::string Write();

private:
    bool IsSpelled(const TFormSpan& Span) const { return FSource && Span.Source.get() == FSource; }
    void Copy(std::uint32_t Begin, std::uint32_t End) { FOut += FSource->Slice(Begin, End); }
    void PutType(TFormWireType Type) { FOut += static_cast<char>(Type); }
    void PutNumber(std::uint64_t Value, int Bytes);
    void PutShort(std::string_view Bytes);
    void PutName(std::string_view Name) { PutShort(EncodeName(Name)); }
    std::string EncodeName(std::string_view Name) const;
    std::string ResourceHeader(std::size_t Length) const;

    void WriteObject(const TFormObject& Object);
    void WriteHeader(const TFormObject& Object);
    void WriteProperties(const TFormProperties& Owner);
    void WriteValue(const TFormValue& Value);
    void WritePart(const TFormValue& Value);
    void WriteInteger(std::int64_t Value);
    void WriteFloat(const TFormValue& Value);
    void WriteIdent(const TFormValue& Value);
    void WriteString(const std::string& Text);
    void WriteItem(const TFormItem& Item);

    const TFormDocument& FDocument;
    const TFormBinaryProfile& FProfile;
    const TFormCodec& FCodec;
    const TFormSource* FSource = nullptr; // whose spelling is kept; null for none
    std::string FOut;
};

TFormBinaryWriter::TFormBinaryWriter(const TFormDocument& Document, const TFormBinaryProfile& Profile,
                                     const TFormCodec& Codec)
    : FDocument(Document), FProfile(Profile), FCodec(Codec)
{
    const TFormSource* const Source = Document.Source.get();
    if (Source && Source->Format == TFormFormat::Binary && Source->Binary == Profile)
        FSource = Source;
}

std::string TFormBinaryWriter::Write()
{
    WriteObject(FDocument.Root);
    std::string Body = std::move(FOut);
    if (!FSource) {
        const std::string Header =
            FProfile.ResourceHeader ? ResourceHeader(FormSignature.size() + Body.size()) : std::string();
        return Header + std::string(FormSignature) + Body;
    }
    const TFormSpan& Frame = FDocument.Frame;
    FOut.clear();
    Copy(Frame.Begin, Frame.Open);
    if (FProfile.ResourceHeader) {
        // The length in the header is kept, right or wrong, but for the change.
        const std::size_t LengthAt = Frame.Open - FormSignature.size() - 4;
        std::uint32_t Length = 0;
        for (std::size_t Index = 4; Index-- > 0;)
            Length = Length << 8 | static_cast<unsigned char>(FOut[LengthAt + Index]);
        Length += static_cast<std::uint32_t>(Body.size()) - (Frame.Close - Frame.Open);
        for (std::size_t Index = 0; Index < 4; ++Index)
            FOut[LengthAt + Index] = static_cast<char>(Length >> 8 * Index);
    }
    FOut += Body;
    Copy(Frame.Close, Frame.End);
    return std::move(FOut);
}

std::string TFormBinaryWriter::ResourceHeader(std::size_t Length) const
{
    std::string Name = FProfile.ResourceName;
    if (Name.empty()) {
        Name = EncodeName(FDocument.Root.ClassName());
        for (char& Letter : Name)
            if (Letter >= 'a' && Letter <= 'z')
                Letter = static_cast<char>(Letter - ('a' - 'A'));
    }
    std::string Result(FormResourceStart);
    Result.append(Name, 0, Name.find('\0')); // a zero byte ends it
    Result += '\0';
    Result += FormResourceFlags;
    for (int Index = 0; Index < 4; ++Index)
        Result += static_cast<char>(Length >> 8 * Index);
    return Result;
}

// Least significant byte first.
void TFormBinaryWriter::PutNumber(std::uint64_t Value, int Bytes)
{
    for (; Bytes > 0; --Bytes, Value >>= 8)
        FOut += static_cast<char>(Value);
}

void TFormBinaryWriter::PutShort(std::string_view Bytes)
{
    if (Bytes.size() > MaxShort)
        throw FDocument.ErrorAt(FDocument.Root, "the name " + std::string(Bytes.substr(0, 40)) +
                                                    "... is too long for a binary form file");
    FOut += static_cast<char>(Bytes.size());
    FOut += Bytes;
}

// In the code page if that is what the file uses and it has all characters.
std::string TFormBinaryWriter::EncodeName(std::string_view Name) const
{
    if (FProfile.CodePageStrings && !IsAscii(Name)) {
        std::string Result;
        bool Complete = true;
        for (std::size_t Pos = 0; Pos < Name.size() && Complete;)
            Complete = FCodec.Encode(NextChar(Name, Pos), Result);
        if (Complete && !IsValidUtf8(Result))
            return Result;
    }
    if (!IsValidUtf8(Name))
        throw FDocument.ErrorAt(FDocument.Root, "a name cannot be written in a binary form file");
    return std::string(Name);
}

void TFormBinaryWriter::WriteObject(const TFormObject& Object)
{
    const TFormSpan& Span = Object.Span();
    if (IsSpelled(Span) && !Object.HeaderChanged())
        Copy(Span.Begin, Span.Open);
    else
        WriteHeader(Object);
    WriteProperties(Object);
    for (const auto& Child : Object.Children())
        WriteObject(Child);
    PutType(TFormWireType::Null);
}

void TFormBinaryWriter::WriteHeader(const TFormObject& Object)
{
    std::uint8_t Flags = 0;
    if (Object.Kind() == TFormObjectKind::Inherited)
        Flags |= FlagInherited;
    if (Object.Kind() == TFormObjectKind::Inline)
        Flags |= FlagInline;
    if (Object.Position())
        Flags |= FlagPosition;
    // The length of a very long class name would pass for flags.
    const std::string ClassName = EncodeName(Object.ClassName());
    if (Flags != 0 || ClassName.size() >= FlagsMark)
        FOut += static_cast<char>(FlagsMark | Flags);
    if (Object.Position())
        WriteInteger(*Object.Position());
    PutShort(ClassName);
    PutName(Object.Name());
}

void TFormBinaryWriter::WriteProperties(const TFormProperties& Owner)
{
    for (const auto& Property : Owner.Properties()) {
        const TFormSpan& Span = Property.NameSpan();
        if (IsSpelled(Span))
            Copy(Span.Begin, Span.End);
        else
            PutName(Property.Name());
        WriteValue(Property.Value);
    }
    PutType(TFormWireType::Null);
}

void TFormBinaryWriter::WriteValue(const TFormValue& Value)
{
    if (IsSpelled(Value.Span()) && !Value.PartsTouched()) {
        Copy(Value.Span().Begin, Value.Span().End);
        return;
    }
    switch (Value.Kind()) {
    case TFormValueKind::Integer:
        WriteInteger(Value.AsInteger());
        break;
    case TFormValueKind::Float:
        WriteFloat(Value);
        break;
    case TFormValueKind::String:
        WriteString(Value.AsString());
        break;
    case TFormValueKind::Ident:
        WriteIdent(Value);
        break;
    case TFormValueKind::Set:
        PutType(TFormWireType::Set);
        for (const auto& Element : Value.AsSet())
            PutName(Element);
        PutShort({});
        break;
    case TFormValueKind::List:
        PutType(TFormWireType::List);
        for (const auto& Part : Value.AsList())
            WritePart(Part);
        PutType(TFormWireType::Null);
        break;
    case TFormValueKind::Collection:
        PutType(TFormWireType::Collection);
        for (const auto& Item : Value.AsCollection())
            WriteItem(Item);
        PutType(TFormWireType::Null);
        break;
    case TFormValueKind::Binary:
        PutType(TFormWireType::Binary);
        PutNumber(Value.AsBinary().size(), 4);
        FOut += Value.AsBinary();
        break;
    }
}

// A value of a list, which the type byte of Null would end.
void TFormBinaryWriter::WritePart(const TFormValue& Value)
{
    if (!Value.IsIdent("Null")) {
        WriteValue(Value);
        return;
    }
    PutType(TFormWireType::Ident);
    PutName(Value.AsIdent());
}

// In the smallest type that holds it.
void TFormBinaryWriter::WriteInteger(std::int64_t Value)
{
    const auto Bits = static_cast<std::uint64_t>(Value);
    if (Fits<std::int8_t>(Value)) {
        PutType(TFormWireType::Int8);
        PutNumber(Bits, 1);
    } else if (Fits<std::int16_t>(Value)) {
        PutType(TFormWireType::Int16);
        PutNumber(Bits, 2);
    } else if (Fits<std::int32_t>(Value)) {
        PutType(TFormWireType::Int32);
        PutNumber(Bits, 4);
    } else {
        PutType(TFormWireType::Int64);
        PutNumber(Bits, 8);
    }
}

void TFormBinaryWriter::WriteFloat(const TFormValue& Value)
{
    switch (Value.FloatType()) {
    case TFormFloatType::Extended:
        PutType(TFormWireType::Extended);
        PutNumber(Value.AsExtended().Mantissa, 8);
        PutNumber(Value.AsExtended().SignExponent, 2);
        break;
    case TFormFloatType::Single:
        PutType(TFormWireType::Single);
        PutNumber(std::bit_cast<std::uint32_t>(static_cast<float>(Value.AsFloat())), 4);
        break;
    case TFormFloatType::Currency:
        PutType(TFormWireType::Currency);
        PutNumber(static_cast<std::uint64_t>(Value.AsCurrency()), 8);
        break;
    case TFormFloatType::Date:
        PutType(TFormWireType::Date);
        PutNumber(std::bit_cast<std::uint64_t>(Value.AsFloat()), 8);
        break;
    case TFormFloatType::Double:
        PutType(TFormWireType::Double);
        PutNumber(std::bit_cast<std::uint64_t>(Value.AsFloat()), 8);
        break;
    }
}

void TFormBinaryWriter::WriteIdent(const TFormValue& Value)
{
    if (Value.IsIdent("True")) {
        PutType(TFormWireType::True);
    } else if (Value.IsIdent("False")) {
        PutType(TFormWireType::False);
    } else if (Value.IsNil()) {
        PutType(TFormWireType::Nil);
    } else if (Value.IsIdent("Null")) {
        PutType(TFormWireType::Null);
    } else {
        PutType(TFormWireType::Ident);
        PutName(Value.AsIdent());
    }
}

void TFormBinaryWriter::WriteString(const std::string& Text)
{
    bool InCodePage = IsAscii(Text);
    bool InUtf8 = IsValidUtf8(Text);
    std::string Bytes = InCodePage ? Text : std::string();
    if (!InCodePage) {
        InCodePage = FProfile.CodePageStrings;
        for (std::size_t Pos = 0; Pos < Text.size();) {
            const char32_t Character = NextChar(Text, Pos);
            InUtf8 = InUtf8 && !EscapedByte(Character);
            InCodePage = InCodePage && FCodec.Encode(Character, Bytes);
        }
    }
    if (InCodePage && Bytes.size() <= MaxShort) {
        PutType(TFormWireType::String);
        PutNumber(Bytes.size(), 1);
        FOut += Bytes;
    } else if (InCodePage) {
        PutType(TFormWireType::LongString);
        PutNumber(Bytes.size(), 4);
        FOut += Bytes;
    } else if (InUtf8) {
        PutType(TFormWireType::Utf8String);
        PutNumber(Text.size(), 4);
        FOut += Text;
    } else {
        const std::string Wide = Utf8ToUtf16(Text, false);
        PutType(TFormWireType::WideString);
        PutNumber(Wide.size() / 2, 4);
        FOut += Wide;
    }
}

void TFormBinaryWriter::WriteItem(const TFormItem& Item)
{
    const TFormSpan& Span = Item.Span();
    if (IsSpelled(Span) && !Item.HeaderChanged()) {
        Copy(Span.Begin, Span.Open);
    } else {
        if (Item.Index())
            WriteInteger(*Item.Index());
        PutType(TFormWireType::List);
    }
    WriteProperties(Item);
}

} // namespace

std::string WriteFormBinary(const TFormDocument& Document)
{
    return WriteFormBinary(Document, Document.Binary);
}

std::string WriteFormBinary(const TFormDocument& Document, const TFormBinaryProfile& Profile)
{
    const auto Codec = TFormCodec::Find(TFormEncoding::CodePage, Profile.CodePage);
    if (!Codec)
        throw Document.ErrorAt(TFormSpan{},
                               "code page " + std::to_string(Profile.CodePage) + " is not known");
    return TFormBinaryWriter(Document, Profile, *Codec).Write();
}
