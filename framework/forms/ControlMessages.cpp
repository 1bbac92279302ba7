// What a control does with messages: mouse, menus, and the framework's own.
#include <utility>

#include "framework/forms/Application.h"
#include "framework/forms/Control.h"
#include "framework/forms/Menus.h"
#include "framework/forms/WinControl.h"

namespace {

// The control without a window that has the mouse through its parent's window.
TControl* CaptureControl = nullptr;
TControl* DragControl = nullptr;
TControl* DragTarget = nullptr; // what the mouse is over while it drags
TObject* DragSource = nullptr;

} // namespace

TShiftState KeysToShiftState(WPARAM Keys)
{
    TShiftState Result;
    if (Keys & MK_SHIFT)
        Result.Include(ssShift);
    if (Keys & MK_CONTROL)
        Result.Include(ssCtrl);
    if (Keys & MK_LBUTTON)
        Result.Include(ssLeft);
    if (Keys & MK_RBUTTON)
        Result.Include(ssRight);
    if (Keys & MK_MBUTTON)
        Result.Include(ssMiddle);
    if (GetKeyState(VK_MENU) < 0)
        Result.Include(ssAlt);
    return Result;
}

TShiftState KeyDataToShiftState(LPARAM KeyData)
{
    constexpr LPARAM AltDown = 0x20000000;
    TShiftState Result;
    if (GetKeyState(VK_SHIFT) < 0)
        Result.Include(ssShift);
    if (GetKeyState(VK_CONTROL) < 0)
        Result.Include(ssCtrl);
    if (KeyData & AltDown)
        Result.Include(ssAlt);
    return Result;
}

TControl* GetCaptureControl()
{
    TWinControl* const Window = FindControl(GetCapture());
    if (Window && CaptureControl && CaptureControl->Parent() == Window)
        return CaptureControl;
    return Window;
}

void SetCaptureControl(TControl* Control)
{
    ReleaseCapture();
    CaptureControl = nullptr;
    if (!Control)
        return;
    auto* Window = dynamic_cast<TWinControl*>(Control);
    if (!Window) {
        Window = Control->Parent();
        if (!Window)
            return;
        CaptureControl = Control;
    }
    SetCapture(Window->Handle());
}

void TControl::ForgetControl(const TControl* Control)
{
    if (CaptureControl == Control)
        CaptureControl = nullptr;
    if (DragControl == Control)
        DragControl = nullptr;
    if (DragTarget == Control)
        DragTarget = nullptr;
    if (DragSource == Control)
        DragSource = nullptr;
}

bool TControl::MouseCapture() const
{
    return GetCaptureControl() == this;
}

void TControl::SetMouseCapture(bool Value)
{
    if (MouseCapture() != Value)
        SetCaptureControl(Value ? this : nullptr);
}

LRESULT TControl::Perform(UINT Msg, WPARAM WParam, LPARAM LParam)
{
    TMessage Message{Msg, WParam, LParam, 0};
    Process(Message);
    return Message.Result;
}

void TControl::Process(TMessage& Message)
{
    if (OnWndProc) {
        // The hook may take itself away.
        const TWindowHook Hook = OnWndProc;
        if (Hook(Message))
            return;
    }
    WndProc(Message);
}

void TControl::WndProc(TMessage& Message)
{
    switch (Message.Msg) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        if (DragMode() == dmAutomatic && !HasState(csDesigning))
            return BeginDrag(true);
        FControlState.Include(csLButtonDown);
        break;
    case WM_LBUTTONUP:
        FControlState.Exclude(csLButtonDown);
        break;
    default:
        break;
    }
    if (!HasStyle(csDoubleClicks))
        switch (Message.Msg) {
        case WM_LBUTTONDBLCLK:
        case WM_RBUTTONDBLCLK:
        case WM_MBUTTONDBLCLK:
            Message.Msg -= WM_LBUTTONDBLCLK - WM_LBUTTONDOWN;
            break;
        default:
            break;
        }
    Dispatch(Message);
}

void TControl::DefaultHandler(TMessage&) {}

void TControl::Dispatch(TMessage& Message)
{
    switch (Message.Msg) {
    case CM_VISIBLECHANGED:
        InvalidateControl(true, FVisible && HasStyle(csOpaque));
        break;
    case CM_ENABLEDCHANGED:
    case CM_COLORCHANGED:
    case CM_FONTCHANGED:
    case CM_TEXTCHANGED:
    case CM_BIDIMODECHANGED:
        Invalidate();
        break;
    case CM_PARENTFONTCHANGED:
        TakeParentFont();
        break;
    case CM_PARENTCOLORCHANGED:
        TakeParentColor();
        break;
    case CM_PARENTSHOWHINTCHANGED:
        TakeParentShowHint();
        break;
    case CM_PARENTBIDIMODECHANGED:
        TakeParentBiDiMode();
        break;
    case CM_HITTEST:
        Message.Result = HTCLIENT;
        break;
    case CM_MOUSEENTER:
        if (FParent)
            FParent->Perform(CM_MOUSEENTER, 0, reinterpret_cast<LPARAM>(this));
        if (Message.LParam == 0 && OnMouseEnter)
            OnMouseEnter(this);
        break;
    case CM_MOUSELEAVE:
        if (FParent)
            FParent->Perform(CM_MOUSELEAVE, 0, reinterpret_cast<LPARAM>(this));
        if (Message.LParam == 0 && OnMouseLeave)
            OnMouseLeave(this);
        break;
    default:
        DispatchMouse(Message);
    }
}

