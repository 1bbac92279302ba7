// The globalization wizard, used with mouse and keyboard: its settings, a project that
// becomes globalized, dictionaries out and in, and that nothing happens by halves.
#include "wizard/ObxWizard.h"

#include <algorithm>

#include "BareDemo.h"
#include "FormUser.h"
#include "Obxc3/Obxc3.h"
#include "RegistryScope.h"
#include "editors/EditorLanguage.h"
#include "editors/Editors.h"
#include "framework/design/Help.h"
#include "framework/design/ToolServices.h"
#include "framework/forms/ComboBoxes.h"
#include "framework/forms/Labels.h"
#include "framework/forms/ListViews.h"
#include "framework/forms/Notebooks.h"
#include "framework/forms/Panels.h"
#include "framework/rtl/RegistryIni.h"
#include "framework/rtl/SysUtils.h"
#include "wizard/Wizard.h"

namespace {

using TTexts = std::vector<std::string>;

constexpr char MainDfm[] = "object MainForm: TMainForm\r\n"
                           "  Caption = 'Editor'\r\n"
                           "  object BtnSave: TButton\r\n"
                           "    Caption = '&Save'\r\n"
                           "  end\r\n"
                           "end\r\n";

struct TEnvironment : TIToolServices {
    std::string GetProjectName() const override { return Project; }
    bool SaveProject() override
    {
        ++Saved;
        return MaySave;
    }
    void ReloadProject() override { ++Reloaded; }

    std::string Project;
    bool MaySave = true;
    int Saved = 0;
    int Reloaded = 0;
};

TObxWizard& Wizard(TForm& Form)
{
    return dynamic_cast<TObxWizard&>(Form);
}

struct ObxWizard : TObject, testing::Test {
    ObxWizard()
    {
        RegDeleteTreeA(HKEY_CURRENT_USER, "Software\\Quillmark");
        SetEditorLocale(1033);
        Application->OnException = {this, &ObxWizard::Caught};
        ToolServices = &Environment;
    }
    ~ObxWizard() override
    {
        ToolServices = nullptr;
        SetEditorLocale(0);
        EXPECT_EQ(Errors, TTexts());
    }
    void Caught(TObject*, const Exception& Error) { Errors.push_back(Error.Message()); }

    // A project of one form.
    void WriteEditor()
    {
        Folder.Write("MainForm.dfm", MainDfm);
        Environment.Project = Folder.Write("editor.obp", "[Project]\nName=Editor\n[Forms]\nMainForm.dfm\n");
    }
    static TModalResult Run(TFormUser& User)
    {
        const std::unique_ptr<TObxWizard> Form(CreateForm<TObxWizard>(Application));
        return User.Run<TModalResult>([&] { return Form->ShowModal(); });
    }
    // Checks an item of the languages with the keyboard.
    static void Check(TFormUser& User, const std::string& Item)
    {
        User.Do([Item](TForm& Form) {
            TCheckListBox& List = *Wizard(Form).LstLocales;
            ASSERT_GE(List.Items()->IndexOf(Item), 0) << Item;
            List.SetFocus();
            List.SetItemIndex(List.Items()->IndexOf(Item));
        });
        User.Keys(" ");
    }
    static void SeePage(TFormUser& User, const std::string& Name)
    {
        User.Do([Name](TForm& Form) { EXPECT_EQ(Wizard(Form).Notebook->ActivePage(), Name); });
    }
    // From page Main to the result.
    static void Globalize(TFormUser& User, const TTexts& Languages)
    {
        User.Click("BtnNext");
        SeePage(User, "Found");
        User.Click("BtnNext");
        for (const std::string& Each : Languages)
            Check(User, Each);
        User.Click("BtnNext");
        SeePage(User, "Result");
    }
    static void SeeResult(TFormUser& User, const TTexts& Lines)
    {
        User.Do([Lines](TForm& Form) {
            const TTexts Shown = LinesOf(*Wizard(Form).MemResult->Lines());
            for (const std::string& Line : Lines)
                EXPECT_NE(std::find(Shown.begin(), Shown.end(), Line), Shown.end())
                    << Line << " in\n"
                    << Wizard(Form).MemResult->Text();
        });
    }
    static TRegIniFile Registry() { return TRegIniFile("Software\\Quillmark"); }

