// The locale translator: entries, applying them, switching the others, files.
#include "Qlt/Qlt.h"

#include <filesystem>
#include <functional>

#include <gtest/gtest.h>

#include "Qft/Qft.h"
#include "Qlt/OfferedValues.h"
#include "framework/forms/DataModules.h"
#include "framework/forms/Forms.h"
#include "framework/forms/ListBoxes.h"
#include "framework/rtl/Files.h"
#include "framework/rtl/SysUtils.h"
#include "framework/rtl/Utf8.h"
#include "framework/streaming/ComponentReader.h"
#include "framework/streaming/ComponentWriter.h"
#include "framework/streaming/FormFile.h"
#include "framework/streaming/FormText.h"
#include "platform/winapi.h"
#include "tests/QltScene.h"

namespace {

using TTexts = std::vector<std::string>;

class Locales : public TLocaleScene, public testing::Test {};

// Follows the locale without being a translator.
class TFollower : public TComponent {
    OBX_CLASS(TComponent)
public:
    TFollower(TComponent* Owner, int Locale) : TComponent(Owner), FLocale(Locale) {}

    int Locale() const { return FLocale; }
    OBX_PROPERTY(bool, Translate, false)

private:
    int FLocale;
};

const TMetaClass& TFollower::MetaClass()
{
    static const TMetaClass Class("TFollower", &TComponent::MetaClass(), nullptr,
                                  {Prop<&TFollower::Locale>("Locale"), OBX_ROW(TFollower, Translate)});
    return Class;
}

// The same properties, but the locale is a text.
class TStranger : public TComponent {
    OBX_CLASS(TComponent)
public:
    using TComponent::TComponent;

