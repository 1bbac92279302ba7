// Writes text form files: spelled parts as they were read, others canonically.
#include "framework/streaming/FormText.h"

#include <algorithm>
#include <vector>

#include "framework/streaming/FormEncoding.h"
#include "framework/streaming/FormNames.h"
#include "framework/streaming/FormSource.h"

namespace {

constexpr std::size_t PieceLength = 64; // characters of a string in a row
constexpr std::size_t BytesInRow = 32;  // of a binary block
constexpr int FixedDigits = 16;         // significant digits of a float with fixed decimals
constexpr int ShortDigits = 15;         // ... and of one with as many as needed
constexpr int DoubleDigits = 17;        // tells any two doubles apart
constexpr int ExtendedDigits = 21;      // tells any two extended numbers apart

class TFormTextWriter {
public:
    TFormTextWriter(const TFormDocument& Document, const TFormTextProfile& Profile, const TFormCodec& Codec);

    std::string Write();

private:
    bool IsLfm() const { return FProfile.Dialect == TFormDialect::Lfm; }
    bool IsSpelled(const TFormSpan& Span) const { return FSource && Span.Source.get() == FSource; }
    void Put(std::string_view Bytes) { FOut += Bytes; }
    void Copy(const TFormSpan& Span, std::uint32_t Begin, std::uint32_t End)
    {
        Put(Span.Source->Slice(Begin, End));
    }
    void CopyBlanks(const TFormSpan& Span) { Copy(Span, Span.Begin, FSource->SkipBlanks(Span.Begin)); }
    void NewLine(int Level);
    void PutBlanks(int Level) { FOut.append(static_cast<std::size_t>(Level) * 2, ' '); }
    void PutName(std::string_view Name);
    void PutIdent(std::string_view Name);
    [[noreturn]] void FailName(std::string_view Name, const std::string& Why) const;

    void WriteObject(const TFormObject& Object, int Level);
    void WriteHeader(const TFormObject& Object);
    void WriteProperties(const TFormProperties& Owner, int Level);
    void WriteValue(const TFormValue& Value, int Level);
    void WriteParts(const TFormValue& Value, int Level);
    void WriteCanonical(const TFormValue& Value, int Level);
    void WriteString(const std::string& Text, int Level);
    bool EncodeRaw(char32_t Character, std::string& Bytes) const;
    std::size_t RawWidth(char32_t Character, const std::string& Bytes) const;
    bool IsLong(const std::string& Text) const;
    void WriteFloat(const TFormValue& Value);
    std::string FloatText(const TFormValue& Value) const;
    void WriteSet(const TFormValue& Value);
    void WriteList(const TFormValue& Value, int Level);
    void WriteCollection(const TFormValue& Value, int Level);
    void WriteItem(const TFormItem& Item, int Level);
    void WriteBinary(const std::string& Bytes, int Level);

    const TFormDocument& FDocument;
    const TFormTextProfile& FProfile;
    const TFormCodec& FCodec;
    const TFormSource* FSource = nullptr; // whose spelling is kept; null for none
    std::string FOut;
};

// Puts the characters of one string: quotes are opened and closed around char
// codes, and rows are cut where the dialect cuts them.
class TFormStringWriter {
public:
    TFormStringWriter(std::string& Out, std::string Cut) : FOut(Out), FCut(std::move(Cut)) {}

    // Width is what the character counts towards the length of its row.
    void PutRaw(std::string_view Bytes, std::size_t Width)
    {
        CutBefore(Width);
        if (!FOpen)
            FOut += '\'';
        FOpen = true;
        FOut += Bytes;
    }
    void PutCode(char16_t Unit)
    {
        CutBefore(1);
        Close();
        FOut += '#';
        FOut += std::to_string(static_cast<unsigned>(Unit));
    }
    void Close()
    {
        if (FOpen)
            FOut += '\'';
        FOpen = false;
    }

private:
    void CutBefore(std::size_t Width)
    {
        FRowLength += Width;
        if (FCut.empty() || FRowLength <= PieceLength)
            return;
        Close();
        FOut += FCut;
        FRowLength = Width;
    }

