// Choosing in list boxes and combo boxes by keyboard and mouse.
#include "tests/ControlScripts.h"

namespace {

struct ListBoxes : TControlScripts {
    bool Multiple = false;

    std::string Note(UINT Message, WPARAM WParam) const override
    {
        return Message == WM_COMMAND && HIWORD(WParam) == LBN_SELCHANGE ? "!" : "";
    }
    LPARAM Middle(const std::string& Item) const
    {
        RECT Rect{};
        Send(LB_GETITEMRECT, static_cast<WPARAM>(std::stoi(Item)), reinterpret_cast<LPARAM>(&Rect));
        return MAKELPARAM(Rect.left + 5, (Rect.top + Rect.bottom) / 2);
    }
    static WPARAM Number(const std::string& Text) { return static_cast<WPARAM>(std::stoi(Text)); }
    void Do(char Letter, const std::string& Argument) override
    {
        if (PressArrow(Letter))
            return;
        switch (Letter) {
        case '_':
            return Press(VK_SPACE);
        case 'c':
            return Type(Argument[0]);
        case 'm': // click
            Send(WM_LBUTTONDOWN, MouseKeys(true), Middle(Argument));
            Send(WM_LBUTTONUP, MouseKeys(false), Middle(Argument));
            return;
        case 'b': // button down, move, up
            Send(WM_LBUTTONDOWN, MouseKeys(true), Middle(Argument));
            return;
        case 'g':
            Send(WM_MOUSEMOVE, MouseKeys(true), Middle(Argument));
            return;
        case 'z':
            Send(WM_LBUTTONUP, MouseKeys(false), Middle(Argument));
            return;
        case '-':
            Send(LB_DELETESTRING, Number(Argument));
            return;
        case '+':
            SendText(LB_INSERTSTRING, Number(Argument), "new");
            return;
        case 's':
            Send(Multiple ? LB_SETSEL : LB_SETCURSEL, Multiple ? 1 : Number(Argument),
                 static_cast<LPARAM>(Number(Argument)));
            return;
        case '~':
            Send(LB_SETSEL, 0, static_cast<LPARAM>(Number(Argument)));
            return;
        case 'i': // a range of items
            Send(LB_SELITEMRANGE, 1, MAKELPARAM(Argument[0] - '0', Argument[1] - '0'));
            return;
        case 'x':
            Send(LB_SELITEMRANGEEX, static_cast<WPARAM>(Argument[0] - '0'), Argument[1] - '0');
            return;
        case 't':
            Send(LB_SETTOPINDEX, Number(Argument));
            return;
        case 'k':
            Send(LB_SETCARETINDEX, Number(Argument));
            return;
        case 'a':
            Send(LB_SETANCHORINDEX, Number(Argument));
            return;
        default:
            ADD_FAILURE() << Letter;
        }
    }
    // Caret, chosen items, first item in view when it is not the very first.
    std::string Outcome() const override
    {
        std::string Result = std::to_string(Send(LB_GETCARETINDEX)) + "[";
        for (LRESULT I = 0; I < Send(LB_GETCOUNT); ++I)
            if (Send(LB_GETSEL, static_cast<WPARAM>(I)) > 0)
                Result += std::to_string(I);
        Result += "]";
        if (const LRESULT Top = Send(LB_GETTOPINDEX))
            Result += "^" + std::to_string(Top);
        if (Multiple && Send(LB_GETANCHORINDEX) >= 0)
            Result += "a" + std::to_string(Send(LB_GETANCHORINDEX));
        return Result;
    }
};

} // namespace