    OBX_PROPERTY(std::string, Locale, "0000041D")
    OBX_PROPERTY(bool, Translate, false)
};

const TMetaClass& TStranger::MetaClass()
{
    static const TMetaClass Class("TStranger", &TComponent::MetaClass(), nullptr,
                                  {OBX_ROW(TStranger, Locale), OBX_ROW(TStranger, Translate)});
    return Class;
}

TEST_F(Locales, FreshTranslatorHoldsTheUsersLocale)
{
    const int User = static_cast<int>(GetUserDefaultLCID());
    const auto& List = ListOf(*Translator);
    ASSERT_EQ(List.Count(), 58);
    EXPECT_TRUE(List.IsInOrder());
    for (int I = 0; I < List.Count(); ++I) {
        EXPECT_TRUE(List.Get(I).starts_with(IntToHex(User, 8) + "_")) << List.Get(I);
        EXPECT_EQ(ObjectInteger(List.Objects(I)), User);
    }
    EXPECT_TRUE(Translator->Translate());
    EXPECT_EQ(Translator->ActiveLocale(), User);
    EXPECT_EQ(Translator->StartupLocale(), "User default 00000400");
    EXPECT_EQ(Translator->ListFormat(), "%0:s, %1:s");
    ASSERT_EQ(Translator->LangList().Count(), 1);
    EXPECT_EQ(Translator->DesignLocale(), Translator->LangList()[0] + " " + IntToHex(User, 8));
}

TEST(HexToInt, ReadsDigitsAndPassesOverTheRest)
{
    const struct {
        std::string Text;
        int Value;
    } Cases[] = {{"", 0},
                 {"1F", 31},
                 {"0000041d", 0x41D},
                 {"z1 g2-", 0x12},
                 {"FFFFFFFF", -1},
                 {"123456789", 0x23456789},
                 {std::string(256, '1'), 0},
                 {"1F" + std::string(256, '2'), 0x1F}};
    for (const auto& [Text, Value] : Cases)
        EXPECT_EQ(HexToInt(Text), Value) << Text;
}

TEST_F(Locales, EntriesSetTheirVariables)
{
    const struct {
        const char* Entry;
        std::function<std::string()> Read;
        const char* Value;
    } Cases[] = {
        {"_LONGDAYNAMES[1]=Montag", [] { return LongDayNames[1]; }, "Montag"},
        {"_LONGDAYNAMES[7]=Sonntag", [] { return LongDayNames[7]; }, "Sonntag"},
        {"_SHORTDAYNAMES[3]=Mi", [] { return ShortDayNames[3]; }, "Mi"},
        {"_LONGMONTHNAMES[12]=Dezember", [] { return LongMonthNames[12]; }, "Dezember"},
        {"_SHORTMONTHNAMES[3]=M\xC3\xA4r", [] { return ShortMonthNames[3]; }, "M\xC3\xA4r"},
        {"_SHORTTIMEFORMAT=hh:mm", [] { return ShortTimeFormat; }, "hh:mm"},
        {"_LONGTIMEFORMAT=hh:mm:ss", [] { return LongTimeFormat; }, "hh:mm:ss"},
        {"_TIMESEPARATOR=..", [] { return TimeSeparator; }, "."},
        {"_TIMEAMSTRING=fm", [] { return TimeAMString; }, "fm"},
        {"_TIMEPMSTRING=", [] { return TimePMString; }, ""},
        {"_DATESEPARATOR=\xE2\x80\x8F", [] { return DateSeparator; }, "/"},
        {"_DATESEPARATOR=-/", [] { return DateSeparator; }, "-"},
        {"_SHORTDATEFORMAT=yyyy-mm-dd", [] { return ShortDateFormat; }, "yyyy-mm-dd"},
        {"_LONGDATEFORMAT='den 'd mmmm=yyyy", [] { return LongDateFormat; }, "'den 'd mmmm=yyyy"},
        {"_NEGCURRFORMAT=8", [] { return IntToStr(NegCurrFormat); }, "8"},
        {"_NEGCURRFORMAT=264", [] { return IntToStr(NegCurrFormat); }, "8"},
        {"_CURRENCYDECIMALS=0", [] { return IntToStr(CurrencyDecimals); }, "0"},
        {"_CURRENCYSTRING=kr", [] { return CurrencyString; }, "kr"},
        {"_THOUSANDSEPARATOR=\xC2\xA0.", [] { return ThousandSeparator; }, "\xC2\xA0"},
        {"_DECIMALSEPARATOR=,", [] { return DecimalSeparator; }, ","},
        {"_LISTSEPARATOR=;,", [] { return ListSeparator; }, ";"},
        {"_TWODIGITYEARCENTURYWINDOW=50", [] { return IntToStr(TwoDigitYearCenturyWindow); }, "50"},
    };
    CurrencyFormat = 2;
    for (const auto& [Entry, Read, Value] : Cases) {
        SetEntries({std::string("0000041D") + Entry, "0000041D_CURRENCYFORMAT=3", "00000409_CURRENCYSTRING=$",
                    "0000041D_NATIVENAME=svenska", "0000041D without value"});
        EXPECT_TRUE(Translator->TranslateLocale(0x41D)) << Entry;
        EXPECT_EQ(Read(), Value) << Entry;
    }
    EXPECT_EQ(CurrencyFormat, 2) << "is kept for the editor only";
}

TEST_F(Locales, EntriesComeFromTheSystem)
{
    constexpr int Unknown = 0x7777;
    const struct {
        int Lcid;
        const char* Entry;
    } Cases[] = {
        {0x41D, "0000041D_LONGTIMEFORMAT=hh:mm:ss"},       {0x409, "00000409_SHORTTIMEFORMAT=hh:mm AMPM"},
        {0x412, "00000412_LONGTIMEFORMAT=AMPM hh:mm:ss"},  {0x407, "00000407_LONGDAYNAMES[1]=Montag"},
        {0x409, "00000409_SHORTDAYNAMES[7]=Sun"},          {0x407, "00000407_LONGMONTHNAMES[12]=Dezember"},
        {0x41D, "0000041D_SHORTDATEFORMAT=yyyy-MM-dd"},    {0x41D, "0000041D_NATIVENAME=svenska"},
        {0x41D, "0000041D_TWODIGITYEARCENTURYWINDOW=0"},   {Unknown, "00007777_SHORTTIMEFORMAT=AMPM h:mm"},
        {Unknown, "00007777_LONGDAYNAMES[7]=Sunday"},      {Unknown, "00007777_SHORTMONTHNAMES[12]=Dec"},
        {Unknown, "00007777_LONGDATEFORMAT=mmmm d, yyyy"}, {Unknown, "00007777_CURRENCYSTRING="},
        {Unknown, "00007777_NATIVECOUNTRYNAME=Unknown"},
    };
    for (const auto& [Lcid, Entry] : Cases) {
        TSortList List;
        Translator->AddOrgProps(Lcid, List);
        EXPECT_GE(List.IndexOf(Entry), 0) << Entry << ": " << List.Text();
    }
}

TEST_F(Locales, LongValuesAreCutBetweenCharacters)
{
    SetEntries({"0000041D_CURRENCYSTRING=" + std::string(4094, 'k') + "\xC3\xB6r"});
    ASSERT_TRUE(Translator->TranslateLocale(0x41D));
    EXPECT_EQ(CurrencyString, std::string(4094, 'k'));
}

TEST_F(Locales, FormatsFollowTheLocale)
{
    SetLocalesOf(*Translator, {0x409, 0x41D, 0x407});
    const TDateTime Day = EncodeDate(2026, 3, 1) + EncodeTime(15, 4, 5, 0);
    const struct {
        int Lcid;
        const char* Date;
        const char* Number;
    } Cases[] = {
        {0x41D, "2026-03-01", "1234,5"}, {0x407, "1.3.2026", "1234,5"}, {0x409, "3/1/2026", "1234.5"}};
    for (const auto& [Lcid, Date, Number] : Cases) {
        ASSERT_TRUE(Translator->TranslateLocale(Lcid));
        EXPECT_EQ(DateToStr(Day), Date);
        EXPECT_EQ(FloatToStr(1234.5), Number);
        EXPECT_EQ(StrToDate(DateToStr(Day)), EncodeDate(2026, 3, 1));
        EXPECT_EQ(GetThreadLocale(), static_cast<LCID>(Lcid));
        EXPECT_EQ(SysLocale.DefaultLCID, Lcid);
        EXPECT_EQ(SysLocale.PriLangID, Lcid & 0x3FF);
        EXPECT_EQ(SysLocale.SubLangID, Lcid >> 10);
    }
}

std::vector<int> Enumerated;

const std::vector<int>& SystemLocales()
{
    Enumerated.clear();
    EnumSystemLocalesA(
        [](char* Hexadecimal) -> BOOL {
            Enumerated.push_back(HexToInt(Hexadecimal));
            return TRUE;
        },
        LCID_SUPPORTED);
    return Enumerated;
}

TEST_F(Locales, EveryLocaleOfTheSystemApplies)
{
    const std::vector<int>& All = SystemLocales();
    ASSERT_GT(All.size(), 200U);
    SetLocalesOf(*Translator, All);
    EXPECT_EQ(ListOf(*Translator).Count(), 58 * static_cast<int>(All.size()));
    for (const int Lcid : All) {
        EXPECT_TRUE(Translator->TranslateLocale(Lcid)) << Lcid;
        EXPECT_FALSE(LongDayNames[1].empty()) << Lcid;
        EXPECT_EQ(StrToFloat(FloatToStr(-1234567.25)), -1234567.25) << Lcid;
        const std::string Date = DateToStr(EncodeDate(2026, 11, 21));
        EXPECT_EQ(CharacterCount(DateSeparator), 1U) << Lcid;
        // Pictures with words or marks are not read back, nor years before days before months.
        const bool IsYearDayMonth = ShortDateFormat.front() == 'y' && ShortDateFormat.back() == 'M';
        if (!IsYearDayMonth && ShortDateFormat.find_first_not_of("dMy/.-") == std::string::npos) {
            EXPECT_EQ(StrToDate(Date), EncodeDate(2026, 11, 21)) << Lcid << " " << Date;
        }
    }
}

TEST_F(Locales, ListsOutOfOrderAreSearchedWhole)
{
    TStrings& List = *Translator->Translations();
    List.Clear();
    for (const char* const Entry : {"0000041D_CURRENCYSTRING=kr", "00000409_CURRENCYSTRING=$",
                                    "0000041D_TIMEPMSTRING=em", "00000409_TIMEPMSTRING=PM"})
        List.Add(Entry);
    EXPECT_TRUE(Translator->TranslateLocale(0x409));
    EXPECT_EQ(CurrencyString + TimePMString, "$PM");
    EXPECT_TRUE(Translator->TranslateLocale(0x41D));
    EXPECT_EQ(CurrencyString + TimePMString, "krem");
}

TEST_F(Locales, BadValuesRaiseAndKeepWhatWasApplied)
{
    const struct {
        const char* Entry;
        const char* Message;
    } Cases[] = {
        {"0000041D_NEGCURRFORMAT=eight", "'eight' is not a valid integer value"},
        {"0000041D_NEGCURRFORMAT=", "'' is not a valid integer value"},
        {"0000041D_TWODIGITYEARCENTURYWINDOW=5O", "'5O' is not a valid integer value"},
        {"0000041D_DECIMALSEPARATOR=", "'_DECIMALSEPARATOR' needs a character"},
    };
    Translator->OnTranslated = {this, &Locales::Count};
    for (const auto& [Entry, Message] : Cases) {
        SetEntries({"0000041D_CURRENCYDECIMALS=7", Entry, "0000041D_UNKNOWN=1"});
        CurrencyDecimals = 2;
        const int Active = Translator->ActiveLocale();
        Screen->SetCursor(crCross);
        try {
            Translator->TranslateLocale(0x41D);
            ADD_FAILURE() << Entry;
        } catch (const EConvertError& Error) {
            EXPECT_STREQ(Error.what(), Message);
        }
        EXPECT_EQ(CurrencyDecimals, 7);
        EXPECT_EQ(Translator->ActiveLocale(), Active);
        EXPECT_EQ(Screen->Cursor(), crCross);
        Screen->SetCursor(crDefault);
    }
    EXPECT_EQ(Calls, 0);
}

TEST_F(Locales, NothingChangesWithoutEntriesOrLeave)
{
    SetEntries({"0000041D_CURRENCYSTRING=kr"});
    Translator->OnTranslated = {this, &Locales::Count};
    CurrencyString = "?";
    EXPECT_FALSE(Translator->TranslateLocale(0x407));
    Translator->OnTranslate = {this, &Locales::Refuse};
    EXPECT_FALSE(Translator->TranslateLocale(0x41D));
    EXPECT_EQ(CursorSeen, crHourGlass);
    EXPECT_EQ(Screen->Cursor(), crDefault);
    Translator->OnTranslate.Clear();
    Translator->SetTranslate(false);
    EXPECT_FALSE(Translator->TranslateLocale(0x41D));
    EXPECT_EQ(CurrencyString, "?");
    EXPECT_EQ(Calls, 0);
    Translator->SetTranslate(true);
    EXPECT_TRUE(Translator->TranslateLocale(0x41D));
    EXPECT_EQ(Calls, 1);
}

TEST_F(Locales, OtherTranslatorsFollow)
{
    TForm& Other = AddForm("Form2");
    TFormTranslator& Swedish = AddFormTranslator(*Form, 0x41D);
    TFormTranslator& German = AddFormTranslator(*Form, 0x407);
    TFormTranslator& Neutral = AddFormTranslator(Other, 0);
    TFormTranslator& SecondSwedish = AddFormTranslator(Other, 0x41D);
    Neutral.SetTranslate(true);
    TForm Outside(nullptr);
    TFormTranslator& Elsewhere = AddFormTranslator(Outside, 0x41D);
    SetLocalesOf(*Translator, {0x409, 0x41D, 0x407});

    Translator->TranslateLocale(0x41D);
    EXPECT_TRUE(Swedish.Translate());
    EXPECT_FALSE(German.Translate());
    EXPECT_FALSE(Neutral.Translate()) << "a form shows one language at a time";
    EXPECT_TRUE(SecondSwedish.Translate());
    EXPECT_FALSE(Elsewhere.Translate()) << "not the application's";
    EXPECT_EQ(Form->Caption(), "text of 1053");

    Translator->TranslateLocale(0x409);
    EXPECT_FALSE(Swedish.Translate() || German.Translate() || SecondSwedish.Translate());
    EXPECT_EQ(Form->Caption(), "own text");
    Neutral.SetTranslate(true);
    Translator->TranslateLocale(0x407);
    EXPECT_TRUE(German.Translate());
    EXPECT_TRUE(Neutral.Translate()) << "without a locale it is left alone";
}

TEST_F(Locales, WhatPublishesLocaleAndTranslateFollows)
{
    auto* const Module = new TDataModule(Application);
    TFollower Swedish(Module, 0x41D), German(Form, 0x407), Neutral(Form, 0);
    TFollower NotOnModules(Application, 0x41D), Nested(&Swedish, 0x41D);
    TStranger Stranger(Module);
    German.SetTranslate(true);
    Neutral.SetTranslate(true);
    Translator->SetLocales(0);
    EXPECT_TRUE(German.Translate());
    Translator->SetLocales(0x41D);
    EXPECT_TRUE(Swedish.Translate());
    EXPECT_FALSE(German.Translate());
    EXPECT_TRUE(Neutral.Translate());
    EXPECT_FALSE(NotOnModules.Translate() || Nested.Translate() || Stranger.Translate());
}

// What a switch leaves behind adds up; the sanitizers see what is lost for good.
TEST_F(Locales, TenThousandSwitchesLeaveNothingBehind)
{
    const std::vector<int>& All = SystemLocales();
    SetLocalesOf(*Translator, All);
    auto* const ListBox = new TListBox(Form);
    ListBox->SetParent(Form);
    Translator->SetAdoptOn(ListBox);
    TFormTranslator& Swedish = AddFormTranslator(*Form, 0x41D);
    AddFormTranslator(*Form, 0x407);
    const int Entries = ListOf(*Translator).Count();
    for (size_t I = 0; I < 10000; ++I)
        ASSERT_TRUE(Translator->TranslateLocale(All[I % All.size()]));
    Translator->TranslateLocale(0x41D);
    EXPECT_EQ(Form->Caption(), "text of 1053");
    EXPECT_EQ(ListOf(*Translator).Count(), Entries);
    EXPECT_EQ(ListBox->Items()->Count(), static_cast<int>(All.size()));
    EXPECT_EQ(Translator->ComponentCount(), 0);
    EXPECT_EQ(Form->ComponentCount(), 4);
    EXPECT_EQ(Swedish.Translations()->Count(), 1);
}

TEST_F(Locales, HandlersMayDestroyFormsAndTranslators)
{
    AddFormTranslator(*Form, 0x41D).OnTranslated = {this, &Locales::DestroySecondForm};
    Second = &AddForm("Form2");
    AddFormTranslator(*Second, 0x41D);
    AddFormTranslator(AddForm("Form3"), 0x41D);
    SetLocalesOf(*Translator, {0x409, 0x41D});
    EXPECT_TRUE(Translator->TranslateLocale(0x41D));
    EXPECT_EQ(Second, nullptr);
    EXPECT_EQ(static_cast<TForm*>(Application->FindComponent("Form3"))->Caption(), "text of 1053");

    Translator->OnTranslated = {this, &Locales::DestroyTranslator};
    EXPECT_TRUE(Translator->TranslateLocale(0x409));
    EXPECT_EQ(Translator, nullptr);
}

TEST_F(Locales, GroupsShareTheirState)
{
    TLocaleTranslator& Peer = AddLocaleTranslator(AddForm("Form2"), 7);
    TLocaleTranslator& Stranger = AddLocaleTranslator(AddForm("Form3"), 8);
    Translator->SetLocale(7);
    Translator->SetTranslate(false);
    EXPECT_FALSE(Peer.Translate());
    EXPECT_TRUE(Stranger.Translate());
    TLocaleTranslator& Late = AddLocaleTranslator(AddForm("Form4"), 7);
    Late.Loaded();
    EXPECT_FALSE(Late.Translate()) << "takes the state of its group";

    Peer.SetTranslate(true);
    SetLocalesOf(*Translator, {0x409, 0x41D});
    Translator->TranslateLocale(0x41D);
    EXPECT_EQ(Peer.ActiveLocale(), 0x41D);
    EXPECT_TRUE(Peer.Translate());
    EXPECT_NE(Stranger.ActiveLocale(), 0x41D);
    EXPECT_FALSE(Stranger.Translate()) << "another group is switched off";
}

TEST_F(Locales, StartupLocaleIsAppliedWhenLoaded)
{
    const int User = static_cast<int>(GetUserDefaultLCID());
    const int System = static_cast<int>(GetSystemDefaultLCID());
    const struct {
        const char* Startup;
        int Active;
    } Cases[] = {{"Swedish, Sweden 0000041D", 0x41D},
                 {"User default 00000400", User},
                 {"System default 00000800", System},
                 {"not in the list 00000413", 0x407},
                 {"short letters 0000041d", 0x41D}};
    for (const auto& [Startup, Active] : Cases) {
        SetLocalesOf(*Translator, {User, System, 0x41D, 0x407});
        Translator->SetStartupLocale(Startup);
        Translator->SetDesignLocale("German, Germany 00000407");
        Translator->Loaded();
        EXPECT_EQ(Translator->ActiveLocale(), Active) << Startup;
        EXPECT_EQ(GetThreadLocale(), static_cast<LCID>(Active)) << Startup;
    }
}

// A form file: the selector may stand behind the translator, and its items and
// the user's locale give way to what the file has.
TEST_F(Locales, FormFilesHoldTranslators)
{
    RegisterClass(TLocaleTranslator::MetaClass());
    RegisterClass(TListBox::MetaClass());
    const std::string TranslatorText = "  object Locales: TLocaleTranslator\r\n"
                                       "    AdoptOn = Languages\r\n"
                                       "    DesignLocale = 'German, Germany 00000407'\r\n"
                                       "    ListFormat = '%2:s'\r\n"
                                       "    Locale = 7\r\n"
                                       "    StartupLocale = 'Swedish, Sweden 0000041D'\r\n"
                                       "    Translate = True\r\n"
                                       "    Translations.Strings = (\r\n"
                                       "      '00000407_NATIVENAME=Deutsch'\r\n"
                                       "      '0000041D_CURRENCYSTRING=kr'\r\n"
                                       "      '0000041D_NATIVENAME=svenska')\r\n"
                                       "    Storage = 0\r\n"
                                       "  end\r\n";
    const std::string SelectorText = "  object Languages: TListBox\r\n"
                                     "    Items.Strings = (\r\n      'old')\r\n"
                                     "  end\r\n";
    for (const std::string& Objects : {TranslatorText + SelectorText, SelectorText + TranslatorText}) {
        const TFormDocument Document = ReadForm("object Read: TForm\r\n" + Objects + "end\r\n");
        TForm Read(Application);
        TComponentReader(Document, TUnknownClasses::Refuse).ReadRoot(Read);
        auto* const Loaded = static_cast<TLocaleTranslator*>(Read.FindComponent("Locales"));
        auto* const ListBox = static_cast<TListBox*>(Read.FindComponent("Languages"));
        EXPECT_EQ(LinesOf(*ListBox->Items()), (TTexts{"Deutsch", "svenska"}));
        EXPECT_EQ(ListBox->ItemIndex(), 1);
        EXPECT_EQ(Loaded->ActiveLocale(), 0x41D);
        EXPECT_EQ(CurrencyString, "kr");
        TFormDocument Written;
        Written.Root = TComponentWriter(Read).WriteRoot();
        EXPECT_NE(WriteFormText(Written).find(TranslatorText), std::string::npos) << WriteFormText(Written);
        Loaded->SetFileName("none.txt");
        EXPECT_FALSE(IsStoredProp(*Loaded, *GetPropInfo(*Loaded, "Translations")));
    }
}

TEST_F(Locales, MalformedLocaleValuesAreIgnored)
{
    for (const char* const Value :
         {"", "abc", "000041D", "Name XYZ12345", "Name g000041D", "Name  000041D"}) {
        Translator->SetDesignLocale("X 00000407");
        Translator->SetStartupLocale("X 0000041D");
        Translator->SetDesignLocale(Value);
        Translator->SetStartupLocale(Value);
        EXPECT_EQ(Translator->DesignLocale(), "X 00000407") << Value;
        EXPECT_EQ(Translator->StartupLocale(), "X 0000041D") << Value;
    }
    Translator->SetDesignLocale("0zzzzzzz");
    EXPECT_EQ(Translator->DesignLocale(), "0zzzzzzz") << "only the first of the eight is looked at";
}

TEST_F(Locales, DesignerShowsTheDesignLocale)
{
    SetLocalesOf(*Translator, {0x409, 0x41D});
    auto* const ListBox = new TListBox(Form);
    ListBox->SetParent(Form);
    Translator->SetAdoptOn(ListBox);
    Translator->SetDesignLocale("X 0000041D");
    EXPECT_NE(Translator->ActiveLocale(), 0x41D) << "only in the designer";
    Form->SetDesigning(true);
    Translator->SetDesignLocale("Y 0000041D");
    EXPECT_EQ(Translator->ActiveLocale(), 0x41D);
    EXPECT_EQ(ListBox->ItemIndex(), 1);
}

TEST_F(Locales, LanguageListIsMadeFromNames)
{
    SetEntries({"00000407_ENGLISHCOUNTRYNAME=Germany", "00000407_ENGLISHNAME=German",
                "00000407_NATIVECOUNTRYNAME=Deutschland", "00000407_NATIVENAME=Deutsch",
                "00000409_ENGLISHNAME=English", "0000041D_NATIVENAME=svenska",
                "0000041D_NATIVENAME=svenska again", "00000C07_ENGLISHNAME=Austrian",
                "00000C07_NATIVENAME=\xC3\x96sterreichisch"});
    const struct {
        const char* Format;
        TTexts Texts;
    } Cases[] = {
        {"%0:s, %1:s", {"Austrian, Germany", "English, Germany", "German, Germany"}},
        {"%2:s (%3:s)",
         {"Deutsch (Deutschland)", "svenska (Deutschland)", "\xC3\x96sterreichisch (Deutschland)"}},
    };
    for (const auto& [Format, Texts] : Cases) {
        Translator->SetListFormat(Format);
        Translator->UpdateLangList();
        EXPECT_EQ(LinesOf(Translator->LangList()), Texts);
    }
    EXPECT_EQ(ObjectInteger(Translator->LangList().Objects(1)), 0x41D);
    Translator->SetListFormat("%4:s");
    EXPECT_THROW(Translator->UpdateLangList(), EConvertError);
}

TEST_F(Locales, DesignerOffersValues)
{
    SetLocalesOf(*Translator, {0x41D, 0x409});
    EXPECT_EQ(OfferedDesignLocales(*Translator),
              (TTexts{"English, United States 00000409", "Swedish, Sweden 0000041D"}));
    const TTexts Startup = OfferedStartupLocales(*Translator);
    ASSERT_EQ(Startup.size(), 4U);
    EXPECT_EQ(Startup[0] + "|" + Startup[1], "User default 00000400|System default 00000800");
    (new TListBox(Form))->SetName("Languages");
    (new TListBox(Form))->SetParent(Form);
    (new TMainMenu(Form))->SetName("Menu");
    EXPECT_EQ(OfferedSelectors(*Form), (TTexts{"Languages", "Menu"}));
    for (const std::string& Format : OfferedListFormats())
        EXPECT_NO_THROW(Translator->SetListFormat(Format));
    EXPECT_EQ(OfferedListFormats().size(), 6U);
}

TEST_F(Locales, TranslationsFileHoldsTheEntries)
{
    const std::filesystem::path File = std::filesystem::temp_directory_path() / "obx_qlt_locales.txt";
    ReplaceWholeFile(File.string(), "#2Form1.00000409_TIMEPMSTRING%-1=old\r\n"
                                    "#2Form1.00000413_TIMEPMSTRING%0=old\r\n"
                                    "#2Form1.00000413_TIMEPMSTRING%5=of five\r\n"
                                    "#2Form2.00000413_TIMEPMSTRING%0=of two\r\n"
                                    "Form1.Caption%0='text'\r\n");
    SetEntries({"0000041D_CURRENCYSTRING=kr", "0000041D_TIMEPMSTRING=em"});
    Translator->SaveTo(File.string());
    EXPECT_EQ(ReadWholeFile(File.string()), "#2Form1.00000413_TIMEPMSTRING%5=of five\r\n"
                                            "#2Form1.0000041D_CURRENCYSTRING%0=kr\r\n"
                                            "#2Form1.0000041D_TIMEPMSTRING%0=em\r\n"
                                            "#2Form2.00000413_TIMEPMSTRING%0=of two\r\n"
                                            "Form1.Caption%0='text'\r\n");
    SetEntries({"0000041D_CURRENCYSTRING=?", "00000409_CURRENCYSTRING=$"});
    EXPECT_TRUE(Translator->LoadFrom(File.string()));
    EXPECT_EQ(
        LinesOf(*Translator->Translations()),
        (TTexts{"00000409_CURRENCYSTRING=$", "0000041D_CURRENCYSTRING=kr", "0000041D_TIMEPMSTRING=em"}));
    std::filesystem::remove(File);
    EXPECT_FALSE(Translator->LoadFrom(File.string()));
}

} // namespace
