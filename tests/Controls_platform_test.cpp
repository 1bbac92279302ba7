#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "platform/Picture.h"
#include "platform/winapi.h"

// What the built-in controls answer and which notifications they send. The same
// rows hold for the operating system's own controls.
namespace {
std::string Log;

LRESULT CALLBACK ParentProc(HWND Window, UINT Message, WPARAM WParam, LPARAM LParam)
{
    if (Message == WM_COMMAND && LParam)
        Log += "c" + std::to_string(HIWORD(WParam)) + " ";
    if (Message == WM_NOTIFY)
        Log += "n" + std::to_string(static_cast<int>(reinterpret_cast<NMHDR*>(LParam)->code)) + " ";
    if (Message == WM_HSCROLL || Message == WM_VSCROLL)
        Log += "s" + std::to_string(LOWORD(WParam)) + " ";
    return DefWindowProcA(Window, Message, WParam, LParam);
}

class Controls : public testing::Test {
protected:
    Controls()
    {
        INITCOMMONCONTROLSEX Common{sizeof Common, 0xFFFF};
        InitCommonControlsEx(&Common);
        WNDCLASSA Class{};
        Class.lpfnWndProc = ParentProc;
        Class.lpszClassName = "ControlsTest";
        Class.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
        RegisterClassA(&Class);
        Parent = CreateWindowExA(0, "ControlsTest", "Parent", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 400,
                                 300, nullptr, nullptr, nullptr, nullptr);
    }
    ~Controls() override { DestroyWindow(Parent); }

    HWND Make(const char* Class, const char* Text, DWORD Style)
    {
        const HWND Window = CreateWindowExA(0, Class, Text, WS_CHILD | WS_VISIBLE | Style, 10, 10, 200, 100,
                                            Parent, reinterpret_cast<HMENU>(INT_PTR{7}), nullptr, nullptr);
        EXPECT_NE(Window, nullptr) << Class;
        Log.clear();
        return Window;
    }

    // The answer, and the notifications in Log.
    static LRESULT Send(HWND Window, UINT Message, WPARAM WParam = 0, LPARAM LParam = 0)
    {
        Log.clear();
        return SendMessageA(Window, Message, WParam, LParam);
    }
    static LRESULT SendText(HWND Window, UINT Message, WPARAM WParam, const char* Text)
    {
        return Send(Window, Message, WParam, reinterpret_cast<LPARAM>(Text));
    }
    static std::string TextOf(HWND Window)
    {
        char Buffer[200] = "";
        GetWindowTextA(Window, Buffer, sizeof Buffer);
        return Buffer;
    }
    static std::string Selection(HWND Edit)
    {
        DWORD Start = 0, End = 0;
        SendMessageA(Edit, EM_GETSEL, reinterpret_cast<WPARAM>(&Start), reinterpret_cast<LPARAM>(&End));
        return std::to_string(Start) + "-" + std::to_string(End);
    }

    HWND Parent;
};

constexpr LPARAM Inside = MAKELPARAM(5, 5);
const char Mixed[] = "a\xE6\x97\xA5\xE6\x9C\xAC\xF0\x9F\x98\x80z"; // six UTF-16 units, twelve bytes
} // namespace

TEST_F(Controls, ButtonsChangeTheirStateAndTellOnce)
{
    const struct {
        const char* Name;
        DWORD Style;
        LRESULT First, Second, Indeterminate;
    } Cases[] = {
        {"push", BS_PUSHBUTTON, 0, 0, 0},       {"check by program", BS_CHECKBOX, 0, 0, 1},
        {"check", BS_AUTOCHECKBOX, 1, 0, 1},    {"three states", BS_AUTO3STATE, 1, 2, 2},
        {"radio", BS_AUTORADIOBUTTON, 1, 1, 1}, {"radio by program", BS_RADIOBUTTON, 0, 0, 1},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        const HWND Button = Make("Button", "x", Case.Style);
        SetFocus(Button);
        Send(Button, BM_CLICK);
        EXPECT_EQ(Log, "c0 ");
        EXPECT_EQ(Send(Button, BM_GETCHECK), Case.First);
        Send(Button, WM_LBUTTONDOWN, 0, Inside);
        EXPECT_EQ(Log, "");
        Send(Button, WM_LBUTTONUP, 0, Inside);
        EXPECT_EQ(Log, "c0 ");
        EXPECT_EQ(Send(Button, BM_GETCHECK), Case.Second);
        Send(Button, BM_SETCHECK, BST_INDETERMINATE);
        EXPECT_EQ(Send(Button, BM_GETCHECK), Case.Indeterminate);
        Send(Button, WM_LBUTTONDOWN, 0, Inside);
        Send(Button, WM_LBUTTONUP, 0, MAKELPARAM(500, 5)); // let go outside
        EXPECT_EQ(Log, "");
        DestroyWindow(Button);
    }
}

