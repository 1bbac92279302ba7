#include "framework/forms/GlyphButtons.h"

#include <algorithm>

#include "framework/forms/ControlRows.h"
#include "framework/forms/Form.h"
#include "framework/rtl/RtlConsts.h"

namespace {

struct TKindOfButton {
    const TResStringRec* Caption;
    TModalResult ModalResult;
    bool Default;
    bool Cancel;
};

// In the order of TBitBtnKind; closing has no caption among the message texts.
constexpr TKindOfButton KindsOfButtons[] = {
    {nullptr, mrNone, false, false},         {&SMsgDlgOK, mrOk, true, false},
    {&SMsgDlgCancel, mrCancel, false, true}, {&SMsgDlgHelp, mrNone, false, false},
    {&SMsgDlgYes, mrYes, true, false},       {&SMsgDlgNo, mrNo, false, true},
    {nullptr, mrNone, false, false},         {&SMsgDlgAbort, mrAbort, false, true},
    {&SMsgDlgRetry, mrRetry, false, false},  {&SMsgDlgIgnore, mrIgnore, false, false},
    {&SMsgDlgAll, mrAll, false, false},
};

std::string KindCaption(TBitBtnKind Kind)
{
    const TResStringRec* const Caption = KindsOfButtons[Kind].Caption;
    return Caption ? std::string(*Caption) : std::string("&Close");
}

// Pictures of more pixels than this are copied as they are.
constexpr int MaxTransparentPixels = 64 * 64;

int GlyphFrame(TButtonState State, int NumGlyphs)
{
    static constexpr int Frames[] = {0, 1, 2, 3};
    return Frames[State] < NumGlyphs ? Frames[State] : 0;
}

void DrawGlyphPicture(TCanvas& Canvas, const TPoint& At, TBitmap& Glyph, int NumGlyphs, TButtonState State)
{
    const int Width = Glyph.Width() / NumGlyphs;
    const int Height = Glyph.Height();
    const int Left = GlyphFrame(State, NumGlyphs) * Width;
    TCanvas& Source = *Glyph.Canvas();
    if (Width * Height > MaxTransparentPixels) {
        Canvas.CopyRect(Bounds(static_cast<int>(At.x), static_cast<int>(At.y), Width, Height), Source,
                        Bounds(Left, 0, Width, Height));
        return;
    }
    const TColor Clear = Glyph.TransparentColor();
    // A disabled button without a picture for it shows the shape in grey.
    const bool GreyedOut = State == bsDisabled && NumGlyphs < 2;
    const COLORREF Light = ColorToRGB(clBtnHighlight);
    for (int Y = 0; Y < Height; ++Y)
        for (int X = 0; X < Width; ++X) {
            const TColor Pixel = Source.Pixels(Left + X, Y);
            if (Pixel == Clear || (GreyedOut && static_cast<COLORREF>(Pixel) == Light))
                continue;
            Canvas.SetPixels(static_cast<int>(At.x) + X, static_cast<int>(At.y) + Y,
                             GreyedOut ? clBtnShadow : Pixel);
        }
}

// Where picture and text go inside an area, from its upper left corner.
struct TPlaces {
    TPoint Glyph;
    TPoint Text;
};

// One axis: what comes first, the gap and what comes second.
void PlaceAlong(int Room, int First, int Second, int Margin, int Spacing, int& FirstAt, int& SecondAt)
{
    if (First == 0 || Second == 0)
        Spacing = 0;
    if (Margin < 0 && Spacing < 0)
        Margin = Spacing = (Room - First - Second) / 3;
    else if (Margin < 0)
        Margin = (Room - First - Spacing - Second + 1) / 2;
    else if (Spacing < 0)
        Spacing = (Room - Margin - First - Second) / 2;
    FirstAt = Margin;
    SecondAt = Margin + First + Spacing;
}

TPlaces PlaceGlyphAndText(const TSize& Room, const TSize& Glyph, const TSize& Text,
                          const TGlyphLayout& Layout)
{
    const auto Int = [](LONG Value) { return static_cast<int>(Value); };
    int GlyphAt = 0;
    int TextAt = 0;
    TPlaces Result{};
    if (Layout.Layout == blGlyphLeft || Layout.Layout == blGlyphRight) {
        PlaceAlong(Int(Room.cx), Int(Glyph.cx), Int(Text.cx), Layout.Margin, Layout.Spacing, GlyphAt, TextAt);
        if (Layout.Layout == blGlyphRight) {
            GlyphAt = Int(Room.cx) - GlyphAt - Int(Glyph.cx);
            TextAt = Int(Room.cx) - TextAt - Int(Text.cx);
        }
        Result = {{GlyphAt, (Room.cy - Glyph.cy + 1) / 2}, {TextAt, (Room.cy - Text.cy + 1) / 2}};
    } else {
        PlaceAlong(Int(Room.cy), Int(Glyph.cy), Int(Text.cy), Layout.Margin, Layout.Spacing, GlyphAt, TextAt);
        if (Layout.Layout == blGlyphBottom) {
            GlyphAt = Int(Room.cy) - GlyphAt - Int(Glyph.cy);
            TextAt = Int(Room.cy) - TextAt - Int(Text.cy);
        }
        Result = {{(Room.cx - Glyph.cx + 1) / 2, GlyphAt}, {(Room.cx - Text.cx + 1) / 2, TextAt}};
    }
    return Result;
}

void DrawButtonText(TCanvas& Canvas, const std::string& Caption, TRect Area, TButtonState State, UINT Flags)
{
    Canvas.Brush()->SetStyle(bsClear);
    if (State == bsDisabled) {
        TRect Light = Area;
        OffsetRect(&Light, 1, 1);
        Canvas.Font()->SetColor(clBtnHighlight);
        Canvas.DrawText(Caption, Light, Flags);
        Canvas.Font()->SetColor(clBtnShadow);
    }
    Canvas.DrawText(Caption, Area, Flags);
}

} // namespace

