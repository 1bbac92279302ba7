// The messages of the system's dialogs, and what handlers may do to them.
#include <map>
#include <memory>

#include "tests/DialogUser.h"

namespace {

// A dialog class of a program's own.
class TOwnColorDialog : public TColorDialog {
    OBX_CLASS(TColorDialog)
public:
    using TColorDialog::TColorDialog;
};

const TMetaClass& TOwnColorDialog::MetaClass()
{
    static const TMetaClass Class("TOwnColorDialog", &TColorDialog::MetaClass(),
                                  CreateComponent<TOwnColorDialog>);
    return Class;
}

class TOwnFindDialog : public TFindDialog {
    OBX_CLASS(TFindDialog)
public:
    using TFindDialog::TFindDialog;
};

const TMetaClass& TOwnFindDialog::MetaClass()
{
    static const TMetaClass Class("TOwnFindDialog", &TFindDialog::MetaClass(),
                                  CreateComponent<TOwnFindDialog>);
    return Class;
}

// What an entry for a class has seen.
struct TSeen {
    int Messages = 0;
    bool Announced = false; // WM_WINDOWPOSCHANGED, while the dialog is active
    bool PaintedAfter = false;
    bool Idle = false;
    int Created = 0;
    int LostFocus = 0; // to the dialog itself
};

std::map<std::string, TSeen> Seen;
TSeen* Watched = nullptr;
WNDPROC OldProc = nullptr;

LRESULT CALLBACK WatchProc(HWND Window, UINT Msg, WPARAM WParam, LPARAM LParam)
{
    if (Msg == WM_CTLCOLORDLG)
        Watched->PaintedAfter = true;
    return CallWindowProcA(OldProc, Window, Msg, WParam, LParam);
}

// Puts itself before the dialog's window procedure as soon as it can, and gives up
// when the dialog has come to rest.
bool WatchModal(TCommonDialog& Dialog, TMessage& Msg)
{
    TSeen& Now = Seen[Dialog.ClassName()];
    ++Now.Messages;
    if (Msg.Msg == WM_WINDOWPOSCHANGED) {
        EXPECT_EQ(GetActiveWindow(), Dialog.Handle());
        if (!std::exchange(Now.Announced, true)) {
            Watched = &Now;
            OldProc = reinterpret_cast<WNDPROC>(
                SetWindowLongPtrA(Dialog.Handle(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&WatchProc)));
        }
    } else if (Msg.Msg == WM_ENTERIDLE) {
        if (!std::exchange(Now.Idle, true))
            Press(Dialog.Handle(), IDCANCEL);
        EXPECT_EQ(reinterpret_cast<HWND>(Msg.LParam), Dialog.Handle());
    }
    return Dialog.TCommonDialog::MessageHook(Msg);
}

bool WatchFind(TCommonDialog& Dialog, TMessage& Msg)
{
    TSeen& Now = Seen[Dialog.ClassName()];
    ++Now.Messages;
    if (Msg.Msg == WM_CREATE)
        ++Now.Created;
    if (Msg.Msg == WM_KILLFOCUS && reinterpret_cast<HWND>(Msg.WParam) == Dialog.Handle()) {
        ++Now.LostFocus;
        EXPECT_EQ(TextOf(Dialog.Handle()).substr(0, 4), "Find");
        EXPECT_FALSE(IsWindowVisible(Dialog.Handle()));
        EXPECT_NE(GetDlgItem(Dialog.Handle(), IDOK), nullptr);
    }
    return dynamic_cast<TFindDialog&>(Dialog).TFindDialog::MessageHook(Msg);
}

// An entry for a class as long as it lives.
class THookScope {
public:
    THookScope(const TMetaClass& Class, TDialogMessageHook Hook)
        : FClass(Class), FOld(DialogMessageHook(Class))
    {
        SetDialogMessageHook(Class, Hook);
    }
    ~THookScope()
    {
        SetDialogMessageHook(FClass, FOld);
        Seen.clear();
    }
    THookScope(const THookScope&) = delete;
    THookScope& operator=(const THookScope&) = delete;

private:
    const TMetaClass& FClass;
    TDialogMessageHook FOld;
};

TEST_F(TDialogs, MessagesOfModalDialogsReachTheEntryOfTheirClass)
{
    const bool Printers = TPrinterContext(true).Handle() != nullptr;
    const struct {
        const TMetaClass& Class;
        bool Possible;
    } Cases[] = {
        {TOpenDialog::MetaClass(), true},        {TSaveDialog::MetaClass(), true},
        {TOpenPictureDialog::MetaClass(), true}, {TColorDialog::MetaClass(), true},
        {TOwnColorDialog::MetaClass(), true},    {TFontDialog::MetaClass(), true},
        {TPrintDialog::MetaClass(), Printers},   {TPrinterSetupDialog::MetaClass(), Printers},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Class.ClassName());
        if (!Case.Possible)
            continue;
        const std::unique_ptr<TCommonDialog> Dialog(&Make(Case.Class));
        {
            const THookScope Hook(Case.Class, &WatchModal);
            EXPECT_FALSE(ExecuteWith(*Dialog, {}));
            const TSeen& Mine = Seen[Case.Class.ClassName()];
            EXPECT_TRUE(Mine.Announced);
            EXPECT_TRUE(Mine.PaintedAfter);
            EXPECT_TRUE(Mine.Idle);
            EXPECT_EQ(Seen.size(), 1U);
        }
        EXPECT_FALSE(ExecuteWith(*Dialog, {Pressing(IDCANCEL)}));
        EXPECT_TRUE(Seen.empty()) << "the entry was put back";
    }
}