TEST_F(Controls, CheckedRadioButtonUnchecksItsGroup)
{
    const HWND First = Make("Button", "1", BS_AUTORADIOBUTTON | WS_GROUP),
               Second = Make("Button", "2", BS_AUTORADIOBUTTON);
    const HWND Other = Make("Button", "3", BS_AUTORADIOBUTTON | WS_GROUP);
    for (const HWND Button : {First, Other, Second})
        Send(Button, BM_CLICK);
    EXPECT_EQ(Send(First, BM_GETCHECK), BST_UNCHECKED);
    EXPECT_EQ(Send(Second, BM_GETCHECK), BST_CHECKED);
    EXPECT_EQ(Send(Other, BM_GETCHECK), BST_CHECKED);
}

TEST_F(Controls, EditCountsUnitsOfUtf16AndBytesOfTheWhole)
{
    const HWND Edit = Make("Edit", Mixed, 0);
    EXPECT_EQ(Send(Edit, WM_GETTEXTLENGTH), 12);
    const struct {
        int Start, End;
        const char* Result;
    } Cases[] = {{1, 3, "1-3"}, {0, -1, "0-6"}, {3, 1, "1-3"}, {-1, 0, "1-1"}, {4, 99, "4-6"}};
    for (const auto& Case : Cases) {
        Send(Edit, EM_SETSEL, static_cast<WPARAM>(Case.Start), Case.End);
        EXPECT_EQ(Selection(Edit), Case.Result) << Case.Start;
    }
    Send(Edit, EM_SETSEL, 1, 3);
    SendText(Edit, EM_REPLACESEL, TRUE, "-");
    EXPECT_EQ(Log, "c1024 c768 ");
    EXPECT_EQ(TextOf(Edit), "a-\xF0\x9F\x98\x80z");
    EXPECT_EQ(Send(Edit, EM_GETMODIFY), TRUE);
    Send(Edit, EM_UNDO);
    EXPECT_EQ(TextOf(Edit), Mixed);
    char Small[4] = "";
    EXPECT_EQ(GetWindowTextA(Edit, Small, 4), 1); // no half of a character
    EXPECT_STREQ(Small, "a");
}

TEST_F(Controls, EditTellsOfTypingAndOfSettingOnlyInOneLine)
{
    const HWND Edit = Make("Edit", "", 0),
               Memo = Make("Edit", "", ES_MULTILINE | ES_AUTOHSCROLL | ES_WANTRETURN);
    SendText(Edit, WM_SETTEXT, 0, "one");
    EXPECT_EQ(Log, "c1024 c768 ");
    SendText(Memo, WM_SETTEXT, 0, "one");
    EXPECT_EQ(Log, "");
    Send(Memo, WM_CHAR, '\r');
    EXPECT_EQ(Log, "c1024 c768 ");
    Send(Edit, EM_SETSEL, 0, 0);
    Send(Edit, WM_CHAR, VK_BACK);
    EXPECT_EQ(Log, "");
    Send(Edit, EM_LIMITTEXT, 4);
    Send(Edit, WM_CHAR, 'x');
    Send(Edit, WM_CHAR, 'y');
    EXPECT_EQ(TextOf(Edit), "xone");
}

