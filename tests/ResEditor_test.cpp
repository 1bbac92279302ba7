// The editor of resource translators, used by mouse and keyboard.
#include "Qrt/Qrt.h"

#include <cstring>
#include <filesystem>
#include <set>

#include <gtest/gtest.h>

#include "FormUser.h"
#include "ModuleTexts.h"
#include "Obxc3/Obxc3.h"
#include "RegistryScope.h"
#include "editors/EditorSettings.h"
#include "editors/Editors.h"
#include "framework/rtl/Files.h"
#include "framework/rtl/Modules.h"
#include "framework/rtl/RtlConsts.h"
#include "platform/Strings.h"

namespace {

using TLines = std::vector<std::string>;
using TPairs = std::vector<std::pair<std::string, std::string>>;

constexpr char SettingsKey[] = "Software\\Quillmark";

// What the tables of this program hold, cut to what a buffer of 255 bytes takes.
std::multiset<std::string> TextsOfProgram()
{
    std::multiset<std::string> Result = {
#define ORBILEX_TEXT(Name, Identifier, Text) Text,
#include "editors/EditorTexts.inc"
#include "framework/rtl/RtlConsts.inc"
#include "strings/ModuleTexts.inc"
#include "wizard/WizardTexts.inc"
#undef ORBILEX_TEXT
    };
    for (const std::string& Each : std::multiset<std::string>(Result))
        if (Each.size() > 254) {
            Result.erase(Each);
            Result.insert(Each.substr(0, 253));
        }
    return Result;
}

std::string LanguageModule()
{
    return (std::filesystem::path(Application->ExeName()).parent_path() / "ResStrings_test.DEU").string();
}

TLines ItemsOf(const TForm& Editor, const std::string& List)
{
    return LinesOf(*PartOf<TListBox>(Editor, List).Items());
}

struct TResEditorTest : TObject, testing::Test {
    TResEditorTest()
    {
        RegDeleteTreeA(HKEY_CURRENT_USER, SettingsKey);
        Application->OnException = {this, &TResEditorTest::Caught};
        Form = new TForm(Application);
        Form->SetName("Form1");
        Translator = NewTranslator("Swedish", {});
        Translator->SetLocale(1053);
        Form->Show();
        Application->ProcessMessages();
    }
    ~TResEditorTest() override
    {
        RegDeleteTreeA(HKEY_CURRENT_USER, SettingsKey);
        EXPECT_EQ(Errors, ExpectedErrors);
    }
    void Caught(TObject*, const Exception& Error) { Errors.push_back(Error.Message()); }

    TResourceTranslator* NewTranslator(const std::string& Name, const TPairs& Pairs)
    {
        auto* const Result = new TResourceTranslator(Form);
        Result->SetName(Name);
        for (const auto& [Source, Translation] : Pairs)
            Result->SetTranslation(Source, Translation);
        return Result;
    }
    bool Edit(TFormUser& User)
    {
        return User.Run<bool>([this] { return Translator->ShowEditor(); });
    }
    // Source, the number of its translation, and that.
    TLines Table() const
    {
        TLines Result;
        for (int I = 0; I < Translator->ResStrings().Count(); ++I) {
            const int Text = ObjectInteger(Translator->ResStrings().Objects(I));
            Result.push_back(Translator->ResStrings().Get(I) + " " + std::to_string(Text) + "=" +
                             Translator->Translations()->Get(Text));
        }
        return Result;
    }