    const TRegistryScope RegistryFolder;
    const TApplicationScope Scope;
    const TPackageScope Package;
    const TEditorsScope Editors;
    const TWizardScope WizardUnits;
    const TTestFolder Folder;
    TEnvironment Environment;
    TTexts Errors; // shown to the user
    int Clicks = 0;
    void Clicked(TObject*) { ++Clicks; }
};

// A form of a project named Name, with two main forms to choose from.
std::unique_ptr<TObxWizard> WizardOf(const std::string& Name)
{
    std::unique_ptr<TObxWizard> Result(CreateForm<TObxWizard>(Application));
    Result->PnlProjectName->SetCaption(Name);
    for (const char* const Form : {"MainForm", "OtherForm"})
        Result->CbxMainForm->Items()->Add(Form);
    Result->CbxMainForm->SetItemIndex(0);
    return Result;
}

TEST_F(ObxWizard, SettingsComeBackToTheirProjectOnly)
{
    {
        const auto Form = WizardOf("one");
        EXPECT_FALSE(Form->Radio2->Enabled() || Form->Radio3->Enabled());
        Form->CkxResources->SetChecked(false);
        Form->CkxScanForms->SetChecked(false);
        Form->CbxMainForm->SetItemIndex(1);
        Form->RadioStorage2->SetChecked(true);
        Form->EdtFormStorage->SetText("desk.lng");
        Form->WriteSettings();
    }
    TStringList Values;
    Registry().ReadSectionValues("OrbilexDesigner", Values);
    TTexts Lines = LinesOf(Values);
    std::sort(Lines.begin(), Lines.end());
    EXPECT_EQ(Lines, (TTexts{"CommonDlg=1", "Forms=1", "MainForm=OtherForm", "Project=one", "Resources=0",
                             "ScanForms=0", "StoreInFile=desk.lng", "StoreInForm=0"}));
    const struct {
        const char* Project;
        bool IsKnown;
    } Cases[] = {{"one", true}, {"two", false}, {"", false}};
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Project);
        const auto Form = WizardOf(Case.Project);
        Clicks = 0;
        Form->RadioStorage2->OnClick = {static_cast<ObxWizard*>(this), &ObxWizard::Clicked};
        Form->ReadSettings();
        EXPECT_EQ(Form->Radio2->Enabled(), Case.IsKnown);
        EXPECT_EQ(Form->Radio3->Enabled(), Case.IsKnown);
        EXPECT_EQ(Form->Radio2->Checked(), Case.IsKnown);
        EXPECT_EQ(Form->CkxResources->Checked(), !Case.IsKnown);
        EXPECT_TRUE(Form->CkxCommonDlg->Checked() && Form->CkxForms->Checked());
        EXPECT_EQ(Form->CkxScanForms->Checked(), !Case.IsKnown);
        EXPECT_EQ(Form->CbxMainForm->Text(), Case.IsKnown ? "OtherForm" : "MainForm");
        EXPECT_EQ(Form->RadioStorage2->Checked(), Case.IsKnown);
        EXPECT_EQ(Form->EdtFormStorage->Text(), Case.IsKnown ? "desk.lng" : "translations.lng");
        EXPECT_EQ(Clicks, Case.IsKnown ? 1 : 0);
    }
    Registry().WriteString("OrbilexDesigner", "MainForm", "Gone");
    Registry().DeleteKey("OrbilexDesigner", "Resources");
    const auto Form = WizardOf("one");
    Form->ReadSettings();
    EXPECT_EQ(Form->CbxMainForm->ItemIndex(), -1);
    EXPECT_TRUE(Form->CkxResources->Checked());
}

TEST_F(ObxWizard, FileSizes)
{
    EXPECT_EQ(TObxWizard::GetFileSize(Folder.Write("five", "12345")), 5);
    EXPECT_EQ(TObxWizard::GetFileSize(Folder.Write("none", "")), 0);
    EXPECT_EQ(TObxWizard::GetFileSize(Folder.Name("missing")), 0);
    EXPECT_EQ(TObxWizard::GetFileSize(Folder.Name()), 0);
}

