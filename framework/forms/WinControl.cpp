#include "framework/forms/WinControl.h"

#include <algorithm>

#include "framework/forms/Form.h"
#include "framework/forms/Layout.h"
#include "framework/rtl/Filer.h"
#include "framework/rtl/SysUtils.h"

const TMetaClass& TWinControl::MetaClass()
{
    static const TMetaClass Class("TWinControl", &TControl::MetaClass(), nullptr);
    return Class;
}

TWinControl::TWinControl(TComponent* Owner) : TControl(Owner), FPadding(std::make_unique<TPadding>(this))
{
    FBrush.SetColor(Color());
    FBrush.OnChange = {this, &TWinControl::BrushChanged};
}

TWinControl::~TWinControl()
{
    SetStateFlag(csDestroying, true);
    if (Parent())
        Parent()->RemoveControl(this);
    if (FHandle)
        TWinControl::DestroyHandle();
    while (ControlCount() > 0)
        delete Controls(ControlCount() - 1);
}

TControl* TWinControl::Controls(int Index) const
{
    const auto Plain = static_cast<int>(FControls.size());
    if (Index < 0 || Index >= ControlCount())
        throw EListError(Format(SListIndexError, {Index}));
    if (Index < Plain)
        return FControls[static_cast<size_t>(Index)];
    return FWinControls[static_cast<size_t>(Index - Plain)];
}

bool TWinControl::ContainsControl(const TControl* Control) const
{
    while (Control && Control != this)
        Control = Control->Parent();
    return Control != nullptr;
}

void TWinControl::InsertControl(TControl* AControl)
{
    if (!AControl)
        return;
    if (auto* const Window = dynamic_cast<TWinControl*>(AControl); Window && Window->ContainsControl(this))
        throw EInvalidOperation(SControlParentSetToSelf);
    Perform(CM_CONTROLLISTCHANGE, reinterpret_cast<WPARAM>(AControl), TRUE);
    Insert(AControl);
    AControl->Perform(CM_PARENTCOLORCHANGED);
    AControl->Perform(CM_PARENTFONTCHANGED);
    AControl->Perform(CM_PARENTSHOWHINTCHANGED);
    AControl->Perform(CM_PARENTBIDIMODECHANGED);
    if (auto* const Window = dynamic_cast<TWinControl*>(AControl)) {
        Window->Perform(CM_PARENTCTL3DCHANGED);
        Window->UpdateControlState();
    } else if (FHandle) {
        AControl->AdjustSize();
        AControl->Invalidate();
    }
    AlignControl(AControl);
    Perform(CM_CONTROLCHANGE, reinterpret_cast<WPARAM>(AControl), TRUE);
}

void TWinControl::RemoveControl(TControl* AControl)
{
    Perform(CM_CONTROLCHANGE, reinterpret_cast<WPARAM>(AControl), FALSE);
    if (auto* const Window = dynamic_cast<TWinControl*>(AControl)) {
        Window->RemoveFocus(true);
        Window->DestroyHandle();
    } else {
        AControl->InvalidateControl(AControl->Visible(), false);
    }
    Remove(AControl);
    Perform(CM_CONTROLLISTCHANGE, reinterpret_cast<WPARAM>(AControl), FALSE);
    if (!HasState(csDestroying))
        Realign();
}

void TWinControl::Insert(TControl* AControl)
{
    if (auto* const Window = dynamic_cast<TWinControl*>(AControl)) {
        FWinControls.push_back(Window);
        FTabList.push_back(Window);
    } else {
        FControls.push_back(AControl);
    }
    AControl->FParent = this;
}

void TWinControl::Remove(TControl* AControl)
{
    std::erase(FTabList, static_cast<TControl*>(AControl));
    std::erase(FWinControls, static_cast<TControl*>(AControl));
    std::erase(FControls, AControl);
    AControl->FParent = nullptr;
}

TControl* TWinControl::ControlAtPos(const TPoint& Pos, bool AllowDisabled, bool AllowWinControls) const
{
    const auto Hit = [&](TControl* Control) {
        const TPoint Here =
            Point(static_cast<int>(Pos.x) - Control->Left(), static_cast<int>(Pos.y) - Control->Top());
        const TRect Inside = Control->ClientRect();
        return PtInRect(&Inside, Here) && (Control->Visible() || Control->HasState(csDesigning)) &&
               (Control->Enabled() || AllowDisabled) &&
               Control->Perform(CM_HITTEST, 0, MAKELPARAM(Here.x, Here.y)) != 0;
    };
    if (AllowWinControls)
        for (auto Control = FWinControls.rbegin(); Control != FWinControls.rend(); ++Control)
            if (Hit(*Control))
                return *Control;
    for (auto Control = FControls.rbegin(); Control != FControls.rend(); ++Control)
        if (Hit(*Control))
            return *Control;
    return nullptr;
}

