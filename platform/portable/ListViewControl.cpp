#include <algorithm>
#include <utility>
#include <vector>

#include "platform/portable/Control.h"

// Lists with columns, small icons or icons. The header is a control of its own
// inside the list view, as long as the list view has columns.
namespace {
constexpr int HeaderId = 0;
constexpr int CheckWidth = 18;
constexpr int IconWidth = 20;
constexpr int IconCellWidth = 75;
constexpr int IconCellHeight = 60;

struct TListRow {
    std::vector<std::string> Texts{std::string()};
    std::vector<int> Images{-1};
    LPARAM Data = 0;
    UINT State = 0;
    int Indent = 0;
};

class TListView final : public TSystemControl {
public:
    using TSystemControl::TSystemControl;
    LRESULT Handle(UINT Message, WPARAM WParam, LPARAM LParam) override;

protected:
    void Paint(HDC Dc) override;
    void FontChanged() override;

private:
    int Count() const { return static_cast<int>(FRows.size()); }
    bool Valid(int Index) const { return Index >= 0 && Index < Count(); }
    TListRow& At(int Index) { return FRows[static_cast<std::size_t>(Index)]; }
    DWORD View() const { return Style() & LVS_TYPEMASK; }
    bool Report() const { return View() == LVS_REPORT; }
    int Columns() const { return static_cast<int>(FColumns.size()); }
    LRESULT HandleItems(UINT Message, WPARAM WParam, LPARAM LParam);
    LRESULT HandleColumns(UINT Message, WPARAM WParam, LPARAM LParam);
    LRESULT HandleLayout(UINT Message, WPARAM WParam, LPARAM LParam);
    LRESULT Insert(const LVITEMA& Item);
    bool Set(const LVITEMA& Item);
    bool SetSubItem(int Index, int Column, LPCSTR Text);
    bool Get(LVITEMA& Item);
    bool Delete(int Index);
    void DeleteAll();
    void SetState(int Index, UINT State, UINT Mask);
    LRESULT Tell(UINT Code, int Index, UINT New = 0, UINT Old = 0, UINT Changed = 0);
    void Sort(PFNLVCOMPARE Compare, LPARAM Param, bool ByIndex);
    int Next(int From, UINT Flags);
    int Find(int After, const LVFINDINFOA& Info);
    LRESULT InsertColumn(int Index, const LVCOLUMNA& Column);
    bool ColumnData(int Index, LVCOLUMNA& Column, bool Write);
    int ColumnWidth(int Index) const;
    void SetColumnWidth(int Index, int Width);
    void PlaceHeader();
    int HeaderHeight() const;
    int RowHeight() const { return std::max(LineHeight() + 1, FSmall ? 17 : 0); }
    RECT RectOf(int Index);
    int RowAt(POINT Point);
    void Choose(int Index);
    void PaintRow(HDC Dc, int Index);
    void PaintIcon(HDC Dc, int Index);

