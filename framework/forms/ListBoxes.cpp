#include "framework/forms/ListBoxes.h"

#include <algorithm>

#include "framework/forms/ControlRows.h"

namespace {

// The room for the check box at the left of an item.
constexpr int CheckWidth = 16;

template<class TPublisher>
ControlRows::TRows ListRows()
{
    using namespace ControlRows;
    TRows Result = Joined(
        Look(), Drag(), Mouse(), Focus(true), Ime(), Bevel(), ControlRows::Ctl3D(), Buffer(),
        OBX_ROW(TPublisher, ParentColor).Default(false), OBX_ROW(TPublisher, AutoComplete).Default(true),
        OBX_ROW(TPublisher, BorderStyle).Default(bsSingle), OBX_ROW(TPublisher, Columns).Default(0),
        OBX_ROW(TPublisher, IntegralHeight).Default(false), OBX_ROW(TPublisher, ItemHeight).Default(16),
        OBX_ROW(TPublisher, Items), OBX_ROW(TPublisher, ScrollWidth).Default(0),
        OBX_ROW(TPublisher, Sorted).Default(false), OBX_ROW(TPublisher, Style).Default(lbStandard));
    return Joined(std::move(Result), OBX_ROW(TPublisher, TabWidth).Default(0),
                  Prop<&TPublisher::OnData>("OnData"), Prop<&TPublisher::OnDrawItem>("OnDrawItem"),
                  Prop<&TPublisher::OnMeasureItem>("OnMeasureItem"));
}

LRESULT Send(const TWinControl& Control, UINT Message, WPARAM WParam = 0, LPARAM LParam = 0)
{
    return SendMessageA(Control.WindowHandle(), Message, WParam, LParam);
}

} // namespace

