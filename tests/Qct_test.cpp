// The dialog translator: what it keeps, whom it follows, and how its procedure
// stands on a window.
#include "Qct/Qct.h"

#include <filesystem>
#include <functional>
#include <memory>

#include <gtest/gtest.h>

#include "Qct/DialogHook.h"
#include "framework/forms/Dialogs.h"
#include "framework/forms/Forms.h"
#include "framework/forms/StandardClasses.h"
#include "framework/rtl/Files.h"
#include "framework/rtl/SysUtils.h"
#include "framework/streaming/ComponentReader.h"
#include "framework/streaming/ComponentWriter.h"
#include "framework/streaming/FormFile.h"

namespace {

constexpr int German = 1031;
constexpr int Swedish = 1053;

class TOwnFindDialog : public TFindDialog {
    OBX_CLASS(TFindDialog)
public:
    using TFindDialog::TFindDialog;
};
class TOwnOpenDialog : public TOpenDialog {
    OBX_CLASS(TOpenDialog)
public:
    using TOpenDialog::TOpenDialog;
    bool Execute() override
    {
        ++Executed;
        if (During)
            During();
        return false;
    }
    std::function<void()> During;
    int Executed = 0;
};
class TOwnDialog : public TCommonDialog {
    OBX_CLASS(TCommonDialog)
public:
    using TCommonDialog::TCommonDialog;
    bool Execute() override
    {
        ++Executed;
        return false;
    }
    int Executed = 0;
};
class TOwnColorDialog : public TColorDialog {
public:
    using TColorDialog::FHandle;
    using TColorDialog::TColorDialog;
};
const TMetaClass& TOwnFindDialog::MetaClass()
{
    static const TMetaClass Class("TOwnFindDialog", &inherited::MetaClass(), CreateComponent<TOwnFindDialog>);
    return Class;
}
const TMetaClass& TOwnOpenDialog::MetaClass()
{
    static const TMetaClass Class("TOwnOpenDialog", &inherited::MetaClass(), CreateComponent<TOwnOpenDialog>);
    return Class;
}

const TMetaClass& TOwnDialog::MetaClass()
{
    static const TMetaClass Class("TOwnDialog", &inherited::MetaClass(), CreateComponent<TOwnDialog>);
    return Class;
}

std::string LinesOf(const TStrings& List)
{
    std::string Result;
    for (int I = 0; I < List.Count(); ++I)
        Result += List.Get(I) + "\n";
    return Result;
}

std::string TextOf(TForm& Form)
{
    TFormDocument Document;
    Document.Root = TComponentWriter(Form).WriteRoot();
    return WriteForm(Document);
}

struct TQctScene : TObject, testing::Test {
    TQctScene()
    {
        RegisterStandardClasses();
        RegisterClass(TCommonDialogTranslator::MetaClass());
        StartQct();
        Application->OnException = {this, &TQctScene::Note};
    }
    ~TQctScene() override { StopQct(); }

    void Note(TObject*, const Exception& Error) { Errors += Error.Message() + "\n"; }

    TForm* AddForm(const std::string& Name)
    {
        auto* const Form = new TForm(Application);
        Form->SetName(Name);
        return Form;
    }
    static TCommonDialogTranslator& Add(TForm* Owner, int Locale, const std::string& Lines = "")
    {
        auto* const Result = new TCommonDialogTranslator(Owner);
        TStringList List;
        List.SetText(Lines);
        Result->SetTranslations(&List);
        Result->SetLocale(Locale);
        return *Result;
    }

