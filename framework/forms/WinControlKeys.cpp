// Keys: events, what dialogs do with Tab and Enter, and mnemonics.
#include <string_view>

#include "framework/forms/Form.h"
#include "framework/forms/Menus.h"
#include "framework/forms/WinControl.h"
#include "framework/rtl/SysUtils.h"
#include "framework/rtl/Utf8.h"

namespace {

// What a control says to WM_GETDLGCODE when it wants the key for itself.
LRESULT WantedKeyMask(WPARAM Key)
{
    switch (Key) {
    case VK_TAB:
        return DLGC_WANTTAB;
    case VK_LEFT:
    case VK_RIGHT:
    case VK_UP:
    case VK_DOWN:
        return DLGC_WANTARROWS;
    case VK_RETURN:
    case VK_EXECUTE:
    case VK_ESCAPE:
    case VK_CANCEL:
        return DLGC_WANTALLKEYS;
    default:
        return 0;
    }
}

// Where the mnemonic of Caption begins; npos when there is none.
size_t FindHotkey(std::string_view Caption)
{
    for (size_t Index = 0; Index + 1 < Caption.size(); ++Index)
        if (Caption[Index] == '&') {
            if (Caption[Index + 1] != '&')
                return Index + 1;
            ++Index;
        }
    return std::string_view::npos;
}

} // namespace

bool IsAccel(uint16_t Char, const std::string& Caption)
{
    const size_t Place = FindHotkey(Caption);
    if (Place == std::string::npos || Char == 0)
        return false;
    const std::u16string Rest = Utf8ToUtf16(Caption.substr(Place));
    const std::string Hotkey = Utf16ToUtf8(Rest.substr(0, 1));
    return AnsiSameText(Hotkey, Utf16ToUtf8(std::u16string(1, static_cast<char16_t>(Char))));
}

std::string StripHotkey(const std::string& Caption)
{
    std::string Result;
    for (size_t Index = 0; Index < Caption.size(); ++Index) {
        if (Caption[Index] == '&' && Index + 1 < Caption.size())
            ++Index;
        Result += Caption[Index];
    }
    return Result;
}

bool TWinControl::DispatchKeys(TMessage& Message)
{
    switch (Message.Msg) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
        if (!DoKeyDown(Message))
            DefaultHandler(Message);
        break;
    case WM_KEYUP:
    case WM_SYSKEYUP:
        if (!DoKeyUp(Message))
            DefaultHandler(Message);
        break;
    case WM_CHAR:
        if (!DoKeyPress(Message))
            DefaultHandler(Message);
        break;
    case CN_KEYDOWN:
    case CN_SYSKEYDOWN:
        CNKeyDown(Message);
        break;
    case CN_CHAR:
    case CN_SYSCHAR:
        CNChar(Message);
        break;
    case CM_CHILDKEY:
        if (Parent())
            Message.Result = Parent()->Perform(CM_CHILDKEY, Message.WParam, Message.LParam);
        break;
    case CM_DIALOGKEY:
    case CM_DIALOGCHAR:
        Broadcast(Message);
        break;
    case CM_ENTER:
        DoEnter();
        break;
    case CM_EXIT:
        DoExit();
        break;
    case CM_CANCELMODE:
    case CM_FOCUSCHANGED:
        Broadcast(Message);
        break;
    default:
        return false;
    }
    return true;
}

// Before the key reaches the window: menus, then dialog keys.
void TWinControl::CNKeyDown(TMessage& Message)
{
    Message.Result = 1;
    TCustomForm* const Form = GetParentForm(this);
    if (!HasState(csDesigning)) {
        if (IsPopupShortCut(Message))
            return;
        if (Form && Form->IsShortCut(Message))
            return;
        if (Message.Msg == CN_KEYDOWN) {
            if (Perform(CM_CHILDKEY, Message.WParam, reinterpret_cast<LPARAM>(this)) != 0)
                return;
            const LRESULT Mask = WantedKeyMask(Message.WParam);
            if (Mask != 0 && Perform(CM_WANTSPECIALKEY, Message.WParam) == 0 &&
                (Perform(WM_GETDLGCODE) & Mask) == 0 && Form &&
                Form->Perform(CM_DIALOGKEY, Message.WParam, Message.LParam) != 0)
                return;
        }
    }
    Message.Result = 0;
}

bool TWinControl::IsPopupShortCut(TMessage& Message)
{
    for (TControl* Control = this; Control; Control = Control->Parent())
        if (Control->PopupMenu() && Control->PopupMenu()->IsShortCut(Message))
            return true;
    return false;
}

void TWinControl::CNChar(TMessage& Message)
{
    Message.Result = 0;
    if (HasState(csDesigning))
        return;
    TCustomForm* const Form = GetParentForm(this);
    const bool Offered =
        Message.Msg == CN_CHAR ? (Perform(WM_GETDLGCODE) & DLGC_WANTCHARS) == 0 : Message.WParam != VK_SPACE;
    if (Offered && Form && Form->Perform(CM_DIALOGCHAR, Message.WParam, Message.LParam) != 0)
        Message.Result = 1;
}

bool TWinControl::DoKeyDown(TMessage& Message)
{
    if (TCustomForm* const Form = GetParentForm(this);
        Form && Form != this && Form->KeyPreview() && Form->DoKeyDown(Message))
        return true;
    if (HasStyle(csNoStdEvents))
        return false;
    auto Key = static_cast<uint16_t>(Message.WParam);
    KeyDown(Key, KeyDataToShiftState(Message.LParam));
    Message.WParam = Key;
    return Key == 0;
}

bool TWinControl::DoKeyUp(TMessage& Message)
{
    if (TCustomForm* const Form = GetParentForm(this);
        Form && Form != this && Form->KeyPreview() && Form->DoKeyUp(Message))
        return true;
    if (HasStyle(csNoStdEvents))
        return false;
    auto Key = static_cast<uint16_t>(Message.WParam);
    KeyUp(Key, KeyDataToShiftState(Message.LParam));
    Message.WParam = Key;
    return Key == 0;
}

bool TWinControl::DoKeyPress(TMessage& Message)
{
    if (TCustomForm* const Form = GetParentForm(this);
        Form && Form != this && Form->KeyPreview() && Form->DoKeyPress(Message))
        return true;
    if (HasStyle(csNoStdEvents))
        return false;
    auto Key = static_cast<char>(Message.WParam);
    KeyPress(Key);
    Message.WParam = static_cast<unsigned char>(Key);
    return Key == 0;
}

void TWinControl::KeyDown(uint16_t& Key, TShiftState Shift)
{
    if (OnKeyDown)
        OnKeyDown(this, Key, Shift);
}

void TWinControl::KeyUp(uint16_t& Key, TShiftState Shift)
{
    if (OnKeyUp)
        OnKeyUp(this, Key, Shift);
}

void TWinControl::KeyPress(char& Key)
{
    if (OnKeyPress)
        OnKeyPress(this, Key);
}

void TWinControl::DoEnter()
{
    if (OnEnter)
        OnEnter(this);
}

void TWinControl::DoExit()
{
    if (OnExit)
        OnExit(this);
}
