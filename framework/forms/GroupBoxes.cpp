#include "framework/forms/GroupBoxes.h"

#include <algorithm>

#include "framework/forms/ControlRows.h"

const TMetaClass& TCustomGroupBox::MetaClass()
{
    static const TMetaClass Class("TCustomGroupBox", &TCustomControl::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TGroupBox::MetaClass()
{
    using namespace ControlRows;
    static const TMetaClass Class("TGroupBox", &TCustomGroupBox::MetaClass(), CreateComponent<TGroupBox>,
                                  Sorted(Look(), Drag(), Mouse(), Focus(false), Dock(), ControlRows::Resize(),
                                         ControlRows::Ctl3D(), Buffer(), ControlRows::Caption(),
                                         OBX_ROW(TGroupBox, Padding),
                                         OBX_ROW(TGroupBox, ParentBackground).Default(true)));
    return Class;
}

const TMetaClass& TCustomRadioGroup::MetaClass()
{
    static const TMetaClass Class("TCustomRadioGroup", &TCustomGroupBox::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TRadioGroup::MetaClass()
{
    using namespace ControlRows;
    static const TMetaClass Class(
        "TRadioGroup", &TCustomRadioGroup::MetaClass(), CreateComponent<TRadioGroup>,
        Sorted(Look(), Drag(), Mouse(), Focus(false), ControlRows::Ctl3D(), Buffer(), ControlRows::Caption(),
               OBX_ROW(TRadioGroup, Columns).Default(1), OBX_ROW(TRadioGroup, ItemIndex).Default(-1),
               OBX_ROW(TRadioGroup, Items), OBX_ROW(TRadioGroup, ParentBackground).Default(true),
               OBX_ROW(TRadioGroup, WordWrap).Default(false)));
    return Class;
}

TCustomGroupBox::TCustomGroupBox(TComponent* Owner) : TCustomControl(Owner)
{
    FControlStyle = {csAcceptsControls, csCaptureMouse, csClickEvents,
                     csSetCaption,      csDoubleClicks, csReplicatable};
    SetBounds(0, 0, 185, 105);
}

void TCustomGroupBox::AdjustClientRect(TRect& Rect) const
{
    TCustomControl::AdjustClientRect(Rect);
    TScreenCanvas Canvas;
    Canvas.Font()->Assign(Font());
    Rect.top += Canvas.TextHeight("0");
    InflateRect(&Rect, Ctl3D() ? -2 : -1, Ctl3D() ? -2 : -1);
}

void TCustomGroupBox::CreateParams(TCreateParams& Params)
{
    TCustomControl::CreateParams(Params);
    Params.WindowClass.style &= ~static_cast<UINT>(CS_HREDRAW | CS_VREDRAW);
}

void TCustomGroupBox::Paint()
{
    TCanvas& Target = *Canvas();
    Target.Font()->Assign(Font());
    const int TextHeight = Target.TextHeight("0");
    TRect Frame{0, TextHeight / 2 - 1, Width(), Height()};
    Target.Brush()->SetStyle(bsSolid);
    if (Ctl3D()) {
        Target.Brush()->SetColor(clBtnHighlight);
        Target.FrameRect({Frame.left + 1, Frame.top + 1, Frame.right, Frame.bottom});
        Target.Brush()->SetColor(clBtnShadow);
        Target.FrameRect({Frame.left, Frame.top, Frame.right - 1, Frame.bottom - 1});
    } else {
        Target.Brush()->SetColor(clWindowFrame);
        Target.FrameRect(Frame);
    }
    if (Caption().empty())
        return;
    const UINT Flags = DrawTextBiDiModeFlags(DT_SINGLELINE);
    TRect Area{8, 0, Width(), TextHeight};
    Target.DrawText(Caption(), Area, Flags | DT_CALCRECT);
    if (UseRightToLeftAlignment())
        OffsetRect(&Area, Width() - 16 - RectWidth(Area), 0);
    Target.Brush()->SetColor(Color());
    Target.FillRect({Area.left - 1, Area.top, Area.right + 1, Area.bottom});
    if (!Enabled())
        Target.Font()->SetColor(clGrayText);
    Target.DrawText(Caption(), Area, Flags);
}

void TCustomGroupBox::Dispatch(TMessage& Message)
{
    switch (Message.Msg) {
    case CM_DIALOGCHAR:
        if (IsAccel(static_cast<uint16_t>(Message.WParam), Caption()) && CanFocus()) {
            SelectNext(nullptr, true, true);
            Message.Result = 1;
            return;
        }
        break;
    case CM_TEXTCHANGED:
    case CM_CTL3DCHANGED:
    case CM_ENABLEDCHANGED:
        TCustomControl::Dispatch(Message);
        Invalidate();
        Realign();
        return;
    case CM_FONTCHANGED:
        TCustomControl::Dispatch(Message);
        Realign();
        return;
    case WM_SIZE:
        TCustomControl::Dispatch(Message);
        Invalidate();
        return;
    default:
        break;
    }
    TCustomControl::Dispatch(Message);
}

TCustomRadioGroup::TCustomRadioGroup(TComponent* Owner)
    : TCustomGroupBox(Owner), FItems(std::make_unique<TItemStrings>(*this, *this))
{
    FControlStyle = {csSetCaption, csDoubleClicks};
}

TCustomRadioGroup::~TCustomRadioGroup()
{
    while (!FButtons.empty()) {
        TRadioButton* const Button = FButtons.back();
        FButtons.pop_back();
        delete Button;
    }
}

void TCustomRadioGroup::SetColumns(int Value)
{
    FColumns = std::clamp(Value, 1, 16);
    ArrangeButtons();
    Invalidate();
}

void TCustomRadioGroup::SetItemIndex(int Value)
{
    if (IsLoading()) {
        FItemIndex = Value;
        return;
    }
    Value = std::clamp(Value, -1, FItems->Count() - 1);
    if (Value == FItemIndex)
        return;
    if (Value < 0) {
        FItemIndex = Value;
        CheckButton();
    } else
        FButtons[static_cast<size_t>(Value)]->SetChecked(true); // clicks
}

void TCustomRadioGroup::Loaded()
{
    TCustomGroupBox::Loaded();
    if (FItemIndex >= FItems->Count())
        FItemIndex = -1;
    CheckButton();
    ArrangeButtons();
}

void TCustomRadioGroup::CreateWnd()
{
    TCustomGroupBox::CreateWnd();
    ArrangeButtons();
}

void TCustomRadioGroup::ItemInserted(int Index)
{
    auto* const Button = new TRadioButton(nullptr);
    Button->SetCaption(FItems->Get(Index));
    Button->SetEnabled(Enabled());
    Button->OnClick = {this, &TCustomRadioGroup::ButtonClick};
    FButtons.insert(FButtons.begin() + Index, Button);
    FControlStyle.Include(csAcceptsControls);
    Button->SetParent(this);
    FControlStyle.Exclude(csAcceptsControls);
    ArrangeButtons();
}

void TCustomRadioGroup::ItemDeleted(int Index)
{
    TRadioButton* const Button = FButtons[static_cast<size_t>(Index)];
    FButtons.erase(FButtons.begin() + Index);
    delete Button;
    if (!IsLoading() && FItemIndex >= FItems->Count())
        FItemIndex = FItems->Count() - 1;
    if (!IsLoading())
        CheckButton();
    ArrangeButtons();
}

void TCustomRadioGroup::ItemChanged(int Index)
{
    FButtons[static_cast<size_t>(Index)]->SetCaption(FItems->Get(Index));
}

void TCustomRadioGroup::ItemsReordered()
{
    for (int I = 0; I < FItems->Count(); ++I)
        ItemChanged(I);
}

void TCustomRadioGroup::CheckButton()
{
    FUpdating = true;
    for (size_t I = 0; I < FButtons.size(); ++I)
        FButtons[I]->SetChecked(static_cast<int>(I) == FItemIndex);
    FUpdating = false;
}

void TCustomRadioGroup::ButtonClick(TObject* Sender)
{
    if (FUpdating)
        return;
    const auto Found = std::find(FButtons.begin(), FButtons.end(), Sender);
    FItemIndex = static_cast<int>(Found - FButtons.begin());
    Click();
}

void TCustomRadioGroup::ArrangeButtons()
{
    if (FButtons.empty() || IsLoading() || !HandleAllocated())
        return;
    TScreenCanvas Canvas;
    Canvas.Font()->Assign(Font());
    const int TextHeight = Canvas.TextHeight("Wg");
    const int Count = static_cast<int>(FButtons.size());
    const int ButtonsPerColumn = (Count + FColumns - 1) / FColumns;
    const int ButtonWidth = (Width() - 10) / FColumns;
    const int Room = Height() - TextHeight - 5;
    const int ButtonHeight = Room / ButtonsPerColumn;
    const int TopMargin = TextHeight + 1 + Room % ButtonsPerColumn / 2;
    for (int I = 0; I < Count; ++I) {
        TRadioButton* const Button = FButtons[static_cast<size_t>(I)];
        int ButtonLeft = I / ButtonsPerColumn * ButtonWidth + 8;
        if (UseRightToLeftAlignment())
            ButtonLeft = ClientWidth() - ButtonLeft - ButtonWidth;
        Button->SetBounds(ButtonLeft, I % ButtonsPerColumn * ButtonHeight + TopMargin, ButtonWidth,
                          ButtonHeight);
        Button->SetVisible(true);
    }
}

void TCustomRadioGroup::Dispatch(TMessage& Message)
{
    TCustomGroupBox::Dispatch(Message);
    if (Message.Msg == CM_ENABLEDCHANGED)
        for (TRadioButton* const Button : FButtons)
            Button->SetEnabled(Enabled());
    else if (Message.Msg == CM_FONTCHANGED || Message.Msg == WM_SIZE)
        ArrangeButtons();
}
