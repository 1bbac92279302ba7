// The system's dialogs as components.
#include "framework/forms/Dialogs.h"

#include <filesystem>
#include <fstream>
#include <map>

#include "framework/rtl/Exceptions.h"
#include "framework/rtl/FileNames.h"
#include "tests/DialogUser.h"

namespace {

namespace fs = std::filesystem;

// The name box of the file dialogs, and the button of the colour dialog that opens
// its right half.
constexpr int FileNameBox = cmb13;
constexpr int MixButton = 719;
constexpr int RedBox = 706;

struct TFolder {
    TFolder()
    {
        fs::remove_all(Path);
        fs::create_directories(Path);
        for (const char8_t* const Name : {u8"a.txt", u8"åäö b.txt", u8"c.dat"})
            std::ofstream(Path / Name) << "x";
    }
    ~TFolder()
    {
        fs::current_path(fs::temp_directory_path()); // dialogs go to the folder of the choice
        fs::remove_all(Path);
    }
    std::string Name(const std::string& File) const { return IncludeTrailingBackslash(Folder()) + File; }
    std::string Folder() const
    {
        const auto Text = Path.u8string();
        return {Text.begin(), Text.end()};
    }
    fs::path Path = fs::temp_directory_path() / ("orbilex_dialogs" + std::to_string(GetCurrentProcessId()));
};

std::deque<TDialogUser::TStep> Choosing(const std::string& Name)
{
    return {[Name](HWND Dialog) {
        SetDlgItemTextA(Dialog, FileNameBox, Name.c_str());
        Press(Dialog, IDOK);
    }};
}

TEST_F(TDialogs, OptionsReachTheControls)
{
    const struct {
        const TMetaClass& Class;
        uint64_t Options;
        std::map<int, std::string> States;
    } Cases[] = {
        {TOpenDialog::MetaClass(),
         TOpenOptions{ofHideReadOnly}.Bits(),
         {{chx1, "hidden"}, {pshHelp, "hidden"}, {IDOK, ""}}},
        {TOpenDialog::MetaClass(), TOpenOptions{ofShowHelp}.Bits(), {{chx1, ""}, {pshHelp, ""}}},
        {TColorDialog::MetaClass(), 0, {{MixButton, ""}, {pshHelp, "hidden"}, {RedBox, "hidden"}}},
        {TColorDialog::MetaClass(),
         TColorDialogOptions{cdFullOpen, cdShowHelp}.Bits(),
         {{MixButton, "disabled"}, {pshHelp, ""}, {RedBox, ""}}},
        {TColorDialog::MetaClass(),
         TColorDialogOptions{cdPreventFullOpen}.Bits(),
         {{MixButton, "disabled"}, {RedBox, "hidden"}}},
        {TFontDialog::MetaClass(),
         TFontDialogOptions{fdEffects}.Bits(),
         {{chx1, ""}, {psh3, "hidden"}, {pshHelp, "hidden"}}},
        {TFontDialog::MetaClass(),
         TFontDialogOptions{fdApplyButton, fdShowHelp}.Bits(),
         {{chx1, "hidden"}, {psh3, ""}, {pshHelp, ""}}},
        {TFindDialog::MetaClass(), 0, {{chx1, ""}, {chx2, ""}, {rad1, ""}, {pshHelp, "hidden"}}},
        {TFindDialog::MetaClass(),
         TFindOptions{frHideMatchCase, frDisableWholeWord, frDisableUpDown, frShowHelp}.Bits(),
         {{chx1, "disabled"}, {chx2, "hidden"}, {rad1, "disabled"}, {pshHelp, ""}}},
        {TReplaceDialog::MetaClass(), 0, {{chx1, ""}, {edt2, ""}, {psh1, ""}, {psh2, ""}}},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Class.ClassName() + " " + std::to_string(Case.Options));
        TCommonDialog& Dialog = Make(Case.Class);
        SetOrdProp(Dialog, *GetPropInfo(Dialog, "Options"), static_cast<int64_t>(Case.Options));
        std::map<int, std::string> Seen;
        const auto Look = [&](HWND Window) {
            for (const auto& [Id, State] : Case.States)
                Seen[Id] = ItemState(Window, Id);
            Press(Window, IDCANCEL);
        };
        EXPECT_EQ(Dialog.Handle(), nullptr);
        if (auto* const Find = dynamic_cast<TFindDialog*>(&Dialog)) {
            Find->SetFindText("x");
            EXPECT_TRUE(Find->Execute());
            Look(Find->Handle());
            Application->ProcessMessages();
        } else {
            EXPECT_FALSE(ExecuteWith(Dialog, {Look}));
        }
        EXPECT_EQ(Seen, Case.States);
        EXPECT_EQ(Dialog.Handle(), nullptr);
        EXPECT_EQ(TakeEvents(), (TNames{"show", "close"}));
    }
}