    const TRegistryScope Registry;
    const TApplicationScope Scope;
    const TPackageScope Package;
    const TEditorsScope Editors;
    TForm* Form = nullptr;
    TResourceTranslator* Translator = nullptr;
    TLines Errors;
    TLines ExpectedErrors;
};

// A translator of the program and one on the editor itself must not be heard.
TEST_F(TResEditorTest, TakesTheStringsOfAModule)
{
    auto* const Danish = NewTranslator("Danish", {{"Welcome", "Velkommen"}});
    Translator->SetTranslation("Welcome", "Hej");
    const auto Expected = TextsOfProgram();
    TFormUser User;
    User.Page("VCL")
        .Do([](TForm& Editor) {
            EXPECT_EQ(ItemsOf(Editor, "ModuleList"), TLines{Application->ExeName()});
            EXPECT_EQ(ItemsOf(Editor, "ResStringList"), TLines());
            EXPECT_FALSE(PartOf<TButton>(Editor, "BtnInclude").Enabled());
            auto* const Language = new TResourceTranslator(&Editor);
            Language->SetName("Language");
            Language->SetTranslation("&Yes", "&Ja");
        })
        .Choose("ModuleList", Application->ExeName())
        .Do([&](TForm& Editor) {
            const TLines Found = ItemsOf(Editor, "ResStringList");
            EXPECT_EQ(std::multiset<std::string>(Found.begin(), Found.end()), Expected);
            EXPECT_TRUE(PartOf<TResourceTranslator>(Editor, "Language").Translate());
            EXPECT_EQ(std::string(SMsgDlgYes), "&Ja") << "heard again";
        });
    for (int Round = 0; Round < 2; ++Round)
        User.Click("BtnInclude").Do([&](TForm& Editor) {
            const TLines Items = ItemsOf(Editor, "PropList");
            const std::set<std::string> Different(Items.begin(), Items.end());
            EXPECT_EQ(Items.size(), Different.size()) << "one twice";
            EXPECT_EQ(Different, std::set<std::string>(Expected.begin(), Expected.end()));
        });
    User.Click("BtnOK");
    EXPECT_TRUE(Edit(User));
    EXPECT_TRUE(Translator->ResStrings().IsInOrder());
    EXPECT_EQ(Translator->Translations()->Count(), Translator->ResStrings().Count());
    Translator->SetTranslation("First\nSecond", "Ett\nTvå");
    Danish->InternalTranslate(false);
    EXPECT_EQ(std::string(SWelcome), "Hej") << "kept, and found";
    EXPECT_EQ(std::string(STwoLines), "Ett\nTvå");
}

constexpr auto Silent = static_cast<intptr_t>(0x7000);
TLoadStringA Plain = nullptr;

// The program's texts as from a system that counts bytes only, and a module without
// texts.
int WINAPI LoadCut(HINSTANCE Instance, UINT Identifier, LPSTR Buffer, int Capacity)
{
    const bool OfProgram = Instance == HInstance;
    if (!OfProgram && Instance != reinterpret_cast<HINSTANCE>(Silent))
        return Plain(Instance, Identifier, Buffer, Capacity);
    const std::string Text = !OfProgram            ? ""
                             : Identifier == 65535 ? "half \xE6\x97"
                             : Identifier == 65534 ? "quarter \xF0"
                             : Identifier == 32768 ? "whole \xE6\x97\xA5"
                             : Identifier == 32767 ? "below"
                                                   : "";
    std::strncpy(Buffer, Text.c_str(), static_cast<size_t>(Capacity));
    return static_cast<int>(Text.size());
}

TEST_F(TResEditorTest, TakesOfEachModuleWhatItsResourcesHave)
{
    TLibModule German;
    German.Instance = LoadLibraryExA(LanguageModule().c_str(), nullptr, 0);
    ASSERT_NE(German.Instance, nullptr);
    German.ResInstance = LoadLibraryExA(LanguageModule().c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    TLibModule None;
    None.Instance = German.Instance;
    None.ResInstance = reinterpret_cast<HINSTANCE>(Silent);
    RegisterModule(German);
    RegisterModule(None);
    Plain = LoadStringSlot();
    SetLoadStringSlot(LoadCut);
    TFormUser User;
    User.Page("VCL")
        .Do([](TForm& Editor) {
            TLines Names;
            for (const std::string& Each : ItemsOf(Editor, "ModuleList"))
                Names.push_back(std::filesystem::path(Each).filename().string());
            const std::string Program = std::filesystem::path(Application->ExeName()).filename().string();
            EXPECT_EQ(Names, (TLines{"ResStrings_test.DEU", "ResStrings_test.DEU", Program}));
            PartOf<TListBox>(Editor, "ModuleList").SetFocus();
        })
        .Key(VK_HOME)
        .Do([](TForm& Editor) {
            EXPECT_EQ(ItemsOf(Editor, "ResStringList"), TLines());
            EXPECT_FALSE(PartOf<TButton>(Editor, "BtnInclude").Enabled());
        })
        .Key(VK_DOWN)
        .Do([&](TForm& Editor) {
            EXPECT_EQ(ItemsOf(Editor, "ResStringList"), (TLines{"&Ja", "Guten Morgen"}));
        })
        .Key(VK_END)
        .Do([&](TForm& Editor) {
            EXPECT_EQ(ItemsOf(Editor, "ResStringList"), (TLines{"half ", "quarter ", "whole 日"}));
            EXPECT_TRUE(PartOf<TButton>(Editor, "BtnInclude").Enabled());
        })
        .Click("BtnCancel");
    EXPECT_FALSE(Edit(User));
    SetLoadStringSlot(Plain);
    UnregisterModule(None);
    UnregisterModule(German);
    FreeLibrary(German.ResInstance);
    FreeLibrary(German.Instance);
}

TEST_F(TResEditorTest, AddsTranslatesAndRemoves)
{
    for (const auto& [Source, Translation] :
         TPairs{{"Delta", "d"}, {"alpha", "a"}, {"Beta", "b"}, {"First\nSecond", "1\n2"}})
        Translator->SetTranslation(Source, Translation);
    const auto Add = [](TFormUser& User, const std::string& Text) {
        User.Click("BtnNew").Enter("Add library resource string", "Please provide the original string", Text);
    };
    TFormUser User;
    User.Do([](TForm& Editor) {
        EXPECT_EQ(ItemsOf(Editor, "PropList"), (TLines{"Beta", "Delta", "First\nSecond", "alpha"}));
        EXPECT_FALSE(PartOf<TMemo>(Editor, "EdtTranslation").Enabled());
        EXPECT_FALSE(PartOf<TButton>(Editor, "BtnRemove").Enabled());
    });
    Add(User, "Beta");
    Add(User, "");
    Add(User, "beta");
    User.Do([](TForm& Editor) {
            EXPECT_EQ(ItemsOf(Editor, "PropList"),
                      (TLines{"Beta", "Delta", "First\nSecond", "alpha", "beta"}));
            EXPECT_EQ(PartOf<TListBox>(Editor, "PropList").SelCount(), 1);
            EXPECT_EQ(PartOf<TMemo>(Editor, "EdtOrgTranslation").Text(), "beta");
            EXPECT_EQ(PartOf<TMemo>(Editor, "EdtTranslation").Text(), "");
        })
        .Type("EdtTranslation", "bb")
        .Choose("PropList", "First\nSecond")
        .Do([](TForm& Editor) {
            EXPECT_EQ(PartOf<TMemo>(Editor, "EdtOrgTranslation").Text(), "First\r\nSecond");
            EXPECT_EQ(PartOf<TMemo>(Editor, "EdtTranslation").Text(), "1\r\n2");
        })
        .Select("PropList", {"Delta"})
        .Click("BtnRemove")
        .Answer("Do you want to remove the selected strings ?", "No")
        .Click("BtnRemove")
        .Answer("Do you want to remove the selected strings ?", "Yes")
        .Page("Options")
        .Do([](TForm& Editor) {
            EXPECT_EQ(PartOf<TControl>(Editor, "LblTotalNr").Text(), "3");
            EXPECT_EQ(PartOf<TControl>(Editor, "LblLocalizedNr").Text(), "3");
        })
        .Click("BtnOK");
    EXPECT_TRUE(Edit(User));
    EXPECT_EQ(Table(), (TLines{"Beta 0=b", "alpha 1=a", "beta 2=bb"}));
    EXPECT_EQ(Translator->Translations()->Count(), 3);
}

TEST_F(TResEditorTest, LeavesTheTranslatorAloneUnlessOK)
{
    Translator->SetTranslation("Beta", "b");
    Translator->SetTranslation("Alpha", "a\nb");
    const TLines Before = Table();
    const auto Discard = [&](TFormUser& User) {
        User.Click("BtnCancel").Answer("Do you want to discard the changes ?", "Yes");
        EXPECT_FALSE(Edit(User));
        EXPECT_EQ(Table(), Before);
    };
    {
        TFormUser User;
        User.Choose("PropList", "Alpha").Type("EdtTranslation", "other");
        Discard(User);
    }
    {
        TFormUser User;
        User.Select("PropList", {"Alpha", "Beta"})
            .Click("BtnRemove")
            .Answer("Do you want to remove the selected strings ?", "Yes");
        Discard(User);
    }
    {
        TFormUser User;
        User.Page("VCL").Choose("ModuleList", Application->ExeName()).Click("BtnInclude");
        Discard(User);
    }
    TFormUser User;
    User.Choose("PropList", "Alpha").Choose("PropList", "Beta").Page("VCL").Click("BtnOK");
    EXPECT_FALSE(Edit(User)) << "looked at only";
    EXPECT_EQ(Table(), Before);
}

TEST_F(TResEditorTest, TakesOverFromAnotherTranslator)
{
    const TPairs Five = {{"A", "a"}, {"B", "b"}, {"C", "c"}, {"D", "d"}, {"E", "e"}};
    NewTranslator("Danish", {{"A", "a"}});
    NewTranslator("German", Five);
    NewTranslator("Empty", {});
    const auto Ask = [](TFormUser& User, const std::string& Name, const std::string& Answer) {
        User.Answer("Do you want to include resource strings from " + Name + " ?", Answer);
    };
    {
        TFormUser User;
        Ask(User, "Danish", "No");
        Ask(User, "German", "No");
        User.Click("BtnCancel");
        EXPECT_FALSE(Edit(User));
    }
    {
        // It is the second component, and has one source text.
        TFormUser User;
        Ask(User, "Danish", "Yes");
        User.Do([this](TForm& Editor) {
                EXPECT_EQ(Errors.size(), 1u);
                EXPECT_EQ(ItemsOf(Editor, "PropList"), TLines());
            })
            .Click("BtnCancel");
        EXPECT_FALSE(Edit(User)) << "and nothing was to be discarded";
        ExpectedErrors = {"List index out of bounds (1)"};
    }
    TFormUser User;
    Ask(User, "Danish", "No");
    Ask(User, "German", "Yes");
    User.Click("BtnOK");
    EXPECT_TRUE(Edit(User));
    ASSERT_EQ(Translator->Translations()->Count(), 5);
    EXPECT_EQ(LinesOf(Translator->ResStrings()), TLines(5, "C"));
    const TLines Before = Table();
    TFormUser Again;
    Again.Choose("PropList", "C").Type("EdtTranslation", "c").Click("BtnOK");
    EXPECT_TRUE(Edit(Again)) << "without a question";
    const TLines After = Table();
    int Changed = 0;
    for (size_t I = 0; I < After.size(); ++I)
        Changed += After[I] == Before[I] ? 0 : 1;
    EXPECT_EQ(Changed, 1) << "the others keep their places";
}

struct TResEditorFiles : TResEditorTest {
    TResEditorFiles()
    {
        Folder = std::filesystem::temp_directory_path() / ("res" + std::to_string(GetCurrentProcessId()));
        std::filesystem::create_directories(Folder);
        Translator->SetTranslation("Beta", "b");
        Translator->SetTranslation("Alpha", "");
    }
    ~TResEditorFiles() override
    {
        std::filesystem::current_path(Before); // file dialogs change it
        std::filesystem::remove_all(Folder);
    }
    std::string File(const std::string& Name) const { return (Folder / Name).string(); }
    void Write(const std::string& Name, const std::string& Text) const
    {
        TStringList Lines;
        Lines.SetText(Text);
        Lines.SaveToFile(File(Name));
    }

    const std::filesystem::path Before = std::filesystem::current_path();
    std::filesystem::path Folder;
};

TEST_F(TResEditorFiles, ExchangesWhatIsShownWithFiles)
{
    const int Count = Form->ComponentCount();
    TFormUser User;
    User.Choose("PropList", "Alpha")
        .Type("EdtTranslation", "a")
        .Page("Dictionary")
        .Click("BtnSave")
        .ChooseFile("Save current strings to an external textfile.", File("saved.txt"))
        .Click("BtnExport")
        .ChooseFile("Create or update a dictionary with translations", File("dictionary.txt"))
        .Click("BtnCancel")
        .Answer("Do you want to discard the changes ?", "Yes");
    EXPECT_FALSE(Edit(User));
    EXPECT_EQ(ReadWholeFile(File("saved.txt")), "#1Form1.Res0%-1='Alpha'\r\n#1Form1.Res0%1053='a'\r\n"
                                                "#1Form1.Res1%-1='Beta'\r\n#1Form1.Res1%1053='b'\r\n");
    EXPECT_EQ(ReadWholeFile(File("dictionary.txt")), "Alpha\ta\r\nBeta\tb\r\n");
    EXPECT_EQ(Form->ComponentCount(), Count) << "none is left behind";

    Write("dictionary.txt", "Beta\tbeta\r\nUnknown\tu\r\n");
    Write("saved.txt", "#1Form1.Res0%-1='Gamma'\r\n#1Form1.Res0%1031='de'\r\n"
                       "#1Form1.Res0%1053='g'\r\n");
    TFormUser Reader;
    Reader.Page("Dictionary")
        .Click("BtnTranslate")
        .ChooseFile("Translate strings using the selected dictionary", File("dictionary.txt"))
        .Click("BtnLoad")
        .ChooseFile("Load strings from an external textfile.", File("saved.txt"))
        .Do([](TForm& Editor) {
            EXPECT_EQ(ItemsOf(Editor, "PropList"), (TLines{"Alpha", "Beta", "Gamma"}));
        })
        .Click("BtnOK");
    EXPECT_TRUE(Edit(Reader));
    EXPECT_EQ(Table(), (TLines{"Alpha 1=", "Beta 0=beta", "Gamma 2=g"}));
}

TEST_F(TResEditorFiles, KeepsTheWorkWhenAFileIsBad)
{
    Write("bad.txt", "#1Form1.Res0%-1='Gamma'\r\n#1Form1.Res0%x=''\r\n");
    TFormUser User;
    User.Choose("PropList", "Alpha")
        .Type("EdtTranslation", "a")
        .Page("Dictionary")
        .Click("BtnLoad")
        .ChooseFile("Load strings from an external textfile.", File("bad.txt"))
        .Do([this](TForm& Editor) {
            ASSERT_EQ(Errors.size(), 1u);
            EXPECT_NE(Errors[0].find("x"), std::string::npos) << Errors[0];
            ExpectedErrors = Errors;
            EXPECT_EQ(ItemsOf(Editor, "PropList"), (TLines{"Alpha", "Beta"}));
        })
        .Click("BtnOK");
    EXPECT_TRUE(Edit(User));
    EXPECT_EQ(Table(), (TLines{"Alpha 1=a", "Beta 0=b"}));
}

// What costs time for every string at every key would take minutes.
TEST_F(TResEditorTest, IsQuickWithManyStrings)
{
    constexpr int Many = 20000;
    TSortList Sources;
    TStringList Texts;
    for (int I = 0; I < Many; ++I) {
        Sources.SortInsert("Source " + std::to_string(Many + I), IntegerObject(I));
        Texts.Add(I == Many - 2 ? "" : "translated");
    }
    Translator->SetResStrings(Sources);
    Translator->SetTranslations(&Texts);
    const DWORD Start = GetTickCount();
    TFormUser User;
    User.Choose("PropList", "Source 20000")
        .Do([](TForm& Editor) { PartOf<TMemo>(Editor, "EdtTranslation").SetFocus(); })
        .Key(VK_NEXT)
        .Do([](TForm& Editor) {
            EXPECT_EQ(PartOf<TListBox>(Editor, "PropList").ItemIndex(), Many - 2) << "the next untranslated";
            PartOf<TListBox>(Editor, "PropList").SetFocus();
        });
    for (int Round = 0; Round < 5; ++Round)
        User.Key(VK_HOME).Key(VK_END);
    User.Do([](TForm& Editor) { PartOf<TListBox>(Editor, "PropList").SelectAll(); })
        .Click("BtnRemove")
        .Answer("Do you want to remove the selected strings ?", "Yes")
        .Click("BtnOK");
    EXPECT_TRUE(Edit(User));
    EXPECT_LT(GetTickCount() - Start, 60000u);
    EXPECT_EQ(Table(), TLines());
    EXPECT_EQ(Translator->Translations()->Count(), 0);
}

TEST_F(TResEditorTest, RemembersItsSettingsInASectionOfItsOwn)
{
    Translator->SetTranslation("Alpha", "a");
    TFormUser User;
    User.Page("Options").Click("CkxMove").Click("BtnCancel");
    EXPECT_FALSE(Edit(User));
    EXPECT_FALSE(TEditorSettings("ResourceTranslator").Flag("MoveNextUntranslated", true));
    EXPECT_TRUE(TEditorSettings("FormTranslator").Flag("MoveNextUntranslated", true));
}

} // namespace