void DrawButtonGlyph(TCanvas& Canvas, const TRect& Client, const TPoint& Offset, TBitmap& Glyph,
                     int NumGlyphs, const std::string& Caption, const TGlyphLayout& Layout,
                     TButtonState State, UINT BiDiFlags)
{
    const bool HasGlyph = Glyph.Handle() != nullptr;
    NumGlyphs = std::max(NumGlyphs, 1);
    const TSize GlyphSize{HasGlyph ? Glyph.Width() / NumGlyphs : 0, HasGlyph ? Glyph.Height() : 0};
    TRect Text{0, 0, Client.right - Client.left, 0};
    if (!Caption.empty())
        Canvas.DrawText(Caption, Text, DT_CALCRECT | BiDiFlags);
    else
        Text.right = 0;
    const TSize Room{Client.right - Client.left, Client.bottom - Client.top};
    const TPlaces Places = PlaceGlyphAndText(Room, GlyphSize, {Text.right, Text.bottom}, Layout);
    const TPoint Origin{Client.left + Offset.x, Client.top + Offset.y};
    if (HasGlyph)
        DrawGlyphPicture(Canvas, {Origin.x + Places.Glyph.x, Origin.y + Places.Glyph.y}, Glyph, NumGlyphs,
                         State);
    if (Caption.empty())
        return;
    OffsetRect(&Text, static_cast<int>(Origin.x + Places.Text.x), static_cast<int>(Origin.y + Places.Text.y));
    DrawButtonText(Canvas, Caption, Text, State, DT_CENTER | DT_VCENTER | BiDiFlags);
}

const TMetaClass& TBitBtn::MetaClass()
{
    using namespace ControlRows;
    static const TMetaClass Class(
        "TBitBtn", &TCustomButton::MetaClass(), CreateComponent<TBitBtn>,
        Sorted(Base(), Drag(), Mouse(), Focus(true), Buffer(), ControlRows::Action(),
               OBX_ROW(TBitBtn, Caption).Stored<&TBitBtn::IsCustomCaption>(),
               OBX_ROW(TBitBtn, Font).Stored<&TBitBtn::IsFontStored>(),
               OBX_ROW(TBitBtn, ParentFont).Default(true),
               OBX_ROW(TBitBtn, Cancel).Default(false).Stored<&TBitBtn::IsCustom>(),
               OBX_ROW(TBitBtn, Default).Default(false).Stored<&TBitBtn::IsCustom>(), OBX_ROW(TBitBtn, Glyph),
               OBX_ROW(TBitBtn, Kind).Default(bkCustom), OBX_ROW(TBitBtn, Layout).Default(blGlyphLeft),
               OBX_ROW(TBitBtn, Margin).Default(-1),
               OBX_ROW(TBitBtn, ModalResult).Default(mrNone).Stored<&TBitBtn::IsCustom>(),
               OBX_ROW(TBitBtn, NumGlyphs).Default(1), OBX_ROW(TBitBtn, Spacing).Default(4),
               OBX_ROW(TBitBtn, Style).Default(bsAutoDetect), OBX_ROW(TBitBtn, WordWrap).Default(false)));
    return Class;
}