TEST_F(TDialogs, FilesAreChosen)
{
    const TFolder Folder;
    auto& Dialog = Make<TOpenDialog>();
    Dialog.SetInitialDir(Folder.Folder());
    Dialog.SetFilter("Texts (*.txt)|*.txt|Daten – 数据|*.dat");
    Dialog.SetFilterIndex(2);
    Dialog.SetTitle("Öffnen – 開く");
    Dialog.OnCanClose = {this, &TDialogs::CanClose};
    Refuse = true;
    auto Steps = Choosing("a.txt");
    Steps.push_front([&](HWND Window) {
        EXPECT_EQ(TextOf(Window), "Öffnen – 開く");
        EXPECT_EQ(SendDlgItemMessageA(Window, cmb1, CB_GETCURSEL, 0, 0), 1);
        EXPECT_EQ(ItemText(Window, cmb1), "Daten – 数据");
    });
    Steps.push_back(Choosing("åäö b.txt").front());
    EXPECT_TRUE(ExecuteWith(Dialog, Steps));
    EXPECT_EQ(TakeEvents(), (TNames{"show", "can close a.txt", "can close åäö b.txt", "close"}));
    EXPECT_EQ(Dialog.FileName(), Folder.Name("åäö b.txt"));
    ASSERT_EQ(Dialog.Files()->Count(), 1);
    EXPECT_EQ(Dialog.Files()->Get(0), Dialog.FileName());
    EXPECT_TRUE(ExecuteWith(Dialog, Choosing("c.dat")));
    EXPECT_EQ(Dialog.Files()->Count(), 1) << "nothing is left of a longer name";
    EXPECT_EQ(Dialog.FileName(), Folder.Name("c.dat"));

    Dialog.SetOptions({ofAllowMultiSelect, ofFileMustExist});
    EXPECT_TRUE(ExecuteWith(Dialog, Choosing("\"c.dat\" \"åäö b.txt\"")));
    ASSERT_EQ(Dialog.Files()->Count(), 2);
    EXPECT_EQ(Dialog.Files()->Get(0), Folder.Name("c.dat"));
    EXPECT_EQ(Dialog.Files()->Get(1), Folder.Name("åäö b.txt"));
    EXPECT_EQ(Dialog.FileName(), Folder.Name("c.dat"));

    // Giving up after a refused choice and another filter leaves all as it was.
    Refuse = true;
    Steps = Choosing("a.txt");
    Steps.push_back([](HWND Window) {
        SendDlgItemMessageA(Window, cmb1, CB_SETCURSEL, 0, 0);
        PostMessageA(Window, WM_COMMAND, MAKEWPARAM(cmb1, CBN_SELENDOK),
                     reinterpret_cast<LPARAM>(GetDlgItem(Window, cmb1)));
    });
    Steps.push_back(Pressing(IDCANCEL));
    Dialog.OnTypeChange = {this, &TDialogs::Type};
    TakeEvents();
    EXPECT_FALSE(ExecuteWith(Dialog, Steps));
    EXPECT_EQ(TakeEvents(), (TNames{"show", "can close a.txt", "type 1", "close"}));
    EXPECT_EQ(Dialog.FileName(), Folder.Name("c.dat"));
    EXPECT_EQ(Dialog.FilterIndex(), 2);
    EXPECT_EQ(Dialog.Files()->Count(), 2);

    Dialog.SetOptions({ofOldStyleDialog});
    Dialog.OnTypeChange.Clear();
    TakeEvents();
    EXPECT_TRUE(ExecuteWith(Dialog, {[](HWND Window) {
                                for (const int NameBox : {edt1, FileNameBox}) // there is one or the other
                                    SetDlgItemTextA(Window, NameBox, "a.txt");
                                Press(Window, IDOK);
                            }}));
    EXPECT_EQ(TakeEvents(), (TNames{"show", "can close a.txt", "close"}));
    EXPECT_EQ(Dialog.FileName(), Folder.Name("a.txt"));

    auto& Save = Make<TSaveDialog>();
    Save.SetInitialDir(Folder.Folder());
    Save.SetDefaultExt("txt");
    EXPECT_TRUE(ExecuteWith(Save, Choosing("new ñ")));
    EXPECT_EQ(Save.FileName(), Folder.Name("new ñ.txt"));
    EXPECT_FALSE(fs::exists(fs::u8path(Save.FileName())));
}

