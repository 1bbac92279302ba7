#include "framework/forms/ComboBoxes.h"

#include <algorithm>

#include "framework/forms/ControlRows.h"

namespace {

template<class TPublisher>
ControlRows::TRows ComboRows()
{
    using namespace ControlRows;
    TRows Result = Joined(
        Look(), Drag(), Mouse(), Focus(true), Ime(), Bevel(), ControlRows::Ctl3D(), Buffer(),
        OBX_ROW(TPublisher, ParentColor).Default(false), OBX_ROW(TPublisher, AutoComplete).Default(true),
        OBX_ROW(TPublisher, AutoDropDown).Default(false), OBX_ROW(TPublisher, CharCase).Default(ecNormal),
        OBX_ROW(TPublisher, DropDownCount).Default(8), OBX_ROW(TPublisher, ItemHeight).Default(16),
        Prop<&TPublisher::OnChange>("OnChange"), Prop<&TPublisher::OnCloseUp>("OnCloseUp"));
    return Joined(std::move(Result), Prop<&TPublisher::OnDropDown>("OnDropDown"),
                  Prop<&TPublisher::OnSelect>("OnSelect"));
}

LRESULT Send(const TWinControl& Control, UINT Message, WPARAM WParam = 0, LPARAM LParam = 0)
{
    return SendMessageA(Control.WindowHandle(), Message, WParam, LParam);
}

} // namespace

