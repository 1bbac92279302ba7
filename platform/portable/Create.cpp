#include <algorithm>
#include <cstring>

#include "platform/portable/Focus.h"
#include "platform/portable/Lifetime.h"
#include "platform/portable/Mdi.h"
#include "platform/portable/MenuBar.h"
#include "platform/portable/Position.h"
#include "platform/portable/Thread.h"

namespace {

// Default places of overlapped windows step down to the right.
void FillDefaults(CREATESTRUCTA& Data, TWindow& Parent)
{
    if (Data.x != CW_USEDEFAULT && Data.cx != CW_USEDEFAULT)
        return;
    const bool Overlapped = !(static_cast<DWORD>(Data.style) & (WS_CHILD | WS_POPUP));
    if (!Overlapped && !(Data.dwExStyle & WS_EX_MDICHILD)) {
        if (Data.x == CW_USEDEFAULT)
            Data.x = Data.y = 0;
        if (Data.cx == CW_USEDEFAULT)
            Data.cx = Data.cy = 0;
        return;
    }
    static int Step = 0;
    const int Width = Parent.ClientWidth();
    const int Height = Parent.ClientHeight();
    if (Data.x == CW_USEDEFAULT) {
        const int Offset = Step++ % 8 * (GetSystemMetrics(SM_CYCAPTION) + GetSystemMetrics(SM_CYFRAME));
        Data.x = Data.y = Offset;
    }
    if (Data.cx == CW_USEDEFAULT) {
        Data.cx = Width * 3 / 4;
        Data.cy = Height * 3 / 4;
    } else if (Data.cy == CW_USEDEFAULT) {
        Data.cy = Height * 3 / 4;
    }
}

DWORD FixedStyle(DWORD Style)
{
    if ((Style & (WS_CHILD | WS_POPUP)) != WS_CHILD) {
        Style |= WS_CLIPSIBLINGS;
        if (!(Style & WS_POPUP))
            Style |= WS_CAPTION;
    }
    return Style;
}

void NotifyParent(HWND Handle, UINT Event)
{
    for (;;) {
        const TWindow* const Window = WindowOf(Handle);
        if (!Window || !(Window->Style & WS_CHILD) || (Window->ExStyle & WS_EX_NOPARENTNOTIFY))
            return;
        const HWND Parent = GetParent(Handle);
        if (!Parent)
            return;
        SendMessageA(Parent, WM_PARENTNOTIFY, MAKEWPARAM(Event, LOWORD(Window->Id)),
                     reinterpret_cast<LPARAM>(Handle));
        Handle = Parent;
    }
}

// Where a new window hangs: below its parent, or below the desktop with an owner.
struct TPlaceInTree {
    TWindow* Parent = nullptr;
    TWindow* Owner = nullptr;
};

bool FindPlace(HWND ParentHandle, DWORD Style, TPlaceInTree& Place)
{
    if (ParentHandle == HWND_MESSAGE) {
        Place.Parent = &MessageRoot();
        return true;
    }
    TWindow* const Parent = ParentHandle ? WindowOf(ParentHandle) : nullptr;
    if (ParentHandle && !Parent)
        return false;
    if ((Style & (WS_CHILD | WS_POPUP)) == WS_CHILD) {
        if (!Parent)
            SetLastError(ERROR_TLW_WITH_WSCHILD);
        Place.Parent = Parent;
        return Parent != nullptr;
    }
    Place.Parent = &Desktop();
    if (Parent && Parent != &Desktop())
        Place.Owner = WindowOf(GetAncestor(ParentHandle, GA_ROOT));
    return true;
}

TWindow* MakeWindow(const CREATESTRUCTA& Data, const std::shared_ptr<TWindowClass>& Class,
                    const TPlaceInTree& Place)
{
    auto Window = std::make_unique<TWindow>();
    const auto Style = static_cast<DWORD>(Data.style);
    Window->Class = Class;
    Window->Thread = CurrentThread();
    Window->Proc = Class->Proc;
    Window->Style = FixedStyle(Style & ~WS_VISIBLE);
    Window->ExStyle = Data.dwExStyle & ~WS_EX_WINDOWEDGE;
    if ((Data.dwExStyle & WS_EX_DLGMODALFRAME) ||
        (!(Data.dwExStyle & WS_EX_STATICEDGE) && (Window->Style & (WS_DLGFRAME | WS_THICKFRAME))))
        Window->ExStyle |= WS_EX_WINDOWEDGE;
    Window->Instance = Data.hInstance;
    Window->Extra.resize(static_cast<std::size_t>(Class->WindowExtra));
    Window->Owner = Place.Owner;
    Window->NeedSize = !(Style & (WS_CHILD | WS_POPUP));
    if ((Style & (WS_CHILD | WS_POPUP)) == WS_CHILD)
        Window->Id = reinterpret_cast<LONG_PTR>(Data.hMenu);
    TStateLock Lock;
    TWindow* const Result = AddWindow(std::move(Window));
    if (Result) {
        ++Class->Windows;
        LinkWindow(*Result, *Place.Parent, Result->IsChild() ? TPlace::Back : TPlace::Front);
    }
    return Result;
}

// Everything up to WM_CREATE; false when a hook or the window itself refuses.
bool Introduce(HWND Handle, CREATESTRUCTA& Data)
{
    CBT_CREATEWNDA Hook{&Data, HWND_TOP};
    if (CallHooks(WH_CBT, HCBT_CREATEWND, reinterpret_cast<WPARAM>(Handle),
                  reinterpret_cast<LPARAM>(&Hook)) != 0) {
        RemoveWindow(Handle);
        return false;
    }
    int Width = Data.cx;
    int Height = Data.cy;
    const auto Style = static_cast<DWORD>(Data.style);
    if ((Style & WS_THICKFRAME) || !(Style & (WS_POPUP | WS_CHILD))) {
        const MINMAXINFO Limits = AskMinMax(Handle);
        Width = std::max(std::min(Width, Limits.ptMaxTrackSize.x), Limits.ptMinTrackSize.x);
        Height = std::max(std::min(Height, Limits.ptMaxTrackSize.y), Limits.ptMinTrackSize.y);
    }
    if (TWindow* const Window = WindowOf(Handle)) {
        Window->Rect = {Data.x, Data.y, Data.x + std::max(Width, 0), Data.y + std::max(Height, 0)};
        Window->Client = Window->Normal = Window->Rect;
    }
    if (!SendMessageA(Handle, WM_NCCREATE, 0, reinterpret_cast<LPARAM>(&Data))) {
        if (IsWindow(Handle))
            SendMessageA(Handle, WM_NCDESTROY, 0, 0);
        RemoveWindow(Handle);
        return false;
    }
    const TWindow* Window = WindowOf(Handle);
    if (!Window)
        return false;
    RECT Client = Window->Rect;
    SendMessageA(Handle, WM_NCCALCSIZE, FALSE, reinterpret_cast<LPARAM>(&Client));
    if (TWindow* const Sized = WindowOf(Handle))
        Sized->Client = Client;
    if (SendMessageA(Handle, WM_CREATE, 0, reinterpret_cast<LPARAM>(&Data)) == -1) {
        DestroyWindow(Handle);
        return false;
    }
    return IsWindow(Handle);
}

void ShowFirst(HWND Handle, const CREATESTRUCTA& Data)
{
    const auto Style = static_cast<DWORD>(Data.style);
    int Command = SW_SHOW;
    TWindow* Window = WindowOf(Handle);
    if (Window && (Window->Style & (WS_MINIMIZE | WS_MAXIMIZE))) {
        const int Change = Window->Has(WS_MINIMIZE) ? SW_MINIMIZE : SW_MAXIMIZE;
        Command = Window->Has(WS_MINIMIZE) ? SW_SHOWMINIMIZED : SW_SHOW;
        Window->Style &= ~(WS_MINIMIZE | WS_MAXIMIZE);
        RECT Rect{};
        const UINT Flags =
            MinMaximize(Handle, Change, Rect) | SWP_FRAMECHANGED | SWP_NOZORDER | SWP_NOACTIVATE;
        SetWindowPos(Handle, nullptr, Rect.left, Rect.top, Rect.right - Rect.left, Rect.bottom - Rect.top,
                     Flags);
    }
    NotifyParent(Handle, WM_CREATE);
    if (!IsWindow(Handle) || !(Style & WS_VISIBLE))
        return;
    ShowWindow(Handle, Command);
    if (Data.dwExStyle & WS_EX_MDICHILD) {
        SendMessageA(Data.hwndParent, WM_MDIREFRESHMENU, 0, 0);
        SetWindowPos(Handle, HWND_TOP, 0, 0, 0, 0, SWP_SHOWWINDOW | SWP_NOMOVE | SWP_NOSIZE);
    }
}

} // namespace