    TApplicationScope Scope;
    std::string Errors;
};
using Qct = TQctScene;

// A window that counts the messages that reach its own procedure.
struct TWindow {
    TWindow()
    {
        WNDCLASSA Class{};
        Class.lpfnWndProc = Proc;
        Class.lpszClassName = "QctTestWindow";
        Class.hInstance = GetModuleHandleA(nullptr);
        RegisterClassA(&Class);
        Handle = CreateWindowExA(0, "QctTestWindow", "title", WS_POPUP, 0, 0, 100, 100, nullptr, nullptr,
                                 Class.hInstance, nullptr);
    }
    ~TWindow() { DestroyWindow(Handle); }
    static LRESULT CALLBACK Proc(HWND Window, UINT Msg, WPARAM WParam, LPARAM LParam)
    {
        if (Msg == 1324)
            ++Swallowed;
        if (const auto Once = Msg == WM_SETTEXT ? std::exchange(OnText, nullptr) : nullptr)
            Once();
        return Msg == WM_CLOSE || Msg == WM_CTLCOLORDLG ? 0 : DefWindowProcA(Window, Msg, WParam, LParam);
    }
    std::string Title() const
    {
        char Text[100] = "";
        GetWindowTextA(Handle, Text, sizeof Text);
        return Text;
    }
    WNDPROC Current() const { return reinterpret_cast<WNDPROC>(GetWindowLongPtrA(Handle, GWLP_WNDPROC)); }

    HWND Handle;
    static inline int Swallowed = 0;
    static inline std::function<void()> OnText;
};

// As the framework tells a find dialog that the window gets the focus.
void Focus(TCommonDialog& Dialog, HWND Window, UINT Message = WM_KILLFOCUS)
{
    TMessage Msg;
    Msg.Msg = Message;
    Msg.WParam = reinterpret_cast<WPARAM>(Window);
    DialogMessageHook(Dialog.ClassType())(Dialog, Msg);
}

} // namespace

TEST_F(Qct, ClassesAreRegisteredOneByOne)
{
    const struct {
        const TMetaClass* Class;
        TDialogMessageHook Expected; // null: refused
    } Cases[] = {
        {nullptr, nullptr},
        {&TForm::MetaClass(), nullptr},
        {&TOpenDialog::MetaClass(), &TCommonDlgHook::MessageHook},
        {&TOwnOpenDialog::MetaClass(), &TCommonDlgHook::MessageHook},
        {&TReplaceDialog::MetaClass(), &TFindDlgHook::MessageHook},
        {&TOwnFindDialog::MetaClass(), &TFindDlgHook::MessageHook},
    };
    const TDialogMessageHook Default = DialogMessageHook(TSaveDialog::MetaClass());
    for (const auto& Case : Cases) {
        EXPECT_EQ(RegisterDialogClass(Case.Class), Case.Expected != nullptr);
        EXPECT_FALSE(RegisterDialogClass(Case.Class)) << "twice";
        if (Case.Expected) {
            EXPECT_EQ(DialogMessageHook(*Case.Class), Case.Expected) << Case.Class->ClassName();
        }
    }
    EXPECT_EQ(DialogMessageHook(TSaveDialog::MetaClass()), Default) << "a descendant";
    EXPECT_EQ(DialogMessageHook(TFindDialog::MetaClass()), Default) << "an ancestor";
    EXPECT_FALSE(UnRegisterDialogClass(&TSaveDialog::MetaClass()));
    EXPECT_TRUE(UnRegisterDialogClass(&TOpenDialog::MetaClass()));
    EXPECT_EQ(DialogMessageHook(TOpenDialog::MetaClass()), Default);
    EXPECT_EQ(DialogMessageHook(TOwnOpenDialog::MetaClass()), &TCommonDlgHook::MessageHook);
    StopQct();
    EXPECT_TRUE(ClassRegs.empty());
    EXPECT_EQ(DialogMessageHook(TOwnFindDialog::MetaClass()), Default);
}

TEST_F(Qct, LoadingRegistersTheDialogsInReach)
{
    TForm* const Form = AddForm("Form1");
    TForm* const Other = AddForm("Form2");
    new TOpenDialog(Form);
    new TOpenDialog(Form);
    new TFontDialog(Other);
    TCommonDialogTranslator& Translator = Add(Form, Swedish);
    Translator.Loaded();
    EXPECT_EQ(ClassRegs,
              (std::vector<const TMetaClass*>{&TOpenDialog::MetaClass(), &TFontDialog::MetaClass()}));
    StopQct();
    Translator.SetDesigning(true);
    Translator.Loaded();
    EXPECT_EQ(ClassRegs, (std::vector<const TMetaClass*>{&TOpenDialog::MetaClass()}))
        << "its own form's alone";
}

