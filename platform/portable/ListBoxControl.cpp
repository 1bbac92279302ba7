#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

#include "platform/portable/Control.h"

// Lists of texts or of items that the parent draws; also the list of a combo
// box, which is a child of the combo box and reports to it.
namespace {
constexpr int WheelNotch = 120;

struct TListItem {
    std::string Text;
    LPARAM Data = 0;
    bool Selected = false;
    int Height = 0;
};

class TListBox final : public TSystemControl {
public:
    using TSystemControl::TSystemControl;
    LRESULT Handle(UINT Message, WPARAM WParam, LPARAM LParam) override;

protected:
    void Paint(HDC Dc) override;
    void FontChanged() override { FItemHeight = OwnerDrawn() ? FItemHeight : LineHeight(); }

private:
    bool OwnerDrawn() const { return (Style() & (LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE)) != 0; }
    bool HasStrings() const { return !OwnerDrawn() || (Style() & LBS_HASSTRINGS); }
    bool Multiple() const { return (Style() & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL)) != 0; }
    int Count() const { return static_cast<int>(FItems.size()); }
    bool Valid(int Index) const { return Index >= 0 && Index < Count(); }
    TListItem& At(int Index) { return FItems[static_cast<std::size_t>(Index)]; }
    int HeightOf(int Index) { return At(Index).Height ? At(Index).Height : FItemHeight; }
    RECT RectOf(int Index);
    int IndexAt(POINT Point);

    LRESULT HandleItems(UINT Message, WPARAM WParam, LPARAM LParam);
    LRESULT HandleMultiple(UINT Message, WPARAM WParam, LPARAM LParam);
    void Start();
    HWND Drawer() const { return FCombo ? FCombo : GetParent(Window()); }
    void Measure(TListItem& Item, int Index);
    bool Precedes(const TListItem& First, const TListItem& Second) const;
    void TellDeleted(int Index);
    void Clear();
    int Add(LPARAM Text);
    int Insert(int Index, LPARAM Text);
    LRESULT Delete(int Index);
    int Find(int After, LPARAM Text, bool Exact);
    LRESULT SetCurrent(int Index);
    void SelectRange(int First, int Last, bool Select);
    void MoveCaret(int Index);
    void Note(int Code);
    void Choose(int Index);
    bool HandleInput(UINT Message, WPARAM WParam, LPARAM LParam);
    void Key(WPARAM Key);
    int KeyTarget(WPARAM Key);
    void TypeCharacter(char Typed);
    void Press(POINT Point, WPARAM Keys);
    void Drag(POINT Point);
    void Release(POINT Point);
    void Wheel(int Delta);
    void ScrollBy(WPARAM Request);
    bool Columns() const { return (Style() & LBS_MULTICOLUMN) != 0; }
    int RowsInView() { return std::max<int>(1, ClientRect().bottom / std::max(1, FItemHeight)); }
    int ColumnsInView() { return std::max<int>(1, ClientRect().right / std::max(1, FColumnWidth)); }
    int PageSize() { return Columns() ? RowsInView() * ColumnsInView() : RowsInView(); }
    void SetTop(int Index);
    int LastTop();
    int TopToShow(int Last);
    void ScrollTo(int Index);
    void UpdateScrollBar();
    void Changed();
    void PaintItem(HDC Dc, int Index);

    std::vector<TListItem> FItems;
    HWND FCombo = nullptr; // the combo box that this is the list of
    int FCurrent = -1;     // the chosen item where only one can be
    int FCaret = 0;
    int FAnchor = -1; // where a range of an extended selection began
    int FTop = 0;
    int FItemHeight = 16;
    int FExtent = 0;
    int FColumnWidth = 150;
    bool FScrolls = false; // created with a scroll bar, which hides while all items fit
    bool FPressed = false;
    bool FRedraws = true;
};