TEST_F(Controls, EditKnowsItsLines)
{
    const HWND Memo = Make("Edit", "one\r\nt\xE6\x97\xA5o\r\n\r\nfour", ES_MULTILINE | ES_AUTOHSCROLL);
    EXPECT_EQ(Send(Memo, EM_GETLINECOUNT), 4);
    const int Starts[] = {0, 5, 10, 12, -1};
    for (int Line = 0; Line < 5; ++Line)
        EXPECT_EQ(Send(Memo, EM_LINEINDEX, static_cast<WPARAM>(Line)), Starts[Line]);
    EXPECT_EQ(Send(Memo, EM_LINELENGTH, 5), 3);
    EXPECT_EQ(Send(Memo, EM_LINEFROMCHAR, 6), 1);
    char Buffer[20] = {19, 0};
    EXPECT_EQ(Send(Memo, EM_GETLINE, 1, reinterpret_cast<LPARAM>(Buffer)), 5);
    EXPECT_EQ(std::string(Buffer, 5), "t\xE6\x97\xA5o");
}

TEST_F(Controls, ListBoxSortsFindsAndSelects)
{
    const HWND List = Make("ListBox", "", LBS_NOTIFY | LBS_SORT);
    EXPECT_EQ(SendText(List, LB_ADDSTRING, 0, "b"), 0);
    EXPECT_EQ(SendText(List, LB_ADDSTRING, 0, "a\xE6\x97\xA5"), 0);
    EXPECT_EQ(Send(List, LB_GETTEXTLEN, 0), 4);
    EXPECT_EQ(SendText(List, LB_INSERTSTRING, 9, "z"), LB_ERR);
    EXPECT_EQ(SendText(List, LB_INSERTSTRING, static_cast<WPARAM>(-1), "0"), 2);
    EXPECT_EQ(SendText(List, LB_FINDSTRING, static_cast<WPARAM>(-1), "A"), 0);
    EXPECT_EQ(SendText(List, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), "A"), LB_ERR);
    EXPECT_EQ(SendText(List, LB_SELECTSTRING, static_cast<WPARAM>(-1), "B"), 1);
    EXPECT_EQ(Log, ""); // only the user is told of
    EXPECT_EQ(Send(List, LB_DELETESTRING, 1), 2);
    EXPECT_EQ(Send(List, LB_GETCURSEL), LB_ERR);
    Send(List, WM_KEYDOWN, VK_DOWN);
    EXPECT_EQ(Log, "c1 ");
    Send(List, LB_SETITEMDATA, 1, 42);
    EXPECT_EQ(Send(List, LB_GETITEMDATA, 1), 42);
    EXPECT_EQ(Send(List, LB_GETTEXT, 7, 0), LB_ERR);
}

TEST_F(Controls, ComboBoxKeepsFieldAndListTogether)
{
    const HWND Combo = Make("ComboBox", "", CBS_DROPDOWN);
    SendText(Combo, CB_ADDSTRING, 0, "one");
    SendText(Combo, CB_ADDSTRING, 0, "two");
    EXPECT_EQ(Send(Combo, CB_SETCURSEL, 1), 1);
    EXPECT_EQ(Log, "");
    EXPECT_EQ(TextOf(Combo), "two");
    SendText(Combo, WM_SETTEXT, 0, "one");
    EXPECT_EQ(Send(Combo, CB_GETCURSEL), 1);
    const struct {
        bool Show;
        const char* Notes;
    } Drops[] = {{true, "c7 "}, {false, "c10 c8 "}};
    for (const auto& Case : Drops) {
        Send(Combo, CB_SHOWDROPDOWN, Case.Show);
        EXPECT_EQ(Log, Case.Notes);
        EXPECT_EQ(Send(Combo, CB_GETDROPPEDSTATE), Case.Show);
    }
    Send(Combo, CB_SETCURSEL, static_cast<WPARAM>(-1));
    EXPECT_EQ(TextOf(Combo), "");
    Send(Combo, WM_KEYDOWN, VK_DOWN);
    EXPECT_EQ(Log, "c9 c1 ");
    const HWND Edit = GetWindow(Combo, GW_CHILD);
    EXPECT_EQ(GetDlgCtrlID(Edit), 1001);
    Send(Edit, WM_CHAR, 'q');
    EXPECT_EQ(Log, "c6 c5 ");
    RECT Rect{};
    GetWindowRect(Combo, &Rect);
    EXPECT_LT(Rect.bottom - Rect.top, 40); // the height given is that of the dropped list
}

