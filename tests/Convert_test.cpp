#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <sstream>

#include "framework/rtl/SysUtils.h"
#include "tests/FormatVarsScope.h"

namespace {

template<typename TAction>
std::string ErrorOf(TAction Action)
{
    try {
        Action();
    } catch (const EConvertError& Error) {
        return Error.Message();
    }
    return "no error";
}

class TDecimalComma : TFormatVarsScope {
public:
    TDecimalComma() { DecimalSeparator = ","; }
};

} // namespace

TEST(Convert, ReadsIntegers)
{
    const struct {
        const char* Text;
        int Expected;
    } Cases[] = {
        {"0", 0},
        {"  42", 42},
        {"+7", 7},
        {"-2147483648", INT_MIN},
        {"$ff", 255},
        {"0xFF", 255},
        {"0X10", 16},
        {"x1f", 31},
        {"-$10", -16},
        {"$FFFFFFFF", -1},
        {"$80000000", INT_MIN},
        {"00000000000000000012", 12},
    };
    for (const auto& Case : Cases)
        EXPECT_EQ(StrToInt(Case.Text), Case.Expected) << Case.Text;
    EXPECT_EQ(StrToInt64("-9223372036854775808"), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(StrToInt64("$FFFFFFFFFFFFFFFF"), -1);
}

TEST(Convert, RefusesWhatIsNoInteger)
{
    for (const char* Text : {"", " ", "-", "$", "0x", "1 ", "1.0", "--1", "+-1", "- 1", "1a", "$G", "\t1",
                             "2147483648", "-2147483649", "$100000000", "99999999999999999999"}) {
        EXPECT_EQ(ErrorOf([&] { StrToInt(Text); }),
                  "'" + std::string(Text) + "' is not a valid integer value");
        EXPECT_EQ(StrToIntDef(Text, -5), -5) << Text;
    }
    EXPECT_NE(ErrorOf([] { StrToInt64("9223372036854775808"); }), "no error");
    // An embedded zero ends C strings, not ours.
    EXPECT_NE(ErrorOf([] { StrToInt(std::string("12\0", 3)); }), "no error");
}

TEST(Convert, WritesHexadecimal)
{
    EXPECT_EQ(IntToHex(255, 4), "00FF");
    EXPECT_EQ(IntToHex(-1, 4), "FFFFFFFF");
    EXPECT_EQ(IntToHex(std::int64_t{-1}, 0), "FFFFFFFFFFFFFFFF");
}

TEST(Convert, WritesFloats)
{
    const struct {
        TExtended Value;
        const char* Expected;
    } Cases[] = {
        {0.1, "0.1"},
        {-0.0, "0"},
        {1, "1"},
        {100, "100"},
        {-1234.5, "-1234.5"},
        {1.0 / 3, "0.333333333333333"},
        {2.0 / 3, "0.666666666666667"},
        {0.0001, "0.0001"},
        {0.00001, "1E-5"},
        {-0.000012345, "-1.2345E-5"},
        {123456789012345.0, "123456789012345"},
        {999999999999999.0, "999999999999999"},
        {1e15, "1E15"},
        {999999999999999.9L, "1E15"},
        {1e20, "1E20"},
        {1.5e300, "1.5E300"},
        {std::numeric_limits<double>::max(), "1.79769313486232E308"},
        {std::numeric_limits<double>::infinity(), "INF"},
        {std::numeric_limits<double>::denorm_min(), "4.94065645841247E-324"},
        {-std::numeric_limits<double>::infinity(), "-INF"},
        {std::numeric_limits<double>::quiet_NaN(), "NAN"},
    };
    for (const auto& Case : Cases)
        EXPECT_EQ(FloatToStr(Case.Value), Case.Expected);
    const TDecimalComma Comma;
    EXPECT_EQ(FloatToStr(-0.5), "-0,5");
}

TEST(Convert, ReadsFloats)
{
    const struct {
        const char* Text;
        TExtended Expected;
    } Cases[] = {
        {"1", 1},
        {" -1.5 ", -1.5L},
        {"+.5", 0.5L},
        {"5.", 5},
        {"1e3", 1000},
        {"1E-3", 0.001L},
        {"1.25E+2", 125},
        {"0.1", 0.1L},
        {"1e-99999", 0},
        {"0e99999", 0},
        {"123456789012345678901234567890", 123456789012345678901234567890.0L},
    };
    for (const auto& Case : Cases)
        EXPECT_EQ(StrToFloat(Case.Text), Case.Expected) << Case.Text;
    for (const char* Text :
         {"", " ", ".", "-", "E5", "1E", "1E+", "1,5", "1.5.", "1 2", "INF", "NAN", "0x10", "1e99999", "1.-"})
        EXPECT_EQ(ErrorOf([&] { StrToFloat(Text); }),
                  "'" + std::string(Text) + "' is not a valid floating point value");
    const TDecimalComma Comma;
    EXPECT_EQ(StrToFloat("1,5"), 1.5L);
    EXPECT_NE(ErrorOf([] { StrToFloat("1.5"); }), "no error");
}

// 17 digits name every double; what is written with 15 must be read as near.
TEST(Convert, FloatsSurviveTheirText)
{
    std::mt19937_64 Random(12345);
    for (int Count = 0; Count < 20000; ++Count) {
        const auto Value =
            std::ldexp(static_cast<double>(Random()) - 9e18, static_cast<int>(Random() % 1900) - 1010);
        const auto Exact = FloatToStrF(Value, TFloatFormat::ffGeneral, 17, 0);
        ASSERT_EQ(static_cast<double>(StrToFloat(Exact)), Value) << Exact;
        const TExtended Near = StrToFloat(FloatToStr(Value));
        ASSERT_LE(std::fabs(Near - Value), std::fabs(Value) * 5.1e-15L) << Exact;
    }
}

TEST(Convert, CurrencyIsExact)
{
    const TFormatVarsScope Scope;
    const TCurrency Most = TCurrency::FromTenThousandths(INT64_MAX);
    const TCurrency Least = TCurrency::FromTenThousandths(INT64_MIN);
    const struct {
        TCurrency Value;
        const char* Expected;
    } Cases[] = {
        {0, "0"},
        {-5, "-5"},
        {0.1, "0.1"},
        {0.00005L, "0"}, // halves to the even side
        {0.00015L, "0.0002"},
        {-0.00025L, "-0.0002"},
        {1234.5678, "1234.5678"},
        {TCurrency::FromTenThousandths(std::int64_t{1}), "0.0001"},
        {Most, "922337203685477.5807"},
        {Least, "-922337203685477.5808"},
    };
    for (const auto& Case : Cases) {
        EXPECT_EQ(CurrToStr(Case.Value), Case.Expected);
        EXPECT_EQ(StrToCurr(Case.Expected), Case.Value);
    }
    EXPECT_EQ(Format("%n|%m|%.4f|%g", {Most, Least, Most, TCurrency(2.5)}),
              "922,337,203,685,477.58|($922,337,203,685,477.58)|922337203685477.5807|2.5");
    EXPECT_EQ(CurrToStrF(-1.005L, TFloatFormat::ffCurrency, 2), "($1.01)");
    EXPECT_EQ(FormatCurr("#,##0.00##;[0.00]", Least), "[922337203685477.58]");
    EXPECT_EQ(FormatCurr("#,##0.00##;[0.00]", Most), "922,337,203,685,477.5807");
    EXPECT_EQ(TCurrency(0.1) + TCurrency(0.2) - TCurrency(0.3), TCurrency(0));
    DecimalSeparator = "\xC2\xB7";
    EXPECT_EQ(StrToCurr(" -12\xC2\xB7"
                        "5e1 "),
              TCurrency(-125));
}

TEST(Convert, CurrencyRefusesWhatDoesNotFit)
{
    for (const char* Text : {"", "$1", "1,234", "922337203685477.5808", "1e400", "x"}) {
        EXPECT_EQ(ErrorOf([&] { StrToCurr(Text); }),
                  "'" + std::string(Text) + "' is not a valid floating point value");
        EXPECT_EQ(StrToCurrDef(Text, 7), TCurrency(7));
    }
    const TCurrency Most = TCurrency::FromTenThousandths(INT64_MAX);
    const TCurrency Least = TCurrency::FromTenThousandths(INT64_MIN);
    EXPECT_THROW(Most + Most, EIntOverflow);
    EXPECT_THROW(Least - Most, EIntOverflow);
    EXPECT_THROW(TCurrency(0) - Least, EIntOverflow);
    EXPECT_THROW(TCurrency(1e15), EIntOverflow);
    EXPECT_THROW(TCurrency(INT64_MAX), EIntOverflow);
    EXPECT_THROW(TCurrency(UINT64_MAX), EIntOverflow);
    constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();
    EXPECT_THROW(TCurrency{NotANumber}, EIntOverflow);
}

TEST(Texts, ComparesWithoutCase)
{
    EXPECT_EQ(CompareText("Label1", "LABEL1"), 0);
    EXPECT_GT(CompareText("a_", "aa"), 0);                 // compared in upper case
    EXPECT_NE(CompareText("\xC3\xA9", "\xC3\x89"), 0);     // ASCII letters only
    EXPECT_EQ(AnsiCompareText("\xC3\xA9", "\xC3\x89"), 0); // e acute
    EXPECT_EQ(AnsiCompareText("\xCF\x82", "\xCE\xA3"), 0); // final sigma, Sigma
    EXPECT_EQ(AnsiCompareText("\xD0\x96", "\xD0\xB6"), 0); // Cyrillic Zhe
    EXPECT_LT(AnsiCompareText("ab", "ABC"), 0);
    EXPECT_NE(AnsiCompareText("\xFF", "\xFE"), 0); // two bytes that are no UTF-8
    EXPECT_EQ(AnsiUpperCase("stra\xC3\x9F"
                            "e \xC3\xBF\xFF"),
              "STRA\xC3\x9F"
              "E \xC5\xB8\xFF");
    EXPECT_EQ(AnsiLowerCase("\xC3\x80\xC3\x97\xC4\x80\xC4\x81"), "\xC3\xA0\xC3\x97\xC4\x81\xC4\x81");
}

TEST(Texts, TrimsAndReplaces)
{
    EXPECT_EQ(Trim(std::string("\t a b\xC2\xA0 \r\n\0", 10)), "a b\xC2\xA0");
    EXPECT_EQ(Trim(" \n "), "");
    EXPECT_EQ(QuotedStr("it's"), "'it''s'");
    EXPECT_EQ(StringReplace("aaa", "a", "aa", TReplaceExtent::All), "aaaaaa");
    EXPECT_EQ(StringReplace("aXa", "a", "", TReplaceExtent::First), "Xa");
    EXPECT_EQ(StringReplace("abc", "", "x", TReplaceExtent::All), "abc");
    EXPECT_EQ(StringReplace("\xC3\x84x\xC3\xA4", "\xC3\xA4", "a", TReplaceExtent::All, TReplaceCase::Ignore),
              "axa");
    // U+212A (three bytes) is another k: lengths differ though the texts are equal.
    EXPECT_EQ(StringReplace("1\xE2\x84\xAA"
                            "2",
                            "k", "-", TReplaceExtent::All, TReplaceCase::Ignore),
              "1-2");
}

TEST(FileNames, TakesNamesOfBothPlatforms)
{
    const struct {
        const char *Name, *Path, *Dir, *File, *Ext, *Changed;
    } Cases[] = {
        {"C:\\Data\\lang.txt", "C:\\Data\\", "C:\\Data", "lang.txt", ".txt", "C:\\Data\\lang.bak"},
        {"/usr/share/a.b.c", "/usr/share/", "/usr/share", "a.b.c", ".c", "/usr/share/a.b.bak"},
        {"C:lang", "C:", "C:", "lang", "", "C:lang.bak"},
        {"C:\\x", "C:\\", "C:\\", "x", "", "C:\\x.bak"},
        {"/x", "/", "/", "x", "", "/x.bak"},
        {"a.d/x", "a.d/", "a.d", "x", "", "a.d/x.bak"},
        {"", "", "", "", "", ".bak"},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        EXPECT_EQ(ExtractFilePath(Case.Name), Case.Path);
        EXPECT_EQ(ExtractFileDir(Case.Name), Case.Dir);
        EXPECT_EQ(ExtractFileName(Case.Name), Case.File);
        EXPECT_EQ(ExtractFileExt(Case.Name), Case.Ext);
        EXPECT_EQ(ChangeFileExt(Case.Name, ".bak"), Case.Changed);
    }
    EXPECT_EQ(IncludeTrailingBackslash("a/"), "a/");
    EXPECT_EQ(IncludeTrailingBackslash("a"), std::string("a") + PathDelimiter);
}