// One language a form, the same language on all forms; the current one is always
// one that is alive.
TEST_F(Qct, SwitchingTakesPeersAlong)
{
    TForm* const First = AddForm("First");
    TForm* const Second = AddForm("Second");
    TCommonDialogTranslator& Sv1 = Add(First, Swedish);
    TCommonDialogTranslator& De1 = Add(First, German);
    TCommonDialogTranslator& Sv2 = Add(Second, Swedish);
    EXPECT_EQ(qctInstance, &Sv2) << "the newest";
    for (TCommonDialogTranslator* const Each : {&Sv1, &De1, &Sv2}) {
        EXPECT_TRUE(Each->Translate()) << "from the beginning";
        Each->InternalTranslate(false);
    }
    for (TCommonDialogTranslator* const Each : {&Sv1, &De1, &Sv2})
        Each->Loaded();
    Sv1.SetTranslate(true);
    EXPECT_TRUE(Sv1.Translate() && Sv2.Translate() && !De1.Translate());
    EXPECT_EQ(qctInstance, &Sv2);
    De1.SetTranslate(true);
    EXPECT_TRUE(!Sv1.Translate() && !Sv2.Translate() && De1.Translate());
    EXPECT_EQ(qctInstance, &De1);
    delete &De1;
    EXPECT_EQ(qctInstance, &Sv2);
    Sv1.SetTranslate(true);
    delete Second;
    EXPECT_EQ(qctInstance, &Sv1);
    EXPECT_FALSE(Sv1.Translate()) << "switched off with its peer";
    delete First;
    EXPECT_EQ(qctInstance, nullptr);
}

TEST_F(Qct, TheProcedureComesAndGoes)
{
    TForm* const Form = AddForm("Form1");
    auto* const Dialog = new TFindDialog(Form);
    TCommonDialogTranslator& Translator = Add(
        Form, Swedish, "TFindDialog.Caption='Sök'\r\nTOpenDialog.Caption='Öppna'\r\nTFindDialog.Width=120");
    Translator.Loaded();
    TWindow Window, Second;
    const WNDPROC Own = Window.Current();
    Focus(*Dialog, Window.Handle);
    EXPECT_NE(OldWndProc, nullptr);
    EXPECT_EQ(OwnerClassName, "TFindDialog");
    Focus(*Dialog, Second.Handle);
    EXPECT_EQ(Second.Current(), Own) << "one at a time";

    EXPECT_EQ(SendMessageA(Window.Handle, 1324, 0, 0), 1);
    EXPECT_EQ(TWindow::Swallowed, 0);
    for (const UINT Message : {WM_ACTIVATE, WM_CTLCOLORDLG, WM_COMMAND}) {
        SetWindowTextA(Window.Handle, "title");
        SendMessageA(Window.Handle, Message, 0x401, 0);
        EXPECT_EQ(Window.Title(), "Sök") << Message;
    }
    SetWindowTextA(Window.Handle, "title");
    SendMessageA(Window.Handle, WM_COMMAND, 0x402, 0);
    EXPECT_EQ(Window.Title(), "title");

    SendMessageA(Window.Handle, WM_CLOSE, 0, 0);
    EXPECT_EQ(OldWndProc, nullptr);
    EXPECT_EQ(Window.Current(), Own);
    EXPECT_TRUE(Closing);
    Focus(*Dialog, Second.Handle);
    EXPECT_EQ(Second.Current(), Own) << "still closing";
    Focus(*Dialog, nullptr, WM_CREATE);
    Focus(*Dialog, Second.Handle);
    EXPECT_NE(Second.Current(), Own) << "the next one";
    SendMessageA(Second.Handle, WM_CTLCOLORDLG, 0, 0);
    EXPECT_EQ(Second.Title(), "Sök");
    StopQct();
    EXPECT_EQ(Second.Current(), Own);
    StartQct();
    EXPECT_EQ(Errors, "");
}

