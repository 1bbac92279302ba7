#include "core/Literals.h"

#include <random>

#include <gtest/gtest.h>

#include "core/DictionaryText.h"
#include "framework/rtl/Convert.h"
#include "framework/rtl/Exceptions.h"

namespace {

using namespace std::string_literals;

TEST(Literals, ConvertsBothWays)
{
    const struct {
        std::string Text;
        std::string Literal;
    } Cases[] = {
        {"", "''"},
        {"OK", "'OK'"},
        {"It's", "'It''s'"},
        {"'", "''''"},
        {"Line1\r\nLine2", "'Line1'#13#10'Line2'"},
        {"\tX", "#9'X'"},
        {"A\r", "'A'#13"},
        {"A\t", "'A'#9"},
        {"\r\n", "#13#10"},
        {"a\rb\n", "'a'#13'b'#10"},
        {"\n'\n", "#10''''#10"},
        {"a\0b\x1F"s, "'a'#0'b'#31"},
        {"\x7F\x80\xFF\xC3\xA4 ", "'\x7F\x80\xFF\xC3\xA4 '"},
        {"#65", "'#65'"},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Literal);
        EXPECT_EQ(ToLiterals(Case.Text), Case.Literal);
        EXPECT_EQ(FromLiterals(Case.Literal), Case.Text);
    }
}

TEST(Literals, ReadsCodesByPosition)
{
    const struct {
        const char* Literal;
        const char* Text;
    } Cases[] = {
        {"#9#10", "[10"}, {"#9#9", "c9"},   {"#65", "A"},         {"#300", ","},           {"#6x5", "A5"},
        {"#x65", "A5"},   {"#9'A'", "\tA"}, {"alNone", "alNone"}, {"#13#10#13", "\r\n\r"}, {"'a", "a"},
        {"#1234", "{4"},  {"x#65y", "xAy"}, {"'a'b'c'", "abc"},
    };
    for (const auto& Case : Cases)
        EXPECT_EQ(FromLiterals(Case.Literal), Case.Text) << Case.Literal;
    for (const char* const Bad : {"#", "#x", "'a'#", "#''", "#   9"})
        EXPECT_THROW(FromLiterals(Bad), EConvertError) << Bad;
}

// In place, byte by byte, the way the rule is stated.
std::string FromLiteralsInPlace(std::string S)
{
    const auto Digit = [&](size_t At) { return At < S.size() && S[At] >= '0' && S[At] <= '9'; };
    bool InQuote = false;
    for (size_t P = 0; P < S.size();) {
        if (S[P] == '#' && !InQuote) {
            std::string Number;
            for (size_t At = P + 1; At <= P + 3; ++At)
                if (Digit(At))
                    Number += S[At];
            S.erase(P, 1 + Number.size());
            S.insert(P++, 1, static_cast<char>(StrToInt(Number) % 256));
        } else if (S[P] == '\'' && InQuote && P + 1 < S.size() && S[P + 1] == '\'') {
            S.erase(P++, 1);
        } else if (S[P] == '\'') {
            S.erase(P, 1);
            InQuote = !InQuote;
        } else {
            ++P;
        }
    }
    return S;
}

TEST(Literals, EqualsTheRuleInPlace)
{
    std::mt19937 Random(1);
    int Converted = 0;
    for (int Round = 0; Round < 20000; ++Round) {
        std::string Text;
        for (unsigned I = Random() % 12; I > 0; --I)
            Text += "''##0129a\n"[Random() % 10];
        std::string Expected;
        try {
            Expected = FromLiteralsInPlace(Text);
        } catch (const EConvertError&) {
            EXPECT_THROW(FromLiterals(Text), EConvertError) << Text;
            continue;
        }
        EXPECT_EQ(FromLiterals(Text), Expected) << Text;
        ++Converted;
    }
    EXPECT_GT(Converted, 5000);
}

TEST(DictionaryText, Escapes)
{
    const struct {
        const char* Text;
        const char* Written;
        const char* Back;
    } Cases[] = {
        {"C:\\dir\tx", "C:\\\\dir\\tx", "C:\\dir\tx"},
        {"C:\\temp", "C:\\\\temp", "C:\temp"},
        {"a\r\nb", "a\\r\\nb", "a\r\nb"},
        {"\\", "\\\\", "\\"},
        {"\\\\n", "\\\\\\\\n", "\\\n"},
    };
    for (const auto& Case : Cases) {
        EXPECT_EQ(WriteString(Case.Text), Case.Written);
        EXPECT_EQ(ReadString(Case.Written), Case.Back);
    }
    EXPECT_EQ(ReadString("a\\\\nb"), "a\nb");
    EXPECT_EQ(ReadString("\\x\\"), "\\x\\");
}

// Megabytes of what makes the text longer or shorter, which in-place edits would
// take hours for.
TEST(Literals, TakesLinearTime)
{
    const std::string Text(4'000'000, '\'');
    EXPECT_EQ(FromLiterals(ToLiterals(Text)), Text);
    const std::string Controls(4'000'000, '\t');
    EXPECT_EQ(ReadString(WriteString(Controls)), Controls);
    EXPECT_EQ(ToLiterals(Controls).size(), 8'000'000U);
}

} // namespace
