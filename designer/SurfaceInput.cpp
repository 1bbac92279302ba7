// What the user does on a designed form, with mouse and keys.
#include <algorithm>
#include <utility>

#include "designer/DesignSurface.h"
#include "framework/design/ComponentEditor.h"
#include "framework/forms/PageControls.h"

namespace {

TPoint ScreenPointOf(const MSG& Message)
{
    TPoint Result{static_cast<short>(LOWORD(Message.lParam)), static_cast<short>(HIWORD(Message.lParam))};
    ClientToScreen(Message.hwnd, &Result);
    return Result;
}

bool IsDown(int Key)
{
    return GetKeyState(Key) < 0;
}

} // namespace

bool TDesignSurface::IsOurs(HWND Window) const
{
    const HWND Top = WindowHandle();
    return Top && (Window == Top || IsChild(Top, Window));
}

bool TDesignSurface::HandleMessage(const MSG& Message)
{
    if (!IsOurs(Message.hwnd))
        return false;
    if (Message.message >= WM_MOUSEFIRST && Message.message <= WM_MOUSELAST)
        return MouseMessage(Message);
    if (Message.message >= WM_NCMOUSEMOVE && Message.message <= WM_NCMBUTTONDBLCLK)
        return Message.hwnd != WindowHandle(); // scroll bars and frames of controls do nothing
    if (Message.message == WM_KEYDOWN || Message.message == WM_SYSKEYDOWN)
        KeyDown(Message);
    return Message.message >= WM_KEYFIRST && Message.message <= WM_KEYLAST;
}

bool TDesignSurface::MouseMessage(const MSG& Message)
{
    switch (Message.message) {
    case WM_LBUTTONDOWN:
        if (IsTabClick(HitComponent(Message), ScreenPointOf(Message)))
            return false;
        ButtonDown(Message);
        break;
    case WM_MOUSEMOVE:
        if (Message.wParam & MK_LBUTTON)
            DragTo(ScreenPointOf(Message));
        break;
    case WM_LBUTTONUP:
        EndDrag();
        break;
    case WM_LBUTTONDBLCLK:
        EndDrag();
        EditComponent();
        break;
    case WM_RBUTTONDOWN:
        if (TComponent* const Hit = HitComponent(Message); Hit && !FModel.IsSelected(Hit))
            FModel.SelectComponent(Hit);
        break;
    case WM_RBUTTONUP:
        if (OnContextMenu)
            OnContextMenu(ScreenPointOf(Message));
        break;
    default:
        break;
    }
    return true;
}

TMark* TDesignSurface::HitMark(HWND Window) const
{
    auto* const Control = FindControl(Window);
    return dynamic_cast<TMark*>(Control);
}

// The designed component at the place of a message: parts of frames and of compound
// controls stand for the whole.
TComponent* TDesignSurface::HitComponent(const MSG& Message) const
{
    if (const TMark* const Mark = HitMark(Message.hwnd))
        return &Mark->Component();
    HWND Window = Message.hwnd;
    while (Window && !FindControl(Window))
        Window = GetParent(Window);
    TControl* Hit = FindControl(Window);
    const TPoint Point = ScreenPointOf(Message);
    while (auto* const Container = dynamic_cast<TWinControl*>(Hit)) {
        TPoint Here = Point;
        ::ScreenToClient(Container->Handle(), &Here);
        TControl* const Inner = Container->ControlAtPos(Here, true, true);
        const auto* const InnerWindow = dynamic_cast<TWinControl*>(Inner);
        if (!Inner || (InnerWindow && !IsWindowVisible(InnerWindow->WindowHandle())))
            break;
        Hit = Inner;
    }
    while (Hit && Hit != &FModel.Root() && !FModel.IsOwn(Hit))
        Hit = Hit->Parent();
    return Hit ? static_cast<TComponent*>(Hit) : &FModel.Root();
}

// The tabs of a page control turn its pages while it is designed, too.
bool TDesignSurface::IsTabClick(TComponent* Component, const TPoint& ScreenPoint)
{
    auto* const Pages = dynamic_cast<TPageControl*>(Component);
    if (!Pages || !Pages->HandleAllocated())
        return false;
    TCHITTESTINFO Info{};
    Info.pt = ScreenPoint;
    ::ScreenToClient(Pages->Handle(), &Info.pt);
    return SendMessageA(Pages->Handle(), TCM_HITTEST, 0, reinterpret_cast<LPARAM>(&Info)) >= 0;
}

void TDesignSurface::ButtonDown(const MSG& Message)
{
    SetFocus(WindowHandle());
    TComponent* const Hit = HitComponent(Message);
    const auto* const Handle = dynamic_cast<THandleMark*>(HitMark(Message.hwnd));
    if (Placing) {
        PlaceAt(*Hit, ScreenPointOf(Message));
        return;
    }
    if (Handle && !Handle->IsFixed()) {
        FDrag.BeginSizing(*Hit, EffectOf(Handle->Place()), ScreenPointOf(Message));
        SetCapture(WindowHandle());
        return;
    }
    if (Message.wParam & MK_SHIFT)
        FModel.ToggleSelected(Hit);
    else if (!FModel.IsSelected(Hit))
        FModel.SelectComponent(Hit);
    if (Hit == &FModel.Root()) {
        FLasso = std::make_unique<TLasso>(Area()->Handle(), FModel.Root(), ScreenPointOf(Message));
        SetCapture(WindowHandle());
    } else if (FModel.IsSelected(Hit)) {
        BeginMoving(ScreenPointOf(Message));
    }
}