const TMetaClass& TCustomListBox::MetaClass()
{
    static const TMetaClass Class("TCustomListBox", &TWinControl::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TListBox::MetaClass()
{
    static const TMetaClass Class("TListBox", &TCustomListBox::MetaClass(), CreateComponent<TListBox>,
                                  ControlRows::Sorted(ListRows<TListBox>(),
                                                      OBX_ROW(TListBox, ExtendedSelect).Default(true),
                                                      OBX_ROW(TListBox, MultiSelect).Default(false)));
    return Class;
}

const TMetaClass& TCheckListBox::MetaClass()
{
    static const TMetaClass Class(
        "TCheckListBox", &TCustomListBox::MetaClass(), CreateComponent<TCheckListBox>,
        ControlRows::Sorted(ListRows<TCheckListBox>(), OBX_ROW(TCheckListBox, AllowGrayed).Default(false),
                            OBX_ROW(TCheckListBox, Flat).Default(true),
                            Prop<&TCheckListBox::OnClickCheck>("OnClickCheck")));
    return Class;
}

TCustomListBox::TCustomListBox(TComponent* Owner)
    : TWinControl(Owner), FItems(std::make_unique<TItemStrings>(*this, *this)),
      FCanvas(std::make_unique<TCanvas>())
{
    FControlStyle = {csSetCaption, csDoubleClicks, csOpaque};
    SetBounds(0, 0, 121, 97);
    SetTabStop(true);
    SetParentColor(false);
}

TCustomListBox::~TCustomListBox() = default;

TStrings* TCustomListBox::Items() const
{
    return FItems.get();
}

int TCustomListBox::ItemIndex() const
{
    if (!InWindow())
        return FItemIndex;
    return static_cast<int>(Send(*this, FMultiSelect ? LB_GETCARETINDEX : LB_GETCURSEL));
}

void TCustomListBox::SetItemIndex(int Value)
{
    if (!HandleAllocated()) {
        FItemIndex = IsLoading() ? Value : std::clamp(Value, -1, FItems->Count() - 1);
    } else if (!FBehind) {
        Send(*this, FMultiSelect ? LB_SETCARETINDEX : LB_SETCURSEL, static_cast<WPARAM>(Value));
    } else if (Value >= (FMultiSelect ? 0 : -1) && Value < FItems->Count()) {
        FItemIndex = Value;
        FReveals = true;
    }
}

int TCustomListBox::SelCount() const
{
    const int Index = ItemIndex();
    if (!FMultiSelect)
        return Index >= 0 && Index < FItems->Count() ? 1 : 0;
    if (InWindow())
        return static_cast<int>(Send(*this, LB_GETSELCOUNT));
    int Result = 0;
    for (size_t I = 0; I < FSelected.Count(); ++I)
        Result += FSelected[I];
    return Result;
}

bool TCustomListBox::Selected(int Index) const
{
    FItems->Get(Index);
    if (InWindow())
        return Send(*this, LB_GETSEL, static_cast<WPARAM>(Index)) > 0;
    return FMultiSelect ? FSelected[static_cast<size_t>(Index)] != 0 : Index == FItemIndex;
}

void TCustomListBox::SetSelected(int Index, bool Value)
{
    FItems->Get(Index);
    if (!FMultiSelect)
        return SetItemIndex(Value ? Index : -1);
    if (ChangesWindow()) {
        Send(*this, LB_SETSEL, Value, Index);
        return;
    }
    FSelected[static_cast<size_t>(Index)] = Value;
    if (Value)
        FAnchor = Index;
    if (Value && FBehind)
        SetItemIndex(Index);
}

void TCustomListBox::SetAllSelected(bool Value)
{
    if (InWindow())
        Send(*this, LB_SETSEL, Value, -1);
    else
        for (size_t I = 0; I < FSelected.Count(); ++I)
            FSelected[I] = Value;
}

void TCustomListBox::SelectAll()
{
    const int Count = FItems->Count();
    if (!FMultiSelect || Count == 0)
        return;
    SetAllSelected(true);
    SetSelected(Count - 1, true); // as if one had been chosen after the other
}

void TCustomListBox::ClearSelection()
{
    if (FMultiSelect)
        SetAllSelected(false);
    else
        SetItemIndex(-1);
}

int TCustomListBox::TopIndex()
{
    CatchUp();
    return HandleAllocated() ? static_cast<int>(Send(*this, LB_GETTOPINDEX)) : 0;
}

void TCustomListBox::SetTopIndex(int Value)
{
    CatchUp();
    if (HandleAllocated())
        Send(*this, LB_SETTOPINDEX, static_cast<WPARAM>(Value));
}

int TCustomListBox::ItemAtPos(const TPoint& Pos, bool Existing)
{
    const TRect Client = ClientRect();
    if (!PtInRect(&Client, Pos))
        return -1;
    int Index = TopIndex();
    while (Index < FItems->Count()) {
        const TRect Area = ItemRect(Index);
        if (PtInRect(&Area, Pos))
            return Index;
        ++Index;
    }
    return Existing ? -1 : Index;
}

TRect TCustomListBox::ItemRect(int Index)
{
    TRect Result{};
    CatchUp();
    SendMessageA(Handle(), LB_GETITEMRECT, static_cast<WPARAM>(Index), reinterpret_cast<LPARAM>(&Result));
    return Result;
}

void TCustomListBox::SetItemHeight(int Value)
{
    if (FItemHeight == Value || Value <= 0)
        return;
    FItemHeight = Value;
    RecreateWnd();
}

void TCustomListBox::SetSorted(bool Value)
{
    FItems->SetKeepsSorted(Value);
}

void TCustomListBox::Loaded()
{
    TWinControl::Loaded();
    if (FItemIndex >= FItems->Count())
        FItemIndex = -1;
}

void TCustomListBox::CreateParams(TCreateParams& Params)
{
    TWinControl::CreateParams(Params);
    CreateSubClass(Params, "LISTBOX");
    Params.Style |= LBS_HASSTRINGS | LBS_NOTIFY;
    Params.Style |= FColumns > 0 ? LBS_MULTICOLUMN | WS_HSCROLL : WS_VSCROLL;
    if (FScrollWidth > 0)
        Params.Style |= WS_HSCROLL;
    if (IsOwnerDrawn())
        Params.Style |= FStyle == lbOwnerDrawVariable ? LBS_OWNERDRAWVARIABLE : LBS_OWNERDRAWFIXED;
    if (FMultiSelect)
        Params.Style |= FExtendedSelect ? LBS_EXTENDEDSEL : LBS_MULTIPLESEL;
    if (!FIntegralHeight)
        Params.Style |= LBS_NOINTEGRALHEIGHT;
    if (FTabWidth > 0)
        Params.Style |= LBS_USETABSTOPS;
    if (FBorderStyle == bsSingle && Ctl3D())
        Params.ExStyle |= WS_EX_CLIENTEDGE;
    else if (FBorderStyle == bsSingle)
        Params.Style |= WS_BORDER;
    Params.WindowClass.style &= ~static_cast<UINT>(CS_HREDRAW | CS_VREDRAW);
}

void TCustomListBox::MeasureItem(int Index, int& Height)
{
    if (OnMeasureItem)
        OnMeasureItem(this, Index, Height);
}

void TCustomListBox::DrawItem(int Index, const TRect& Area, TOwnerDrawState State)
{
    if (OnDrawItem) {
        OnDrawItem(this, Index, Area, State);
        return;
    }
    FCanvas->FillRect(Area);
    if (Index < 0 || Index >= FItems->Count())
        return;
    TRect Text{Area.left + 2, Area.top, Area.right, Area.bottom};
    FCanvas->DrawText(FItems->Get(Index), Text,
                      DrawTextBiDiModeFlags(DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_EXPANDTABS));
}

void TCustomListBox::DrawItemMessage(const DRAWITEMSTRUCT& Item)
{
    const auto State = TOwnerDrawState::FromBits(Item.itemState & 0xFFFF);
    FCanvas->SetHandle(Item.hDC);
    FCanvas->Font()->Assign(Font());
    FCanvas->Brush()->SetStyle(bsSolid);
    FCanvas->Brush()->SetColor(Color());
    const auto Index = static_cast<int>(Item.itemID);
    if (Index >= 0 && State.Contains(odSelected)) {
        FCanvas->Brush()->SetColor(clHighlight);
        FCanvas->Font()->SetColor(clHighlightText);
    } else if (!Enabled()) {
        FCanvas->Font()->SetColor(clGrayText);
    }
    if (Index >= 0)
        DrawItem(Index, Item.rcItem, State);
    else
        FCanvas->FillRect(Item.rcItem);
    if (State.Contains(odFocused))
        FCanvas->DrawFocusRect(Item.rcItem);
    FCanvas->SetHandle(nullptr);
}

void TCustomListBox::Dispatch(TMessage& Message)
{
    switch (Message.Msg) {
    case CN_COMMAND:
        if (Message.Code() == LBN_SELCHANGE)
            Click();
        else if (Message.Code() == LBN_DBLCLK)
            DblClick();
        return;
    case CN_DRAWITEM:
        DrawItemMessage(*reinterpret_cast<const DRAWITEMSTRUCT*>(Message.LParam));
        Message.Result = 1;
        return;
    case CN_MEASUREITEM: {
        auto& Item = *reinterpret_cast<MEASUREITEMSTRUCT*>(Message.LParam);
        int ItemSize = FItemHeight;
        if (FStyle == lbOwnerDrawVariable)
            MeasureItem(static_cast<int>(Item.itemID), ItemSize);
        Item.itemHeight = static_cast<UINT>(ItemSize);
        Message.Result = 1;
        return;
    }
    case WM_SIZE:
        TWinControl::Dispatch(Message);
        if (FColumns > 0 && HandleAllocated())
            Send(*this, LB_SETCOLUMNWIDTH,
                 static_cast<WPARAM>(std::max(1, (Width() + FColumns - 3) / FColumns)));
        return;
    default:
        TWinControl::Dispatch(Message);
    }
}

TCheckListBox::TCheckListBox(TComponent* Owner) : TCustomListBox(Owner) {}

size_t TCheckListBox::Check(int Index) const
{
    FItems->Get(Index);
    return static_cast<size_t>(Index);
}

void TCheckListBox::SetState(int Index, TCheckBoxState Value)
{
    FChecks[Check(Index)].State = Value;
    Invalidate();
}

void TCheckListBox::SetItemEnabled(int Index, bool Value)
{
    FChecks[Check(Index)].Enabled = Value;
    Invalidate();
}

void TCheckListBox::ItemInserted(int Index)
{
    FChecks.Insert(static_cast<size_t>(Index), TCheck{});
    TCustomListBox::ItemInserted(Index);
}

void TCheckListBox::ItemDeleted(int Index)
{
    FChecks.Erase(static_cast<size_t>(Index));
    TCustomListBox::ItemDeleted(Index);
}

void TCheckListBox::Toggle(int Index)
{
    TCheck& Item = FChecks[Check(Index)];
    if (!Item.Enabled)
        return;
    if (Item.State == cbUnchecked)
        SetState(Index, FAllowGrayed ? cbGrayed : cbChecked);
    else
        SetState(Index, Item.State == cbGrayed ? cbChecked : cbUnchecked);
    if (OnClickCheck)
        OnClickCheck(this);
}

void TCheckListBox::KeyPress(char& Key)
{
    TCustomListBox::KeyPress(Key);
    if (Key == ' ' && ItemIndex() >= 0)
        Toggle(ItemIndex());
}

void TCheckListBox::MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    TCustomListBox::MouseDown(Button, Shift, X, Y);
    const int Index = Button == mbLeft ? ItemAtPos({X, Y}, true) : -1;
    if (Index < 0)
        return;
    const TRect Area = ItemRect(Index);
    const bool OnBox = UseRightToLeftAlignment() ? X >= Area.right - CheckWidth : X < Area.left + CheckWidth;
    if (OnBox)
        Toggle(Index);
}

void TCheckListBox::DrawItem(int Index, const TRect& Area, TOwnerDrawState ItemState)
{
    const TCheck Item =
        Index < static_cast<int>(FChecks.Count()) ? FChecks[static_cast<size_t>(Index)] : TCheck{};
    const bool AtRight = UseRightToLeftAlignment();
    TRect Text = Area;
    (AtRight ? Text.right : Text.left) += AtRight ? -CheckWidth : CheckWidth;
    if (!Item.Enabled && !ItemState.Contains(odSelected))
        Canvas()->Font()->SetColor(clGrayText);
    const auto BoxLeft = static_cast<int>(AtRight ? Area.right - CheckWidth : Area.left) + 2;
    const auto BoxTop = static_cast<int>(Area.top + (Area.bottom - Area.top - 13) / 2);
    TRect Box = Bounds(BoxLeft, BoxTop, 13, 13);
    UINT Flags = Item.State == cbGrayed ? DFCS_BUTTON3STATE : DFCS_BUTTONCHECK;
    Flags |= Item.State == cbUnchecked ? 0 : DFCS_CHECKED;
    Flags |= Item.Enabled && Enabled() ? 0 : DFCS_INACTIVE;
    const TColor Fill = Canvas()->Brush()->Color();
    Canvas()->Brush()->SetColor(Color());
    Canvas()->FillRect(
        {AtRight ? Text.right : Area.left, Area.top, AtRight ? Area.right : Text.left, Area.bottom});
    Canvas()->Brush()->SetColor(Fill);
    DrawFrameControl(Canvas()->Handle(), &Box, DFC_BUTTON, Flags | (Flat() ? DFCS_FLAT : 0u));
    TCustomListBox::DrawItem(Index, Text, ItemState);
}

void TCheckListBox::Dispatch(TMessage& Message)
{
    TCustomListBox::Dispatch(Message);
    if (Message.Msg == CM_ENABLEDCHANGED)
        Invalidate();
}
