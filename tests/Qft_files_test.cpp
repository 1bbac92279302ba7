// The form translator among forms and files: peers, storage, saving and loading.
#include <filesystem>

#include <gtest/gtest.h>

#include "Qft/Qft.h"
#include "framework/design/ToolServices.h"
#include "framework/forms/Application.h"
#include "framework/rtl/Files.h"
#include "framework/rtl/SysUtils.h"
#include "tests/SampleComponent.h"

namespace {

// A form of the application with one component and a translator.
TFormTranslator* AddForm(TComponent* Owner, const std::string& Name, int Locale, const std::string& Caption)
{
    auto* const Form = new TForm(Owner);
    Form->SetName(Name);
    new TSample(Form, "Label1");
    auto* const Translator = new TFormTranslator(Form);
    Translator->SetLocale(Locale);
    Translator->InternalTranslate(false);
    Translator->Translations()->Add("Label1.Caption='" + Caption + "'");
    Translator->Loaded();
    return Translator;
}

std::string CaptionOf(const TFormTranslator* Translator)
{
    return static_cast<TSample*>(Translator->Owner()->FindComponent("Label1"))->Caption();
}

class FormFiles : public testing::Test {
protected:
    void SetUp() override
    {
        const auto* const Info = testing::UnitTest::GetInstance()->current_test_info();
        Folder = std::filesystem::temp_directory_path() / (std::string("obx_form_files_") + Info->name());
        std::filesystem::remove_all(Folder);
        std::filesystem::create_directories(Folder);
        Name = (Folder / "lang.txt").string();
    }
    void TearDown() override { std::filesystem::remove_all(Folder); }

    std::string Content() { return StringReplace(ReadWholeFile(Name), "\r\n", "|", TReplaceExtent::All); }