// The range between anchor and caret, what a click with Ctrl adds, and where the
// caret is after items came and went.
TEST_F(ListBoxes, ChooseAsKeysAndMouseSay)
{
    const struct {
        const char* Name;
        DWORD Style;
        const char* Script;
    } Cases[] = {
        {"keys", 0, "d=0[0]! d=1[1]! n=4[4]^1! e=6[6]^3! u=5[5]^3! p=2[2]^2! h=0[0]! u=0[0]!"},
        {"mouse", 0, "m2=2[2]! b0=0[0] g3=3[3] z3=3[3]! Cm1=1[1]! Sm3=3[3]!"},
        {"characters", 0, "cc=2[2]! cc=3[3]! cx=3[3] ca=0[0]!"},
        {"items come and go", 0, "s2=2[2] -0=2[1] +0=2[2] -2=2[] d=2[2]! s1=1[1]"},
        {"each by itself: keys", LBS_MULTIPLESEL, "d=1[]! Sd=2[]! d=3[]! e=6[]^3! h=0[]!"},
        {"each by itself: mouse", LBS_MULTIPLESEL,
         "m1=1[1]a1! m3=3[13]a3! m1=1[3]a1! b0=0[03]a0 g2=2[03]a0 z2=2[03]a0! Sm3=3[0]a0!"},
        {"each by itself: by program", LBS_MULTIPLESEL,
         "s2=2[2]a2 k4=4[2]^1a2 i13=4[123]^1a2 s-1=4[0123456]^1 -2=4[012345]^1 +1=4[023456]^1 "
         "x20=4[3456]^1 x02=4[0123456]^1 t3=4[0123456]^3"},
        {"ranges: keys", LBS_EXTENDEDSEL,
         "d=1[1]a1! d=2[2]a2! Sd=3[23]a2! Sd=4[234]^1a2! Su=3[23]^1a2! d=4[4]^1a4! h=0[0]a0! "
         "Se=6[0123456]^3a0! u=5[5]^3a5!"},
        {"ranges: mouse", LBS_EXTENDEDSEL,
         "m1=1[1]a1! Sm3=3[123]a1! m2=2[2]a2! Cm4=4[24]^1a4! Cm4=4[2]^1a4! m3=3[3]^1a3! "
         "b1=1[1]^1a1 g3=3[123]^1a1 z3=3[123]^1a1! Cm2=2[13]^1a2!"},
        {"ranges: by program", LBS_EXTENDEDSEL,
         "s2=2[2]a2 s4=4[24]^1a4 i13=4[1234]^1a4 s-1=4[0123456]^1 -2=4[012345]^1 +1=4[023456]^1 "
         "a2=4[023456]^1a2 k0=0[023456]a2 d=1[1]a1! Sd=2[12]a1! -0=2[01]a1"},
        {"ranges: taken back by program", LBS_EXTENDEDSEL,
         "s2=2[2]a2 s4=4[24]^1a4 ~1=4[24]^1a4 ~2=4[4]^1a4 ~-1=4[]^1a4"},
        {"ranges: characters", LBS_EXTENDEDSEL, "m2=2[2]a2! Sm3=3[23]a2! ca=0[012]a2!"},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        Multiple = Case.Style != 0;
        Make("ListBox", "", Case.Style | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL, 200, 60);
        for (const char* const Text : {"a", "b", "c", "ca", "cb", "d", "e"})
            SendText(LB_ADDSTRING, 0, Text);
        Send(LB_SETITEMHEIGHT, 0, 15);
        EXPECT_EQ(Play(Case.Script), Case.Script);
    }
}

// Items in columns: the next one to the right is a column's height away.
TEST_F(ListBoxes, RunThroughColumns)
{
    Make("ListBox", "", LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | LBS_MULTICOLUMN | WS_HSCROLL, 200, 65);
    for (int I = 0; I < 9; ++I)
        SendText(LB_ADDSTRING, 0, "x");
    Send(LB_SETITEMHEIGHT, 0, 15);
    Send(LB_SETCOLUMNWIDTH, 90);
    RECT Rect{};
    Send(LB_GETITEMRECT, 4, reinterpret_cast<LPARAM>(&Rect));
    EXPECT_EQ(Rect.left, 90);
    EXPECT_EQ(Rect.right, 180);
    EXPECT_EQ(Rect.bottom - Rect.top, 15);
    const char* const Script = "r=3[3]! r=6[6]^3! r=8[8]^3! m4=4[4]^3! l=1[1]! e=8[8]^3! h=0[0]!";
    EXPECT_EQ(Play(Script), Script);
}

