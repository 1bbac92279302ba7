#include "designer/DesignSurface.h"

#include <algorithm>

#include "framework/design/ComponentEditor.h"
#include "framework/forms/DataModules.h"
#include "framework/forms/PageControls.h"

namespace {

constexpr int DragDistance = 4;

TPoint ScreenPointOf(const MSG& Message)
{
    TPoint Result{static_cast<short>(LOWORD(Message.lParam)), static_cast<short>(HIWORD(Message.lParam))};
    ClientToScreen(Message.hwnd, &Result);
    return Result;
}

int OnGrid(int Value)
{
    constexpr int Grid = TDesignSurface::Grid;
    const int Rest = ((Value % Grid) + Grid) % Grid;
    return Value - Rest + (Rest * 2 >= Grid ? Grid : 0);
}

bool IsDown(int Key)
{
    return GetKeyState(Key) < 0;
}

} // namespace

TDesignSurface::TDesignSurface(TFormModel& Model) : FModel(Model) {}

TDesignSurface::~TDesignSurface()
{
    Hide();
}

// What the components stand on.
TWinControl* TDesignSurface::Area() const
{
    if (auto* const Control = dynamic_cast<TWinControl*>(&FModel.Root()))
        return Control;
    return FHost.get();
}

HWND TDesignSurface::WindowHandle() const
{
    if (FHost)
        return FHost->WindowHandle();
    const auto* const Form = dynamic_cast<TCustomForm*>(&FModel.Root());
    return Form ? Form->WindowHandle() : nullptr;
}

void TDesignSurface::Show()
{
    auto* Form = dynamic_cast<TCustomForm*>(&FModel.Root());
    if (!Form) {
        FHost = std::make_unique<TForm>(nullptr);
        FHost->SetDesigning(true);
        FHost->SetCaption(FModel.Root().Name());
        if (auto* const Frame = dynamic_cast<TWinControl*>(&FModel.Root())) {
            FHost->SetClientWidth(Frame->Width());
            FHost->SetClientHeight(Frame->Height());
            Frame->SetParent(FHost.get());
        } else if (const auto* const Module = dynamic_cast<TDataModule*>(&FModel.Root())) {
            FHost->SetClientWidth(std::max(static_cast<int>(Module->DesignSize().x), 240));
            FHost->SetClientHeight(std::max(static_cast<int>(Module->DesignSize().y), 160));
        }
        Form = FHost.get();
    }
    Form->OnPaint = {this, &TDesignSurface::PaintGrid};
    Form->UpdateControlState();
    Form->MakeFullyVisible();
    // Controls that fit their texts know the fonts when they are painted.
    Form->Update();
    FModel.Settle();
    Refresh();
}

void TDesignSurface::Hide()
{
    FDrag = {};
    FHandles.clear();
    FIcons.clear();
    if (auto* const Form = dynamic_cast<TCustomForm*>(&FModel.Root()))
        Form->OnPaint.Clear();
    if (FHost) {
        if (auto* const Frame = dynamic_cast<TWinControl*>(&FModel.Root()))
            Frame->SetParent(nullptr);
        FHost.reset();
    }
}

void TDesignSurface::Refresh()
{
    if (!IsShown())
        return;
    ShowIcons();
    ShowHandles();
}

void TDesignSurface::ShowIcons()
{
    FIcons.clear();
    TComponent& Root = FModel.Root();
    for (int I = 0; I < Root.ComponentCount(); ++I) {
        TComponent& Each = *Root.Components(I);
        const TComponent* const Parent = Each.GetParentComponent();
        if (dynamic_cast<TControl*>(&Each) || (Parent && Parent != &Root))
            continue;
        FIcons.push_back(std::make_unique<TIconMark>(Area()->Handle(), Each));
        FIcons.back()->SetSelected(FModel.IsSelected(&Each));
        FIcons.back()->ShowAtDesignPlace();
    }
}

// One component can be sized; of several only the corners are marked.
void TDesignSurface::ShowHandles()
{
    FHandles.clear();
    const bool Single = FModel.Selection().size() == 1;
    for (TComponent* const Each : FModel.Selection()) {
        auto* const Control = dynamic_cast<TControl*>(Each);
        if (!Control || Control == &FModel.Root() || !Control->Parent() ||
            !Control->Parent()->HandleAllocated())
            continue;
        for (int Place = 0; Place < 8; Place += Single ? 1 : 2) {
            FHandles.push_back(std::make_unique<THandleMark>(Control->Parent()->Handle(), *Each,
                                                             static_cast<THandlePlace>(Place),
                                                             !Single || !FModel.IsOwn(Each)));
            FHandles.back()->ShowAround(Control->BoundsRect());
        }
    }
}

