#include <algorithm>

#include "platform/portable/Handles.h"
#include "platform/portable/MenuBar.h"
#include "platform/portable/Thread.h"

namespace {

using TKeys = std::vector<ACCEL>;
using TKeysTable = THandleTable<TKeys, THandleKind::Accelerators>;

TKeysTable& Table()
{
    static auto& Tables = *new TKeysTable;
    return Tables;
}

TKeys* KeysOf(HACCEL Handle)
{
    TStateLock Lock;
    TKeys* const Keys = Table().Find(Handle);
    if (!Keys)
        SetLastError(ERROR_INVALID_ACCEL_HANDLE);
    return Keys;
}

bool Matches(const ACCEL& Key, const MSG& Message)
{
    if (Message.wParam != Key.key)
        return false;
    const bool Alt = (Message.lParam & (1 << 29)) != 0;
    if (!(Key.fVirt & FVIRTKEY))
        return (Message.message == WM_CHAR || Message.message == WM_SYSCHAR) &&
               Alt == ((Key.fVirt & FALT) != 0);
    if (Message.message == WM_CHAR || Message.message == WM_SYSCHAR)
        return false;
    return (GetKeyState(VK_SHIFT) < 0) == ((Key.fVirt & FSHIFT) != 0) &&
           (GetKeyState(VK_CONTROL) < 0) == ((Key.fVirt & FCONTROL) != 0) && Alt == ((Key.fVirt & FALT) != 0);
}

enum class TSource { None, Menu, System };

// Tells the window that its menu is about to be asked, and finds the item.
bool MayExecute(HWND Window, WORD Command, TSource& Source)
{
    Source = TSource::None;
    const HMENU Menu = GetMenu(Window);
    UINT State = Menu ? GetMenuState(Menu, Command, MF_BYCOMMAND) : ~0u;
    if (State != ~0u) {
        Source = TSource::Menu;
        SendMessageA(Window, WM_INITMENU, reinterpret_cast<WPARAM>(Menu), 0);
        State = GetMenuState(Menu, Command, MF_BYCOMMAND);
        return IsWindowEnabled(Window) && !(State & (MF_DISABLED | MF_GRAYED));
    }
    const HMENU System = GetSystemMenu(Window, FALSE);
    State = System ? GetMenuState(System, Command, MF_BYCOMMAND) : ~0u;
    if (State == ~0u)
        return true;
    Source = TSource::System;
    SendMessageA(Window, WM_INITMENU, reinterpret_cast<WPARAM>(System), 0);
    return IsWindowEnabled(Window) &&
           !(GetMenuState(System, Command, MF_BYCOMMAND) & (MF_DISABLED | MF_GRAYED));
}

} // namespace

HACCEL CreateAcceleratorTableA(ACCEL* Keys, int Count)
{
    if (!Keys || Count < 1) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    TStateLock Lock;
    return reinterpret_cast<HACCEL>(Table().Add(std::make_unique<TKeys>(Keys, Keys + Count)));
}

BOOL DestroyAcceleratorTable(HACCEL Handle)
{
    TStateLock Lock;
    return Table().Take(Handle) != nullptr;
}

int CopyAcceleratorTableA(HACCEL Handle, ACCEL* Keys, int Count)
{
    TStateLock Lock;
    const TKeys* const All = KeysOf(Handle);
    if (!All || !Keys)
        return All ? static_cast<int>(All->size()) : 0;
    const int Copied = std::min(Count, static_cast<int>(All->size()));
    std::copy_n(All->begin(), Copied, Keys);
    return Copied;
}

int TranslateAcceleratorA(HWND Window, HACCEL Handle, LPMSG Message)
{
    if (!Window || !Message ||
        (Message->message != WM_KEYDOWN && Message->message != WM_SYSKEYDOWN && Message->message != WM_CHAR &&
         Message->message != WM_SYSCHAR))
        return 0;
    const TKeys* const Keys = KeysOf(Handle);
    if (!Keys)
        return 0;
    const auto Found =
        std::find_if(Keys->begin(), Keys->end(), [&](const ACCEL& Key) { return Matches(Key, *Message); });
    if (Found == Keys->end())
        return 0;
    const WORD Command = Found->cmd;
    TSource Source;
    if (!MayExecute(Window, Command, Source))
        return 1;
    if (Source == TSource::System)
        SendMessageA(Window, WM_SYSCOMMAND, Command, 0x00010000);
    else
        SendMessageA(Window, WM_COMMAND, Command | 0x00010000u, 0);
    return 1;
}
