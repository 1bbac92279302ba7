// Translation of the dialogs themselves, as somebody who uses them sees it.
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <map>
#include <set>

#include "Qct/DialogHook.h"
#include "Qct/DialogProps.h"
#include "Qct/Qct.h"
#include "framework/rtl/FileNames.h"
#include "framework/rtl/Files.h"
#include "framework/rtl/SysUtils.h"
#include "tests/DialogUser.h"

namespace {

class TOwnFontDialog : public TFontDialog {
    OBX_CLASS(TFontDialog)
public:
    using TFontDialog::TFontDialog;
};
const TMetaClass& TOwnFontDialog::MetaClass()
{
    static const TMetaClass Class("TOwnFontDialog", &inherited::MetaClass(), CreateComponent<TOwnFontDialog>);
    return Class;
}

const TMetaClass* const Kinds[] = {
    &TOpenDialog::MetaClass(),  &TSaveDialog::MetaClass(),         &TFontDialog::MetaClass(),
    &TColorDialog::MetaClass(), &TFindDialog::MetaClass(),         &TReplaceDialog::MetaClass(),
    &TPrintDialog::MetaClass(), &TPrinterSetupDialog::MetaClass(), &TOwnFontDialog::MetaClass(),
};

std::string LinesOf(const TStrings& List)
{
    std::string Result;
    for (int I = 0; I < List.Count(); ++I)
        Result += List.Get(I) + "\n";
    return Result;
}

std::vector<HWND> ChildrenOf(HWND Dialog)
{
    std::vector<HWND> Result;
    for (HWND Each = GetWindow(Dialog, GW_CHILD); Each; Each = GetWindow(Each, GW_HWNDNEXT))
        Result.push_back(Each);
    return Result;
}

// The controls whose texts are captions; those of others belong to the user.
bool HasCaption(HWND Control)
{
    char Class[64] = "";
    GetClassNameA(Control, Class, sizeof Class);
    return std::string(Class) == "Button" || std::string(Class) == "Static";
}

struct TQctDialogs : TDialogs {
    TQctDialogs()
    {
        StartQct();
        Translator = new TCommonDialogTranslator(Form);
        Translator->SetLocale(1053);
    }
    ~TQctDialogs() override { StopQct(); }

    TCommonDialog& New(const TMetaClass& Class) const
    {
        return *dynamic_cast<TCommonDialog*>(Class.Create(Form));
    }
    void Use(const std::string& Lines) const
    {
        TStringList List;
        List.SetText(Lines);
        Translator->SetTranslations(&List);
    }
    // Each line of the scan once, without the class.
    std::vector<std::string> Scan(TCommonDialog& Dialog) const
    {
        TStringList List;
        EXPECT_EQ(Translator->GetDlgProps(&Dialog, &List), 0);
        EXPECT_EQ(Dialog.Handle(), nullptr) << "closes by itself";
        EXPECT_FALSE(DebugDlg);
        std::vector<std::string> Result;
        std::set<std::string> Seen;
        for (int I = 0; I < List.Count(); ++I)
            if (Seen.insert(List.Get(I)).second)
                Result.push_back(List.Get(I).substr(Dialog.ClassName().size() + 1));
        return Result;
    }
    // Shows a dialog, lets Look at it, and closes it.
    static void Show(TCommonDialog& Dialog, const TDialogUser::TStep& Look)
    {
        if (!dynamic_cast<TFindDialog*>(&Dialog)) {
            ExecuteWith(Dialog, {Look, Pressing(IDCANCEL)});
            return;
        }
        const TDialogUser User(Dialog, {Look, Pressing(IDCANCEL)});
        Dialog.Execute();
        while (Dialog.Handle())
            Application->HandleMessage();
    }

    void CloseCurrent(TObject*)
    {
        ++Translated;
        PostMessageA(Current->Handle(), WM_CLOSE, 0, 0);
    }

    void Act(TObject*)
    {
        if (const auto Once = std::exchange(Action, nullptr))
            Once();
    }
    void ActFirst(TObject*, bool&) { Act(nullptr); }