HWND CreateWindowExA(DWORD ExStyle, LPCSTR ClassName, LPCSTR Text, DWORD Style, int X, int Y, int Width,
                     int Height, HWND Parent, HMENU Menu, HINSTANCE Instance, LPVOID Param)
{
    const std::shared_ptr<TWindowClass> Class = FindWindowClass(ClassName);
    if (!Class) {
        SetLastError(ERROR_CANNOT_FIND_WND_CLASS);
        return nullptr;
    }
    MDICREATESTRUCTA Mdi{};
    if (ExStyle & WS_EX_MDICHILD) {
        if (!PrepareMdiChild(Parent, Style, ExStyle, X, Y, Width, Height))
            return nullptr;
        Mdi = {ClassName, Text, Instance, X, Y, Width, Height, Style, reinterpret_cast<LPARAM>(Param)};
        Param = &Mdi;
    }
    TPlaceInTree Place;
    if (!FindPlace(Parent, Style, Place))
        return nullptr;
    CREATESTRUCTA Data{Param, Instance,  Menu,   Parent, Height, Width, Y, X, static_cast<LONG>(Style),
                       Text,  ClassName, ExStyle};
    FillDefaults(Data, *Place.Parent);
    TWindow* const Window = MakeWindow(Data, Class, Place);
    if (!Window) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return nullptr;
    }
    const HWND Handle = Window->Handle;
    if (!Window->IsChild() && Menu)
        AttachMenu(*Window, Menu);
    if (!Introduce(Handle, Data))
        return nullptr;
    if (!WindowOf(Handle)->NeedSize)
        SendSizeAndMove(Handle);
    if (IsWindow(Handle))
        ShowFirst(Handle, Data);
    return IsWindow(Handle) ? Handle : nullptr;
}

