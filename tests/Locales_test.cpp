#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <fstream>
#include <set>
#include <thread>

#include "tests/LocaleListing.h"

namespace {

#ifdef _WIN32
constexpr bool IsWindows = true;
#else
constexpr bool IsWindows = false;
#endif

// Where ICU's answers are known to be others than those of Windows. A row says
// how many answers of its items and locales differ, so that it fails both when
// there are more and when there are less.
const struct {
    const char* Reason;
    std::set<LCTYPE> Items;
    std::set<LCID> Locales;
    int Count;
} Accepted[] = {
    {"Macao inherits from Hong Kong in ICU, from Taiwan in Windows",
     {LOCALE_SNATIVELANGNAME, LOCALE_SSHORTDATE, LOCALE_SLONGDATE, LOCALE_IDATE, LOCALE_SNATIVEDISPLAYNAME},
     {0x1404, 0x21404, 0x41404},
     15},
    {"Windows has another edition of Greenlandic",
     {LOCALE_SCURRENCY, LOCALE_SLONGDATE, LOCALE_ILDATE, LOCALE_S1159, LOCALE_S2359, LOCALE_SNATIVECURRNAME},
     {0x046F},
     6},
    {"ICU knows Arabic digits where Windows has European ones: the Maghreb, Uyghur",
     {LOCALE_SNATIVEDIGITS, LOCALE_IDIGITSUBSTITUTION},
     {0x0480, 0x1001, 0x1401, 0x1801, 0x1C01},
     10},
    {"Windows takes the currency sign from another language of the country",
     {LOCALE_SCURRENCY},
     {0x045E, 0x0843, 0x0849, 0x085F, 0x380C, 0x4C09},
     6},
    {"ICU has no name of the currency in this language and script",
     {LOCALE_SNATIVECURRNAME},
     {0x0492, 0x082C, 0x301A},
     3},
    {"Windows takes Belize and Puerto Rico for users of US measures", {LOCALE_IMEASURE}, {0x2809, 0x500A}, 2},
    {"the place of the minus sign is not in ICU's patterns",
     {LOCALE_INEGNUMBER},
     {0x041A, 0x0429, 0x0453, 0x0846, 0x0859, 0x048C},
     6},
    {"Yiddish has no pattern for year and month in ICU", {LOCALE_SYEARMONTH}, {0x043D}, 1},
    {"Windows' chief locale of Alsatian has no number", {LOCALE_ILANGUAGE}, {0x0084}, 1},
};

TLocaleAnswers RecordedAnswers()
{
    std::ifstream Input(TEST_DATA "/locales.txt", std::ios::binary);
    return ReadAnswers(Input);
}

// The row that accepts the difference; the number of rows when none does.
std::size_t AcceptedBy(LCTYPE Item, LCID Locale)
{
    std::size_t Row = 0;
    while (Row < std::size(Accepted) &&
           (!Accepted[Row].Items.contains(Item) || !Accepted[Row].Locales.contains(Locale)))
        ++Row;
    return Row;
}

// The first test: later ones find all answers made.
TEST(Locales, ManyThreadsMayAskAtOnce)
{
    std::vector<std::string> Texts(4);
    std::vector<std::thread> Threads;
    for (std::string& Text : Texts)
        Threads.emplace_back([&Text] {
            for (const LCID Locale : {0x0407u, 0x0411u, 0x0401u, 0x0439u})
                for (const LCTYPE Item : ListedItems()) {
                    std::string Answer;
                    AskLocale(Locale, Item, Answer);
                    Text += Answer + "\n";
                }
        });
    for (std::thread& Thread : Threads)
        Thread.join();
    EXPECT_GT(Texts[0].size(), 1000u);
    for (const std::string& Text : Texts)
        EXPECT_EQ(Text, Texts[0]);
}

// A wrong picture, separator or name shows dates and amounts of a language wrongly.
TEST(Locales, AnswerAsWindowsDoes)
{
    const TLocaleAnswers Windows = RecordedAnswers();
    TLocaleAnswers Here = AskAllLocales();
    ASSERT_EQ(Windows.size(), ListedItems().size());
    int Compared = 0, Equal = 0;
    std::vector<int> Counts(std::size(Accepted) + 1);
    std::set<LCID> Common;
    for (const auto& [Item, Answers] : Windows)
        for (const auto& [Locale, Expected] : Answers) {
            if (!IsWindows && !IsValidLocale(Locale, LCID_SUPPORTED))
                continue;
            Common.insert(Locale);
            ++Compared;
            const auto Found = Here[Item].find(Locale);
            const std::string Actual = Found == Here[Item].end() ? "(no answer)" : Found->second;
            if (Actual == Expected) {
                ++Equal;
                continue;
            }
            const std::size_t Row = AcceptedBy(Item, Locale);
            ++Counts[Row];
            EXPECT_TRUE(!IsWindows && Row < std::size(Accepted))
                << "item " << Hexadecimal(Item) << " of " << Hexadecimal(Locale) << ": \"" << Actual
                << "\" instead of \"" << Expected << '"';
        }
    for (std::size_t Row = 0; Row < std::size(Accepted); ++Row)
        EXPECT_EQ(Counts[Row], IsWindows ? 0 : Accepted[Row].Count) << Accepted[Row].Reason;
    for (const auto& [Item, Answers] : Here)
        EXPECT_EQ(Windows.count(Item), 1u) << Hexadecimal(Item);
    const auto Named = Windows.at(LOCALE_SNAME);
    const auto IsNamed = [&](LCID Locale) { return Named.contains(Locale); };
    const auto Locales = std::count_if(Common.begin(), Common.end(), IsNamed);
    EXPECT_GE(Locales, 240);
    std::printf("%d locales, %d answers compared, %d equal\n", static_cast<int>(Locales), Compared, Equal);
}

// Windows leaves part of the text in a buffer that is too small, but nothing behind.
TEST(Locales, NothingIsWrittenBehindABuffer)
{
    constexpr LCTYPE Name = LOCALE_SENGLANGUAGE; // "English" and a zero
    const struct {
        const char* Title;
        LCID Locale;
        LCTYPE Item;
        int Size;
        int Result;
        DWORD Error; // 0 for none
    } Cases[] = {
        {"size asked for", 0x0409, Name, 0, 8, 0},
        {"just enough", 0x0409, Name, 8, 8, 0},
        {"more than enough", 0x0409, Name, 20, 8, 0},
        {"one too few", 0x0409, Name, 7, 0, ERROR_INSUFFICIENT_BUFFER},
        {"one byte", 0x0409, Name, 1, 0, ERROR_INSUFFICIENT_BUFFER},
        {"negative", 0x0409, Name, -1, 0, ERROR_INVALID_PARAMETER},
        {"own settings left out", 0x0409, Name | LOCALE_NOUSEROVERRIDE, 8, 8, 0},
        {"neutral language", 0x0009, Name, 8, 8, 0},
        {"another sort order", 0x10407, LOCALE_SNAME, 13, 13, 0},
        {"sort order of another language", 0x10409, Name, 8, 0, ERROR_INVALID_PARAMETER},
        {"no locale", 0x9999, Name, 8, 0, ERROR_INVALID_PARAMETER},
        {"all bits", 0xFFFFFFFF, Name, 8, 0, ERROR_INVALID_PARAMETER},
        {"item 0", 0x0409, 0, 8, 0, ERROR_INVALID_FLAGS},
        {"no item", 0x0409, 0x0999, 8, 0, ERROR_INVALID_FLAGS},
        {"size of a number", 0x0409, LOCALE_IDIGITS | LOCALE_RETURN_NUMBER, 0, 4, 0},
        {"a number", 0x0409, LOCALE_IDIGITS | LOCALE_RETURN_NUMBER, 4, 4, 0},
        {"part of a number", 0x0409, LOCALE_IDIGITS | LOCALE_RETURN_NUMBER, 3, 0, ERROR_INSUFFICIENT_BUFFER},
        {"no number", 0x0409, LOCALE_SDECIMAL | LOCALE_RETURN_NUMBER, 8, 0, ERROR_INVALID_FLAGS},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Title);
        char Buffer[32];
        std::memset(Buffer, 'x', sizeof Buffer);
        SetLastError(0);
        EXPECT_EQ(GetLocaleInfoA(Case.Locale, Case.Item | LOCALE_USE_CP_ACP, Buffer, Case.Size), Case.Result);
        EXPECT_EQ(GetLastError(), Case.Error);
        const auto End =
            static_cast<std::size_t>(std::max(Case.Size > 0 && Case.Result > 0 ? Case.Result : Case.Size, 0));
        EXPECT_EQ(std::string(Buffer + End, sizeof Buffer - End), std::string(sizeof Buffer - End, 'x'));
    }
    SetLastError(0);
    EXPECT_EQ(GetLocaleInfoA(0x0409, Name, nullptr, 8), 0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_PARAMETER));
}

