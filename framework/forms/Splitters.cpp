#include "framework/forms/Splitters.h"

#include <algorithm>

#include "framework/forms/ControlRows.h"
#include "framework/forms/WinControl.h"

const TMetaClass& TSplitter::MetaClass()
{
    using namespace ControlRows;
    static const TMetaClass Class(
        "TSplitter", &TGraphicControl::MetaClass(), CreateComponent<TSplitter>,
        Sorted(OBX_ROW(TSplitter, Align).Default(alLeft), OBX_ROW(TSplitter, AutoSnap).Default(true),
               OBX_ROW(TSplitter, Beveled).Default(false),
               OBX_ROW(TSplitter, Color).Default(clWindow).Stored<&TSplitter::IsColorStored>(),
               OBX_ROW(TSplitter, Constraints), OBX_ROW(TSplitter, Cursor).Default(crHSplit),
               OBX_ROW(TSplitter, MinSize).Default(30), OBX_ROW(TSplitter, ParentColor).Default(true),
               OBX_ROW(TSplitter, ParentShowHint).Default(true),
               OBX_ROW(TSplitter, ResizeStyle).Default(rsPattern),
               OBX_ROW(TSplitter, ShowHint).Stored<&TSplitter::IsShowHintStored>(),
               OBX_ROW(TSplitter, Visible).Default(true).Stored<&TSplitter::IsVisibleStored>(),
               Prop<&TSplitter::OnCanResize>("OnCanResize"), Prop<&TSplitter::OnMoved>("OnMoved"),
               Prop<&TSplitter::OnPaint>("OnPaint")));
    return Class;
}

TSplitter::TSplitter(TComponent* Owner) : TGraphicControl(Owner)
{
    SetBounds(0, 0, 3, 100);
    SetAlign(alLeft);
    SetCursor(crHSplit);
}

TControl* TSplitter::FindControlToSize() const
{
    TPoint At{Left(), Top()};
    switch (Align()) {
    case alLeft:
        --At.x;
        break;
    case alRight:
        At.x += Width();
        break;
    case alTop:
        --At.y;
        break;
    case alBottom:
        At.y += Height();
        break;
    default:
        return nullptr;
    }
    for (int I = 0; I < Parent()->ControlCount(); ++I) {
        TControl* const Candidate = Parent()->Controls(I);
        const TRect Area = Candidate->BoundsRect();
        if (Candidate != this && Candidate->Visible() && Candidate->Enabled() && PtInRect(&Area, At))
            return Candidate;
    }
    return nullptr;
}

void TSplitter::MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    TGraphicControl::MouseDown(Button, Shift, X, Y);
    FControl = Button == mbLeft && Parent() ? FindControlToSize() : nullptr;
    if (!FControl)
        return;
    FDownPos = {X, Y};
    FMaxSize = (IsVertical() ? Parent()->ClientWidth() : Parent()->ClientHeight()) - MinSize();
    for (int I = 0; I < Parent()->ControlCount(); ++I) {
        const TControl& Other = *Parent()->Controls(I);
        const bool SameAxis = IsVertical() ? Other.Align() == alLeft || Other.Align() == alRight
                                           : Other.Align() == alTop || Other.Align() == alBottom;
        if (Other.Visible() && SameAxis)
            FMaxSize -= IsVertical() ? Other.Width() : Other.Height();
    }
    FOldSize = FNewSize = IsVertical() ? FControl->Width() : FControl->Height();
    FMaxSize += FOldSize;
}

int TSplitter::SizeAt(int X, int Y) const
{
    const auto Moved = static_cast<int>(IsVertical() ? X - FDownPos.x : Y - FDownPos.y);
    const bool FromFarEdge = Align() == alRight || Align() == alBottom;
    int Size = FOldSize + (FromFarEdge ? -Moved : Moved);
    Size = std::min(Size, FMaxSize);
    if (Size < MinSize())
        Size = AutoSnap() ? 0 : MinSize();
    return Size;
}

void TSplitter::MouseMove(TShiftState Shift, int X, int Y)
{
    TGraphicControl::MouseMove(Shift, X, Y);
    if (!FControl)
        return;
    int Size = SizeAt(X, Y);
    bool Accept = true;
    if (OnCanResize)
        OnCanResize(this, Size, Accept);
    if (!Accept || Size == FNewSize)
        return;
    FNewSize = Size;
    if (ResizeStyle() != rsUpdate)
        return;
    // The splitter moves along, and its coordinates with it.
    ApplySize();
    FOldSize = FNewSize;
}

void TSplitter::MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    TGraphicControl::MouseUp(Button, Shift, X, Y);
    if (!FControl)
        return;
    ApplySize();
    FControl = nullptr;
    if (OnMoved)
        OnMoved(this);
}

void TSplitter::ApplySize()
{
    TRect Area = FControl->BoundsRect();
    switch (Align()) {
    case alLeft:
        Area.right = Area.left + FNewSize;
        break;
    case alRight:
        Area.left = Area.right - FNewSize;
        break;
    case alTop:
        Area.bottom = Area.top + FNewSize;
        break;
    default:
        Area.top = Area.bottom - FNewSize;
        break;
    }
    FControl->SetBoundsRect(Area);
}

void TSplitter::Paint()
{
    TRect Area = ClientRect();
    Canvas()->Brush()->SetColor(Color());
    Canvas()->FillRect(Area);
    if (Beveled())
        DrawEdge(Canvas()->Handle(), &Area, BDR_RAISEDINNER,
                 IsVertical() ? BF_LEFT | BF_RIGHT : BF_TOP | BF_BOTTOM);
    if (OnPaint)
        OnPaint(this);
}