TEST_F(TDialogs, ColoursAreChosen)
{
    auto& Dialog = Make<TColorDialog>();
    Dialog.SetColor(clWindowText);
    Dialog.CustomColors()->Add("ColorB=0000FF");
    Dialog.SetOptions({cdFullOpen});
    EXPECT_FALSE(ExecuteWith(Dialog, {Pressing(IDCANCEL)}));
    EXPECT_EQ(Dialog.CustomColors()->Count(), 1);
    EXPECT_TRUE(ExecuteWith(Dialog, {Pressing(IDOK)}));
    EXPECT_EQ(Dialog.Color(), clWindowText) << "a colour that was not changed";
    EXPECT_EQ(Dialog.CustomColors()->Count(), 16);
    EXPECT_EQ(Dialog.CustomColors()->Values("ColorB"), "0000FF");
    EXPECT_EQ(Dialog.CustomColors()->Values("ColorP"), "FFFFFF");
    EXPECT_TRUE(ExecuteWith(Dialog, {[](HWND Window) {
                                SetDlgItemTextA(Window, RedBox, "200");
                                Press(Window, IDOK);
                            }}));
    EXPECT_EQ(Dialog.Color(), 200);
    Dialog.CustomColors()->SetValue("ColorC", "red");
    EXPECT_THROW(Dialog.Execute(), EConvertError);
    EXPECT_EQ(Dialog.Handle(), nullptr);
}