const TMetaClass& TSpeedButton::MetaClass()
{
    using namespace ControlRows;
    static const TMetaClass Class(
        "TSpeedButton", &TGraphicControl::MetaClass(), CreateComponent<TSpeedButton>,
        Sorted(Base(), Mouse(), ControlRows::Caption(), ControlRows::Action(),
               OBX_ROW(TSpeedButton, Font).Stored<&TSpeedButton::IsFontStored>(),
               OBX_ROW(TSpeedButton, ParentFont).Default(true),
               OBX_ROW(TSpeedButton, AllowAllUp).Default(false), OBX_ROW(TSpeedButton, GroupIndex).Default(0),
               OBX_ROW(TSpeedButton, Down).Default(false), OBX_ROW(TSpeedButton, Flat).Default(false),
               OBX_ROW(TSpeedButton, Glyph), OBX_ROW(TSpeedButton, ImageIndex).Default(-1),
               OBX_ROW(TSpeedButton, Layout).Default(blGlyphLeft), OBX_ROW(TSpeedButton, Margin).Default(-1),
               OBX_ROW(TSpeedButton, NumGlyphs).Default(1), OBX_ROW(TSpeedButton, Spacing).Default(4),
               OBX_ROW(TSpeedButton, Transparent).Default(true)));
    return Class;
}

TBitBtn::TBitBtn(TComponent* Owner)
    : TCustomButton(Owner), FGlyph(std::make_unique<TBitmap>()), FCanvas(std::make_unique<TCanvas>())
{
    FControlStyle = {csSetCaption, csDoubleClicks, csReflector};
    FGlyph->OnChange = {this, &TBitBtn::GlyphChanged};
}

TBitBtn::~TBitBtn() = default;

void TBitBtn::Click()
{
    if (FKind == bkClose) {
        if (TCustomForm* const Form = GetParentForm(this)) {
            Form->Close();
            return;
        }
    }
    TCustomButton::Click();
}

TBitBtnKind TBitBtn::Kind() const
{
    if (FKind == bkCustom)
        return FKind;
    // A button whose behaviour was changed by hand is a custom one.
    const TKindOfButton& Known = KindsOfButtons[FKind];
    const bool SameKeys = Default() == Known.Default && Cancel() == Known.Cancel;
    return SameKeys && ModalResult() == Known.ModalResult ? FKind : bkCustom;
}

bool TBitBtn::IsCustomCaption() const
{
    return IsCaptionStored() && (IsCustom() || Caption() != KindCaption(FKind));
}

void TBitBtn::SetKind(TBitBtnKind Value)
{
    if (Value == FKind)
        return;
    FKind = Value;
    if (FKind != bkCustom) {
        const TKindOfButton& Known = KindsOfButtons[FKind];
        SetDefault(Known.Default);
        SetCancel(Known.Cancel);
        SetModalResult(Known.ModalResult);
        // A caption that the form file had before the kind stays.
        if (!IsLoading() || Caption().empty())
            SetCaption(KindCaption(FKind));
    }
    Invalidate();
}

void TBitBtn::CreateParams(TCreateParams& Params)
{
    TCustomButton::CreateParams(Params);
    Params.Style = (Params.Style & ~static_cast<DWORD>(0xF)) | BS_OWNERDRAW;
}

// An owner-drawn button cannot take another button style: it is drawn anew.
void TBitBtn::SetButtonStyle(bool IsDefault)
{
    if (FIsDefault == IsDefault)
        return;
    FIsDefault = IsDefault;
    Invalidate();
}

