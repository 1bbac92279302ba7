// Who is whose parent, owner, child and neighbour.
#include <algorithm>
#include <cstring>
#include <strings.h>

#include "platform/portable/Lifetime.h"
#include "platform/portable/Position.h"
#include "platform/portable/Thread.h"

namespace {

HWND HandleOf(const TWindow* Window)
{
    return Window ? Window->Handle : nullptr;
}

bool IsRoot(const TWindow& Window)
{
    return &Window == &Desktop() || &Window == &MessageRoot();
}

HWND Neighbour(const TWindow& Window, UINT Relation)
{
    if (!Window.Parent)
        return nullptr;
    const auto& Siblings = Window.Parent->Children;
    const auto Here = std::find(Siblings.begin(), Siblings.end(), &Window);
    switch (Relation) {
    case GW_HWNDFIRST:
        return Siblings.front()->Handle;
    case GW_HWNDLAST:
        return Siblings.back()->Handle;
    case GW_HWNDNEXT:
        return Here + 1 == Siblings.end() ? nullptr : (*(Here + 1))->Handle;
    default:
        return Here == Siblings.begin() ? nullptr : (*(Here - 1))->Handle;
    }
}

HWND EnabledPopup(const TWindow& Window)
{
    for (const TWindow* const Other : Desktop().Children)
        if (Other->Owner == &Window && Other->Has(WS_VISIBLE) && !Other->Has(WS_DISABLED))
            return Other->Handle;
    return nullptr;
}

void CollectBelow(const TWindow& Window, std::vector<HWND>& Result)
{
    for (const TWindow* const Child : Window.Children) {
        Result.push_back(Child->Handle);
        CollectBelow(*Child, Result);
    }
}

BOOL EnumList(const std::vector<HWND>& List, WNDENUMPROC Proc, LPARAM Param)
{
    for (const HWND Handle : List)
        if (IsWindow(Handle) && !Proc(Handle, Param))
            return FALSE;
    return TRUE;
}

bool SameText(HWND Handle, LPCSTR Text)
{
    std::string Buffer(std::strlen(Text) + 2, 0);
    InternalText(Handle, Buffer);
    return strcasecmp(Buffer.c_str(), Text) == 0;
}

} // namespace

HWND GetDesktopWindow()
{
    return Desktop().Handle;
}

HWND GetParent(HWND Handle)
{
    TStateLock Lock;
    const TWindow* const Window = WindowOf(Handle);
    if (!Window || IsRoot(*Window))
        return nullptr;
    if (Window->Has(WS_POPUP))
        return HandleOf(Window->Owner);
    if (Window->Has(WS_CHILD) && Window->Parent)
        return Window->Parent->Handle;
    return nullptr;
}

HWND SetParent(HWND Handle, HWND NewParent)
{
    TWindow* Window = WindowOf(Handle);
    TWindow* const Parent = NewParent == HWND_MESSAGE ? &MessageRoot()
                            : NewParent               ? WindowOf(NewParent)
                                                      : &Desktop();
    if (!Window || !Parent || IsRoot(*Window))
        return nullptr;
    for (const TWindow* Above = Parent; Above; Above = Above->Parent)
        if (Above == Window) {
            SetLastError(ERROR_INVALID_PARAMETER);
            return nullptr;
        }
    const HWND Old = HandleOf(Window->Parent);
    const bool Visible = Window->Has(WS_VISIBLE);
    if (Visible)
        ShowWindow(Handle, SW_HIDE);
    Window = WindowOf(Handle);
    if (!Window)
        return nullptr;
    const POINT Place{Window->Rect.left, Window->Rect.top};
    {
        TStateLock Lock;
        LinkWindow(*Window, *Parent, TPlace::Front);
    }
    SetWindowPos(Handle, HWND_TOP, Place.x, Place.y, 0, 0,
                 SWP_NOSIZE | SWP_NOACTIVATE | (Visible ? SWP_SHOWWINDOW : 0u));
    return Old;
}

HWND GetAncestor(HWND Handle, UINT Kind)
{
    TStateLock Lock;
    const TWindow* Window = WindowOf(Handle);
    if (!Window || IsRoot(*Window))
        return nullptr;
    if (Kind == GA_PARENT)
        return HandleOf(Window->Parent);
    while (Window->Parent && !IsRoot(*Window->Parent))
        Window = Window->Parent;
    if (Kind == GA_ROOTOWNER)
        for (HWND Up = GetParent(Window->Handle); Up; Up = GetParent(Up))
            Window = WindowOf(Up);
    return Window->Handle;
}