// A message box of a handler, for instance, may be active while the dialog is shown.
TEST_F(Qct, OnlyTheDialogItselfIsTaken)
{
    TOwnColorDialog Dialog(AddForm("Form1"));
    RegisterDialogClass(&TColorDialog::MetaClass());
    TWindow Own, Box;
    Dialog.FHandle = Own.Handle;
    for (const TWindow* const Active : {&Box, &Own}) {
        ShowWindow(Active->Handle, SW_SHOW);
        SetActiveWindow(Active->Handle);
        ASSERT_EQ(GetActiveWindow(), Active->Handle);
        Focus(Dialog, nullptr, WM_ENTERIDLE);
        EXPECT_EQ(OldWndProc != nullptr, Active == &Own);
    }
}

// An error in a dialog came again with every painting.
TEST_F(Qct, AMalformedLineIsToldOnceForEachDialog)
{
    TForm* const Form = AddForm("Form1");
    auto* const Dialog = new TFindDialog(Form);
    Add(Form, Swedish, "TFindDialog.Caption='Sök'\r\nTFindDialog.Left[1]=many\r\nTFindDialog.Width=120")
        .Loaded();
    for (int Round = 1; Round <= 2; ++Round) {
        TWindow Window;
        Errors.clear();
        Focus(*Dialog, nullptr, WM_CREATE);
        Focus(*Dialog, Window.Handle);
        for (int I = 0; I < 3; ++I)
            SendMessageA(Window.Handle, WM_CTLCOLORDLG, 0, 0);
        EXPECT_EQ(Errors, "'many' is not a valid integer value\n");
        EXPECT_EQ(Window.Title(), "Sök") << "the lines before stay applied";
        RECT Place{};
        GetWindowRect(Window.Handle, &Place);
        EXPECT_EQ(Place.right - Place.left, 100);
        SendMessageA(Window.Handle, WM_CLOSE, 0, 0);
    }
}

TEST_F(Qct, WhichLinesAreApplied)
{
    const struct {
        const char* Lines;
        bool Empty;
        const char* Title;
    } Cases[] = {
        {"TFindDialog.Caption='It''s'#33", false, "It's!"},
        {"TFindDialog.Caption=bare", false, "bare"},
        {"TFindDialog.Caption='a=b'", false, "a=b"},
        {"TFindDialog.Caption='cut'#0'here'", false, "cut"},
        {"TFindDialog.Caption=", false, "title"},
        {"TFindDialog.Caption=''", false, "title"},
        {"TFindDialog.Caption=''", true, ""},
        {"tfinddialog.Caption='x'", false, "title"},
        {"TFindDialogs.Caption='x'", false, "title"},
        {"TFindDialog.Caption", false, "title"},
    };
    TForm* const Form = AddForm("Form1");
    OwnerClassName = "TFindDialog";
    for (const auto& Case : Cases) {
        TWindow Window;
        TCommonDialogTranslator& Translator = Add(Form, 0, Case.Lines);
        Translator.SetTranslateEmpty(Case.Empty);
        Translator.TranslateDialog(Window.Handle);
        EXPECT_EQ(Window.Title(), Case.Title) << Case.Lines;
        SetWindowTextA(Window.Handle, "title");
        Translator.InternalTranslate(false);
        Translator.TranslateDialog(Window.Handle);
        EXPECT_EQ(Window.Title(), "title") << "switched off";
    }
}

struct THandlers : TObject {
    void Skip(TObject*, bool& Skip)
    {
        Log += "asked ";
        Skip = Skips;
    }
    void Done(TObject*) { Log += "done "; }
    void Destroy(TObject* Sender, bool&) { delete Sender; }

    bool Skips = false;
    std::string Log;
};