TEST_F(TDialogs, EntriesAreNotInherited)
{
    const THookScope Hook(TColorDialog::MetaClass(), &WatchModal);
    ExecuteWith(Make<TOwnColorDialog>(), {Pressing(IDCANCEL)});
    EXPECT_TRUE(Seen.empty());
    EXPECT_NE(DialogMessageHook(TColorDialog::MetaClass()), DialogMessageHook(TOwnColorDialog::MetaClass()));
}

TEST_F(TDialogs, FindDialogsShowTheirWindowToTheEntryFirst)
{
    const THookScope Hook(TFindDialog::MetaClass(), &WatchFind);
    const THookScope OwnHook(TOwnFindDialog::MetaClass(), &WatchFind);
    auto& Find = Make<TFindDialog>();
    auto& Own = Make<TOwnFindDialog>();
    for (int Times = 1; Times <= 3; ++Times) {
        EXPECT_TRUE(Find.Execute());
        EXPECT_TRUE(Own.Execute());
        EXPECT_TRUE(Find.Execute()) << "is shown already";
        for (TFindDialog* const Dialog : {&Find, static_cast<TFindDialog*>(&Own)}) {
            EXPECT_TRUE(IsWindowVisible(Dialog->Handle()));
            EXPECT_EQ(Seen[Dialog->ClassName()].Created, Times);
            EXPECT_EQ(Seen[Dialog->ClassName()].LostFocus, Times);
        }
        Own.CloseDialog();
        SendMessageA(Find.Handle(), WM_CLOSE, 0, 0);
        Application->ProcessMessages();
        EXPECT_EQ(Find.Handle(), nullptr);
    }
}

bool SwallowHelp(TCommonDialog& Dialog, TMessage& Msg)
{
    return Msg.Msg == RegisterWindowMessageA(HELPMSGSTRINGA) || Dialog.MessageHook(Msg);
}

TEST_F(TDialogs, EntriesCanSwallowMessages)
{
    const THookScope Hook(TColorDialog::MetaClass(), &SwallowHelp);
    Application->OnHelp = {this, &TDialogs::Help};
    auto& Dialog = Make<TColorDialog>();
    Dialog.SetOptions({cdShowHelp});
    Dialog.SetHelpContext(5);
    ExecuteWith(Dialog, {Pressing(pshHelp), Pressing(IDCANCEL)});
    EXPECT_EQ(TakeEvents(), (TNames{"show", "close"}));
}

