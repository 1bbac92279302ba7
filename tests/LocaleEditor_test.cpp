#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "FormUser.h"
#include "Obxc3/Obxc3.h"
#include "QltScene.h"
#include "RegistryScope.h"
#include "core/TranslatorEditors.h"
#include "editors/Editors.h"
#include "editors/Qltedit.h"
#include "framework/forms/ComboBoxes.h"
#include "framework/forms/Labels.h"
#include "framework/rtl/RegistryIni.h"

namespace {

using TTexts = std::vector<std::string>;

constexpr int English = 0x409;
constexpr int German = 0x407;
constexpr int Swedish = 0x41D;
constexpr char EnglishName[] = "English, United States";
constexpr char GermanName[] = "German, Germany";
constexpr char SwedishName[] = "Swedish, Sweden";
constexpr char UserDefault[] = "(User default)";
constexpr char SystemDefault[] = "(System default)";
constexpr char Settings[] = "Software\\Quillmark";
constexpr char Discard[] = "Do you want to discard the changes ?";
constexpr char FileTitle[] = "Get system Locale properties from file";

struct TFilesScope {
    TFilesScope() : Folder(std::filesystem::temp_directory_path() / "orbilex locale editor")
    {
        std::filesystem::remove_all(Folder);
        std::filesystem::create_directories(Folder);
        RegDeleteTreeA(HKEY_CURRENT_USER, Settings);
    }
    ~TFilesScope()
    {
        RegDeleteTreeA(HKEY_CURRENT_USER, Settings);
        std::error_code Error;
        std::filesystem::current_path(Before, Error);
        std::filesystem::remove_all(Folder, Error);
    }
    TFilesScope(const TFilesScope&) = delete;
    TFilesScope& operator=(const TFilesScope&) = delete;

    std::string File(const std::string& Name) const { return (Folder / Name).string(); }

    std::filesystem::path Folder;
    // File dialogs make the folder of the chosen file the current one.
    std::filesystem::path Before = std::filesystem::current_path();
};

// An application with a translator on a form that is being designed, which has the
// entries of the United States.
struct TLocaleEditorTest : TLocaleScene, testing::Test {
    TLocaleEditorTest()
    {
        Application->OnException = {this, &TLocaleEditorTest::Caught};
        SetLocalesOf(*Translator, {English});
        Translator->SetDesignLocale(LocaleValue(EnglishName, English));
        Form->SetDesigning(true);
    }
    void Caught(TObject*, const Exception& Error) { Errors.push_back(Error.Message()); }

    bool Edit(TFormUser& User)
    {
        return User.Run<bool>([this] { return Translator->ShowEditor(); });
    }

    static TLocaleEditor& Editor(TForm& Shown) { return dynamic_cast<TLocaleEditor&>(Shown); }

    // Chooses a locale on the first page.
    static void ChooseLocale(TFormUser& User, const std::string& Name)
    {
        User.Do([Name](TForm& Shown) {
            TComboBox& Box = *Editor(Shown).CbxLang;
            const int Item = Box.Items()->IndexOf(Name);
            ASSERT_GE(Item, 0) << Name;
            Box.SetFocus();
            SendMessageA(Box.Handle(), CB_SETCURSEL, static_cast<WPARAM>(Item), 0);
            PostMessageA(GetParent(Box.Handle()), WM_COMMAND,
                         MAKEWPARAM(GetDlgCtrlID(Box.Handle()), CBN_SELCHANGE),
                         reinterpret_cast<LPARAM>(Box.Handle()));
        });
    }

    // What the lists of locales show then.
    static void ExpectLocales(TFormUser& User, const TTexts& InApp, const TTexts& Available)
    {
        User.Do([=](TForm& Shown) {
            EXPECT_EQ(LinesOf(*Editor(Shown).LangListInApp->Items()), InApp);
            for (const std::string& Each : InApp)
                EXPECT_LT(Editor(Shown).LangList->Items()->IndexOf(Each), 0) << Each;
            for (const std::string& Each : Available)
                EXPECT_GE(Editor(Shown).LangList->Items()->IndexOf(Each), 0) << Each;
        });
    }