void TControl::DispatchMouse(TMessage& Message)
{
    switch (Message.Msg) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        SendCancelMode(this);
        MouseButtonDown(Message, mbLeft, Message.Msg == WM_LBUTTONDBLCLK);
        break;
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK:
        MouseButtonDown(Message, mbRight, Message.Msg == WM_RBUTTONDBLCLK);
        break;
    case WM_MBUTTONDOWN:
    case WM_MBUTTONDBLCLK:
        MouseButtonDown(Message, mbMiddle, Message.Msg == WM_MBUTTONDBLCLK);
        break;
    case WM_LBUTTONUP:
        MouseButtonUp(Message, mbLeft);
        break;
    case WM_RBUTTONUP:
        MouseButtonUp(Message, mbRight);
        break;
    case WM_MBUTTONUP:
        MouseButtonUp(Message, mbMiddle);
        break;
    case WM_MOUSEMOVE:
        DefaultHandler(Message);
        if (!HasStyle(csNoStdEvents))
            MouseMove(KeysToShiftState(Message.WParam), Message.X(), Message.Y());
        break;
    case WM_MOUSEWHEEL: {
        const auto Delta = static_cast<int16_t>(Message.WParam >> 16 & 0xffff);
        if (DoMouseWheel(KeysToShiftState(Message.WParam & 0xffff), Delta, Point(Message.X(), Message.Y())))
            Message.Result = 1;
        else
            DefaultHandler(Message);
        break;
    }
    case WM_CONTEXTMENU:
        ContextMenu(Message);
        break;
    case WM_CANCELMODE:
        DefaultHandler(Message);
        if (MouseCapture()) {
            SetMouseCapture(false);
            FControlState.Exclude(csLButtonDown);
        }
        FControlState.Exclude(csClicked);
        break;
    default:
        DefaultHandler(Message);
    }
}

void TControl::MouseButtonDown(const TMessage& Message, TMouseButton Button, bool Double)
{
    TMessage ForDefault = Message;
    DefaultHandler(ForDefault);
    if (Button == mbLeft) {
        if (HasStyle(csCaptureMouse))
            SetMouseCapture(true);
        if (HasStyle(csClickEvents) && !Double)
            FControlState.Include(csClicked);
        if (HasStyle(csClickEvents) && Double)
            DblClick();
    }
    TShiftState Shift = KeysToShiftState(Message.WParam);
    if (Double)
        Shift.Include(ssDouble);
    if (!HasStyle(csNoStdEvents))
        MouseDown(Button, Shift, Message.X(), Message.Y());
}

void TControl::MouseButtonUp(const TMessage& Message, TMouseButton Button)
{
    TMessage ForDefault = Message;
    DefaultHandler(ForDefault);
    if (DragControl == this && Button == mbLeft)
        return EndDragAt(ClientToScreen(Point(Message.X(), Message.Y())));
    if (Button == mbLeft) {
        if (HasStyle(csCaptureMouse))
            SetMouseCapture(false);
        if (FControlState.Contains(csClicked)) {
            FControlState.Exclude(csClicked);
            const TRect Inside = ClientRect();
            if (PtInRect(&Inside, Point(Message.X(), Message.Y())))
                Click();
        }
    }
    if (!HasStyle(csNoStdEvents))
        MouseUp(Button, KeysToShiftState(Message.WParam), Message.X(), Message.Y());
}

// Screen coordinates; -1, -1 when a key asks for the menu.
void TControl::ContextMenu(TMessage& Message)
{
    const TPoint Pos = Point(Message.X(), Message.Y());
    const bool FromKey = Pos.x == -1 && Pos.y == -1;
    const TPoint Here = FromKey ? Pos : ScreenToClient(Pos);
    const TRect Inside = ClientRect();
    bool Handled = false;
    if (FromKey || PtInRect(&Inside, Here)) {
        DoContextPopup(Here, Handled);
        if (!Handled && GetPopupMenu() && GetPopupMenu()->AutoPopup()) {
            TPopupMenu* const Menu = GetPopupMenu();
            const TPoint At = FromKey ? ClientToScreen(Point(0, 0)) : Pos;
            SendCancelMode(nullptr);
            Menu->SetPopupComponent(this);
            Menu->Popup(static_cast<int>(At.x), static_cast<int>(At.y));
            Handled = true;
        }
    }
    Message.Result = Handled;
    if (!Handled)
        DefaultHandler(Message);
}