// A handler that destroys its dialog, or the form that has it, ends the dialog;
// nothing of either is used afterwards.
TEST_F(TDialogs, HandlersMayDestroyModalDialogs)
{
    const struct {
        const char* Name;
        const TMetaClass& Class;
        void (*Arm)(TCommonDialog&, TDialogs&);
        std::deque<TDialogUser::TStep> Steps;
    } Cases[] = {
        {"color, OnShow",
         TColorDialog::MetaClass(),
         [](TCommonDialog& Dialog, TDialogs& Scene) {
             Dialog.OnShow = {&Scene, &TDialogs::Destroy};
         },
         {}},
        {"font, form in OnShow",
         TFontDialog::MetaClass(),
         [](TCommonDialog& Dialog, TDialogs& Scene) {
             Dialog.OnShow = {&Scene, &TDialogs::DestroyForm};
         },
         {}},
        {"open, OnShow",
         TOpenDialog::MetaClass(),
         [](TCommonDialog& Dialog, TDialogs& Scene) {
             Dialog.OnShow = {&Scene, &TDialogs::Destroy};
         },
         {}},
        {"open, OnFolderChange",
         TOpenDialog::MetaClass(),
         [](TCommonDialog& Dialog, TDialogs& Scene) {
             dynamic_cast<TOpenDialog&>(Dialog).OnFolderChange = {&Scene, &TDialogs::Destroy};
         },
         {}},
        {"open, OnCanClose",
         TOpenDialog::MetaClass(),
         [](TCommonDialog& Dialog, TDialogs& Scene) {
             dynamic_cast<TOpenDialog&>(Dialog).OnCanClose = {&Scene, &TDialogs::DestroyAndRefuse};
         },
         {[](HWND Window) {
             SetDlgItemTextA(Window, cmb13, "a");
             Press(Window, IDOK);
         }}},
        {"save, form in OnClose",
         TSaveDialog::MetaClass(),
         [](TCommonDialog& Dialog, TDialogs& Scene) {
             Dialog.OnClose = {&Scene, &TDialogs::DestroyForm};
         },
         {Pressing(IDCANCEL)}},
        {"font, OnApply",
         TFontDialog::MetaClass(),
         [](TCommonDialog& Dialog, TDialogs& Scene) {
             auto& Font = dynamic_cast<TFontDialog&>(Dialog);
             Font.SetOptions({fdApplyButton});
             Font.OnApply = {&Scene, &TDialogs::DestroyApplied};
         },
         {Pressing(psh3)}},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        if (!Form) {
            Form = new TForm(Application);
            Form->Show();
        }
        TCommonDialog* const Dialog = &Make(Case.Class);
        Case.Arm(*Dialog, *this);
        EXPECT_FALSE(ExecuteWith(*Dialog, Case.Steps));
        EXPECT_EQ(Application->ModalLevel(), 0);
        EXPECT_EQ(Screen->CustomFormCount(), Form ? 1 : 0);
        TakeEvents();
    }
}

TEST_F(TDialogs, HandlersMayDestroyFindDialogs)
{
    const struct {
        const char* Name;
        void (TDialogs::*Handler)(TObject*);
        bool FormGoes;
    } Cases[] = {
        {"closed", &TDialogs::CloseFind, false},
        {"destroyed", &TDialogs::Destroy, false},
        {"form destroyed", &TDialogs::DestroyForm, true},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        auto& Dialog = Make<TFindDialog>();
        Dialog.SetFindText("x");
        Dialog.OnFind = {this, Case.Handler};
        EXPECT_TRUE(Dialog.Execute());
        const HWND Window = Dialog.Handle();
        const HWND Owner = GetWindow(Window, GW_OWNER);
        Press(Window, IDOK);
        Application->ProcessMessages();
        EXPECT_FALSE(IsWindow(Window));
        EXPECT_EQ(Form == nullptr, Case.FormGoes);
        EXPECT_EQ(IsWindow(Owner) != FALSE, Case.Handler == &TDialogs::CloseFind);
        EXPECT_EQ(Application->DialogHandle, nullptr);
    }
    EXPECT_EQ(TakeEvents(), (TNames{"show", "close", "show", "show"}));
}

TEST_F(TDialogs, FindDialogsCloseWithTheirComponentOrForm)
{
    auto* const Dialog = &Make<TFindDialog>();
    Dialog->OnShow = {this, &TDialogs::Destroy};
    EXPECT_FALSE(Dialog->Execute()) << "destroyed while it is made";
    Application->ProcessMessages();
    EXPECT_EQ(Application->DialogHandle, nullptr);

    auto* const Second = &Make<TFindDialog>();
    Second->Execute();
    const HWND Window = Second->Handle();
    delete Second;
    EXPECT_FALSE(IsWindow(Window));

    auto& Again = Make<TFindDialog>();
    Again.OnClose = {this, &TDialogs::Reopen};
    Again.Execute();
    Press(Again.Handle(), IDCANCEL);
    Application->ProcessMessages();
    EXPECT_TRUE(IsWindowVisible(Again.Handle())) << "shown by the handler of OnClose";
    EXPECT_EQ(Application->DialogHandle, Again.Handle());

    auto* const Third = new TReplaceDialog(nullptr);
    Third->Execute();
    DestroyForm(nullptr);
    EXPECT_EQ(Third->Handle(), nullptr) << "its window went with that of the form";
    EXPECT_TRUE(Third->Execute());
    delete Third;
}