TEST_F(Qct, HandlersMaySkipAndDestroy)
{
    THandlers Handlers;
    TForm* const Form = AddForm("Form1");
    TCommonDialogTranslator& Translator = Add(Form, 0, "TFindDialog.Caption='Sök'");
    Translator.OnTranslate = {&Handlers, &THandlers::Skip};
    Translator.OnTranslated = {&Handlers, &THandlers::Done};
    TWindow Window;
    OwnerClassName = "TOpenDialog";
    Translator.TranslateDialog(Window.Handle);
    EXPECT_EQ(Handlers.Log, "") << "nothing to do";
    OwnerClassName = "TFindDialog";
    Handlers.Skips = true;
    Translator.TranslateDialog(Window.Handle);
    EXPECT_EQ(Handlers.Log + Window.Title(), "asked title");
    Handlers.Skips = false;
    Translator.TranslateDialog(Window.Handle);
    EXPECT_EQ(Handlers.Log + Window.Title(), "asked asked done Sök");
    Translator.OnTranslate = {&Handlers, &THandlers::Destroy};
    Translator.TranslateDialog(Window.Handle);
    EXPECT_EQ(qctInstance, nullptr);

    auto* Second = &Add(Form, 0, "TFindDialog.Caption='Sök'\r\nTFindDialog.Width=120");
    Second->OnTranslated = {&Handlers, &THandlers::Done};
    SetWindowTextA(Window.Handle, "title");
    TWindow::OnText = [&] { delete std::exchange(Second, nullptr); };
    Handlers.Log.clear();
    Second->TranslateDialog(Window.Handle);
    EXPECT_EQ(qctInstance, nullptr) << "destroyed by what a control does with its text";
    EXPECT_EQ(Handlers.Log, "");
}

TEST_F(Qct, AHandlerMayCloseTheDialogAndShowAnother)
{
    TForm* const Form = AddForm("Form1");
    auto* const Dialog = new TFindDialog(Form);
    Add(Form, 0, "TFindDialog.Caption='Sök'").Loaded();
    TWindow First, Second;
    Focus(*Dialog, First.Handle);
    TWindow::OnText = [&] {
        SendMessageA(First.Handle, WM_CLOSE, 0, 0);
        Focus(*Dialog, nullptr, WM_CREATE);
        Focus(*Dialog, Second.Handle);
        SendMessageA(Second.Handle, WM_ACTIVATE, WA_ACTIVE, 0);
    };
    SendMessageA(First.Handle, WM_ACTIVATE, WA_ACTIVE, 0);
    EXPECT_EQ(Second.Title(), "Sök");
}

TEST_F(Qct, ScansOfOtherKindsOnlyRegister)
{
    TForm* const Form = AddForm("Form1");
    TOwnDialog Dialog(Form);
    TCommonDialogTranslator& Translator = Add(Form, Swedish);
    Add(Form, German);
    TStringList Lines;
    EXPECT_EQ(Translator.GetDlgProps(&Dialog, &Lines), 0);
    EXPECT_EQ(Dialog.Executed + Lines.Count(), 0);
    EXPECT_EQ(qctInstance, &Translator);
    EXPECT_EQ(ClassRegs, (std::vector<const TMetaClass*>{&TOwnDialog::MetaClass()}));
}

// It ended the outer scan, whose dialog then waited for the user.
TEST_F(Qct, AScanWithinAScanIsRefused)
{
    TForm* const Form = AddForm("Form1");
    TOwnOpenDialog Outer(Form), Inner(Form);
    TCommonDialogTranslator& Translator = Add(Form, Swedish);
    TCommonDialogTranslator& Other = Add(Form, German);
    TStringList Lines;
    Outer.During = [&] {
        Other.GetDlgProps(&Inner, &Lines);
        EXPECT_TRUE(DebugDlg);
        EXPECT_EQ(qctInstance, &Translator);
    };
    Translator.GetDlgProps(&Outer, &Lines);
    EXPECT_EQ(Outer.Executed, 1);
    EXPECT_EQ(Inner.Executed, 0);
    EXPECT_FALSE(DebugDlg);
}

TEST_F(Qct, FormFilesKeepLinesAndOriginals)
{
    TForm* const Form = AddForm("Form1");
    TCommonDialogTranslator& Translator =
        Add(Form, Swedish, "TOpenDialog.Width=300\nTOpenDialog.Caption='Öppna'");
    Translator.SetName("Dialogs");
    TStringList Originals;
    Originals.SetText("TOpenDialog.Caption='Open'\nTOpenDialog.Caption[2]='It''s'");
    Translator.SetOriginals(&Originals);
    const std::string Text = TextOf(*Form);
    delete Form;
    TForm* const Copy = AddForm("");
    TComponentReader(ReadForm(Text), TUnknownClasses::Refuse).ReadRoot(*Copy);
    auto* const Read = dynamic_cast<TCommonDialogTranslator*>(Copy->FindComponent("Dialogs"));
    ASSERT_NE(Read, nullptr);
    EXPECT_EQ(LinesOf(*Read->Translations()), "TOpenDialog.Caption='Öppna'\nTOpenDialog.Width=300\n");
    EXPECT_EQ(LinesOf(Read->Originals()), LinesOf(Originals));
    EXPECT_EQ(TextOf(*Copy), Text);
}

