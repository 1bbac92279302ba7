#include "framework/streaming/FormFloat.h"

#include <gtest/gtest.h>

#include <limits>

// The mantissas are those of an 80-bit processor.
TEST(FormFloat, ReadsToTheLastBit)
{
    const struct {
        const char* Text;
        TFormExtended Expected;
    } Cases[] = {
        {"0", {0, 0}},
        {"-0.0", {0, 0x8000}},
        {"1", {0x8000000000000000, 0x3FFF}},
        {"0.1", {0xCCCCCCCCCCCCCCCD, 0x3FFB}},
        {"-123456789.987654321", {0xEB79A2BF9ADD3C0E, 0xC019}},
        {"18446744073709551615", {0xFFFFFFFFFFFFFFFF, 0x403E}},
        {"18446744073709551615.5", {0x8000000000000000, 0x403F}},
        {"1e4932", {0xD72CB2A95C7EF6CD, 0x7FFE}},
        {"1e-5000", {0, 0}},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Text);
        const auto Read = ExtendedFromText(Case.Text);
        ASSERT_TRUE(Read);
        EXPECT_EQ(Read->Mantissa, Case.Expected.Mantissa);
        EXPECT_EQ(Read->SignExponent, Case.Expected.SignExponent);
    }
    for (const char* Text : {"", "-", ".", "1e", "1e+", "1.2.3", "1x", "1e4933", "1e99999999999999999999"}) {
        SCOPED_TRACE(Text);
        EXPECT_FALSE(ExtendedFromText(Text));
    }
    EXPECT_FALSE(ExtendedFromText(std::string(100000, '9')));
}

TEST(FormFloat, WritesRounded)
{
    const auto Third = *ExtendedFromText("0.333333333333333333333");
    EXPECT_EQ(ExtendedToText(Third, 15), "0.333333333333333");
    EXPECT_EQ(ExtendedToFixed(Third, 16, 18), "0.333333333333333300");
    EXPECT_EQ(ExtendedToText(*ExtendedFromText("9.9999"), 3), "10");
    EXPECT_EQ(ExtendedToText(*ExtendedFromText("-0.00001234"), 15), "-0.00001234");
    EXPECT_EQ(ExtendedToText(*ExtendedFromText("0.00000125"), 15), "1.25E-6");
    EXPECT_EQ(ExtendedToText(*ExtendedFromText("1e20"), 15), "1E20");
    EXPECT_EQ(ExtendedToFixed(*ExtendedFromText("0.0000000000000000016"), 16, 18), "0.000000000000000002");
    EXPECT_EQ(ExtendedToFixed(*ExtendedFromText("1e-30"), 16, 18), "0.000000000000000000");
    EXPECT_EQ(ExtendedToFixed(*ExtendedFromText("123"), 16, 18), "123.000000000000000000");
}

TEST(FormFloat, DoublesSurviveBothWays)
{
    using TLimits = std::numeric_limits<double>;
    for (const double Value : {0.0, -1.5, 0.1, 1.0 / 3, 1e300, TLimits::max(), TLimits::min(),
                               TLimits::denorm_min(), TLimits::infinity(), 9007199254740993.0}) {
        EXPECT_EQ(ExtendedToDouble(ExtendedFromDouble(Value)), Value);
        if (Value < TLimits::infinity()) {
            const auto Read = ExtendedFromText(ExtendedToText(ExtendedFromDouble(Value), 17));
            EXPECT_EQ(ExtendedToDouble(*Read), Value);
        }
    }
}