TEST_F(Controls, ComboBoxWithoutFieldShowsOnlyItems)
{
    const HWND Combo = Make("ComboBox", "", CBS_DROPDOWNLIST);
    SendText(Combo, CB_ADDSTRING, 0, "one");
    Send(Combo, CB_SETCURSEL, 0);
    SendText(Combo, WM_SETTEXT, 0, "other");
    EXPECT_EQ(TextOf(Combo), "one");
    Send(Combo, CB_DELETESTRING, 0);
    EXPECT_EQ(Send(Combo, CB_GETCURSEL), CB_ERR);
    EXPECT_EQ(TextOf(Combo), "");
}

TEST_F(Controls, TabsTellOfTheUserButNotOfTheProgram)
{
    const HWND Tabs = Make(WC_TABCONTROLA, "", 0);
    TCITEMA Item{};
    Item.mask = TCIF_TEXT;
    char Text[] = "tab";
    Item.pszText = Text;
    for (int Index = 0; Index < 3; ++Index)
        EXPECT_EQ(Send(Tabs, TCM_INSERTITEMA, static_cast<WPARAM>(Index), reinterpret_cast<LPARAM>(&Item)),
                  Index);
    EXPECT_EQ(Send(Tabs, TCM_SETCURSEL, 1), 0);
    EXPECT_EQ(Log, "");
    Send(Tabs, WM_KEYDOWN, VK_RIGHT);
    EXPECT_EQ(Log, "n-550 n-552 n-551 ");
    EXPECT_EQ(Send(Tabs, TCM_GETCURSEL), 2);
    Send(Tabs, WM_LBUTTONDOWN, 0, Inside);
    EXPECT_EQ(Log, "n-552 n-551 ");
    RECT First{}, Second{}, Page = {0, 0, 100, 100};
    Send(Tabs, TCM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&First));
    Send(Tabs, TCM_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&Second));
    EXPECT_EQ(First.right, Second.left);
    Send(Tabs, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&Page));
    EXPECT_EQ(Page.left, 4);
    EXPECT_EQ(Page.top, First.bottom + 2);
    Send(Tabs, TCM_SETCURSEL, 0);
    Send(Tabs, TCM_DELETEITEM, 0);
    EXPECT_EQ(Send(Tabs, TCM_GETCURSEL), -1);
}

TEST_F(Controls, ListViewTellsOfEveryChange)
{
    const HWND View = Make(WC_LISTVIEWA, "", LVS_REPORT);
    char Text[] = "item";
    LVCOLUMNA Column{};
    Column.mask = LVCF_TEXT | LVCF_WIDTH;
    Column.cx = 80;
    Column.pszText = Text;
    EXPECT_EQ(Send(View, LVM_INSERTCOLUMNA, 0, reinterpret_cast<LPARAM>(&Column)), 0);
    EXPECT_EQ(Send(View, LVM_GETCOLUMNWIDTH, 0), 80);
    LVITEMA Item{};
    Item.mask = LVIF_TEXT;
    Item.pszText = Text;
    EXPECT_EQ(Send(View, LVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&Item)), 0);
    EXPECT_EQ(Log, "n-102 ");
    Send(View, LVM_SETITEMTEXTA, 0, reinterpret_cast<LPARAM>(&Item));
    EXPECT_EQ(Log, "n-100 "); // the same text
    char Other[] = "other";
    Item.pszText = Other;
    EXPECT_EQ(Send(View, LVM_SETITEMTEXTA, 0, reinterpret_cast<LPARAM>(&Item)), TRUE);
    EXPECT_EQ(Log, "n-100 n-101 ");
    Item.mask = LVIF_STATE;
    Item.state = Item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    Send(View, LVM_SETITEMSTATE, 0, reinterpret_cast<LPARAM>(&Item));
    EXPECT_EQ(Log, "n-100 n-101 ");
    EXPECT_EQ(Send(View, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED), 0);
    Send(View, LVM_DELETEITEM, 0);
    EXPECT_EQ(Log, "n-100 n-101 n-103 ");
    EXPECT_EQ(Send(View, LVM_GETITEMCOUNT), 0);
}

