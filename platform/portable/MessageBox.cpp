// The system's message box: a dialog with the text, an icon and up to four
// buttons.
#include <algorithm>
#include <string>
#include <vector>

#include "platform/portable/Window.h"
#include "platform/portable/winbase.h"

namespace {

constexpr int IconId = 0x14;
constexpr int TextId = 0xFFFF;

struct TButton {
    int Id;
    const char* Text;
};

constexpr TButton Ok{IDOK, "OK"}, Cancel{IDCANCEL, "Cancel"}, Abort{IDABORT, "&Abort"},
    Retry{IDRETRY, "&Retry"}, Ignore{IDIGNORE, "&Ignore"}, Yes{IDYES, "&Yes"}, No{IDNO, "&No"},
    TryAgain{IDTRYAGAIN, "&Try Again"}, Continue{IDCONTINUE, "&Continue"}, Help{IDHELP, "Help"};

std::vector<TButton> ButtonsOf(UINT Type)
{
    std::vector<TButton> Buttons;
    switch (Type & MB_TYPEMASK) {
    case MB_OKCANCEL:
        Buttons = {Ok, Cancel};
        break;
    case MB_ABORTRETRYIGNORE:
        Buttons = {Abort, Retry, Ignore};
        break;
    case MB_YESNOCANCEL:
        Buttons = {Yes, No, Cancel};
        break;
    case MB_YESNO:
        Buttons = {Yes, No};
        break;
    case MB_RETRYCANCEL:
        Buttons = {Retry, Cancel};
        break;
    case MB_CANCELTRYCONTINUE:
        Buttons = {Cancel, TryAgain, Continue};
        break;
    default:
        Buttons = {Ok};
        break;
    }
    if (Type & MB_HELP)
        Buttons.push_back(Help);
    return Buttons;
}

LPCSTR IconOf(UINT Type)
{
    switch (Type & MB_ICONMASK) {
    case MB_ICONHAND:
        return IDI_HAND;
    case MB_ICONQUESTION:
        return IDI_QUESTION;
    case MB_ICONEXCLAMATION:
        return IDI_EXCLAMATION;
    case MB_ICONASTERISK:
        return IDI_ASTERISK;
    default:
        return nullptr;
    }
}

// Where things go, in pixels.
constexpr int Margin = 12;
constexpr int ButtonWidth = 84;
constexpr int ButtonHeight = 25;
constexpr int ButtonSpace = 8;

SIZE MeasureText(LPCSTR Text)
{
    RECT Rect{0, 0, GetSystemMetrics(SM_CXSCREEN) * 5 / 8, 0};
    const HDC Dc = GetDC(nullptr);
    const HGDIOBJ Old = SelectObject(Dc, GetStockObject(DEFAULT_GUI_FONT));
    DrawTextA(Dc, Text, -1, &Rect, DT_LEFT | DT_EXPANDTABS | DT_WORDBREAK | DT_CALCRECT);
    SelectObject(Dc, Old);
    ReleaseDC(nullptr, Dc);
    return {Rect.right, Rect.bottom};
}

// Where the text begins and which way it reads.
DWORD TextStyle(UINT Type)
{
    return (Type & MB_RTLREADING ? WS_EX_RTLREADING : 0u) | (Type & MB_RIGHT ? WS_EX_RIGHT : 0u);
}

HWND AddItem(HWND Box, LPCSTR ClassName, LPCSTR Text, DWORD Style, const RECT& Rect, int Id,
             DWORD ExStyle = 0)
{
    const HWND Item =
        CreateWindowExA(WS_EX_NOPARENTNOTIFY | ExStyle, ClassName, Text, Style | WS_CHILD | WS_VISIBLE,
                        Rect.left, Rect.top, Rect.right - Rect.left, Rect.bottom - Rect.top, Box,
                        reinterpret_cast<HMENU>(static_cast<UINT_PTR>(Id)), nullptr, nullptr);
    SendMessageA(Item, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), FALSE);
    return Item;
}

// From left to right. The focus comes last: it activates the box, so everything must
// be in it.
void AddButtons(HWND Box, UINT Type, int Left, int Top)
{
    const std::vector<TButton> Buttons = ButtonsOf(Type);
    const auto Wanted = static_cast<std::size_t>((Type & MB_DEFMASK) / MB_DEFBUTTON2);
    const std::size_t Default = Wanted < Buttons.size() ? Wanted : 0;
    HWND Focus = nullptr;
    for (std::size_t Index = 0; Index < Buttons.size(); ++Index) {
        const bool IsDefault = Index == Default;
        const DWORD Style =
            WS_TABSTOP | (Index == 0 ? WS_GROUP : 0u) | (IsDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON);
        const HWND Item = AddItem(Box, "Button", Buttons[Index].Text, Style,
                                  {Left, Top, Left + ButtonWidth, Top + ButtonHeight}, Buttons[Index].Id);
        Left += ButtonWidth + ButtonSpace;
        if (IsDefault) {
            SendMessageA(Box, DM_SETDEFID, static_cast<WPARAM>(Buttons[Index].Id), 0);
            Focus = Item;
        }
    }
    SetFocus(Focus);
}