TEST_F(Qct, FilesKeepOthersLines)
{
    const std::string Folder = (std::filesystem::temp_directory_path() / "QctFiles").string();
    std::filesystem::create_directories(Folder);
    const std::string Name = Folder + "/dialogs.lng";
    ReplaceWholeFile(Name, "#0Form1.TOpenDialog.Caption%-1='old'\r\n"
                           "#0Form1.TOpenDialog.Caption%1031='Öffnen'\r\n"
                           "#0Form1.TOpenDialog.Caption%1053='old'\r\n"
                           "#0Form2.TOpenDialog.Caption%1053='other'\r\n"
                           "Form1.Caption%1053='form'\r\n");
    TForm* const Form = AddForm("Form1");
    TCommonDialogTranslator& Translator =
        Add(Form, Swedish, "TOpenDialog.Caption='Öppna'\nTOpenDialog.Caption[1]='Öppna'");
    TStringList Originals;
    Originals.SetText("TOpenDialog.Caption='Open'\nTOpenDialog.Caption[2]='Cancel'");
    Translator.SetOriginals(&Originals);
    Translator.SaveTo(Name);
    EXPECT_EQ(ReadWholeFile(Name), "#0Form1.TOpenDialog.Caption%-1='Open'\r\n"
                                   "#0Form1.TOpenDialog.Caption%1031='Öffnen'\r\n"
                                   "#0Form1.TOpenDialog.Caption%1053='Öppna'\r\n"
                                   "#0Form1.TOpenDialog.Caption[1]%1053='Öppna'\r\n"
                                   "#0Form2.TOpenDialog.Caption%1053='other'\r\n"
                                   "Form1.Caption%1053='form'\r\n");
    TCommonDialogTranslator& Other = Add(Form, German, "TOpenDialog.Width=300");
    EXPECT_TRUE(Other.LoadFrom(Name));
    EXPECT_EQ(LinesOf(*Other.Translations()), "TOpenDialog.Caption='Öffnen'\nTOpenDialog.Width=300\n");
    EXPECT_EQ(LinesOf(Other.Originals()), "TOpenDialog.Caption='Open'\n");
    EXPECT_FALSE(Other.LoadFrom(Folder + "/missing.lng"));
    ReplaceWholeFile(Name, "#0Form1.TOpenDialog.Caption%1O31='x'\r\n");
    EXPECT_THROW(Other.LoadFrom(Name), EConvertError);
    EXPECT_EQ(Other.Translations()->Count(), 2);

    const std::string Dictionary = Folder + "/dialogs.txt";
    Translator.TranslateTo(Dictionary);
    EXPECT_EQ(ReadWholeFile(Dictionary), "Open\tÖppna\r\n");
    ReplaceWholeFile(Dictionary, "Cancel\tAvbryt\r\nOpen\tÖppna fil\r\n");
    EXPECT_TRUE(Translator.TranslateFrom(Dictionary));
    EXPECT_EQ(LinesOf(*Translator.Translations()),
              "TOpenDialog.Caption='Öppna fil'\nTOpenDialog.Caption[1]='Öppna'\n");
    EXPECT_FALSE(Translator.TranslateFrom(Folder + "/missing.txt"));
    Originals.SetText("TOpenDialog.Caption='Open'\nTOpenDialog.Caption[1]='Open'");
    Translator.SetOriginals(&Originals);
    ReplaceWholeFile(Dictionary, "Open\tVälj\r\n");
    EXPECT_TRUE(Translator.TranslateFrom(Dictionary));
    EXPECT_EQ(LinesOf(*Translator.Translations()),
              "TOpenDialog.Caption='Öppna fil'\nTOpenDialog.Caption[1]='Välj'\n")
        << "the last one of that text";
    std::filesystem::remove_all(Folder);
}
