// The structure of text form files; single values are in FormTextLiterals.cpp.
#include "framework/streaming/FormTextWriter.h"

#include <algorithm>

#include "framework/streaming/FormNames.h"
#include "framework/streaming/FormText.h"

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