TControl* TWinControl::FindChildControl(const std::string& ControlName) const
{
    for (int Index = 0; Index < ControlCount(); ++Index)
        if (SameText(Controls(Index)->Name(), ControlName))
            return Controls(Index);
    return nullptr;
}

void TWinControl::SetParentControl(TWinControl* AParent)
{
    inherited::SetParentControl(AParent);
    if (FTabOrder >= 0)
        UpdateTabOrder(FTabOrder);
}

// The position in the parent's list; a place that was read before the parent's
// other controls is kept until they are there.
TTabOrder TWinControl::TabOrder() const
{
    if (!Parent())
        return -1;
    const auto& List = Parent()->FTabList;
    return static_cast<TTabOrder>(std::find(List.begin(), List.end(), this) - List.begin());
}

void TWinControl::SetTabOrder(TTabOrder Value)
{
    if (HasState(csReading) || IsLoading())
        FTabOrder = Value;
    else
        UpdateTabOrder(Value);
}

void TWinControl::UpdateTabOrder(TTabOrder Value)
{
    FTabOrder = -1;
    if (!Parent())
        return;
    auto& List = Parent()->FTabList;
    const auto Count = static_cast<int>(List.size());
    const int Place = Value < 0 || Value >= Count ? Count - 1 : Value;
    std::erase(List, this);
    List.insert(List.begin() + Place, this);
}

// Those that have a wanted place go there in the order of the places.
void TWinControl::FixupTabList()
{
    std::vector<TWinControl*> Wanted;
    for (TWinControl* const Control : FWinControls)
        if (Control->FTabOrder >= 0)
            Wanted.push_back(Control);
    std::stable_sort(Wanted.begin(), Wanted.end(),
                     [](const TWinControl* A, const TWinControl* B) { return A->FTabOrder < B->FTabOrder; });
    for (TWinControl* const Control : Wanted)
        Control->UpdateTabOrder(Control->FTabOrder);
}

void TWinControl::Loaded()
{
    inherited::Loaded();
    FixupTabList();
}

void TWinControl::SetTabStop(bool Value)
{
    if (FTabStop == Value)
        return;
    FTabStop = Value;
    if (FHandle) {
        const LONG_PTR Style = GetWindowLongPtrA(FHandle, GWL_STYLE) & ~static_cast<LONG_PTR>(WS_TABSTOP);
        SetWindowLongPtrA(FHandle, GWL_STYLE, Value ? Style | WS_TABSTOP : Style);
    }
    Perform(CM_TABSTOPCHANGED);
}

void TWinControl::SetCtl3D(bool Value)
{
    if (FCtl3D == Value)
        return;
    FCtl3D = Value;
    FParentCtl3D = false;
    Perform(CM_CTL3DCHANGED);
}

void TWinControl::SetParentCtl3D(bool Value)
{
    if (FParentCtl3D == Value)
        return;
    FParentCtl3D = Value;
    if (Parent() && !HasState(csReading))
        Perform(CM_PARENTCTL3DCHANGED);
}

void TWinControl::SetBorderWidth(TBorderWidth Value)
{
    if (FBorderWidth == Value)
        return;
    FBorderWidth = Value;
    Perform(CM_BORDERCHANGED);
}

void TWinControl::BrushChanged(TObject*)
{
    Invalidate();
}

void TWinControl::GetTabOrderList(std::vector<TWinControl*>& List) const
{
    for (TWinControl* const Control : FTabList) {
        List.push_back(Control);
        Control->GetTabOrderList(List);
    }
}

TWinControl* TWinControl::FindNextControl(TWinControl* CurControl, bool GoForward, bool CheckTabStop,
                                          bool CheckParent)
{
    std::vector<TWinControl*> List;
    GetTabOrderList(List);
    if (List.empty())
        return nullptr;
    const auto Count = static_cast<int>(List.size());
    const auto Found = std::find(List.begin(), List.end(), CurControl);
    const int Start = Found != List.end() ? static_cast<int>(Found - List.begin())
                      : GoForward         ? Count - 1
                                          : 0;
    for (int Index = Start, Left = Count; Left > 0; --Left) {
        Index = (Index + (GoForward ? 1 : Count - 1)) % Count;
        TWinControl* const Control = List[static_cast<size_t>(Index)];
        if (Control != CurControl && Control->CanFocus() && (!CheckTabStop || Control->TabStop()) &&
            (!CheckParent || Control->Parent() == this))
            return Control;
    }
    return nullptr;
}

