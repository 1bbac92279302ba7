// The windows of controls: making, showing and destroying them.
#include <algorithm>
#include <mutex>
#include <string>
#include <unordered_map>

#include "framework/forms/Application.h"
#include "framework/forms/WinControl.h"
#include "framework/rtl/SysUtils.h"

namespace {

// The controls of the windows made here. A property of the window would be a
// question to the system for every single message.
struct TWindowMap {
    std::mutex Lock;
    std::unordered_map<HWND, TWinControl*> Controls;
};

// Lives on for windows that are destroyed at the very end.
TWindowMap& WindowMap()
{
    static auto& Map = *new TWindowMap;
    return Map;
}

// The control whose window is being made: its first messages come before the
// handle is known.
thread_local TWinControl* CreationControl = nullptr;

LRESULT CALLBACK ControlProc(HWND Window, UINT Msg, WPARAM WParam, LPARAM LParam)
{
    TWinControl* const Control = FindControl(Window);
    if (!Control)
        return DefWindowProcA(Window, Msg, WParam, LParam);
    TMessage Message{Msg, WParam, LParam, 0};
    Control->MainWndProc(Message);
    return Message.Result;
}

// The procedure of every class that is registered here: binds the new window to
// its control.
LRESULT CALLBACK InitialProc(HWND Window, UINT Msg, WPARAM WParam, LPARAM LParam)
{
    TWinControl* const Control = CreationControl;
    if (!Control)
        return DefWindowProcA(Window, Msg, WParam, LParam);
    CreationControl = nullptr;
    Control->BindWindow(Window);
    SetWindowLongPtrA(Window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&ControlProc));
    if (GetWindowLongPtrA(Window, GWL_STYLE) & WS_CHILD && GetWindowLongPtrA(Window, GWLP_ID) == 0)
        SetWindowLongPtrA(Window, GWLP_ID, reinterpret_cast<LONG_PTR>(Window));
    return ControlProc(Window, Msg, WParam, LParam);
}

void RegisterWindowClass(const TCreateParams& Params)
{
    WNDCLASSA Known{};
    const char* const Name = Params.WinClassName.c_str();
    const bool Registered = GetClassInfoA(Params.WindowClass.hInstance, Name, &Known);
    if (Registered && Known.lpfnWndProc == &InitialProc)
        return;
    if (Registered)
        UnregisterClassA(Name, Params.WindowClass.hInstance);
    WNDCLASSA Class = Params.WindowClass;
    Class.lpfnWndProc = &InitialProc;
    Class.lpszClassName = Name;
    if (!RegisterClassA(&Class))
        throw EOutOfResources(SWindowClass);
}

} // namespace

HINSTANCE ModuleInstance()
{
    return GetModuleHandleA(nullptr);
}

TWinControl* FindControl(HWND Handle)
{
    if (!Handle)
        return nullptr;
    TWindowMap& Map = WindowMap();
    const std::scoped_lock Guard(Map.Lock);
    const auto Found = Map.Controls.find(Handle);
    return Found == Map.Controls.end() ? nullptr : Found->second;
}

TControl* FindDragTarget(const TPoint& Pos, bool AllowDisabled)
{
    HWND Window = WindowFromPoint(Pos);
    TWinControl* Control = FindControl(Window);
    while (Window && !Control) {
        Window = GetParent(Window);
        Control = FindControl(Window);
    }
    if (!Control)
        return nullptr;
    TControl* const Inner = Control->ControlAtPos(Control->ScreenToClient(Pos), AllowDisabled);
    return Inner ? Inner : Control;
}

void TWinControl::BindWindow(HWND Window)
{
    FHandle = Window;
    TWindowMap& Map = WindowMap();
    const std::scoped_lock Guard(Map.Lock);
    Map.Controls[Window] = this;
}

void TWinControl::UnbindWindow(HWND Window)
{
    FHandle = nullptr;
    TWindowMap& Map = WindowMap();
    const std::scoped_lock Guard(Map.Lock);
    const auto Found = Map.Controls.find(Window);
    if (Found != Map.Controls.end() && Found->second == this)
        Map.Controls.erase(Found);
}

HWND TWinControl::Handle()
{
    if (!FHandle) {
        if (Parent())
            Parent()->Handle();
        CreateHandle();
    }
    return FHandle;
}

