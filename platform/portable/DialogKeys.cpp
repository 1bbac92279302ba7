// Moving through the controls of a window by keyboard.
#include <algorithm>
#include <cctype>

#include "platform/portable/Lifetime.h"
#include "platform/portable/MenuBar.h"

namespace {

// The controls in the order of creation, those of nested pages in place.
void Collect(HWND Dialog, std::vector<HWND>& Result)
{
    const TWindow* const Window = WindowOf(Dialog);
    if (!Window)
        return;
    const std::vector<HWND> Children = ChildrenOf(*Window);
    for (const HWND Child : Children) {
        const TWindow* const Each = WindowOf(Child);
        if (Each && (Each->ExStyle & WS_EX_CONTROLPARENT)) {
            if (Each->Has(WS_VISIBLE) && !Each->Has(WS_DISABLED))
                Collect(Child, Result);
        } else {
            Result.push_back(Child);
        }
    }
}

bool Takes(HWND Control, DWORD Style)
{
    const TWindow* const Window = WindowOf(Control);
    return Window && Window->Has(WS_VISIBLE | Style) && !Window->Has(WS_DISABLED);
}

LRESULT CodeOf(HWND Control)
{
    return SendMessageA(Control, WM_GETDLGCODE, 0, 0);
}

} // namespace

HWND GetNextDlgTabItem(HWND Dialog, HWND Control, BOOL Previous)
{
    std::vector<HWND> Items;
    Collect(Dialog, Items);
    if (Items.empty())
        return nullptr;
    const auto Count = static_cast<int>(Items.size());
    const auto Found = std::find(Items.begin(), Items.end(), Control);
    int Index = Found == Items.end() ? (Previous ? 0 : -1) : static_cast<int>(Found - Items.begin());
    for (int Tries = 0; Tries < Count; ++Tries) {
        Index = (Index + (Previous ? -1 : 1) + Count) % Count;
        const HWND Each = Items[static_cast<std::size_t>(Index)];
        if (Takes(Each, WS_TABSTOP))
            return Each;
    }
    return Found == Items.end() ? nullptr : Control;
}

HWND GetNextDlgGroupItem(HWND Dialog, HWND Control, BOOL Previous)
{
    std::vector<HWND> Items;
    Collect(Dialog, Items);
    const auto Found = std::find(Items.begin(), Items.end(), Control);
    if (Items.empty())
        return nullptr;
    if (Found == Items.end())
        return Items.front();
    const auto StartsGroup = [](HWND Each) { return (GetWindowLongA(Each, GWL_STYLE) & WS_GROUP) != 0; };
    auto First = Found;
    while (First != Items.begin() && !StartsGroup(*First))
        --First;
    auto Last = Found + 1;
    while (Last != Items.end() && !StartsGroup(*Last))
        ++Last;
    const auto Count = Last - First;
    auto Index = Found - First;
    for (auto Tries = Count; Tries > 0; --Tries) {
        Index = (Index + (Previous ? -1 : 1) + Count) % Count;
        if (Takes(*(First + Index), 0))
            return *(First + Index);
    }
    return Control;
}

namespace {

void MoveFocusTo(HWND Dialog, HWND Control)
{
    if (!Control)
        return;
    const LRESULT Code = CodeOf(Control);
    SetFocus(Control);
    if (Code & DLGC_HASSETSEL)
        SendMessageA(Control, EM_SETSEL, 0, -1);
    if (Code & DLGC_UNDEFPUSHBUTTON)
        SendMessageA(Dialog, DM_SETDEFID, static_cast<WPARAM>(GetDlgCtrlID(Control)), 0);
}

void MoveInGroup(HWND Dialog, HWND From, bool Previous)
{
    const HWND Next = GetNextDlgGroupItem(Dialog, From, Previous);
    if (!Next || Next == From)
        return;
    const LRESULT Code = CodeOf(Next);
    MoveFocusTo(Dialog, Next);
    if ((Code & DLGC_RADIOBUTTON) && SendMessageA(Next, BM_GETCHECK, 0, 0) != BST_CHECKED)
        SendMessageA(Next, BM_CLICK, 0, 0);
}

void PressDefault(HWND Dialog)
{
    const LRESULT Default = SendMessageA(Dialog, DM_GETDEFID, 0, 0);
    constexpr WORD HasDefault = 0x534B; // DC_HASDEFID
    const int Id = HIWORD(Default) == HasDefault ? LOWORD(Default) : IDOK;
    const HWND Focus = GetFocus();
    const HWND Button = GetDlgItem(Dialog, Id);
    if (Focus && IsChild(Dialog, Focus) && (CodeOf(Focus) & DLGC_DEFPUSHBUTTON)) {
        SendMessageA(Dialog, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(Focus), BN_CLICKED),
                     reinterpret_cast<LPARAM>(Focus));
        return;
    }
    if (!Button || IsWindowEnabled(Button))
        SendMessageA(Dialog, WM_COMMAND, MAKEWPARAM(Id, BN_CLICKED), reinterpret_cast<LPARAM>(Button));
}