TEST(Locales, NumbersComeAsNumbers)
{
    const struct {
        LCTYPE Item;
        DWORD Number;
    } Cases[] = {{LOCALE_ILANGUAGE, 0x0419},
                 {LOCALE_IDEFAULTANSICODEPAGE, 1251},
                 {LOCALE_ICURRENCY, 3},
                 {LOCALE_INEGCURR, 8},
                 {LOCALE_IFIRSTDAYOFWEEK, 0}};
    for (const auto& Case : Cases) {
        DWORD Number = 99;
        GetLocaleInfoA(0x0419, Case.Item | LOCALE_RETURN_NUMBER, reinterpret_cast<LPSTR>(&Number), 4);
        EXPECT_EQ(Number, Case.Number) << Hexadecimal(Case.Item);
    }
}

// The first country of a language is not always the one that Windows means.
TEST(Locales, LanguagesAndDefaultsStandForALocale)
{
    EXPECT_EQ(ConvertDefaultLocale(0x001D), 0x041Du);
    EXPECT_EQ(ConvertDefaultLocale(0x0004), 0x0804u) << "not 0404";
    EXPECT_EQ(ConvertDefaultLocale(0x7C1A), 0x241Au);
    EXPECT_EQ(ConvertDefaultLocale(0x1234), 0x1234u) << "unknown";
    std::string Name;
    EXPECT_TRUE(AskLocale(0x0009, LOCALE_SNAME, Name));
    EXPECT_EQ(Name, "en-US");
    for (const LCID Default : {LOCALE_NEUTRAL, LOCALE_USER_DEFAULT, LOCALE_SYSTEM_DEFAULT}) {
        EXPECT_EQ(ConvertDefaultLocale(Default), GetUserDefaultLCID());
        EXPECT_FALSE(IsValidLocale(Default, LCID_INSTALLED));
        std::string Own;
        EXPECT_TRUE(AskLocale(Default, LOCALE_ILANGUAGE, Own));
        EXPECT_EQ(std::stoul(Own, nullptr, 16), GetUserDefaultLCID());
    }
    EXPECT_EQ(GetUserDefaultLangID(), LANGIDFROMLCID(GetUserDefaultLCID()));
    EXPECT_EQ(GetSystemDefaultLangID(), LANGIDFROMLCID(GetSystemDefaultLCID()));
    EXPECT_EQ(MAKELCID(MAKELANGID(LANG_GERMAN, 2), 1), 0x10807u);
    EXPECT_EQ(SUBLANGID(0x0807), 2);
    EXPECT_EQ(SORTIDFROMLCID(0x10807), 1);
}

