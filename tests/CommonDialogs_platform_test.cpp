// What the standard dialogs of the system do for a user who types and presses buttons.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstring>
#include <fstream>
#include <functional>
#include <set>

#include "tests/DialogListing.h"

namespace {

namespace fs = std::filesystem;

// A program's window whose dialogs are used by a script: each step runs when the
// dialog, or a message box of the dialog, waits for its user.
struct CommonDialogs : testing::Test {
    using TStep = std::function<void(HWND)>;

    CommonDialogs()
    {
        WNDCLASSA Class{};
        Class.lpfnWndProc = OwnerProc;
        Class.lpszClassName = "TCommonDialogsOwner";
        Class.hInstance = GetModuleHandleA(nullptr);
        RegisterClassA(&Class);
        Owner = CreateWindowExA(0, Class.lpszClassName, "Owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 40, 30,
                                500, 300, nullptr, nullptr, Class.hInstance, nullptr);
        Self = this;
        SetTimer(Owner, 1, 30, nullptr);
        Folder = fs::temp_directory_path() / ("dialogs" + std::to_string(GetCurrentProcessId()));
        fs::create_directories(Folder / "inner");
        for (const char* const Name : {"b.txt", "a.TXT", "c.doc", "inner/d.txt"})
            std::ofstream(Folder / Name) << Name;
    }
    ~CommonDialogs() override
    {
        DestroyWindow(Owner);
        Self = nullptr;
        std::error_code Ignored;
        fs::remove_all(Folder, Ignored);
    }

    static LRESULT CALLBACK OwnerProc(HWND Window, UINT Message, WPARAM WParam, LPARAM LParam)
    {
        if (Self && Message == WM_ENTERIDLE)
            Self->NextStep(Self->Shown = reinterpret_cast<HWND>(LParam));
        // A message box does not tell that it is idle.
        if (Self && Message == WM_TIMER && Self->Shown &&
            GetWindow(GetActiveWindow(), GW_OWNER) == Self->Shown)
            Self->NextStep(Self->Shown);
        if (Self && Message == RegisterWindowMessageA(FINDMSGSTRINGA))
            Self->Found.push_back(reinterpret_cast<const FINDREPLACEA*>(LParam)->Flags);
        return DefWindowProcA(Window, Message, WParam, LParam);
    }
    void NextStep(HWND Dialog)
    {
        if (Step < Steps.size())
            Steps[Step++](Dialog);
        else
            PostMessageA(Dialog, WM_CLOSE, 0, 0);
    }
    static void Press(HWND Dialog, int Id)
    {
        PostMessageA(Dialog, WM_COMMAND, MAKEWPARAM(Id, BN_CLICKED),
                     reinterpret_cast<LPARAM>(GetDlgItem(Dialog, Id)));
    }
    // Writes into a control and presses a button.
    static TStep Type(int Id, std::string Text, int Button = IDOK)
    {
        return [=](HWND Dialog) {
            SetDlgItemTextA(Dialog, Id, Text.c_str());
            Press(Dialog, Button);
        };
    }
    // As a user's click, of which the dialog learns.
    static void Click(HWND Dialog, int Id) { SendDlgItemMessageA(Dialog, Id, BM_CLICK, 0, 0); }
    static LRESULT Choose(HWND Dialog, int Combo, const char* Text)
    {
        const LRESULT Index = SendDlgItemMessageA(Dialog, Combo, CB_SELECTSTRING, static_cast<WPARAM>(-1),
                                                  reinterpret_cast<LPARAM>(Text));
        for (const int Code : {CBN_SELENDOK, CBN_SELCHANGE})
            SendMessageA(Dialog, WM_COMMAND, MAKEWPARAM(Combo, Code),
                         reinterpret_cast<LPARAM>(GetDlgItem(Dialog, Combo)));
        return Index;
    }
    void Script(std::vector<TStep> Wanted)
    {
        Steps = std::move(Wanted);
        Step = 0;
        Shown = nullptr;
    }

