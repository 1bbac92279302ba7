// Reads the tokens of a Pascal source, far enough to tell what a unit declares.
#pragma once

#include <cstdint>
#include <string>

#include "framework/rtl/Streams.h"

// The kinds of tokens that have a text. Every other character, the line feed
// among them, is a token of its own: its kind is its code.
inline constexpr char toEOF = 0;
inline constexpr char toSymbol = 1;
inline constexpr char toString = 2;
inline constexpr char toInteger = 3;
inline constexpr char toFloat = 4;

// One token after the other:
//     TSourceParser Parser(&Stream);
//     for (; Parser.Token() != toEOF; Parser.NextToken())
//         if (Parser.Token() == toSymbol)
//             ... Parser.TokenString()
// The first one is there after construction. The last byte of the stream is taken
// for a line end and not read.
//
// Comments are passed over up to the character that ends them, which is a token: the
// "}", ")" or line feed. A "(" or "/" that begins no comment is passed over, too.
class TSourceParser {
public:
    // Reads from where Stream is, which gets its position back in the end. Stream is
    // not owned.
    // Throws as NextToken.
    explicit TSourceParser(TStream* Stream);
    ~TSourceParser();
    TSourceParser(const TSourceParser&) = delete;
    TSourceParser& operator=(const TSourceParser&) = delete;

    // Reads the next token and returns its kind; toEOF for ever at the end.
    // Throws EParserError "Invalid string constant on line 1" when a text constant does
    // not end on its line; the parser is at the offending character then.
    char NextToken();

    char Token() const { return FToken; }
    // The name; the text without quotes; the digits, without the "$". At most 4095
    // bytes. Empty for other tokens.
    const std::string& TokenString() const { return FText; }
    // Of the token's first character, in bytes.
    int32_t TokenPosition() const { return FTokenPosition; }
    // From 1.
    int32_t SourceLine() const { return FLine; }

    // Comments are tokens like everything else.
    bool CommentsOff = false;

private:
    struct TPlace {
        int64_t Position;
        int32_t Line;
    };

    void ReadNextToken();
    TPlace Place() const { return {FStream->Position(), FLine}; }
    void GoTo(const TPlace& Place);
    void SkipBlanks();
    bool SkipComments();
    bool ReadControlToken();
    bool ReadControlTokenC();
    void ReadPascalText();
    void ReadCText();
    void Collect(bool (*Belongs)(char));
    void Append();
    void CheckText() const;

    TStream* FStream;
    int32_t FTokenPosition = 0;
    std::string FText;
    int32_t FLine = 1;
    char FChar = 1;
    char FToken = toSymbol;
    int64_t FOrigin;
};

// Whether a unit declares resource strings: "resourcestring" stands in its interface.
// False outside the development environment, for a missing file and for one that is
// no source.
bool DeclaresResourceStrings(const std::string& FileName);