void TWinControl::SelectNext(TWinControl* CurControl, bool GoForward, bool CheckTabStop)
{
    if (TWinControl* const Control = FindNextControl(CurControl, GoForward, CheckTabStop, !CheckTabStop))
        Control->SetFocus();
}

bool TWinControl::CanFocus() const
{
    const TCustomForm* const Form = GetParentForm(this);
    if (!Form)
        return false;
    for (const TWinControl* Control = this; Control != Form; Control = Control->Parent())
        if (!Control->Visible() || !Control->Enabled())
            return false;
    return true;
}

bool TWinControl::Focused() const
{
    return FHandle && GetFocus() == FHandle;
}

void TWinControl::SetFocus()
{
    if (TCustomForm* const Form = GetParentForm(this))
        Form->FocusControl(this);
    else if (FParentWindow)
        ::SetFocus(Handle());
    else
        throw EInvalidOperation(Format(SParentRequired, {Name()}));
}

void TWinControl::RemoveFocus(bool Removing)
{
    if (TCustomForm* const Form = GetParentForm(this))
        Form->DefocusControl(this, Removing);
}

void TWinControl::EnableAlign()
{
    if (--FAlignLevel == 0 && FControlState.Contains(csAlignmentNeeded))
        Realign();
}

// Without a window nothing is laid out: the client area is not known for sure.
void TWinControl::AlignControl(TControl* AControl)
{
    if (!FHandle || HasState(csDestroying))
        return;
    if (FAlignLevel != 0) {
        FControlState.Include(csAlignmentNeeded);
        return;
    }
    DisableAlign();
    TRect Inside = ClientRect();
    AlignControls(AControl, Inside);
    FControlState.Exclude(csAlignmentNeeded);
    EnableAlign();
}

void TWinControl::AlignControls(TControl* AControl, TRect& Rect)
{
    TLayout::AlignControls(*this, AControl, Rect);
}

void TWinControl::AdjustClientRect(TRect& Rect) const
{
    Rect.left += FPadding->Left();
    Rect.top += FPadding->Top();
    Rect.right -= FPadding->Right();
    Rect.bottom -= FPadding->Bottom();
}

// Around the controls, whatever keeps to the near edges.
bool TWinControl::CanAutoSize(int& NewWidth, int& NewHeight)
{
    if (ControlCount() == 0)
        return true;
    int Right = 0;
    int Bottom = 0;
    for (int Index = 0; Index < ControlCount(); ++Index) {
        const TControl& Control = *Controls(Index);
        if (!Control.Visible())
            continue;
        if (Control.Align() == alNone || Control.Align() == alLeft)
            Right = std::max(Right, Control.Left() + Control.Width());
        if (Control.Align() == alNone || Control.Align() == alTop)
            Bottom = std::max(Bottom, Control.Top() + Control.Height());
    }
    if (Right > 0)
        NewWidth = Right + Width() - ClientWidth();
    if (Bottom > 0)
        NewHeight = Bottom + Height() - ClientHeight();
    return true;
}

void TWinControl::SetBounds(int ALeft, int ATop, int AWidth, int AHeight)
{
    if (!FHandle || IsIconic(FHandle))
        return inherited::SetBounds(ALeft, ATop, AWidth, AHeight);
    if (!CheckNewSize(AWidth, AHeight) ||
        (ALeft == Left() && ATop == Top() && AWidth == Width() && AHeight == Height()))
        return;
    // The window tells the new place back (WM_WINDOWPOSCHANGED).
    SetWindowPos(FHandle, nullptr, ALeft, ATop, AWidth, AHeight, SWP_NOZORDER | SWP_NOACTIVATE);
    UpdateAnchorRules();
    RequestAlign();
}

// What the frame leaves, also while there is no window.
TRect TWinControl::ClientRect() const
{
    TRect Result{};
    if (FHandle) {
        GetClientRect(FHandle, &Result);
        return Result;
    }
    const TSize Frame = FrameSize();
    return Rect(0, 0, std::max(Width() - static_cast<int>(Frame.cx), 0),
                std::max(Height() - static_cast<int>(Frame.cy), 0));
}

