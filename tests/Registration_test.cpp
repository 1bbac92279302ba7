// The translators in the environment: their page, verbs, property editors and help.
#include "editors/Registration.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "FormDesigner.h"
#include "FormUser.h"
#include "Obxc3/Obxc3.h"
#include "Qft/Qft.h"
#include "Qlt/Qlt.h"
#include "RegistryScope.h"
#include "editors/Editors.h"
#include "framework/design/ComponentEditor.h"
#include "framework/design/Help.h"
#include "framework/design/Palette.h"
#include "framework/design/PropertyEditor.h"
#include "framework/rtl/FileNames.h"

namespace {

std::vector<std::string> Shown; // by the help

bool Start(const std::string& CommandLine, int Show)
{
    Shown.push_back(CommandLine + " " + std::to_string(Show));
    return true;
}

bool Open(const std::string& FileName)
{
    Shown.push_back(ExtractFileName(FileName));
    return true;
}

struct Registration : testing::Test {
    Registration()
    {
        RegisterTranslators();
        HelpShell = {&Start, &Open};
        Shown.clear();
        Form = new TForm(Application);
        Form->SetName("Form1");
        Form->SetDesigning(true);
        Designer = std::make_unique<TTestDesigner>(*Form);
    }
    ~Registration() override
    {
        HelpShell = Kept;
        UnregisterTranslators();
    }
    template<class T>
    T& Make()
    {
        auto* const Result = new T(Form);
        Result->SetName(Result->ClassName().substr(1) + "1");
        return *Result;
    }
    std::unique_ptr<TPropertyEditor> Editor(TPersistent& Object, const std::string& Name)
    {
        for (auto& Each : GetPropertyEditors(*Designer, {&Object}, false))
            if (Each->GetName() == Name)
                return std::move(Each);
        throw EPropertyError(Name);
    }

    const TRegistryScope Registry;
    const TApplicationScope Scope;
    const TPackageScope Package;
    const TEditorsScope Editors;
    const THelpShell Kept = HelpShell;
    TForm* Form = nullptr;
    std::unique_ptr<TTestDesigner> Designer;
};

TEST_F(Registration, EveryTranslatorHasItsPageVerbsAndEditors)
{
    const auto Page = std::ranges::find(PalettePages(), "Quillmark", &TPalettePage::Name);
    ASSERT_NE(Page, PalettePages().end());
    const struct {
        std::string Class;
        std::vector<std::string> Verbs;
        std::string Translations;
        std::string Help;
    } Cases[] = {
        {"TFormTranslator", {"Form Translation Editor", "Help Contents"}, "[Form Editor]", "qft.html"},
        {"TButtonTranslator", {"Help Contents"}, "", "qbt.html"},
        {"TCommonDialogTranslator",
         {"Common Dialog Translation Editor", "Help Contents"},
         "(Dialog Editor)",
         "qct.html"},
        {"TLocaleTranslator", {"Locale Translation Editor", "Help Contents"}, "[Locale Editor]", "qlt.html"},
        {"TResourceTranslator",
         {"Resource Translation Editor", "Help Contents"},
         "[Resource Editor]",
         "qrt.html"},
    };
    EXPECT_EQ(Page->Classes.size(), std::size(Cases));
    for (const auto& [Class, Verbs, Translations, Help] : Cases) {
        SCOPED_TRACE(Class);
        const TMetaClass& Meta = FindClass(Class);
        EXPECT_EQ(std::ranges::count(Page->Classes, &Meta), 1);
        auto& Translator = dynamic_cast<TComponent&>(*Meta.Create(Form));
        const auto Offered = GetComponentEditor(*Designer, Translator);
        std::vector<std::string> Names;
        for (int I = 0; I < Offered->GetVerbCount(); ++I)
            Names.push_back(Offered->GetVerb(I));
        EXPECT_EQ(Names, Verbs);
        Offered->ExecuteVerb(Offered->GetVerbCount() - 1);
        EXPECT_EQ(Shown.back(), Help);
        if (!Translations.empty()) {
            const auto List = Editor(Translator, "Translations");
            EXPECT_EQ(List->GetValue(), Translations);
            EXPECT_EQ(List->GetAttributes(), (TPropertyAttributes{paDialog, paReadOnly}));
            EXPECT_THROW(List->SetValue("x"), EPropertyError);
        }
        EXPECT_EQ(Editor(Translator, "FileName")->GetAttributes(), TPropertyAttributes{paDialog});
    }
    EXPECT_EQ(Designer->Changes, 0);
}

TEST_F(Registration, TheViewerOfHelpFilesIsUsedWhereThereIsAFile)
{
    const std::string File = ExtractFilePath(Application->ExeName()) + "QRT.HLP";
    std::ofstream(File) << "?";
    ShowHelpContents("QRT");
    EXPECT_EQ(Shown, std::vector<std::string>{"WINHLP32.EXE QRT.HLP 0"});
    std::remove(File.c_str());
    EXPECT_THROW(ShowHelpContents("NONE"), EInOutError);
}

TEST_F(Registration, OnlyChangesModifyTheForm)
{
    auto& Translator = Make<TFormTranslator>();
    const auto Verbs = GetComponentEditor(*Designer, Translator);
    const auto Run = [](TFormUser& User, const std::function<void()>& Act) {
        User.Run<bool>([&] {
            Act();
            return true;
        });
    };
    TFormUser Idle;
    Idle.Click("BtnOK");
    Run(Idle, [&] { Verbs->ExecuteVerb(0); });
    EXPECT_EQ(Designer->Changes, 0);
    TFormUser Busy;
    Busy.Page("Form").Click("BtnSelect").Click("BtnIncludeProp").Click("BtnOK");
    Run(Busy, [&] { Editor(Translator, "Translations")->Edit(); });
    EXPECT_EQ(Designer->Changes, 1);
    EXPECT_GT(Translator.Translations()->Count(), 0);
    EXPECT_TRUE(Translator.Translate());
}

TEST_F(Registration, TheChosenFileIsStoredWithItsFolder)
{
    auto& Translator = Make<TFormTranslator>();
    const std::string File = ExtractFilePath(Application->ExeName()) + "registration test.txt";
    std::ofstream(File) << "";
    TFormUser User;
    User.ChooseFile("Select a Form translations file", File);
    User.Run<bool>([&] {
        Editor(Translator, "FileName")->Edit();
        return true;
    });
    EXPECT_EQ(Translator.FileName(), File);
    EXPECT_EQ(Designer->Changes, 1);
    std::remove(File.c_str());
}

TEST_F(Registration, ValuesOfALocaleTranslatorAreOffered)
{
    auto& Translator = Make<TLocaleTranslator>();
    auto* const Selector = new TListBox(Form);
    Selector->SetName("ListBox1");
    Selector->SetParent(Form);
    const struct {
        std::string Property;
        std::string Value;
    } Cases[] = {{"StartupLocale", "User default 00000400"}, {"ListFormat", "%2:s"}, {"AdoptOn", "ListBox1"}};
    for (const auto& [Property, Value] : Cases) {
        const auto Each = Editor(Translator, Property);
        std::vector<std::string> Values;
        Each->GetValues([&](const std::string& Offered) { Values.push_back(Offered); });
        EXPECT_EQ(std::ranges::count(Values, Value), 1) << Property;
        Each->SetValue(Value);
        EXPECT_EQ(Each->GetValue(), Value);
    }
    EXPECT_THROW(Editor(Translator, "AdoptOn")->SetValue("Nobody"), EPropertyError);
}

} // namespace
