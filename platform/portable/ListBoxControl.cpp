#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

#include "platform/portable/Control.h"

// Lists of texts or of items that the parent draws; also the list of a combo
// box, which is a child of the combo box and reports to it.
namespace {
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
    void Measure(TListItem& Item, int Index);
    int Add(LPARAM Text);
    int Insert(int Index, LPARAM Text);
    LRESULT Delete(int Index);
    int Find(int After, LPARAM Text, bool Exact);
    LRESULT SetCurrent(int Index);
    void Toggle(int Index);
    void Note(int Code);
    void Choose(int Index);
    void Key(WPARAM Key);
    void Click(LPARAM LParam);
    void SetTop(int Index);
    void ScrollTo(int Index);
    void UpdateScrollBar();
    void PaintItem(HDC Dc, int Index);

    std::vector<TListItem> FItems;
    int FCurrent = -1;
    int FTop = 0;
    int FItemHeight = 16;
    int FExtent = 0;
    bool FScrolls = false; // created with a scroll bar, which hides while all items fit
    bool FPressed = false;
};

LRESULT TListBox::Handle(UINT Message, WPARAM WParam, LPARAM LParam)
{
    if (Message >= LB_ADDSTRING && Message <= LB_MSGMAX)
        return HandleItems(Message, WParam, LParam);
    switch (Message) {
    case WM_CREATE:
        Start();
        return 0;
    case WM_GETDLGCODE:
        return DLGC_WANTARROWS | DLGC_WANTCHARS;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        TSystemControl::Handle(Message, WParam, LParam);
        Note(Message == WM_SETFOCUS ? LBN_SETFOCUS : LBN_KILLFOCUS);
        return 0;
    case WM_LBUTTONDOWN:
        Click(LParam);
        return 0;
    case WM_LBUTTONUP:
        if (std::exchange(FPressed, false)) {
            ReleaseCapture();
            Note(LBN_SELCHANGE);
        }
        return 0;
    case WM_LBUTTONDBLCLK:
        Note(LBN_DBLCLK);
        return 0;
    case WM_KEYDOWN:
        Key(WParam);
        return 0;
    case WM_CHAR: {
        const std::string Typed(1, static_cast<char>(WParam));
        const int Found = WParam > ' ' ? Find(FCurrent, reinterpret_cast<LPARAM>(Typed.c_str()), false) : -1;
        if (Found >= 0)
            Choose(Found);
        return 0;
    }
    case WM_SIZE:
        UpdateScrollBar();
        return 0;
    case WM_VSCROLL: {
        const int Page = std::max<int>(1, ClientRect().bottom / std::max(1, FItemHeight));
        switch (LOWORD(WParam)) {
        case SB_LINEUP:
            SetTop(FTop - 1);
            break;
        case SB_LINEDOWN:
            SetTop(FTop + 1);
            break;
        case SB_PAGEUP:
            SetTop(FTop - Page);
            break;
        case SB_PAGEDOWN:
            SetTop(FTop + Page);
            break;
        case SB_THUMBPOSITION:
        case SB_THUMBTRACK:
            SetTop(HIWORD(WParam));
            break;
        default:
            break;
        }
        return 0;
    }
    default:
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
        FItems.clear();
        FCurrent = -1;
        FTop = 0;
        UpdateScrollBar();
        Invalidate();
        return 0;
    case LB_GETCOUNT:
        return Count();
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
        return FCurrent;
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
        return std::max(FCurrent, 0);
    case LB_SETCARETINDEX:
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
        for (int Each = 0; Each < Count(); ++Each)
            if (Item == -1 || Each == Item)
                At(Each).Selected = WParam != 0;
        Invalidate();
        return 0;
    }
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
    FScrolls = (Style() & WS_VSCROLL) != 0;
    UpdateScrollBar();
    if (!OwnerDrawn() || (Style() & LBS_OWNERDRAWVARIABLE))
        return;
    TListItem Item;
    Measure(Item, -1);
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
    SendMessageA(GetParent(Window()), WM_MEASUREITEM, Size.CtlID, reinterpret_cast<LPARAM>(&Size));
    Item.Height = static_cast<int>(Size.itemHeight);
}