TSize TWinControl::FrameSize() const
{
    TCreateParams Params;
    const_cast<TWinControl*>(this)->CreateParams(Params);
    TRect Frame{};
    AdjustWindowRectEx(&Frame, Params.Style, FALSE, Params.ExStyle);
    return {RectWidth(Frame) + 2 * FBorderWidth, RectHeight(Frame) + 2 * FBorderWidth};
}

void TWinControl::ChangeScale(int M, int D)
{
    for (int Index = 0; Index < ControlCount(); ++Index)
        if (auto* const Window = dynamic_cast<TWinControl*>(Controls(Index)))
            Window->ChangeScale(M, D);
        else
            ScaleControl(*Controls(Index), M, D);
    ScaleControl(*this, M, D);
}

void TWinControl::ScaleControl(TControl& Control, int M, int D)
{
    const int L = MulDiv(Control.Left(), M, D);
    const int T = MulDiv(Control.Top(), M, D);
    const int W =
        Control.HasStyle(csFixedWidth) ? Control.Width() : MulDiv(Control.Left() + Control.Width(), M, D) - L;
    const int H = Control.HasStyle(csFixedHeight) ? Control.Height()
                                                  : MulDiv(Control.Top() + Control.Height(), M, D) - T;
    Control.SetBounds(L, T, W, H);
    if (!Control.ParentFont())
        Control.Font()->SetHeight(MulDiv(Control.Font()->Height(), M, D));
}

void TWinControl::ScaleBy(int M, int D)
{
    DisableAlign();
    ChangeScale(M, D);
    EnableAlign();
}

void TWinControl::ScrollBy(int DeltaX, int DeltaY)
{
    DisableAlign();
    // The windows inside a visible one move with its contents and report it.
    const bool Scrolls = FHandle && IsWindowVisible(FHandle);
    if (Scrolls)
        ScrollWindow(FHandle, DeltaX, DeltaY, nullptr, nullptr);
    const auto Move = [&](TControl& Control) {
        Control.SetBounds(Control.Left() + DeltaX, Control.Top() + DeltaY, Control.Width(), Control.Height());
    };
    for (TControl* const Control : FControls)
        Move(*Control);
    for (TWinControl* const Control : FWinControls)
        if (!Scrolls || !Control->FHandle)
            Move(*Control);
    EnableAlign();
}

void TWinControl::Broadcast(TMessage& Message)
{
    for (int Index = 0; Index < ControlCount() && Message.Result == 0; ++Index)
        Controls(Index)->Process(Message);
}

void TWinControl::NotifyControls(UINT Msg)
{
    TMessage Message{Msg, 0, 0, 0};
    Broadcast(Message);
}

std::unique_ptr<TControlActionLink> TWinControl::CreateActionLink()
{
    return std::make_unique<TWinControlActionLink>(this);
}

void TWinControl::GetChildren(const std::function<void(TComponent*)>& Visit, TComponent* Root)
{
    for (int Index = 0; Index < ControlCount(); ++Index)
        if (Controls(Index)->Owner() == Root)
            Visit(Controls(Index));
}

void TWinControl::SetChildOrder(TComponent* Child, int Order)
{
    if (auto* const Window = dynamic_cast<TWinControl*>(Child)) {
        const int Place = std::clamp(Order - static_cast<int>(FControls.size()), 0,
                                     std::max(static_cast<int>(FWinControls.size()) - 1, 0));
        if (std::erase(FWinControls, Window) > 0)
            FWinControls.insert(FWinControls.begin() + Place, Window);
    } else if (auto* const Control = dynamic_cast<TControl*>(Child)) {
        const int Place = std::clamp(Order, 0, std::max(static_cast<int>(FControls.size()) - 1, 0));
        if (std::erase(FControls, Control) > 0)
            FControls.insert(FControls.begin() + Place, Control);
    }
}

// The client size that the form file was made with: written where it was read.
void TWinControl::DefineProperties(TFiler& Filer)
{
    inherited::DefineProperties(Filer);
    Filer.DefineProperty(
        "DesignSize",
        [this](TReader& Reader) {
            Reader.ReadListBegin();
            FDesignSize.x = static_cast<LONG>(Reader.ReadInteger());
            FDesignSize.y = static_cast<LONG>(Reader.ReadInteger());
            Reader.ReadListEnd();
            FHasDesignSize = true;
        },
        [this](TWriter& Writer) {
            Writer.WriteListBegin();
            Writer.WriteInteger(FDesignSize.x);
            Writer.WriteInteger(FDesignSize.y);
            Writer.WriteListEnd();
        },
        FHasDesignSize);
}
