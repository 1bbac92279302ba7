#include "framework/forms/Labels.h"

#include "framework/forms/ControlRows.h"

namespace {

// What a text needs: its size when it may be Width pixels wide (with DT_WORDBREAK).
TSize MeasureText(const TControl& Control, const std::string& Text, int Width, UINT Flags)
{
    TScreenCanvas Canvas;
    Canvas.Font()->Assign(Control.Font());
    TRect Area{0, 0, Width, 0};
    Canvas.DrawText(Text, Area, Flags | DT_CALCRECT);
    return {Area.right, Area.bottom};
}

// A text that would be measured as nothing still has the height of a line.
std::string MeasurableText(const std::string& Text, bool ShowAccelChar)
{
    const bool IsLoneMark = ShowAccelChar && Text == "&";
    return Text.empty() || IsLoneMark ? " " : Text;
}

void FocusByMnemonic(TMessage& Message, const TControl& Label, TWinControl* FocusControl, bool ShowAccelChar)
{
    const auto Char = static_cast<uint16_t>(Message.WParam);
    if (!FocusControl || !Label.Enabled() || !ShowAccelChar || !IsAccel(Char, Label.Caption()))
        return;
    if (FocusControl->CanFocus()) {
        FocusControl->SetFocus();
        Message.Result = 1;
    }
}

} // namespace

