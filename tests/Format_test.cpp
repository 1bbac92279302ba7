#include <gtest/gtest.h>

#include <limits>

#include "framework/rtl/SysUtils.h"
#include "tests/FormatVarsScope.h"

namespace {

using TArgs = std::initializer_list<TVarRec>;

struct TCase {
    const char* Format;
    TArgs Args;
    const char* Expected;
};

void ExpectAll(std::initializer_list<TCase> Cases)
{
    for (const auto& Case : Cases)
        EXPECT_EQ(Format(Case.Format, Case.Args), Case.Expected) << Case.Format;
}

std::string ErrorOf(const std::string& Fmt, TArgs Args)
{
    try {
        return "no error: " + Format(Fmt, Args);
    } catch (const EConvertError& Error) {
        return Error.Message();
    }
}

} // namespace

TEST(Format, Integers)
{
    ExpectAll({
        {"%d", {42}, "42"},
        {"%D", {-42}, "-42"},
        {"[%5d|%-5d|%.4d]", {-42, -42, -42}, "[  -42|-42  |-0042]"},
        {"%.20d", {7}, "7"},
        {"%u", {-1}, "4294967295"},
        {"%u %d",
         {18446744073709551615u, 18446744073709551615u},
         "18446744073709551615 18446744073709551615"},
        {"%d %d", {4294967295u, std::int64_t{-5000000000}}, "4294967295 -5000000000"},
        {"%x %.4x %x", {255, 255, -1}, "FF 00FF FFFFFFFF"},
        {"%x", {std::int64_t{-1}}, "FFFFFFFFFFFFFFFF"},
        {"%.16d", {INT64_MIN}, "-9223372036854775808"},
    });
}

TEST(Format, Texts)
{
    const std::string Long(3, 'x');
    ExpectAll({
        {"%s and %s", {"a", Long}, "a and xxx"},
        {"%s%s", {'c', std::string_view("v")}, "cv"},
        {"[%3s|%-3s|%.2s]", {"a", "a", "abc"}, "[  a|a  |ab]"},
        {"100%% %s", {"%d"}, "100% %d"},
        {"%s", {""}, ""},
        // Width and precision count characters: a byte count would cut the umlaut.
        {"[%3s|%.1s]", {"\xC3\xA4", "\xC3\xA4\xC3\xB6"}, "[  \xC3\xA4|\xC3\xA4]"},
    });
    EXPECT_EQ(Format("%p", {static_cast<const void*>(nullptr)}), std::string(2 * sizeof(void*), '0'));
}

TEST(Format, PicksArguments)
{
    ExpectAll({
        {"%1:s %0:s", {"a", "b"}, "b a"},
        {"%1:s %s", {"a", "b", "c"}, "b c"},
        {"%:s%:s", {"a", "b"}, "aa"},
        {"%0:s%1:-3s|", {"a", "b"}, "ab  |"},
        {"%*d|%-*d|%.*d", {4, 7, 4, 7, 3, 7}, "   7|7   |007"},
        {"%2:*d", {"no", "no", 3, 5}, "  5"},
    });
}

TEST(Format, Floats)
{
    ExpectAll({
        {"%f %.0f %.3f", {1.5, 2.5, 1.0005L}, "1.50 3 1.001"},
        {"%.2f %.2f %.2f %.2f", {1.005L, 1.005, 0.125, -0.001}, "1.01 1.00 0.13 0.00"},
        {"%f", {1e20}, "1E20"},
        {"%.1f %.1f", {9.95L, 999.96}, "10.0 1000.0"},
        {"%e %.3e", {1234.5, -0.00012345}, "1.23450000000000E+003 -1.23E-004"},
        {"%e", {0.0}, "0.00000000000000E+000"},
        {"%g %g %g", {0.1, 1e20, 123456.0}, "0.1 1E020 123456"},
        {"%n %.0n %n", {1234567.891, 1234567.5, 999.0}, "1,234,567.89 1,234,568 999.00"},
        {"%m %m", {1234.5, -1234.5}, "$1,234.50 ($1,234.50)"},
        {"[%10.2f|%-10.2f]", {3.14159, 3.14159}, "[      3.14|3.14      ]"},
    });
}

