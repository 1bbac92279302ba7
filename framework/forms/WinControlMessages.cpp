// What a control does with the messages of its window.
#include <algorithm>

#include "framework/forms/Application.h"
#include "framework/forms/WinControl.h"

namespace {

bool IsMouseMessage(UINT Msg)
{
    return Msg >= WM_MOUSEFIRST && Msg <= WM_MOUSELAST && Msg != WM_MOUSEWHEEL;
}

HWND WindowOf(LPARAM Param)
{
    return reinterpret_cast<HWND>(Param);
}

// The window that a notification is about.
HWND NotifyingWindow(const TMessage& Message)
{
    switch (Message.Msg) {
    case WM_NOTIFY:
        return reinterpret_cast<const NMHDR*>(Message.LParam)->hwndFrom;
    case WM_DRAWITEM:
        return reinterpret_cast<const DRAWITEMSTRUCT*>(Message.LParam)->hwndItem;
    case WM_DELETEITEM:
        return reinterpret_cast<const DELETEITEMSTRUCT*>(Message.LParam)->hwndItem;
    case WM_COMPAREITEM:
        return reinterpret_cast<const COMPAREITEMSTRUCT*>(Message.LParam)->hwndItem;
    case WM_MEASUREITEM:
        // Windows of controls have their handle as identifier.
        return WindowOf(
            static_cast<LPARAM>(reinterpret_cast<const MEASUREITEMSTRUCT*>(Message.LParam)->CtlID));
    default:
        return WindowOf(Message.LParam);
    }
}

} // namespace

void TWinControl::MainWndProc(TMessage& Message)
{
    try {
        Process(Message);
    } catch (...) {
        // No exception may pass through the system's code.
        Application->HandleException(nullptr);
    }
}

void TWinControl::WndProc(TMessage& Message)
{
    switch (Message.Msg) {
    case WM_SETFOCUS:
        if (TCustomForm* const Form = GetParentForm(this); Form && !Form->SetFocusedControl(this))
            return;
        break;
    case WM_KILLFOCUS:
        if (FControlState.Contains(csFocusing))
            return;
        break;
    case WM_NCHITTEST:
        inherited::WndProc(Message);
        if (Message.Result == HTTRANSPARENT &&
            ControlAtPos(ScreenToClient(Point(Message.X(), Message.Y())), false))
            Message.Result = HTCLIENT;
        return;
    case WM_CANCELMODE:
        if (FHandle && GetCapture() == FHandle)
            if (TControl* const Captured = GetCaptureControl(); Captured && Captured != this)
                Captured->Perform(WM_CANCELMODE);
        break;
    default:
        if (IsMouseMessage(Message.Msg) && IsControlMouseMessage(Message)) {
            if (Message.Result == 0 && FHandle)
                DefWindowProcA(FHandle, Message.Msg, Message.WParam, Message.LParam);
            return;
        }
    }
    inherited::WndProc(Message);
}

bool TWinControl::IsControlMouseMessage(TMessage& Message)
{
    TControl* Control = nullptr;
    if (FHandle && GetCapture() == FHandle) {
        Control = GetCaptureControl();
        if (Control == this)
            Control = nullptr;
    } else {
        Control = ControlAtPos(Point(Message.X(), Message.Y()), false);
    }
    if (!Control)
        return false;
    Message.Result = Control->Perform(
        Message.Msg, Message.WParam, MAKELPARAM(Message.X() - Control->Left(), Message.Y() - Control->Top()));
    return true;
}

void TWinControl::DefaultHandler(TMessage& Message)
{
    if (!FHandle)
        return inherited::DefaultHandler(Message);
    Message.Result = CallWindowProcA(FDefWndProc, FHandle, Message.Msg, Message.WParam, Message.LParam);
}

bool TWinControl::DoControlMessage(HWND Child, TMessage& Message)
{
    TWinControl* const Control = FindControl(Child);
    if (!Control)
        return false;
    Message.Result = Control->Perform(Message.Msg + CN_BASE, Message.WParam, Message.LParam);
    return true;
}

void TWinControl::Dispatch(TMessage& Message)
{
    if (!DispatchFrame(Message) && !DispatchKeys(Message) && !DispatchPaint(Message) &&
        !DispatchNotifications(Message) && !DispatchChanges(Message))
        inherited::Dispatch(Message);
}