LRESULT TListBox::Handle(UINT Message, WPARAM WParam, LPARAM LParam)
{
    if (Message >= LB_ADDSTRING && Message <= LB_MSGMAX)
        return HandleItems(Message, WParam, LParam);
    switch (Message) {
    case WM_CREATE:
        FCombo = static_cast<HWND>(Structure<CREATESTRUCTA>(LParam).lpCreateParams);
        Start();
        return 0;
    case WM_DESTROY:
        Clear();
        return 0;
    case WM_GETDLGCODE:
        return DLGC_WANTARROWS | DLGC_WANTCHARS;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        TSystemControl::Handle(Message, WParam, LParam);
        Note(Message == WM_SETFOCUS ? LBN_SETFOCUS : LBN_KILLFOCUS);
        return 0;
    case WM_SETREDRAW:
        FRedraws = WParam != 0;
        SetRedraw(FRedraws);
        Changed();
        return 0;
    case WM_SIZE:
        UpdateScrollBar();
        return 0;
    case WM_VSCROLL:
    case WM_HSCROLL:
        if ((Message == WM_HSCROLL) == Columns())
            ScrollBy(WParam);
        return 0;
    default:
        if (HandleInput(Message, WParam, LParam))
            return 0;
        return TSystemControl::Handle(Message, WParam, LParam);
    }
}

LRESULT TListBox::HandleItems(UINT Message, WPARAM WParam, LPARAM LParam)
{
    const int Index = static_cast<int>(WParam);
    switch (Message) {
    case LB_ADDSTRING:
        return Add(LParam);
    case LB_INSERTSTRING:
        return Index > Count() || Index < -1 ? LB_ERR : Insert(Index < 0 ? Count() : Index, LParam);
    case LB_DELETESTRING:
        return Delete(Index);
    case LB_RESETCONTENT:
        Clear();
        Changed();
        return 0;
    case LB_GETCOUNT:
        return Count();
    case LB_INITSTORAGE:
        FItems.reserve(FItems.size() + WParam);
        return static_cast<LRESULT>(FItems.capacity());
    case LB_GETTEXTLEN:
        if (!Valid(Index))
            return LB_ERR;
        return HasStrings() ? static_cast<LRESULT>(At(Index).Text.size())
                            : static_cast<LRESULT>(sizeof(LPARAM));
    case LB_GETTEXT:
        if (!Valid(Index))
            return LB_ERR;
        if (!HasStrings()) {
            std::memcpy(reinterpret_cast<void*>(LParam), &At(Index).Data, sizeof(LPARAM));
            return static_cast<LRESULT>(sizeof(LPARAM));
        }
        std::memcpy(reinterpret_cast<LPSTR>(LParam), At(Index).Text.c_str(), At(Index).Text.size() + 1);
        return static_cast<LRESULT>(At(Index).Text.size());
    case LB_GETITEMDATA:
        return Valid(Index) ? At(Index).Data : LB_ERR;
    case LB_SETITEMDATA:
        if (!Valid(Index))
            return LB_ERR;
        At(Index).Data = LParam;
        return TRUE;
    case LB_FINDSTRING:
    case LB_FINDSTRINGEXACT:
        return Find(Index, LParam, Message == LB_FINDSTRINGEXACT);
    case LB_SELECTSTRING: {
        const int Found = Find(Index, LParam, false);
        return Found < 0 ? LB_ERR : SetCurrent(Found);
    }
    case LB_SETCURSEL:
        return Multiple() ? LB_ERR : SetCurrent(Index);
    case LB_GETCURSEL:
        return !Multiple() ? FCurrent : Count() > 0 ? FCaret : LB_ERR;
    case LB_GETTOPINDEX:
        return FTop;
    case LB_SETTOPINDEX:
        if (!Valid(Index) && Count() > 0)
            return LB_ERR;
        SetTop(Index);
        return 0;
    case LB_GETITEMHEIGHT:
        return Style() & LBS_OWNERDRAWVARIABLE && Valid(Index) ? HeightOf(Index) : FItemHeight;
    case LB_SETITEMHEIGHT:
        if (Style() & LBS_OWNERDRAWVARIABLE && Valid(Index))
            At(Index).Height = static_cast<int>(LParam);
        else
            FItemHeight = std::max(1, static_cast<int>(LParam));
        Invalidate();
        return 0;
    case LB_GETITEMRECT:
        if (!Valid(Index))
            return LB_ERR;
        Structure<RECT>(LParam) = RectOf(Index);
        return TRUE;
    case LB_ITEMFROMPOINT: {
        const int Found = IndexAt(PointOf(LParam));
        return Found >= 0 ? Found : MAKELONG(std::max(Count() - 1, 0), 1);
    }
    case LB_SETHORIZONTALEXTENT:
        FExtent = Index;
        return 0;
    case LB_GETHORIZONTALEXTENT:
        return FExtent;
    case LB_GETCARETINDEX:
        return FCaret;
    case LB_SETCOLUMNWIDTH:
        FColumnWidth = std::max(1, Index);
        UpdateScrollBar();
        Invalidate();
        return 0;
    default:
        return HandleMultiple(Message, WParam, LParam);
    }
}