    std::vector<TListRow> FRows;
    std::vector<int> FColumns; // widths live in the header; here the sub item numbers
    HWND FHeader = nullptr;
    HIMAGELIST FSmall = nullptr;
    HIMAGELIST FLarge = nullptr;
    HIMAGELIST FStates = nullptr;
    DWORD FExtended = 0;
    int FTop = 0;
    int FFocus = -1;
    COLORREF FText = CLR_DEFAULT;
    COLORREF FBack = CLR_DEFAULT;
};

LRESULT TListView::Handle(UINT Message, WPARAM WParam, LPARAM LParam)
{
    if (Message >= LVM_FIRST && Message < LVM_FIRST + 0x100)
        return HandleItems(Message, WParam, LParam);
    switch (Message) {
    case WM_CREATE:
        if (Report())
            PlaceHeader();
        return 0;
    case WM_GETDLGCODE:
        return DLGC_WANTARROWS | DLGC_WANTCHARS;
    case WM_SETREDRAW:
        return SetRedraw(WParam != 0);
    case WM_SIZE:
        PlaceHeader();
        return 0;
    case WM_DESTROY:
        DeleteAll();
        return 0;
    case WM_NOTIFY: {
        const auto& Header = Structure<NMHEADERA>(LParam);
        if (FHeader && Header.hdr.hwndFrom == FHeader &&
            Header.hdr.code == static_cast<UINT>(HDN_ITEMCLICKA)) {
            NMLISTVIEW Info{};
            Info.iItem = -1;
            Info.iSubItem = Header.iItem;
            NotifyWith(Info.hdr, static_cast<UINT>(LVN_COLUMNCLICK));
        }
        return 0;
    }
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        TSystemControl::Handle(Message, WParam, LParam);
        Notify(static_cast<UINT>(Message == WM_SETFOCUS ? NM_SETFOCUS : NM_KILLFOCUS));
        return 0;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK: {
        SetFocus(Window());
        const POINT Point = PointOf(LParam);
        const int Index = Alive() ? RowAt(Point) : -1;
        if (Valid(Index) && (FExtended & LVS_EX_CHECKBOXES) && Point.x < CheckWidth)
            SetState(Index, At(Index).State ^ INDEXTOSTATEIMAGEMASK(3), LVIS_STATEIMAGEMASK);
        else
            Choose(Index);
        if (Alive())
            Notify(static_cast<UINT>(Message == WM_LBUTTONDOWN ? NM_CLICK : NM_DBLCLK));
        return 0;
    }
    case WM_KEYDOWN: {
        const int Target = WParam == VK_UP     ? FFocus - 1
                           : WParam == VK_DOWN ? FFocus + 1
                           : WParam == VK_HOME ? 0
                           : WParam == VK_END  ? Count() - 1
                                               : -1;
        NMLVKEYDOWN Key{};
        Key.wVKey = static_cast<WORD>(WParam);
        NotifyWith(Key.hdr, static_cast<UINT>(LVN_KEYDOWN));
        if (Alive() && Valid(Target))
            Choose(Target);
        else if (Alive() && WParam == VK_SPACE && Valid(FFocus) && (FExtended & LVS_EX_CHECKBOXES))
            SetState(FFocus, At(FFocus).State ^ INDEXTOSTATEIMAGEMASK(3), LVIS_STATEIMAGEMASK);
        else if (Alive() && WParam == VK_RETURN)
            Notify(static_cast<UINT>(NM_RETURN));
        return 0;
    }
    default:
        return TSystemControl::Handle(Message, WParam, LParam);
    }
}

LRESULT TListView::HandleItems(UINT Message, WPARAM WParam, LPARAM LParam)
{
    const int Index = static_cast<int>(WParam);
    switch (Message) {
    case LVM_GETITEMCOUNT:
        return Count();
    case LVM_INSERTITEMA:
        return Insert(Structure<LVITEMA>(LParam));
    case LVM_SETITEMA:
        return Set(Structure<LVITEMA>(LParam));
    case LVM_GETITEMA:
        return Get(Structure<LVITEMA>(LParam));
    case LVM_SETITEMTEXTA: {
        const auto& Item = Structure<LVITEMA>(LParam);
        return Valid(Index) && SetSubItem(Index, Item.iSubItem, Item.pszText);
    }
    case LVM_GETITEMTEXTA: {
        auto& Item = Structure<LVITEMA>(LParam);
        const auto Column = static_cast<std::size_t>(std::max(Item.iSubItem, 0));
        if (!Valid(Index) || !Item.pszText)
            return 0;
        return CopyText(Column < At(Index).Texts.size() ? At(Index).Texts[Column] : "", Item.pszText,
                        Item.cchTextMax);
    }
    case LVM_DELETEITEM:
        return Delete(Index);
    case LVM_DELETEALLITEMS:
        DeleteAll();
        return TRUE;
    case LVM_SETITEMSTATE: {
        const auto& Item = Structure<LVITEMA>(LParam);
        if (Index == -1) {
            for (int Each = 0; Each < Count() && Alive(); ++Each)
                SetState(Each, Item.state, Item.stateMask);
            return TRUE;
        }
        if (!Valid(Index))
            return FALSE;
        SetState(Index, Item.state, Item.stateMask);
        return TRUE;
    }
    case LVM_GETITEMSTATE:
        return Valid(Index) ? At(Index).State & static_cast<UINT>(LParam) : 0;
    case LVM_GETNEXTITEM:
        return Next(Index, LOWORD(LParam));
    case LVM_GETSELECTEDCOUNT:
        return std::count_if(FRows.begin(), FRows.end(),
                             [](const TListRow& Row) { return (Row.State & LVIS_SELECTED) != 0; });
    case LVM_FINDITEMA:
        return Find(Index, Structure<LVFINDINFOA>(LParam));
    case LVM_SORTITEMS:
    case LVM_SORTITEMSEX:
        Sort(reinterpret_cast<PFNLVCOMPARE>(LParam), static_cast<LPARAM>(WParam), Message == LVM_SORTITEMSEX);
        return TRUE;
    default:
        return HandleColumns(Message, WParam, LParam);
    }
}

LRESULT TListView::HandleColumns(UINT Message, WPARAM WParam, LPARAM LParam)
{
    const int Index = static_cast<int>(WParam);
    switch (Message) {
    case LVM_INSERTCOLUMNA:
        return InsertColumn(Index, Structure<LVCOLUMNA>(LParam));
    case LVM_SETCOLUMNA:
    case LVM_GETCOLUMNA:
        return ColumnData(Index, Structure<LVCOLUMNA>(LParam), Message == LVM_SETCOLUMNA);
    case LVM_DELETECOLUMN:
        if (Index < 0 || Index >= Columns())
            return FALSE;
        FColumns.erase(FColumns.begin() + Index);
        SendMessageA(FHeader, HDM_DELETEITEM, WParam, 0);
        for (auto& Row : FRows)
            if (Index > 0 && Index < static_cast<int>(Row.Texts.size()))
                Row.Texts.erase(Row.Texts.begin() + Index);
        Invalidate();
        return TRUE;
    case LVM_GETCOLUMNWIDTH:
        return ColumnWidth(Index);
    case LVM_SETCOLUMNWIDTH:
        SetColumnWidth(Index, static_cast<short>(LOWORD(LParam)));
        return TRUE;
    case LVM_GETHEADER:
        return reinterpret_cast<LRESULT>(FHeader);
    case LVM_GETSTRINGWIDTH:
        return WidthOf(reinterpret_cast<LPCSTR>(LParam));
    default:
        return HandleLayout(Message, WParam, LParam);
    }
}

LRESULT TListView::HandleLayout(UINT Message, WPARAM WParam, LPARAM LParam)
{
    const int Index = static_cast<int>(WParam);
    switch (Message) {
    case LVM_SETIMAGELIST: {
        auto& List = Index == LVSIL_NORMAL ? FLarge : Index == LVSIL_SMALL ? FSmall : FStates;
        Invalidate();
        return reinterpret_cast<LRESULT>(std::exchange(List, reinterpret_cast<HIMAGELIST>(LParam)));
    }
    case LVM_GETIMAGELIST:
        return reinterpret_cast<LRESULT>(Index == LVSIL_NORMAL  ? FLarge
                                         : Index == LVSIL_SMALL ? FSmall
                                                                : FStates);
    case LVM_SETEXTENDEDLISTVIEWSTYLE: {
        const DWORD Mask = WParam ? static_cast<DWORD>(WParam) : 0xFFFFFFFF;
        const DWORD Old = std::exchange(FExtended, (FExtended & ~Mask) | (static_cast<DWORD>(LParam) & Mask));
        if ((FExtended & ~Old) & LVS_EX_CHECKBOXES)
            for (auto& Row : FRows)
                Row.State = (Row.State & ~UINT{LVIS_STATEIMAGEMASK}) | INDEXTOSTATEIMAGEMASK(1);
        Invalidate();
        return Old;
    }
    case LVM_GETEXTENDEDLISTVIEWSTYLE:
        return FExtended;
    case LVM_GETITEMRECT:
        if (!Valid(Index))
            return FALSE;
        Structure<RECT>(LParam) = RectOf(Index);
        return TRUE;
    case LVM_HITTEST:
    case LVM_SUBITEMHITTEST: {
        auto& Info = Structure<LVHITTESTINFO>(LParam);
        Info.iItem = RowAt(Info.pt);
        Info.iSubItem = 0;
        Info.flags = Info.iItem < 0 ? LVHT_NOWHERE : LVHT_ONITEMLABEL;
        return Info.iItem;
    }
    case LVM_ENSUREVISIBLE:
        if (!Valid(Index))
            return FALSE;
        while (Index > FTop && RectOf(Index).bottom > ClientRect().bottom)
            ++FTop;
        FTop = std::min(FTop, Index);
        Invalidate();
        return TRUE;
    case LVM_GETTOPINDEX:
        return FTop;
    case LVM_GETCOUNTPERPAGE:
        return (ClientRect().bottom - HeaderHeight()) / RowHeight();
    case LVM_SETTEXTCOLOR:
        FText = static_cast<COLORREF>(LParam);
        Invalidate();
        return TRUE;
    case LVM_SETBKCOLOR:
        FBack = static_cast<COLORREF>(LParam);
        Invalidate();
        return TRUE;
    case LVM_SETTEXTBKCOLOR:
    case LVM_SETITEMCOUNT:
    case LVM_ARRANGE:
        return TRUE;
    case LVM_REDRAWITEMS:
    case LVM_UPDATE:
        Invalidate();
        return TRUE;
    case LVM_GETTEXTCOLOR:
        return FText == CLR_DEFAULT ? GetSysColor(COLOR_WINDOWTEXT) : FText;
    case LVM_GETBKCOLOR:
        return FBack == CLR_DEFAULT ? GetSysColor(COLOR_WINDOW) : FBack;
    default:
        return Default(Message, WParam, LParam);
    }
}

LRESULT TListView::Tell(UINT Code, int Index, UINT New, UINT Old, UINT Changed)
{
    NMLISTVIEW Info{};
    Info.iItem = Index;
    Info.uNewState = New;
    Info.uOldState = Old;
    Info.uChanged = Changed;
    if (Valid(Index))
        Info.lParam = At(Index).Data;
    return NotifyWith(Info.hdr, Code);
}

LRESULT TListView::Insert(const LVITEMA& Item)
{
    if (Item.iItem < 0 || Item.iSubItem != 0)
        return -1;
    int Index = std::min(Item.iItem, Count());
    TListRow Row;
    if ((Item.mask & LVIF_TEXT) && Item.pszText && Item.pszText != LPSTR_TEXTCALLBACKA)
        Row.Texts[0] = Item.pszText;
    if (Style() & (LVS_SORTASCENDING | LVS_SORTDESCENDING)) {
        const bool Down = (Style() & LVS_SORTDESCENDING) != 0;
        Index = 0;
        while (Index < Count() && !(Down ? SortsBefore(At(Index).Texts[0], Row.Texts[0])
                                         : SortsBefore(Row.Texts[0], At(Index).Texts[0])))
            ++Index;
    }
    if (Item.mask & LVIF_PARAM)
        Row.Data = Item.lParam;
    if (Item.mask & LVIF_IMAGE)
        Row.Images[0] = Item.iImage;
    if (Item.mask & LVIF_INDENT)
        Row.Indent = Item.iIndent;
    if (FExtended & LVS_EX_CHECKBOXES)
        Row.State = INDEXTOSTATEIMAGEMASK(1);
    FRows.insert(FRows.begin() + Index, std::move(Row));
    if (FFocus >= Index)
        ++FFocus;
    Invalidate();
    Tell(static_cast<UINT>(LVN_INSERTITEM), Index);
    if (Alive() && (Item.mask & LVIF_STATE) && Valid(Index))
        SetState(Index, Item.state, Item.stateMask ? Item.stateMask : Item.state);
    return Index;
}

bool TListView::Set(const LVITEMA& Item)
{
    if (!Valid(Item.iItem))
        return false;
    if (Item.mask & LVIF_PARAM)
        At(Item.iItem).Data = Item.lParam;
    if ((Item.mask & LVIF_IMAGE) && Item.iSubItem == 0)
        At(Item.iItem).Images[0] = Item.iImage;
    if (Item.mask & LVIF_INDENT)
        At(Item.iItem).Indent = Item.iIndent;
    if (Item.mask & LVIF_TEXT)
        SetSubItem(Item.iItem, Item.iSubItem, Item.pszText);
    if (Alive() && Valid(Item.iItem) && (Item.mask & LVIF_STATE))
        SetState(Item.iItem, Item.state, Item.stateMask);
    Invalidate();
    return true;
}

bool TListView::SetSubItem(int Index, int Column, LPCSTR Text)
{
    if (Column < 0 || Column > 255 || Text == LPSTR_TEXTCALLBACKA)
        return false;
    if (Tell(static_cast<UINT>(LVN_ITEMCHANGING), Index, 0, 0, LVIF_TEXT) || !Alive() || !Valid(Index))
        return false;
    auto& Texts = At(Index).Texts;
    if (static_cast<int>(Texts.size()) <= Column)
        Texts.resize(static_cast<std::size_t>(Column) + 1);
    auto& Kept = Texts[static_cast<std::size_t>(Column)];
    if (Kept == (Text ? Text : ""))
        return true; // asked, but not changed
    Kept = Text ? Text : "";
    Invalidate();
    Tell(static_cast<UINT>(LVN_ITEMCHANGED), Index, 0, 0, LVIF_TEXT);
    return true;
}

bool TListView::Get(LVITEMA& Item)
{
    if (!Valid(Item.iItem))
        return false;
    const auto& Row = At(Item.iItem);
    const auto Column = static_cast<std::size_t>(std::max(Item.iSubItem, 0));
    if ((Item.mask & LVIF_TEXT) && Item.pszText)
        CopyText(Column < Row.Texts.size() ? Row.Texts[Column] : "", Item.pszText, Item.cchTextMax);
    if (Item.mask & LVIF_PARAM)
        Item.lParam = Row.Data;
    if (Item.mask & LVIF_IMAGE)
        Item.iImage = Row.Images[0];
    if (Item.mask & LVIF_INDENT)
        Item.iIndent = Row.Indent;
    if (Item.mask & LVIF_STATE)
        Item.state = Row.State & Item.stateMask;
    return true;
}

bool TListView::Delete(int Index)
{
    if (!Valid(Index))
        return false;
    SetState(Index, 0, LVIS_SELECTED | LVIS_FOCUSED);
    if (!Alive() || !Valid(Index))
        return true;
    Tell(static_cast<UINT>(LVN_DELETEITEM), Index);
    if (!Alive() || !Valid(Index))
        return true;
    FRows.erase(FRows.begin() + Index);
    if (FFocus > Index)
        --FFocus;
    Invalidate();
    return true;
}

// The parent may ask, by answering TRUE, not to be told of each item.
void TListView::DeleteAll()
{
    const bool Quiet = Tell(static_cast<UINT>(LVN_DELETEALLITEMS), -1) != 0;
    for (int Index = Count() - 1; !Quiet && Index >= 0 && Alive(); --Index)
        if (Valid(Index))
            Tell(static_cast<UINT>(LVN_DELETEITEM), Index);
    FRows.clear();
    FFocus = -1;
    FTop = 0;
    Invalidate();
}

void TListView::SetState(int Index, UINT State, UINT Mask)
{
    const UINT Old = At(Index).State, New = (Old & ~Mask) | (State & Mask);
    if (Old == New || Tell(static_cast<UINT>(LVN_ITEMCHANGING), Index, New, Old, LVIF_STATE) || !Alive() ||
        !Valid(Index))
        return;
    if ((New & ~Old) & LVIS_SELECTED && (Style() & LVS_SINGLESEL))
        for (int Each = 0; Each < Count(); ++Each)
            if (Each != Index && (At(Each).State & LVIS_SELECTED)) {
                SetState(Each, 0, LVIS_SELECTED);
                if (!Alive() || !Valid(Index))
                    return;
            }
    if ((New & ~Old) & LVIS_FOCUSED) {
        if (Valid(FFocus) && FFocus != Index)
            At(FFocus).State &= ~UINT{LVIS_FOCUSED};
        FFocus = Index;
    } else if ((Old & ~New) & LVIS_FOCUSED && FFocus == Index) {
        FFocus = -1;
    }
    At(Index).State = New;
    Invalidate();
    Tell(static_cast<UINT>(LVN_ITEMCHANGED), Index, New, Old, LVIF_STATE);
}

void TListView::Choose(int Index)
{
    for (int Each = 0; Each < Count() && Alive(); ++Each)
        if (Each != Index && (At(Each).State & LVIS_SELECTED))
            SetState(Each, 0, LVIS_SELECTED);
    if (Alive() && Valid(Index))
        SetState(Index, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
}

void TListView::Sort(PFNLVCOMPARE Compare, LPARAM Param, bool ByIndex)
{
    std::vector<LPARAM> Keys;
    std::vector<std::size_t> Order;
    for (std::size_t Index = 0; Index < FRows.size(); ++Index) {
        Order.push_back(Index);
        Keys.push_back(ByIndex ? static_cast<LPARAM>(Index) : FRows[Index].Data);
    }
    std::stable_sort(Order.begin(), Order.end(),
                     [&](std::size_t A, std::size_t B) { return Compare(Keys[A], Keys[B], Param) < 0; });
    std::vector<TListRow> Sorted;
    for (const std::size_t Index : Order)
        Sorted.push_back(std::move(FRows[Index]));
    FRows = std::move(Sorted);
    FFocus = Next(-1, LVNI_FOCUSED);
    Invalidate();
}

int TListView::Next(int From, UINT Flags)
{
    const UINT Wanted = (Flags & LVNI_SELECTED ? LVIS_SELECTED : 0u) |
                        (Flags & LVNI_FOCUSED ? LVIS_FOCUSED : 0u) | (Flags & LVNI_CUT ? LVIS_CUT : 0u);
    const int Step = Flags & LVNI_ABOVE ? -1 : 1;
    for (int Index = From + Step; Valid(Index); Index += Step)
        if ((At(Index).State & Wanted) == Wanted)
            return Index;
    return -1;
}

int TListView::Find(int After, const LVFINDINFOA& Info)
{
    for (int Index = After + 1; Index < Count(); ++Index) {
        const auto& Row = At(Index);
        if ((Info.flags & LVFI_PARAM)   ? Row.Data == Info.lParam
            : Info.flags & LVFI_PARTIAL ? StartsWithText(Row.Texts[0], Info.psz)
                                        : SameText(Row.Texts[0], Info.psz))
            return Index;
    }
    return -1;
}

LRESULT TListView::InsertColumn(int Index, const LVCOLUMNA& Column)
{
    if (Index < 0)
        return -1;
    if (!FHeader)
        FHeader = CreateWindowExA(
            0, WC_HEADERA, "", WS_CHILD | HDS_HORZ | (Style() & LVS_NOSORTHEADER ? 0 : HDS_BUTTONS), 0, 0, 0,
            0, Window(), reinterpret_cast<HMENU>(static_cast<INT_PTR>(HeaderId)), nullptr, nullptr);
    Index = std::min(Index, Columns());
    FColumns.insert(FColumns.begin() + Index, Index);
    HDITEMA Item{};
    Item.mask = HDI_TEXT | HDI_WIDTH | HDI_FORMAT;
    Item.pszText = Column.mask & LVCF_TEXT && Column.pszText ? Column.pszText : const_cast<LPSTR>("");
    Item.cxy = Column.mask & LVCF_WIDTH ? Column.cx : 10;
    Item.fmt = Column.mask & LVCF_FMT ? Column.fmt & LVCFMT_JUSTIFYMASK : LVCFMT_LEFT;
    SendMessageA(FHeader, HDM_INSERTITEMA, static_cast<WPARAM>(Index), reinterpret_cast<LPARAM>(&Item));
    SendMessageA(FHeader, WM_SETFONT, reinterpret_cast<WPARAM>(Font()), 0);
    for (auto& Row : FRows)
        if (Index > 0 && Index <= static_cast<int>(Row.Texts.size()))
            Row.Texts.insert(Row.Texts.begin() + Index, "");
    PlaceHeader();
    return Index;
}

bool TListView::ColumnData(int Index, LVCOLUMNA& Column, bool Write)
{
    if (Index < 0 || Index >= Columns())
        return false;
    HDITEMA Item{};
    Item.mask = (Column.mask & LVCF_TEXT ? HDI_TEXT : 0u) | (Column.mask & LVCF_WIDTH ? HDI_WIDTH : 0u) |
                (Column.mask & LVCF_FMT ? HDI_FORMAT : 0u);
    Item.pszText = Column.pszText;
    Item.cchTextMax = Column.cchTextMax;
    Item.cxy = Column.cx;
    Item.fmt = Column.fmt;
    const bool Done = SendMessageA(FHeader, Write ? HDM_SETITEMA : HDM_GETITEMA, static_cast<WPARAM>(Index),
                                   reinterpret_cast<LPARAM>(&Item)) != 0;
    if (!Write && (Column.mask & LVCF_WIDTH))
        Column.cx = Item.cxy;
    if (!Write && (Column.mask & LVCF_FMT))
        Column.fmt = Item.fmt;
    if (Column.mask & LVCF_SUBITEM && !Write)
        Column.iSubItem = Index;
    Invalidate();
    return Done;
}

int TListView::ColumnWidth(int Index) const
{
    HDITEMA Item{};
    Item.mask = HDI_WIDTH;
    return FHeader && SendMessageA(FHeader, HDM_GETITEMA, static_cast<WPARAM>(Index),
                                   reinterpret_cast<LPARAM>(&Item))
               ? Item.cxy
               : 0;
}

void TListView::SetColumnWidth(int Index, int Width)
{
    if (Width < 0) { // as wide as the widest text
        Width = 0;
        for (const auto& Row : FRows)
            if (static_cast<std::size_t>(Index) < Row.Texts.size())
                Width = std::max(Width, WidthOf(Row.Texts[static_cast<std::size_t>(Index)]) + 12);
    }
    LVCOLUMNA Column{};
    Column.mask = LVCF_WIDTH;
    Column.cx = Width;
    ColumnData(Index, Column, true);
}

int TListView::HeaderHeight() const
{
    return FHeader && Report() && !(Style() & LVS_NOCOLUMNHEADER) ? LineHeight() + 6 : 0;
}

void TListView::FontChanged()
{
    if (FHeader)
        SendMessageA(FHeader, WM_SETFONT, reinterpret_cast<WPARAM>(Font()), 0);
    PlaceHeader();
}

void TListView::PlaceHeader()
{
    if (!FHeader)
        return;
    const int Height = HeaderHeight();
    SetWindowPos(FHeader, nullptr, 0, 0, ClientRect().right, Height,
                 SWP_NOZORDER | SWP_NOACTIVATE | (Height ? SWP_SHOWWINDOW : SWP_HIDEWINDOW));
}

RECT TListView::RectOf(int Index)
{
    const RECT Client = ClientRect();
    if (View() == LVS_ICON) {
        const int PerRow = std::max(1, Client.right / IconCellWidth);
        const int X = Index % PerRow * IconCellWidth, Y = Index / PerRow * IconCellHeight;
        return {X, Y, X + IconCellWidth, Y + IconCellHeight};
    }
    const int Top = HeaderHeight() + (Index - FTop) * RowHeight();
    return {0, Top, Client.right, Top + RowHeight()};
}

int TListView::RowAt(POINT Point)
{
    for (int Index = 0; Index < Count(); ++Index)
        if (const RECT Rect = RectOf(Index); Point.y >= HeaderHeight() && PtInRect(&Rect, Point))
            return Index;
    return -1;
}

void TListView::Paint(HDC Dc)
{
    const RECT Client = ClientRect();
    const HBRUSH Back = CreateSolidBrush(FBack == CLR_DEFAULT ? GetSysColor(COLOR_WINDOW) : FBack);
    FillRect(Dc, &Client, Back);
    DeleteObject(Back);
    const bool Icons = View() == LVS_ICON;
    for (int Index = Icons ? 0 : FTop; Index < Count() && RectOf(Index).top < Client.bottom; ++Index)
        Icons ? PaintIcon(Dc, Index) : PaintRow(Dc, Index);
}

void TListView::PaintRow(HDC Dc, int Index)
{
    const RECT Row = RectOf(Index);
    const auto& Item = At(Index);
    const bool Selected = (Item.State & LVIS_SELECTED) && (Focused() || (Style() & LVS_SHOWSELALWAYS));
    const int Back = Focused() ? COLOR_HIGHLIGHT : COLOR_BTNFACE;
    int Left = 0;
    for (int Column = 0; Column < std::max(1, Report() ? Columns() : 1); ++Column) {
        const int Width = Report() ? ColumnWidth(Column) : Row.right;
        RECT Cell = {Left, Row.top, Left + Width, Row.bottom};
        Left += Width;
        if (Column == 0 && (FExtended & LVS_EX_CHECKBOXES)) {
            RECT Box = {Cell.left + 3, Cell.top, Cell.left + 16, Cell.bottom};
            DrawFrameControl(
                Dc, &Box, DFC_BUTTON,
                DFCS_BUTTONCHECK | DFCS_FLAT |
                    ((Item.State & LVIS_STATEIMAGEMASK) == INDEXTOSTATEIMAGEMASK(2) ? DFCS_CHECKED : 0u));
            Cell.left += CheckWidth;
        }
        if (Column == 0 && FSmall && Item.Images[0] >= 0) {
            ImageList_Draw(FSmall, Item.Images[0], Dc, Cell.left + 2, Cell.top, ILD_TRANSPARENT);
            Cell.left += IconWidth;
        }
        COLORREF Color = FText == CLR_DEFAULT ? GetSysColor(COLOR_WINDOWTEXT) : FText;
        if (Selected && (Column == 0 || (FExtended & LVS_EX_FULLROWSELECT))) {
            RECT Mark = Cell;
            if (!(FExtended & LVS_EX_FULLROWSELECT))
                Mark.right = std::min(Cell.right, Cell.left + WidthOf(Item.Texts[0]) + 8);
            FillRect(Dc, &Mark, GetSysColorBrush(Back));
            Color = GetSysColor(Focused() ? COLOR_HIGHLIGHTTEXT : COLOR_BTNTEXT);
        }
        SetTextColor(Dc, Enabled() ? Color : GetSysColor(COLOR_GRAYTEXT));
        InflateRect(&Cell, Column == 0 ? -4 : -6, 0);
        HDITEMA Format{};
        Format.mask = HDI_FORMAT;
        SendMessageA(FHeader, HDM_GETITEMA, static_cast<WPARAM>(Column), reinterpret_cast<LPARAM>(&Format));
        const int Justify = Format.fmt & LVCFMT_JUSTIFYMASK;
        const UINT Align = Justify == LVCFMT_RIGHT    ? DT_RIGHT
                           : Justify == LVCFMT_CENTER ? DT_CENTER
                                                      : DT_LEFT;
        if (static_cast<std::size_t>(Column) < Item.Texts.size())
            DrawItemText(Dc, Item.Texts[static_cast<std::size_t>(Column)], Cell,
                         Align | DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    }
    if (FExtended & LVS_EX_GRIDLINES) {
        const RECT Line = {0, Row.bottom - 1, Row.right, Row.bottom};
        FillRect(Dc, &Line, GetSysColorBrush(COLOR_BTNFACE));
    }
}

void TListView::PaintIcon(HDC Dc, int Index)
{
    RECT Cell = RectOf(Index);
    const auto& Item = At(Index);
    if (FLarge && Item.Images[0] >= 0)
        ImageList_Draw(FLarge, Item.Images[0], Dc, (Cell.left + Cell.right) / 2 - 16, Cell.top + 4,
                       ILD_TRANSPARENT);
    Cell.top += 38;
    if (Item.State & LVIS_SELECTED) {
        FillRect(Dc, &Cell, GetSysColorBrush(Focused() ? COLOR_HIGHLIGHT : COLOR_BTNFACE));
        SetTextColor(Dc, GetSysColor(Focused() ? COLOR_HIGHLIGHTTEXT : COLOR_BTNTEXT));
    } else {
        SetTextColor(Dc, GetSysColor(COLOR_WINDOWTEXT));
    }
    DrawItemText(Dc, Item.Texts[0], Cell, DT_CENTER | DT_WORDBREAK | DT_NOPREFIX | DT_END_ELLIPSIS);
}
} // namespace

void RegisterSystemListViews()
{
    RegisterControl<TListView>(WC_LISTVIEWA);
}
