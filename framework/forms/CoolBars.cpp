#include "framework/forms/CoolBars.h"

#include <algorithm>

namespace {

// Pixels: the grip at a band's left, the space behind its text and between rows.
constexpr int GripWidth = 9;
constexpr int TextGap = 6;
constexpr int BandGap = 2;

} // namespace

const TMetaClass& TCoolBand::MetaClass()
{
    static const TMetaClass Class("TCoolBand", &TCollectionItem::MetaClass(), nullptr,
                                  {
                                      OBX_ROW(TCoolBand, Bitmap),
                                      OBX_ROW(TCoolBand, BorderStyle).Default(bsNone),
                                      OBX_ROW(TCoolBand, Break).Default(true),
                                      OBX_ROW(TCoolBand, Color).Default(clBtnFace),
                                      OBX_ROW(TCoolBand, Control),
                                      OBX_ROW(TCoolBand, FixedBackground).Default(true),
                                      OBX_ROW(TCoolBand, FixedSize).Default(false),
                                      OBX_ROW(TCoolBand, HorizontalOnly).Default(false),
                                      OBX_ROW(TCoolBand, ImageIndex),
                                      OBX_ROW(TCoolBand, MinHeight).Default(25),
                                      OBX_ROW(TCoolBand, MinWidth).Default(0),
                                      OBX_ROW(TCoolBand, ParentColor).Default(true),
                                      OBX_ROW(TCoolBand, ParentBitmap).Default(true),
                                      OBX_ROW(TCoolBand, Text),
                                      OBX_ROW(TCoolBand, Visible).Default(true),
                                      OBX_ROW(TCoolBand, Width),
                                  });
    return Class;
}