LRESULT TListBox::HandleMultiple(UINT Message, WPARAM WParam, LPARAM LParam)
{
    const int Index = static_cast<int>(WParam);
    switch (Message) {
    case LB_GETSEL:
        if (!Valid(Index))
            return LB_ERR;
        return Multiple() ? At(Index).Selected : FCurrent == Index;
    case LB_SETSEL: {
        const int Item = static_cast<int>(LParam);
        if (!Multiple() || (Item != -1 && !Valid(Item)))
            return LB_ERR;
        if (WParam) {
            FAnchor = Item;
            if (Item >= 0)
                MoveCaret(Item);
        }
        SelectRange(std::max(Item, 0), Item < 0 ? Count() - 1 : Item, WParam != 0);
        return 0;
    }
    case LB_SELITEMRANGE:
        if (!Multiple())
            return LB_ERR;
        SelectRange(LOWORD(LParam), HIWORD(LParam), WParam != 0);
        return 0;
    case LB_SELITEMRANGEEX: {
        const int Last = static_cast<int>(LParam);
        if (!Multiple())
            return LB_ERR;
        SelectRange(std::min(Index, Last), std::max(Index, Last), Index <= Last);
        return 0;
    }
    case LB_SETCARETINDEX:
        if (!Multiple() || !Valid(Index))
            return LB_ERR;
        MoveCaret(Index);
        return 0;
    case LB_GETANCHORINDEX:
        return FAnchor;
    case LB_SETANCHORINDEX:
        if (!Valid(Index) && Index != -1)
            return LB_ERR;
        FAnchor = Index;
        return 0;
    case LB_GETSELCOUNT:
        if (!Multiple())
            return LB_ERR;
        return std::count_if(FItems.begin(), FItems.end(),
                             [](const TListItem& Item) { return Item.Selected; });
    case LB_GETSELITEMS: {
        if (!Multiple())
            return LB_ERR;
        int Written = 0;
        for (int Each = 0; Each < Count() && Written < Index; ++Each)
            if (At(Each).Selected)
                reinterpret_cast<int*>(LParam)[Written++] = Each;
        return Written;
    }
    default:
        return Default(Message, WParam, LParam);
    }
}

void TListBox::Start()
{
    FItemHeight = LineHeight();
    FScrolls = (Style() & (Columns() ? WS_HSCROLL : WS_VSCROLL)) != 0;
    UpdateScrollBar();
    if (!OwnerDrawn() || (Style() & LBS_OWNERDRAWVARIABLE))
        return;
    TListItem Item;
    Measure(Item, FCombo ? 0 : -1);
    if (Item.Height > 0)
        FItemHeight = Item.Height;
}

void TListBox::Measure(TListItem& Item, int Index)
{
    MEASUREITEMSTRUCT Size{};
    Size.CtlType = ODT_LISTBOX;
    Size.CtlID = static_cast<UINT>(Id());
    Size.itemID = static_cast<UINT>(Index);
    Size.itemHeight = static_cast<UINT>(FItemHeight);
    Size.itemData = static_cast<ULONG_PTR>(Item.Data);
    SendMessageA(Drawer(), WM_MEASUREITEM, Size.CtlID, reinterpret_cast<LPARAM>(&Size));
    Item.Height = static_cast<int>(Size.itemHeight);
}