TEST_F(Controls, TreeViewMovesTheSelectionOutOfAClosedBranch)
{
    const HWND Tree = Make(WC_TREEVIEWA, "", TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT);
    char Text[] = "node";
    TVINSERTSTRUCTA Insert{};
    Insert.hParent = TVI_ROOT;
    Insert.hInsertAfter = TVI_LAST;
    Insert.item.mask = TVIF_TEXT;
    Insert.item.pszText = Text;
    const LRESULT Root = Send(Tree, TVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&Insert));
    Insert.hParent = reinterpret_cast<HTREEITEM>(Root);
    const LRESULT Child = Send(Tree, TVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&Insert));
    const struct {
        const char* Name;
        UINT Message;
        WPARAM How;
        LPARAM Node;
        const char* Notes;
    } Steps[] = {
        {"open", TVM_EXPAND, TVE_EXPAND, Root, "n-405 n-406 "},
        {"open again", TVM_EXPAND, TVE_EXPAND, Root, ""},
        {"select", TVM_SELECTITEM, TVGN_CARET, Child, "n-401 n-402 "},
    };
    for (const auto& Step : Steps) {
        EXPECT_TRUE(Send(Tree, Step.Message, Step.How, Step.Node)) << Step.Name;
        EXPECT_EQ(Log, Step.Notes) << Step.Name;
    }
    Send(Tree, TVM_EXPAND, TVE_COLLAPSE, Root);
    EXPECT_EQ(Send(Tree, TVM_GETNEXTITEM, TVGN_CARET), Root);
    Send(Tree, TVM_DELETEITEM, 0, Root);
    EXPECT_EQ(Log, "n-409 n-409 ");
    EXPECT_EQ(Send(Tree, TVM_GETCOUNT), 0);
}

TEST_F(Controls, StatusBarKeepsATextAPart)
{
    const HWND Bar = Make(STATUSCLASSNAMEA, "hi", 0);
    const int Parts[] = {100, -1};
    EXPECT_TRUE(Send(Bar, SB_SETPARTS, 2, reinterpret_cast<LPARAM>(Parts)));
    EXPECT_TRUE(SendText(Bar, SB_SETTEXTA, 1, "tw\xE6\x97\xA5"));
    char Buffer[20] = "";
    EXPECT_EQ(LOWORD(Send(Bar, SB_GETTEXTA, 1, reinterpret_cast<LPARAM>(Buffer))), 5);
    EXPECT_STREQ(Buffer, "tw\xE6\x97\xA5");
    EXPECT_EQ(TextOf(Bar), "hi");
    RECT Rect{};
    Send(Bar, SB_GETRECT, 1, reinterpret_cast<LPARAM>(&Rect));
    EXPECT_EQ(Rect.left, 102);
    EXPECT_EQ(Rect.top, 2);
}

TEST_F(Controls, RangeControlsStayInTheirRange)
{
    const HWND Bar = Make(PROGRESS_CLASSA, "", 0);
    Send(Bar, PBM_SETPOS, 200);
    EXPECT_EQ(Send(Bar, PBM_GETPOS), 100);
    EXPECT_EQ(Send(Bar, PBM_SETRANGE, 0, MAKELPARAM(0, 50)), MAKELONG(0, 100));
    Send(Bar, PBM_STEPIT);
    EXPECT_EQ(Send(Bar, PBM_GETPOS), 10);

    const HWND Track = Make(TRACKBAR_CLASSA, "", 0);
    const struct {
        WPARAM Key;
        LRESULT Position;
        const char* Notes;
    } Keys[] = {{VK_RIGHT, 1, "s1 "}, {VK_NEXT, 21, "s3 "}, {VK_END, 100, "s7 "}, {VK_HOME, 0, "s6 "}};
    for (const auto& Case : Keys) {
        Send(Track, WM_KEYDOWN, Case.Key);
        EXPECT_EQ(Log, Case.Notes);
        EXPECT_EQ(Send(Track, TBM_GETPOS), Case.Position);
    }

    const HWND Buddy = Make("Edit", "", 0), UpDown = Make(UPDOWN_CLASSA, "", UDS_SETBUDDYINT);
    Send(UpDown, UDM_SETBUDDY, reinterpret_cast<WPARAM>(Buddy));
    Send(UpDown, UDM_SETRANGE, 0, MAKELPARAM(10, 0));
    Send(UpDown, UDM_SETPOS, 0, 55);
    EXPECT_EQ(TextOf(Buddy), "10");
    SetWindowTextA(Buddy, "3");
    EXPECT_EQ(Send(UpDown, UDM_GETPOS), 3);
    SetWindowTextA(Buddy, "q");
    EXPECT_EQ(HIWORD(Send(UpDown, UDM_GETPOS)), 1);
}