void TBitBtn::DrawItem(const DRAWITEMSTRUCT& Item)
{
    FCanvas->SetHandle(Item.hDC);
    TRect Area = ClientRect();
    const bool IsDown = (Item.itemState & ODS_SELECTED) != 0;
    const bool IsFocused = (Item.itemState & ODS_FOCUS) != 0;
    TButtonState State = IsDown ? bsDown : bsUp;
    if ((Item.itemState & ODS_DISABLED) != 0)
        State = bsDisabled;
    if (FIsDefault || IsFocused) {
        FCanvas->Brush()->SetStyle(bsSolid);
        FCanvas->Brush()->SetColor(clWindowFrame);
        FCanvas->FrameRect(Area);
        InflateRect(&Area, -1, -1);
    }
    DrawFrameControl(Item.hDC, &Area, DFC_BUTTON,
                     static_cast<UINT>(DFCS_BUTTONPUSH) | (IsDown ? DFCS_PUSHED : 0u));
    InflateRect(&Area, -1, -1);
    FCanvas->Font()->Assign(Font());
    const TPoint Offset = IsDown ? TPoint{1, 1} : TPoint{0, 0};
    DrawButtonGlyph(*FCanvas, Area, Offset, *FGlyph, NumGlyphs(), Caption(), {Layout(), Margin(), Spacing()},
                    State, DrawTextBiDiModeFlags(0));
    if (IsFocused) {
        InflateRect(&Area, -3, -3);
        FCanvas->Font()->SetColor(clBtnText);
        FCanvas->Brush()->SetColor(clBtnFace);
        FCanvas->DrawFocusRect(Area);
    }
    FCanvas->SetHandle(nullptr);
}

void TBitBtn::Dispatch(TMessage& Message)
{
    if (Message.Msg == CN_DRAWITEM) {
        DrawItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(Message.LParam));
        Message.Result = 1;
        return;
    }
    TCustomButton::Dispatch(Message);
    if (Message.Msg == CM_FONTCHANGED || Message.Msg == CM_ENABLEDCHANGED || Message.Msg == CM_TEXTCHANGED)
        Invalidate();
}

TSpeedButton::TSpeedButton(TComponent* Owner) : TGraphicControl(Owner), FGlyph(std::make_unique<TBitmap>())
{
    SetBounds(0, 0, 23, 22);
    FControlStyle = {csCaptureMouse, csDoubleClicks};
    FGlyph->OnChange = {this, &TSpeedButton::GlyphChanged};
}

TSpeedButton::~TSpeedButton() = default;

void TSpeedButton::Loaded()
{
    TGraphicControl::Loaded();
    FState = FDown ? bsExclusive : bsUp;
}

void TSpeedButton::ActionChange(TBasicAction* Sender, bool CheckDefaults)
{
    TGraphicControl::ActionChange(Sender, CheckDefaults);
    const TActionValues* const Values = Sender->Values();
    if (!Values)
        return;
    if (!CheckDefaults || FGroupIndex == 0)
        SetGroupIndex(Values->GroupIndex);
    if (!CheckDefaults || !FDown)
        SetDown(Values->Checked);
}

void TSpeedButton::SetAllowAllUp(bool Value)
{
    if (FAllowAllUp == Value)
        return;
    FAllowAllUp = Value;
    UpdateExclusive();
}

void TSpeedButton::SetGroupIndex(int Value)
{
    if (FGroupIndex == Value)
        return;
    FGroupIndex = Value;
    UpdateExclusive();
}

void TSpeedButton::SetDown(bool Value)
{
    if (IsLoading()) {
        FDown = Value;
        return;
    }
    if (FGroupIndex == 0)
        Value = false;
    if (Value == FDown || (FDown && !FAllowAllUp))
        return;
    FDown = Value;
    SetState(FDown ? bsExclusive : bsUp);
    if (FDown)
        UpdateExclusive();
}

void TSpeedButton::SetState(TButtonState Value)
{
    FState = Value;
    Invalidate();
}