    // The entries of locales in the order of a translator.
    static TTexts EntriesOf(const std::vector<int>& Locales)
    {
        TSortList List;
        for (const int Each : Locales)
            for (const std::string& Entry : ReadLocaleEntries(Each))
                List.SortInsert(Entry, nullptr);
        return LinesOf(List);
    }
    TTexts Entries() const { return LinesOf(*Translator->Translations()); }
    // Of one key; empty for none.
    std::string Entry(const std::string& Key) const { return Translator->Translations()->Values(Key); }

    const TRegistryScope Registry;
    const TFilesScope Files;
    const TPackageScope Package;
    const TEditorsScope Editors;
    TTexts Errors;
};

TEST_F(TLocaleEditorTest, ShowsItsPagesInOrderAndWhatTheyHold)
{
    TRegIniFile(Settings).WriteString("LocaleTranslator", "WindowPlace", "20,20,800,560");
    TFormUser User;
    User.Do([](TForm& Shown) {
        EXPECT_EQ(Shown.Caption(), "Locale Translation Editor");
        EXPECT_EQ(LinesOf(*Editor(Shown).Notebook->Tabs()),
                  (TTexts{"Translations", "Locales", "Options", "Font", "Dictionary"}));
        for (const char* const Name :
             {"BtnRemove", "BtnNew", "EdtOrgTranslation", "LblTotal", "LblTotalNr", "LblLocalized",
              "LblLocalizedNr", "BtnTranslate", "LblTranslate", "BtnExport", "LblExport", "DescList"})
            EXPECT_FALSE(PartOf<TControl>(Shown, Name).Visible()) << Name;
        EXPECT_EQ(Editor(Shown).PropList->Items()->Count(), 58);
        EXPECT_EQ(Editor(Shown).CbxLang->Text(), EnglishName);
        EXPECT_FALSE(Editor(Shown).EdtTranslation->Enabled());
        EXPECT_EQ(Editor(Shown).EdtTranslation->Color(), clBtnFace);
    });
    User.Page("Locales");
    ExpectLocales(User, {SystemDefault, UserDefault, EnglishName}, {GermanName, SwedishName});
    User.Do([](TForm& Shown) {
        const TListBox& List = *Editor(Shown).LangListInApp;
        EXPECT_NEAR(List.Left() + List.Width(), List.Parent()->ClientWidth(), 20) << "of a larger window";
        EXPECT_NEAR(List.Top() + List.Height(), List.Parent()->ClientHeight(), 20);
    });
    User.Click("BtnCancel");
    EXPECT_FALSE(Edit(User));
}

// A description that is cut off, or a key that has none, leaves the developer alone
// with a name such as NEGCURRFORMAT.
TEST_F(TLocaleEditorTest, EveryKeyHasADescriptionThatFits)
{
    TFormUser User;
    User.Do([](TForm& Shown) {
        Shown.SetBounds(0, 0, Shown.Constraints()->MinWidth(), Shown.Constraints()->MinHeight());
        TLocaleEditor& Of = Editor(Shown);
        TTexts Described;
        for (const std::string& Each : LinesOf(*Of.DescList->Items()))
            Described.push_back(Each.substr(0, Each.find('=')));
        TTexts Keys = LinesOf(*Of.PropList->Items());
        Keys.push_back("COMPANIONTAG");
        std::sort(Keys.begin(), Keys.end());
        std::sort(Described.begin(), Described.end());
        EXPECT_EQ(Described, Keys);
        Shown.Canvas()->Font()->Assign(Of.LblProp->Font());
        for (int I = 0; I < Of.DescList->Items()->Count(); ++I) {
            std::string Text = Of.DescList->Items()->Get(I);
            Text = Text.substr(Text.find('=') + 1);
            Text += " " + Text.substr(0, Text.size() * 2 / 5); // of a longer language
            TRect Area(0, 0, Of.LblProp->Width(), 0);
            Shown.Canvas()->DrawText(Text, Area, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
            EXPECT_LE(Area.bottom, Of.LblProp->Height()) << Text;
        }
    });
    User.Choose("PropList", "DATESEPARATOR").Do([](TForm& Shown) {
        EXPECT_EQ(Editor(Shown).LblProp->Caption(),
                  "Character(s) for the date separator. This cannot be set to the digits '0'-'9'.");
        EXPECT_EQ(Editor(Shown).EdtTranslation->Text(), "/");
        EXPECT_EQ(Editor(Shown).EdtTranslation->Color(), clWindow);
    });
    ChooseLocale(User, EnglishName);
    User.Do([](TForm& Shown) {
        EXPECT_EQ(Editor(Shown).LblProp->Caption(), "");
        EXPECT_EQ(Editor(Shown).EdtTranslation->Text(), "");
        EXPECT_FALSE(Editor(Shown).EdtTranslation->Enabled());
    });
    User.Click("BtnOK");
    EXPECT_FALSE(Edit(User)) << "nothing was changed";
}

// The selector and both locales follow what was edited, also without a selector,
// when the list of languages was not made for years.
TEST_F(TLocaleEditorTest, CopiedLocaleIsTakenUp)
{
    for (const bool WithSelector : {false, true}) {
        SCOPED_TRACE(WithSelector);
        SetLocalesOf(*Translator, {English});
        Translator->SetDesignLocale(LocaleValue(EnglishName, English));
        Translator->SetStartupLocale(LocaleValue(UserDefaultName, UserDefaultLocale));
        TListBox* const Selector = WithSelector ? new TListBox(Form) : nullptr;
        if (Selector)
            Selector->SetParent(Form);
        Translator->SetAdoptOn(Selector);
        TFormUser User;
        User.Page("Locales").Choose("LangList", SwedishName).Click("BtnCopyLang");
        ExpectLocales(User, {SystemDefault, UserDefault, EnglishName, SwedishName}, {GermanName});
        User.Do([](TForm& Shown) { EXPECT_FALSE(Editor(Shown).BtnCopyLang->Enabled()); });
        User.Choose("LangListInApp", SwedishName).Click("BtnSetDefault").Click("BtnSetStartup");
        User.Do([this](TForm& Shown) {
            EXPECT_FALSE(Editor(Shown).BtnRemoveLang->Enabled());
            EXPECT_EQ(Entries(), EntriesOf({English})) << "before OK";
        });
        User.Click("BtnOK");
        EXPECT_TRUE(Edit(User));
        EXPECT_EQ(Entries(), EntriesOf({English, Swedish}));
        EXPECT_EQ(Translator->DesignLocale(), "Swedish, Sweden 0000041D");
        EXPECT_EQ(Translator->StartupLocale(), "Swedish, Sweden 0000041D");
        EXPECT_EQ(Selector ? LinesOf(*Selector->Items()) : TTexts(),
                  Selector ? (TTexts{EnglishName, SwedishName}) : TTexts());
    }
    EXPECT_EQ(Errors, TTexts());
}

TEST_F(TLocaleEditorTest, WhatCanBeDoneWithALocale)
{
    SetLocalesOf(*Translator, {English, German, Swedish});
    Translator->SetStartupLocale(LocaleValue(GermanName, German));
    const struct {
        const char* Item;
        bool Remove, Design, Startup;
    } Cases[] = {
        {EnglishName, false, false, true},   {GermanName, false, true, false},
        {SwedishName, true, true, true},     {UserDefault, false, false, true},
        {SystemDefault, false, false, true},
    };
    TFormUser User;
    const auto Expect = [&](const std::string& Name, bool Remove, bool Design, bool Startup) {
        User.Do([=](TForm& Shown) {
            SCOPED_TRACE(Name);
            EXPECT_EQ(Editor(Shown).BtnRemoveLang->Enabled(), Remove);
            EXPECT_EQ(Editor(Shown).BtnSetDefault->Enabled(), Design);
            EXPECT_EQ(Editor(Shown).BtnSetStartup->Enabled(), Startup);
        });
    };
    User.Page("Locales");
    Expect("none", false, false, false);
    for (const auto& Case : Cases) {
        User.Choose("LangListInApp", Case.Item);
        Expect(Case.Item, Case.Remove, Case.Design, Case.Startup);
    }
    User.Click("BtnSetStartup");
    Expect("system as start-up", false, false, false);
    User.Choose("LangListInApp", GermanName);
    Expect("no longer start-up", true, true, true);
    User.Click("BtnOK");
    EXPECT_TRUE(Edit(User));
    EXPECT_EQ(Translator->StartupLocale(), "System default 00000800");
    EXPECT_EQ(Translator->DesignLocale(), LocaleValue(EnglishName, English));
}

TEST_F(TLocaleEditorTest, RunningApplicationChoosesNoDefaults)
{
    Form->SetDesigning(false);
    TFormUser User;
    User.Page("Locales");
    ExpectLocales(User, {EnglishName}, {GermanName});
    User.Do([](TForm& Shown) {
        EXPECT_FALSE(Editor(Shown).BtnSetDefault->Visible());
        EXPECT_FALSE(Editor(Shown).BtnSetStartup->Visible());
    });
    User.Choose("LangList", GermanName).Click("BtnCopyLang").Click("BtnOK");
    EXPECT_TRUE(Edit(User));
    EXPECT_EQ(Translator->StartupLocale(), "User default 00000400");
    EXPECT_EQ(Entries(), EntriesOf({English, German}));
}

TEST_F(TLocaleEditorTest, RemovedLocaleComesBackWithItsEditedValues)
{
    SetLocalesOf(*Translator, {English, Swedish});
    TFormUser User;
    ChooseLocale(User, SwedishName);
    User.Choose("PropList", "LONGDAYNAMES[1]").Type("EdtTranslation", "Tisdag");
    User.Page("Locales").Choose("LangListInApp", SwedishName).Click("BtnRemoveLang");
    ExpectLocales(User, {SystemDefault, UserDefault, EnglishName}, {SwedishName});
    User.Do([](TForm& Shown) {
        EXPECT_EQ(LinesOf(*Editor(Shown).CbxLang->Items()), (TTexts{EnglishName}));
        EXPECT_EQ(Editor(Shown).CbxLang->ItemIndex(), 0);
    });
    User.Choose("LangList", SwedishName).Click("BtnCopyLang").Click("BtnOK");
    EXPECT_TRUE(Edit(User));
    TTexts Expected = EntriesOf({English, Swedish});
    for (std::string& Each : Expected)
        if (Each.starts_with("0000041D_LONGDAYNAMES[1]="))
            Each = "0000041D_LONGDAYNAMES[1]=Tisdag";
    EXPECT_EQ(Entries(), Expected) << "each entry once";
}

TEST_F(TLocaleEditorTest, NewLocaleByItsNumber)
{
    const struct {
        const char* Number;
        int Added; // 0 for none
        bool Error;
    } Cases[] = {
        {"1031", German, false},  {"1033", 0, false}, // there already
        {"1024", 0, false},                           // the user's, which is listed in the designer
        {"Swedish", 0, true},     {"", 0, true},
        {"99999999999", 0, true}, {"4660", 0x1234, false}, // of the developer's own, English to begin with
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Number);
        SetLocalesOf(*Translator, {English});
        Errors.clear();
        TFormUser User;
        User.Page("Locales").Click("BtnUserLang");
        User.Enter("New locale", "Locale identifier (integer)", Case.Number).Click("BtnOK");
        EXPECT_EQ(Edit(User), Case.Added != 0);
        EXPECT_EQ(Errors.size(), Case.Error ? 1u : 0u);
        EXPECT_EQ(Entries(), Case.Added ? EntriesOf({English, Case.Added}) : EntriesOf({English}));
    }
}

// An entry is applied as it stands, so its quotes and numbers must survive the box.
TEST_F(TLocaleEditorTest, EditsValuesAsTheyAreApplied)
{
    const struct {
        const char* Value;
        const char* Shown;
        const char* Typed;
        const char* Stored;
    } Cases[] = {
        {"Monday", "Monday", "Montag", "Montag"},
        {"", "", "it's", "it's"},
        {"'den 'd MMMM yyyy", "'den 'd MMMM yyyy", "'den 'd MMM", "'den 'd MMM"},
        {"#", "#", "# ", "# "},
        {"'at'#9'#'", "at\t#", "on", "'on'"},
        {"a=b", "a=b", "c=d", "c=d"},
        {"one", "one", "one\r\ntwo", "'one'#13#10'two'"},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Value);
        SetEntries({"0000041D_ENGLISHNAME=Swedish", "0000041D_LONGDATEFORMAT=" + std::string(Case.Value)});
        const std::string Text = Case.Shown;
        TFormUser User;
        User.Choose("PropList", "LONGDATEFORMAT").Do([=](TForm& Shown) {
            EXPECT_EQ(Editor(Shown).EdtTranslation->Text(), Text);
        });
        User.Type("EdtTranslation", Case.Typed).Click("BtnOK");
        EXPECT_TRUE(Edit(User));
        EXPECT_EQ(Entry("0000041D_LONGDATEFORMAT"), Case.Stored);
    }
    EXPECT_EQ(Errors, TTexts());
}