    TApplicationScope Scope;
    std::filesystem::path Folder;
    std::string Name;
};

TEST_F(FormFiles, PeersSwitchTogether)
{
    TFormTranslator* const Swedish[] = {AddForm(Application, "F1", 1053, "ett"),
                                        AddForm(Application, "F2", 1053, "tva"),
                                        AddForm(Application, "F3", 1053, "tre")};
    TFormTranslator* const German = AddForm(Application, "F4", 1031, "vier");
    TFormTranslator* const None = AddForm(Application, "F5", 0, "none");
    TForm Outside(nullptr);
    TFormTranslator* const Foreign = AddForm(&Outside, "F6", 1053, "sex");
    Swedish[1]->SetTranslate(true);
    EXPECT_EQ(CaptionOf(Swedish[0]) + CaptionOf(Swedish[1]) + CaptionOf(Swedish[2]), "etttvatre");
    EXPECT_EQ(CaptionOf(German) + CaptionOf(None) + CaptionOf(Foreign), "texttexttext");
    None->SetTranslate(true);
    EXPECT_TRUE(Swedish[0]->Translate());
    EXPECT_EQ(CaptionOf(AddForm(Application, "F7", 1053, "sju")), "sju")
        << "a form that comes later joins in";
    Swedish[2]->SetTranslate(false);
    EXPECT_EQ(CaptionOf(Swedish[0]) + CaptionOf(Swedish[1]), "texttext");
    EXPECT_EQ(CaptionOf(None), "none");
}

// Switching a sibling on takes its language's peers along on the other forms, too.
TEST_F(FormFiles, SiblingsTakeTheirPeersAlong)
{
    TFormTranslator* const Swedish = AddForm(Application, "F1", 1053, "ett");
    TFormTranslator* const Far = AddForm(Application, "F2", 1053, "tva");
    auto* const German = new TFormTranslator(Swedish->Owner());
    German->SetLocale(1031);
    German->InternalTranslate(false);
    German->Translations()->Add("Label1.Caption='eins'");
    Swedish->SetTranslate(true);
    EXPECT_EQ(CaptionOf(Far), "tva");
    German->SetTranslate(true);
    EXPECT_EQ(CaptionOf(Swedish), "eins");
    EXPECT_EQ(CaptionOf(Far), "text");
}

TEST_F(FormFiles, SavesTextsAndDefaults)
{
    ReplaceWholeFile(Name,
                     "F1.Label1.Caption%-1='old'\r\nF1.Label1.Caption%1033='yes'\r\nF1.X%1053=gone\r\n");
    TFormTranslator* const Swedish = AddForm(Application, "F1", 1053, "ett");
    const std::string Expected =
        "F1.Label1.Caption%-1='text'|F1.Label1.Caption%1033='yes'|F1.Label1.Caption%1053='ett'|";
    Swedish->SaveTo(Name);
    EXPECT_EQ(Content(), Expected);
    EXPECT_EQ(CaptionOf(Swedish), "text");
    Swedish->SetTranslate(true);
    Swedish->SaveTo(Name);
    EXPECT_EQ(Content(), Expected) << "the same while the form is translated";
    EXPECT_EQ(CaptionOf(Swedish), "ett");
    TFormTranslator* const Other = AddForm(Application, "", 1053, "x");
    Other->SaveTo(Name);
    EXPECT_NE(Content().find("|Form.Label1.Caption%1053='x'|"), std::string::npos) << "by the class's name";

    Swedish->Translations()->Clear();
    EXPECT_TRUE(Swedish->LoadFrom(Name));
    EXPECT_EQ(Swedish->Translations()->Text(), "Label1.Caption='ett'\r\n");
    EXPECT_FALSE(Swedish->LoadFrom(Name + "x"));
}

class TProject : public TIToolServices {
public:
    explicit TProject(std::string Name) : FName(std::move(Name)) { ToolServices = this; }
    ~TProject() override { ToolServices = nullptr; }
    std::string GetProjectName() const override { return FName; }

private:
    std::string FName;
};

TEST_F(FormFiles, FindsTheFolder)
{
    TFormTranslator* const Translator = AddForm(Application, "F1", 1053, "ett");
    EXPECT_EQ(Translator->GetAppDir(), ExtractFilePath(Application->ExeName()));
    Translator->Owner()->SetDesigning(true);
    const TProject Project((Folder / "app.project").string());
    EXPECT_EQ(Translator->GetAppDir(), IncludeTrailingBackslash(Folder.string()));
}

// Every command has a line, and comes back as it was.
TEST_F(FormFiles, TranslatesTheWindowMenu)
{
    TFormTranslator* const Translator = AddForm(Application, "F1", 1053, "ett");
    const auto Lines = [&] {
        TSortList List;
        Translator->TranslateForm(&List, true);
        std::string Result;
        for (int I = 0; I < List.Count(); ++I)
            if (List.Get(I).starts_with("SystemMenu"))
                Result += List.Get(I) + "|";
        return Result;
    };
    const std::string Before = Lines();
    EXPECT_EQ(std::count(Before.begin(), Before.end(), '|'), 6) << Before;
    Translator->InternalTranslate(true);
    Translator->Translations()->SetText(
        "SystemMenuClose='St\xC3\xA4ng'#9'Alt+F4'\nSystemMenuNextWindow='x'\n");
    EXPECT_TRUE(Translator->TranslateForm(Translator->Translations(), false));
    const HMENU Menu = GetSystemMenu(static_cast<TForm*>(Translator->Owner())->Handle(), FALSE);
    char Text[64] = "";
    GetMenuStringA(Menu, SC_CLOSE, Text, sizeof Text, MF_BYCOMMAND);
    EXPECT_STREQ(Text, "St\xC3\xA4ng\tAlt+F4");
    EXPECT_EQ(Lines(), Before) << "reading restores";
}

// A handler that destroys peers, or the translator itself, during a switch.
TEST_F(FormFiles, SurvivesDestructionWhileSwitching)
{
    struct TBomb : TObject {
        void Go(TObject*, TStrings*) { delete Victim; }
        TComponent* Victim = nullptr;
    } Bomb;
    for (int Case = 0; Case < 3; ++Case) {
        SCOPED_TRACE(Case);
        TFormTranslator* const First = AddForm(Application, "F1", 1053, "ett");
        TFormTranslator* const Second = AddForm(Application, "F2", 1053, "tva");
        Bomb.Victim = Case == 0   ? Second->Owner()
                      : Case == 1 ? static_cast<TComponent*>(First)
                                  : First->Owner();
        First->OnTranslated = {&Bomb, &TBomb::Go};
        First->SetTranslate(true);
        EXPECT_EQ(Application->FindComponent("F2") == nullptr, Case == 0);
        delete Application->FindComponent("F1");
        delete Application->FindComponent("F2");
    }
}

} // namespace