// Whoever draws the items without texts orders them too.
bool TListBox::Precedes(const TListItem& First, const TListItem& Second) const
{
    if (HasStrings())
        return SortsBefore(First.Text, Second.Text);
    COMPAREITEMSTRUCT Pair{};
    Pair.CtlType = ODT_LISTBOX;
    Pair.CtlID = static_cast<UINT>(Id());
    Pair.hwndItem = Window();
    Pair.itemID1 = Pair.itemID2 = static_cast<UINT>(-1);
    Pair.itemData1 = static_cast<ULONG_PTR>(First.Data);
    Pair.itemData2 = static_cast<ULONG_PTR>(Second.Data);
    return SendMessageA(Drawer(), WM_COMPAREITEM, Pair.CtlID, reinterpret_cast<LPARAM>(&Pair)) < 0;
}

// What hangs at an item can be freed when it goes.
void TListBox::TellDeleted(int Index)
{
    if (!OwnerDrawn() && At(Index).Data == 0)
        return;
    DELETEITEMSTRUCT Item{};
    Item.CtlType = ODT_LISTBOX;
    Item.CtlID = static_cast<UINT>(Id());
    Item.itemID = static_cast<UINT>(Index);
    Item.hwndItem = Window();
    Item.itemData = static_cast<ULONG_PTR>(At(Index).Data);
    SendMessageA(Drawer(), WM_DELETEITEM, Item.CtlID, reinterpret_cast<LPARAM>(&Item));
}

void TListBox::Clear()
{
    for (int Index = Count() - 1; Valid(Index); --Index)
        TellDeleted(Index);
    FItems.clear();
    FCurrent = FAnchor = -1;
    FTop = FCaret = 0;
}

int TListBox::Add(LPARAM Text)
{
    int Index = Count();
    if ((Style() & LBS_SORT) && (!HasStrings() || Text)) {
        TListItem New;
        if (HasStrings())
            New.Text = reinterpret_cast<LPCSTR>(Text);
        else
            New.Data = Text;
        Index = 0;
        while (Index < Count() && !Precedes(New, At(Index)))
            ++Index;
    }
    return Insert(Index, Text);
}

int TListBox::Insert(int Index, LPARAM Text)
{
    TListItem Item;
    if (HasStrings())
        Item.Text = Text ? reinterpret_cast<LPCSTR>(Text) : "";
    else
        Item.Data = Text;
    if (Style() & LBS_OWNERDRAWVARIABLE)
        Measure(Item, Index);
    FItems.insert(FItems.begin() + Index, std::move(Item));
    if (FCurrent >= Index)
        ++FCurrent;
    Changed();
    return Index;
}

LRESULT TListBox::Delete(int Index)
{
    if (!Valid(Index))
        return LB_ERR;
    TellDeleted(Index);
    if (!Valid(Index))
        return LB_ERR;
    FItems.erase(FItems.begin() + Index);
    if (FCurrent == Index)
        FCurrent = -1;
    else if (FCurrent > Index)
        --FCurrent;
    FCaret = std::clamp(FCaret, 0, std::max(0, Count() - 1));
    FTop = std::clamp(FTop, 0, std::max(0, Count() - 1));
    Changed();
    return Count();
}

int TListBox::Find(int After, LPARAM Text, bool Exact)
{
    if (!HasStrings()) {
        for (int Each = 0; Each < Count(); ++Each)
            if (At(Each).Data == Text)
                return Each;
        return LB_ERR;
    }
    const std::string Wanted = Text ? reinterpret_cast<LPCSTR>(Text) : "";
    for (int Step = 1; Step <= Count(); ++Step) {
        const int Index = (std::max(After, -1) + Step) % Count();
        if (Exact ? SameText(At(Index).Text, Wanted) : StartsWithText(At(Index).Text, Wanted))
            return Index;
    }
    return LB_ERR;
}

LRESULT TListBox::SetCurrent(int Index)
{
    if (Index != -1 && !Valid(Index))
        return LB_ERR;
    FCurrent = Index;
    if (Index >= 0)
        MoveCaret(Index);
    Invalidate();
    return Index < 0 ? LB_ERR : Index;
}

void TListBox::SelectRange(int First, int Last, bool Select)
{
    for (int Each = std::max(First, 0); Each <= std::min(Last, Count() - 1); ++Each)
        At(Each).Selected = Select;
    Invalidate();
}