TEST(Format, FollowsTheFormatVariables)
{
    const TFormatVarsScope Scope;
    DecimalSeparator = ",";
    ThousandSeparator = "\xE2\x80\xAF"; // narrow no-break space
    CurrencyString = "\xE2\x82\xAC";
    CurrencyFormat = 3;
    NegCurrFormat = 8;
    ExpectAll({
        {"%n",
         {1234.5},
         "1\xE2\x80\xAF"
         "234,50"},
        {"%m",
         {1234.5},
         "1\xE2\x80\xAF"
         "234,50 \xE2\x82\xAC"},
        {"%10m", {-1.0}, "   -1,00 \xE2\x82\xAC"},
        {"%f|%g|%e", {0.5, 0.5, 0.5}, "0,50|0,5|5,00000000000000E-001"},
    });
    CurrencyDecimals = 0;
    ExpectAll({{"%m|%.3m|%n", {1.0, 1.0, 1.0}, "1 \xE2\x82\xAC|1,000 \xE2\x82\xAC|1,00"}});
    DecimalSeparator = ThousandSeparator = "";
    ExpectAll({{"%n", {1234.5}, "123450"}});
}

TEST(Format, Currency)
{
    const TFormatVarsScope Scope;
    const char* const Positive[] = {"$1.00", "1.00$", "$ 1.00", "1.00 $"};
    const char* const Negative[] = {"($1.00)", "-$1.00",  "$-1.00",   "$1.00-",  "(1.00$)", "-1.00$",
                                    "1.00-$",  "1.00$-",  "-1.00 $",  "-$ 1.00", "1.00 $-", "$ 1.00-",
                                    "$ -1.00", "1.00- $", "($ 1.00)", "(1.00 $)"};
    for (CurrencyFormat = 0; CurrencyFormat < 4; ++CurrencyFormat)
        EXPECT_EQ(Format("%m", {1.0}), Positive[CurrencyFormat]);
    for (NegCurrFormat = 0; NegCurrFormat < 16; ++NegCurrFormat) {
        EXPECT_EQ(Format("%m", {-1.0}), Negative[NegCurrFormat]);
        EXPECT_EQ(Format("%m", {TCurrency(-1)}), Negative[NegCurrFormat]);
    }
    // Nonsense from a damaged file.
    for (const int Nonsense : {16, 99, 255, -1}) {
        NegCurrFormat = CurrencyFormat = Nonsense;
        EXPECT_EQ(Format("%m %m", {-1.0, 1.0}), "($1.00) $1.00");
    }
    // Rounded to zero there is no sign.
    EXPECT_EQ(Format("%m", {-0.004}), Format("%m", {0.0}));
}