TEST_F(TDialogs, ExceptionsOfHandlersGoToTheApplication)
{
    auto& Color = Make<TColorDialog>();
    Color.OnShow = {this, &TDialogs::Throw};
    EXPECT_TRUE(ExecuteWith(Color, {Pressing(IDOK)}));
    EXPECT_EQ(TakeEvents(), (TNames{"error thrown", "close"}));
    auto& Open = Make<TOpenDialog>();
    Open.OnFolderChange = {this, &TDialogs::Throw};
    EXPECT_FALSE(ExecuteWith(Open, {Pressing(IDCANCEL)}));
    EXPECT_EQ(TakeEvents(), (TNames{"show", "error thrown", "close"}));
    auto& Find = Make<TFindDialog>();
    Find.SetFindText("x");
    Find.OnFind = {this, &TDialogs::Throw};
    Find.Execute();
    Press(Find.Handle(), IDOK);
    Application->ProcessMessages();
    EXPECT_EQ(TakeEvents(), (TNames{"show", "error thrown"}));
}

bool DestroyOnCreate(TCommonDialog& Dialog, TMessage& Msg)
{
    if (Msg.Msg != WM_CREATE)
        return Dialog.MessageHook(Msg);
    delete &Dialog;
    return false;
}

// A dialog from a handler of another one: each gets its own messages.
TEST_F(TDialogs, Nest)
{
    auto& Color = Make<TColorDialog>();
    auto& Font = Make<TFontDialog>();
    HWND Outer = nullptr;
    const TDialogUser::TStep Inner = [&](HWND Window) {
        EXPECT_FALSE(IsWindowEnabled(Outer));
        EXPECT_EQ(Font.Handle(), Outer);
        Press(Window, IDOK);
    };
    const bool Chosen = ExecuteWith(Font, {[&](HWND Window) {
                                        Outer = Window;
                                        EXPECT_TRUE(ExecuteWith(Color, {Inner}));
                                        EXPECT_TRUE(IsWindowEnabled(Window));
                                        EXPECT_EQ(GetActiveWindow(), Window);
                                        Press(Window, IDOK);
                                    }});
    EXPECT_TRUE(Chosen);
    EXPECT_EQ(TakeEvents(), (TNames{"show", "show", "close", "close"}));
}

BOOL CALLBACK CountWindow(HWND, LPARAM Count)
{
    ++*reinterpret_cast<int*>(Count);
    return TRUE;
}

int WindowCount()
{
    int Result = 0;
    EnumThreadWindows(GetCurrentThreadId(), &CountWindow, reinterpret_cast<LPARAM>(&Result));
    return Result;
}

TEST_F(TDialogs, LeaveNothingBehind)
{
    TCommonDialog* const Modal[] = {&Make<TColorDialog>(), &Make<TFontDialog>(), &Make<TOpenDialog>()};
    for (TCommonDialog* const Dialog : Modal)
        ExecuteWith(*Dialog, {Pressing(IDCANCEL)}); // the system keeps some windows of its own
    const int Windows = WindowCount();
    for (int Times = 0; Times < 20; ++Times)
        for (TCommonDialog* const Dialog : Modal)
            ExecuteWith(*Dialog, {Pressing(IDCANCEL)});
    for (int Times = 0; Times < 70; ++Times) {
        TFindDialog Find(Form);
        TReplaceDialog Replace(Form);
        EXPECT_TRUE(Find.Execute() && Replace.Execute());
        if (Times % 2)
            Find.CloseDialog();
    }
    EXPECT_EQ(WindowCount(), Windows);
    {
        const THookScope Hook(TFindDialog::MetaClass(), &DestroyOnCreate);
        EXPECT_FALSE(Make<TFindDialog>().Execute());
        Application->ProcessMessages();
        EXPECT_EQ(WindowCount(), Windows);
    }
    EXPECT_EQ(GetFocus(), Edit->Handle());
}

} // namespace