TEST_F(TLocaleEditorTest, PageDownStopsAtAnEmptyValue)
{
    SetEntries({"0000041D_CURRENCYSTRING=kr", "0000041D_DATESEPARATOR=-", "0000041D_ENGLISHNAME=Swedish",
                "0000041D_TIMEAMSTRING=", "0000041D_TIMESEPARATOR=:"});
    TFormUser User;
    User.Choose("PropList", "CURRENCYSTRING").Type("EdtTranslation", "SEK").Key(VK_NEXT);
    User.Do([](TForm& Shown) {
        EXPECT_EQ(Editor(Shown).PropList->Items()->Get(Editor(Shown).PropList->ItemIndex()), "TIMEAMSTRING");
    });
    User.Key(VK_NEXT).Type("EdtTranslation", ".").Key(VK_ESCAPE).Click("BtnOK");
    EXPECT_TRUE(Edit(User));
    EXPECT_EQ(Entry("0000041D_CURRENCYSTRING"), "SEK");
    EXPECT_EQ(Entry("0000041D_TIMESEPARATOR"), ":") << "Escape";
}

TEST_F(TLocaleEditorTest, CancelAsksAboutChangesAlone)
{
    TFormUser Unchanged;
    Unchanged.Click("BtnCancel");
    EXPECT_FALSE(Edit(Unchanged));

    TFormUser User;
    User.Page("Locales")
        .Choose("LangList", GermanName)
        .Click("BtnCopyLang")
        .Choose("LangListInApp", GermanName);
    User.Click("BtnSetDefault").Click("BtnCancel").Answer(Discard, "No");
    ExpectLocales(User, {SystemDefault, UserDefault, EnglishName, GermanName}, {SwedishName});
    User.Click("BtnCancel").Answer(Discard, "Yes");
    EXPECT_FALSE(Edit(User));
    EXPECT_EQ(Entries(), EntriesOf({English}));
    EXPECT_EQ(Translator->DesignLocale(), LocaleValue(EnglishName, English));
}