const TMetaClass& TCustomComboBox::MetaClass()
{
    static const TMetaClass Class("TCustomComboBox", &TWinControl::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TComboBox::MetaClass()
{
    using namespace ControlRows;
    // The items come last: they are read when everything that shapes them is known.
    static const TMetaClass Class(
        "TComboBox", &TCustomComboBox::MetaClass(), CreateComponent<TComboBox>,
        Joined(ControlRows::Sorted(ComboRows<TComboBox>(), OBX_ROW(TComboBox, AutoCloseUp).Default(false),
                                   OBX_ROW(TComboBox, ItemIndex).Default(-1),
                                   OBX_ROW(TComboBox, MaxLength).Default(0),
                                   OBX_ROW(TComboBox, Sorted).Default(false),
                                   OBX_ROW(TComboBox, Style).Default(csDropDown), OBX_ROW(TComboBox, Text),
                                   OBX_ROW(TComboBox, TextHint), Prop<&TComboBox::OnDrawItem>("OnDrawItem"),
                                   Prop<&TComboBox::OnMeasureItem>("OnMeasureItem")),
               OBX_ROW(TComboBox, Items)));
    return Class;
}

const TMetaClass& TColorBox::MetaClass()
{
    static const TMetaClass Class(
        "TColorBox", &TCustomComboBox::MetaClass(), CreateComponent<TColorBox>,
        ControlRows::Sorted(
            ComboRows<TColorBox>(), OBX_ROW(TColorBox, DefaultColorColor).Default(clBlack),
            OBX_ROW(TColorBox, NoneColorColor).Default(clBlack),
            OBX_ROW(TColorBox, Selected).Default(clBlack),
            OBX_ROW(TColorBox, Style)
                .Default(TColorBoxStyle{cbStandardColors, cbExtendedColors, cbSystemColors})));
    return Class;
}

TCustomComboBox::TCustomComboBox(TComponent* Owner)
    : TWinControl(Owner), FItems(std::make_unique<TItemStrings>(*this, *this)),
      FCanvas(std::make_unique<TCanvas>())
{
    FControlStyle = {csCaptureMouse, csSetCaption, csDoubleClicks, csFixedHeight, csReflector};
    SetBounds(0, 0, 145, 21);
    SetTabStop(true);
    SetParentColor(false);
}

TCustomComboBox::~TCustomComboBox() = default;

TStrings* TCustomComboBox::Items() const
{
    return FItems.get();
}

int TCustomComboBox::ItemIndex() const
{
    return HandleAllocated() ? static_cast<int>(Send(*this, CB_GETCURSEL)) : FItemIndex;
}

void TCustomComboBox::SetItemIndex(int Value)
{
    if (HandleAllocated()) {
        Send(*this, CB_SETCURSEL, static_cast<WPARAM>(Value));
        return;
    }
    FItemIndex = IsLoading() ? Value : std::clamp(Value, -1, FItems->Count() - 1);
    if (!IsLoading() && !IsList())
        TWinControl::StoreText(FItemIndex < 0 ? std::string() : FItems->Get(FItemIndex));
}

void TCustomComboBox::Clear()
{
    FItems->Clear();
    SetText("");
}

void TCustomComboBox::SelectAll()
{
    if (HandleAllocated())
        Send(*this, CB_SETEDITSEL, 0, MAKELPARAM(0, 0xFFFF));
}

bool TCustomComboBox::DroppedDown() const
{
    return HandleAllocated() && Send(*this, CB_GETDROPPEDSTATE) != 0;
}

void TCustomComboBox::SetDroppedDown(bool Value)
{
    SendMessageA(Handle(), CB_SHOWDROPDOWN, Value, 0);
}

void TCustomComboBox::SetCharCase(TEditCharCase Value)
{
    if (FCharCase == Value)
        return;
    FCharCase = Value;
    RecreateWnd();
}

void TCustomComboBox::SetItemHeight(int Value)
{
    if (FItemHeight == Value || Value <= 0)
        return;
    FItemHeight = Value;
    RecreateWnd();
}

void TCustomComboBox::SetMaxLength(int Value)
{
    FMaxLength = std::max(Value, 0);
    if (HandleAllocated())
        Send(*this, CB_LIMITTEXT, static_cast<WPARAM>(FMaxLength));
}

void TCustomComboBox::SetStyle(TComboBoxStyle Value)
{
    if (FStyle == Value)
        return;
    FStyle = Value;
    if (FStyle == csSimple)
        FControlStyle.Exclude(csFixedHeight);
    else
        FControlStyle.Include(csFixedHeight);
    RecreateWnd();
}

void TCustomComboBox::Loaded()
{
    TWinControl::Loaded();
    if (FItemIndex >= FItems->Count())
        FItemIndex = -1;
}

std::string TCustomComboBox::GetText() const
{
    if (HandleAllocated() || !IsList())
        return TWinControl::GetText();
    return FItemIndex >= 0 && FItemIndex < FItems->Count() ? FItems->Get(FItemIndex) : TWinControl::GetText();
}

void TCustomComboBox::StoreText(const std::string& Value)
{
    if (!IsList() || IsLoading()) {
        TWinControl::StoreText(Value);
        return;
    }
    // A text that is no item changes nothing, as in the window itself.
    const int Index = FItems->IndexOf(Value);
    if (Index >= 0 || Value.empty())
        SetItemIndex(Index);
}

void TCustomComboBox::CreateParams(TCreateParams& Params)
{
    static constexpr DWORD Styles[] = {CBS_DROPDOWN, CBS_SIMPLE, CBS_DROPDOWNLIST,
                                       CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED,
                                       CBS_DROPDOWNLIST | CBS_OWNERDRAWVARIABLE};
    static constexpr DWORD Cases[] = {0, CBS_UPPERCASE, CBS_LOWERCASE};
    TWinControl::CreateParams(Params);
    CreateSubClass(Params, "COMBOBOX");
    Params.Style |= WS_VSCROLL | CBS_HASSTRINGS | CBS_AUTOHSCROLL | Styles[FStyle] | Cases[FCharCase];
}

void TCustomComboBox::CreateWnd()
{
    const int Index = FItemIndex;
    const std::string Known = GetText();
    FCreatingWnd = true;
    TWinControl::CreateWnd();
    if (FMaxLength > 0)
        Send(*this, CB_LIMITTEXT, static_cast<WPARAM>(FMaxLength));
    if (IsOwnerDrawn())
        Send(*this, CB_SETITEMHEIGHT, 0, FItemHeight);
    FillWindow();
    if (Index >= 0)
        Send(*this, CB_SETCURSEL, static_cast<WPARAM>(Index));
    // Choosing an item replaces the text that goes with it; a text of its own stays.
    if (!IsList())
        SetWindowTextA(WindowHandle(), Known.c_str());
    FCreatingWnd = false;
}

void TCustomComboBox::DestroyWnd()
{
    FItemIndex = ItemIndex();
    TWinControl::DestroyWnd();
}

void TCustomComboBox::FillWindow()
{
    for (int I = 0; I < FItems->Count(); ++I)
        Send(*this, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(FItems->Get(I).c_str()));
}

void TCustomComboBox::ItemInserted(int Index)
{
    if (HandleAllocated())
        Send(*this, CB_INSERTSTRING, static_cast<WPARAM>(Index),
             reinterpret_cast<LPARAM>(FItems->Get(Index).c_str()));
    else if (!IsLoading() && FItemIndex >= Index)
        ++FItemIndex;
}

void TCustomComboBox::ItemDeleted(int Index)
{
    if (HandleAllocated())
        Send(*this, CB_DELETESTRING, static_cast<WPARAM>(Index));
    else if (!IsLoading() && FItemIndex >= Index)
        FItemIndex = FItemIndex == Index ? -1 : FItemIndex - 1;
}

void TCustomComboBox::ItemChanged(int Index)
{
    if (!HandleAllocated())
        return;
    const int Chosen = ItemIndex();
    const std::string Known = GetText();
    Send(*this, CB_DELETESTRING, static_cast<WPARAM>(Index));
    Send(*this, CB_INSERTSTRING, static_cast<WPARAM>(Index),
         reinterpret_cast<LPARAM>(FItems->Get(Index).c_str()));
    if (Chosen >= 0)
        Send(*this, CB_SETCURSEL, static_cast<WPARAM>(Chosen));
    if (!IsList() && GetText() != Known)
        SetWindowTextA(WindowHandle(), Known.c_str());
}

void TCustomComboBox::ItemsReordered()
{
    if (!HandleAllocated())
        return;
    Send(*this, CB_RESETCONTENT);
    FillWindow();
}

void TCustomComboBox::ItemsUpdating(bool Updating)
{
    if (!HandleAllocated())
        return;
    Send(*this, WM_SETREDRAW, !Updating);
    if (!Updating)
        Invalidate();
}

void TCustomComboBox::Change()
{
    if (OnChange)
        OnChange(this);
}

void TCustomComboBox::Select()
{
    if (OnSelect)
        OnSelect(this);
    else
        Change();
}

void TCustomComboBox::DropDown()
{
    if (OnDropDown)
        OnDropDown(this);
}

void TCustomComboBox::CloseUp()
{
    if (OnCloseUp)
        OnCloseUp(this);
}

// The window is made as high as its closed part; the list's height is set when
// it is needed.
void TCustomComboBox::AdjustDropDown()
{
    const int Count = std::clamp(FItems->Count(), 1, std::max(FDropDownCount, 1));
    const int LineHeight = static_cast<int>(Send(*this, CB_GETITEMHEIGHT, 0));
    SetWindowPos(WindowHandle(), nullptr, 0, 0, Width(), Height() + Count * LineHeight + 2,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW);
}

void TCustomComboBox::DrawItem(int Index, const TRect& Area, TOwnerDrawState State)
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
                      DrawTextBiDiModeFlags(DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX));
}

