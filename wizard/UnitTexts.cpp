#include "wizard/UnitTexts.h"

#include <charconv>

#include "framework/rtl/Exceptions.h"
#include "framework/rtl/Streams.h"
#include "framework/rtl/Texts.h"
#include "framework/streaming/FormEncoding.h"
#include "wizard/SourceParser.h"

namespace {

std::string InUtf8(const std::string& Bytes, int CodePage)
{
    constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";
    if (Bytes.starts_with(Utf8Mark))
        return Bytes.substr(Utf8Mark.size());
    const auto Codec = TFormCodec::Find(TFormEncoding::CodePage, CodePage);
    if (IsValidUtf8(Bytes) || !Codec)
        return Bytes;
    std::string Result;
    Codec->Decode(Bytes, Result);
    return Result;
}

// Reads tokens and keeps the last one that was taken.
class TUnitReader {
public:
    TUnitReader(const std::string& Source, int CodePage)
        : FSource(Source), FCodec(TFormCodec::Find(TFormEncoding::CodePage, CodePage))
    {
        FStream.Write(Source.data(), static_cast<int64_t>(Source.size()));
        // The parser does not read the last byte.
        FStream.Write("\n", 1);
        FStream.SetPosition(0);
    }

    TUnitTexts Read()
    {
        try {
            TSourceParser Parser(&FStream);
            FParser = &Parser;
            while (Parser.Token() != toEOF)
                ReadOne();
        } catch (const EParserError&) {
            // No source, or one of a kind that the parser does not know.
        }
        return std::move(FResult);
    }

private:
    bool IsAt(char Token) const { return FParser->Token() == Token; }
    bool IsAtWord(const char* Word) const { return IsAt(toSymbol) && SameText(FParser->TokenString(), Word); }
    std::string TakeName()
    {
        const std::string Name = IsAt(toSymbol) ? FParser->TokenString() : std::string();
        if (!Name.empty())
            Next();
        return Name;
    }
    // What comments and line ends leave behind is passed over, and blanks behind a
    // bracket.
    void Next()
    {
        do
            FParser->NextToken();
        while ((FParser->Token() > toFloat && FParser->Token() <= ' ') || IsAt('}') || IsAt(')'));
    }

    void ReadOne()
    {
        if (IsAtWord("resourcestring")) {
            ReadConstants();
        } else if (IsAtWord("ORBILEX_TEXT")) {
            ReadRow();
        } else if (IsAtWord("class")) {
            Next();
            ReadClassOfC();
        } else if (IsAt(toSymbol)) {
            ReadDeclaration(TakeName());
        } else {
            Next();
        }
    }

    // Name = 'text' + 'text'; up to the next word that is no such name.
    void ReadConstants()
    {
        Next();
        while (IsAt(toSymbol) && !IsAtWord("resourcestring")) {
            const std::string Name = FParser->TokenString();
            Next();
            if (!IsAt('=')) {
                ReadDeclaration(Name);
                return;
            }
            Next();
            if (std::string Text = ReadText(); !Text.empty())
                FResult.ResourceStrings.push_back(std::move(Text));
            while (!IsAt(';') && !IsAt(toEOF))
                Next();
            Next();
        }
    }

    // The parser ends a text at a doubled quote and begins the next one.
    std::string ReadText()
    {
        std::string Result;
        TUnitJoiner Units(Result);
        size_t End = 0; // of the token before, when it was quoted
        while (IsAt(toString) || IsAt('+')) {
            const auto Start = static_cast<size_t>(FParser->TokenPosition());
            const bool IsQuoted = Start < FSource.size() && FSource[Start] == '\'';
            if (IsAt(toString) && !IsQuoted) {
                ReadCode(Start, Result, Units);
            } else if (IsAt(toString)) {
                Units.Flush();
                if (Start == End)
                    Result += '\'';
                Result += FParser->TokenString();
            }
            End = IsQuoted ? Start + FParser->TokenString().size() + 2 : 0;
            Next();
        }
        Units.Flush();
        return Result;
    }

    // #13 or #$D, which the parser takes for two tokens; the last one stays. Bytes are
    // those of the code page, greater codes are units of UTF-16.
    void ReadCode(size_t Start, std::string& Text, TUnitJoiner& Units)
    {
        const bool IsHex = Start + 1 < FSource.size() && FSource[Start + 1] == '$';
        constexpr unsigned Ascii = 0x80;
        constexpr unsigned OneByte = 0x100;
        uint16_t Code = '#';
        std::from_chars(FSource.data() + Start + (IsHex ? 2 : 1), FSource.data() + FSource.size(), Code,
                        IsHex ? 16 : 10);
        if (Code >= Ascii && Code < OneByte && FCodec) {
            Units.Flush();
            FCodec->Decode(std::string(1, static_cast<char>(Code)), Text);
        } else {
            Units.Add(Code);
        }
        if (IsHex)
            Next();
    }

    // ORBILEX_TEXT(Name, number, "text"); the parser drops the bracket.
    void ReadRow()
    {
        Next();
        const bool IsRow = !TakeName().empty() && TakeSign(',') && IsAt(toInteger);
        if (!IsRow)
            return;
        Next();
        if (TakeSign(',') && IsAt(toString))
            FResult.ResourceStrings.push_back(FParser->TokenString());
    }

    bool TakeSign(char Sign)
    {
        const bool Result = IsAt(Sign);
        if (Result)
            Next();
        return Result;
    }

    // class TForm2 : public TForm1
    void ReadClassOfC()
    {
        const std::string Name = TakeName();
        if (Name.empty() || !TakeSign(':'))
            return;
        while (IsAtWord("public") || IsAtWord("virtual"))
            Next();
        if (IsAt(toSymbol))
            FResult.Parents.emplace(Name, FParser->TokenString());
    }

    // TForm2 = class(TForm1)
    void ReadDeclaration(const std::string& Name)
    {
        if (!TakeSign('=') || !IsAtWord("class"))
            return;
        const size_t Behind =
            static_cast<size_t>(FParser->TokenPosition()) + std::string_view("class").size();
        Next();
        const size_t Bracket = FSource.find_first_not_of(" \t\r\n", Behind);
        if (Bracket != FSource.npos && FSource[Bracket] == '(' && IsAt(toSymbol))
            FResult.Parents.emplace(Name, FParser->TokenString());
    }

    const std::string& FSource;
    std::optional<TFormCodec> FCodec;
    TMemoryStream FStream;
    TSourceParser* FParser = nullptr;
    TUnitTexts FResult;
};

} // namespace

TUnitTexts ReadUnitTexts(const std::string& Bytes, int CodePage)
{
    const std::string Source = InUtf8(Bytes, CodePage);
    return TUnitReader(Source, CodePage).Read();
}