TEST_F(TLocaleEditorTest, DictionaryGoesOutAndIn)
{
    SetLocalesOf(*Translator, {English, Swedish});
    Translator->SetLocale(7);
    const std::string File = Files.File("locales.txt");
    TFormUser Saving;
    Saving.Choose("PropList", "TIMEAMSTRING").Type("EdtTranslation", "before noon").Page("Dictionary");
    Saving.Click("BtnSave").ChooseFile("Save current locale properties to an external textfile.", File);
    Saving.Click("BtnCancel").Answer(Discard, "Yes");
    EXPECT_FALSE(Edit(Saving));
    EXPECT_EQ(Form->ComponentCount(), 1) << "the translator for the file has gone";

    SetLocalesOf(*Translator, {English, German});
    TFormUser Loading;
    Loading.Page("Dictionary").Click("BtnLoad");
    Loading.ChooseFile("Load locale properties from an external textfile.", File).Page("Locales");
    ExpectLocales(Loading, {SystemDefault, UserDefault, EnglishName, GermanName, SwedishName}, {});
    Loading.Click("BtnOK");
    EXPECT_TRUE(Edit(Loading));
    EXPECT_EQ(Entry("00000409_TIMEAMSTRING"), "before noon");
    EXPECT_EQ(Entries().size(), EntriesOf({English, German, Swedish}).size());
    EXPECT_EQ(Errors, TTexts());
}