TEST_F(TDialogs, FontsAreChosen)
{
    auto& Dialog = Make<TFontDialog>();
    Dialog.OnApply = {this, &TDialogs::Apply};
    Dialog.SetOptions({fdEffects, fdApplyButton, fdLimitSize});
    Dialog.SetMinFontSize(6);
    Dialog.Font()->SetName("DejaVu Sans");
    Dialog.Font()->SetSize(12);
    Dialog.Font()->SetStyle({fsUnderline});
    Dialog.Font()->SetColor(clRed);
    std::string Face;
    const auto SetSize = [](HWND Window, const char* Size) {
        SetDlgItemTextA(Window, cmb3, Size);
        SendMessageA(Window, WM_COMMAND, MAKEWPARAM(cmb3, CBN_EDITCHANGE),
                     reinterpret_cast<LPARAM>(GetDlgItem(Window, cmb3)));
    };
    EXPECT_FALSE(ExecuteWith(Dialog, {[&](HWND Window) {
                                 Face = ItemText(Window, cmb1);
                                 EXPECT_EQ(ItemText(Window, cmb3), "12");
                                 EXPECT_EQ(IsDlgButtonChecked(Window, chx2), UINT{BST_CHECKED});
                                 SetSize(Window, "20");
                                 Press(Window, IDCANCEL);
                             }}));
    EXPECT_EQ(Dialog.Font()->Size(), 12);
    TakeEvents();
    EXPECT_TRUE(ExecuteWith(Dialog, {[&](HWND Window) {
                                         CheckDlgButton(Window, chx1, BST_CHECKED);
                                         SetSize(Window, "14");
                                         Press(Window, psh3);
                                     },
                                     [&](HWND Window) {
                                         SetSize(Window, "16");
                                         Press(Window, IDOK);
                                     }}));
    EXPECT_EQ(TakeEvents(), (TNames{"show", "apply 14", "close"}));
    EXPECT_EQ(Dialog.Font()->Name(), Face);
    EXPECT_EQ(Dialog.Font()->Size(), 16);
    EXPECT_EQ(Dialog.Font()->Style(), (TFontStyles{fsUnderline, fsStrikeOut}));
    EXPECT_EQ(Dialog.Font()->Color(), clRed);
}

TEST_F(TDialogs, FindAndReplaceTellWhatTheUserWants)
{
    auto& Find = Make<TFindDialog>();
    Find.OnFind = {this, &TDialogs::Found};
    Find.SetFindText("früher");
    Find.SetOptions({frDown, frMatchCase});
    Find.SetPosition({40, 60});
    EXPECT_TRUE(Find.Execute());
    EXPECT_EQ(ItemText(Find.Handle(), edt1), "früher");
    EXPECT_EQ(IsDlgButtonChecked(Find.Handle(), chx2), UINT{BST_CHECKED});
    EXPECT_EQ(Find.Left(), 40);
    EXPECT_EQ(Find.Top(), 60);
    Press(Find.Handle(), IDOK);
    Application->ProcessMessages();
    SetDlgItemTextA(Find.Handle(), edt1, "später 後");
    CheckDlgButton(Find.Handle(), chx1, BST_CHECKED);
    CheckDlgButton(Find.Handle(), chx2, BST_UNCHECKED);
    CheckRadioButton(Find.Handle(), rad1, rad2, rad1);
    Press(Find.Handle(), IDOK);
    Application->ProcessMessages();
    EXPECT_EQ(TakeEvents(), (TNames{"show", "find früher frDown frMatchCase frFindNext",
                                    "find später 後 frWholeWord frFindNext"}));

    // Another one beside it; each hears of its own.
    auto& Replace = Make<TReplaceDialog>();
    Replace.OnReplace = {this, &TDialogs::Replaced};
    Replace.SetFindText("one");
    Replace.SetReplaceText("ett");
    EXPECT_TRUE(Replace.Execute());
    EXPECT_TRUE(IsWindowVisible(Find.Handle()));
    Press(Replace.Handle(), psh1);
    Press(Replace.Handle(), psh2);
    Application->ProcessMessages();
    EXPECT_EQ(TakeEvents(), (TNames{"show", "one one>ett", "all one>ett"}));
    EXPECT_EQ(Application->DialogHandle, Replace.Handle());
    EXPECT_TRUE(Find.Execute()) << "brings it to the front";
    Application->ProcessMessages();
    EXPECT_EQ(Application->DialogHandle, Find.Handle());
    ::SetFocus(GetDlgItem(Find.Handle(), edt1));
    PostMessageA(GetFocus(), WM_KEYDOWN, VK_TAB, 0);
    Application->ProcessMessages();
    EXPECT_EQ(GetFocus(), GetDlgItem(Find.Handle(), chx1)) << "the dialog's own key";
    PostMessageA(GetFocus(), WM_KEYDOWN, VK_ESCAPE, 0);
    Application->ProcessMessages();
    EXPECT_EQ(Find.Handle(), nullptr);
    EXPECT_EQ(Find.Left(), 40);
    Replace.CloseDialog();
    EXPECT_EQ(Replace.Handle(), nullptr);
    EXPECT_EQ(Application->DialogHandle, nullptr);
    EXPECT_EQ(TakeEvents(), (TNames{"close", "close"}));
}

