#include "framework/forms/ScrollControls.h"

#include <algorithm>

const TMetaClass& TControlScrollBar::MetaClass()
{
    static const TMetaClass Class(
        "TControlScrollBar", &TPersistent::MetaClass(), nullptr,
        {
            OBX_ROW(TControlScrollBar, ButtonSize).Default(0),
            OBX_ROW(TControlScrollBar, Color).Default(clBtnHighlight),
            OBX_ROW(TControlScrollBar, Increment).Default(8).Stored<&TControlScrollBar::IsIncrementStored>(),
            OBX_ROW(TControlScrollBar, Margin).Default(0),
            OBX_ROW(TControlScrollBar, ParentColor).Default(true),
            OBX_ROW(TControlScrollBar, Position).Default(0),
            OBX_ROW(TControlScrollBar, Range).Default(0).Stored<&TControlScrollBar::IsRangeStored>(),
            OBX_ROW(TControlScrollBar, Smooth).Default(false),
            OBX_ROW(TControlScrollBar, Size).Default(0),
            OBX_ROW(TControlScrollBar, Style).Default(ssRegular),
            OBX_ROW(TControlScrollBar, ThumbSize).Default(0),
            OBX_ROW(TControlScrollBar, Tracking).Default(false),
            OBX_ROW(TControlScrollBar, Visible).Default(true),
        });
    return Class;
}

void TControlScrollBar::Assign(const TPersistent* Source)
{
    const auto* const Other = dynamic_cast<const TControlScrollBar*>(Source);
    if (!Other)
        return inherited::Assign(Source);
    FIncrement = Other->FIncrement;
    FMargin = Other->FMargin;
    FTracking = Other->FTracking;
    FSmooth = Other->FSmooth;
    SetVisible(Other->FVisible);
    SetRange(Other->FRange);
    SetPosition(Other->FPosition);
}

TPersistent* TControlScrollBar::GetOwner() const
{
    return FControl;
}

bool TControlScrollBar::IsRangeStored() const
{
    return !FControl->AutoScroll();
}

bool TControlScrollBar::IsScrollBarVisible() const
{
    if (!FControl->HandleAllocated())
        return false;
    const LONG_PTR Flag = FKind == sbVertical ? WS_VSCROLL : WS_HSCROLL;
    return FVisible && (GetWindowLongPtrA(FControl->WindowHandle(), GWL_STYLE) & Flag) != 0;
}

void TControlScrollBar::SetVisible(bool Value)
{
    FVisible = Value;
    FControl->UpdateScrollBars();
}

void TControlScrollBar::SetRange(int Value)
{
    FControl->FAutoScroll = false;
    DoSetRange(Value);
}

void TControlScrollBar::DoSetRange(int Value)
{
    FRange = std::max(Value, 0);
    FControl->UpdateScrollBars();
}

// As far as the controls reach that keep to the near edge.
void TControlScrollBar::CalcAutoRange()
{
    if (!FControl->AutoScroll())
        return;
    int Range = 0;
    for (int Index = 0; Index < FControl->ControlCount(); ++Index) {
        const TControl& Control = *FControl->Controls(Index);
        if (!Control.Visible())
            continue;
        const TAnchors Anchors = Control.Anchors();
        const bool Vertical = FKind == sbVertical;
        const TAlign Near = Vertical ? alTop : alLeft;
        const TAnchorKind Far = Vertical ? akBottom : akRight;
        const TAnchorKind Close = Vertical ? akTop : akLeft;
        const bool Counts = Control.Align() == Near ||
                            (Control.Align() == alNone && Anchors.Contains(Close) && !Anchors.Contains(Far));
        if (Counts)
            Range = std::max(Range, FPosition + (Vertical ? Control.Top() + Control.Height()
                                                          : Control.Left() + Control.Width()));
    }
    DoSetRange(Range + (Range > 0 ? FMargin : 0));
}

