#include <algorithm>
#include <utility>
#include <vector>

#include "platform/portable/Control.h"

namespace {
constexpr int Raise = 2; // how far the current tab stands out
constexpr int Padding = 6;
constexpr int LeastWidth = 54;

struct TTab {
    std::string Text;
    LPARAM Data = 0;
    int Image = -1;
    DWORD State = 0;
};

class TTabs final : public TSystemControl {
public:
    using TSystemControl::TSystemControl;
    LRESULT Handle(UINT Message, WPARAM WParam, LPARAM LParam) override;

protected:
    void Paint(HDC Dc) override;

private:
    int Count() const { return static_cast<int>(FTabs.size()); }
    bool Valid(int Index) const { return Index >= 0 && Index < Count(); }
    TTab& At(int Index) { return FTabs[static_cast<std::size_t>(Index)]; }
    LRESULT HandleTabs(UINT Message, WPARAM WParam, LPARAM LParam);
    LRESULT HandleLayout(UINT Message, WPARAM WParam, LPARAM LParam);
    LRESULT Insert(int Index, const TCITEMA& Item);
    void Set(TTab& Tab, const TCITEMA& Item);
    void Get(const TTab& Tab, TCITEMA& Item) const;
    void Delete(int Index);
    void Choose(int Index);
    int TabHeight() const { return FHeight ? FHeight : LineHeight() + 2 * FPadY - 1; }
    int TabWidth(int Index);
    bool Bottom() const { return (Style() & TCS_BOTTOM) != 0; }
    bool Buttons() const { return (Style() & TCS_BUTTONS) != 0; }
    RECT RectOf(int Index);
    int TabAt(POINT Point);
    RECT DisplayArea(RECT Rect) const;
    void PaintTab(HDC Dc, int Index);