TEST_F(ObxWizard, GlobalizesTheDemo)
{
    WriteBareDemo(Folder);
    Environment.Project = Folder.Name("demo.obp"); // of an opened folder: there is no such file
    TFormUser User;
    User.Page("Contents", "StartNote").Do([](TForm& Form) {
        TObxWizard& Self = Wizard(Form);
        Self.CbxMainForm->SetItemIndex(Self.CbxMainForm->Items()->IndexOf("MainForm"));
        Self.CbxMainFormChange(Self.CbxMainForm);
        EXPECT_EQ(Self.CbxMainForm->Items()->IndexOf("TextsModule"), -1) << "a data module";
        EXPECT_EQ(Self.CbxSelector->Text(), "(none)");
        const int Menu = Self.CbxSelector->Items()->IndexOf("MnuLanguage");
        EXPECT_GT(Menu, 0);
        Self.CbxSelector->SetItemIndex(Menu);
    });
    User.Page("Storage", "StartNote").Click("RadioStorage2").Type("EdtFormStorage", "desk.lng");
    User.Click("BtnNext").Do([](TForm& Form) {
        const TListView& Found = *Wizard(Form).LvwFound;
        EXPECT_EQ(Found.Items()->Count(), 12) << "11 forms and a unit";
        const TListItem* const Dialogs = Found.FindCaption(0, "DialogsForm");
        ASSERT_NE(Dialogs, nullptr);
        EXPECT_EQ(Dialogs->SubItems()->Get(0), "Form");
        EXPECT_GT(StrToInt(Dialogs->SubItems()->Get(1)), 10);
        EXPECT_NE(Dialogs->SubItems()->Get(2).find("TColorDialog"), std::string::npos);
        EXPECT_FALSE(Wizard(Form).PanErrors->Visible());
    });
    User.Click("BtnNext");
    Check(User, "Swedish, Sweden");
    Check(User, "Arabic, Saudi Arabia");
    User.See("LblChosen", "Chosen: Arabic, Saudi Arabia; Swedish, Sweden").Click("BtnNext");
    SeeResult(User,
              {"    Translators placed: FormTranslatorArabic, FormTranslatorSwedish",
               "    a data module without texts needs no form translator", "    offers Swedish, Sweden"});
    // The second time the selector and the languages are chosen, and nothing changes.
    User.Click("BtnBack").Do([](TForm& Form) {
        EXPECT_TRUE(Wizard(Form).Radio2->Checked());
        EXPECT_EQ(Wizard(Form).CbxSelector->Text(), "MnuLanguage");
        EXPECT_EQ(Wizard(Form).StartNote->ActivePage(), Wizard(Form).TabStart);
    });
    User.Click("Radio1");
    Globalize(User, {});
    SeeResult(User, {"Files changed: 0 of 12", "desk.lng: unchanged"});
    User.Click("BtnFinish");
    EXPECT_EQ(Run(User), mrOk);
    EXPECT_EQ(Environment.Saved, 1);
    EXPECT_EQ(Environment.Reloaded, 2);
    EXPECT_NE(Folder.Read("MainForm.dfm").find("AdoptOn = MnuLanguage"), std::string::npos);
    EXPECT_NE(Folder.Read("desk.lng").find("AboutForm.Caption%1025="), std::string::npos);
    EXPECT_EQ(Registry().ReadString("OrbilexDesigner", "Project", ""), Environment.Project);
}

TEST_F(ObxWizard, DictionariesGoOutAndComeBack)
{
    WriteEditor();
    TFormUser User;
    Globalize(User, {"Swedish, Sweden"});
    User.Click("BtnBack").Click("BtnNext");
    SeePage(User, "Dictionaries");
    User.Click("BtnNext");
    SeeResult(User, {"Files changed: 1 of 1", "    Texts added: 8"});
    User.Do([this](TForm&) {
        EXPECT_NE(Folder.Read("editor.1053.txt").find("&Save\t\r\n"), std::string::npos);
        Folder.Write("from Anna/editor.1053.txt", "&Save\t&Spara\r\nEditor\t\r\n");
    });
    User.Click("BtnBack").Click("Radio3").Click("BtnNext");
    User.Type("EdtFolder", Folder.Name("nowhere")).Click("BtnNext"); // has no dictionaries
    User.Do([this](TForm&) {
        ASSERT_EQ(Errors, TTexts{"Choose at least one dictionary."});
        Errors.clear();
    });
    User.Type("EdtFolder", Folder.Name("from Anna")).Click("BtnNext");
    SeeResult(User, {"    Texts translated: 1"});
    User.Click("BtnBack").Click("Radio1");
    Globalize(User, {"German, Germany"});
    SeeResult(User, {"    Translators placed: FormTranslatorGerman", "    Texts kept: 8"});
    User.Key(VK_RETURN); // Finish
    EXPECT_EQ(Run(User), mrOk);
    EXPECT_NE(Folder.Read("MainForm.dfm").find("'BtnSave.Caption='#39'&Spara'#39"), std::string::npos);
}