int TControlScrollBar::ControlSize(bool ControlHorz, bool ControlVert) const
{
    TRect Client{};
    GetClientRect(FControl->WindowHandle(), &Client);
    const LONG_PTR Style = GetWindowLongPtrA(FControl->WindowHandle(), GWL_STYLE);
    const auto Adjusted = [&](int Size, LONG_PTR Flag, bool Wanted, int Metric) {
        if (Wanted && !(Style & Flag))
            return Size - GetSystemMetrics(Metric);
        if (!Wanted && (Style & Flag))
            return Size + GetSystemMetrics(Metric);
        return Size;
    };
    return FKind == sbVertical
               ? Adjusted(static_cast<int>(Client.bottom), WS_HSCROLL, ControlHorz, SM_CYHSCROLL)
               : Adjusted(static_cast<int>(Client.right), WS_VSCROLL, ControlVert, SM_CXVSCROLL);
}

void TControlScrollBar::Update(bool ControlHorz, bool ControlVert)
{
    const int Page = std::max(ControlSize(ControlHorz, ControlVert), 0);
    FCalcRange = FVisible ? std::max(FRange - Page, 0) : 0;
    FPageIncrement = static_cast<int16_t>(std::min(Page * 9 / 10, 32767));
    SCROLLINFO Info{};
    Info.cbSize = sizeof Info;
    Info.fMask = SIF_ALL;
    Info.nMax = FCalcRange > 0 ? FRange : 0;
    Info.nPage = FCalcRange > 0 ? static_cast<UINT>(Page) + 1 : 0;
    Info.nPos = FPosition;
    SetScrollInfo(FControl->WindowHandle(), FKind == sbVertical ? SB_VERT : SB_HORZ, &Info, TRUE);
    SetPosition(FPosition);
}

void TControlScrollBar::SetPosition(int Value)
{
    if (FControl->HasState(csReading)) {
        FPosition = Value;
        return;
    }
    const int Old = FPosition;
    FPosition = std::clamp(Value, 0, std::max(FCalcRange, 0));
    if (FPosition == Old)
        return;
    if (FKind == sbHorizontal)
        FControl->ScrollBy(Old - FPosition, 0);
    else
        FControl->ScrollBy(0, Old - FPosition);
    if (FControl->HandleAllocated())
        SetScrollPos(FControl->WindowHandle(), FKind == sbVertical ? SB_VERT : SB_HORZ, FPosition, TRUE);
}

void TControlScrollBar::ScrollMessage(const TMessage& Message)
{
    switch (Message.WParam & 0xffff) {
    case SB_LINEUP:
        return SetPosition(FPosition - FIncrement);
    case SB_LINEDOWN:
        return SetPosition(FPosition + FIncrement);
    case SB_PAGEUP:
        return SetPosition(FPosition - FPageIncrement);
    case SB_PAGEDOWN:
        return SetPosition(FPosition + FPageIncrement);
    case SB_THUMBPOSITION:
        return SetPosition(static_cast<int>(Message.WParam >> 16 & 0xffff));
    case SB_THUMBTRACK:
        if (FTracking)
            SetPosition(static_cast<int>(Message.WParam >> 16 & 0xffff));
        return;
    case SB_TOP:
        return SetPosition(0);
    case SB_BOTTOM:
        return SetPosition(FCalcRange);
    default:
        return;
    }
}

const TMetaClass& TScrollingWinControl::MetaClass()
{
    static const TMetaClass Class("TScrollingWinControl", &TWinControl::MetaClass(), nullptr,
                                  {
                                      OBX_ROW(TScrollingWinControl, HorzScrollBar),
                                      OBX_ROW(TScrollingWinControl, VertScrollBar),
                                  });
    return Class;
}

TScrollingWinControl::TScrollingWinControl(TComponent* Owner)
    : TWinControl(Owner), FHorzScrollBar(std::make_unique<TControlScrollBar>(this, sbHorizontal)),
      FVertScrollBar(std::make_unique<TControlScrollBar>(this, sbVertical))
{
}

TScrollingWinControl::~TScrollingWinControl() = default;

void TScrollingWinControl::SetAutoScroll(bool Value)
{
    if (FAutoScroll == Value)
        return;
    FAutoScroll = Value;
    if (Value) {
        CalcAutoRange();
    } else {
        FHorzScrollBar->DoSetRange(0);
        FVertScrollBar->DoSetRange(0);
    }
}

void TScrollingWinControl::CalcAutoRange()
{
    if (FAutoRangeCount > 0 || !HandleAllocated())
        return;
    ++FAutoRangeCount;
    FHorzScrollBar->CalcAutoRange();
    FVertScrollBar->CalcAutoRange();
    --FAutoRangeCount;
}

