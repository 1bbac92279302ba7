// Texts and properties of windows, and the values kept with them.
#include <algorithm>
#include <cstring>

#include "platform/portable/Lifetime.h"
#include "platform/portable/Thread.h"

int CopyText(const std::string& Text, LPSTR Buffer, int Size)
{
    if (!Buffer || Size <= 0)
        return 0;
    std::size_t Count = std::min(Text.size(), static_cast<std::size_t>(Size - 1));
    if (Count < Text.size())
        while (Count > 0 && (static_cast<BYTE>(Text[Count]) & 0xC0) == 0x80)
            --Count;
    std::memcpy(Buffer, Text.data(), Count);
    Buffer[Count] = 0;
    return static_cast<int>(Count);
}

void InternalText(HWND Handle, std::string& Buffer)
{
    TStateLock Lock;
    const TWindow* const Window = WindowOf(Handle);
    const std::string Empty;
    CopyText(Window ? Window->Text : Empty, Buffer.data(), static_cast<int>(Buffer.size()));
}

BOOL SetWindowTextA(HWND Handle, LPCSTR Text)
{
    if (!IsWindow(Handle))
        return FALSE;
    return static_cast<BOOL>(SendMessageA(Handle, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(Text)));
}

int GetWindowTextA(HWND Handle, LPSTR Text, int Size)
{
    if (!Text || Size <= 0)
        return 0;
    Text[0] = 0;
    if (!IsWindow(Handle))
        return 0;
    return static_cast<int>(
        SendMessageA(Handle, WM_GETTEXT, static_cast<WPARAM>(Size), reinterpret_cast<LPARAM>(Text)));
}

int GetWindowTextLengthA(HWND Handle)
{
    return IsWindow(Handle) ? static_cast<int>(SendMessageA(Handle, WM_GETTEXTLENGTH, 0, 0)) : 0;
}

BOOL IsWindowUnicode(HWND)
{
    return FALSE;
}

namespace {

// The names of properties are compared without case, and small numbers are
// names too.
std::string PropName(LPCSTR Name)
{
    if (IS_INTRESOURCE(Name))
        return "#" + std::to_string(LOWORD(Name));
    std::string Result = Name;
    std::transform(Result.begin(), Result.end(), Result.begin(), [](char Each) {
        return Each >= 'A' && Each <= 'Z' ? static_cast<char>(Each + 32) : Each;
    });
    return Result;
}

} // namespace

BOOL SetPropA(HWND Handle, LPCSTR Name, HANDLE Value)
{
    TStateLock Lock;
    TWindow* const Window = WindowOf(Handle);
    if (!Window || !Name)
        return FALSE;
    Window->Props[PropName(Name)] = Value;
    return TRUE;
}

HANDLE GetPropA(HWND Handle, LPCSTR Name)
{
    TStateLock Lock;
    const TWindow* const Window = WindowOf(Handle);
    if (!Window || !Name)
        return nullptr;
    const auto Found = Window->Props.find(PropName(Name));
    return Found == Window->Props.end() ? nullptr : Found->second;
}

HANDLE RemovePropA(HWND Handle, LPCSTR Name)
{
    TStateLock Lock;
    const HANDLE Value = GetPropA(Handle, Name);
    if (TWindow* const Window = WindowOf(Handle))
        Window->Props.erase(PropName(Name));
    return Value;
}

int EnumPropsA(HWND Handle, PROPENUMPROCA Proc)
{
    const TWindow* const Window = WindowOf(Handle);
    if (!Window)
        return -1;
    int Result = -1;
    const auto Props = Window->Props;
    for (const auto& [Name, Value] : Props) {
        Result = Proc(Handle, Name.c_str(), Value);
        if (!Result)
            break;
    }
    return Result;
}

