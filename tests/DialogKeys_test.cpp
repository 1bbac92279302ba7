// Moving through a dialog by keyboard: tabs into nested pages, arrows in groups,
// mnemonics, and which button Enter presses.
#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "platform/winapi.h"

namespace {

constexpr int NameLabel = 100, Name = 101, Page = 110, Deep = 111, First = 131, Second = 132, Fourth = 134,
              Memo = 140;
std::string Pressed;

INT_PTR CALLBACK DialogProc(HWND, UINT Message, WPARAM WParam, LPARAM)
{
    if (Message == WM_COMMAND && HIWORD(WParam) == BN_CLICKED)
        Pressed += " pressed " + std::to_string(LOWORD(WParam));
    return Message == WM_INITDIALOG;
}

struct DialogKeys : testing::Test {
    DialogKeys()
    {
        struct {
            DLGTEMPLATE Template;
            WORD MenuClassTitle[3];
        } Data{};
        Data.Template.style = WS_POPUP | WS_CAPTION | WS_VISIBLE;
        Data.Template.cx = Data.Template.cy = 100;
        Dialog = CreateDialogIndirectParamA(nullptr, &Data.Template, nullptr, DialogProc, 0);
        Add(Dialog, "Static", "&Name", 0, NameLabel);
        Add(Dialog, "Edit", "text", WS_TABSTOP, Name);
        const HWND Nested = Add(Dialog, "Static", "", 0, Page, WS_EX_CONTROLPARENT);
        Add(Nested, "Button", "&Deep", WS_TABSTOP, Deep);
        Add(Nested, "Button", "disabled", WS_TABSTOP | WS_DISABLED, 112);
        ShowWindow(Add(Nested, "Button", "h&idden", WS_TABSTOP, 113), SW_HIDE);
        Add(Dialog, "Static", "", WS_TABSTOP, 120, WS_EX_CONTROLPARENT); // a page without controls
        Add(Dialog, "Button", "&First", WS_TABSTOP | WS_GROUP | BS_AUTORADIOBUTTON, First);
        Add(Dialog, "Button", "&Second", BS_AUTORADIOBUTTON, Second);
        Add(Dialog, "Button", "Third", BS_AUTORADIOBUTTON | WS_DISABLED, 133);
        Add(Dialog, "Button", "F&ourth", BS_AUTORADIOBUTTON, Fourth);
        Add(Dialog, "Button", "OK", WS_TABSTOP | WS_GROUP | BS_DEFPUSHBUTTON, IDOK);
        Add(Dialog, "Button", "&Cancel", WS_TABSTOP, IDCANCEL);
        Add(Dialog, "Edit", "", WS_TABSTOP | ES_MULTILINE | ES_WANTRETURN, Memo);
        SendMessageA(Dialog, DM_SETDEFID, IDOK, 0);
        GoTo(Name);
    }
    ~DialogKeys() override { DestroyWindow(Dialog); }

    static HWND Add(HWND Parent, const char* Class, const char* Text, DWORD Style, int Id, DWORD ExStyle = 0)
    {
        return CreateWindowExA(ExStyle, Class, Text, WS_CHILD | WS_VISIBLE | Style, 5, 5, 20, 20, Parent,
                               reinterpret_cast<HMENU>(static_cast<INT_PTR>(Id)), nullptr, nullptr);
    }
    void GoTo(int Id)
    {
        SetFocus(GetDlgItem(Dialog, Id));
        Pressed.clear();
    }
    // The control that has the focus afterwards and the buttons that were pressed.
    std::string Send(UINT Message, WPARAM Key) const
    {
        MSG Typed{GetFocus(), Message, Key, Message == WM_SYSCHAR ? 0x20000001 : 1, 0, {}};
        IsDialogMessageA(Dialog, &Typed);
        return std::to_string(GetDlgCtrlID(GetFocus())) + std::exchange(Pressed, {});
    }
    static void HoldShift(bool Down)
    {
        BYTE Keys[256] = {};
        Keys[VK_SHIFT] = Down ? 0x80 : 0;
        SetKeyboardState(Keys);
    }
    // The button that looks like the default one.
    int Marked() const
    {
        for (const HWND Button : {GetDlgItem(Dialog, IDOK), GetDlgItem(Dialog, IDCANCEL),
                                  GetDlgItem(GetDlgItem(Dialog, Page), Deep)})
            if ((GetWindowLongA(Button, GWL_STYLE) & 0xF) == BS_DEFPUSHBUTTON)
                return GetDlgCtrlID(Button);
        return 0;
    }