void TListBox::MoveCaret(int Index)
{
    FCaret = Index;
    ScrollTo(Index);
    Invalidate();
}

void TListBox::Note(int Code)
{
    if (FCombo)
        SendMessageA(FCombo, WM_COMMAND, MAKEWPARAM(Id(), Code), reinterpret_cast<LPARAM>(Window()));
    else if (Style() & LBS_NOTIFY)
        Command(Code);
}

// The user goes to an item: it is chosen, or what lies between it and the anchor.
void TListBox::Choose(int Index)
{
    if (!Multiple()) {
        SetCurrent(Index);
        return;
    }
    MoveCaret(Index);
    if (!(Style() & LBS_EXTENDEDSEL) || FAnchor < 0)
        return;
    SelectRange(0, Count() - 1, false);
    SelectRange(std::min(Index, FAnchor), std::max(Index, FAnchor), true);
}

bool TListBox::HandleInput(UINT Message, WPARAM WParam, LPARAM LParam)
{
    switch (Message) {
    case WM_LBUTTONDOWN:
        Press(PointOf(LParam), WParam);
        return true;
    case WM_MOUSEMOVE:
        Drag(PointOf(LParam));
        return true;
    case WM_LBUTTONUP:
        Release(PointOf(LParam));
        return true;
    case WM_LBUTTONDBLCLK:
        Note(LBN_DBLCLK);
        return true;
    case WM_MOUSEWHEEL:
        Wheel(static_cast<short>(HIWORD(WParam)));
        return true;
    case WM_KEYDOWN:
        Key(WParam);
        return true;
    case WM_CHAR:
        TypeCharacter(static_cast<char>(WParam));
        return true;
    default:
        return false;
    }
}

// The item that a key leads to, which may lie outside the list; -2 for other keys.
int TListBox::KeyTarget(WPARAM Key)
{
    switch (Key) {
    case VK_LEFT:
        return FCaret - (Columns() ? RowsInView() : 1);
    case VK_UP:
        return FCaret - 1;
    case VK_RIGHT:
        return FCaret + (Columns() ? RowsInView() : 1);
    case VK_DOWN:
        return FCaret + 1;
    case VK_HOME:
        return 0;
    case VK_END:
        return Count() - 1;
    case VK_PRIOR:
        return std::max(0, FCaret - std::max(1, PageSize() - 1));
    case VK_NEXT:
        return FCaret + std::max(1, PageSize() - 1);
    default:
        return -2;
    }
}

void TListBox::Key(WPARAM Key)
{
    if (Count() == 0)
        return;
    const bool Shift = (GetKeyState(VK_SHIFT) & 0x8000) != 0;
    if (Key == VK_SPACE && (Style() & LBS_MULTIPLESEL)) {
        SelectRange(FCaret, FCaret, !At(FCaret).Selected);
        return Note(LBN_SELCHANGE);
    }
    int Target = Key == VK_SPACE && (Style() & LBS_EXTENDEDSEL) ? FCaret : KeyTarget(Key);
    if (Target == -2)
        return;
    // Without a choice the first key chooses the item that the caret is on.
    const bool Across = Columns() && (Key == VK_LEFT || Key == VK_RIGHT);
    if (!Multiple() && FCurrent != FCaret && !Across)
        Target = FCaret;
    Target = std::clamp(Target, 0, Count() - 1);
    if (!Multiple() || ((Style() & LBS_EXTENDEDSEL) && !Shift))
        FAnchor = Target;
    Choose(Target);
    Note(LBN_SELCHANGE);
}

void TListBox::TypeCharacter(char Typed)
{
    const std::string Start(1, Typed);
    const int Found = static_cast<unsigned char>(Typed) > ' ' && HasStrings()
                          ? Find(FCaret, reinterpret_cast<LPARAM>(Start.c_str()), false)
                          : -1;
    if (Found < 0)
        return;
    Choose(Found);
    Note(LBN_SELCHANGE);
}

