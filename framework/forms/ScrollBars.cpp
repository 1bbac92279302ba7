#include "framework/forms/ScrollBars.h"

#include <algorithm>

#include "framework/forms/ControlRows.h"
#include "framework/rtl/SysUtils.h"

const TMetaClass& TScrollBar::MetaClass()
{
    using namespace ControlRows;
    static const TMetaClass Class(
        "TScrollBar", &TWinControl::MetaClass(), CreateComponent<TScrollBar>,
        Sorted(Base(), Drag(), Focus(true), ControlRows::Ctl3D(), Buffer(),
               OBX_ROW(TScrollBar, Kind).Default(sbHorizontal), OBX_ROW(TScrollBar, LargeChange).Default(1),
               OBX_ROW(TScrollBar, Max).Default(100), OBX_ROW(TScrollBar, Min).Default(0),
               OBX_ROW(TScrollBar, PageSize).Default(0), OBX_ROW(TScrollBar, Position).Default(0),
               OBX_ROW(TScrollBar, SmallChange).Default(1), Prop<&TScrollBar::OnChange>("OnChange"),
               Prop<&TScrollBar::OnContextPopup>("OnContextPopup"), Prop<&TScrollBar::OnScroll>("OnScroll")));
    return Class;
}

TScrollBar::TScrollBar(TComponent* Owner) : TWinControl(Owner)
{
    FControlStyle = {csFramed, csDoubleClicks, csOpaque};
    SetBounds(0, 0, 121, 17);
    SetTabStop(true);
}

void TScrollBar::SetKind(TScrollBarKind Value)
{
    if (FKind == Value)
        return;
    FKind = Value;
    if (!IsLoading())
        SetBounds(Left(), Top(), Height(), Width());
    RecreateWnd();
}

void TScrollBar::SetParams(int APosition, int AMin, int AMax)
{
    if (AMax < AMin)
        throw EInvalidOperation(SScrollBarRangeOrder);
    FMin = AMin;
    FMax = AMax;
    APosition = std::clamp(APosition, FMin, FMax);
    const bool Moved = APosition != FPosition;
    FPosition = APosition;
    ShowRange();
    if (Moved && !IsLoading() && OnChange)
        OnChange(this);
}

// A form file names the limits one after the other: in between they may be out
// of order, and the position outside.
void TScrollBar::SetMax(int Value)
{
    if (IsLoading())
        FMax = Value;
    else
        SetParams(FPosition, FMin, Value);
}

void TScrollBar::SetMin(int Value)
{
    if (IsLoading())
        FMin = Value;
    else
        SetParams(FPosition, Value, FMax);
}

void TScrollBar::SetPageSize(int Value)
{
    FPageSize = Value;
    ShowRange();
}

void TScrollBar::SetPosition(int Value)
{
    if (IsLoading())
        FPosition = Value;
    else
        SetParams(Value, FMin, FMax);
}

void TScrollBar::CreateParams(TCreateParams& Params)
{
    TWinControl::CreateParams(Params);
    CreateSubClass(Params, "SCROLLBAR");
    Params.Style |= FKind == sbHorizontal ? SBS_HORZ : SBS_VERT;
}

void TScrollBar::CreateWnd()
{
    TWinControl::CreateWnd();
    ShowRange();
}

void TScrollBar::ShowRange()
{
    if (!HandleAllocated())
        return;
    SCROLLINFO Info{};
    Info.cbSize = sizeof Info;
    Info.fMask = SIF_ALL;
    Info.nMin = FMin;
    Info.nMax = FMax;
    Info.nPage = static_cast<UINT>(FPageSize);
    Info.nPos = FPosition;
    SetScrollInfo(WindowHandle(), SB_CTL, &Info, TRUE);
}

void TScrollBar::Scroll(const TMessage& Message)
{
    static constexpr TScrollCode Codes[] = {scLineUp, scLineDown, scPageUp, scPageDown, scPosition,
                                            scTrack,  scTop,      scBottom, scEndScroll};
    const int Code = Message.Id();
    if (Code < 0 || Code > SB_ENDSCROLL)
        return;
    int NewPosition = FPosition;
    switch (Codes[Code]) {
    case scLineUp:
        NewPosition -= FSmallChange;
        break;
    case scLineDown:
        NewPosition += FSmallChange;
        break;
    case scPageUp:
        NewPosition -= FLargeChange;
        break;
    case scPageDown:
        NewPosition += FLargeChange;
        break;
    case scPosition:
    case scTrack: {
        // The message has 16 bits of the position only.
        SCROLLINFO Info{};
        Info.cbSize = sizeof Info;
        Info.fMask = SIF_TRACKPOS;
        const bool Known =
            HandleAllocated() && GetScrollInfo(WindowHandle(), SB_CTL, &Info) && Info.nTrackPos != 0;
        NewPosition = Known ? Info.nTrackPos : Message.Code();
        break;
    }
    case scTop:
        NewPosition = FMin;
        break;
    case scBottom:
        NewPosition = FMax;
        break;
    case scEndScroll:
        break;
    }
    NewPosition = std::clamp(NewPosition, FMin, FMax);
    if (OnScroll)
        OnScroll(this, Codes[Code], NewPosition);
    SetPosition(NewPosition);
}

void TScrollBar::Dispatch(TMessage& Message)
{
    if (Message.Msg == CN_HSCROLL || Message.Msg == CN_VSCROLL)
        Scroll(Message);
    else
        TWinControl::Dispatch(Message);
}