// The form that was active becomes so again, with its focus, and the dialog stands
// over it; nothing else of the program can be used meanwhile.
TEST_F(TDialogs, AreModal)
{
    auto* const Other = new TForm(Application);
    Other->SetBounds(0, 0, 120, 100);
    Other->Show();
    Form->SetFocus();
    Application->ProcessMessages();
    for (TCommonDialog* const Dialog : std::initializer_list<TCommonDialog*>{
             &Make<TColorDialog>(), &Make<TFontDialog>(), &Make<TOpenDialog>()}) {
        SCOPED_TRACE(Dialog->ClassName());
        ExecuteWith(*Dialog, {[&](HWND Window) {
            EXPECT_FALSE(IsWindowEnabled(Form->Handle()));
            EXPECT_FALSE(IsWindowEnabled(Other->Handle()));
            EXPECT_EQ(Application->ModalLevel(), 1);
            EXPECT_THROW(Dialog->Execute(), EInvalidOperation);
            TRect Place{};
            GetWindowRect(Window, &Place);
            EXPECT_NEAR(Place.left + Place.right, 2 * Form->Left() + Form->Width(), 2);
            EXPECT_NEAR(Place.top + Place.bottom, 2 * Form->Top() + Form->Height(), 2);
            Press(Window, IDCANCEL);
        }});
        EXPECT_TRUE(IsWindowEnabled(Form->Handle()));
        EXPECT_TRUE(IsWindowEnabled(Other->Handle()));
        EXPECT_EQ(Application->ModalLevel(), 0);
        EXPECT_EQ(GetFocus(), Edit->Handle());
    }
}

// As the system's dialogs for files tell of their help button; not all systems do.
void NotifyHelp(HWND Dialog)
{
    OFNOTIFYA Notification{};
    Notification.hdr.hwndFrom = Dialog;
    Notification.hdr.code = CDN_HELP;
    HWND Child = GetWindow(Dialog, GW_CHILD);
    while (Child && GetDlgCtrlID(Child) != 0)
        Child = GetWindow(Child, GW_HWNDNEXT);
    ASSERT_NE(Child, nullptr) << "the hook window";
    SendMessageA(Child, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&Notification));
}

TEST_F(TDialogs, HelpButtonsAskTheApplication)
{
    Application->OnHelp = {this, &TDialogs::Help};
    auto& Color = Make<TColorDialog>();
    Color.SetOptions({cdShowHelp});
    auto& Font = Make<TFontDialog>();
    Font.SetOptions({fdShowHelp});
    const struct {
        TCommonDialog& Dialog;
        TDialogUser::TStep Step;
    } Cases[] = {{Make<TOpenDialog>(), NotifyHelp}, {Color, Pressing(pshHelp)}, {Font, Pressing(pshHelp)}};
    int Context = 100;
    for (const auto& Case : Cases) {
        Case.Dialog.SetHelpContext(++Context);
        ExecuteWith(Case.Dialog, {Case.Step, Pressing(IDCANCEL)});
        EXPECT_EQ(TakeEvents(), (TNames{"show", "help 1 " + std::to_string(Context), "close"}));
    }
    auto& Find = Make<TFindDialog>();
    Find.SetOptions({frShowHelp});
    Find.SetHelpContext(7);
    Find.Execute();
    Press(Find.Handle(), pshHelp);
    Application->ProcessMessages();
    EXPECT_EQ(TakeEvents(), (TNames{"show", "help 1 7"}));
}