void TListBox::Press(POINT Point, WPARAM Keys)
{
    if (!FCombo)
        SetFocus(Window());
    if (!Alive())
        return;
    const int Index = IndexAt(Point);
    if (Index < 0)
        return;
    if (!Multiple() || !(Keys & MK_SHIFT))
        FAnchor = Index;
    if (!Multiple()) {
        Choose(Index);
    } else if ((Style() & LBS_EXTENDEDSEL) && !(Keys & MK_CONTROL)) {
        Choose(Index);
    } else {
        MoveCaret(Index);
        SelectRange(Index, Index, !At(Index).Selected);
    }
    SetCapture(Window());
    FPressed = true;
}

void TListBox::Drag(POINT Point)
{
    const int Index = IndexAt(Point);
    if (Index >= 0 && Index != FCaret && (FPressed || FCombo))
        Choose(Index);
}

void TListBox::Release(POINT Point)
{
    if (!std::exchange(FPressed, false))
        return;
    ReleaseCapture();
    const RECT Client = ClientRect();
    if (!FCombo || PtInRect(&Client, Point))
        Note(LBN_SELCHANGE);
}

void TListBox::Wheel(int Delta)
{
    if (FCombo)
        return Key(Delta < 0 ? VK_DOWN : VK_UP);
    UINT Lines = 3;
    SystemParametersInfoA(SPI_GETWHEELSCROLLLINES, 0, &Lines, 0);
    SetTop(FTop - Delta * static_cast<int>(Lines) / WheelNotch);
}

void TListBox::ScrollBy(WPARAM Request)
{
    const int Step = Columns() ? RowsInView() : 1;
    switch (LOWORD(Request)) {
    case SB_LINEUP:
        return SetTop(FTop - Step);
    case SB_LINEDOWN:
        return SetTop(FTop + Step);
    case SB_PAGEUP:
        return SetTop(FTop - PageSize());
    case SB_PAGEDOWN:
        return SetTop(FTop + PageSize());
    case SB_TOP:
        return SetTop(0);
    case SB_BOTTOM:
        return SetTop(Count() - 1);
    case SB_THUMBPOSITION:
    case SB_THUMBTRACK:
        return SetTop(HIWORD(Request) * Step);
    default:
        return;
    }
}

RECT TListBox::RectOf(int Index)
{
    const RECT Client = ClientRect();
    if (Columns()) {
        const int Rows = RowsInView(), Left = (Index / Rows - FTop / Rows) * FColumnWidth;
        const int Upper = Index % Rows * FItemHeight;
        return {Left, Upper, Left + FColumnWidth, Upper + FItemHeight};
    }
    int Top = (Index - FTop) * FItemHeight;
    if (Style() & LBS_OWNERDRAWVARIABLE) {
        Top = 0;
        for (int Each = FTop; Each < Index; ++Each)
            Top += HeightOf(Each);
        for (int Each = Index; Each < FTop; ++Each)
            Top -= HeightOf(Each);
    }
    return {0, Top, Client.right, Top + HeightOf(Index)};
}

int TListBox::IndexAt(POINT Point)
{
    for (int Index = FTop; Columns() && Index < Count(); ++Index) {
        const RECT Area = RectOf(Index);
        if (PtInRect(&Area, Point))
            return Index;
    }
    int Top = 0;
    for (int Index = FTop; !Columns() && Index < Count() && Point.y >= 0; ++Index) {
        Top += HeightOf(Index);
        if (Point.y < Top)
            return Index;
    }
    return -1;
}

void TListBox::SetTop(int Index)
{
    FTop = std::clamp(Index, 0, LastTop());
    if (Columns())
        FTop -= FTop % RowsInView();
    SetScrollPos(Window(), Columns() ? SB_HORZ : SB_VERT, Columns() ? FTop / RowsInView() : FTop, FALSE);
    Invalidate();
}

// The first item in view when the end of the list is.
int TListBox::LastTop()
{
    if (Columns()) {
        const int Rows = RowsInView(), All = (Count() + Rows - 1) / Rows;
        return std::max(0, All - ColumnsInView()) * Rows;
    }
    return Count() > 0 ? TopToShow(Count() - 1) : 0;
}