// The control that a mnemonic stands for: a text gives it to the next control.
bool PressMnemonic(HWND Dialog, HWND From, char Typed)
{
    std::vector<HWND> Items;
    Collect(Dialog, Items);
    const auto Start = std::find(Items.begin(), Items.end(), From);
    if (Start != Items.end())
        std::rotate(Items.begin(), Start + 1, Items.end());
    for (std::size_t Index = 0; Index < Items.size(); ++Index) {
        const HWND Item = Items[Index];
        const TWindow* const Window = WindowOf(Item);
        if (!Window || !Takes(Item, 0) || MnemonicOf(Window->Text) != Typed)
            continue;
        const LRESULT Code = CodeOf(Item);
        if (Code & DLGC_WANTCHARS)
            continue;
        if (Code & DLGC_BUTTON) {
            SetFocus(Item);
            SendMessageA(Item, BM_CLICK, 0, 0);
        } else if (Code & DLGC_STATIC) {
            MoveFocusTo(Dialog, GetNextDlgTabItem(Dialog, Item, FALSE));
        } else {
            MoveFocusTo(Dialog, Item);
        }
        return true;
    }
    return false;
}

bool HandleKey(HWND Dialog, const MSG& Message, LRESULT Code)
{
    switch (Message.wParam) {
    case VK_TAB:
        if (Code & DLGC_WANTTAB)
            return false;
        SendMessageA(Dialog, WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0);
        SendMessageA(Dialog, WM_NEXTDLGCTL, GetKeyState(VK_SHIFT) < 0, 0);
        return true;
    case VK_RIGHT:
    case VK_DOWN:
    case VK_LEFT:
    case VK_UP:
        if (Code & DLGC_WANTARROWS)
            return false;
        MoveInGroup(Dialog, Message.hwnd, Message.wParam == VK_LEFT || Message.wParam == VK_UP);
        return true;
    case VK_CANCEL:
    case VK_ESCAPE:
        SendMessageA(Dialog, WM_COMMAND, IDCANCEL, reinterpret_cast<LPARAM>(GetDlgItem(Dialog, IDCANCEL)));
        return true;
    case VK_EXECUTE:
    case VK_RETURN:
        PressDefault(Dialog);
        return true;
    default:
        return false;
    }
}

} // namespace

BOOL IsDialogMessageA(HWND Dialog, LPMSG Message)
{
    if (CallMsgFilterA(Message, MSGF_DIALOGBOX))
        return TRUE;
    if (!IsWindow(Dialog) || (Message->hwnd != Dialog && !IsChild(Dialog, Message->hwnd)))
        return FALSE;
    const LRESULT Code =
        SendMessageA(Message->hwnd, WM_GETDLGCODE, Message->wParam, reinterpret_cast<LPARAM>(Message));
    const bool Wanted = (Code & DLGC_WANTMESSAGE) != 0;
    if (Message->message == WM_KEYDOWN && !Wanted && HandleKey(Dialog, *Message, Code))
        return TRUE;
    if (Message->message == WM_CHAR && !(Code & DLGC_WANTCHARS) && !Wanted && Message->wParam != '\t' &&
        PressMnemonic(Dialog, Message->hwnd,
                      static_cast<char>(std::tolower(static_cast<int>(Message->wParam)))))
        return TRUE;
    if (Message->message == WM_SYSCHAR &&
        PressMnemonic(Dialog, Message->hwnd,
                      static_cast<char>(std::tolower(static_cast<int>(Message->wParam)))))
        return TRUE;
    TranslateMessage(Message);
    DispatchMessageA(Message);
    return TRUE;
}
