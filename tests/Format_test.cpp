#include <gtest/gtest.h>

#include "framework/rtl/SysUtils.h"

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
    });
    NegCurrFormat = 99; // nonsense from a damaged file
    EXPECT_EQ(Format("%m", {-1.0}), "(\xE2\x82\xAC"
                                    "1,00)");
    DecimalSeparator = ".";
    ThousandSeparator = ",";
    CurrencyString = "$";
    CurrencyFormat = NegCurrFormat = 0;
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