// Calls the system in a way that it refuses.
struct TRefusedDialog : TOpenDialog {
    using TOpenDialog::TOpenDialog;
    static BOOL WINAPI Refused(OPENFILENAMEA* Data)
    {
        Data->lStructSize = 1;
        return GetOpenFileNameA(Data);
    }
    TShowFunction ShowFunction() const override { return &Refused; }
};

// Has room for a few bytes only.
struct TNarrowDialog : TOpenDialog {
    using TOpenDialog::TOpenDialog;
    static BOOL WINAPI Narrow(OPENFILENAMEA* Data)
    {
        Data->nMaxFile = 8;
        return GetOpenFileNameA(Data);
    }
    TShowFunction ShowFunction() const override { return &Narrow; }
};

// What the system cannot do is told, and nobody takes it for a later fault.
TEST_F(TDialogs, ErrorsAreReported)
{
    EXPECT_THROW(ExecuteWith(*new TRefusedDialog(Form), {}), EInvalidOperation);
    EXPECT_TRUE(IsWindowEnabled(Form->Handle()));
    const TFolder Folder;
    auto& Narrow = *new TNarrowDialog(Form);
    Narrow.SetInitialDir(Folder.Folder());
    EXPECT_THROW(ExecuteWith(Narrow, Choosing("a.txt")), EInvalidOperation);
    EXPECT_EQ(Narrow.FileName(), "");
    EXPECT_EQ(Narrow.Files()->Count(), 0);
    TakeEvents();
    EXPECT_FALSE(ExecuteWith(Make<TColorDialog>(), {Pressing(IDCANCEL)}));
    EXPECT_FALSE(ExecuteWith(Make<TOpenDialog>(), {Pressing(IDCANCEL)}));
    EXPECT_EQ(TakeEvents(), (TNames{"show", "close", "show", "close"}));
}

TEST_F(TDialogs, PrintingIsChosen)
{
    if (!TPrinterContext(true).Handle())
        GTEST_SKIP() << "there is no printer; the system's dialogs for printing need one";
    auto& Setup = Make<TPrinterSetupDialog>();
    EXPECT_FALSE(ExecuteWith(Setup, {Pressing(IDCANCEL)}));
    EXPECT_TRUE(ExecuteWith(Setup, {Pressing(IDOK)}));
    EXPECT_NE(PrinterDevNames(), nullptr);
    TakeEvents();
    auto& Dialog = Make<TPrintDialog>();
    Dialog.SetOptions({poPageNums});
    Dialog.SetMinPage(1);
    Dialog.SetMaxPage(9);
    Dialog.SetFromPage(2);
    Dialog.SetToPage(5);
    Dialog.SetPrintRange(prPageNums);
    Dialog.SetCopies(2);
    const auto Change = [&](HWND Window) {
        EXPECT_EQ(ItemState(Window, chx1), "hidden") << "printing to a file";
        EXPECT_EQ(ItemState(Window, rad2), "disabled") << "the selection";
        EXPECT_EQ(ItemText(Window, edt1), "2");
        EXPECT_EQ(ItemText(Window, edt2), "5");
        EXPECT_EQ(ItemText(Window, edt3), "2");
        SetDlgItemTextA(Window, edt2, "7");
        SetDlgItemTextA(Window, edt3, "3");
    };
    EXPECT_FALSE(ExecuteWith(Dialog, {Change, Pressing(IDCANCEL)}));
    EXPECT_EQ(Dialog.ToPage(), 5);
    EXPECT_EQ(Dialog.Copies(), 2);
    EXPECT_TRUE(ExecuteWith(Dialog, {Change, Pressing(IDOK)}));
    EXPECT_EQ(Dialog.FromPage(), 2);
    EXPECT_EQ(Dialog.ToPage(), 7);
    EXPECT_EQ(Dialog.Copies(), 3);
    EXPECT_EQ(Dialog.PrintRange(), prPageNums);
    EXPECT_EQ(TakeEvents(), (TNames{"show", "close", "show", "close"}));
}

} // namespace