void TCustomComboBox::DrawItemMessage(const DRAWITEMSTRUCT& Item)
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
    }
    if (Index >= 0)
        DrawItem(Index, Item.rcItem, State);
    else
        FCanvas->FillRect(Item.rcItem);
    if (State.Contains(odFocused))
        FCanvas->DrawFocusRect(Item.rcItem);
    FCanvas->SetHandle(nullptr);
}

void TCustomComboBox::CommandMessage(const TMessage& Message)
{
    switch (Message.Code()) {
    case CBN_DBLCLK:
        DblClick();
        break;
    case CBN_EDITCHANGE:
        if (!FCreatingWnd)
            Change();
        break;
    case CBN_DROPDOWN:
        AdjustDropDown();
        DropDown();
        break;
    case CBN_CLOSEUP:
        CloseUp();
        break;
    case CBN_SELCHANGE:
        // The window puts the chosen text into the field after this notification.
        if (!IsList() && ItemIndex() >= 0)
            SetWindowTextA(WindowHandle(), FItems->Get(ItemIndex()).c_str());
        Click();
        Select();
        break;
    default:
        break;
    }
}

void TCustomComboBox::Dispatch(TMessage& Message)
{
    switch (Message.Msg) {
    case CN_COMMAND:
        CommandMessage(Message);
        return;
    case CN_DRAWITEM:
        DrawItemMessage(*reinterpret_cast<const DRAWITEMSTRUCT*>(Message.LParam));
        Message.Result = 1;
        return;
    case CN_MEASUREITEM: {
        auto& Item = *reinterpret_cast<MEASUREITEMSTRUCT*>(Message.LParam);
        int ItemSize = FItemHeight;
        if (FStyle == csOwnerDrawVariable && OnMeasureItem)
            OnMeasureItem(this, static_cast<int>(Item.itemID), ItemSize);
        Item.itemHeight = static_cast<UINT>(ItemSize);
        Message.Result = 1;
        return;
    }
    default:
        TWinControl::Dispatch(Message);
    }
}

