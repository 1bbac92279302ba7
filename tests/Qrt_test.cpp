// The resource translator: which texts it answers, to whom, and how it keeps them.
#include "Qrt/Qrt.h"

#include <atomic>
#include <cstring>
#include <filesystem>
#include <map>
#include <memory>
#include <random>
#include <thread>

#include <gtest/gtest.h>

#include "framework/design/ToolServices.h"
#include "framework/forms/Application.h"
#include "framework/rtl/Files.h"
#include "framework/rtl/SysUtils.h"
#include "framework/streaming/ComponentReader.h"
#include "framework/streaming/ComponentWriter.h"
#include "framework/streaming/FormFile.h"
#include "tests/SampleComponent.h"

namespace {

using TPairs = std::vector<std::pair<std::string, std::string>>;

constexpr int German = 1031;
constexpr int Swedish = 1053;

class TDevelopment : public TIToolServices {
public:
    TDevelopment() { ToolServices = this; }
    ~TDevelopment() override { ToolServices = nullptr; }
    std::string GetProjectName() const override { return {}; }
};

// LoadStringA as any part of the program calls it.
[[gnu::noinline]] std::string LoadDirectly(const TResStringRec& Rec, int Capacity = 100)
{
    char Buffer[100];
    std::memset(Buffer, '#', sizeof(Buffer));
    const int Length = LoadStringA(HInstance, static_cast<UINT>(Rec.Identifier), Buffer, Capacity);
    for (size_t I = static_cast<size_t>(Capacity); I < sizeof(Buffer); ++I)
        EXPECT_EQ(Buffer[I], '#') << "written past the buffer";
    return std::string(Buffer, static_cast<size_t>(Length));
}

class Qrt : public testing::Test {
protected:
    Qrt() { StartQrt(); }
    ~Qrt() override { StopQrt(); }