TEST_F(Controls, ToolBarButtonsAreFoundByTheirCommand)
{
    const HWND Bar = Make(TOOLBARCLASSNAMEA, "", 0);
    Send(Bar, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON));
    TBBUTTON Button{};
    Button.iBitmap = -2;
    Button.idCommand = 77;
    Button.fsState = TBSTATE_ENABLED;
    Button.iString = reinterpret_cast<INT_PTR>("Open");
    EXPECT_TRUE(Send(Bar, TB_ADDBUTTONSA, 1, reinterpret_cast<LPARAM>(&Button)));
    char Buffer[20] = "";
    EXPECT_EQ(Send(Bar, TB_GETBUTTONTEXTA, 77, reinterpret_cast<LPARAM>(Buffer)), 4);
    EXPECT_STREQ(Buffer, "Open");
    EXPECT_EQ(Send(Bar, TB_COMMANDTOINDEX, 78), -1);
    Send(Bar, WM_LBUTTONDOWN, 0, Inside);
    Send(Bar, WM_LBUTTONUP, 0, Inside);
    EXPECT_NE(Log.find("c0 "), std::string::npos);
    Send(Bar, TB_CHECKBUTTON, 77, TRUE);
    EXPECT_EQ(Send(Bar, TB_GETSTATE, 77), TBSTATE_ENABLED | TBSTATE_CHECKED);
}

// A handler that closes the window it hears from.
TEST_F(Controls, MayBeDestroyedFromTheirNotifications)
{
    struct TLocal {
        static LRESULT CALLBACK Proc(HWND Window, UINT Message, WPARAM WParam, LPARAM LParam)
        {
            if ((Message == WM_COMMAND || Message == WM_NOTIFY) && IsWindow(GetWindow(Window, GW_CHILD))) {
                const HWND Child = GetWindow(Window, GW_CHILD);
                SetWindowLongPtrA(Window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&DefWindowProcA));
                DestroyWindow(Child);
            }
            return DefWindowProcA(Window, Message, WParam, LParam);
        }
    };
    const struct {
        const char* Class;
        DWORD Style;
        UINT Message;
        WPARAM WParam;
    } Cases[] = {
        {"Button", BS_AUTOCHECKBOX, BM_CLICK, 0},
        {"Edit", 0, WM_CHAR, 'x'},
        {"ListBox", LBS_NOTIFY, WM_KEYDOWN, VK_DOWN},
        {WC_LISTVIEWA, LVS_REPORT, WM_KEYDOWN, VK_DOWN},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Class);
        const HWND Window = Make(Case.Class, "x", Case.Style);
        SendText(Window, LB_ADDSTRING, 0, "x");
        SetWindowLongPtrA(Parent, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&TLocal::Proc));
        Send(Window, Case.Message, Case.WParam);
        EXPECT_FALSE(IsWindow(Window));
        SetWindowLongPtrA(Parent, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&ParentProc));
    }
}

TEST_F(Controls, PictureShowsTheWindow)
{
    Make("Button", "Picture", 0);
    const auto File = std::filesystem::temp_directory_path() / "orbilex_controls_test.png";
    ASSERT_TRUE(SaveWindowPicture(Parent, File.string()));
    char Signature[8] = "";
    std::ifstream(File, std::ios::binary).read(Signature, 4);
    EXPECT_EQ(std::string(Signature + 1, 3), "PNG");
    std::filesystem::remove(File);
    EXPECT_FALSE(SaveWindowPicture(nullptr, File.string()));
    EXPECT_FALSE(std::filesystem::exists(File));
}