// Each bar takes space from the other's direction: both are asked twice.
void TScrollingWinControl::UpdateScrollBars()
{
    if (FUpdatingScrollBars || !HandleAllocated() || !AutoScrollEnabled())
        return;
    FUpdatingScrollBars = true;
    TRect Client{};
    GetClientRect(WindowHandle(), &Client);
    const bool Vert =
        FVertScrollBar->FVisible && FVertScrollBar->FRange > FVertScrollBar->ControlSize(false, false);
    const bool Horz =
        FHorzScrollBar->FVisible && FHorzScrollBar->FRange > FHorzScrollBar->ControlSize(false, Vert);
    FVertScrollBar->Update(Horz, Vert);
    FHorzScrollBar->Update(Horz, Vert);
    FUpdatingScrollBars = false;
}

void TScrollingWinControl::AlignControls(TControl* AControl, TRect& Rect)
{
    CalcAutoRange();
    inherited::AlignControls(AControl, Rect);
}

// Aligned controls use the whole scrolled area.
void TScrollingWinControl::AdjustClientRect(TRect& Rect) const
{
    const int Left = -FHorzScrollBar->ScrollPos();
    const int Top = -FVertScrollBar->ScrollPos();
    Rect = Bounds(Left, Top, std::max(FHorzScrollBar->Range(), ClientWidth()),
                  std::max(FVertScrollBar->Range(), ClientHeight()));
    inherited::AdjustClientRect(Rect);
}

void TScrollingWinControl::CreateParams(TCreateParams& Params)
{
    inherited::CreateParams(Params);
    Params.WindowClass.style &= ~static_cast<UINT>(CS_HREDRAW | CS_VREDRAW);
}

void TScrollingWinControl::CreateWnd()
{
    inherited::CreateWnd();
    UpdateScrollBars();
}

void TScrollingWinControl::ChangeScale(int M, int D)
{
    for (TControlScrollBar* const Bar : {FHorzScrollBar.get(), FVertScrollBar.get()})
        if (!FAutoScroll)
            Bar->FRange = MulDiv(Bar->FRange, M, D);
    inherited::ChangeScale(M, D);
}

void TScrollingWinControl::Dispatch(TMessage& Message)
{
    switch (Message.Msg) {
    case WM_SIZE:
        if (FSizing)
            return inherited::Dispatch(Message);
        ++FAutoRangeCount;
        inherited::Dispatch(Message);
        --FAutoRangeCount;
        FSizing = true;
        CalcAutoRange();
        Resizing(Message.WParam == SIZE_MINIMIZED   ? wsMinimized
                 : Message.WParam == SIZE_MAXIMIZED ? wsMaximized
                                                    : wsNormal);
        FSizing = false;
        break;
    case WM_HSCROLL:
        if (Message.LParam == 0 && FHorzScrollBar->Visible())
            FHorzScrollBar->ScrollMessage(Message);
        else
            inherited::Dispatch(Message);
        break;
    case WM_VSCROLL:
        if (Message.LParam == 0 && FVertScrollBar->Visible())
            FVertScrollBar->ScrollMessage(Message);
        else
            inherited::Dispatch(Message);
        break;
    default:
        inherited::Dispatch(Message);
    }
}

void TScrollingWinControl::AutoScrollInView(TControl* AControl)
{
    if (AControl && !AControl->HasState(csLoading) && !HasState(csLoading))
        ScrollInView(AControl);
}

void TScrollingWinControl::ScrollInView(TControl* AControl)
{
    if (!AControl || !HandleAllocated())
        return;
    const TPoint Place = ScreenToClient(AControl->ClientOrigin());
    const auto Scroll = [](TControlScrollBar& Bar, int From, int Size, int Inside) {
        if (!Bar.IsScrollBarVisible())
            return;
        if (From < 0)
            Bar.SetPosition(Bar.Position() + From);
        else if (From + Size > Inside)
            Bar.SetPosition(Bar.Position() + std::min(From, From + Size - Inside));
    };
    Scroll(*FHorzScrollBar, static_cast<int>(Place.x), AControl->Width(), ClientWidth());
    Scroll(*FVertScrollBar, static_cast<int>(Place.y), AControl->Height(), ClientHeight());
}