namespace {

std::vector<HWND> OwnedBy(HWND Owner)
{
    std::vector<HWND> Result;
    for (const HWND Handle : ChildrenOf(Desktop()))
        if (GetWindow(Handle, GW_OWNER) == Owner)
            Result.push_back(Handle);
    return Result;
}

void SendDestroy(HWND Handle)
{
    if (GetActiveWindow() == Handle)
        ActivateOther(Handle);
    SendMessageA(Handle, WM_DESTROY, 0, 0);
    const TWindow* const Window = WindowOf(Handle);
    if (!Window)
        return;
    for (const HWND Child : ChildrenOf(*Window))
        if (IsWindow(Child))
            SendDestroy(Child);
}

void Dissolve(HWND Handle)
{
    const TWindow* Window = WindowOf(Handle);
    if (!Window)
        return;
    for (const HWND Child : ChildrenOf(*Window))
        Dissolve(Child);
    SendMessageA(Handle, WM_NCDESTROY, 0, 0);
    Window = WindowOf(Handle);
    if (!Window)
        return;
    const HMENU Menu = Window->Menu;
    const HMENU SystemMenu = Window->SystemMenu;
    RemoveWindow(Handle);
    if (Menu)
        DestroyMenu(Menu);
    if (SystemMenu)
        DestroyMenu(SystemMenu);
}

} // namespace

BOOL DestroyWindow(HWND Handle)
{
    TWindow* Window = WindowOf(Handle);
    if (!Window)
        return FALSE;
    if (Window->Thread != CurrentThread() || Window == &Desktop()) {
        SetLastError(ERROR_ACCESS_DENIED);
        return FALSE;
    }
    if (CallHooks(WH_CBT, HCBT_DESTROYWND, reinterpret_cast<WPARAM>(Handle), 0) != 0)
        return FALSE;
    if (CurrentThread()->MenuOwner == Handle)
        EndMenu();
    const bool Child = Window->Has(WS_CHILD);
    if (Child)
        NotifyParent(Handle, WM_DESTROY);
    if (GetWindowLongPtrA(Handle, GWL_STYLE) & WS_VISIBLE) {
        if (Child)
            ShowWindow(Handle, SW_HIDE);
        else
            SetWindowPos(Handle, nullptr, 0, 0, 0, 0,
                         SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_HIDEWINDOW);
    }
    if (!Child)
        for (const HWND Owned : OwnedBy(Handle))
            if (IsWindow(Owned))
                DestroyWindow(Owned);
    if (IsWindow(Handle))
        SendDestroy(Handle);
    Dissolve(Handle);
    return TRUE;
}

BOOL IsWindow(HWND Handle)
{
    const DWORD Before = GetLastError();
    if (WindowOf(Handle))
        return TRUE;
    SetLastError(Before == 0 ? ERROR_INVALID_WINDOW_HANDLE : Before);
    return FALSE;
}