namespace {

struct ComboBoxes : TControlScripts {
    std::string Note(UINT Message, WPARAM WParam) const override
    {
        constexpr struct {
            WORD Code;
            const char* Text;
        } Codes[] = {{CBN_SELCHANGE, "!"}, {CBN_DROPDOWN, "<"},     {CBN_CLOSEUP, ">"},
                     {CBN_SELENDOK, "y"},  {CBN_SELENDCANCEL, "n"}, {CBN_EDITCHANGE, "e"},
                     {CBN_SETFOCUS, "f"},  {CBN_KILLFOCUS, "k"}};
        for (const auto& Each : Codes)
            if (Message == WM_COMMAND && HIWORD(WParam) == Each.Code)
                return Each.Text;
        return {};
    }
    void ClickList(int Item)
    {
        COMBOBOXINFO Info{};
        Info.cbSize = sizeof Info;
        GetComboBoxInfo(Control, &Info);
        RECT Rect{};
        SendMessageA(Info.hwndList, LB_GETITEMRECT, static_cast<WPARAM>(Item),
                     reinterpret_cast<LPARAM>(&Rect));
        const LPARAM At = MAKELPARAM(5, (Rect.top + Rect.bottom) / 2);
        SendMessageA(Info.hwndList, WM_MOUSEMOVE, 0, At);
        SendMessageA(Info.hwndList, WM_LBUTTONDOWN, MK_LBUTTON, At);
        SendMessageA(Info.hwndList, WM_LBUTTONUP, 0, At);
    }
    void ClickButton() const
    {
        RECT Rect{};
        GetClientRect(Control, &Rect);
        const LPARAM At = MAKELPARAM(Rect.right - 8, 8);
        Send(WM_LBUTTONDOWN, MK_LBUTTON, At);
        Send(WM_LBUTTONUP, 0, At);
    }
    void Do(char Letter, const std::string& Argument) override
    {
        if (PressArrow(Letter))
            return;
        switch (Letter) {
        case '4':
            return Press(VK_F4);
        case '.': // Enter and Esc, with the characters that they type
            Press(VK_RETURN);
            return Type('\r');
        case 'q':
            Press(VK_ESCAPE);
            return Type('\x1b');
        case 'c':
            return Type(Argument[0]);
        case 'b':
            return ClickButton();
        case 'm':
            return ClickList(std::stoi(Argument));
        case 'w':
            SendMessageA(GetFocus(), WM_MOUSEWHEEL, MAKEWPARAM(0, -120), 0);
            return;
        case '-':
            Send(CB_DELETESTRING, static_cast<WPARAM>(std::stoi(Argument)));
            return;
        case '+':
            SendText(CB_INSERTSTRING, static_cast<WPARAM>(std::stoi(Argument)), "new");
            return;
        case 's':
            Send(CB_SETCURSEL, static_cast<WPARAM>(std::stoi(Argument)));
            return;
        case 'o': // another control takes the focus
            SetFocus(Parent);
            SetFocus(Control);
            return;
        default:
            ADD_FAILURE() << Letter;
        }
    }
    std::string Outcome() const override
    {
        char Text[50] = "";
        GetWindowTextA(Control, Text, sizeof Text);
        return std::to_string(Send(CB_GETCURSEL)) + Text;
    }
};

} // namespace

// Keys that the field of a combo box must leave to its list, and what is told
// when the list opens, closes and is taken from.
TEST_F(ComboBoxes, AreOperatedByKeysAndMouse)
{
    const struct {
        const char* Name;
        DWORD Style;
        const char* Script;
    } Cases[] = {
        {"simple", CBS_SIMPLE, "d=0a! d=1b! u=0a! e=0a h=0a cx=0xae"},
        {"field", CBS_DROPDOWN,
         "d=0ay! d=1by! u=0ay! h=0a e=0a cx=0axe d=1by! 4=1b< d=2ba! d=3bb! q=3bbn> 4=3bb< "
         "d=4c! .=4cy> cb=4be 4=1b< 4=1bn> Ad=1b< d=2ba! Au=2ban>"},
        {"list", CBS_DROPDOWNLIST,
         "d=0ay! d=1by! u=0ay! cb=1by! cb=2bay! cc=4cy! cx=4c 4=4c< u=3bb! q=3bbn> 4=3bb< "
         "u=2ba! .=2bay> Ad=2ba< u=1b! Au=1bn> p=0ay!"},
        {"button and field", CBS_DROPDOWN, "b=-1< b=-1y> b=-1< m1=1by>! o=1bnkf"},
        {"button and list", CBS_DROPDOWNLIST, "b=-1< b=-1y> b=-1< m2=2bay>! b=2ba< w=3bb! o=3bbn>kf"},
        {"items of a field", CBS_DROPDOWN, "s2=2ba +0=3ba -3=-1ba +0=-1ba -0=-1ba"},
        {"items of a list", CBS_DROPDOWNLIST, "s2=2ba +0=3ba -3=-1 +0=-1 -0=-1"},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        Make("ComboBox", "", Case.Style, 200, 120);
        for (const char* const Text : {"a", "b", "ba", "bb", "c"})
            SendText(CB_ADDSTRING, 0, Text);
        EXPECT_EQ(Play(Case.Script), Case.Script);
    }
}
