#include <gtest/gtest.h>

#include <vector>

#include "framework/rtl/UnicodeCase.h"
#include "framework/rtl/Utf8.h"

namespace {

// One character of each length: A, e acute, euro, grinning face.
const std::string Lengths[] = {"A", "\xC3\xA9", "\xE2\x82\xAC", "\xF0\x9F\x98\x80"};

std::vector<std::string> Characters(std::string_view Text)
{
    std::vector<std::string> Result;
    while (!Text.empty()) {
        const auto Size = DecodeCharacter(Text).Size;
        Result.emplace_back(Text.substr(0, Size));
        Text.remove_prefix(Size);
    }
    return Result;
}

} // namespace

TEST(Utf8, TellsValidFromInvalid)
{
    const struct {
        const char* Name;
        std::string Text;
        std::size_t Characters;
    } Cases[] = {
        {"overlong slash", "\xC0\xAF", 2},
        {"overlong in three", "\xE0\x80\xAF", 3},
        {"surrogate", "\xED\xA0\x80", 3},
        {"beyond Unicode", "\xF4\x90\x80\x80", 4},
        {"lone tail", "\x80", 1},
        {"no tail", "\xC3", 1},
        {"tail missing",
         "\xE2\x82"
         "A",
         3},
        {"byte FF", "\xFF", 1},
        {"two of three", "\xE2\x82", 2},
        {"five bytes", "\xF8\x88\x80\x80\x80", 5},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        EXPECT_FALSE(IsValidUtf8(Case.Text));
        EXPECT_FALSE(IsValidUtf8("ok" + Case.Text + "ok"));
        EXPECT_EQ(CharacterCount(Case.Text), Case.Characters);
    }
}

// Every code goes through both encodings and back.
TEST(Utf8, EveryCharacterSurvives)
{
    for (char32_t Code = 0; Code <= 0x10FFFF; ++Code) {
        std::string Text;
        AppendCharacter(Text, Code);
        const auto Back = DecodeCharacter(Text);
        const bool Surrogate = Code >= 0xD800 && Code <= 0xDFFF;
        ASSERT_EQ(Back.Code, Surrogate ? ReplacementCharacter : Code);
        ASSERT_EQ(Back.Size, Text.size());
        ASSERT_EQ(Utf16ToUtf8(Utf8ToUtf16(Text)), Text);
    }
    EXPECT_EQ(Utf16ToUtf8(u"a\xD83D"
                          u"b"),
              "a\xEF\xBF\xBD"
              "b");
    EXPECT_EQ(Utf8ToUtf16("a\xFFz"), u"a\xFFFDz");
}

// All texts of up to four characters of all lengths and stray bytes, cut at
// every place: never within a character, and never a character too early.
TEST(Utf8, CutsBetweenCharacters)
{
    std::vector<std::string> Pieces(std::begin(Lengths), std::end(Lengths));
    Pieces.insert(Pieces.end(), {"\x80", "\xC3", "\xE2\x82", "\xFF"});
    const std::size_t Kinds = Pieces.size();
    for (std::size_t Choice = 0; Choice < Kinds * Kinds * Kinds * Kinds; ++Choice) {
        std::string Text;
        for (std::size_t Rest = Choice, Count = 0; Count < 4; ++Count, Rest /= Kinds)
            Text += Pieces[Rest % Kinds];
        for (std::size_t Max = 0; Max <= Text.size() + 1; ++Max) {
            std::size_t Expected = 0;
            for (const auto& Each : Characters(Text)) {
                if (Expected + Each.size() > Max)
                    break;
                Expected += Each.size();
            }
            ASSERT_EQ(CutAtCharacter(Text, Max).size(), Expected) << Choice << " at " << Max;
        }
    }
}

TEST(Utf8, TakesFirstCharacters)
{
    const std::string Text = Lengths[3] + Lengths[0] + Lengths[2];
    EXPECT_EQ(FirstCharacters(Text, 2), Lengths[3] + Lengths[0]);
    EXPECT_EQ(FirstCharacters(Text, 9), Text);
    EXPECT_EQ(FirstCharacters("\xC3", 1), "\xC3");
}

// The tables are ranges with steps; an off-by-one shows at their ends.
TEST(UnicodeCase, FoldsBothCasesAlike)
{
    for (char32_t Code = 0; Code <= 0x10FFFF; ++Code) {
        ASSERT_EQ(FoldCharacter(Code), FoldCharacter(UpperCharacter(Code))) << static_cast<unsigned>(Code);
        ASSERT_EQ(UpperCharacter(UpperCharacter(Code)), UpperCharacter(Code)) << static_cast<unsigned>(Code);
    }
    const struct {
        char32_t Lower, Upper;
    } Pairs[] = {{U'z', U'Z'},     {0xE9, 0xC9},       {0xFF, 0x178},   {0x101, 0x100}, {0x17E, 0x17D},
                 {0x3C9, 0x3A9},   {0x44F, 0x42F},     {0x451, 0x401},  {0x586, 0x556}, {0x1EF9, 0x1EF8},
                 {0x10D0, 0x1C90}, {0x10428, 0x10400}, {0x1F80, 0x1F88}};
    for (const auto& Pair : Pairs) {
        EXPECT_EQ(UpperCharacter(Pair.Lower), Pair.Upper);
        EXPECT_EQ(LowerCharacter(Pair.Upper), Pair.Lower);
    }
    for (const char32_t Plain : {U'[', U'@', U'{', U'\xD7', U'\xF7', U'\xDF', U'\x3042'})
        EXPECT_EQ(UpperCharacter(Plain), LowerCharacter(Plain));
}