HWND GetWindow(HWND Handle, UINT Relation)
{
    TStateLock Lock;
    const TWindow* const Window = WindowOf(Handle);
    if (!Window)
        return nullptr;
    switch (Relation) {
    case GW_HWNDFIRST:
    case GW_HWNDLAST:
    case GW_HWNDNEXT:
    case GW_HWNDPREV:
        return Neighbour(*Window, Relation);
    case GW_OWNER:
        return HandleOf(Window->Owner);
    case GW_CHILD:
        return Window->Children.empty() ? nullptr : Window->Children.front()->Handle;
    case GW_ENABLEDPOPUP:
        return EnabledPopup(*Window);
    default:
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
}

HWND GetTopWindow(HWND Handle)
{
    return GetWindow(Handle ? Handle : GetDesktopWindow(), GW_CHILD);
}

HWND GetLastActivePopup(HWND Handle)
{
    TStateLock Lock;
    const TWindow* const Window = WindowOf(Handle);
    if (!Window)
        return Handle;
    return Window->LastActive && IsWindow(Window->LastActive) ? Window->LastActive : Handle;
}

BOOL IsChild(HWND ParentHandle, HWND Handle)
{
    TStateLock Lock;
    const TWindow* Window = WindowOf(Handle);
    const TWindow* const Parent = WindowOf(ParentHandle);
    while (Window && Parent && Window->Has(WS_CHILD)) {
        Window = Window->Parent;
        if (Window == Parent)
            return TRUE;
    }
    return FALSE;
}

BOOL EnumChildWindows(HWND Parent, WNDENUMPROC Proc, LPARAM Param)
{
    std::vector<HWND> List;
    {
        TStateLock Lock;
        const TWindow* const Window = Parent ? WindowOf(Parent) : &Desktop();
        if (!Window)
            return FALSE;
        CollectBelow(*Window, List);
    }
    EnumList(List, Proc, Param);
    return TRUE;
}

BOOL EnumWindows(WNDENUMPROC Proc, LPARAM Param)
{
    return EnumList(ChildrenOf(Desktop()), Proc, Param);
}

BOOL EnumThreadWindows(DWORD Thread, WNDENUMPROC Proc, LPARAM Param)
{
    std::vector<HWND> List = ChildrenOf(Desktop());
    std::erase_if(List, [&](HWND Handle) { return GetWindowThreadProcessId(Handle, nullptr) != Thread; });
    return EnumList(List, Proc, Param);
}

HWND FindWindowExA(HWND ParentHandle, HWND After, LPCSTR ClassName, LPCSTR Text)
{
    const TWindow* const Parent = ParentHandle == HWND_MESSAGE ? &MessageRoot()
                                  : ParentHandle               ? WindowOf(ParentHandle)
                                                               : &Desktop();
    if (!Parent)
        return nullptr;
    bool Passed = After == nullptr;
    for (const HWND Handle : ChildrenOf(*Parent)) {
        const bool Look = Passed;
        Passed = Passed || Handle == After;
        const TWindow* const Window = Look ? WindowOf(Handle) : nullptr;
        if (!Window)
            continue;
        const bool Named = !ClassName || (IS_INTRESOURCE(ClassName)
                                              ? Window->Class->Atom == LOWORD(ClassName)
                                              : strcasecmp(Window->Class->Name.c_str(), ClassName) == 0);
        if (Named && (!Text || SameText(Handle, Text)))
            return Handle;
    }
    return nullptr;
}

HWND FindWindowA(LPCSTR ClassName, LPCSTR Text)
{
    return FindWindowExA(nullptr, nullptr, ClassName, Text);
}

DWORD GetWindowThreadProcessId(HWND Handle, LPDWORD Process)
{
    TStateLock Lock;
    const TWindow* const Window = WindowOf(Handle);
    if (!Window || !Window->Thread)
        return 0;
    if (Process)
        *Process = GetCurrentProcessId();
    return Window->Thread->Id;
}

BOOL AnyPopup()
{
    TStateLock Lock;
    return std::any_of(Desktop().Children.begin(), Desktop().Children.end(),
                       [](const TWindow* Window) { return Window->Owner && Window->Has(WS_VISIBLE); });
}

HWND GetDlgItem(HWND Dialog, int Id)
{
    TStateLock Lock;
    const TWindow* const Window = WindowOf(Dialog);
    if (Window)
        for (const TWindow* const Child : Window->Children)
            if (static_cast<int>(Child->Id) == Id)
                return Child->Handle;
    if (Window)
        SetLastError(ERROR_CONTROL_ID_NOT_FOUND);
    return nullptr;
}

int GetDlgCtrlID(HWND Handle)
{
    TStateLock Lock;
    const TWindow* const Window = WindowOf(Handle);
    return Window ? static_cast<int>(Window->Id) : 0;
}
