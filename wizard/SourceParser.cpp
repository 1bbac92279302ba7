#include "wizard/SourceParser.h"

#include "Qlt/LocaleValues.h"
#include "framework/design/ToolServices.h"
#include "framework/rtl/FormatText.h"
#include "framework/rtl/RtlConsts.h"
#include "framework/rtl/SysUtils.h"

namespace {

constexpr size_t MostTokenBytes = 4095;
constexpr char LineFeed = 10;
constexpr char CarriageReturn = 13;

bool IsDigit(char C)
{
    return C >= '0' && C <= '9';
}

bool IsHexDigit(char C)
{
    return IsDigit(C) || (C >= 'A' && C <= 'F') || (C >= 'a' && C <= 'f');
}

bool BeginsName(char C)
{
    return (C >= 'A' && C <= 'Z') || (C >= 'a' && C <= 'z') || C == '_';
}

bool BelongsToName(char C)
{
    return BeginsName(C) || IsDigit(C);
}

bool BelongsToFloat(char C)
{
    return C == '+' || C == '-' || C == '.' || IsDigit(C) || C == 'E' || C == 'e';
}

} // namespace

TSourceParser::TSourceParser(TStream* Stream) : FStream(Stream), FOrigin(Stream->Position())
{
    NextToken();
}

TSourceParser::~TSourceParser()
{
    FStream->SetPosition(FOrigin);
}

void TSourceParser::ReadNextToken()
{
    if (FToken == toEOF)
        return;
    if (FStream->Position() + 1 == FStream->Size() || FStream->Read(&FChar, 1) != 1)
        FChar = 0;
    else if (FChar == LineFeed)
        ++FLine;
}

void TSourceParser::GoTo(const TPlace& Place)
{
    FStream->SetPosition(Place.Position);
    FLine = Place.Line;
}

void TSourceParser::SkipBlanks()
{
    while (FChar >= 1 && FChar <= 32 && FChar != LineFeed)
        ReadNextToken();
}

// True when something was passed over.
bool TSourceParser::SkipComments()
{
    if (CommentsOff)
        return false;
    switch (FChar) {
    case '{':
        while (FChar != '}' && FChar != 0)
            ReadNextToken();
        return true;
    case '(':
        ReadNextToken();
        if (FChar != '*')
            return true;
        ReadNextToken();
        for (bool Star = false; FChar != 0 && !(Star && FChar == ')'); ReadNextToken())
            Star = FChar == '*';
        return true;
    case '/':
        ReadNextToken();
        if (FChar != '/')
            return true;
        while (FChar != LineFeed && FChar != 0)
            ReadNextToken();
        return true;
    default:
        return false;
    }
}

char TSourceParser::NextToken()
{
    FText.clear();
    SkipBlanks();
    while (SkipComments()) {
    }
    FTokenPosition = static_cast<int32_t>(FStream->Position() - 1);
    char Kind = toSymbol;
    if (BeginsName(FChar)) {
        Collect(BelongsToName);
    } else if (IsDigit(FChar) || FChar == '-') {
        Collect(IsDigit);
        const size_t Digits = FText.size();
        Collect(BelongsToFloat);
        Kind = FText.size() > Digits ? toFloat : toInteger;
    } else if (FChar == '$') {
        ReadNextToken();
        Collect(IsHexDigit);
        Kind = toInteger;
    } else if (FChar == '\'') {
        ReadPascalText();
        Kind = toString;
    } else if (FChar == '#') {
        ReadControlToken();
        Append();
        ReadNextToken();
        Kind = toString;
    } else if (FChar == '"') {
        ReadCText();
        Kind = toString;
    } else {
        Kind = FChar;
        if (Kind != toEOF)
            ReadNextToken();
    }
    return FToken = Kind;
}

void TSourceParser::Collect(bool (*Belongs)(char))
{
    for (; Belongs(FChar); ReadNextToken())
        Append();
}

void TSourceParser::Append()
{
    if (FText.size() < MostTokenBytes)
        FText += FChar;
}

void TSourceParser::CheckText() const
{
    if (FChar != 0 && FChar != LineFeed && FChar != CarriageReturn)
        return;
    const int32_t Line = FChar == LineFeed ? FLine - 1 : FLine; // that the text began on
    throw EParserError(Format(SParseError, {std::string(SInvalidString), Line}));
}

// A doubled quote ends the text and begins the next one.
void TSourceParser::ReadPascalText()
{
    for (ReadNextToken(); FChar != '\''; ReadNextToken()) {
        CheckText();
        Append();
    }
    ReadNextToken();
}

void TSourceParser::ReadCText()
{
    for (ReadNextToken(); FChar != '"'; ReadNextToken()) {
        CheckText();
        ReadControlTokenC();
        Append();
    }
    ReadNextToken();
}

// At a "#" with digits: the character of that code, and the last digit is the last
// byte that was read.
bool TSourceParser::ReadControlToken()
{
    TPlace Last = Place();
    ReadNextToken();
    if (!IsDigit(FChar)) {
        FChar = '#';
        GoTo(Last);
        return false;
    }
    unsigned Value = 0;
    for (; IsDigit(FChar); ReadNextToken()) {
        Value = Value * 10 + static_cast<unsigned>(FChar - '0');
        Last = Place();
    }
    FChar = static_cast<char>(Value % 256);
    GoTo(Last);
    return true;
}

// At a backslash: the character that it stands for, or itself.
bool TSourceParser::ReadControlTokenC()
{
    if (FChar != '\\')
        return false;
    const TPlace Behind = Place();
    ReadNextToken();
    switch (FChar) {
    case 'n':
        FChar = LineFeed;
        return true;
    case 'r':
        FChar = CarriageReturn;
        return true;
    case 't':
        FChar = 9;
        return true;
    case '\\':
        return true;
    case 'x': {
        std::string Digits;
        for (int I = 0; I < 2; ++I) {
            ReadNextToken();
            Digits += FChar;
        }
        FChar = static_cast<char>(HexToInt(Digits) % 256);
        return true;
    }
    default:
        FChar = '\\';
        GoTo(Behind);
        return false;
    }
}

bool DeclaresResourceStrings(const std::string& FileName)
{
    if (!ToolServices || !FileExists(FileName))
        return false;
    TMemoryStream Stream;
    Stream.LoadFromFile(FileName);
    try {
        for (TSourceParser Parser(&Stream); Parser.Token() != toEOF; Parser.NextToken()) {
            const std::string Name = Parser.Token() == toSymbol ? AnsiLowerCase(Parser.TokenString()) : "";
            if (Name == "resourcestring" || Name == "implementation")
                return Name == "resourcestring";
        }
    } catch (const EParserError&) {
        return false;
    }
    return false;
}
