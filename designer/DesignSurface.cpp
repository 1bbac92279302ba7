#include "designer/DesignSurface.h"

#include <algorithm>

#include "framework/forms/DataModules.h"

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

// For what has no window of its own.
TForm* TDesignSurface::MakeHost()
{
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
    return FHost.get();
}

void TDesignSurface::Show(const TPoint& Place)
{
    auto* Form = dynamic_cast<TCustomForm*>(&FModel.Root());
    if (!Form)
        Form = MakeHost();
    Form->OnPaint = {this, &TDesignSurface::PaintGrid};
    Form->OnCloseQuery = {this, &TDesignSurface::CloseQuery};
    Form->SetBounds(static_cast<int>(Place.x), static_cast<int>(Place.y), Form->Width(), Form->Height());
    Form->UpdateControlState();
    // Controls that fit their texts know the fonts when they are painted.
    Form->Update();
    FModel.Settle();
    Refresh();
}

void TDesignSurface::Hide()
{
    if (RECT Box; IsShown() && GetWindowRect(WindowHandle(), &Box))
        FPlace = {Box.left, Box.top};
    FDrag = {};
    FLasso.reset();
    FHandles.clear();
    FIcons.clear();
    if (auto* const Form = dynamic_cast<TCustomForm*>(&FModel.Root())) {
        Form->OnPaint.Clear();
        Form->OnCloseQuery.Clear();
    }
    if (FHost) {
        if (auto* const Frame = dynamic_cast<TWinControl*>(&FModel.Root()))
            Frame->SetParent(nullptr);
        FHost.reset();
    }
}

// The form stays until it is known what becomes of its changes.
void TDesignSurface::CloseQuery(TObject*, bool& CanClose)
{
    CanClose = false;
    if (OnClose)
        OnClose();
    PostMessageA(WindowHandle(), WM_NULL, 0, 0);
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
    for (int Y = 0; Y < Client.bottom; Y += TSurfaceDrag::Grid)
        for (int X = 0; X < Client.right; X += TSurfaceDrag::Grid)
            Form.Canvas()->SetPixels(X, Y, clGray);
}