bool TWinControl::DispatchFrame(TMessage& Message)
{
    switch (Message.Msg) {
    case WM_WINDOWPOSCHANGED:
        WMWindowPosChanged(Message);
        break;
    case WM_SIZE:
        UpdateBounds();
        DefaultHandler(Message);
        Realign();
        if (!IsLoading())
            Resize();
        break;
    case WM_MOVE:
        DefaultHandler(Message);
        if (FHandle)
            UpdateBounds();
        break;
    case WM_WINDOWPOSCHANGING: {
        auto* const Position = reinterpret_cast<WINDOWPOS*>(Message.LParam);
        if (!(Position->flags & SWP_NOSIZE) && !FControlState.Contains(csCreating) && !IsIconic(FHandle) &&
            !CheckNewSize(Position->cx, Position->cy))
            Position->flags |= SWP_NOSIZE;
        DefaultHandler(Message);
        break;
    }
    case WM_NCDESTROY:
        WMNCDestroy(Message);
        break;
    case WM_SETCURSOR:
        WMSetCursor(Message);
        break;
    case WM_NCCALCSIZE:
        DefaultHandler(Message);
        if (FBorderWidth > 0) {
            auto& Area = *reinterpret_cast<RECT*>(Message.LParam);
            const LONG Border = FBorderWidth, Left = Area.left + Border, Top = Area.top + Border;
            // A border that leaves no room leaves an empty area, not a negative one.
            Area = {Left, Top, std::max(Left, Area.right - Border), std::max(Top, Area.bottom - Border)};
        }
        break;
    default:
        return false;
    }
    return true;
}

void TWinControl::WMWindowPosChanged(TMessage& Message)
{
    const UINT Flags = reinterpret_cast<const WINDOWPOS*>(Message.LParam)->flags;
    if (!(Flags & SWP_NOMOVE) || !(Flags & SWP_NOSIZE))
        UpdateBounds();
    DefaultHandler(Message);
}

void TWinControl::WMNCDestroy(TMessage& Message)
{
    DefaultHandler(Message);
    UnbindWindow(FHandle);
    FShowing = false;
}

void TWinControl::WMSetCursor(TMessage& Message)
{
    if (WindowOf(static_cast<LPARAM>(Message.WParam)) == FHandle && (Message.LParam & 0xffff) == HTCLIENT) {
        TCursor Wanted = Screen->Cursor();
        if (Wanted == crDefault) {
            TPoint Pos{};
            GetCursorPos(&Pos);
            if (const TControl* const Inner = ControlAtPos(ScreenToClient(Pos), false))
                Wanted = Inner->Cursor();
            if (Wanted == crDefault)
                Wanted = Cursor();
        }
        if (Wanted != crDefault) {
            ::SetCursor(Screen->Cursors(Wanted));
            Message.Result = 1;
            return;
        }
    }
    DefaultHandler(Message);
}

bool TWinControl::DispatchPaint(TMessage& Message)
{
    switch (Message.Msg) {
    case WM_PAINT:
        WMPaint(Message);
        break;
    case WM_ERASEBKGND: {
        const TRect Inside = ClientRect();
        FillRect(reinterpret_cast<HDC>(Message.WParam), &Inside, FBrush.Handle());
        Message.Result = 1;
        break;
    }
    case WM_PRINTCLIENT:
        PaintHandler(Message);
        break;
    default:
        return false;
    }
    return true;
}

void TWinControl::WMPaint(TMessage& Message)
{
    if (!FControlState.Contains(csCustomPaint) && FControls.empty())
        DefaultHandler(Message);
    else
        PaintHandler(Message);
}

void TWinControl::PaintHandler(TMessage& Message)
{
    PAINTSTRUCT Paint{};
    HDC Dc = reinterpret_cast<HDC>(Message.WParam);
    if (!Dc)
        Dc = BeginPaint(FHandle, &Paint);
    PaintWindow(Dc);
    PaintControls(Dc, nullptr);
    if (!Message.WParam)
        EndPaint(FHandle, &Paint);
}

void TWinControl::PaintWindow(HDC Dc)
{
    TMessage Message{WM_PAINT, reinterpret_cast<WPARAM>(Dc), 0, 0};
    DefaultHandler(Message);
}

// First: the lowest control to be painted, or null for all.
void TWinControl::PaintControls(HDC Dc, TControl* First)
{
    auto Start = First ? std::find(FControls.begin(), FControls.end(), First) : FControls.begin();
    const std::vector<TControl*> Painted(Start, FControls.end());
    for (TControl* const Control : Painted) {
        const TRect Place = Control->BoundsRect();
        if (!(Control->Visible() || HasState(csDesigning)) || !RectVisible(Dc, &Place))
            continue;
        const int Saved = SaveDC(Dc);
        OffsetViewportOrgEx(Dc, Control->Left(), Control->Top(), nullptr);
        IntersectClipRect(Dc, 0, 0, Control->Width(), Control->Height());
        Control->Perform(WM_PAINT, reinterpret_cast<WPARAM>(Dc));
        RestoreDC(Dc, Saved);
    }
}