    static std::unique_ptr<TResourceTranslator> New(const TPairs& Pairs, TComponent* Owner = nullptr)
    {
        auto Result = std::make_unique<TResourceTranslator>(Owner);
        for (const auto& [Source, Translation] : Pairs)
            Result->SetTranslation(Source, Translation);
        return Result;
    }
    static TPairs PairsOf(const TResourceTranslator& Translator)
    {
        TPairs Result;
        for (int I = 0; I < Translator.ResStrings().Count(); ++I)
            Result.emplace_back(Translator.ResStrings().Get(I), Translator.Translations()->Get(ObjectInteger(
                                                                    Translator.ResStrings().Objects(I))));
        return Result;
    }
};

TEST_F(Qrt, TheNewestThatKnowsTheTextAnswers)
{
    const auto First = New({{"&Yes", "ja 1"}, {"&No", "nein 1"}, {"Yes", "other"}});
    auto Second = New({{"&Yes", "ja 2"}, {"&No", ""}, {"ja 2", "twice"}});
    EXPECT_EQ(std::string(SMsgDlgYes), "ja 2");
    EXPECT_EQ(LoadDirectly(SMsgDlgYes), "ja 2") << "once";
    EXPECT_EQ(std::string(SMsgDlgNo), "nein 1") << "an empty translation is none";
    EXPECT_EQ(std::string(SMsgDlgOK), "OK");
    const TResStringRec Literal{nullptr, reinterpret_cast<std::uintptr_t>("&Yes")};
    EXPECT_EQ(std::string(Literal), "&Yes");
    EXPECT_EQ(CustomLoadResString(nullptr), "");

    Second->InternalTranslate(false);
    EXPECT_EQ(std::string(SMsgDlgYes), "ja 1");
    Second->InternalTranslate(true);
    GlobalTranslation = false;
    EXPECT_EQ(std::string(SMsgDlgYes), "&Yes");
    EXPECT_EQ(LoadDirectly(SMsgDlgYes), "&Yes");
    GlobalTranslation = true;
    const auto Third = New({{"&Yes", "ja 3"}});
    Second.reset();
    EXPECT_EQ(std::string(SMsgDlgYes), "ja 3") << "one in the middle is gone";
    EXPECT_EQ(std::string(SMsgDlgNo), "nein 1");
}

TEST_F(Qrt, SlotIsRedirectedWhileATranslatorRuns)
{
    const TLoadStringA Before = LoadStringSlot();
    ASSERT_EQ(OrgLoadString.load(), nullptr);
    {
        TSample Form(nullptr, "Form1");
        Form.SetDesigning(true);
        const auto Designed = New({{"&Yes", "ja"}}, &Form);
        EXPECT_EQ(LoadStringSlot(), Before) << "in the designer";
        EXPECT_EQ(ResComponentList.load()->Translator, Designed.get());
        EXPECT_EQ(std::string(SMsgDlgYes), "ja");
        EXPECT_EQ(LoadDirectly(SMsgDlgYes), "&Yes");
        const TDevelopment Development;
        const auto Environments = New({});
        EXPECT_EQ(LoadStringSlot(), Before) << "in the development environment";
    }
    for (int Round = 0; Round < 2; ++Round) {
        auto First = New({});
        auto Second = New({});
        EXPECT_NE(LoadStringSlot(), Before);
        EXPECT_EQ(OrgLoadString.load(), Before);
        First.reset();
        EXPECT_NE(LoadStringSlot(), Before);
        Second.reset();
        EXPECT_EQ(LoadStringSlot(), Before);
        EXPECT_EQ(OrgLoadString.load(), nullptr);
        EXPECT_EQ(ResComponentList.load(), nullptr);
    }
    HookLoadString(true);
    EXPECT_EQ(LoadStringSlot(), Before) << "nothing to restore";
}

// Somebody who redirected the slot as well, and goes on calling what was in it.
TLoadStringA Earlier = nullptr;

int WINAPI LoadThroughEarlier(HINSTANCE Instance, UINT Identifier, LPSTR Buffer, int Capacity)
{
    return Earlier(Instance, Identifier, Buffer, Capacity);
}

TEST_F(Qrt, SlotIsSharedWithOthers)
{
    const TLoadStringA Before = LoadStringSlot();
    auto Translator = New({{"&Yes", "ja"}});
    Earlier = LoadStringSlot();
    SetLoadStringSlot(LoadThroughEarlier);
    EXPECT_EQ(LoadDirectly(SMsgDlgYes), "ja");
    Translator.reset();
    EXPECT_EQ(LoadStringSlot(), Before);
    SetLoadStringSlot(LoadThroughEarlier);
    EXPECT_EQ(LoadDirectly(SMsgDlgYes), "&Yes") << "though the translator is gone";
    SetLoadStringSlot(Before);
}

TEST_F(Qrt, EntryIsLeftAloneInTheDevelopmentEnvironment)
{
    StopQrt();
    {
        const TDevelopment Development;
        StartQrt();
        const auto Translator = New({{"&Yes", "ja"}});
        EXPECT_EQ(std::string(SMsgDlgYes), "&Yes");
        EXPECT_EQ(RedirectLoadResString(nullptr), nullptr);
    }
    const auto Translator = New({{"&Yes", "ja"}});
    StartQrt();
    EXPECT_EQ(std::string(SMsgDlgYes), "ja");
    StopQrt();
    const TLoadResString Own = [](const TResStringRec*) { return std::string("own"); };
    EXPECT_EQ(RedirectLoadResString(Own), nullptr) << "restored";
    StartQrt();
    EXPECT_EQ(std::string(SMsgDlgYes), "ja");
    StopQrt();
    EXPECT_EQ(RedirectLoadResString(nullptr), Own) << "what was there before";
}

TEST_F(Qrt, NeverWritesPastTheBuffer)
{
    const std::string Long = std::string(5000, 'x') + "ä";
    const auto Translator = New({{"&Yes", "Jäää"}, {"&No", Long}, {"&", "ä"}});
    EXPECT_EQ(LoadDirectly(SMsgDlgYes, 8), "Jäää");
    EXPECT_EQ(LoadDirectly(SMsgDlgYes, 7), "Jää") << "not within a character";
    EXPECT_EQ(LoadDirectly(SMsgDlgNo, 6), "xxxxx");
    EXPECT_EQ(LoadDirectly(SMsgDlgYes, 2), "&") << "no room for the one character";
    EXPECT_EQ(std::string(SMsgDlgNo), Long.substr(0, 4095));
    char Buffer[4] = "&No";
    int Length = 3;
    EXPECT_TRUE(Translator->TranslateBuffer(Buffer, sizeof(Buffer), Length));
    EXPECT_STREQ(Buffer, "xxx");
    EXPECT_EQ(Length, 3);
    EXPECT_FALSE(Translator->TranslateBuffer(Buffer, sizeof(Buffer), Length));
    EXPECT_STREQ(Buffer, "xxx");
    char Full[] = "&No";
    EXPECT_FALSE(Translator->TranslateBuffer(Full, 0, Length));
    EXPECT_STREQ(Full, "&No");
}

TEST_F(Qrt, KeepsTheTable)
{
    const auto Translator = New({{"b", "B"}, {"c", "C"}, {"a", "A"}, {"b", "B2"}});
    EXPECT_EQ(PairsOf(*Translator), (TPairs{{"a", "A"}, {"b", "B2"}, {"c", "C"}}));
    EXPECT_EQ(Translator->Translations()->Text(), "B2\r\nC\r\nA\r\n");
    EXPECT_FALSE(Translator->RemoveTranslation("B"));
    Translator->Translations()->Add("stale");
    EXPECT_TRUE(Translator->RemoveTranslation("b"));
    EXPECT_EQ(Translator->Translations()->Text(), "A\r\nC\r\n");
    EXPECT_EQ(ObjectInteger(Translator->ResStrings().Objects(1)), 1);
}

// The error comes up while the table is being changed.
TEST_F(Qrt, ErrorsOfTheTableAreTranslatedToo)
{
    const auto Translator = New({{std::string(SListIndexError), "Kein Eintrag %d"}});
    try {
        Translator->Translations()->Put(7, "x");
        ADD_FAILURE() << "no error";
    } catch (const EStringListError& Error) {
        EXPECT_EQ(Error.Message(), "Kein Eintrag 7");
    }
}

// Whatever was edited how, lookups see it at once: few of them, which search the
// lists, and many, which use the index.
TEST_F(Qrt, LookupsFollowEveryChange)
{
    const auto Translator = New({});
    std::map<std::string, std::string> Expected;
    std::mt19937 Random(7);
    for (int Step = 0; Step < 3000; ++Step) {
        const std::string Source = "Text number " + IntToStr(static_cast<int>(Random() % 200));
        const std::string Translation = Random() % 9 == 0 ? "" : "Nr. " + IntToStr(Step);
        if (Random() % 3 != 0) {
            Translator->SetTranslation(Source, Translation);
            Expected[Source] = Translation;
        } else if (Random() % 2 == 0) {
            EXPECT_EQ(Translator->RemoveTranslation(Source), Expected.erase(Source) == 1);
        } else if (int Index = -1; Translator->ResStrings().SortFind(Source, Index)) {
            Translator->Translations()->Put(ObjectInteger(Translator->ResStrings().Objects(Index)), "put");
            Expected[Source] = "put";
        }
        for (int Lookup = 0; Lookup < (Step % 50 == 0 ? 40 : 1); ++Lookup) {
            const std::string Wanted = "Text number " + IntToStr(static_cast<int>(Random() % 200));
            char Buffer[40];
            std::strcpy(Buffer, Wanted.c_str());
            int Length = 0;
            const bool Found = Translator->TranslateBuffer(Buffer, sizeof(Buffer), Length);
            const auto Place = Expected.find(Wanted);
            const std::string Answer = Place == Expected.end() ? "" : Place->second;
            ASSERT_EQ(Found, !Answer.empty()) << Step << Wanted;
            ASSERT_EQ(std::string(Buffer), Found ? Answer : Wanted) << Step;
        }
    }
}

// A form file can hold any order and any number.
TEST_F(Qrt, ReadsWhatFormsHold)
{
    RegisterClass(TResourceTranslator::MetaClass());
    const std::string Stored = "  object Resources: TResourceTranslator\r\n"
                               "    Locale = 1031\r\n"
                               "    Translations.Strings = (\r\n"
                               "      'Nein'\r\n"
                               "      'Ja')\r\n"
                               "    ResStrings = (\r\n"
                               "      '&No'\r\n"
                               "      0\r\n"
                               "      '&Yes'\r\n"
                               "      1)\r\n"
                               "  end\r\n";
    TSample Form(nullptr);
    TComponentReader(ReadForm("object Form1: TSample\r\n" + Stored + "end\r\n"), TUnknownClasses::Refuse)
        .ReadRoot(Form);
    EXPECT_EQ(std::string(SMsgDlgYes), "Ja");
    auto* const Translator = static_cast<TResourceTranslator*>(Form.FindComponent("Resources"));
    TFormDocument Written;
    Written.Root = TComponentWriter(Form).WriteRoot();
    EXPECT_NE(WriteForm(Written).find(Stored), std::string::npos) << WriteForm(Written);

    TSortList Sources;
    Sources.AddObject("&Yes", IntegerObject(7));
    Sources.AddObject("&No", IntegerObject(-1));
    Sources.AddObject("OK", IntegerObject(1));
    Translator->SetResStrings(Sources);
    for (int I = 0; I < 40; ++I) {
        ASSERT_EQ(std::string(SMsgDlgYes), "&Yes") << "no such translation";
        ASSERT_EQ(std::string(SMsgDlgNo), "&No");
        ASSERT_EQ(std::string(SMsgDlgOK), "Ja");
    }
    Translator->SetTranslation("OK", "Gut");
    EXPECT_EQ(std::string(SMsgDlgOK), "Gut");
}

class QrtFiles : public Qrt {
protected:
    QrtFiles() { std::filesystem::remove(File); }
    ~QrtFiles() override { std::filesystem::remove(File); }