TEST_F(ObxWizard, TheKeyboardIsEnough)
{
    WriteEditor();
    TFormUser User;
    User.Key(VK_RETURN).Key(VK_RETURN).Key(VK_END).Keys(" ").Key(VK_RETURN);
    SeePage(User, "Result");
    User.Key(VK_RETURN);
    EXPECT_EQ(Run(User), mrOk);
    EXPECT_NE(Folder.Read("MainForm.dfm").find("FormTranslator"), std::string::npos);
}

TEST_F(ObxWizard, StoppedWorkChangesNothing)
{
    WriteEditor();
    const auto Before = Folder.Files();
    TFormUser User;
    User.Click("BtnNext").Click("BtnNext");
    Check(User, "Swedish, Sweden");
    // The wish to stop waits among the messages when the work begins.
    const auto StopWith = [&User](UINT Message, WPARAM Code, const char* Button) {
        User.Do([=](TForm& Form) {
            PostMessageA(Form.Handle(), WM_COMMAND,
                         MAKEWPARAM(GetDlgCtrlID(Wizard(Form).BtnNext->Handle()), BN_CLICKED),
                         reinterpret_cast<LPARAM>(Wizard(Form).BtnNext->Handle()));
            const HWND Control = *Button ? PartOf<TWinControl>(Form, Button).Handle() : nullptr;
            PostMessageA(Form.Handle(), Message, Code, reinterpret_cast<LPARAM>(Control));
        });
        User.Answer("Nothing has been changed", "OK");
        SeePage(User, "Languages");
    };
    StopWith(WM_COMMAND, MAKEWPARAM(0, BN_CLICKED), "BtnCancel");
    StopWith(WM_SYSCOMMAND, SC_CLOSE, "");
    User.Close();
    EXPECT_EQ(Run(User), mrCancel);
    EXPECT_EQ(Folder.Files(), Before);
    EXPECT_EQ(Environment.Reloaded, 0);
    EXPECT_EQ(Registry().ReadString("OrbilexDesigner", "Project", "none"), "none");
}

// A failure is shown with the file's name, and all files are as they were.
TEST_F(ObxWizard, FailuresAreShownAndThePageStays)
{
    WriteEditor();
    Folder.Write("taken.lng/inside", "");
    TFormUser User;
    User.Page("Storage", "StartNote").Click("RadioStorage2").Type("EdtFormStorage", "");
    const auto Refused = [&](const std::string& Page, const std::string& Message) {
        User.Click("BtnNext").Do([this, Message](TForm&) {
            ASSERT_EQ(Errors.size(), 1u) << Message;
            EXPECT_NE(Errors[0].find(Message), std::string::npos) << Errors[0];
            Errors.clear();
        });
        SeePage(User, Page);
    };
    Refused("Main", "name of the file");
    User.Type("EdtFormStorage", "taken.lng");
    User.Do([](TForm& Form) { Wizard(Form).CbxMainForm->SetItemIndex(-1); });
    Refused("Main", "main form");
    User.Do([](TForm& Form) {
        EXPECT_EQ(Wizard(Form).StartNote->ActivePage(), Wizard(Form).TabChoices);
        EXPECT_TRUE(Wizard(Form).CbxMainForm->Focused());
        Wizard(Form).CbxMainForm->SetItemIndex(0);
    });
    User.Click("BtnNext").Click("BtnNext");
    Refused("Languages", "at least one language");
    Check(User, "Swedish, Sweden");
    Refused("Languages", "taken.lng");
    std::map<std::string, std::string> Edited;
    User.Do([&](TForm& Form) {
        Wizard(Form).RadioStorage1->SetChecked(true);
        Folder.Write("MainForm.dfm", std::string(MainDfm) + "\r\n");
        Edited = Folder.Files();
    });
    Refused("Languages", "MainForm.dfm");
    User.Click("BtnCancel");
    EXPECT_EQ(Run(User), mrCancel);
    EXPECT_EQ(Folder.Files(), Edited);
}