    TCommonDialogTranslator* Translator;
    std::function<void()> Action;
    TCommonDialog* Current = nullptr;
    int Translated = 0;
};

// The lines without places, sizes and what follows from the machine's printer and
// the current folder.
std::string Comparable(const std::string& ClassName, const std::vector<std::string>& Lines)
{
    const std::set<std::string> OfPrinter{"Caption[1098]", "Caption[1099]", "Caption[1100]",
                                          "Caption[1101]", "Caption[1136]", "Caption[1139]"};
    const std::set<std::string> OfFolder{"Caption[1137]"};
    const std::set<std::string> None;
    const auto& Passed = ClassName.starts_with("TPrint")                            ? OfPrinter
                         : ClassName == "TOpenDialog" || ClassName == "TSaveDialog" ? OfFolder
                                                                                    : None;
    std::string Result;
    for (const std::string& Line : Lines) {
        const std::string Name = Line.substr(0, Line.find('='));
        if (Passed.contains(Name))
            continue;
        const bool IsSize = Name.find("Caption") == Name.npos && Name.find("Font") == Name.npos;
        Result += (IsSize ? Name : Line) + "\n";
    }
    return Result;
}

std::string Recorded(const std::string& ClassName)
{
    const std::string All = ReadWholeFile(TEST_DATA "/dialog-lines.txt");
    const std::string Head = "[" + ClassName + "]\n";
    const size_t Start = All.find(Head);
    if (Start == All.npos)
        return "not recorded";
    const size_t End = std::min(All.find("\n[", Start), All.size() - 1) + 1;
    return All.substr(Start + Head.size(), End - Start - Head.size());
}

} // namespace

// The names and texts are those of the real dialogs. With RECORD=FILE in the
// environment a Windows program writes them into that file.
TEST_F(TQctDialogs, ScansListTheDialogAndCloseIt)
{
    const char* const Record = std::getenv("RECORD");
    for (const TMetaClass* const Class : Kinds) {
        SCOPED_TRACE(Class->ClassName());
        TCommonDialog& Dialog = New(*Class);
        const auto Lines = Scan(Dialog);
        if (Record)
            std::ofstream(Record, std::ios::app | std::ios::binary) << "[" << Class->ClassName() << "]\n"
                                                                    << Comparable(Class->ClassName(), Lines);
        EXPECT_TRUE(Translator->Translate());
        EXPECT_EQ(Comparable(Class->ClassName(), Lines), Recorded(Class->ClassName()));
        TStringList Now;
        Show(Dialog, [&](HWND Window) { ListDialog(Window, "x", Now); });
        std::string Scanned;
        for (const std::string& Line : Lines)
            Scanned += "x." + Line + "\n";
        EXPECT_EQ(LinesOf(Now), Scanned);
        delete &Dialog;
    }
    EXPECT_EQ(TakeEvents(), TNames{});
}

// Every caption is translated when the dialog opens, and each time it opens.
TEST_F(TQctDialogs, EveryCaptionIsTranslated)
{
    for (const TMetaClass* const Class : Kinds) {
        SCOPED_TRACE(Class->ClassName());
        TCommonDialog& Dialog = New(*Class);
        std::string Lines;
        for (const std::string& Line : Scan(Dialog))
            if (Line.starts_with("Caption"))
                Lines += Class->ClassName() + "." + Line.substr(0, Line.find('=')) + "='Ü" +
                         Line.substr(Line.find('=') + 2) + "\n";
        Use(Lines);
        int Captions = 0;
        const auto Look = [&](HWND Window) {
            EXPECT_EQ(TextOf(Window).substr(0, 2), "Ü");
            for (const HWND Each : ChildrenOf(Window))
                if (HasCaption(Each) && !TextOf(Each).empty()) {
                    ++Captions;
                    EXPECT_EQ(TextOf(Each).substr(0, 2), "Ü") << GetDlgCtrlID(Each);
                }
        };
        for (int Round = 1; Round <= 2; ++Round) {
            Captions = 0;
            Show(Dialog, Look);
            EXPECT_GE(Captions, 7);
            EXPECT_EQ(OldWndProc, nullptr);
        }
        Translator->SetTranslate(false);
        Show(Dialog, [&](HWND Window) { EXPECT_NE(TextOf(Window).substr(0, 2), "Ü"); });
        Translator->SetTranslate(true);
        delete &Dialog;
    }
    EXPECT_EQ(TakeEvents(), TNames{});
}