void TWinControl::SetParentWindow(HWND Value)
{
    if (FParentWindow == Value || Parent())
        return;
    DestroyHandle();
    FParentWindow = Value;
    UpdateControlState();
}

void TWinControl::CreateParams(TCreateParams& Params)
{
    Params = {};
    Params.Caption = inherited::GetText();
    Params.Style = WS_CHILD | WS_CLIPSIBLINGS;
    if (HasStyle(csAcceptsControls)) {
        Params.Style |= WS_CLIPCHILDREN;
        Params.ExStyle = WS_EX_CONTROLPARENT;
    }
    if (!HasState(csDesigning) && !Enabled())
        Params.Style |= WS_DISABLED;
    if (FTabStop)
        Params.Style |= WS_TABSTOP;
    if (UseRightToLeftReading())
        Params.ExStyle |= WS_EX_RTLREADING;
    if (UseRightToLeftReading() && BiDiMode() != bdRightToLeftReadingOnly)
        Params.ExStyle |= WS_EX_LEFTSCROLLBAR;
    if (UseRightToLeftAlignment())
        Params.ExStyle |= WS_EX_RIGHT;
    Params.X = Left();
    Params.Y = Top();
    Params.Width = Width();
    Params.Height = Height();
    Params.WndParent = Parent() ? Parent()->FHandle : FParentWindow;
    Params.WindowClass.style = CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS;
    Params.WindowClass.lpfnWndProc = DefWindowProcA;
    Params.WindowClass.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    Params.WindowClass.hInstance = ModuleInstance();
    Params.WinClassName = ClassName();
}

void TWinControl::CreateSubClass(TCreateParams& Params, const char* ControlClassName)
{
    // Of the class's styles only those that survive in a copy are kept.
    constexpr UINT Dropped = CS_GLOBALCLASS | CS_PARENTDC;
    const UINT Style = Params.WindowClass.style;
    const HINSTANCE Instance = Params.WindowClass.hInstance;
    WNDCLASSA Class{};
    if (GetClassInfoA(nullptr, ControlClassName, &Class) || GetClassInfoA(Instance, ControlClassName, &Class))
        Params.WindowClass = Class;
    Params.WindowClass.style = (Params.WindowClass.style | (Style & CS_DBLCLKS)) & ~Dropped;
    Params.WindowClass.hInstance = Instance;
}

void TWinControl::CreateWindowHandle(const TCreateParams& Params)
{
    CreateWindowExA(Params.ExStyle, Params.WinClassName.c_str(), Params.Caption.c_str(), Params.Style,
                    Params.X, Params.Y, Params.Width, Params.Height, Params.WndParent, nullptr,
                    Params.WindowClass.hInstance, Params.Param);
}

void TWinControl::CreateWnd()
{
    TCreateParams Params;
    CreateParams(Params);
    if (!Params.WndParent && (Params.Style & WS_CHILD))
        throw EInvalidOperation(Format(SParentRequired, {Name()}));
    FDefWndProc = Params.WindowClass.lpfnWndProc;
    RegisterWindowClass(Params);
    CreationControl = this;
    CreateWindowHandle(Params);
    CreationControl = nullptr;
    if (!FHandle)
        throw EOutOfResources(SWindowCreate);
    UpdateBounds();
    Perform(WM_SETFONT, reinterpret_cast<WPARAM>(Font()->Handle()), TRUE);
}