// The first item in view when Last is the last one that is wholly so.
int TListBox::TopToShow(int Last)
{
    int Top = Last, Room = ClientRect().bottom - HeightOf(Last);
    while (Top > 0 && Room >= HeightOf(Top - 1))
        Room -= HeightOf(--Top);
    return Top;
}

void TListBox::ScrollTo(int Index)
{
    if (Index < FTop)
        return SetTop(Index);
    if (Columns()) {
        const int Rows = RowsInView(), Column = Index / Rows - ColumnsInView() + 1;
        return FTop / Rows < Column ? SetTop(Column * Rows) : void();
    }
    if (const int Top = TopToShow(Index); Top > FTop)
        SetTop(Top);
}

void TListBox::UpdateScrollBar()
{
    if (!FScrolls)
        return;
    const int Rows = RowsInView();
    const int Last = Columns() ? (Count() + Rows - 1) / Rows - 1 : Count() - 1;
    FTop = std::min(FTop, LastTop());
    SCROLLINFO Info{sizeof(SCROLLINFO),
                    SIF_RANGE | SIF_PAGE | SIF_POS,
                    0,
                    std::max(0, Last),
                    static_cast<UINT>(Columns() ? ColumnsInView() : Rows),
                    Columns() ? FTop / Rows : FTop,
                    0};
    SetScrollInfo(Window(), Columns() ? SB_HORZ : SB_VERT, &Info, FALSE);
}

// Items came or went: shown at once unless the program has put that off.
void TListBox::Changed()
{
    if (!FRedraws)
        return;
    UpdateScrollBar();
    Invalidate();
}

void TListBox::Paint(HDC Dc)
{
    const RECT Client = ClientRect();
    FillRect(Dc, &Client, ParentColors(Dc, WM_CTLCOLORLISTBOX));
    SetBkMode(Dc, TRANSPARENT);
    for (int Index = FTop; Index < Count(); ++Index) {
        const RECT Area = RectOf(Index);
        if (Columns() ? Area.left >= Client.right : Area.top >= Client.bottom)
            break;
        PaintItem(Dc, Index);
    }
}

void TListBox::PaintItem(HDC Dc, int Index)
{
    RECT Rect = RectOf(Index);
    const bool Selected = Multiple() ? At(Index).Selected : FCurrent == Index;
    const bool WithFocus = Focused() && FCaret == Index;
    if (OwnerDrawn()) {
        DRAWITEMSTRUCT Item{};
        Item.CtlType = ODT_LISTBOX;
        Item.CtlID = static_cast<UINT>(Id());
        Item.itemID = static_cast<UINT>(Index);
        Item.itemAction = ODA_DRAWENTIRE;
        Item.itemState =
            (Selected ? ODS_SELECTED : 0u) | (WithFocus ? ODS_FOCUS : 0u) | (Enabled() ? 0u : ODS_DISABLED);
        Item.hwndItem = Window();
        Item.hDC = Dc;
        Item.rcItem = Rect;
        Item.itemData = static_cast<ULONG_PTR>(At(Index).Data);
        const int Saved = SaveDC(Dc);
        SendMessageA(GetParent(Window()), WM_DRAWITEM, Item.CtlID, reinterpret_cast<LPARAM>(&Item));
        RestoreDC(Dc, Saved);
        return;
    }
    const COLORREF Old = GetTextColor(Dc);
    if (Selected) {
        FillRect(Dc, &Rect, GetSysColorBrush(COLOR_HIGHLIGHT));
        SetTextColor(Dc, GetSysColor(COLOR_HIGHLIGHTTEXT));
    } else if (!Enabled()) {
        SetTextColor(Dc, GetSysColor(COLOR_GRAYTEXT));
    }
    RECT Label = Rect;
    InflateRect(&Label, -2, 0);
    DrawItemText(Dc, At(Index).Text, Label, DT_NOPREFIX | DT_SINGLELINE | DT_VCENTER | DT_EXPANDTABS);
    SetTextColor(Dc, Old);
    if (WithFocus)
        DrawFocusRect(Dc, &Rect);
}
} // namespace

void RegisterSystemListBoxes()
{
    RegisterControl<TListBox>("ListBox");
    RegisterControl<TListBox>("ComboLBox", CS_DBLCLKS | CS_SAVEBITS);
}