// Tells the buttons of the group about this one.
void TSpeedButton::UpdateExclusive()
{
    if (FGroupIndex == 0 || !Parent())
        return;
    TMessage Message{CM_BUTTONPRESSED, static_cast<WPARAM>(FGroupIndex), reinterpret_cast<LPARAM>(this), 0};
    Parent()->Broadcast(Message);
}

void TSpeedButton::ButtonPressed(const TMessage& Message)
{
    auto* const Sender = reinterpret_cast<TSpeedButton*>(Message.LParam);
    if (static_cast<int>(Message.WParam) != FGroupIndex || Sender == this)
        return;
    if (Sender->Down() && FDown) {
        FDown = false;
        SetState(bsUp);
    }
    FAllowAllUp = Sender->AllowAllUp();
}

void TSpeedButton::MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    TGraphicControl::MouseDown(Button, Shift, X, Y);
    if (Button != mbLeft || !Enabled())
        return;
    if (!FDown)
        SetState(bsDown);
    FDragging = true;
}

void TSpeedButton::MouseMove(TShiftState Shift, int X, int Y)
{
    TGraphicControl::MouseMove(Shift, X, Y);
    if (!FDragging)
        return;
    const bool Inside = X >= 0 && X < ClientWidth() && Y >= 0 && Y <= ClientHeight();
    const TButtonState Idle = FDown ? bsExclusive : bsUp;
    const TButtonState Wanted = Inside && !FDown ? bsDown : Idle;
    if (Wanted != FState)
        SetState(Wanted);
}

void TSpeedButton::MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    TGraphicControl::MouseUp(Button, Shift, X, Y);
    if (!FDragging)
        return;
    FDragging = false;
    const bool Inside = X >= 0 && X < ClientWidth() && Y >= 0 && Y <= ClientHeight();
    if (Inside && FGroupIndex != 0)
        SetDown(!FDown);
    SetState(FDown ? bsExclusive : bsUp);
    if (Inside)
        Click();
}

void TSpeedButton::Paint()
{
    TRect Area = ClientRect();
    TCanvas& Target = *Canvas();
    const TButtonState State = Enabled() ? FState : bsDisabled;
    const bool IsDown = State == bsDown || State == bsExclusive;
    if (!Flat()) {
        DrawFrameControl(Target.Handle(), &Area, DFC_BUTTON,
                         static_cast<UINT>(DFCS_BUTTONPUSH) | (IsDown ? DFCS_PUSHED : 0u));
    } else {
        if (!Transparent()) {
            Target.Brush()->SetColor(Color());
            Target.FillRect(Area);
        }
        if (IsDown || (FMouseInControl && Enabled()))
            DrawEdge(Target.Handle(), &Area, IsDown ? BDR_SUNKENOUTER : BDR_RAISEDINNER, BF_RECT);
    }
    Target.Font()->Assign(Font());
    InflateRect(&Area, -1, -1);
    const TPoint Offset = IsDown ? TPoint{1, 1} : TPoint{0, 0};
    DrawButtonGlyph(Target, Area, Offset, *FGlyph, NumGlyphs(), Caption(), {Layout(), Margin(), Spacing()},
                    State, DrawTextBiDiModeFlags(0));
}

void TSpeedButton::Dispatch(TMessage& Message)
{
    switch (Message.Msg) {
    case CM_BUTTONPRESSED:
        ButtonPressed(Message);
        return;
    case CM_DIALOGCHAR:
        if (IsAccel(static_cast<uint16_t>(Message.WParam), Caption()) && Enabled() && Visible() && Parent() &&
            Parent()->Showing()) {
            Click();
            Message.Result = 1;
            return;
        }
        break;
    case CM_MOUSEENTER:
    case CM_MOUSELEAVE:
        FMouseInControl = Message.Msg == CM_MOUSEENTER;
        if (Flat())
            Invalidate();
        break;
    case CM_ENABLEDCHANGED:
    case CM_TEXTCHANGED:
    case CM_FONTCHANGED:
        Invalidate();
        break;
    case WM_LBUTTONDBLCLK:
        TGraphicControl::Dispatch(Message);
        if (FDown)
            DblClick();
        return;
    default:
        break;
    }
    TGraphicControl::Dispatch(Message);
}
