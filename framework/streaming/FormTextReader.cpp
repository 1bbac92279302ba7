// Finds out encoding and dialect of a text form file; FormTextParser reads it.
#include "framework/streaming/FormText.h"

#include <algorithm>

#include "framework/streaming/FormNames.h"
#include "framework/streaming/FormTextParser.h"

namespace {

constexpr std::string_view Utf8Bom = "\xEF\xBB\xBF";

bool StartsWith(std::string_view Bytes, std::string_view Prefix)
{
    return Bytes.substr(0, Prefix.size()) == Prefix;
}

// Whether the first characters are ASCII in UTF-16 without a byte order mark.
bool LooksLikeUtf16(std::string_view Bytes, bool BigEndian)
{
    if (Bytes.size() < 8 || Bytes.size() % 2 != 0)
        return false;
    for (std::size_t Pos = 0; Pos < 8; Pos += 2) {
        const char High = Bytes[Pos + (BigEndian ? 0 : 1)], Low = Bytes[Pos + (BigEndian ? 1 : 0)];
        if (High != 0 || Low <= 0)
            return false;
    }
    return true;
}

void DetectEncoding(std::string_view Bytes, const TFormFileOptions& Options, TFormTextProfile& Profile)
{
    Profile.CodePage = Options.CodePage;
    const bool Little = StartsWith(Bytes, "\xFF\xFE"), Big = StartsWith(Bytes, "\xFE\xFF");
    Profile.Bom = Little || Big || StartsWith(Bytes, Utf8Bom);
    if (Little || LooksLikeUtf16(Bytes, false))
        Profile.Encoding = TFormEncoding::Utf16LE;
    else if (Big || LooksLikeUtf16(Bytes, true))
        Profile.Encoding = TFormEncoding::Utf16BE;
    else if (Profile.Bom || (Options.DetectUtf8 && !IsAscii(Bytes) && IsValidUtf8(Bytes)))
        Profile.Encoding = TFormEncoding::Utf8;
    else
        Profile.Encoding = TFormEncoding::CodePage;
}

// The line end that most lines have.
std::string UsualLineEnd(std::string_view Text)
{
    std::size_t Pairs = 0, Feeds = 0;
    for (std::size_t Pos = Text.find('\n'); Pos != Text.npos; Pos = Text.find('\n', Pos + 1))
        ++(Pos > 0 && Text[Pos - 1] == '\r' ? Pairs : Feeds);
    if (Pairs == 0 && Feeds == 0)
        return Text.find('\r') + 1 < Text.size() && Text.find('\r') != Text.npos ? "\r" : "\r\n";
    return Pairs >= Feeds ? "\r\n" : "\n";
}

TFormDialect DetectDialect(TFormTextTraits Traits, const TFormTextProfile& Profile, std::string_view FileName)
{
    if (FileName.size() >= 4) {
        const std::string_view Extension = FileName.substr(FileName.size() - 4);
        Traits.Lfm += SameName(Extension, ".lfm") ? 2 : 0;
        Traits.Dfm += SameName(Extension, ".dfm") ? 2 : 0;
    }
    if (Traits.Dfm == Traits.Lfm)
        return Profile.Encoding == TFormEncoding::Utf8 && !Profile.Bom ? TFormDialect::Lfm
                                                                       : TFormDialect::Dfm;
    return Traits.Dfm > Traits.Lfm ? TFormDialect::Dfm : TFormDialect::Lfm;
}

void CompleteProfile(const TFormTextTraits& Traits, const TFormSource& Source, TFormTextProfile& Profile)
{
    Profile.Dialect = DetectDialect(Traits, Profile, Source.FileName);
    const bool IsLfm = Profile.Dialect == TFormDialect::Lfm;
    if (IsLfm && Profile.Encoding == TFormEncoding::CodePage && IsAscii(Source.Bytes))
        Profile.Encoding = TFormEncoding::Utf8;
    const bool UseCodes = Traits.CodedNonAscii || !IsLfm;
    Profile.NonAscii = !Traits.RawNonAscii && UseCodes ? TFormNonAscii::Codes : TFormNonAscii::Raw;
    if (Traits.FixedFloats == Traits.ShortFloats)
        Profile.FloatDecimals = IsLfm ? 0 : 18;
    else
        Profile.FloatDecimals = Traits.FixedFloats > Traits.ShortFloats ? 18 : 0;
    Profile.LineEnd = UsualLineEnd(Source.Bytes);
}

// Refuses what is no text form file, with a better reason than its first sign.
void CheckPlausible(std::string_view Bytes, const std::string& FileName)
{
    if (Bytes.empty())
        throw EFormFileError(FileName, 1, 1, "not a form file: it is empty");
    if (Bytes.find_first_not_of('\0') == Bytes.npos)
        throw EFormFileError(FileName, 1, 1, "not a form file: it holds only zero bytes");
    if (Bytes.size() > MaxFormSize)
        throw EFormFileError(FileName, 1, 1, "the form file is larger than 1 GB");
}

} // namespace

TFormDocument ReadFormText(std::string_view Bytes, const TFormFileOptions& Options)
{
    CheckPlausible(Bytes, Options.FileName);
    const auto Source = std::make_shared<TFormSource>();
    Source->FileName = Options.FileName;
    DetectEncoding(Bytes, Options, Source->Text);
    const bool BigEndian = Source->Text.Encoding == TFormEncoding::Utf16BE;
    if (BigEndian || Source->Text.Encoding == TFormEncoding::Utf16LE) {
        if (Bytes.size() % 2 != 0)
            throw EFormFileError(Options.FileName, 1, 1, "UTF-16 text with an odd number of bytes");
        Source->Bytes = Utf16ToUtf8(Bytes, BigEndian);
    } else {
        Source->Bytes = Bytes;
    }
    const auto Codec = TFormCodec::Find(Source->Text.Encoding, Options.CodePage);
    if (!Codec)
        throw EFormFileError(Options.FileName, 1, 1,
                             "code page " + std::to_string(Options.CodePage) + " is not known");

    TFormDocument Document;
    TFormTextParser Parser(Source, *Codec);
    Parser.Parse(Document);
    CompleteProfile(Parser.Traits(), *Source, Source->Text);
    Source->Text.FinalText = Source->Slice(Document.Frame.Close, Document.Frame.End);
    Document.Format = TFormFormat::Text;
    Document.Text = Source->Text;
    Document.Binary.CodePage = Options.CodePage;
    Document.Binary.CodePageStrings =
        Document.Text.Encoding == TFormEncoding::CodePage && Document.Text.NonAscii == TFormNonAscii::Raw;
    Document.Source = Source;
    return Document;
}