void TDesignSurface::BeginMoving(const TPoint& ScreenPoint)
{
    FDrag.BeginMoving(FModel.OutermostSelected(), ScreenPoint);
    SetCapture(WindowHandle());
}

void TDesignSurface::DragTo(const TPoint& ScreenPoint)
{
    if (FLasso)
        FLasso->To(ScreenPoint);
    else if (FDrag.To(ScreenPoint))
        Refresh();
}

void TDesignSurface::EndDrag()
{
    if (FLasso) {
        ReleaseCapture();
        EndLasso();
    } else if (FDrag.IsActive()) {
        ReleaseCapture();
        if (FDrag.End())
            FModel.Modified();
    }
}

void TDesignSurface::EndLasso()
{
    const TRect Box = std::exchange(FLasso, nullptr)->Box();
    if (RectWidth(Box) < TSurfaceDrag::Grid && RectHeight(Box) < TSurfaceDrag::Grid)
        return;
    std::vector<TComponent*> Inside;
    const auto AddTouched = [&](TComponent& Component, const RECT& Place) {
        if (RECT Common; IntersectRect(&Common, &Box, &Place) && FModel.IsOwn(&Component))
            Inside.push_back(&Component);
    };
    for (int I = 0; I < Area()->ControlCount(); ++I)
        AddTouched(*Area()->Controls(I), Area()->Controls(I)->BoundsRect());
    for (const auto& Each : FIcons)
        AddTouched(Each->Component(), Each->BoundsRect());
    FModel.Select(std::move(Inside));
}

void TDesignSurface::CancelDrag()
{
    FLasso.reset();
    FDrag.Cancel();
    ReleaseCapture();
    Refresh();
}

void TDesignSurface::PlaceAt(TComponent& Target, const TPoint& ScreenPoint)
{
    const TMetaClass& Class = *Placing;
    TWinControl* Container = Area();
    if (Class.InheritsFrom(TControl::MetaClass())) {
        auto* Inner = dynamic_cast<TControl*>(&Target);
        while (Inner &&
               !(dynamic_cast<TWinControl*>(Inner) && Inner->ControlStyle().Contains(csAcceptsControls)))
            Inner = Inner->Parent();
        if (Inner)
            Container = static_cast<TWinControl*>(Inner);
    }
    TPoint Here = ScreenPoint;
    ::ScreenToClient(Container->Handle(), &Here);
    const int X = TSurfaceDrag::OnGrid(static_cast<int>(Here.x)),
              Y = TSurfaceDrag::OnGrid(static_cast<int>(Here.y));
    GiveUpPlacing();
    FModel.Add(Class, Container == FHost.get() ? FModel.Root() : *Container, Rect(X, Y, X, Y));
}

void TDesignSurface::GiveUpPlacing()
{
    Placing = nullptr;
    if (OnPlaced)
        OnPlaced();
}

void TDesignSurface::EditComponent()
{
    if (FModel.Selection().size() != 1)
        return;
    GetComponentEditor(FModel, *FModel.Selection().front())->Edit();
}

void TDesignSurface::KeyDown(const MSG& Message)
{
    switch (Message.wParam) {
    case VK_DELETE:
        FModel.DeleteSelected();
        return;
    case VK_TAB:
        SelectNext(IsDown(VK_SHIFT) ? -1 : 1);
        return;
    case VK_ESCAPE:
        if (FLasso || FDrag.IsActive())
            CancelDrag();
        else if (Placing)
            GiveUpPlacing();
        else
            FModel.SelectComponent(FModel.Selection().front()->GetParentComponent());
        return;
    case VK_F4:
        if (Message.message == WM_SYSKEYDOWN) {
            if (OnClose)
                OnClose();
            return;
        }
        break;
    default:
        break;
    }
    if (!ArrowKey(Message.wParam) && OnKey)
        OnKey(Message);
}

bool TDesignSurface::ArrowKey(WPARAM Key)
{
    const int X = Key == VK_LEFT ? -1 : Key == VK_RIGHT ? 1 : 0;
    const int Y = Key == VK_UP ? -1 : Key == VK_DOWN ? 1 : 0;
    if (X == 0 && Y == 0)
        return false;
    if (IsDown(VK_CONTROL))
        FModel.ShiftSelected(X, Y, 0, 0);
    else if (IsDown(VK_SHIFT))
        FModel.ShiftSelected(0, 0, X, Y);
    return true;
}

void TDesignSurface::SelectNext(int Step)
{
    const TComponent& Root = FModel.Root();
    const int Count = Root.ComponentCount();
    if (Count == 0)
        return;
    const TComponent* const Present = FModel.Selection().front();
    const int Index = Present == &Root ? (Step > 0 ? -1 : Count) : Present->ComponentIndex();
    FModel.SelectComponent(Root.Components((Index + Step + Count) % Count));
}