void TDesignSurface::PaintGrid(TObject* Sender)
{
    auto& Form = static_cast<TCustomForm&>(*Sender);
    const TRect Client = Form.ClientRect();
    for (int Y = 0; Y < Client.bottom; Y += Grid)
        for (int X = 0; X < Client.right; X += Grid)
            Form.Canvas()->SetPixels(X, Y, clGray);
}

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
        return FrameMessage(Message);
    if (Message.message == WM_KEYDOWN || Message.message == WM_SYSKEYDOWN)
        KeyDown(Message);
    return Message.message >= WM_KEYFIRST && Message.message <= WM_KEYLAST;
}

// The form can be moved and sized by its frame; scroll bars and frames of controls do
// nothing, and closing is the designer's affair.
bool TDesignSurface::FrameMessage(const MSG& Message)
{
    if (Message.hwnd != WindowHandle())
        return true;
    if (Message.message == WM_NCLBUTTONDOWN && Message.wParam == HTCLOSE) {
        if (OnClose)
            OnClose();
        return true;
    }
    return false;
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
        BeginDrag(Message);
        FDrag.Kind = TDrag::Sizing;
        FDrag.Effect = EffectOf(Handle->Place());
        return;
    }
    if (Message.wParam & MK_SHIFT)
        FModel.ToggleSelected(Hit);
    else if (!FModel.IsSelected(Hit))
        FModel.SelectComponent(Hit);
    if (FModel.IsSelected(Hit) && Hit != &FModel.Root())
        BeginDrag(Message);
}

void TDesignSurface::BeginDrag(const MSG& Message)
{
    FDrag = {TDrag::Pending, ScreenPointOf(Message), {}, {}};
    for (TComponent* const Each : FModel.Selection())
        if (FModel.IsOwn(Each))
            FDrag.Places.emplace_back(Each, TFormModel::PlaceOf(*Each));
    SetCapture(WindowHandle());
}

void TDesignSurface::DragTo(const TPoint& ScreenPoint)
{
    if (FDrag.Kind == TDrag::None || FDrag.Places.empty())
        return;
    const int DeltaX = static_cast<int>(ScreenPoint.x - FDrag.Start.x);
    const int DeltaY = static_cast<int>(ScreenPoint.y - FDrag.Start.y);
    if (FDrag.Kind == TDrag::Pending && std::abs(DeltaX) < DragDistance && std::abs(DeltaY) < DragDistance)
        return;
    if (FDrag.Kind == TDrag::Pending)
        FDrag.Kind = TDrag::Moving;
    const TRect& First = FDrag.Places.front().second;
    const auto Snapped = [](LONG Edge, int Delta) { return OnGrid(Edge + Delta) - static_cast<int>(Edge); };
    if (FDrag.Kind == TDrag::Moving) {
        const int X = Snapped(First.left, DeltaX), Y = Snapped(First.top, DeltaY);
        for (const auto& [Component, Place] : FDrag.Places)
            TFormModel::SetPlace(*Component,
                                 Rect(Place.left + X, Place.top + Y, Place.right + X, Place.bottom + Y));
    } else {
        TRect Place = First;
        if (FDrag.Effect.Left)
            Place.left = std::min(Place.left + Snapped(Place.left, DeltaX), Place.right);
        if (FDrag.Effect.Top)
            Place.top = std::min(Place.top + Snapped(Place.top, DeltaY), Place.bottom);
        if (FDrag.Effect.Right)
            Place.right = std::max(Place.right + Snapped(Place.right, DeltaX), Place.left);
        if (FDrag.Effect.Bottom)
            Place.bottom = std::max(Place.bottom + Snapped(Place.bottom, DeltaY), Place.top);
        TFormModel::SetPlace(*FDrag.Places.front().first, Place);
    }
    Refresh();
}

void TDesignSurface::EndDrag()
{
    if (FDrag.Kind == TDrag::None)
        return;
    const bool Changed = FDrag.Kind != TDrag::Pending;
    FDrag = {};
    ReleaseCapture();
    if (Changed)
        FModel.Modified();
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
    const int X = OnGrid(static_cast<int>(Here.x)), Y = OnGrid(static_cast<int>(Here.y));
    Placing = nullptr;
    FModel.Add(Class, Container == FHost.get() ? FModel.Root() : *Container, Rect(X, Y, X, Y));
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
        Placing = nullptr;
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