TEST_F(TQctDialogs, ControlsAreMovedAndSized)
{
    for (const TMetaClass* const Class : Kinds) {
        SCOPED_TRACE(Class->ClassName());
        RegisterDialogClass(Class);
        const std::string Front = Class->ClassName() + ".";
        Use(Front + "Font.Name='DejaVu Serif'\n" + Front + "Height=470\n" + Front + "Width=620\n" + Front +
            "Left[2]=11\n" + Front + "Top[2]=13\n" + Front + "Width[2]=123\n" + Front + "Height[2]=77\n" +
            Front + "Left[4711]=5\n");
        TCommonDialog& Dialog = New(*Class);
        Show(Dialog, [&](HWND Window) {
            // File dialogs move their buttons when their size changes.
            SendMessageA(Window, WM_ACTIVATE, WA_ACTIVE, 0);
            TStringList First, Second;
            ListDialog(Window, "x", First);
            std::map<std::string, std::string> Values;
            for (int I = 0; I < First.Count(); ++I)
                Values.emplace(First.Names(I), First.Get(I).substr(First.Names(I).size() + 1));
            EXPECT_EQ(Values["x.Height"], "471");
            EXPECT_EQ(Values["x.Width"], "621");
            EXPECT_EQ(Values["x.Left[2]"], "11");
            EXPECT_EQ(Values["x.Top[2]"], "13");
            EXPECT_EQ(Values["x.Width[2]"], "124");
            EXPECT_NE(Values["x.Height[2]"], "78");
            SendMessageA(Window, WM_ACTIVATE, WA_ACTIVE, 0);
            ListDialog(Window, "x", Second);
            EXPECT_EQ(LinesOf(First), LinesOf(Second)) << "a second time";
        });
        delete &Dialog;
    }
}

TEST_F(TQctDialogs, AMalformedLineIsToldOnceAndTheDialogGoesOn)
{
    Use("TFontDialog.Caption='Teckensnitt'\nTFontDialog.Left[2]=far\n");
    TCommonDialog& Dialog = New(TFontDialog::MetaClass());
    RegisterDialogClass(&TFontDialog::MetaClass());
    Show(Dialog, [&](HWND Window) {
        EXPECT_EQ(TextOf(Window), "Teckensnitt");
        SendMessageA(Window, WM_ACTIVATE, WA_ACTIVE, 0);
    });
    EXPECT_EQ(TakeEvents(), TNames{"error 'far' is not a valid integer value"});
}

// The scan would wait for a dialog that is not taken, and never close it.
TEST_F(TQctDialogs, NothingIsScannedBesideAnOpenDialog)
{
    auto& Find = dynamic_cast<TFindDialog&>(New(TFindDialog::MetaClass()));
    TCommonDialog& Font = New(TFontDialog::MetaClass());
    RegisterDialogClass(&TFindDialog::MetaClass());
    Find.Execute();
    Application->ProcessMessages();
    EXPECT_NE(OldWndProc, nullptr);
    TStringList Lines;
    Translator->GetDlgProps(&Font, &Lines);
    Translator->GetDlgProps(&Find, &Lines);
    Translator->GetDlgProps(Form, &Lines);
    EXPECT_EQ(Lines.Count(), 0);
    delete Translator;
    SendMessageA(Find.Handle(), WM_ACTIVATE, WA_ACTIVE, 0);
    Find.CloseDialog();
    Application->ProcessMessages();
    EXPECT_EQ(OldWndProc, nullptr);
}