    std::string& FOut;
    std::string FCut; // what separates two rows; empty for a string in one row
    std::size_t FRowLength = 0;
    bool FOpen = false;
};

TFormTextWriter::TFormTextWriter(const TFormDocument& Document, const TFormTextProfile& Profile,
                                 const TFormCodec& Codec)
    : FDocument(Document), FProfile(Profile), FCodec(Codec)
{
    const TFormSource* const Source = Document.Source.get();
    if (Source && Source->Format == TFormFormat::Text && Source->Text == Profile)
        FSource = Source;
    if (Source)
        FOut.reserve(Source->Bytes.size() + Source->Bytes.size() / 8);
}

std::string TFormTextWriter::Write()
{
    if (FProfile.Bom)
        AppendChar(0xFEFF, FOut);
    WriteObject(FDocument.Root, 0);
    Put(FProfile.FinalText);
    switch (FProfile.Encoding) {
    case TFormEncoding::Utf16LE:
        return Utf8ToUtf16(FOut, false);
    case TFormEncoding::Utf16BE:
        return Utf8ToUtf16(FOut, true);
    default:
        return std::move(FOut);
    }
}

void TFormTextWriter::NewLine(int Level)
{
    Put(FProfile.LineEnd);
    PutBlanks(Level);
}

// A name as it can be read back: parts of letters, digits and underscores with
// a dot between.
void TFormTextWriter::PutName(std::string_view Name)
{
    bool Valid = !Name.empty();
    char Before = '.';
    for (const char Sign : Name) {
        const bool Special = Sign == '.' || (Sign == '&' && &Sign == Name.data());
        Valid = Valid && (Sign == '.' ? Before != '.' && Before != '&' : Special || IsNameSign(Sign));
        Before = Sign;
    }
    if (!Valid || Before == '.' || Before == '&')
        FailName(Name, "cannot be written in a text form file");
    for (std::size_t Pos = 0; Pos < Name.size();)
        if (!FCodec.Encode(NextChar(Name, Pos), FOut))
            FailName(Name, "cannot be written in code page " + std::to_string(FProfile.CodePage));
}

// A name that does not start with a digit.
void TFormTextWriter::PutIdent(std::string_view Name)
{
    if (!Name.empty() && Name[0] >= '0' && Name[0] <= '9')
        FailName(Name, "cannot be written in a text form file");
    PutName(Name);
}

void TFormTextWriter::FailName(std::string_view Name, const std::string& Why) const
{
    throw FDocument.ErrorAt(FDocument.Root.Span(), "the name \"" + std::string(Name) + "\" " + Why);
}

void TFormTextWriter::WriteObject(const TFormObject& Object, int Level)
{
    const TFormSpan& Span = Object.Span();
    const bool Spelled = IsSpelled(Span);
    if (Spelled && !Object.HeaderChanged()) {
        Copy(Span, Span.Begin, Span.Open);
    } else {
        if (Spelled)
            CopyBlanks(Span);
        else if (Level > 0)
            NewLine(Level);
        WriteHeader(Object);
    }
    WriteProperties(Object, Level + 1);
    for (const auto& Child : Object.Children())
        WriteObject(Child, Level + 1);
    if (Spelled) {
        Copy(Span, Span.Close, Span.End);
    } else {
        NewLine(Level);
        Put("end");
    }
}

void TFormTextWriter::WriteHeader(const TFormObject& Object)
{
    static constexpr std::string_view Keywords[] = {"object ", "inherited ", "inline "};
    Put(Keywords[static_cast<int>(Object.Kind())]);
    if (!Object.Name().empty()) {
        PutIdent(Object.Name());
        Put(": ");
    }
    // A class may be named with its unit: Unit1/TPanel.
    std::string_view Class = Object.ClassName();
    for (std::size_t Slash = Class.find('/'); Slash != Class.npos; Slash = Class.find('/')) {
        PutIdent(Class.substr(0, Slash));
        Put("/");
        Class.remove_prefix(Slash + 1);
    }
    PutIdent(Class);
    if (Object.Position())
        Put((IsLfm() ? "[" : " [") + std::to_string(*Object.Position()) + "]");
}

void TFormTextWriter::WriteProperties(const TFormProperties& Owner, int Level)
{
    for (const auto& Property : Owner.Properties()) {
        const TFormSpan& Span = Property.NameSpan();
        if (IsSpelled(Span)) {
            Copy(Span, Span.Begin, Span.End);
        } else {
            NewLine(Level);
            PutIdent(Property.Name());
            Put(" =");
        }
        if (!IsSpelled(Property.Value.Span()))
            Put(" ");
        WriteValue(Property.Value, Level);
    }
}

// Level is that of the property. A spelled value brings the blanks before it.
void TFormTextWriter::WriteValue(const TFormValue& Value, int Level)
{
    const TFormSpan& Span = Value.Span();
    if (!IsSpelled(Span))
        WriteCanonical(Value, Level);
    else if (!Value.PartsTouched())
        Copy(Span, Span.Begin, Span.End);
    else
        WriteParts(Value, Level);
}

// A spelled list or collection some of whose parts may have changed.
void TFormTextWriter::WriteParts(const TFormValue& Value, int Level)
{
    const bool IsList = Value.Is(TFormValueKind::List);
    const bool AnySpelled = IsList
                                ? std::any_of(Value.AsList().begin(), Value.AsList().end(),
                                              [&](const TFormValue& Part) { return IsSpelled(Part.Span()); })
                                : std::any_of(Value.AsCollection().begin(), Value.AsCollection().end(),
                                              [&](const TFormItem& Item) { return IsSpelled(Item.Span()); });
    const TFormSpan& Span = Value.Span();
    if (!AnySpelled) {
        CopyBlanks(Span);
        WriteCanonical(Value, Level);
        return;
    }
    Copy(Span, Span.Begin, Span.Open);
    if (IsList)
        for (const auto& Part : Value.AsList()) {
            if (!IsSpelled(Part.Span()))
                NewLine(Level + 1);
            WriteValue(Part, Level + 1);
        }
    else
        for (const auto& Item : Value.AsCollection())
            WriteItem(Item, Level);
    Copy(Span, Span.Close, Span.End);
}

void TFormTextWriter::WriteCanonical(const TFormValue& Value, int Level)
{
    switch (Value.Kind()) {
    case TFormValueKind::Integer:
        Put(std::to_string(Value.AsInteger()));
        break;
    case TFormValueKind::Float:
        WriteFloat(Value);
        break;
    case TFormValueKind::String:
        WriteString(Value.AsString(), Level);
        break;
    case TFormValueKind::Ident:
        if (Value.IsIdent("end"))
            FailName(Value.AsIdent(), "cannot be a value in a text form file");
        PutIdent(Value.AsIdent());
        break;
    case TFormValueKind::Set:
        WriteSet(Value);
        break;
    case TFormValueKind::List:
        WriteList(Value, Level);
        break;
    case TFormValueKind::Collection:
        WriteCollection(Value, Level);
        break;
    case TFormValueKind::Binary:
        WriteBinary(Value.AsBinary(), Level);
        break;
    }
}

// Appends the bytes of a character that is written raw inside quotes; false when
// it is written as char code.
bool TFormTextWriter::EncodeRaw(char32_t Character, std::string& Bytes) const
{
    if (Character < ' ' || (Character == '\'' && !IsLfm()))
        return false;
    if (Character > 127 && FProfile.NonAscii == TFormNonAscii::Codes)
        return false;
    if (Character == '\'')
        Bytes += '\'';
    return FCodec.Encode(Character, Bytes);
}

// Rows are measured in bytes where a code page is written raw, otherwise in
// UTF-16 code units.
std::size_t TFormTextWriter::RawWidth(char32_t Character, const std::string& Bytes) const
{
    if (FProfile.Encoding == TFormEncoding::CodePage)
        return Bytes.size();
    return Character > 0xFFFF ? 2 : 1;
}

// Whether the whole string takes more than one row.
bool TFormTextWriter::IsLong(const std::string& Text) const
{
    if (IsLfm() || Text.size() <= PieceLength)
        return false;
    std::size_t Length = 0;
    std::string Bytes;
    for (std::size_t Pos = 0; Pos < Text.size() && Length <= PieceLength; Bytes.clear()) {
        const char32_t Character = NextChar(Text, Pos);
        Length += EncodeRaw(Character, Bytes) ? RawWidth(Character, Bytes) : Character > 0xFFFF ? 2 : 1;
    }
    return Length > PieceLength;
}

void TFormTextWriter::WriteString(const std::string& Text, int Level)
{
    if (Text.empty()) {
        Put("''");
        return;
    }
    std::string Cut;
    if (IsLong(Text)) {
        NewLine(Level + 1);
        Cut = " +" + FProfile.LineEnd + std::string(static_cast<std::size_t>(Level + 1) * 2, ' ');
    }
    TFormStringWriter Writer(FOut, std::move(Cut));
    std::string Bytes;
    for (std::size_t Pos = 0; Pos < Text.size(); Bytes.clear()) {
        const char32_t Character = NextChar(Text, Pos);
        if (EncodeRaw(Character, Bytes))
            Writer.PutRaw(Bytes, RawWidth(Character, Bytes));
        else
            ForEachUnit(Character, [&](char16_t Unit) { Writer.PutCode(Unit); });
    }
    Writer.Close();
}

// The usual digits do not tell every two numbers apart: where they would read
// back as another double there are more of them.
std::string TFormTextWriter::FloatText(const TFormValue& Value) const
{
    const TFormExtended Number = Value.AsExtended();
    const bool Fixed = FProfile.FloatDecimals > 0 && (Value.FloatType() == TFormFloatType::Extended ||
                                                      Value.FloatType() == TFormFloatType::Double);
    std::string Text;
    const auto ReadsBack = [&] {
        const auto Read = ExtendedFromText(Text);
        return !Read || ExtendedToDouble(*Read) == Value.AsFloat();
    };
    for (const int Digits : {Fixed ? FixedDigits : ShortDigits, DoubleDigits}) {
        Text =
            Fixed ? ExtendedToFixed(Number, Digits, FProfile.FloatDecimals) : ExtendedToText(Number, Digits);
        if (ReadsBack())
            return Text;
    }
    Text = ExtendedToText(Number, DoubleDigits);
    return ReadsBack() ? Text : ExtendedToText(Number, ExtendedDigits);
}

void TFormTextWriter::WriteFloat(const TFormValue& Value)
{
    if (Value.FloatType() == TFormFloatType::Currency) {
        Put(std::to_string(Value.AsCurrency()) + "c");
        return;
    }
    const std::string Text = FloatText(Value);
    Put(Text);
    const bool IsNumber = Text.back() >= '0' && Text.back() <= '9'; // not Inf or NaN
    if (IsNumber && Value.FloatType() == TFormFloatType::Single)
        Put("s");
    if (IsNumber && Value.FloatType() == TFormFloatType::Date)
        Put("d");
}

void TFormTextWriter::WriteSet(const TFormValue& Value)
{
    Put("[");
    bool First = true;
    for (const auto& Element : Value.AsSet()) {
        if (!First)
            Put(", ");
        First = false;
        PutName(Element);
    }
    Put("]");
}

void TFormTextWriter::WriteList(const TFormValue& Value, int Level)
{
    Put("(");
    for (const auto& Part : Value.AsList()) {
        if (!IsSpelled(Part.Span()))
            NewLine(Level + 1);
        WriteValue(Part, Level + 1);
    }
    if (IsLfm()) {
        if (!Value.AsList().empty())
            Put(FProfile.LineEnd);
        PutBlanks(Level);
    }
    Put(")");
}

void TFormTextWriter::WriteCollection(const TFormValue& Value, int Level)
{
    Put("<");
    for (const auto& Item : Value.AsCollection())
        WriteItem(Item, Level);
    Put(">");
}

// Level is that of the property that holds the collection.
void TFormTextWriter::WriteItem(const TFormItem& Item, int Level)
{
    const TFormSpan& Span = Item.Span();
    const bool Spelled = IsSpelled(Span);
    if (Spelled && !Item.HeaderChanged()) {
        Copy(Span, Span.Begin, Span.Open);
    } else {
        if (Spelled) {
            CopyBlanks(Span);
        } else {
            if (IsLfm())
                PutBlanks(Level);
            NewLine(Level + 1);
        }
        Put("item");
        if (Item.Index())
            Put((IsLfm() ? "[" : " [") + std::to_string(*Item.Index()) + "]");
    }
    WriteProperties(Item, Level + 2);
    if (Spelled) {
        Copy(Span, Span.Close, Span.End);
    } else {
        NewLine(Level + 1);
        Put("end");
    }
}

// One row stays on the line of the name in a .dfm unless it is full.
void TFormTextWriter::WriteBinary(const std::string& Bytes, int Level)
{
    static constexpr char Digits[] = "0123456789ABCDEF";
    const bool Rows = IsLfm() || Bytes.size() >= BytesInRow;
    Put("{");
    for (std::size_t Pos = 0; Pos < Bytes.size(); ++Pos) {
        if (Rows && Pos % BytesInRow == 0)
            NewLine(Level + 1);
        const auto Byte = static_cast<unsigned char>(Bytes[Pos]);
        FOut += Digits[Byte >> 4];
        FOut += Digits[Byte & 15];
    }
    if (IsLfm())
        NewLine(Level);
    Put("}");
}

} // namespace

std::string WriteFormText(const TFormDocument& Document)
{
    return WriteFormText(Document, Document.Text);
}

std::string WriteFormText(const TFormDocument& Document, const TFormTextProfile& Profile)
{
    const auto Codec = TFormCodec::Find(Profile.Encoding, Profile.CodePage);
    if (!Codec)
        throw Document.ErrorAt(TFormSpan{},
                               "code page " + std::to_string(Profile.CodePage) + " is not known");
    return TFormTextWriter(Document, Profile, *Codec).Write();
}