const TMetaClass& TCustomLabel::MetaClass()
{
    static const TMetaClass Class("TCustomLabel", &TGraphicControl::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TLabel::MetaClass()
{
    using namespace ControlRows;
    static const TMetaClass Class(
        "TLabel", &TCustomLabel::MetaClass(), CreateComponent<TLabel>,
        Sorted(Look(), Drag(), Mouse(), ControlRows::Caption(), ControlRows::AutoSize(true),
               OBX_ROW(TLabel, Alignment).Default(taLeftJustify),
               OBX_ROW(TLabel, EllipsisPosition).Default(epNone), OBX_ROW(TLabel, FocusControl),
               OBX_ROW(TLabel, Layout).Default(tlTop), OBX_ROW(TLabel, ShowAccelChar).Default(true),
               OBX_ROW(TLabel, Transparent).Stored<&TLabel::IsTransparentStored>(),
               OBX_ROW(TLabel, WordWrap).Default(false)));
    return Class;
}

TCustomLabel::TCustomLabel(TComponent* Owner) : TGraphicControl(Owner)
{
    FControlStyle.Include(csReplicatable);
    SetBounds(0, 0, 65, 17);
    TGraphicControl::SetAutoSize(true);
}

void TCustomLabel::Notification(TComponent* Component, TOperation Operation)
{
    TGraphicControl::Notification(Component, Operation);
    if (Operation == opRemove && Component == FFocusControl)
        FFocusControl = nullptr;
}

void TCustomLabel::Loaded()
{
    TGraphicControl::Loaded();
    AdjustBounds();
}

void TCustomLabel::SetAlignment(TAlignment Value)
{
    FAlignment = Value;
    Invalidate();
}

void TCustomLabel::SetAutoSize(bool Value)
{
    TGraphicControl::SetAutoSize(Value);
    AdjustBounds();
}

void TCustomLabel::SetFocusControl(TWinControl* Value)
{
    FFocusControl = Value;
    if (Value)
        Value->FreeNotification(this);
}

void TCustomLabel::SetTransparent(bool Value)
{
    FTransparent = Value;
    FTransparentSet = true;
    Invalidate();
}

void TCustomLabel::SetWordWrap(bool Value)
{
    FWordWrap = Value;
    PropertyChanged();
}

void TCustomLabel::PropertyChanged()
{
    AdjustBounds();
    Invalidate();
}

void TCustomLabel::AdjustBounds()
{
    FMeasured = false;
    if (!AutoSize() || IsLoading() || !Parent() || !Parent()->HandleAllocated())
        return;
    FMeasured = true;
    const UINT Flags =
        TextFlags() & ~static_cast<UINT>(DT_END_ELLIPSIS | DT_PATH_ELLIPSIS | DT_WORD_ELLIPSIS);
    const TSize Size = MeasureText(*this, MeasurableText(Caption(), ShowAccelChar()), Width(), Flags);
    const bool KeepsRight = FAlignment == taRightJustify;
    const int NewLeft = KeepsRight ? Left() + Width() - static_cast<int>(Size.cx) : Left();
    SetBounds(NewLeft, Top(), static_cast<int>(Size.cx), static_cast<int>(Size.cy));
}

UINT TCustomLabel::TextFlags() const
{
    static constexpr UINT Alignments[] = {DT_LEFT, DT_RIGHT, DT_CENTER};
    static constexpr UINT Ellipses[] = {0, DT_PATH_ELLIPSIS, DT_END_ELLIPSIS, DT_WORD_ELLIPSIS};
    UINT Flags = DT_EXPANDTABS | Alignments[FAlignment] | Ellipses[EllipsisPosition()];
    if (FWordWrap)
        Flags |= DT_WORDBREAK;
    if (!ShowAccelChar())
        Flags |= DT_NOPREFIX;
    return DrawTextBiDiModeFlags(Flags);
}

void TCustomLabel::DrawLabelText(TRect& Area, UINT Flags)
{
    Canvas()->Font()->Assign(Font());
    if (Enabled()) {
        Canvas()->DrawText(Caption(), Area, Flags);
        return;
    }
    TRect Light{Area.left + 1, Area.top + 1, Area.right + 1, Area.bottom + 1};
    Canvas()->Font()->SetColor(clBtnHighlight);
    Canvas()->DrawText(Caption(), Light, Flags);
    Canvas()->Font()->SetColor(clBtnShadow);
    Canvas()->DrawText(Caption(), Area, Flags);
}

void TCustomLabel::Paint()
{
    if (!FMeasured)
        AdjustBounds();
    TRect Area = ClientRect();
    if (!FTransparent) {
        Canvas()->Brush()->SetColor(Color());
        Canvas()->Brush()->SetStyle(bsSolid);
        Canvas()->FillRect(Area);
    }
    Canvas()->Brush()->SetStyle(bsClear);
    const UINT Flags = TextFlags();
    if (Layout() != tlTop) {
        TRect Needed = Area;
        Canvas()->Font()->Assign(Font());
        Canvas()->DrawText(Caption(), Needed, Flags | DT_CALCRECT);
        const int Room = RectHeight(Area) - RectHeight(Needed);
        Area.top += Layout() == tlBottom ? Room : Room / 2;
    }
    DrawLabelText(Area, Flags);
}

void TCustomLabel::DialogChar(TMessage& Message)
{
    FocusByMnemonic(Message, *this, FFocusControl, ShowAccelChar());
}

void TCustomLabel::Dispatch(TMessage& Message)
{
    switch (Message.Msg) {
    case CM_TEXTCHANGED:
        PropertyChanged();
        break;
    case CM_FONTCHANGED:
        TGraphicControl::Dispatch(Message);
        AdjustBounds();
        break;
    case CM_DIALOGCHAR:
        DialogChar(Message);
        break;
    default:
        TGraphicControl::Dispatch(Message);
    }
}

const TMetaClass& TCustomStaticText::MetaClass()
{
    static const TMetaClass Class("TCustomStaticText", &TWinControl::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TStaticText::MetaClass()
{
    using namespace ControlRows;
    static const TMetaClass Class(
        "TStaticText", &TCustomStaticText::MetaClass(), CreateComponent<TStaticText>,
        Sorted(Look(), Drag(), Mouse(), Bevel(), ControlRows::Caption(), ControlRows::AutoSize(true),
               OBX_ROW(TStaticText, Alignment).Default(taLeftJustify),
               OBX_ROW(TStaticText, BorderStyle).Default(sbsNone), OBX_ROW(TStaticText, FocusControl),
               OBX_ROW(TStaticText, ShowAccelChar).Default(true), OBX_ROW(TStaticText, TabOrder).Default(-1),
               OBX_ROW(TStaticText, TabStop).Default(false),
               OBX_ROW(TStaticText, Transparent).Default(true)));
    return Class;
}

TCustomStaticText::TCustomStaticText(TComponent* Owner) : TWinControl(Owner)
{
    FControlStyle = {csCaptureMouse, csClickEvents, csSetCaption, csReplicatable, csDoubleClicks};
    SetBounds(0, 0, 65, 17);
    TWinControl::SetAutoSize(true);
}

void TCustomStaticText::Notification(TComponent* Component, TOperation Operation)
{
    TWinControl::Notification(Component, Operation);
    if (Operation == opRemove && Component == FFocusControl)
        FFocusControl = nullptr;
}

void TCustomStaticText::SetAlignment(TAlignment Value)
{
    if (FAlignment == Value)
        return;
    FAlignment = Value;
    RecreateWnd();
}

void TCustomStaticText::SetAutoSize(bool Value)
{
    TWinControl::SetAutoSize(Value);
    AdjustBounds();
}

void TCustomStaticText::SetBorderStyle(TStaticBorderStyle Value)
{
    if (FBorderStyle == Value)
        return;
    FBorderStyle = Value;
    RecreateWnd();
}

void TCustomStaticText::SetFocusControl(TWinControl* Value)
{
    FFocusControl = Value;
    if (Value)
        Value->FreeNotification(this);
}

void TCustomStaticText::SetShowAccelChar(bool Value)
{
    if (FShowAccelChar == Value)
        return;
    FShowAccelChar = Value;
    RecreateWnd();
}

void TCustomStaticText::CreateParams(TCreateParams& Params)
{
    static constexpr DWORD Alignments[] = {SS_LEFT, SS_RIGHT, SS_CENTER};
    TWinControl::CreateParams(Params);
    CreateSubClass(Params, "STATIC");
    Params.Style |= SS_NOTIFY | Alignments[FAlignment];
    if (FBorderStyle == sbsSingle)
        Params.Style |= WS_BORDER;
    else if (FBorderStyle == sbsSunken)
        Params.ExStyle |= WS_EX_STATICEDGE;
    if (!FShowAccelChar)
        Params.Style |= SS_NOPREFIX;
    Params.WindowClass.style &= ~static_cast<UINT>(CS_VREDRAW);
}

void TCustomStaticText::CreateWnd()
{
    TWinControl::CreateWnd();
    AdjustBounds();
}

void TCustomStaticText::AdjustBounds()
{
    if (!AutoSize() || IsLoading() || !HandleAllocated())
        return;
    const UINT Flags = DT_EXPANDTABS | (FShowAccelChar ? 0 : DT_NOPREFIX);
    const TSize Size = MeasureText(*this, MeasurableText(Caption(), FShowAccelChar), 0, Flags);
    const int Border = FBorderStyle == sbsNone ? 0 : 2;
    SetBounds(Left(), Top(), static_cast<int>(Size.cx) + Border, static_cast<int>(Size.cy) + Border);
}

void TCustomStaticText::Dispatch(TMessage& Message)
{
    if (Message.Msg == CM_DIALOGCHAR) {
        FocusByMnemonic(Message, *this, FFocusControl, FShowAccelChar);
        return;
    }
    TWinControl::Dispatch(Message);
    if (Message.Msg == CM_FONTCHANGED || Message.Msg == CM_TEXTCHANGED) {
        AdjustBounds();
        Invalidate();
    } else if (Message.Msg == CN_CTLCOLORSTATIC && FTransparent) {
        SetBkMode(reinterpret_cast<HDC>(Message.WParam), TRANSPARENT);
    }
}