// A file of locales instead of the system's; what cannot be read is told, and the
// lists stay.
TEST_F(TLocaleEditorTest, TakesLocalesFromAFile)
{
    const std::string File = Files.File("pool.txt");
    SetLocalesOf(*Translator, {English, Swedish});
    Translator->SaveTo(File);
    SetLocalesOf(*Translator, {English});
    const auto ExpectAvailable = [](TFormUser& User, const TTexts& Names) {
        User.Page("Locales").Do(
            [=](TForm& Shown) { EXPECT_EQ(LinesOf(*Editor(Shown).LangList->Items()), Names); });
    };
    TFormUser Choosing;
    Choosing.Page("Options").Click("BtnSelLocale").ChooseFile(FileTitle, File);
    ExpectAvailable(Choosing, {SwedishName});
    Choosing.Page("Options").Type("EdtLocaleList", Files.File("none.txt"));
    ExpectAvailable(Choosing, {SwedishName});
    Choosing.Page("Options").Type("EdtLocaleList", File).Click("BtnCancel");
    EXPECT_FALSE(Edit(Choosing));
    EXPECT_EQ(Errors, TTexts{"There is no file " + Files.File("none.txt")});
    EXPECT_EQ(TRegIniFile(Settings).ReadString("LocaleTranslator", "LoadLocales", ""), File);

    Errors.clear();
    TFormUser Reopened;
    ExpectAvailable(Reopened, {SwedishName});
    Reopened.Page("Options").Type("EdtLocaleList", "");
    Reopened.Page("Locales");
    ExpectLocales(Reopened, {SystemDefault, UserDefault, EnglishName}, {GermanName, SwedishName});
    Reopened.Page("Options").Type("EdtLocaleList", Files.File("none.txt")).Page("Locales").Click("BtnCancel");
    EXPECT_FALSE(Edit(Reopened));

    TFormUser Missing;
    ExpectAvailable(Missing, {});
    Missing.Click("BtnCancel");
    EXPECT_FALSE(Edit(Missing));
    EXPECT_EQ(Errors, TTexts(2, "There is no file " + Files.File("none.txt"))) << "on leaving, on showing";
}

