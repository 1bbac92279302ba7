#include <algorithm>
#include <vector>

#include "platform/portable/Control.h"

namespace {
struct TSection {
    std::string Text;
    int Width = 0;
    int Format = HDF_LEFT;
    int Image = -1;
    LPARAM Data = 0;
};

class THeader final : public TSystemControl {
public:
    using TSystemControl::TSystemControl;
    LRESULT Handle(UINT Message, WPARAM WParam, LPARAM LParam) override;

protected:
    void Paint(HDC Dc) override;

private:
    bool Valid(int Index) const { return Index >= 0 && Index < static_cast<int>(FSections.size()); }
    TSection& At(int Index) { return FSections[static_cast<std::size_t>(Index)]; }
    void Set(TSection& Section, const HDITEMA& Item);
    void Get(const TSection& Section, HDITEMA& Item) const;
    LRESULT Change(int Index, HDITEMA& Item);
    RECT RectOf(int Index);
    int SectionAt(POINT Point);
    LRESULT Tell(UINT Code, int Index, HDITEMA* Item);

    std::vector<TSection> FSections;
    int FPressed = -1;
};

LRESULT THeader::Handle(UINT Message, WPARAM WParam, LPARAM LParam)
{
    const int Index = static_cast<int>(WParam);
    switch (Message) {
    case HDM_GETITEMCOUNT:
        return static_cast<LRESULT>(FSections.size());
    case HDM_INSERTITEMA: {
        const int Place = std::clamp(Index, 0, static_cast<int>(FSections.size()));
        Set(*FSections.insert(FSections.begin() + Place, TSection{}), Structure<HDITEMA>(LParam));
        Invalidate();
        return Place;
    }
    case HDM_DELETEITEM:
        if (!Valid(Index))
            return FALSE;
        FSections.erase(FSections.begin() + Index);
        Invalidate();
        return TRUE;
    case HDM_SETITEMA:
        return Valid(Index) ? Change(Index, Structure<HDITEMA>(LParam)) : FALSE;
    case HDM_GETITEMA:
        if (!Valid(Index))
            return FALSE;
        Get(At(Index), Structure<HDITEMA>(LParam));
        return TRUE;
    case HDM_GETITEMRECT:
        if (!Valid(Index))
            return FALSE;
        Structure<RECT>(LParam) = RectOf(Index);
        return TRUE;
    case HDM_LAYOUT: {
        const auto& Layout = Structure<HDLAYOUT>(LParam);
        const int Height = LineHeight() + 6;
        *Layout.pwpos = {
            Window(), nullptr, Layout.prc->left, Layout.prc->top, Layout.prc->right - Layout.prc->left,
            Height,   0};
        Layout.prc->top += Height;
        return TRUE;
    }
    case WM_LBUTTONDOWN:
        FPressed = Style() & HDS_BUTTONS ? SectionAt(PointOf(LParam)) : -1;
        Invalidate();
        return 0;
    case WM_LBUTTONUP: {
        const int Pressed = FPressed;
        FPressed = -1;
        Invalidate();
        if (Valid(Pressed) && SectionAt(PointOf(LParam)) == Pressed)
            Tell(static_cast<UINT>(HDN_ITEMCLICKA), Pressed, nullptr);
        return 0;
    }
    default:
        return TSystemControl::Handle(Message, WParam, LParam);
    }
}

void THeader::Set(TSection& Section, const HDITEMA& Item)
{
    if (Item.mask & HDI_TEXT)
        Section.Text = Item.pszText ? Item.pszText : "";
    if (Item.mask & HDI_WIDTH)
        Section.Width = Item.cxy;
    if (Item.mask & HDI_FORMAT)
        Section.Format = Item.fmt;
    if (Item.mask & HDI_LPARAM)
        Section.Data = Item.lParam;
    if (Item.mask & HDI_IMAGE)
        Section.Image = Item.iImage;
}

void THeader::Get(const TSection& Section, HDITEMA& Item) const
{
    if ((Item.mask & HDI_TEXT) && Item.pszText)
        CopyText(Section.Text, Item.pszText, Item.cchTextMax);
    if (Item.mask & HDI_WIDTH)
        Item.cxy = Section.Width;
    if (Item.mask & HDI_FORMAT)
        Item.fmt = Section.Format;
    if (Item.mask & HDI_LPARAM)
        Item.lParam = Section.Data;
    if (Item.mask & HDI_IMAGE)
        Item.iImage = Section.Image;
}

LRESULT THeader::Tell(UINT Code, int Index, HDITEMA* Item)
{
    NMHEADERA Header{};
    Header.iItem = Index;
    Header.pitem = Item;
    return NotifyWith(Header.hdr, Code);
}

LRESULT THeader::Change(int Index, HDITEMA& Item)
{
    if (Tell(static_cast<UINT>(HDN_ITEMCHANGINGA), Index, &Item) || !Alive() || !Valid(Index))
        return FALSE;
    Set(At(Index), Item);
    Invalidate();
    Tell(static_cast<UINT>(HDN_ITEMCHANGEDA), Index, &Item);
    return TRUE;
}

RECT THeader::RectOf(int Index)
{
    int Left = 0;
    for (int Each = 0; Each < Index; ++Each)
        Left += At(Each).Width;
    return {Left, 0, Left + At(Index).Width, ClientRect().bottom};
}

int THeader::SectionAt(POINT Point)
{
    for (int Index = 0; Valid(Index); ++Index)
        if (const RECT Rect = RectOf(Index); PtInRect(&Rect, Point))
            return Index;
    return -1;
}

void THeader::Paint(HDC Dc)
{
    RECT Rect = ClientRect();
    DrawFrameControl(Dc, &Rect, DFC_BUTTON, DFCS_BUTTONPUSH);
    SetTextColor(Dc, GetSysColor(COLOR_BTNTEXT));
    for (int Index = 0; Valid(Index); ++Index) {
        Rect = RectOf(Index);
        DrawFrameControl(Dc, &Rect, DFC_BUTTON, DFCS_BUTTONPUSH | (Index == FPressed ? DFCS_PUSHED : 0u));
        InflateRect(&Rect, -6, 0);
        const int Justify = At(Index).Format & HDF_JUSTIFYMASK;
        const UINT Align = Justify == HDF_CENTER ? DT_CENTER : Justify == HDF_RIGHT ? DT_RIGHT : DT_LEFT;
        DrawItemText(Dc, At(Index).Text, Rect,
                     Align | DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    }
}
} // namespace

void RegisterSystemHeaders()
{
    RegisterControl<THeader>(WC_HEADERA);
}
