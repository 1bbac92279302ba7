#include "platform/portable/Lifetime.h"

#include <algorithm>

#include "platform/portable/Handles.h"
#include "platform/portable/Thread.h"

namespace {

using TWindowTable = THandleTable<TWindow, THandleKind::Window>;

TWindowTable& Table()
{
    static auto& Windows = *new TWindowTable;
    return Windows;
}

TWindow& MakeRoot(const char* ClassName)
{
    auto Root = std::make_unique<TWindow>();
    Root->Class = std::make_shared<TWindowClass>();
    Root->Class->Name = ClassName;
    Root->Class->Proc = DefWindowProcA;
    Root->Class->BuiltIn = true;
    Root->Proc = DefWindowProcA;
    Root->Style = WS_POPUP | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN;
    Root->Rect = {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    Root->Client = Root->Rect;
    return *AddWindow(std::move(Root));
}

void Unlink(TWindow& Window)
{
    if (Window.Parent)
        std::erase(Window.Parent->Children, &Window);
}

bool IsTopmost(const TWindow& Window)
{
    return (Window.ExStyle & WS_EX_TOPMOST) != 0;
}

} // namespace

TWindow* AddWindow(std::unique_ptr<TWindow> Window)
{
    TStateLock Lock;
    TWindow* const Result = Window.get();
    const HWND Handle = reinterpret_cast<HWND>(Table().Add(std::move(Window)));
    if (!Handle)
        return nullptr; // no handle is left, and Add has destroyed the window
    Result->Handle = Handle;
    return Result;
}

void RemoveWindow(HWND Handle)
{
    ForgetWindow(Handle);
    TStateLock Lock;
    std::unique_ptr<TWindow> Window = Table().Take(Handle);
    if (!Window)
        return;
    Unlink(*Window);
    while (!Window->Children.empty())
        RemoveWindow(Window->Children.back()->Handle);
    if (Window->Class)
        --Window->Class->Windows;
}

void RemoveWindowsOf(const TThread& Thread)
{
    std::vector<HWND> Mine;
    ForEachWindow([&](const TWindow& Window) {
        if (Window.Thread.get() == &Thread)
            Mine.push_back(Window.Handle);
    });
    for (const HWND Window : Mine)
        RemoveWindow(Window);
}

TWindow* WindowOf(HWND Handle)
{
    TStateLock Lock;
    TWindow* const Window = Table().Find(Handle);
    if (!Window)
        SetLastError(ERROR_INVALID_WINDOW_HANDLE);
    return Window;
}

TWindow& Desktop()
{
    TStateLock Lock;
    static TWindow& Root = MakeRoot("#32769");
    return Root;
}

TWindow& MessageRoot()
{
    TStateLock Lock;
    static TWindow& Root = MakeRoot("Message");
    return Root;
}

void ForEachWindow(const std::function<void(TWindow&)>& Visit)
{
    TStateLock Lock;
    Table().ForEach(Visit);
}

std::vector<HWND> ChildrenOf(const TWindow& Window)
{
    TStateLock Lock;
    std::vector<HWND> Result;
    for (const TWindow* const Child : Window.Children)
        Result.push_back(Child->Handle);
    return Result;
}

void PlaceWindow(TWindow& Window, TPlace Place, HWND After)
{
    TStateLock Lock;
    if (!Window.Parent)
        return;
    auto& Siblings = Window.Parent->Children;
    std::erase(Siblings, &Window);
    const auto FirstLower = std::find_if(Siblings.begin(), Siblings.end(),
                                         [](const TWindow* Other) { return !IsTopmost(*Other); });
    auto Where = IsTopmost(Window) ? Siblings.begin() : FirstLower;
    if (Place == TPlace::Back)
        Where = IsTopmost(Window) ? FirstLower : Siblings.end();
    if (Place == TPlace::Behind) {
        const auto Found = std::find_if(Siblings.begin(), Siblings.end(),
                                        [&](const TWindow* Other) { return Other->Handle == After; });
        if (Found != Siblings.end())
            Where = Found + 1;
        if (!IsTopmost(Window))
            Where = std::max(Where, FirstLower);
    }
    Siblings.insert(Where, &Window);
}

void LinkWindow(TWindow& Window, TWindow& Parent, TPlace Place)
{
    TStateLock Lock;
    Unlink(Window);
    Window.Parent = &Parent;
    Parent.Children.push_back(&Window);
    PlaceWindow(Window, Place);
}