TEST(Locales, EnumerationStopsWhenTold)
{
    static int Calls;
    Calls = 0;
    const auto Twice = [](LPSTR) -> BOOL { return ++Calls < 2; };
    EXPECT_TRUE(EnumSystemLocalesA(Twice, LCID_INSTALLED));
    EXPECT_EQ(Calls, 2);
    for (const LCID Locale : EnumeratedLocales(LCID_INSTALLED))
        EXPECT_TRUE(IsValidLocale(Locale, LCID_INSTALLED)) << Hexadecimal(Locale);
}

// A translated thread must not change what the others see.
TEST(Locales, EachThreadHasItsOwn)
{
    const LCID Before = GetThreadLocale();
    EXPECT_TRUE(SetThreadLocale(0x0407));
    EXPECT_FALSE(SetThreadLocale(0x9999));
    EXPECT_EQ(GetThreadLocale(), 0x0407u) << "an unknown one changes nothing";
    LCID Elsewhere = 0;
    std::thread([&] { Elsewhere = GetThreadLocale(); }).join();
    EXPECT_EQ(Elsewhere, GetUserDefaultLCID());
    EXPECT_TRUE(SetThreadLocale(LOCALE_USER_DEFAULT));
    EXPECT_EQ(GetThreadLocale(), GetUserDefaultLCID());
    SetThreadLocale(Before);
}

#ifndef _WIN32
TEST(Locales, UserDefaultFollowsTheEnvironment)
{
    const struct {
        const char* All;
        const char* Time;
        const char* Lang;
        LCID Expected;
    } Cases[] = {
        {"", "", "", 0x0409},
        {"C", "de_DE.UTF-8", "de_DE.UTF-8", 0x0409},
        {"fr_FR.UTF-8", "de_DE", "it_IT", 0x040C},
        {"", "de_AT", "it_IT", 0x0C07},
        {"", "", "it_IT.UTF-8@euro", 0x0410},
        {"", "", "POSIX", 0x0409},
        {"", "", "zz_ZZ", 0x0409},
        {"", "", "pt", 0x0416},
        {"", "", "de_BE", 0x0407},
        {"", "", "sr", 0x241A},
        {"", "", "nn", 0x0814},
        {"", "", "sr_RS", 0x281A},
        {"", "", "sr_RS@latin", 0x241A},
        {"", "", "uz_UZ@cyrillic", 0x0843},
        {"", "", "ca_ES@valencia", 0x0403},
        {"", "", "zh_HK", 0x0C04},
        {"", "", "../../x_%s", 0x0409},
    };
    const char* const Names[] = {"LC_ALL", "LC_TIME", "LANG"};
    std::vector<std::pair<bool, std::string>> Before;
    for (const char* const Name : Names) {
        const char* const Value = std::getenv(Name);
        Before.emplace_back(Value != nullptr, Value ? Value : "");
    }
    for (const auto& Case : Cases) {
        setenv("LC_ALL", Case.All, 1);
        setenv("LC_TIME", Case.Time, 1);
        setenv("LANG", Case.Lang, 1);
        EXPECT_EQ(GetUserDefaultLCID(), Case.Expected) << Case.All << '/' << Case.Time << '/' << Case.Lang;
    }
    for (std::size_t Index = 0; Index < Before.size(); ++Index)
        if (Before[Index].first)
            setenv(Names[Index], Before[Index].second.c_str(), 1);
        else
            unsetenv(Names[Index]);
}
#endif

} // namespace