bool Fail(TTranslatorFrame& Translator)
{
    EXPECT_FALSE(Translator.Translate());
    throw EConvertError("failed");
}

TEST_F(TLocaleEditorTest, TranslateIsOffMeanwhileAndBackAfterwards)
{
    for (const bool Before : {true, false}) {
        Translator->SetTranslate(Before);
        TFormUser User;
        User.Do([this](TForm&) { EXPECT_FALSE(Translator->Translate()); }).Click("BtnOK");
        EXPECT_FALSE(Edit(User));
        EXPECT_EQ(Translator->Translate(), Before);
    }
    Translator->SetTranslate(true);
    SetTranslatorEditor(TLocaleTranslator::MetaClass(), Fail);
    EXPECT_THROW(Translator->ShowEditor(), EConvertError);
    EXPECT_TRUE(Translator->Translate());
}

// A handler of the application may destroy the form at any time, also while the
// editor asks something.
TEST_F(TLocaleEditorTest, TranslatorDestroyedMeanwhileClosesTheEditor)
{
    for (const bool Asking : {false, true}) {
        SCOPED_TRACE(Asking);
        if (!Translator)
            Translator = new TLocaleTranslator(Form);
        TFormUser User;
        User.Page("Options").Type("EdtLocaleList", Files.File("none.txt"));
        if (Asking)
            User.Page("Locales").Click("BtnUserLang");
        User.Do([this](TForm&) { DestroyTranslator(nullptr); });
        if (Asking)
            User.Enter("New locale", "Locale identifier (integer)", "1031");
        TLocaleTranslator& Edited = *Translator;
        EXPECT_FALSE(User.Run<bool>([&] { return Edited.ShowEditor(); }));
    }
}

} // namespace