namespace {

bool InExtra(const TWindow& Window, int Index, std::size_t Size)
{
    return Index >= 0 && static_cast<std::size_t>(Index) + Size <= Window.Extra.size();
}

// A change of style is announced before and reported after; what the window
// writes into the structure in between is what it gets.
LONG_PTR ChangeStyle(HWND Handle, int Index, DWORD Value)
{
    const TWindow* Window = WindowOf(Handle);
    const bool Extended = Index == GWL_EXSTYLE;
    STYLESTRUCT Styles{Extended ? Window->ExStyle : Window->Style, Value};
    const auto WParam = static_cast<WPARAM>(static_cast<LONG_PTR>(Index));
    SendMessageA(Handle, WM_STYLECHANGING, WParam, reinterpret_cast<LPARAM>(&Styles));
    if (TWindow* const Changed = WindowOf(Handle)) {
        TStateLock Lock;
        (Extended ? Changed->ExStyle : Changed->Style) = Styles.styleNew;
    }
    SendMessageA(Handle, WM_STYLECHANGED, WParam, reinterpret_cast<LPARAM>(&Styles));
    return static_cast<LONG_PTR>(static_cast<LONG>(Styles.styleOld));
}

HWND ChangeOwner(TWindow& Window, HWND NewOwner)
{
    if (Window.IsChild())
        return SetParent(Window.Handle, NewOwner);
    TStateLock Lock;
    const HWND Old = Window.Owner ? Window.Owner->Handle : nullptr;
    Window.Owner = NewOwner ? WindowOf(NewOwner) : nullptr;
    return Old;
}

} // namespace

LONG_PTR GetWindowLongPtrA(HWND Handle, int Index)
{
    TStateLock Lock;
    const TWindow* const Window = WindowOf(Handle);
    if (!Window)
        return 0;
    switch (Index) {
    case GWLP_WNDPROC:
        return reinterpret_cast<LONG_PTR>(Window->Proc);
    case GWLP_HINSTANCE:
        return reinterpret_cast<LONG_PTR>(Window->Instance);
    case GWLP_HWNDPARENT: {
        const HWND Parent = GetParent(Handle);
        const HWND Owner = Window->Owner ? Window->Owner->Handle : nullptr;
        return reinterpret_cast<LONG_PTR>(Window->IsChild() ? Parent : Owner);
    }
    case GWLP_ID:
        return Window->Id;
    case GWLP_USERDATA:
        return Window->UserData;
    case GWL_STYLE:
        return static_cast<LONG_PTR>(static_cast<LONG>(Window->Style));
    case GWL_EXSTYLE:
        return static_cast<LONG_PTR>(static_cast<LONG>(Window->ExStyle));
    default:
        break;
    }
    LONG_PTR Value = 0;
    if (InExtra(*Window, Index, sizeof(Value)))
        std::memcpy(&Value, Window->Extra.data() + Index, sizeof(Value));
    else
        SetLastError(ERROR_INVALID_INDEX);
    return Value;
}

LONG_PTR SetWindowLongPtrA(HWND Handle, int Index, LONG_PTR Value)
{
    TWindow* const Window = WindowOf(Handle);
    if (!Window)
        return 0;
    if (Index == GWL_STYLE || Index == GWL_EXSTYLE)
        return ChangeStyle(Handle, Index, static_cast<DWORD>(Value));
    const LONG_PTR Old = GetWindowLongPtrA(Handle, Index);
    TStateLock Lock;
    switch (Index) {
    case GWLP_WNDPROC:
        Window->Proc = reinterpret_cast<WNDPROC>(Value);
        break;
    case GWLP_HINSTANCE:
        Window->Instance = reinterpret_cast<HINSTANCE>(Value);
        break;
    case GWLP_HWNDPARENT:
        return reinterpret_cast<LONG_PTR>(ChangeOwner(*Window, reinterpret_cast<HWND>(Value)));
    case GWLP_ID:
        Window->Id = Value;
        break;
    case GWLP_USERDATA:
        Window->UserData = Value;
        break;
    default:
        if (InExtra(*Window, Index, sizeof(Value)))
            std::memcpy(Window->Extra.data() + Index, &Value, sizeof(Value));
    }
    return Old;
}

LONG GetWindowLongA(HWND Handle, int Index)
{
    TStateLock Lock;
    const TWindow* const Window = WindowOf(Handle);
    LONG Value = 0;
    if (Window && InExtra(*Window, Index, sizeof(Value))) {
        std::memcpy(&Value, Window->Extra.data() + Index, sizeof(Value));
        return Value;
    }
    return static_cast<LONG>(GetWindowLongPtrA(Handle, Index));
}

LONG SetWindowLongA(HWND Handle, int Index, LONG Value)
{
    TWindow* const Window = WindowOf(Handle);
    if (Window && InExtra(*Window, Index, sizeof(Value))) {
        const LONG Old = GetWindowLongA(Handle, Index);
        std::memcpy(Window->Extra.data() + Index, &Value, sizeof(Value));
        return Old;
    }
    return static_cast<LONG>(SetWindowLongPtrA(Handle, Index, Value));
}