    std::vector<TTab> FTabs;
    HIMAGELIST FImages = nullptr;
    int FCurrent = -1;
    int FWidth = 0;
    int FHeight = 0;
    int FPadX = Padding;
    int FPadY = 3;
    int FLeastWidth = -1;
};

LRESULT TTabs::Handle(UINT Message, WPARAM WParam, LPARAM LParam)
{
    if (Message >= TCM_FIRST && Message < TCM_FIRST + 0x100)
        return HandleTabs(Message, WParam, LParam);
    switch (Message) {
    case WM_GETDLGCODE:
        return DLGC_WANTARROWS | DLGC_WANTCHARS;
    case WM_LBUTTONDOWN: {
        const int Index = TabAt(PointOf(LParam));
        if (Valid(Index))
            Choose(Index);
        return 0;
    }
    case WM_LBUTTONUP:
        Notify(NM_CLICK);
        return 0;
    case WM_KEYDOWN: {
        struct {
            NMHDR hdr;
            WORD Key;
            UINT Flags;
        } Pressed{{}, static_cast<WORD>(WParam), 0};
        NotifyWith(Pressed.hdr, static_cast<UINT>(TCN_KEYDOWN));
        const int Step = WParam == VK_RIGHT ? 1 : WParam == VK_LEFT ? -1 : 0;
        if (Alive() && Step && Valid(FCurrent + Step))
            Choose(FCurrent + Step);
        return 0;
    }
    default:
        return TSystemControl::Handle(Message, WParam, LParam);
    }
}

LRESULT TTabs::HandleTabs(UINT Message, WPARAM WParam, LPARAM LParam)
{
    const int Index = static_cast<int>(WParam);
    switch (Message) {
    case TCM_INSERTITEMA:
        return Insert(Index, Structure<TCITEMA>(LParam));
    case TCM_SETITEMA:
        if (!Valid(Index))
            return FALSE;
        Set(At(Index), Structure<TCITEMA>(LParam));
        Invalidate();
        return TRUE;
    case TCM_GETITEMA:
        if (!Valid(Index))
            return FALSE;
        Get(At(Index), Structure<TCITEMA>(LParam));
        return TRUE;
    case TCM_DELETEITEM:
        if (!Valid(Index))
            return FALSE;
        Delete(Index);
        return TRUE;
    case TCM_DELETEALLITEMS:
        FTabs.clear();
        FCurrent = -1;
        Invalidate();
        return TRUE;
    case TCM_GETITEMCOUNT:
        return Count();
    case TCM_GETCURSEL:
    case TCM_GETCURFOCUS:
        return FCurrent;
    case TCM_SETCURSEL:
        if (!Valid(Index) && Index != -1)
            return -1;
        Invalidate();
        return std::exchange(FCurrent, Index);
    case TCM_SETCURFOCUS:
        if (Valid(Index) && Index != FCurrent)
            Choose(Index);
        return 0;
    case TCM_SETIMAGELIST:
        Invalidate();
        return reinterpret_cast<LRESULT>(std::exchange(FImages, reinterpret_cast<HIMAGELIST>(LParam)));
    case TCM_GETIMAGELIST:
        return reinterpret_cast<LRESULT>(FImages);
    default:
        return HandleLayout(Message, WParam, LParam);
    }
}

LRESULT TTabs::HandleLayout(UINT Message, WPARAM WParam, LPARAM LParam)
{
    switch (Message) {
    case TCM_GETITEMRECT:
        if (!Valid(static_cast<int>(WParam)))
            return FALSE;
        Structure<RECT>(LParam) = RectOf(static_cast<int>(WParam));
        return TRUE;
    case TCM_HITTEST: {
        auto& Info = Structure<TCHITTESTINFO>(LParam);
        const int Found = TabAt(Info.pt);
        Info.flags = Found < 0 ? TCHT_NOWHERE : TCHT_ONITEM;
        return Found;
    }
    case TCM_ADJUSTRECT: {
        auto& Rect = Structure<RECT>(LParam);
        const RECT Base = DisplayArea({0, 0, 0, 0});
        const int Sign = WParam ? -1 : 1;
        Rect = {Rect.left + Sign * Base.left, Rect.top + Sign * Base.top, Rect.right + Sign * Base.right,
                Rect.bottom + Sign * Base.bottom};
        return 0;
    }
    case TCM_SETITEMSIZE: {
        const auto Old = MAKELONG(FWidth, FHeight);
        FWidth = LOWORD(LParam);
        FHeight = HIWORD(LParam);
        Invalidate();
        return Old;
    }
    case TCM_SETPADDING:
        FPadX = LOWORD(LParam);
        FPadY = HIWORD(LParam);
        Invalidate();
        return 0;
    case TCM_SETMINTABWIDTH:
        return std::exchange(FLeastWidth, static_cast<int>(LParam));
    case TCM_GETROWCOUNT:
        return Count() ? 1 : 0;
    case TCM_GETEXTENDEDSTYLE:
    case TCM_SETEXTENDEDSTYLE:
    case TCM_GETTOOLTIPS:
    case TCM_SETTOOLTIPS:
        return 0;
    default:
        return Default(Message, WParam, LParam);
    }
}

LRESULT TTabs::Insert(int Index, const TCITEMA& Item)
{
    Index = std::clamp(Index, 0, Count());
    const auto Place = FTabs.insert(FTabs.begin() + Index, TTab{});
    Set(*Place, Item);
    if (FCurrent < 0)
        FCurrent = Index;
    else if (Index <= FCurrent)
        ++FCurrent;
    Invalidate();
    return Index;
}

void TTabs::Set(TTab& Tab, const TCITEMA& Item)
{
    if (Item.mask & TCIF_TEXT)
        Tab.Text = Item.pszText ? Item.pszText : "";
    if (Item.mask & TCIF_IMAGE)
        Tab.Image = Item.iImage;
    if (Item.mask & TCIF_PARAM)
        Tab.Data = Item.lParam;
    if (Item.mask & TCIF_STATE)
        Tab.State = (Tab.State & ~Item.dwStateMask) | (Item.dwState & Item.dwStateMask);
}

void TTabs::Get(const TTab& Tab, TCITEMA& Item) const
{
    if ((Item.mask & TCIF_TEXT) && Item.pszText)
        CopyText(Tab.Text, Item.pszText, Item.cchTextMax);
    if (Item.mask & TCIF_IMAGE)
        Item.iImage = Tab.Image;
    if (Item.mask & TCIF_PARAM)
        Item.lParam = Tab.Data;
    if (Item.mask & TCIF_STATE)
        Item.dwState = Tab.State & Item.dwStateMask;
}

void TTabs::Delete(int Index)
{
    FTabs.erase(FTabs.begin() + Index);
    if (Index == FCurrent)
        FCurrent = -1;
    else if (Index < FCurrent)
        --FCurrent;
    Invalidate();
}

// A parent that answers TCN_SELCHANGING with TRUE keeps the tab.
void TTabs::Choose(int Index)
{
    if (Index == FCurrent)
        return;
    if (Notify(static_cast<UINT>(TCN_SELCHANGING)) || !Alive() || !Valid(Index))
        return;
    FCurrent = Index;
    Invalidate();
    Notify(static_cast<UINT>(TCN_SELCHANGE));
}

int TTabs::TabWidth(int Index)
{
    if (FWidth && (Style() & TCS_FIXEDWIDTH))
        return FWidth;
    int Width = MnemonicWidthOf(At(Index).Text) + 2 * FPadX;
    if (FImages && At(Index).Image >= 0)
        Width += 20;
    return std::max(Width, FLeastWidth >= 0 ? FLeastWidth : LeastWidth);
}

RECT TTabs::RectOf(int Index)
{
    const RECT Client = ClientRect();
    int Left = Buttons() ? 0 : Raise;
    for (int Each = 0; Each < Index; ++Each)
        Left += TabWidth(Each) + (Buttons() ? 3 : 0);
    const int Top = Bottom() ? Client.bottom - TabHeight() - Raise : Buttons() ? 0 : Raise;
    RECT Rect = {Left, Top, Left + TabWidth(Index), Top + TabHeight()};
    if (ExStyle() & WS_EX_LAYOUTRTL)
        Rect = {Client.right - Rect.right, Rect.top, Client.right - Rect.left, Rect.bottom};
    return Rect;
}

int TTabs::TabAt(POINT Point)
{
    for (int Index = 0; Index < Count(); ++Index)
        if (const RECT Rect = RectOf(Index); PtInRect(&Rect, Point))
            return Index;
    return -1;
}

RECT TTabs::DisplayArea(RECT Rect) const
{
    const int Tabs = TabHeight() + 4;
    Rect.left += 4;
    Rect.right -= 4;
    Rect.top += Bottom() ? 4 : Tabs;
    Rect.bottom -= Bottom() ? Tabs : 4;
    return Rect;
}

void TTabs::Paint(HDC Dc)
{
    const RECT Client = ClientRect();
    FillRect(Dc, &Client, GetSysColorBrush(COLOR_BTNFACE));
    SetTextColor(Dc, GetSysColor(Enabled() ? COLOR_BTNTEXT : COLOR_GRAYTEXT));
    if (!Buttons()) {
        RECT Page = Client;
        if (Bottom())
            Page.bottom -= TabHeight() + Raise - 1;
        else
            Page.top += TabHeight() + Raise - 1;
        DrawEdge(Dc, &Page, EDGE_RAISED, BF_RECT | BF_SOFT);
    }
    for (int Index = 0; Index < Count(); ++Index)
        if (Index != FCurrent)
            PaintTab(Dc, Index);
    if (Valid(FCurrent))
        PaintTab(Dc, FCurrent);
}

void TTabs::PaintTab(HDC Dc, int Index)
{
    RECT Rect = RectOf(Index);
    const bool Current = Index == FCurrent;
    if (Current && !Buttons())
        InflateRect(&Rect, Raise, Raise);
    RECT Label = Rect;
    if (Buttons()) {
        DrawFrameControl(Dc, &Rect, DFC_BUTTON, DFCS_BUTTONPUSH | (Current ? DFCS_PUSHED : 0u));
    } else {
        if (!Current && Bottom())
            ++Rect.top;
        else if (Current)
            Bottom() ? Rect.bottom -= 1 : Rect.bottom -= Raise;
        RECT Inside = {Rect.left + 1, Rect.top + 1, Rect.right - 1,
                       Bottom() ? Rect.bottom - 1 : Rect.bottom + (Current ? 1 : 0)};
        if (Bottom() && Current)
            Inside.top -= 1;
        FillRect(Dc, &Inside, GetSysColorBrush(COLOR_BTNFACE));
        DrawEdge(Dc, &Rect, EDGE_RAISED, BF_LEFT | BF_RIGHT | BF_SOFT | (Bottom() ? BF_BOTTOM : BF_TOP));
    }
    if (FImages && At(Index).Image >= 0) {
        ImageList_Draw(FImages, At(Index).Image, Dc, Label.left + FPadX, Label.top + 3, ILD_TRANSPARENT);
        Label.left += 20;
    }
    DrawItemText(Dc, At(Index).Text, Label, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    if (Current && Focused()) {
        InflateRect(&Label, -3, -3);
        DrawFocusRect(Dc, &Label);
    }
}
} // namespace

void RegisterSystemTabs()
{
    RegisterControl<TTabs>(WC_TABCONTROLA, CS_DBLCLKS | CS_PARENTDC);
}