    HWND Dialog;
};

} // namespace

// A page without a control, a hidden or a disabled control ended the round, and
// a text of many lines kept the key.
TEST_F(DialogKeys, TabGoesRoundAndMarksTheButton)
{
    const struct {
        int Focus, Marked;
    } Stops[] = {{Deep, Deep}, {First, IDOK}, {IDOK, IDOK}, {IDCANCEL, IDCANCEL}, {Memo, IDOK}, {Name, IDOK}};
    for (const auto& Stop : Stops) {
        EXPECT_EQ(Send(WM_KEYDOWN, VK_TAB), std::to_string(Stop.Focus));
        EXPECT_EQ(Marked(), Stop.Marked) << Stop.Focus;
    }
    HoldShift(true);
    for (const int Focus : {Memo, IDCANCEL, IDOK})
        EXPECT_EQ(Send(WM_KEYDOWN, VK_TAB), std::to_string(Focus));
    HoldShift(false);
}

TEST_F(DialogKeys, ArrowsChooseInTheirGroup)
{
    GoTo(First);
    const struct {
        WPARAM Key;
        const char* Result;
    } Steps[] = {{VK_DOWN, "132 pressed 132"},
                 {VK_DOWN, "134 pressed 134"},
                 {VK_DOWN, "131 pressed 131"},
                 {VK_LEFT, "134 pressed 134"},
                 {VK_UP, "132 pressed 132"}};
    for (const auto& Step : Steps)
        EXPECT_EQ(Send(WM_KEYDOWN, Step.Key), Step.Result);
    EXPECT_EQ(SendDlgItemMessageA(Dialog, Second, BM_GETCHECK, 0, 0), BST_CHECKED);
    EXPECT_EQ(SendDlgItemMessageA(Dialog, Fourth, BM_GETCHECK, 0, 0), BST_UNCHECKED);
}

TEST_F(DialogKeys, MnemonicsReachControlsAndTheOneBehindALabel)
{
    const struct {
        const char* What;
        char Key;
        const char* Result;
    } Steps[] = {
        {"inside a page", 'd', "111"},
        {"label", 'n', "101"},
        {"radio button", 's', "132 pressed 132"},
        {"hidden", 'i', "132"},
        {"capital letter", 'C', "2 pressed 2"},
        {"nobody's", 'q', "2"},
    };
    for (const auto& Step : Steps)
        EXPECT_EQ(Send(WM_SYSCHAR, static_cast<WPARAM>(Step.Key)), Step.Result) << Step.What;
    EXPECT_EQ(Send(WM_CHAR, 'o'), "134 pressed 134") << "without Alt where nothing is typed";
}

TEST_F(DialogKeys, EnterPressesTheDefaultButton)
{
    EXPECT_EQ(Send(WM_KEYDOWN, VK_RETURN), "101 pressed 1");
    EXPECT_EQ(Send(WM_KEYDOWN, VK_ESCAPE), "101 pressed 2");
    GoTo(Memo);
    EXPECT_EQ(Send(WM_KEYDOWN, VK_RETURN), "140");
    GoTo(IDCANCEL);
    SendMessageA(Dialog, DM_SETDEFID, IDCANCEL, 0);
    GoTo(Name);
    EXPECT_EQ(Send(WM_KEYDOWN, VK_RETURN), "101 pressed 2");
    SendMessageA(Dialog, DM_SETDEFID, IDOK, 0);
    EnableWindow(GetDlgItem(Dialog, IDOK), FALSE);
    EXPECT_EQ(Send(WM_KEYDOWN, VK_RETURN), "101");
}