void TWinControl::CreateHandle()
{
    if (FHandle)
        return;
    FControlState.Include(csCreating);
    try {
        CreateWnd();
    } catch (...) {
        FControlState.Exclude(csCreating);
        throw;
    }
    FControlState.Exclude(csCreating);
    // Below the next of the parent's controls that has a window.
    if (Parent()) {
        const auto& Siblings = Parent()->FWinControls;
        HWND After = HWND_TOP;
        for (auto Next = std::find(Siblings.begin(), Siblings.end(), this); Next != Siblings.end(); ++Next)
            if (*Next != this && (*Next)->FHandle) {
                After = (*Next)->FHandle;
                break;
            }
        SetWindowPos(FHandle, After, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }
    for (TControl* const Control : FControls)
        if (Control->AutoSize())
            Control->AdjustSize();
    if (AutoSize())
        AdjustSize();
    Realign();
}

void TWinControl::DestroyWindowHandle()
{
    FControlState.Include(csDestroyingHandle);
    const HWND Window = FHandle;
    if (Window)
        DestroyWindow(Window);
    FControlState.Exclude(csDestroyingHandle);
    UnbindWindow(Window);
}

void TWinControl::DestroyWnd()
{
    const std::string Kept = GetText();
    DestroyWindowHandle();
    inherited::StoreText(Kept);
}

void TWinControl::DestroyHandle()
{
    if (!FHandle)
        return;
    for (TWinControl* const Control : FWinControls)
        Control->DestroyHandle();
    DestroyWnd();
    FShowing = false;
}

void TWinControl::RecreateWnd()
{
    if (FHandle)
        Perform(CM_RECREATEWND);
}

void TWinControl::CreateControl()
{
    Handle();
    for (TWinControl* const Control : FWinControls)
        if (Control->Visible())
            Control->CreateControl();
}

// Shows or hides what has changed its mind, with everything inside.
void TWinControl::UpdateShowing()
{
    const bool Show = Visible() || (HasState(csDesigning) && !HasStyle(csNoDesignVisible));
    if (Show) {
        if (!FHandle)
            CreateHandle();
        const std::vector<TWinControl*> Children = FWinControls;
        for (TWinControl* const Control : Children)
            Control->UpdateShowing();
    }
    if (FHandle && FShowing != Show) {
        FShowing = Show;
        try {
            Perform(CM_SHOWINGCHANGED);
        } catch (...) {
            FShowing = !Show;
            throw;
        }
    }
}

void TWinControl::UpdateControlState()
{
    TWinControl* Control = this;
    while (Control->Parent()) {
        Control = Control->Parent();
        if (!Control->FShowing || !Control->FHandle)
            return;
    }
    if (dynamic_cast<TCustomForm*>(Control) || Control->FParentWindow)
        UpdateShowing();
}

// The window's place is the control's; for a minimized window the restored one.
void TWinControl::UpdateBounds()
{
    TRect Place{};
    if (IsIconic(FHandle)) {
        WINDOWPLACEMENT Placement{};
        Placement.length = sizeof Placement;
        GetWindowPlacement(FHandle, &Placement);
        Place = Placement.rcNormalPosition;
    } else {
        GetWindowRect(FHandle, &Place);
        if (GetWindowLongPtrA(FHandle, GWL_STYLE) & WS_CHILD)
            if (const HWND ParentHandle = GetParent(FHandle)) {
                TPoint Origin = {0, 0};
                ::ClientToScreen(ParentHandle, &Origin);
                OffsetRect(&Place, -static_cast<int>(Origin.x), -static_cast<int>(Origin.y));
            }
    }
    FLeft = static_cast<int>(Place.left);
    FTop = static_cast<int>(Place.top);
    FWidth = RectWidth(Place);
    FHeight = RectHeight(Place);
    UpdateAnchorRules();
}

std::string TWinControl::GetText() const
{
    if (!FHandle)
        return inherited::GetText();
    std::string Result(static_cast<size_t>(GetWindowTextLengthA(FHandle)) + 1, '\0');
    Result.resize(
        static_cast<size_t>(GetWindowTextA(FHandle, Result.data(), static_cast<int>(Result.size()))));
    return Result;
}

void TWinControl::StoreText(const std::string& Value)
{
    if (FHandle)
        SetWindowTextA(FHandle, Value.c_str());
    else
        inherited::StoreText(Value);
}

void TWinControl::SetZOrder(bool TopMost)
{
    if (Parent()) {
        auto& Siblings = Parent()->FWinControls;
        std::erase(Siblings, this);
        Siblings.insert(TopMost ? Siblings.end() : Siblings.begin(), this);
    }
    if (FHandle)
        SetWindowPos(FHandle, TopMost ? HWND_TOP : HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
}

HDC TWinControl::GetDeviceContext(HWND& Window)
{
    Window = Handle();
    return GetDC(Window);
}

void TWinControl::Invalidate()
{
    if (FHandle)
        InvalidateRect(FHandle, nullptr, !HasStyle(csOpaque));
}

void TWinControl::Update()
{
    if (FHandle)
        UpdateWindow(FHandle);
}

void TWinControl::Repaint()
{
    Invalidate();
    Update();
}

void TWinControl::ShowControl(TControl*)
{
    if (Parent())
        Parent()->ShowControl(this);
}