TEST_F(ObxWizard, ReadOnlyFilesAreNamed)
{
    WriteEditor();
    const std::string Name = Folder.Name("MainForm.dfm");
    const std::filesystem::path Path(std::u8string(Name.begin(), Name.end()));
    std::filesystem::permissions(Path, std::filesystem::perms::owner_read);
    if (std::ofstream(Path, std::ios::app).is_open())
        GTEST_SKIP() << "this user may write to read-only files";
    const auto Before = Folder.Files();
    TFormUser User;
    User.Click("BtnNext").Click("BtnNext");
    Check(User, "Swedish, Sweden");
    User.Click("BtnNext").Click("BtnCancel");
    EXPECT_EQ(Run(User), mrCancel);
    ASSERT_EQ(Errors.size(), 1u);
    EXPECT_NE(Errors[0].find("MainForm.dfm"), std::string::npos) << Errors[0];
    Errors.clear();
    EXPECT_EQ(Folder.Files(), Before);
    std::filesystem::permissions(Path, std::filesystem::perms::owner_all);
}

TEST_F(ObxWizard, DamagedFormsAreNamedUntilTheyAreRepaired)
{
    WriteEditor();
    Folder.Write("MainForm.dfm", "object MainForm: TMainForm\n  Caption = 'open\nend\n");
    Folder.Write("Broken.pas", "unit Broken;\ninterface\nresourcestring\n  A = 'open\n");
    Folder.Write("editor.obp", Folder.Read("editor.obp") + "[Units]\nBroken.pas\n");
    TFormUser User;
    User.Click("BtnNext").Do([this](TForm& Form) {
        EXPECT_EQ(Wizard(Form).MemErrors->Lines()->Get(0).find(Folder.Name("MainForm.dfm") + ":2:"), 0u);
        EXPECT_TRUE(IsWindowVisible(Wizard(Form).MemErrors->Handle()));
        EXPECT_FALSE(Wizard(Form).BtnNext->Enabled());
        Folder.Write("MainForm.dfm", MainDfm);
    });
    User.Click("BtnBack").Click("BtnNext").Do([](TForm& Form) {
        EXPECT_FALSE(Wizard(Form).PanErrors->Visible());
        EXPECT_TRUE(Wizard(Form).BtnNext->Enabled());
        EXPECT_EQ(Wizard(Form).CbxMainForm->Text(), "MainForm");
        const TListItem* const Unit = Wizard(Form).LvwFound->FindCaption(0, "Broken");
        ASSERT_NE(Unit, nullptr) << "it declares resource strings";
        EXPECT_EQ(Unit->SubItems()->Get(1), "0");
    });
    User.Click("BtnCancel");
    EXPECT_EQ(Run(User), mrCancel);
}

TEST_F(ObxWizard, WithoutAnEnvironmentTheUserOpensAProject)
{
    Folder.Write("MainForm.dfm", MainDfm);
    Folder.Write(".orbilex-journal", "Orbilex journal 1\nwrite\nold MainForm.dfm\n");
    Folder.Write("MainForm.dfm.old~", MainDfm);
    ToolServices = nullptr;
    TFormUser User;
    User.Do([](TForm& Form) { EXPECT_FALSE(Wizard(Form).BtnNext->Enabled()); });
    User.Click("BtnFolder").Enter("Open folder", "Folder with forms and units:", Folder.Name());
    User.Answer("has been put right", "OK");
    Globalize(User, {"Swedish, Sweden"});
    User.Click("BtnFinish");
    EXPECT_EQ(Run(User), mrOk);
    EXPECT_NE(Folder.Read("MainForm.dfm").find("FormTranslatorSwedish"), std::string::npos);
    EXPECT_FALSE(Folder.Files().contains("MainForm.dfm.old~"));
}

