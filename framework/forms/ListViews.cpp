#include "framework/forms/ListViews.h"

#include <algorithm>

#include "framework/rtl/SysUtils.h"

namespace {

// A header reports in either character width.
constexpr int EndTrackNarrow = -307;
constexpr int EndTrackWide = -327;

// State pictures are counted from 1; the check box's are 1 and 2.
UINT StatePicture(int Number)
{
    return static_cast<UINT>(INDEXTOSTATEIMAGEMASK(Number));
}

} // namespace

const TMetaClass& TCustomListView::MetaClass()
{
    static const TMetaClass Class("TCustomListView", &TWinControl::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TListView::MetaClass()
{
    using namespace ControlRows;
    static const TMetaClass Class(
        "TListView", &TCustomListView::MetaClass(), CreateComponent<TListView>,
        Sorted(Look(), Drag(), Mouse(), Focus(true), Bevel(), ControlRows::Ctl3D(), Buffer(),
               ControlRows::Resize(), Wheel(), ControlRows::Action(),
               OBX_ROW(TControl, ParentColor).Default(false), OBX_ROW(TWinControl, BorderWidth).Default(0),
               OBX_ROW(TListView, BorderStyle).Default(bsSingle),
               OBX_ROW(TListView, Checkboxes).Default(false), OBX_ROW(TListView, Columns),
               OBX_ROW(TListView, ColumnClick).Default(true),
               OBX_ROW(TListView, FlatScrollBars).Default(false), OBX_ROW(TListView, FullDrag).Default(false),
               OBX_ROW(TListView, GridLines).Default(false), OBX_ROW(TListView, GroupView).Default(false),
               OBX_ROW(TListView, HideSelection).Default(true), OBX_ROW(TListView, HotTrack).Default(false),
               OBX_ROW(TListView, HotTrackStyles).Default(TListHotTrackStyles{}),
               OBX_ROW(TListView, HoverTime).Default(-1), OBX_ROW(TListView, Items),
               OBX_ROW(TListView, LargeImages), OBX_ROW(TListView, MultiSelect).Default(false),
               OBX_ROW(TListView, OwnerData).Default(false), OBX_ROW(TListView, OwnerDraw).Default(false),
               OBX_ROW(TListView, ReadOnly).Default(false), OBX_ROW(TListView, RowSelect).Default(false),
               OBX_ROW(TListView, ShowColumnHeaders).Default(true),
               OBX_ROW(TListView, ShowWorkAreas).Default(false), OBX_ROW(TListView, SmallImages),
               OBX_ROW(TListView, SortType).Default(stNone), OBX_ROW(TListView, StateImages),
               OBX_ROW(TListView, ViewStyle).Default(vsIcon), Prop<&TListView::OnCustomDraw>("OnCustomDraw"),
               Prop<&TListView::OnCustomDrawItem>("OnCustomDrawItem"),
               Prop<&TListView::OnCustomDrawSubItem>("OnCustomDrawSubItem"),
               Prop<&TListView::OnChange>("OnChange"), Prop<&TListView::OnChanging>("OnChanging"),
               Prop<&TListView::OnColumnClick>("OnColumnClick"),
               Prop<&TListView::OnColumnRightClick>("OnColumnRightClick"),
               Prop<&TListView::OnCompare>("OnCompare"), Prop<&TListView::OnData>("OnData"),
               Prop<&TListView::OnDeletion>("OnDeletion"), Prop<&TListView::OnDrawItem>("OnDrawItem"),
               Prop<&TListView::OnEdited>("OnEdited"), Prop<&TListView::OnEditing>("OnEditing"),
               Prop<&TListView::OnGetImageIndex>("OnGetImageIndex"), Prop<&TListView::OnInfoTip>("OnInfoTip"),
               Prop<&TListView::OnInsert>("OnInsert"), Prop<&TListView::OnItemChecked>("OnItemChecked"),
               Prop<&TListView::OnSelectItem>("OnSelectItem")));
    return Class;
}

TCustomListView::TCustomListView(TComponent* Owner)
    : TWinControl(Owner), FColumns(this), FItems(this), FCanvas(std::make_unique<TControlCanvas>(this))
{
    FControlStyle.Exclude(csCaptureMouse);
    FControlStyle.Exclude(csSetCaption);
    SetBounds(0, 0, 250, 150);
    SetTabStop(true);
    SetParentColor(false);
}

TCustomListView::~TCustomListView()
{
    SetStateFlag(csDestroying, true);
}

void TCustomListView::Notification(TComponent* Component, TOperation Operation)
{
    TWinControl::Notification(Component, Operation);
    if (Operation == opRemove)
        for (TCustomImageList** const List : {&FLargeImages, &FSmallImages, &FStateImages})
            if (Component == *List)
                SetImageList(*List, nullptr);
}

void TCustomListView::SetImageList(TCustomImageList*& List, TCustomImageList* Value)
{
    List = Value;
    if (Value)
        Value->FreeNotification(this);
    UpdateImages();
}

void TCustomListView::UpdateImages()
{
    if (!Live())
        return;
    SendMessageA(Handle(), LVM_SETIMAGELIST, LVSIL_NORMAL, Param(ImagesHandle(FLargeImages)));
    SendMessageA(Handle(), LVM_SETIMAGELIST, LVSIL_SMALL, Param(ImagesHandle(FSmallImages)));
    // Check boxes are state pictures of the window's own.
    if (!FCheckboxes)
        SendMessageA(Handle(), LVM_SETIMAGELIST, LVSIL_STATE, Param(ImagesHandle(FStateImages)));
}

void TCustomListView::SetSortType(TSortType Value)
{
    if (FSortType == Value)
        return;
    FSortType = Value;
    if ((Value == stText || Value == stBoth || OnCompare) && !IsLoading())
        AlphaSort();
}

TListItem* TCustomListView::Selected() const
{
    for (const auto& Item : FItems.FItems)
        if (Item->FSelected)
            return Item.get();
    return nullptr;
}

void TCustomListView::SetSelected(TListItem* Value)
{
    if (Value)
        Value->SetSelected(true);
    else
        ClearSelection();
}

TListItem* TCustomListView::ItemFocused() const
{
    for (const auto& Item : FItems.FItems)
        if (Item->FFocused)
            return Item.get();
    return nullptr;
}

int TCustomListView::SelCount() const
{
    return static_cast<int>(std::count_if(FItems.FItems.begin(), FItems.FItems.end(),
                                          [](const auto& Item) { return Item->FSelected; }));
}

int TCustomListView::ItemIndex() const
{
    const TListItem* const Item = Selected();
    return Item ? Item->Index() : -1;
}

void TCustomListView::SetItemIndex(int Value)
{
    SetSelected(Value < 0 ? nullptr : FItems.Item(Value));
}

void TCustomListView::ClearSelection()
{
    for (const auto& Item : FItems.FItems)
        Item->SetSelected(false);
}

void TCustomListView::SelectAll()
{
    for (const auto& Item : FItems.FItems)
        Item->SetSelected(true);
}

void TCustomListView::AlphaSort()
{
    const auto Before = [this](const auto& Left, const auto& Right) {
        int Order = AnsiCompareText(Left->FCaption, Right->FCaption);
        if (OnCompare)
            OnCompare(this, Left.get(), Right.get(), 0, Order);
        return Order < 0;
    };
    std::stable_sort(FItems.FItems.begin(), FItems.FItems.end(), Before);
    FItems.Changed();
    RebuildItems();
}

TListItem* TCustomListView::FindCaption(int StartIndex, const std::string& Value, bool Partial) const
{
    for (int I = std::max(StartIndex, 0); I < FItems.Count(); ++I) {
        const std::string& Caption = FItems.Item(I)->Caption();
        if (AnsiSameText(Partial ? Caption.substr(0, Value.size()) : Caption, Value))
            return FItems.Item(I);
    }
    return nullptr;
}

void TCustomListView::CreateParams(TCreateParams& Params)
{
    static constexpr DWORD Views[] = {LVS_ICON, LVS_SMALLICON, LVS_LIST, LVS_REPORT};
    InitCommonControl(ICC_LISTVIEW_CLASSES);
    TWinControl::CreateParams(Params);
    CreateSubClass(Params, WC_LISTVIEWA);
    Params.Style |= WS_CLIPCHILDREN | LVS_SHAREIMAGELISTS | Views[FViewStyle];
    Params.Style |= (FReadOnly ? 0u : LVS_EDITLABELS) | (FMultiSelect ? 0u : LVS_SINGLESEL) |
                    (FHideSelection ? 0u : LVS_SHOWSELALWAYS) |
                    (FShowColumnHeaders ? 0u : LVS_NOCOLUMNHEADER) | (FColumnClick ? 0u : LVS_NOSORTHEADER) |
                    (FOwnerDraw ? LVS_OWNERDRAWFIXED : 0u) | (FOwnerData ? LVS_OWNERDATA : 0u);
    if (FBorderStyle == bsSingle && Ctl3D())
        Params.ExStyle |= WS_EX_CLIENTEDGE;
    else if (FBorderStyle == bsSingle)
        Params.Style |= WS_BORDER;
    Params.WindowClass.style &= ~static_cast<UINT>(CS_HREDRAW | CS_VREDRAW);
}

void TCustomListView::CreateWnd()
{
    TWinControl::CreateWnd();
    const DWORD Extended = (FCheckboxes ? LVS_EX_CHECKBOXES : 0u) | (FFullDrag ? LVS_EX_HEADERDRAGDROP : 0u) |
                           (FGridLines ? LVS_EX_GRIDLINES : 0u) | (FRowSelect ? LVS_EX_FULLROWSELECT : 0u) |
                           (FHotTrack ? LVS_EX_TRACKSELECT : 0u);
    SendMessageA(Handle(), LVM_SETEXTENDEDLISTVIEWSTYLE, 0, static_cast<LPARAM>(Extended));
    const auto Background = static_cast<LPARAM>(ColorToRGB(Color()));
    SendMessageA(Handle(), LVM_SETBKCOLOR, 0, Background);
    SendMessageA(Handle(), LVM_SETTEXTBKCOLOR, 0, Background);
    SendMessageA(Handle(), LVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(ColorToRGB(Font()->Color())));
    UpdateImages();
    RebuildColumns();
    RebuildItems();
}

void TCustomListView::DestroyWnd()
{
    const TUpdateScope Scope(FUpdating);
    TWinControl::DestroyWnd();
}

void TCustomListView::FillColumn(int Index, LVCOLUMNA& Column, std::string& Text)
{
    static constexpr int Formats[] = {LVCFMT_LEFT, LVCFMT_RIGHT, LVCFMT_CENTER};
    const TListColumn& Source = *FColumns.Items(Index);
    Text = Source.Caption();
    Column.mask = LVCF_TEXT | LVCF_FMT;
    Column.pszText = TextParam(Text);
    Column.fmt = Formats[Source.Alignment()];
    Column.iSubItem = Index;
    if (Source.Width() >= 0) {
        Column.mask |= LVCF_WIDTH;
        Column.cx = Source.Width();
    }
    if (Source.ImageIndex() >= 0) {
        Column.mask |= LVCF_IMAGE;
        Column.fmt |= LVCFMT_IMAGE;
        Column.iImage = Source.ImageIndex();
    }
}

void TCustomListView::RebuildColumns()
{
    if (!Live())
        return;
    const TUpdateScope Scope(FUpdating);
    while (SendMessageA(Handle(), LVM_DELETECOLUMN, 0, 0)) {
    }
    for (int I = 0; I < FColumns.Count(); ++I) {
        LVCOLUMNA Column{};
        std::string Text;
        FillColumn(I, Column, Text);
        Column.mask |= LVCF_SUBITEM;
        SendMessageA(Handle(), LVM_INSERTCOLUMNA, static_cast<WPARAM>(I), Param(&Column));
        if (FColumns.Items(I)->Width() < 0)
            SendMessageA(Handle(), LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(I), FColumns.Items(I)->Width());
    }
    for (int I = 0; I < FItems.Count(); ++I)
        UpdateItemTexts(I);
}

void TCustomListView::UpdateColumn(int Index)
{
    if (!Live())
        return;
    LVCOLUMNA Column{};
    std::string Text;
    FillColumn(Index, Column, Text);
    SendMessageA(Handle(), LVM_SETCOLUMNA, static_cast<WPARAM>(Index), Param(&Column));
    if (FColumns.Items(Index)->Width() < 0)
        SendMessageA(Handle(), LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(Index),
                     FColumns.Items(Index)->Width());
}

void TCustomListView::RebuildItems()
{
    if (!Live())
        return;
    const TUpdateScope Scope(FUpdating);
    if (FOwnerData) {
        SendMessageA(Handle(), LVM_SETITEMCOUNT, static_cast<WPARAM>(FItems.Count()), 0);
        return;
    }
    SendMessageA(Handle(), LVM_DELETEALLITEMS, 0, 0);
    for (int I = 0; I < FItems.Count(); ++I)
        InsertWindowItem(I);
}

void TCustomListView::InsertWindowItem(int Index)
{
    if (!Live() || FOwnerData)
        return;
    const TUpdateScope Scope(FUpdating);
    TListItem& Item = *FItems.Item(Index);
    LVITEMA Entry{};
    Entry.mask = LVIF_TEXT | LVIF_IMAGE;
    Entry.iItem = Index;
    Entry.pszText = TextParam(Item.FCaption);
    Entry.iImage = Item.FImageIndex;
    SendMessageA(Handle(), LVM_INSERTITEMA, 0, Param(&Entry));
    UpdateItemTexts(Index);
    UpdateItemState(Item);
}

void TCustomListView::UpdateItemTexts(int Index)
{
    if (!Live() || FOwnerData)
        return;
    const TUpdateScope Scope(FUpdating);
    const TListItem& Item = *FItems.Item(Index);
    const int Texts = std::max(FColumns.Count(), 1);
    for (int I = 0; I < Texts; ++I) {
        LVITEMA Entry{};
        Entry.mask = LVIF_TEXT | (I == 0 ? LVIF_IMAGE : 0u);
        Entry.iItem = Index;
        Entry.iSubItem = I;
        Entry.iImage = Item.FImageIndex;
        const std::string Text = I == 0                        ? Item.FCaption
                                 : I <= Item.FSubItems.Count() ? Item.FSubItems.Get(I - 1)
                                                               : std::string();
        Entry.pszText = TextParam(Text);
        SendMessageA(Handle(), LVM_SETITEMA, 0, Param(&Entry));
    }
}

void TCustomListView::UpdateItemState(TListItem& Item)
{
    if (!Live() || FOwnerData)
        return;
    const TUpdateScope Scope(FUpdating);
    LVITEMA Entry{};
    Entry.stateMask = LVIS_SELECTED | LVIS_FOCUSED | LVIS_STATEIMAGEMASK;
    Entry.state = (Item.FSelected ? LVIS_SELECTED : 0u) | (Item.FFocused ? LVIS_FOCUSED : 0u);
    Entry.state |= StatePicture(FCheckboxes ? (Item.FChecked ? 2 : 1) : Item.FStateIndex + 1);
    SendMessageA(Handle(), LVM_SETITEMSTATE, static_cast<WPARAM>(Item.Index()), Param(&Entry));
}

bool TCustomListView::CanEdit(TListItem* Item)
{
    bool Allow = !FReadOnly;
    if (OnEditing)
        OnEditing(this, Item, Allow);
    return Allow;
}

void TCustomListView::Edited(TListItem* Item, std::string& Text)
{
    if (OnEdited)
        OnEdited(this, Item, Text);
    Item->SetCaption(Text);
}

void TCustomListView::WindowItemChanged(const NMLISTVIEW& Notice)
{
    if (FUpdating > 0 || Notice.iItem < 0 || Notice.iItem >= FItems.Count())
        return;
    TListItem* const Item = FItems.Item(Notice.iItem);
    const bool IsState = (Notice.uChanged & LVIF_STATE) != 0;
    if (IsState) {
        Item->FFocused = (Notice.uNewState & LVIS_FOCUSED) != 0;
        const bool Selected = (Notice.uNewState & LVIS_SELECTED) != 0;
        const bool Checked = (Notice.uNewState & LVIS_STATEIMAGEMASK) == StatePicture(2);
        if (FCheckboxes && (Notice.uNewState & LVIS_STATEIMAGEMASK) != 0 && Checked != Item->FChecked) {
            Item->FChecked = Checked;
            if (OnItemChecked)
                OnItemChecked(this, Item);
        }
        if (Selected != Item->FSelected) {
            Item->FSelected = Selected;
            if (OnSelectItem)
                OnSelectItem(this, Item, Selected);
        }
    }
    if (OnChange)
        OnChange(this, Item, IsState ? ctState : ctText);
}

void TCustomListView::WindowWantsText(NMLVDISPINFOA& Info)
{
    if (Info.item.iItem < 0 || Info.item.iItem >= FItems.Count())
        return;
    TListItem* const Item = FItems.Item(Info.item.iItem);
    if (OnData)
        OnData(this, Item);
    const int Sub = Info.item.iSubItem;
    if (Sub == 0)
        FShownText = Item->Caption();
    else
        FShownText = Sub <= Item->SubItems()->Count() ? Item->SubItems()->Get(Sub - 1) : "";
    if (Info.item.mask & LVIF_TEXT)
        Info.item.pszText = FShownText.data();
    if (Info.item.mask & LVIF_IMAGE)
        Info.item.iImage = Item->ImageIndex();
}

void TCustomListView::Notify(const NMHDR& Header, TMessage& Message)
{
    // What follows the header depends on the code.
    const auto& Notice = reinterpret_cast<const NMLISTVIEW&>(Header);
    auto& Info = *reinterpret_cast<NMLVDISPINFOA*>(Message.LParam);
    const auto IsKnown = [&] { return Info.item.iItem >= 0 && Info.item.iItem < FItems.Count(); };
    switch (static_cast<int>(Header.code)) {
    case static_cast<int>(LVN_ITEMCHANGED):
        WindowItemChanged(Notice);
        break;
    case static_cast<int>(LVN_COLUMNCLICK):
        if (OnColumnClick && Notice.iSubItem >= 0 && Notice.iSubItem < FColumns.Count())
            OnColumnClick(this, FColumns.Items(Notice.iSubItem));
        break;
    case static_cast<int>(LVN_GETDISPINFOA):
        WindowWantsText(Info);
        break;
    case static_cast<int>(LVN_BEGINLABELEDITA):
        Message.Result = IsKnown() && CanEdit(FItems.Item(Info.item.iItem)) ? 0 : 1;
        break;
    case static_cast<int>(LVN_ENDLABELEDITA):
        if (IsKnown() && Info.item.pszText) {
            std::string Text = Info.item.pszText;
            Edited(FItems.Item(Info.item.iItem), Text);
        }
        break;
    default:
        break;
    }
}

void TCustomListView::Dispatch(TMessage& Message)
{
    if (Message.Msg == CN_NOTIFY) {
        Notify(*reinterpret_cast<const NMHDR*>(Message.LParam), Message);
        return;
    }
    TWinControl::Dispatch(Message);
    if (Message.Msg != WM_NOTIFY || !Live() || FUpdating > 0)
        return;
    // The header is a window of the list's own; the user has moved a divider.
    const int Code = static_cast<int>(reinterpret_cast<const NMHDR*>(Message.LParam)->code);
    if (Code == EndTrackNarrow || Code == EndTrackWide)
        for (int I = 0; I < FColumns.Count(); ++I)
            FColumns.Items(I)->FWidth =
                static_cast<int>(SendMessageA(Handle(), LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(I), 0));
}

void RegisterListViewClasses()
{
    RegisterClass(TListView::MetaClass());
}