TColorBox::TColorBox(TComponent* Owner) : TCustomComboBox(Owner)
{
    TCustomComboBox::SetStyle(csOwnerDrawFixed);
    PopulateList();
    ShowSelected();
}

void TColorBox::SetSelected(TColor Value)
{
    FSelected = Value;
    ShowSelected();
}

void TColorBox::SetStyle(TColorBoxStyle Value)
{
    if (FColors == Value)
        return;
    FColors = Value;
    PopulateList();
    ShowSelected();
}

void TColorBox::Loaded()
{
    TCustomComboBox::Loaded();
    ShowSelected();
}

void TColorBox::CreateWnd()
{
    TCustomComboBox::CreateWnd();
    ShowSelected();
}

void TColorBox::Select()
{
    const int Index = ItemIndex();
    if (Index >= 0)
        FSelected = FValues[static_cast<size_t>(Index)];
    TCustomComboBox::Select();
}

void TColorBox::PopulateList()
{
    const auto Wanted = [this](const std::string& Name, int Value) {
        if (Name == "clNone")
            return FColors.Contains(cbIncludeNone);
        if (Name == "clDefault")
            return FColors.Contains(cbIncludeDefault);
        if (static_cast<uint32_t>(Value) >> 24 != 0)
            return FColors.Contains(cbSystemColors);
        return FColors.Contains(cbStandardColors);
    };
    FItems->BeginUpdate();
    FItems->Clear();
    FValues.clear();
    GetColorValues([&](const std::string& Name) {
        int Value = 0;
        if (!IdentToColor(Name, Value) || !Wanted(Name, Value))
            return;
        FValues.push_back(static_cast<TColor>(Value));
        const bool Pretty = FColors.Contains(cbPrettyNames);
        FItems->Add(Pretty ? Name.substr(2) : Name);
    });
    FItems->EndUpdate();
}

void TColorBox::ShowSelected()
{
    const auto Found = std::find(FValues.begin(), FValues.end(), FSelected);
    SetItemIndex(Found == FValues.end() ? -1 : static_cast<int>(Found - FValues.begin()));
}

void TColorBox::DrawItem(int Index, const TRect& Area, TOwnerDrawState State)
{
    if (Index < 0 || Index >= static_cast<int>(FValues.size()))
        return;
    const TColor Background = Canvas()->Brush()->Color();
    Canvas()->FillRect(Area);
    const TRect Sample{Area.left + 2, Area.top + 2, Area.left + (Area.bottom - Area.top), Area.bottom - 2};
    Canvas()->Brush()->SetColor(FValues[static_cast<size_t>(Index)]);
    Canvas()->FillRect(Sample);
    Canvas()->Brush()->SetColor(clWindowText);
    Canvas()->FrameRect(Sample);
    Canvas()->Brush()->SetColor(Background);
    TCustomComboBox::DrawItem(Index, {Sample.right + 3, Area.top, Area.right, Area.bottom}, State);
}