TEST(FormatFloat, FollowsThePicture)
{
    const TExtended Huge = 1e4000L, Tiny = std::numeric_limits<TExtended>::denorm_min();
    const struct {
        const char* Picture;
        TExtended Value;
        const char* Expected;
    } Cases[] = {
        {"0", 1234.5L, "1235"},
        {"0", 0.5L, "1"},
        {"0", -0.5L, "-1"},
        {"0", -0.4L, "0"},
        {"0.00", 1.005L, "1.01"},
        {"0.00", 999.995L, "1000.00"},
        {"0.00", -0.001L, "0.00"},
        {"#.##", 0.5L, ".5"},
        {"#.##", 5, "5"},
        {"#.##", 0, ""},
        {"#.#0", 5, "5.00"},
        {"0.", 5, "5"},
        {"00000.###", 12.25L, "00012.25"},
        {"0#0", 7, "007"},
        {".00", 123.456L, "123.46"},
        {"0.0.0", 1.25L, "1.25"},
        {"#,##0.00", 1234567.891L, "1,234,567.89"},
        {"#,##0.00", 12, "12.00"},
        {",0", 999999.5L, "1,000,000"},
        {"0,", 1234, "1,234"},
        {"0000000,", 1234, "0,001,234"},
        {"#-##-##", 12345, "1-23-45"},
        {"(##) ##", 12345, "(123) 45"},
        {"$0", -5, "-$5"},
        {"0.00;(0.00)", -5, "(5.00)"},
        {"0.00;(0.00)", -0.001L, "0.00"},
        {"0.00;;zero", -5, "-5.00"},
        {"0.00;(0.00);zero", 0, "zero"},
        {"0.00;(0.00);zero", -0.001L, "zero"},
        {"0;neg;", 0, "0"},
        {"0;0;0;0", -1, "1"}, // there is no fourth section
        {"';'0';';\"-;\"0", -1, "-;1"},
        {"", 1234.5L, "1234.5"},
        {";(0)", 1234.5L, "1234.5"},
        {";(0)", -2, "(2)"},
        {"0.00E+00", 1234.5L, "1.23E+03"},
        {"0.00e-0", 1234.5L, "1.23e3"},
        {"#.##E-00", 0.00012L, "1.2E-04"},
        {"00.0E+0", 12345, "12.3E+3"},
        {"0.0E+0", 9.96L, "1.0E+1"},
        {"0E+0000000", 1, "1E+0000"},
        {"0.00E+00", 0, "0.00E+00"},
        {"0.0E+0", -12, "-1.2E+1"},
        {"0.###E+0", Huge, "1E+4000"},
        {"0.0E+0", Tiny, sizeof(TExtended) > 8 ? "3.6E-4951" : "4.9E-324"},
        {"0.00", Huge, "1E4000"},
        {"0.00", 1e18L, "1E18"},
        {"0.0", 123456789012345678.0L, "123456789012345678.0"},
        {"0.000000000000000000000", 0.1L, "0.100000000000000000000"},
        {"0 'km/h'", 5, "5 km/h"},
        {"\"#\"0", 5, "#5"},
        {"0 'open", 5, "5 open"},
        {"0 '", 5, "5 "},
        {"text", -5, "-text"},
        {"0 E", 5, "5 E"},
        {"0\xE2\x82\xAC", 5, "5\xE2\x82\xAC"},
        {"0", std::numeric_limits<TExtended>::infinity(), "INF"},
        {"0", std::numeric_limits<TExtended>::quiet_NaN(), "NAN"},
    };
    for (const auto& Case : Cases)
        EXPECT_EQ(FormatFloat(Case.Picture, Case.Value), Case.Expected) << Case.Picture;
    const TFormatVarsScope Scope;
    DecimalSeparator = "\xD9\xAB";
    ThousandSeparator = "\xC2\xA0";
    EXPECT_EQ(FormatFloat("#,##0.0", 1234.5L), "1\xC2\xA0"
                                               "234\xD9\xAB"
                                               "5");
}

TEST(Format, RefusesWhatDoesNotFit)
{
    const struct {
        const char* Format;
        TArgs Args;
    } Invalid[] = {
        {"%d", {"text"}},
        {"%s", {1}},
        {"%d", {1.0}},
        {"%f", {1}},
        {"%p", {"x"}},
        {"%q", {1}},
        {"%", {1}},
        {"%5", {1}},
        {"%-", {1}},
        {"% d", {1}},
        {"%*d", {"x", 1}},
        {"%*d", {-1, 1}},
        {"%99999999s", {"x"}},
        {"%.99999999999s", {"x"}},
    };
    for (const auto& Case : Invalid)
        EXPECT_EQ(ErrorOf(Case.Format, Case.Args),
                  "Format '" + std::string(Case.Format) + "' invalid or incompatible with argument");
    for (const char* Fmt : {"%s %s", "%1:s", "%*s", "%65535:s"})
        EXPECT_EQ(ErrorOf(Fmt, {"x"}).substr(0, 22),
                  Fmt[1] == '*' ? "Format '%*s' invalid o" : "No argument for format");
    // At most 31 bytes are quoted, and no character is cut.
    EXPECT_EQ(ErrorOf(std::string(30, '.') + "\xC3\xA4%d", {}),
              "No argument for format '" + std::string(30, '.') + "'");
}