void TControl::DoContextPopup(const TPoint& MousePos, bool& Handled)
{
    if (OnContextPopup)
        OnContextPopup(this, MousePos, Handled);
}

void TControl::SendCancelMode(TControl* Sender)
{
    for (TControl* Control = this; Control; Control = Control->FParent)
        if (auto* const Form = dynamic_cast<TCustomForm*>(Control))
            Form->Perform(CM_CANCELMODE, 0, reinterpret_cast<LPARAM>(Sender));
}

// A handler other than the action's own is called as it is.
void TControl::Click()
{
    const bool HasOwnHandler = OnClick && Action() && OnClick != Action()->OnExecute();
    if (FActionLink && !HasOwnHandler && !HasState(csDesigning))
        FActionLink->Execute(this);
    else if (OnClick)
        OnClick(this);
}

void TControl::DblClick()
{
    if (OnDblClick)
        OnDblClick(this);
}

void TControl::MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    if (OnMouseDown)
        OnMouseDown(this, Button, Shift, X, Y);
}

void TControl::MouseMove(TShiftState Shift, int X, int Y)
{
    if (DragControl == this)
        DragTo(ClientToScreen(Point(X, Y)));
    else if (OnMouseMove)
        OnMouseMove(this, Shift, X, Y);
}

void TControl::MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    if (OnMouseUp)
        OnMouseUp(this, Button, Shift, X, Y);
}

bool TControl::DoMouseWheel(TShiftState Shift, int WheelDelta, const TPoint& MousePos)
{
    bool Handled = false;
    if (OnMouseWheel)
        OnMouseWheel(this, Shift, WheelDelta, MousePos, Handled);
    const TMouseWheelUpDownEvent& Event = WheelDelta < 0 ? OnMouseWheelDown : OnMouseWheelUp;
    if (!Handled && Event)
        Event(this, Shift, MousePos, Handled);
    return Handled;
}

void TControl::BeginDrag(bool)
{
    DragSource = this;
    if (OnStartDrag)
        OnStartDrag(this, DragSource);
    DragControl = this;
    SetCaptureControl(this);
}

bool TControl::Dragging() const
{
    return DragControl == this;
}

bool TControl::TellDrag(TControl& Target, const TPoint& Pos, TDragState State)
{
    const TPoint Here = Target.ScreenToClient(Pos);
    bool Accept = false;
    Target.DragOver(DragSource, static_cast<int>(Here.x), static_cast<int>(Here.y), State, Accept);
    return Accept;
}

// A handler may destroy what is dragged or dragged over: both are asked for anew
// after each.
void TControl::DragTo(const TPoint& Pos)
{
    TControl* const Target = FindDragTarget(Pos, false);
    if (Target != DragTarget) {
        if (TControl* const Left = std::exchange(DragTarget, Target))
            TellDrag(*Left, Pos, dsDragLeave);
        if (DragTarget)
            TellDrag(*DragTarget, Pos, dsDragEnter);
    }
    const bool Accept = DragTarget && TellDrag(*DragTarget, Pos, dsDragMove);
    if (DragControl)
        ::SetCursor(Screen->Cursors(Accept ? DragControl->DragCursor() : crNoDrop));
}

void TControl::EndDragAt(const TPoint& Pos)
{
    DragTo(Pos);
    if (DragControl != this)
        return;
    SetCaptureControl(nullptr);
    FControlState.Exclude(csClicked);
    TPoint Here{};
    const bool Accept = DragTarget && TellDrag(*DragTarget, Pos, dsDragLeave);
    if (Accept && DragTarget) {
        Here = DragTarget->ScreenToClient(Pos);
        DragTarget->DragDrop(DragSource, static_cast<int>(Here.x), static_cast<int>(Here.y));
    }
    TControl* const Target = Accept ? DragTarget : nullptr;
    const bool Alive = DragControl == this;
    DragControl = DragTarget = nullptr;
    if (Alive && OnEndDrag)
        OnEndDrag(this, Target, static_cast<int>(Here.x), static_cast<int>(Here.y));
}

void TControl::DragOver(TObject* Source, int X, int Y, TDragState State, bool& Accept)
{
    Accept = false;
    if (!OnDragOver)
        return;
    Accept = true;
    OnDragOver(this, Source, X, Y, State, Accept);
}

void TControl::DragDrop(TObject* Source, int X, int Y)
{
    if (OnDragDrop)
        OnDragDrop(this, Source, X, Y);
}