const TMetaClass& TCoolBands::MetaClass()
{
    static const TMetaClass Class("TCoolBands", &TCollection::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TCoolBar::MetaClass()
{
    using ControlRows::Sorted;
    static const TMetaClass Class(
        "TCoolBar", &TToolWindow::MetaClass(), CreateComponent<TCoolBar>,
        Sorted(
            CommonControlRows(false), ControlRows::Dock(), ControlRows::Ctl3D(), ControlRows::AutoSize(false),
            OBX_ROW(TControl, Align).Default(alTop), OBX_ROW(TCoolBar, BandBorderStyle).Default(bsSingle),
            OBX_ROW(TCoolBar, BandMaximize).Default(bmClick), OBX_ROW(TCoolBar, Bands),
            OBX_ROW(TCoolBar, Bitmap), OBX_ROW(TControl, Color).Stored<&TControl::IsColorStored>(),
            OBX_ROW(TCoolBar, EdgeBorders).Default(TEdgeBorders{ebLeft, ebTop, ebRight, ebBottom}),
            OBX_ROW(TCoolBar, EdgeInner).Default(esRaised), OBX_ROW(TCoolBar, EdgeOuter).Default(esLowered),
            OBX_ROW(TCoolBar, FixedOrder).Default(false), OBX_ROW(TCoolBar, FixedSize).Default(false),
            OBX_ROW(TControl, Font).Stored<&TControl::IsFontStored>(), OBX_ROW(TCoolBar, Images),
            OBX_ROW(TControl, ParentColor).Default(true), OBX_ROW(TControl, ParentFont).Default(true),
            OBX_ROW(TCoolBar, ShowText).Default(true), OBX_ROW(TCoolBar, Vertical).Default(false),
            Prop<&TCoolBar::OnChange>("OnChange")));
    return Class;
}

void TCoolBand::SetControl(TWinControl* Value)
{
    if (FControl == Value)
        return;
    FControl = Value;
    if (auto* const Bar = dynamic_cast<TCoolBar*>(Collection() ? Collection()->GetOwner() : nullptr);
        Bar && Value) {
        Value->FreeNotification(Bar);
        Value->SetParent(Bar);
    }
    Changed(false);
}

TCoolBands::TCoolBands(TCoolBar* CoolBar)
    : TCollection(CoolBar, TCoolBand::MetaClass(), CreateItem<TCoolBand>), FCoolBar(CoolBar)
{
}

void TCoolBands::Update(TCollectionItem*)
{
    FCoolBar->BandsChanged();
}

TCoolBar::TCoolBar(TComponent* Owner) : TToolWindow(Owner), FBands(this)
{
    FControlStyle = {csAcceptsControls, csCaptureMouse, csClickEvents, csDoubleClicks};
    FEdgeBorders = {ebLeft, ebTop, ebRight, ebBottom};
    SetBounds(0, 0, 150, 75);
    SetAlign(alTop);
}

TCoolBar::~TCoolBar()
{
    SetStateFlag(csDestroying, true);
}

void TCoolBar::Notification(TComponent* Component, TOperation Operation)
{
    TToolWindow::Notification(Component, Operation);
    if (Operation != opRemove || HasState(csDestroying))
        return;
    if (Component == FImages)
        SetImages(nullptr);
    for (int I = 0; I < FBands.Count(); ++I)
        if (Component == FBands.Items(I)->FControl)
            FBands.Items(I)->SetControl(nullptr);
}

void TCoolBar::SetImages(TCustomImageList* Value)
{
    FImages = Value;
    if (Value)
        Value->FreeNotification(this);
    BandsChanged();
}

int TCoolBar::TextWidth(const TCoolBand& Band) const
{
    if (!FShowText || Band.Text().empty())
        return 0;
    TScreenCanvas Canvas;
    Canvas.Font()->Assign(Font());
    return Canvas.TextWidth(StripHotkey(Band.Text())) + TextGap;
}

std::vector<TRect> TCoolBar::BandPlaces() const
{
    TRect Inside = ClientRect();
    AdjustClientRect(Inside);
    std::vector<TRect> Result(static_cast<size_t>(FBands.Count()));
    LONG Left = Inside.left;
    LONG Top = Inside.top;
    LONG RowHeight = 0;
    size_t Last = Result.size();
    for (int I = 0; I < FBands.Count(); ++I) {
        const TCoolBand& Band = *FBands.Items(I);
        if (!Band.Visible())
            continue;
        if (Band.Break() && Last < Result.size()) {
            Result[Last].right = Inside.right;
            Left = Inside.left;
            Top += RowHeight;
            RowHeight = 0;
        }
        Last = static_cast<size_t>(I);
        RowHeight = std::max<LONG>(RowHeight, Band.MinHeight() + BandGap);
        Result[Last] = {Left, Top, Left + Band.Width(), Top + RowHeight};
        Left += Band.Width();
    }
    if (Last < Result.size())
        Result[Last].right = Inside.right;
    return Result;
}

void TCoolBar::AlignControls(TControl*, TRect&)
{
    if (!HandleAllocated() || HasState(csDestroying))
        return;
    const std::vector<TRect> Places = BandPlaces();
    for (int I = 0; I < FBands.Count(); ++I) {
        TCoolBand& Band = *FBands.Items(I);
        if (!Band.FControl || Band.FControl->Parent() != this || !Band.Visible())
            continue;
        const TRect& Place = Places[static_cast<size_t>(I)];
        const int Left = static_cast<int>(Place.left) + GripWidth + TextWidth(Band);
        Band.FControl->SetBounds(Left, static_cast<int>(Place.top) + BandGap / 2,
                                 static_cast<int>(Place.right) - Left, Band.MinHeight());
    }
}

bool TCoolBar::CanAutoSize(int&, int& NewHeight)
{
    const std::vector<TRect> Places = BandPlaces();
    LONG Bottom = 0;
    for (const TRect& Place : Places)
        Bottom = std::max(Bottom, Place.bottom);
    if (Bottom > 0)
        NewHeight = static_cast<int>(Bottom) + (Height() - ClientHeight()) / 2;
    return true;
}

// The grip of each band, and its text.
void TCoolBar::PaintWindow(HDC Dc)
{
    TCanvas Canvas;
    Canvas.SetHandle(Dc);
    Canvas.Font()->Assign(Font());
    Canvas.Brush()->SetColor(Color());
    const std::vector<TRect> Places = BandPlaces();
    for (int I = 0; I < FBands.Count(); ++I) {
        TRect Place = Places[static_cast<size_t>(I)];
        if (Place.right <= Place.left)
            continue;
        TRect Grip{Place.left + 2, Place.top + 2, Place.left + 5, Place.bottom - 2};
        DrawEdge(Dc, &Grip, BDR_RAISEDINNER, BF_RECT);
        Place.left += GripWidth;
        if (FShowText)
            Canvas.DrawText(FBands.Items(I)->Text(), Place, DT_SINGLELINE | DT_VCENTER | DT_LEFT);
    }
    Canvas.SetHandle(nullptr);
}

void TCoolBar::PropertyChanged()
{
    TToolWindow::PropertyChanged();
    BandsChanged();
}

void TCoolBar::BandsChanged()
{
    if (HasState(csDestroying) || !HandleAllocated())
        return;
    Realign();
    Invalidate();
}

void RegisterCoolBarClasses()
{
    RegisterClass(TCoolBar::MetaClass());
}

void RegisterToolBarClasses()
{
    RegisterClass(TToolBar::MetaClass());
    RegisterClass(TToolButton::MetaClass());
}