// Nothing of what handlers destroy is used afterwards, and the next dialog is
// translated again.
TEST_F(TQctDialogs, HandlersMayDestroyAndStop)
{
    const TMetaClass* const Some[] = {&TOpenDialog::MetaClass(), &TColorDialog::MetaClass(),
                                      &TFontDialog::MetaClass(), &TFindDialog::MetaClass()};
    const std::pair<const char*, std::function<void()>> Actions[] = {
        {"translator", [this] { delete Translator; }},
        {"dialog", [this] { delete Current; }},
        {"form", [this] { DestroyForm(nullptr); }},
        {"stop", [] { StopQct(); }},
        {"stop and start",
         [] {
             StopQct();
             StartQct();
         }},
        {"another dialog", [this] { ExecuteWith(New(TColorDialog::MetaClass()), {Pressing(IDCANCEL)}); }},
    };
    for (const TMetaClass* const Class : Some)
        for (const auto& [Name, What] : Actions)
            for (const bool Before : {true, false}) {
                SCOPED_TRACE(Class->ClassName() + ", " + Name + (Before ? ", before" : ", after"));
                DestroyForm(nullptr);
                Form = new TForm(Application);
                Form->Show();
                Translator = new TCommonDialogTranslator(Form);
                Use(Class->ClassName() + ".Caption='Ü'");
                Current = &New(*Class);
                StartQct();
                HWND Window = nullptr;
                Action = [&, &Perform = What] {
                    Window = Current->Handle();
                    Perform();
                    PostMessageA(Window, WM_CLOSE, 0, 0);
                };
                if (Before)
                    Translator->OnTranslate = {this, &TQctDialogs::ActFirst};
                else
                    Translator->OnTranslated = {this, &TQctDialogs::Act};
                const TDialogUser User(*Current, {});
                EXPECT_NO_THROW(Current->Execute());
                while (!Window || IsWindow(Window))
                    Application->HandleMessage();
                EXPECT_EQ(OldWndProc, nullptr);
                EXPECT_EQ(Application->ModalLevel(), 0);
            }
    EXPECT_EQ(TakeEvents(), TNames{});
}

TEST_F(TQctDialogs, ManyDialogsLeaveNothingBehind)
{
    const auto CountWindows = [] {
        int Count = 0;
        EnumThreadWindows(
            GetCurrentThreadId(),
            [](HWND, LPARAM Counter) -> BOOL { return ++*reinterpret_cast<int*>(Counter); },
            reinterpret_cast<LPARAM>(&Count));
        return Count;
    };
    constexpr int Rounds = 250;
    int Windows = 0;
    DWORD Objects = 0;
    const TMetaClass* const Quick[] = {&TFindDialog::MetaClass(), &TReplaceDialog::MetaClass(),
                                       &TColorDialog::MetaClass(), &TFontDialog::MetaClass()};
    std::vector<TCommonDialog*> Dialogs;
    for (const TMetaClass* const Class : Quick) {
        Dialogs.push_back(&New(*Class));
        RegisterDialogClass(Class);
    }
    Translator->OnTranslated = {this, &TQctDialogs::CloseCurrent};
    Use("TFindDialog.Font.Name='DejaVu Serif'\nTColorDialog.Font.Name='DejaVu Serif'\n"
        "TFontDialog.Font.Charset=1\nTReplaceDialog.Font.Charset=1\n");
    for (int Round = 0; Round < Rounds; ++Round) {
        if (Round == 3) { // what is made once is there
            Windows = CountWindows();
            Objects = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
        }
        for (TCommonDialog* const Dialog : Dialogs) {
            const TDialogUser Patience(*Dialog, {});
            Current = Dialog;
            Translated = 0;
            Dialog->Execute();
            while (Dialog->Handle())
                Application->HandleMessage();
            EXPECT_GE(Translated, 1);
        }
    }
    EXPECT_EQ(CountWindows(), Windows);
    EXPECT_EQ(OldWndProc, nullptr);
    if (Objects == 0)
        GTEST_SKIP() << "Wine does not count drawing objects";
    EXPECT_LE(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS), Objects);
}
