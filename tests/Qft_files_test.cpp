// The form translator among forms and files: peers, storage, saving and loading.
#include <filesystem>
#include <tuple>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "Qft/Qft.h"
#include "framework/design/ToolServices.h"
#include "framework/forms/Forms.h"
#include "framework/forms/Menus.h"
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

// A handler breaks off a reading: the list being filled is gone then.
TEST_F(FormFiles, ForgetsListsThatAreGone)
{
    struct TFailure : TObject {
        void Go(TObject*, TComponent*, TStrings*, bool&) { throw EConvertError("no"); }
    } Failure;
    ReplaceWholeFile(Name, "text\tTitel\r\n");
    using TDeed = void (*)(TFormTranslator&, const std::string&);
    const TDeed Deeds[] = {
        [](TFormTranslator& Translator, const std::string& File) { Translator.SaveTo(File); },
        [](TFormTranslator& Translator, const std::string& File) { Translator.TranslateTo(File); },
        [](TFormTranslator& Translator, const std::string& File) { Translator.TranslateFrom(File); },
    };
    TFormTranslator* const Translator = AddForm(Application, "F1", 1053, "ett");
    Translator->OnTranslateComponent = {&Failure, &TFailure::Go};
    for (const TDeed Deed : Deeds) {
        const std::string Before = Content();
        const int Cursor = Screen->Cursor();
        EXPECT_THROW(Deed(*Translator, Name), EConvertError);
        int Index = 0;
        EXPECT_FALSE(Translator->WantTranslate("Caption", Index));
        EXPECT_EQ(Screen->Cursor(), Cursor);
        EXPECT_EQ(Content(), Before);
    }
}

using TMessages = std::vector<std::tuple<UINT, WPARAM, LPARAM>>;

// Watches what is sent to a window, but for what follows from it.
class TSpy {
public:
    explicit TSpy(HWND Window) : FWindow(Window), FFormer(Replace(&Proc)) { Current = this; }
    ~TSpy()
    {
        if (IsWindow(FWindow))
            Replace(FFormer);
    }
    TSpy(const TSpy&) = delete;
    TSpy& operator=(const TSpy&) = delete;

    TMessages Take() { return std::exchange(FSeen, {}); }

    TComponent* Victim = nullptr; // destroyed by the first message

private:
    WNDPROC Replace(WNDPROC Value)
    {
        return reinterpret_cast<WNDPROC>(
            SetWindowLongPtrA(FWindow, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Value)));
    }
    static LRESULT CALLBACK Proc(HWND Window, UINT Message, WPARAM WParam, LPARAM LParam)
    {
        TSpy& Spy = *Current;
        const bool Counts = Message == WM_MDISETMENU || Message == WM_MDIREFRESHMENU || Message == WM_SIZE;
        if (Counts && Spy.FDepth == 0)
            Spy.FSeen.emplace_back(Message, WParam, LParam);
        ++Spy.FDepth;
        LRESULT Result = 0;
        if (Counts && Spy.Victim)
            delete std::exchange(Spy.Victim, nullptr);
        else
            Result = CallWindowProcA(Spy.FFormer, Window, Message, WParam, LParam);
        --Spy.FDepth;
        return Result;
    }

    inline static TSpy* Current = nullptr;
    HWND FWindow;
    WNDPROC FFormer;
    int FDepth = 0;
    TMessages FSeen;
};

// A missing message leaves old texts in the window list and the frame's title; a
// doubled one flickers.
TEST_F(FormFiles, RefreshesFramesAndDocuments)
{
    TForm* Frame = nullptr;
    Application->CreateForm(Frame);
    Frame->SetFormStyle(fsMDIForm);
    auto* const Menu = new TMainMenu(Frame);
    auto* const Windows = new TMenuItem(Menu);
    Menu->Items()->Add(Windows);
    Frame->SetMenu(Menu);
    Frame->SetWindowMenu(Windows);
    Frame->Show();
    auto* const Child = new TForm(Application);
    Child->SetFormStyle(fsMDIChild);
    Application->ProcessMessages();
    const auto Messages = [](TForm* Form, HWND Watched) {
        auto* const Translator = new TFormTranslator(Form);
        Translator->Translations()->Add("Caption='Ja'");
        TSpy Spy(Watched);
        TSortList Present;
        Translator->TranslateForm(&Present, true);
        EXPECT_EQ(Spy.Take(), TMessages()) << "nothing for reading";
        Translator->Loaded();
        const TMessages Result = Spy.Take();
        Translator->SetTranslate(false);
        EXPECT_EQ(Spy.Take(), Result) << "the same for restoring";
        return Result;
    };
    const auto Handle = reinterpret_cast<UINT_PTR>(Windows->Handle());
    EXPECT_EQ(Messages(Frame, Frame->ClientHandle()),
              (TMessages{{WM_MDISETMENU, 1, static_cast<LPARAM>(MAKELPARAM(0, Handle))},
                         {WM_MDIREFRESHMENU, 1, 0}}));
    EXPECT_EQ(Messages(Child, Child->Handle()), TMessages()) << "not maximized";
    Child->SetWindowState(wsMaximized);
    const LPARAM Size = Child->ClientWidth() + Child->ClientHeight() * LPARAM{65536};
    const TMessages Sizes = {{WM_SIZE, SIZE_RESTORED, Size}, {WM_SIZE, SIZE_MAXIMIZED, Size}};
    EXPECT_EQ(Messages(Child, Child->Handle()), Sizes);
    EXPECT_EQ(Child->WindowState(), wsMaximized);

    auto* const Translator = new TFormTranslator(Child);
    Translator->Translations()->Add("Caption='Ja'");
    Translator->SetTranslate(false);
    TSpy Spy(Child->Handle());
    Spy.Victim = Child;
    Translator->SetTranslate(true);
    EXPECT_EQ(Spy.Take().size(), 1u) << "the form is gone";
    Frame->SetWindowMenu(nullptr);
    EXPECT_EQ(Messages(Frame, Frame->ClientHandle()), (TMessages{{WM_MDIREFRESHMENU, 1, 0}}));
}

// Forms are translated before they have windows, and where there is no frame.
TEST_F(FormFiles, TranslatesDocumentsWithoutWindows)
{
    TFormTranslator* const Translator = AddForm(Application, "F1", 1053, "ett");
    auto* const Form = static_cast<TForm*>(Translator->Owner());
    Form->SetLoading(true);
    for (const TFormStyle Style : {fsMDIForm, fsMDIChild}) {
        Form->SetFormStyle(Style);
        Form->SetWindowState(wsMaximized);
        Translator->SetTranslate(true);
        EXPECT_EQ(CaptionOf(Translator), "ett");
        EXPECT_FALSE(Form->HandleAllocated());
        Translator->SetTranslate(false);
    }
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
