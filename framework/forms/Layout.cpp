#include "framework/forms/Layout.h"

#include <algorithm>
#include <vector>

namespace {

// Whether C1 comes before C2, counted from the edge that they are aligned to.
bool InsertBefore(const TControl& C1, const TControl& C2, TAlign Align)
{
    switch (Align) {
    case alTop:
        return C1.Top() < C2.Top();
    case alBottom:
        return C1.Top() + C1.Height() >= C2.Top() + C2.Height();
    case alLeft:
        return C1.Left() < C2.Left();
    case alRight:
        return C1.Left() + C1.Width() >= C2.Left() + C2.Width();
    default:
        return false;
    }
}

struct TEdges {
    int Left = 0;
    int Top = 0;
    int Right = 0;
    int Bottom = 0;
};

TEdges MarginsOf(const TControl& Control)
{
    if (!Control.AlignWithMargins())
        return {};
    const TMargins& Margins = *Control.Margins();
    return {Margins.Left(), Margins.Top(), Margins.Right(), Margins.Bottom()};
}

int Scaled(int64_t Value, int64_t Numerator, int64_t Denominator)
{
    const int64_t Product = Value * Numerator;
    return static_cast<int>((Product + (Product < 0 ? -Denominator / 2 : Denominator / 2)) / Denominator);
}

} // namespace

void TLayout::AlignControls(TWinControl& Parent, TControl* AControl, TRect& Rect)
{
    if (AlignWork(Parent)) {
        Parent.AdjustClientRect(Rect);
        for (const TAlign Align : {alTop, alBottom, alLeft, alRight, alClient, alCustom, alNone})
            DoAlign(Parent, AControl, Align, Rect);
    }
    if (Parent.Showing())
        Parent.AdjustSize();
}

bool TLayout::AlignWork(const TWinControl& Parent)
{
    for (int Index = 0; Index < Parent.ControlCount(); ++Index) {
        const TControl& Control = *Parent.Controls(Index);
        if (Control.Align() != alNone || Control.Anchors() != AlignAnchors[alNone])
            return true;
    }
    return false;
}

void TLayout::DoAlign(TWinControl& Parent, TControl* AControl, TAlign Align, TRect& Rect)
{
    std::vector<TControl*> List;
    const auto Takes = [Align](const TControl& Control) {
        return Control.Align() == Align &&
               (Align == alNone || Control.Visible() || Control.HasState(csDesigning));
    };
    // The control that was moved decides where it stands among its equals.
    if (AControl && Takes(*AControl))
        List.push_back(AControl);
    for (int Index = 0; Index < Parent.ControlCount(); ++Index) {
        TControl* const Control = Parent.Controls(Index);
        if (Control == AControl || !Takes(*Control))
            continue;
        const auto Place = std::find_if(List.begin(), List.end(), [&](const TControl* Other) {
            return InsertBefore(*Control, *Other, Align);
        });
        List.insert(Place, Control);
    }
    const TRect Client = Parent.ClientRect();
    for (TControl* const Control : List)
        DoPosition(*Control, Align, Rect, {Client.right, Client.bottom});
}

void TLayout::DoPosition(TControl& Control, TAlign Align, TRect& Rect, const TPoint& ParentSize)
{
    if (Align == alNone || Control.Anchors() != AlignAnchors[Align])
        AnchorAlign(Control, ParentSize);
    if (Align == alNone || Align == alCustom)
        return;
    const TEdges Margins = MarginsOf(Control);
    const int AcrossWidth = std::max(RectWidth(Rect) - Margins.Left - Margins.Right, 0);
    const int AcrossHeight = std::max(RectHeight(Rect) - Margins.Top - Margins.Bottom, 0);
    const bool KeepsWidth = Align == alLeft || Align == alRight;
    const bool KeepsHeight = Align == alTop || Align == alBottom;
    const int NewWidth = KeepsWidth ? Control.Width() : AcrossWidth;
    const int NewHeight = KeepsHeight ? Control.Height() : AcrossHeight;
    int NewLeft = static_cast<int>(Rect.left) + Margins.Left;
    int NewTop = static_cast<int>(Rect.top) + Margins.Top;
    if (Align == alBottom)
        NewTop = static_cast<int>(Rect.bottom) - Margins.Bottom - NewHeight;
    if (Align == alRight)
        NewLeft = static_cast<int>(Rect.right) - Margins.Right - NewWidth;
    Control.FAnchorMove = true;
    Control.SetBounds(NewLeft, NewTop, NewWidth, NewHeight);
    Control.FAnchorMove = false;
    // What the control really took, which limits of its size may have changed.
    const int UsedWidth = Control.Width() + Margins.Left + Margins.Right;
    const int UsedHeight = Control.Height() + Margins.Top + Margins.Bottom;
    switch (Align) {
    case alTop:
        Rect.top += UsedHeight;
        break;
    case alBottom:
        Rect.bottom -= UsedHeight;
        break;
    case alLeft:
        Rect.left += UsedWidth;
        break;
    case alRight:
        Rect.right -= UsedWidth;
        break;
    default:
        Rect.right += NewWidth - Control.Width();
        Rect.bottom += NewHeight - Control.Height();
    }
}

// Keeps the distances that TControl::UpdateAnchorRules remembered.
void TLayout::AnchorAlign(TControl& Control, const TPoint& ParentSize)
{
    const TPoint Original = Control.FOriginalParentSize;
    if (Original.x == 0 || Original.y == 0)
        return;
    const auto Apply = [](bool Near, bool Far, int Rule, int Now, int Then, int& Place, int& Size) {
        if (Far && Near)
            Size = std::max(Now - (Then - Rule), 0);
        else if (Far)
            Place = Now - (Then - Rule);
        else if (!Near)
            Place = Scaled(Rule, Now, Then) - Size / 2;
    };
    int Left = Control.Left();
    int Top = Control.Top();
    int Width = Control.Width();
    int Height = Control.Height();
    const TAnchors Anchors = Control.Anchors();
    Apply(Anchors.Contains(akLeft), Anchors.Contains(akRight), static_cast<int>(Control.FAnchorRules.x),
          static_cast<int>(ParentSize.x), static_cast<int>(Original.x), Left, Width);
    Apply(Anchors.Contains(akTop), Anchors.Contains(akBottom), static_cast<int>(Control.FAnchorRules.y),
          static_cast<int>(ParentSize.y), static_cast<int>(Original.y), Top, Height);
    Control.FAnchorMove = true;
    Control.SetBounds(Left, Top, Width, Height);
    Control.FAnchorMove = false;
}

void TWinControl::FlipChildren(bool AllLevels)
{
    DisableAlign();
    const int Room = ClientWidth();
    for (int I = 0; I < ControlCount(); ++I) {
        TControl& Control = *Controls(I);
        Control.SetLeft(Room - Control.Width() - Control.Left());
        const TAlign Align = Control.Align();
        if (Align == alLeft || Align == alRight) {
            Control.SetAlign(Align == alLeft ? alRight : alLeft);
        } else if (TAnchors Anchors = Control.Anchors();
                   Anchors.Contains(akLeft) != Anchors.Contains(akRight)) {
            Anchors = TAnchors::FromBits(Anchors.Bits() ^ TAnchors{akLeft, akRight}.Bits());
            Control.SetAnchors(Anchors);
        }
        auto* const Container = dynamic_cast<TWinControl*>(&Control);
        if (Container && AllLevels)
            Container->FlipChildren(true);
    }
    EnableAlign();
}