void TWinControl::PaintTo(HDC Dc, int X, int Y)
{
    const int Saved = SaveDC(Dc);
    OffsetViewportOrgEx(Dc, X, Y, nullptr);
    IntersectClipRect(Dc, 0, 0, Width(), Height());
    Perform(WM_ERASEBKGND, reinterpret_cast<WPARAM>(Dc));
    Perform(WM_PAINT, reinterpret_cast<WPARAM>(Dc));
    for (TWinControl* const Control : FWinControls)
        if (Control->Visible())
            Control->PaintTo(Dc, Control->Left(), Control->Top());
    RestoreDC(Dc, Saved);
}

bool TWinControl::DispatchNotifications(TMessage& Message)
{
    switch (Message.Msg) {
    case WM_COMMAND:
    case WM_NOTIFY:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_DELETEITEM:
    case WM_COMPAREITEM:
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_CHARTOITEM:
    case WM_VKEYTOITEM:
    case WM_CTLCOLORMSGBOX:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSCROLLBAR:
    case WM_CTLCOLORSTATIC:
        if (!DoControlMessage(NotifyingWindow(Message), Message))
            DefaultHandler(Message);
        break;
    case CN_CTLCOLORMSGBOX:
    case CN_CTLCOLOREDIT:
    case CN_CTLCOLORLISTBOX:
    case CN_CTLCOLORBTN:
    case CN_CTLCOLORDLG:
    case CN_CTLCOLORSCROLLBAR:
    case CN_CTLCOLORSTATIC:
        SetTextColor(reinterpret_cast<HDC>(Message.WParam), ColorToRGB(Font()->Color()));
        SetBkColor(reinterpret_cast<HDC>(Message.WParam), ColorToRGB(FBrush.Color()));
        Message.Result = reinterpret_cast<LRESULT>(FBrush.Handle());
        break;
    default:
        // A notification that the control does not know is not for its window.
        return Message.Msg >= CN_BASE && Message.Msg < CN_BASE + WM_USER;
    }
    return true;
}

bool TWinControl::DispatchChanges(TMessage& Message)
{
    switch (Message.Msg) {
    case CM_VISIBLECHANGED:
        if (!Visible() && Parent())
            RemoveFocus(false);
        UpdateControlState();
        break;
    case CM_SHOWINGCHANGED:
        SetWindowPos(FHandle, nullptr, 0, 0, 0, 0,
                     SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE |
                         (FShowing ? SWP_SHOWWINDOW : SWP_HIDEWINDOW));
        break;
    case CM_ENABLEDCHANGED:
        if (!Enabled() && Parent())
            RemoveFocus(false);
        if (FHandle && !HasState(csDesigning))
            EnableWindow(FHandle, Enabled());
        break;
    case CM_COLORCHANGED:
        FBrush.SetColor(Color());
        Invalidate();
        NotifyControls(CM_PARENTCOLORCHANGED);
        break;
    case CM_FONTCHANGED:
        if (FHandle)
            Perform(WM_SETFONT, reinterpret_cast<WPARAM>(Font()->Handle()), TRUE);
        Invalidate();
        NotifyControls(CM_PARENTFONTCHANGED);
        break;
    case CM_SHOWHINTCHANGED:
        NotifyControls(CM_PARENTSHOWHINTCHANGED);
        break;
    case CM_BIDIMODECHANGED:
        RecreateWnd();
        NotifyControls(CM_PARENTBIDIMODECHANGED);
        break;
    case CM_PARENTCTL3DCHANGED:
        if (FParentCtl3D && Parent()) {
            SetCtl3D(Parent()->Ctl3D());
            FParentCtl3D = true;
        }
        break;
    case CM_CTL3DCHANGED:
        RecreateWnd();
        NotifyControls(CM_PARENTCTL3DCHANGED);
        break;
    case CM_BORDERCHANGED:
        if (FHandle)
            SetWindowPos(FHandle, nullptr, 0, 0, 0, 0,
                         SWP_NOACTIVATE | SWP_NOZORDER | SWP_NOMOVE | SWP_NOSIZE | SWP_FRAMECHANGED);
        Realign();
        break;
    case CM_RECREATEWND: {
        TWinControl* const Focus = FindControl(GetFocus());
        const bool WasInside = ContainsControl(Focus);
        DestroyHandle();
        UpdateControlState();
        if (WasInside && Focus->FHandle)
            ::SetFocus(Focus->FHandle);
        break;
    }
    case CM_TEXTCHANGED:
        // The window has drawn its new text already.
        break;
    default:
        return false;
    }
    return true;
}