    HWND Owner = nullptr;
    HWND Shown = nullptr; // the one that is open
    fs::path Folder;
    std::vector<TStep> Steps;
    std::size_t Step = 0;
    std::vector<DWORD> Found; // flags that the find dialogs told
    static CommonDialogs* Self;
};
CommonDialogs* CommonDialogs::Self = nullptr;

struct TFileScene {
    char File[400] = "";
    char Title[100] = "";
    OPENFILENAMEA Data{};

    TFileScene(HWND Owner, const std::string& Folder, DWORD Flags = 0)
    {
        Data.lStructSize = sizeof Data;
        Data.hwndOwner = Owner;
        Data.lpstrFilter = "Texts\0*.txt\0Documents\0*.doc;*.rtf\0All\0*.*\0";
        Data.nFilterIndex = 1;
        Data.lpstrFile = File;
        Data.nMaxFile = sizeof File;
        Data.lpstrFileTitle = Title;
        Data.nMaxFileTitle = sizeof Title;
        Data.lpstrInitialDir = Folder.c_str();
        Data.Flags = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | Flags;
    }
};

// A file name that fits no rule must not leave the dialog, and one that does must
// arrive whole.
TEST_F(CommonDialogs, GiveTheNameOfAFile)
{
    const std::string Start = Folder.string();
    const auto DismissBox = [](HWND) {
        const HWND Box = GetActiveWindow();
        PostMessageA(Box, WM_COMMAND, GetDlgItem(Box, IDNO) ? IDNO : IDOK, 0);
    };
    const auto AgreeInBox = [](HWND) { PostMessageA(GetActiveWindow(), WM_COMMAND, IDYES, 0); };
    const struct {
        const char* Name;
        bool Saves;
        DWORD Flags;
        const char* Extension;
        std::vector<TStep> Steps;
        const char* Chosen; // below the folder; null: closed without a file
    } Cases[] = {
        {"an existing file", false, OFN_FILEMUSTEXIST, nullptr, {Type(cmb13, "b.txt")}, "b.txt"},
        {"cancelled", false, 0, nullptr, {Type(cmb13, "b.txt", IDCANCEL)}, nullptr},
        {"closed", false, 0, nullptr, {}, nullptr},
        {"a file that is not there", false, 0, nullptr, {Type(cmb13, "new.txt")}, "new.txt"},
        {"one that must be there",
         false,
         OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST,
         nullptr,
         {Type(cmb13, "new.txt"), DismissBox, Type(cmb13, "b.txt")},
         "b.txt"},
        {"a folder that must be there",
         true,
         OFN_PATHMUSTEXIST,
         nullptr,
         {Type(cmb13, "nowhere/new.txt"), DismissBox, Type(cmb13, "new.txt")},
         "new.txt"},
        {"an extension added", true, 0, "txt", {Type(cmb13, "new")}, "new.txt"},
        {"into a folder", false, 0, nullptr, {Type(cmb13, "inner"), Type(cmb13, "d.txt")}, "inner/d.txt"},
        {"overwriting refused",
         true,
         OFN_OVERWRITEPROMPT,
         nullptr,
         {Type(cmb13, "b.txt"), DismissBox, Type(cmb13, "new.txt")},
         "new.txt"},
        {"overwriting agreed",
         true,
         OFN_OVERWRITEPROMPT,
         nullptr,
         {Type(cmb13, "b.txt"), AgreeInBox},
         "b.txt"},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        TFileScene Scene(Owner, Start, Case.Flags);
        Scene.Data.lpstrDefExt = Case.Extension;
        Script(Case.Steps);
        const BOOL Result = Case.Saves ? GetSaveFileNameA(&Scene.Data) : GetOpenFileNameA(&Scene.Data);
        EXPECT_EQ(Result, Case.Chosen != nullptr);
        EXPECT_EQ(CommDlgExtendedError(), 0u);
        EXPECT_EQ(Step, Case.Steps.size());
        if (!Case.Chosen)
            continue;
        const fs::path Wanted = Folder / Case.Chosen;
        EXPECT_EQ(fs::path(Scene.File), Wanted.lexically_normal().make_preferred());
        EXPECT_EQ(std::string(Scene.File + Scene.Data.nFileOffset), Wanted.filename().string());
        EXPECT_EQ(std::string(Scene.File + Scene.Data.nFileExtension), "txt");
        EXPECT_EQ(std::string(Scene.Title), Wanted.filename().string());
    }
}

TEST_F(CommonDialogs, GiveSeveralFilesAndNeverMoreThanFits)
{
    const std::string Start = Folder.string();
    TFileScene Several(Owner, Start, OFN_ALLOWMULTISELECT);
    Script({Type(cmb13, "\"a.TXT\" \"b.txt\"")});
    ASSERT_TRUE(GetOpenFileNameA(&Several.Data));
    EXPECT_EQ(fs::path(Several.File), Folder);
    const char* const First = Several.File + std::strlen(Several.File) + 1;
    EXPECT_STREQ(First, "a.TXT");
    EXPECT_STREQ(First + 6, "b.txt");
    EXPECT_EQ(First[12], 0);
    EXPECT_EQ(Several.File + Several.Data.nFileOffset, First);

    TFileScene Small(Owner, Start);
    std::memset(Small.File + 8, '#', sizeof Small.File - 8);
    Small.Data.nMaxFile = 8;
    Script({Type(cmb13, "b.txt")});
    EXPECT_FALSE(GetOpenFileNameA(&Small.Data));
    EXPECT_EQ(CommDlgExtendedError(), static_cast<DWORD>(FNERR_BUFFERTOOSMALL));
    EXPECT_EQ(std::count(Small.File + 8, std::end(Small.File), '#'), 392);
}

// Names in the list of the dialog, in lower case.
std::vector<std::string> ListedFiles(HWND Dialog)
{
    const HWND List = FindWindowExA(GetDlgItem(Dialog, lst2), nullptr, WC_LISTVIEWA, nullptr);
    std::vector<std::string> Names;
    for (int Index = 0; Index < static_cast<int>(SendMessageA(List, LVM_GETITEMCOUNT, 0, 0)); ++Index) {
        char Name[100] = "";
        LVITEMA Item{};
        Item.pszText = Name;
        Item.cchTextMax = sizeof Name;
        SendMessageA(List, LVM_GETITEMTEXTA, static_cast<WPARAM>(Index), reinterpret_cast<LPARAM>(&Item));
        Names.emplace_back(Name);
        std::transform(Names.back().begin(), Names.back().end(), Names.back().begin(),
                       [](unsigned char Each) { return static_cast<char>(std::tolower(Each)); });
    }
    return Names;
}

struct THookLog {
    std::vector<UINT> Codes;
    std::string Folder, Path, Spec;
    bool Refuse = false;
};
THookLog Log;

UINT_PTR CALLBACK FileHook(HWND Window, UINT Message, WPARAM, LPARAM LParam)
{
    if (Message != WM_NOTIFY)
        return 0;
    const auto& Notice = *reinterpret_cast<const OFNOTIFYA*>(LParam);
    const UINT Code = Notice.hdr.code;
    if (Log.Codes.empty() || Log.Codes.back() != Code)
        Log.Codes.push_back(Code);
    const auto Ask = [&](UINT Question) {
        char Text[400] = "";
        SendMessageA(GetParent(Window), Question, sizeof Text, reinterpret_cast<LPARAM>(Text));
        return std::string(Text);
    };
    if (Code != CDN_FILEOK)
        return 0;
    Log.Folder = Ask(CDM_GETFOLDERPATH);
    Log.Path = Ask(CDM_GETFILEPATH);
    Log.Spec = Ask(CDM_GETSPEC);
    if (Log.Refuse)
        SetWindowLongPtrA(Window, DWLP_MSGRESULT, TRUE);
    return std::exchange(Log.Refuse, false);
}

TEST_F(CommonDialogs, TellTheFileHookAndListWhatTheFilterLets)
{
    const std::string Start = Folder.string();
    TFileScene Scene(Owner, Start, OFN_ENABLEHOOK);
    Scene.Data.lpfnHook = FileHook;
    std::vector<std::vector<std::string>> Lists;
    Log = {};
    Log.Refuse = true;
    const auto Look = [&](HWND Dialog) { Lists.push_back(ListedFiles(Dialog)); };
    Script({[&](HWND Dialog) {
                Look(Dialog);
                Choose(Dialog, cmb1, "Documents");
                PostMessageA(Dialog, WM_NULL, 0, 0);
            },
            [&](HWND Dialog) {
                Look(Dialog);
                Type(cmb13, "c.doc")(Dialog); // refused by the hook
            },
            Type(cmb13, "c.doc")});
    ASSERT_TRUE(GetOpenFileNameA(&Scene.Data));
    EXPECT_EQ(Lists,
              (std::vector<std::vector<std::string>>{{"inner", "a.txt", "b.txt"}, {"inner", "c.doc"}}));
    EXPECT_EQ(Scene.Data.nFilterIndex, 2u);
    EXPECT_EQ(fs::path(Log.Folder), Folder);
    EXPECT_EQ(fs::path(Log.Path), Folder / "c.doc");
    EXPECT_EQ(Log.Spec, "c.doc");
    const std::vector<UINT> Wanted{CDN_INITDONE, CDN_FOLDERCHANGE, CDN_SELCHANGE, CDN_TYPECHANGE, CDN_FILEOK};
    std::erase_if(Log.Codes,
                  [&, Seen = std::set<UINT>()](UINT Code) mutable { return !Seen.insert(Code).second; });
    EXPECT_EQ(Log.Codes, Wanted);
}

TEST_F(CommonDialogs, GiveAFont)
{
    const std::string Face = "DejaVu Sans";
    LOGFONTA Font{};
    Font.lfHeight = -64;
    std::strcpy(Font.lfFaceName, Face.c_str());
    CHOOSEFONTA Data{};
    Data.lStructSize = sizeof Data;
    Data.hwndOwner = Owner;
    Data.lpLogFont = &Font;
    Data.Flags = CF_SCREENFONTS | CF_EFFECTS | CF_INITTOLOGFONTSTRUCT | CF_LIMITSIZE;
    Data.nSizeMin = 6;
    Data.nSizeMax = 30;
    const auto Dismiss = [](HWND) { PostMessageA(GetActiveWindow(), WM_COMMAND, IDOK, 0); };
    Script({[&](HWND Dialog) {
                Choose(Dialog, cmb2, "Bold Italic");
                Choose(Dialog, cmb4, "Red");
                Click(Dialog, chx2);
                Press(Dialog, IDOK); // the size is still more than the limit
            },
            Dismiss,
            [&](HWND Dialog) {
                Choose(Dialog, cmb3, "24");
                Press(Dialog, IDOK);
            }});
    ASSERT_TRUE(ChooseFontA(&Data));
    EXPECT_EQ(Step, Steps.size());
    EXPECT_EQ(Data.iPointSize, 240);
    EXPECT_EQ(Font.lfHeight, -32);
    EXPECT_EQ(std::string(Font.lfFaceName), Face);
    EXPECT_GE(Font.lfWeight, FW_BOLD);
    EXPECT_TRUE(Font.lfItalic);
    EXPECT_TRUE(Font.lfUnderline);
    EXPECT_FALSE(Font.lfStrikeOut);
    EXPECT_EQ(Data.rgbColors, RGB(255, 0, 0));
    EXPECT_EQ(Data.nFontType & (BOLD_FONTTYPE | ITALIC_FONTTYPE), BOLD_FONTTYPE | ITALIC_FONTTYPE);

    Script({[](HWND Dialog) {
        Choose(Dialog, cmb3, "12");
        Press(Dialog, IDCANCEL);
    }});
    EXPECT_FALSE(ChooseFontA(&Data));
}

TEST_F(CommonDialogs, GiveAColor)
{
    constexpr int Hue = 703, Sat = 704, Lum = 705, Red = 706, Green = 707, Blue = 708, Add = 712,
                  Define = 719;
    COLORREF Custom[16] = {};
    CHOOSECOLORA Data{};
    Data.lStructSize = sizeof Data;
    Data.hwndOwner = Owner;
    Data.rgbResult = RGB(1, 2, 3);
    Data.lpCustColors = Custom;
    Data.Flags = CC_RGBINIT;
    std::vector<UINT> Numbers;
    bool WasHidden = false, IsShown = false;
    Script({[&](HWND Dialog) {
                WasHidden = !IsWindowVisible(GetDlgItem(Dialog, Red));
                Press(Dialog, Define);
            },
            [&](HWND Dialog) {
                IsShown = IsWindowVisible(GetDlgItem(Dialog, Red)) != 0;
                SetDlgItemInt(Dialog, Red, 0, FALSE);
                SetDlgItemInt(Dialog, Green, 255, FALSE);
                SetDlgItemInt(Dialog, Blue, 0, FALSE);
                for (const int Id : {Hue, Sat, Lum})
                    Numbers.push_back(GetDlgItemInt(Dialog, Id, nullptr, FALSE));
                Press(Dialog, Add);
                Press(Dialog, IDOK);
            }});
    ASSERT_TRUE(ChooseColorA(&Data));
    EXPECT_TRUE(WasHidden);
    EXPECT_TRUE(IsShown);
    EXPECT_EQ(Numbers, (std::vector<UINT>{80, 240, 120}));
    EXPECT_EQ(Data.rgbResult, RGB(0, 255, 0));
    EXPECT_EQ(std::count(std::begin(Custom), std::end(Custom), RGB(0, 255, 0)), 1);

    Script({[](HWND Dialog) { Press(Dialog, IDCANCEL); }});
    EXPECT_FALSE(ChooseColorA(&Data));
    EXPECT_EQ(Data.rgbResult, RGB(0, 255, 0));
}

// The owner must learn of every request with the texts as they are then, and exactly
// once that the dialog has gone.
TEST_F(CommonDialogs, AskTheOwnerToFindAndReplace)
{
    char What[20] = "old", With[20] = "new";
    FINDREPLACEA Data{};
    Data.lStructSize = sizeof Data;
    Data.hwndOwner = Owner;
    Data.Flags = FR_MATCHCASE;
    Data.lpstrFindWhat = What;
    Data.lpstrReplaceWith = With;
    Data.wFindWhatLen = Data.wReplaceWithLen = sizeof What;
    const HWND Dialog = ReplaceTextA(&Data);
    ASSERT_TRUE(Dialog);
    EXPECT_TRUE(IsWindowVisible(Dialog));
    EXPECT_TRUE(IsWindowEnabled(Owner));
    SetDlgItemTextA(Dialog, edt2, "newer than the buffer has room for");
    Click(Dialog, chx1);
    for (const int Id : {int{IDOK}, int{psh1}, int{psh2}}) {
        Press(Dialog, Id);
        DialogListing::HandleMessages(Dialog);
    }
    PostMessageA(Dialog, WM_CLOSE, 0, 0);
    DialogListing::HandleMessages(Dialog);
    EXPECT_FALSE(IsWindow(Dialog));
    constexpr DWORD Requests = FR_FINDNEXT | FR_REPLACE | FR_REPLACEALL | FR_DIALOGTERM;
    std::vector<DWORD> Told;
    for (const DWORD Flags : Found)
        Told.push_back(Flags & Requests);
    EXPECT_EQ(Told, (std::vector<DWORD>{FR_FINDNEXT, FR_REPLACE, FR_REPLACEALL, FR_DIALOGTERM}));
    ASSERT_FALSE(Found.empty());
    EXPECT_EQ(Found[0] & (FR_MATCHCASE | FR_WHOLEWORD), DWORD{FR_MATCHCASE | FR_WHOLEWORD});
    EXPECT_STREQ(What, "old");
    EXPECT_STREQ(With, "newer than the buff");
}

TEST_F(CommonDialogs, GiveCopiesAndPages)
{
    ASSERT_TRUE(HasPrinter()) << "run this test under scripts/with-printer";
    PRINTDLGA Data{};
    Data.lStructSize = sizeof Data;
    Data.hwndOwner = Owner;
    Data.nFromPage = Data.nMinPage = 1;
    Data.nToPage = Data.nMaxPage = 9;
    Data.nCopies = 1;
    const auto Dismiss = [](HWND) { PostMessageA(GetActiveWindow(), WM_COMMAND, IDOK, 0); };
    Script({[](HWND Dialog) {
                Click(Dialog, rad3);
                SetDlgItemInt(Dialog, edt1, 7, FALSE);
                SetDlgItemInt(Dialog, edt3, 3, FALSE);
                Click(Dialog, chx2);
                Type(edt2, "12")(Dialog); // beyond the last page
            },
            Dismiss, Type(edt2, "8")});
    ASSERT_TRUE(PrintDlgA(&Data));
    EXPECT_EQ(Step, Steps.size());
    EXPECT_EQ(Data.nFromPage, 7);
    EXPECT_EQ(Data.nToPage, 8);
    EXPECT_EQ(Data.nCopies, 3);
    EXPECT_EQ(Data.Flags & (PD_PAGENUMS | PD_SELECTION | PD_COLLATE), DWORD{PD_PAGENUMS | PD_COLLATE});
    ASSERT_TRUE(Data.hDevMode && Data.hDevNames);

    Data.Flags = PD_PRINTSETUP;
    Script({[](HWND Dialog) {
        Click(Dialog, rad2);
        Press(Dialog, IDOK);
    }});
    ASSERT_TRUE(PrintDlgA(&Data));
    const auto* const Settings = static_cast<const DEVMODEA*>(GlobalLock(Data.hDevMode));
    EXPECT_EQ(Settings->dmOrientation, DMORIENT_LANDSCAPE);
    GlobalUnlock(Data.hDevMode);
    GlobalFree(Data.hDevMode);
    GlobalFree(Data.hDevNames);
}

TEST_F(CommonDialogs, RefuseWhatTheyCannotShow)
{
    PRINTDLGA Print{};
    FINDREPLACEA Find{};
    EXPECT_FALSE(PrintDlgA(&Print));
    EXPECT_EQ(CommDlgExtendedError(), static_cast<DWORD>(CDERR_STRUCTSIZE));
    EXPECT_FALSE(FindTextA(&Find));
    EXPECT_EQ(CommDlgExtendedError(), static_cast<DWORD>(CDERR_STRUCTSIZE));
    char Empty[1] = "";
    Find.lStructSize = sizeof Find;
    Find.hwndOwner = Owner;
    Find.lpstrFindWhat = Empty;
    EXPECT_FALSE(FindTextA(&Find));
    EXPECT_EQ(CommDlgExtendedError(), static_cast<DWORD>(FRERR_BUFFERLENGTHZERO));
}

// Top-level windows of the thread; a dialog left behind would add one.
int CountWindows()
{
    int Count = 0;
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND, LPARAM Param) -> BOOL { return ++*reinterpret_cast<int*>(Param), TRUE; },
        reinterpret_cast<LPARAM>(&Count));
    return Count;
}

TEST_F(CommonDialogs, LeaveNothingBehind)
{
    constexpr int Rounds = 29, Warm = 2;
    int Windows = 0;
    DWORD Objects = 0;
    for (int Round = 0; Round < Rounds; ++Round) {
        if (Round == Warm) {
            Windows = CountWindows();
            Objects = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
        }
        for (const TDialogCase& Case : DialogCases())
            if (std::strncmp(Case.Name, "print", 5) != 0 || Round < 2 * Warm) {
                Script({});
                if (const HWND Dialog = Case.Open(Owner, DialogListing::Hook))
                    PostMessageA(Dialog, WM_CLOSE, 0, 0);
                DialogListing::HandleMessages(nullptr);
            }
    }
    EXPECT_EQ(CountWindows(), Windows);
    EXPECT_LE(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS), Objects);
}

} // namespace