TEST_F(ObxWizard, ClosesWhenTheProjectIsNotSaved)
{
    WriteEditor();
    Environment.MaySave = false;
    TFormUser User;
    EXPECT_EQ(Run(User), mrCancel);
    EXPECT_EQ(Environment.Saved, 1);
}

TEST_F(ObxWizard, HelpIsShown)
{
    static std::string Shown;
    const THelpShell Kept = std::exchange(HelpShell, THelpShell{[](const std::string& Line, int) {
                                                                    Shown = Line;
                                                                    return true;
                                                                },
                                                                [](const std::string& Page) {
                                                                    Shown = ExtractFileName(Page);
                                                                    return true;
                                                                }});
    TFormUser User;
    User.Click("BtnHelp").Click("BtnCancel");
    Run(User);
    HelpShell = Kept;
    EXPECT_EQ(Shown, "obx.html");
}

// What can be seen at the same time: the controls of a page, or of a tab, with those
// around it.
void ForEachView(TObxWizard& Form, const std::function<void(const std::vector<TControl*>&)>& Visit)
{
    const std::function<void(TWinControl&, std::vector<TControl*>&)> Collect = [&](TWinControl& Parent,
                                                                                   auto& Result) {
        for (int I = 0; I < Parent.ControlCount(); ++I) {
            TControl* const Each = Parent.Controls(I);
            if (!Each->Visible())
                continue;
            Result.push_back(Each);
            if (auto* const Inner = dynamic_cast<TWinControl*>(Each))
                Collect(*Inner, Result);
        }
    };
    for (int Page = 0; Page < Form.Notebook->Pages()->Count(); ++Page) {
        Form.Notebook->SetPageIndex(Page);
        for (int Tab = 0; Tab < (Page == 0 ? Form.StartNote->PageCount() : 1); ++Tab) {
            Form.StartNote->SetActivePageIndex(Tab);
            Form.LblImport->SetVisible(Tab == 1);
            Form.LblExport->SetVisible(Tab == 0);
            std::vector<TControl*> Controls;
            Collect(Form, Controls);
            Visit(Controls);
        }
    }
}

// Texts have room and a mnemonic of their own, in all languages.
TEST_F(ObxWizard, HasRoomInEveryLanguage)
{
    std::map<std::string, std::string> English;
    TScreenCanvas Canvas;
    for (const int Locale : {1033, 1053, 1031, 1041, 1025}) {
        SetEditorLocale(Locale);
        const std::unique_ptr<TObxWizard> Form(CreateForm<TObxWizard>(Application));
        Form->PanErrors->SetVisible(true);
        ForEachView(*Form, [&](const std::vector<TControl*>& Controls) {
            std::set<std::string> Mnemonics;
            for (TControl* const Each : Controls) {
                SCOPED_TRACE(Each->Name() + " " + std::to_string(Locale));
                const bool IsLabel = dynamic_cast<TLabel*>(Each);
                const bool IsButton = dynamic_cast<TButtonControl*>(Each);
                const std::string Text = IsLabel || IsButton ? Each->Caption() : "";
                if (Text.empty())
                    continue;
                const std::string Known = English.try_emplace(Each->Name(), Text).first->second;
                EXPECT_EQ(Text == Known, Locale == 1033);
                if (const size_t Mark = Text.find('&'); Mark != Text.npos) {
                    const size_t Length = Text[Mark + 1] < 0 ? 2 : 1;
                    EXPECT_TRUE(Mnemonics.insert(AnsiUpperCase(Text.substr(Mark + 1, Length))).second)
                        << Text;
                }
                EXPECT_EQ(Text.find('&') == Text.npos, Known.find('&') == Known.npos) << Text;
                Canvas.Font()->Assign(dynamic_cast<TLabel*>(Each) ? dynamic_cast<TLabel*>(Each)->Font()
                                                                  : Form->Font());
                TRect Needed{0, 0, Each->Width(), 0};
                Canvas.DrawText(Text, Needed, DT_CALCRECT | (IsLabel ? DT_WORDBREAK : DT_SINGLELINE));
                EXPECT_LE(RectWidth(Needed) + (IsButton ? 16 : 0), Each->Width());
                EXPECT_LE(RectHeight(Needed), Each->Height());
            }
        });
    }
    EXPECT_GT(English.size(), 35u);
}

} // namespace