// The icon and the text come first, then the buttons.
void FillBox(HWND Box, const MSGBOXPARAMSA& Params)
{
    const LPCSTR Icon = IconOf(Params.dwStyle);
    const bool HasIcon = Icon != nullptr;
    const int IconSpace = HasIcon ? GetSystemMetrics(SM_CXICON) + Margin : 0;
    const SIZE Text = MeasureText(Params.lpszText);
    const auto Count = static_cast<int>(ButtonsOf(Params.dwStyle).size());
    const int Row = Count * ButtonWidth + (Count - 1) * ButtonSpace;
    const int Width = std::max(Text.cx + IconSpace, Row) + 2 * Margin;
    const int TextHeight = std::max(Text.cy, HasIcon ? GetSystemMetrics(SM_CYICON) : 0);
    RECT Outer{0, 0, Width, TextHeight + ButtonHeight + 3 * Margin};
    AdjustWindowRectEx(&Outer, static_cast<DWORD>(GetWindowLongA(Box, GWL_STYLE)), FALSE,
                       static_cast<DWORD>(GetWindowLongA(Box, GWL_EXSTYLE)));
    SetWindowPos(Box, nullptr, (GetSystemMetrics(SM_CXSCREEN) - (Outer.right - Outer.left)) / 2,
                 (GetSystemMetrics(SM_CYSCREEN) - (Outer.bottom - Outer.top)) / 2, Outer.right - Outer.left,
                 Outer.bottom - Outer.top, SWP_NOZORDER | SWP_NOACTIVATE);
    const int Top = Margin;
    const HWND IconItem = AddItem(Box, "Static", "", HasIcon ? SS_ICON : SS_ICON | WS_DISABLED,
                                  {Margin, Top, Margin + IconSpace, Top + 32}, IconId);
    if (HasIcon)
        SendMessageA(IconItem, STM_SETICON, reinterpret_cast<WPARAM>(LoadIconA(nullptr, Icon)), 0);
    AddItem(Box, "Static", Params.lpszText, SS_LEFT | SS_NOPREFIX,
            {Margin + IconSpace, Top, Margin + IconSpace + Text.cx, Top + Text.cy}, TextId,
            TextStyle(Params.dwStyle));
    AddButtons(Box, Params.dwStyle, (Width - Row) / 2, TextHeight + 2 * Margin);
}

INT_PTR MessageBoxProc(HWND Box, UINT Message, WPARAM WParam, LPARAM LParam)
{
    switch (Message) {
    case WM_INITDIALOG: {
        const auto& Params = *reinterpret_cast<const MSGBOXPARAMSA*>(LParam);
        SetWindowLongPtrA(Box, GWLP_USERDATA, LParam);
        SetWindowTextA(Box, Params.lpszCaption ? Params.lpszCaption : "Error");
        FillBox(Box, Params);
        return FALSE;
    }
    case WM_COMMAND: {
        const auto& Params = *reinterpret_cast<const MSGBOXPARAMSA*>(GetWindowLongPtrA(Box, GWLP_USERDATA));
        const int Id = LOWORD(WParam);
        const auto Buttons = ButtonsOf(Params.dwStyle);
        const auto HasButton = [&](int Wanted) {
            return std::any_of(Buttons.begin(), Buttons.end(),
                               [&](const TButton& Each) { return Each.Id == Wanted; });
        };
        if (Id == IDHELP)
            return FALSE;
        if (HasButton(Id))
            EndDialog(Box, Id);
        else if (Id == IDCANCEL && Buttons.size() == 1) // Escape answers a box that only has OK
            EndDialog(Box, IDOK);
        return FALSE;
    }
    default:
        return FALSE;
    }
}

} // namespace

int MessageBoxIndirectA(const MSGBOXPARAMSA* Params)
{
#pragma pack(push, 2)
    struct {
        DLGTEMPLATE Dialog;
        WORD Menu, ClassName, Title;
    } Template{};
#pragma pack(pop)
    Template.Dialog.style = WS_CAPTION | WS_POPUP | WS_CLIPSIBLINGS | WS_VISIBLE | WS_SYSMENU | DS_3DLOOK |
                            DS_NOIDLEMSG | DS_MODALFRAME;
    Template.Dialog.dwExtendedStyle = TextStyle(Params->dwStyle) & WS_EX_RTLREADING;
    const bool Task = (Params->dwStyle & MB_TASKMODAL) && !Params->hwndOwner;
    std::vector<HWND> Disabled;
    if (Task)
        EnumThreadWindows(
            GetCurrentThreadId(),
            [](HWND Window, LPARAM List) {
                if (IsWindowEnabled(Window) && IsWindowVisible(Window)) {
                    reinterpret_cast<std::vector<HWND>*>(List)->push_back(Window);
                    EnableWindow(Window, FALSE);
                }
                return TRUE;
            },
            reinterpret_cast<LPARAM>(&Disabled));
    MSGBOXPARAMSA Own = *Params;
    if (!Own.lpszText)
        Own.lpszText = "";
    const auto Result = static_cast<int>(DialogBoxIndirectParamA(
        Own.hInstance, &Template.Dialog, Own.hwndOwner, MessageBoxProc, reinterpret_cast<LPARAM>(&Own)));
    for (const HWND Window : Disabled)
        EnableWindow(Window, TRUE);
    return std::max(Result, 0);
}

int MessageBoxExA(HWND Owner, LPCSTR Text, LPCSTR Caption, UINT Type, WORD Language)
{
    MSGBOXPARAMSA Params{};
    Params.cbSize = sizeof(Params);
    Params.hwndOwner = Owner;
    Params.lpszText = Text;
    Params.lpszCaption = Caption;
    Params.dwStyle = Type;
    Params.dwLanguageId = Language;
    return MessageBoxIndirectA(&Params);
}

int MessageBoxA(HWND Owner, LPCSTR Text, LPCSTR Caption, UINT Type)
{
    return MessageBoxExA(Owner, Text, Caption, Type, 0);
}