    const std::string File = (std::filesystem::temp_directory_path() / "obx_qrt_test.txt").string();
    TSample Form{nullptr, "Form1"};
};

TEST_F(QrtFiles, SharesTheTranslationsFile)
{
    const std::string Others = "#1Form2.Res0%-1='&Yes'\r\n#1Form2.Res0%1031='Fremd'\r\n";
    const std::string Swedes = "#1Form1.Res0%1053='Ja'\r\n";
    ReplaceWholeFile(File, "#1Form1.Res0%-1='old'\r\n#1Form1.Res9%1031='old'\r\n" + Swedes + Others);
    const auto Saved = New({{"&Yes", "Ja"}, {"It's\r\n", ""}, {"A=B", "C%D=E"}}, &Form);
    Saved->SetLocale(German);
    Saved->SaveTo(File);
    EXPECT_EQ(ReadWholeFile(File), "#1Form1.Res0%-1='&Yes'\r\n"
                                   "#1Form1.Res0%1031='Ja'\r\n" +
                                       Swedes +
                                       "#1Form1.Res1%-1='A=B'\r\n"
                                       "#1Form1.Res1%1031='C%D=E'\r\n"
                                       "#1Form1.Res2%-1='It''s'#13#10\r\n"
                                       "#1Form1.Res2%1031=''\r\n" +
                                       Others);
    const auto Loaded = New({{"&Yes", "old"}, {"kept", "K"}}, &Form);
    Loaded->SetLocale(German);
    EXPECT_TRUE(Loaded->LoadFrom(File));
    EXPECT_EQ(PairsOf(*Loaded), (TPairs{{"&Yes", "Ja"}, {"A=B", "C%D=E"}, {"It's\r\n", ""}, {"kept", "K"}}));
    EXPECT_FALSE(Loaded->LoadFrom(File + ".none"));

    const auto Empty = New({}, &Form);
    Empty->SetLocale(German);
    Empty->SaveTo(File);
    EXPECT_EQ(ReadWholeFile(File), Swedes + Others);
    ReplaceWholeFile(File, "#1Form1.Res0%-1='new'\r\n#1Form1.Res1%1O31='x'\r\n");
    EXPECT_THROW(Loaded->LoadFrom(File), EConvertError);
    EXPECT_EQ(Loaded->ResStrings().Count(), 4) << "nothing of a damaged file";
}

TEST_F(QrtFiles, ExchangesDictionaries)
{
    ReplaceWholeFile(File, "&No\tNej\r\n&Yes\told\r\nno pair\r\n");
    auto Translator = New({{"&Yes", "Ja"}, {"Two\nlines", "Zwei\nZeilen"}});
    Translator->TranslateTo(File);
    EXPECT_EQ(ReadWholeFile(File), "&No\tNej\r\n&Yes\tJa\r\nTwo\\nlines\tZwei\\nZeilen\r\nno pair\r\n");
    ReplaceWholeFile(File, "&Yes\tAber ja\r\n&No\tNein\r\nTwo\\nlines\tBeide\\nZeilen");
    Translator->TranslateFrom(File);
    EXPECT_EQ(PairsOf(*Translator), (TPairs{{"&Yes", "Aber ja"}, {"Two\nlines", "Beide\nZeilen"}}));
    EXPECT_THROW(Translator->TranslateFrom(File + ".none"), EFOpenError);
}

TEST_F(QrtFiles, KeepsPairsInTheFileInsteadOfTheForm)
{
    RegisterClass(TResourceTranslator::MetaClass());
    auto* const Saved = New({{"&Yes", "Ja"}}, &Form).release();
    Saved->SetName("Resources");
    Saved->SetLocale(German);
    Saved->SetFileName(File);
    TFormDocument Document;
    Document.Root = TComponentWriter(Form).WriteRoot();
    EXPECT_NE(WriteForm(Document).find("ResStrings = ()"), std::string::npos) << WriteForm(Document);
    delete Saved;
    TSample Again(nullptr);
    TComponentReader(ReadForm(WriteForm(Document)), TUnknownClasses::Refuse).ReadRoot(Again);
    EXPECT_EQ(std::string(SMsgDlgYes), "Ja");
}

TEST_F(Qrt, OneLanguageAtATime)
{
    const TApplicationScope Scope;
    TResourceTranslator* Translators[4];
    for (int I = 0; I < 4; ++I) {
        Translators[I] = New({{"&Yes", I % 2 == 0 ? "Ja" : "Jo"}}, new TForm(Application)).release();
        Translators[I]->SetLocale(I % 2 == 0 ? German : Swedish);
        Translators[I]->InternalTranslate(I % 2 == 0);
    }
    EXPECT_EQ(std::string(SMsgDlgYes), "Ja");
    Translators[1]->SetTranslate(true);
    EXPECT_EQ(std::string(SMsgDlgYes), "Jo");
    EXPECT_TRUE(Translators[3]->Translate());
    EXPECT_FALSE(Translators[0]->Translate());
    EXPECT_FALSE(Translators[2]->Translate());
    Translators[3]->SetTranslate(false);
    EXPECT_EQ(std::string(SMsgDlgYes), "&Yes");
}

// What other threads load is one of the texts there were, whole, while everything
// changes under them; the thread sanitizer sees the rest.
TEST_F(Qrt, LoadsOnAnyThread)
{
    std::atomic<bool> Stop{false};
    std::atomic<int> Wrong{0};
    std::atomic<int> Loads{0};
    const auto IsKnown = [](const std::string& Text) {
        return Text == "&Yes" || Text == "Ja" || Text == "Ja, sehr gerne" || Text == "Jo";
    };
    std::vector<std::thread> Threads;
    for (int I = 0; I < 3; ++I)
        Threads.emplace_back([&, I] {
            while (!Stop) {
                const std::string Text = I == 0 ? LoadDirectly(SMsgDlgYes) : std::string(SMsgDlgYes);
                Wrong += IsKnown(Text) ? 0 : 1;
                ++Loads;
            }
        });
    for (int Round = 0; Round < 300 || Loads < 1000; ++Round) {
        auto First = New({{"&Yes", "Ja"}});
        for (int I = 0; I < 20; ++I) { // each makes a new index, and the old one goes
            First->SetTranslation("&Yes", I % 2 == 0 ? "Ja, sehr gerne" : "Ja");
            EXPECT_EQ(std::string(SMsgDlgYes), I % 2 == 0 ? "Ja, sehr gerne" : "Ja");
        }
        const auto Second = New({{"&Yes", "Jo"}, {"&No", "Nö"}});
        for (int I = 0; I < 20; ++I)
            First->SetTranslation("Text " + IntToStr(I), "T");
        Second->SetTranslate(Round % 2 == 0);
        First->Translations()->Put(0, "Ja, sehr gerne");
        EXPECT_EQ(std::string(SMsgDlgYes), Round % 2 == 0 ? "Jo" : "Ja, sehr gerne");
        Second->RemoveTranslation("&Yes");
        First.reset();
    }
    Stop = true;
    for (std::thread& Each : Threads)
        Each.join();
    EXPECT_EQ(Wrong, 0);
}

} // namespace
