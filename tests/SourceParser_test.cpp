#include "wizard/SourceParser.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>

#include "framework/design/ToolServices.h"
#include "framework/rtl/Exceptions.h"

namespace {

namespace fs = std::filesystem;

// The tokens as a row of texts: names as they are, texts in «», numbers with i or f
// in front, other characters as themselves, a line feed as "\n", and the error.
std::string TokensOf(const std::string& Source)
{
    TMemoryStream Stream(Source);
    std::string Result;
    const auto Add = [&](const std::string& Token) { Result += (Result.empty() ? "" : " ") + Token; };
    try {
        TSourceParser Parser(&Stream);
        for (; Parser.Token() != toEOF; Parser.NextToken())
            switch (Parser.Token()) {
            case toSymbol:
                Add(Parser.TokenString());
                break;
            case toString:
                Add("«" + Parser.TokenString() + "»");
                break;
            case toInteger:
                Add("i" + Parser.TokenString());
                break;
            case toFloat:
                Add("f" + Parser.TokenString());
                break;
            case '\n':
                Add("\\n");
                break;
            default:
                Add(std::string(1, Parser.Token()));
            }
    } catch (const EParserError& Error) {
        Add("! " + Error.Message());
    }
    return Result;
}

TEST(SourceParser, Tokens)
{
    const struct {
        std::string Source; // and a line end, the last byte of which is not read
        std::string Tokens;
    } Cases[] = {
        {"", ""},
        {"a{x}b", "a } b"},
        {"x // remark\n", "x \\n"},
        {"a (* 1 **) b", "a ) b"},
        {"a(b)/c", "a b ) c"},
        {"{ open", ""},
        {"(* open", ""},
        {"'it''s'", "«it» «s»"},
        {"'' 'å'", "«» «å»"},
        {"#65", "«A»"},
        {"#65#300'x'", "«A» «,» «x»"},
        {"#x", "«#» x"},
        {R"("a\tb")", "«a\tb»"},
        {R"("\x41\x5a\\\n\q")", "«AZ\\\n\\q»"},
        {R"("a\"b)", "«a\\» b"},
        {"12 $1F $", "i12 i1F i"},
        {"12.5 1E3 -4 1-2", "f12.5 f1E3 f-4 f1-2"},
        {"_a1 B", "_a1 B"},
        {"begin\r\nx:=1;\nend.", "begin \\n x : = i1 ; \\n end ."},
        {"'a\nb'", "! Invalid string constant on line 1"},
        {"\n'a\r'", "\\n ! Invalid string constant on line 2"},
        {"'a", "! Invalid string constant on line 1"},
        {"\"a", "! Invalid string constant on line 1"},
    };
    for (const auto& [Source, Tokens] : Cases)
        EXPECT_EQ(TokensOf(Source + "\r"), Tokens) << Source;
    EXPECT_EQ(TokensOf("a"), "") << "the last byte is not read";
    EXPECT_EQ(TokensOf("ab"), "a");
}

TEST(SourceParser, CommentsCanBeTokens)
{
    TMemoryStream Stream("{ a }\n");
    TSourceParser Parser(&Stream);
    Parser.CommentsOff = true;
    EXPECT_EQ(Parser.Token(), '}');
    TMemoryStream Other("x { a }\n");
    TSourceParser WithComments(&Other);
    WithComments.CommentsOff = true;
    EXPECT_EQ(WithComments.NextToken(), '{');
    EXPECT_EQ(WithComments.NextToken(), toSymbol);
}

TEST(SourceParser, PositionsLinesAndTheStreamAfterwards)
{
    TMemoryStream Stream("??ab\n  cd #65'x'\n");
    Stream.SetPosition(2);
    {
        TSourceParser Parser(&Stream);
        EXPECT_EQ(Parser.TokenPosition(), 2);
        Parser.NextToken();
        Parser.NextToken();
        EXPECT_EQ(Parser.TokenString(), "cd");
        EXPECT_EQ(Parser.TokenPosition(), 7);
        EXPECT_EQ(Parser.SourceLine(), 2);
        EXPECT_EQ(Parser.NextToken(), toString);
        EXPECT_EQ(Parser.SourceLine(), 2);
    }
    EXPECT_EQ(Stream.Position(), 2);
    EXPECT_EQ(TokensOf(std::string(5000, 'a') + " b\n"), std::string(4095, 'a') + " b");
}

// Whatever the bytes are: it ends, and reads nothing twice.
TEST(SourceParser, EndsOnAnyBytes)
{
    std::mt19937 Random(7);
    const std::string Alphabet = "'\"#{}(*)/\\x\n\r $09azE.-";
    for (int Round = 0; Round < 20000; ++Round) {
        std::string Source;
        for (size_t I = Random() % 24; I > 0; --I)
            Source += Random() % 8 ? Alphabet[Random() % Alphabet.size()] : static_cast<char>(Random());
        TMemoryStream Stream(Source);
        try {
            TSourceParser Parser(&Stream);
            for (size_t Tokens = 0; Parser.Token() != toEOF; Parser.NextToken())
                ASSERT_LE(++Tokens, Source.size()) << Source;
        } catch (const EParserError&) {
        }
    }
}

struct TNoProject : TIToolServices {
    std::string GetProjectName() const override { return ""; }
};

TEST(SourceParser, UnitsThatDeclareResourceStrings)
{
    const fs::path File =
        fs::temp_directory_path() / ("unit" + std::to_string(std::random_device()()) + ".pas");
    const struct {
        const char* Source;
        bool Declares;
    } Cases[] = {
        {"unit A;\ninterface\nResourceString\n  S = 'it''s';\n", true},
        {"unit A;\ninterface\nimplementation\nresourcestring\n", false},
        {"unit A; { resourcestring }\n// resourcestring\ninterface\n", false},
        {"unit A; 'open\nresourcestring\n", false},
        {"", false},
    };
    for (const auto& [Source, Declares] : Cases) {
        std::ofstream(File, std::ios::binary) << Source;
        EXPECT_FALSE(DeclaresResourceStrings(File.string())) << "outside the environment";
        TNoProject Services;
        ToolServices = &Services;
        EXPECT_EQ(DeclaresResourceStrings(File.string()), Declares) << Source;
        fs::remove(File);
        EXPECT_FALSE(DeclaresResourceStrings(File.string())) << "no file";
        ToolServices = nullptr;
    }
}

} // namespace