int TListBox::Add(LPARAM Text)
{
    int Index = Count();
    if ((Style() & LBS_SORT) && HasStrings() && Text) {
        const std::string New = reinterpret_cast<LPCSTR>(Text);
        Index = 0;
        while (Index < Count() && !SortsBefore(New, At(Index).Text))
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
    UpdateScrollBar();
    Invalidate();
    return Index;
}

LRESULT TListBox::Delete(int Index)
{
    if (!Valid(Index))
        return LB_ERR;
    FItems.erase(FItems.begin() + Index);
    if (FCurrent == Index)
        FCurrent = -1;
    else if (FCurrent > Index)
        --FCurrent;
    UpdateScrollBar();
    Invalidate();
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
        ScrollTo(Index);
    Invalidate();
    return Index < 0 ? LB_ERR : Index;
}

void TListBox::Toggle(int Index)
{
    if (!(Style() & LBS_MULTIPLESEL))
        for (auto& Item : FItems)
            Item.Selected = false;
    At(Index).Selected = !At(Index).Selected;
}

void TListBox::Note(int Code)
{
    if (Style() & LBS_NOTIFY)
        Command(Code);
}

void TListBox::Choose(int Index)
{
    if (Multiple() && !(Style() & LBS_MULTIPLESEL))
        Toggle(Index);
    SetCurrent(Index);
    Note(LBN_SELCHANGE);
}

void TListBox::Key(WPARAM Key)
{
    if (Count() == 0)
        return;
    const int Page = std::max<int>(1, ClientRect().bottom / std::max(1, FItemHeight) - 1);
    int Target = FCurrent;
    switch (Key) {
    case VK_UP:
        --Target;
        break;
    case VK_DOWN:
        ++Target;
        break;
    case VK_HOME:
        Target = 0;
        break;
    case VK_END:
        Target = Count() - 1;
        break;
    case VK_PRIOR:
        Target -= Page;
        break;
    case VK_NEXT:
        Target += Page;
        break;
    case VK_SPACE:
        if ((Style() & LBS_MULTIPLESEL) && Valid(FCurrent)) {
            Toggle(FCurrent);
            Invalidate();
            Note(LBN_SELCHANGE);
        }
        return;
    default:
        return;
    }
    Choose(std::clamp(Target, 0, Count() - 1));
}

void TListBox::Click(LPARAM LParam)
{
    SetFocus(Window());
    if (!Alive())
        return;
    const int Index = IndexAt(PointOf(LParam));
    if (Index < 0)
        return;
    if (Multiple())
        Toggle(Index);
    SetCurrent(Index);
    SetCapture(Window());
    FPressed = true;
}

RECT TListBox::RectOf(int Index)
{
    const RECT Client = ClientRect();
    int Top = 0;
    for (int Each = FTop; Each < Index; ++Each)
        Top += HeightOf(Each);
    for (int Each = Index; Each < FTop; ++Each)
        Top -= HeightOf(Each);
    return {0, Top, Client.right, Top + HeightOf(Index)};
}

int TListBox::IndexAt(POINT Point)
{
    int Top = 0;
    for (int Index = FTop; Index < Count() && Point.y >= 0; ++Index) {
        Top += HeightOf(Index);
        if (Point.y < Top)
            return Index;
    }
    return -1;
}

void TListBox::SetTop(int Index)
{
    FTop = std::clamp(Index, 0, std::max(0, Count() - 1));
    SetScrollPos(Window(), SB_VERT, FTop, FALSE);
    Invalidate();
}

void TListBox::ScrollTo(int Index)
{
    if (Index < FTop)
        SetTop(Index);
    else
        while (FTop < Index && RectOf(Index).bottom > ClientRect().bottom)
            SetTop(FTop + 1);
}

void TListBox::UpdateScrollBar()
{
    const int Page = std::max<int>(1, ClientRect().bottom / std::max(1, FItemHeight));
    if (!FScrolls)
        return;
    SCROLLINFO Info{sizeof(SCROLLINFO),
                    SIF_RANGE | SIF_PAGE | SIF_POS,
                    0,
                    std::max(0, Count() - 1),
                    static_cast<UINT>(Page),
                    FTop,
                    0};
    SetScrollInfo(Window(), SB_VERT, &Info, FALSE);
}

void TListBox::Paint(HDC Dc)
{
    const RECT Client = ClientRect();
    FillRect(Dc, &Client, ParentColors(Dc, WM_CTLCOLORLISTBOX));
    SetBkMode(Dc, TRANSPARENT);
    for (int Index = FTop; Index < Count() && RectOf(Index).top < Client.bottom; ++Index)
        PaintItem(Dc, Index);
}

void TListBox::PaintItem(HDC Dc, int Index)
{
    RECT Rect = RectOf(Index);
    const bool Selected = Multiple() ? At(Index).Selected : FCurrent == Index;
    const bool WithFocus = Focused() && FCurrent == Index;
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
