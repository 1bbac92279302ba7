#include <algorithm>
#include <cstring>
#include <vector>

#include "platform/portable/Control.h"

namespace {
constexpr int Gap = 2;

struct TPart {
    std::string Text;
    int Right = -1; // -1: to the end
    UINT Type = 0;
    LPARAM Data = 0; // of a part that the parent draws
    std::string Tip;
};

class TStatusBar final : public TSystemControl {
public:
    explicit TStatusBar(HWND Handle) : TSystemControl(Handle), FParts(1) {}
    LRESULT Handle(UINT Message, WPARAM WParam, LPARAM LParam) override;

protected:
    void Paint(HDC Dc) override;
    void FontChanged() override { Place(); }

private:
    TPart* PartAt(WPARAM Index) { return Index < FParts.size() ? &FParts[Index] : nullptr; }
    RECT RectOf(std::size_t Index) const;
    void Place();
    LRESULT SetParts(int Count, const int* Rights);
    LRESULT SetText(WPARAM Where, LPARAM Text);
    void PaintPart(HDC Dc, const TPart& Part, std::size_t Index, RECT Rect);

    std::vector<TPart> FParts;
    TPart FSimple;
    bool FIsSimple = false;
    int FMinimum = 0;
};

LRESULT TStatusBar::Handle(UINT Message, WPARAM WParam, LPARAM LParam)
{
    switch (Message) {
    case WM_CREATE:
        FParts[0].Text = Text();
        Place();
        return 0;
    case WM_SIZE:
        Place();
        return 0;
    case WM_ERASEBKGND:
        return TRUE;
    case WM_SETTEXT:
        FParts[0].Text = LParam ? reinterpret_cast<LPCSTR>(LParam) : "";
        return TSystemControl::Handle(Message, WParam, LParam);
    case WM_GETTEXT:
        return CopyText(FParts[0].Text, reinterpret_cast<LPSTR>(LParam), static_cast<int>(WParam));
    case WM_GETTEXTLENGTH:
        return static_cast<LRESULT>(FParts[0].Text.size());
    case SB_SETPARTS:
        return SetParts(static_cast<int>(WParam), reinterpret_cast<const int*>(LParam));
    case SB_GETPARTS:
        for (std::size_t Index = 0; LParam && Index < std::min<std::size_t>(WParam, FParts.size()); ++Index)
            reinterpret_cast<int*>(LParam)[Index] = FParts[Index].Right;
        return static_cast<LRESULT>(FParts.size());
    case SB_SETTEXTA:
        return SetText(WParam, LParam);
    case SB_GETTEXTA:
    case SB_GETTEXTLENGTHA: {
        const TPart* const Part = FIsSimple ? &FSimple : PartAt(LOWORD(WParam));
        if (!Part)
            return 0;
        // Lengths count UTF-16 units, the text itself is copied as bytes.
        const auto Units = Message == SB_GETTEXTA ? Part->Text.size() : Widen(Part->Text).size();
        if (Message == SB_GETTEXTA && LParam)
            std::memcpy(reinterpret_cast<LPSTR>(LParam), Part->Text.c_str(), Part->Text.size() + 1);
        return static_cast<LRESULT>(static_cast<DWORD>(MAKELONG(Units, Part->Type)));
    }
    case SB_GETRECT:
        if (!PartAt(WParam))
            return FALSE;
        Structure<RECT>(LParam) = RectOf(WParam);
        return TRUE;
    case SB_GETBORDERS:
        std::fill_n(reinterpret_cast<int*>(LParam), 3, 0);
        reinterpret_cast<int*>(LParam)[1] = reinterpret_cast<int*>(LParam)[2] = Gap;
        return TRUE;
    case SB_SIMPLE:
        FIsSimple = WParam != 0;
        Invalidate();
        return TRUE;
    case SB_ISSIMPLE:
        return FIsSimple;
    case SB_SETMINHEIGHT:
        FMinimum = static_cast<int>(WParam);
        Place();
        return TRUE;
    case SB_SETTIPTEXTA:
        if (TPart* const Part = PartAt(WParam))
            Part->Tip = LParam ? reinterpret_cast<LPCSTR>(LParam) : "";
        return TRUE;
    case SB_GETTIPTEXTA:
        if (const TPart* const Part = PartAt(LOWORD(WParam)))
            CopyText(Part->Tip, reinterpret_cast<LPSTR>(LParam), HIWORD(WParam));
        return TRUE;
    case WM_LBUTTONUP:
        Notify(NM_CLICK);
        return 0;
    default:
        return TSystemControl::Handle(Message, WParam, LParam);
    }
}

// The bar keeps to the lower edge of its parent by itself.
void TStatusBar::Place()
{
    if (Style() & (CCS_NORESIZE | CCS_NOPARENTALIGN))
        return;
    RECT Parent{};
    GetClientRect(GetParent(Window()), &Parent);
    const int Height = std::max(FMinimum, LineHeight() + 4);
    const RECT Now = ClientRect();
    const int Top = (Style() & 3) == CCS_TOP ? 0 : Parent.bottom - Height;
    const TWindow* const Known = WindowOf(Window());
    if (Now.right == Parent.right && Now.bottom == Height && Known && Known->Rect.top == Top)
        return;
    SetWindowPos(Window(), nullptr, 0, Top, Parent.right, Height, SWP_NOZORDER | SWP_NOACTIVATE);
}

RECT TStatusBar::RectOf(std::size_t Index) const
{
    const RECT Client = ClientRect();
    const int Left = Index == 0 ? 0 : FParts[Index - 1].Right + Gap;
    const int Right = FParts[Index].Right < 0 ? Client.right : std::min(FParts[Index].Right, Client.right);
    return {Left, Gap, Right, Client.bottom};
}

LRESULT TStatusBar::SetParts(int Count, const int* Rights)
{
    if (Count < 1 || Count > 256 || !Rights)
        return FALSE;
    FParts.resize(static_cast<std::size_t>(Count));
    for (std::size_t Index = 0; Index < FParts.size(); ++Index)
        FParts[Index].Right = Rights[Index];
    Invalidate();
    return TRUE;
}

LRESULT TStatusBar::SetText(WPARAM Where, LPARAM Text)
{
    const WPARAM Index = Where & 0xFF;
    TPart* const Part = Index == SB_SIMPLEID ? &FSimple : PartAt(Index);
    if (!Part)
        return FALSE;
    Part->Type = static_cast<UINT>(Where & 0xFF00);
    if (Part->Type & SBT_OWNERDRAW)
        Part->Data = Text;
    else
        Part->Text = Text ? reinterpret_cast<LPCSTR>(Text) : "";
    Invalidate();
    return TRUE;
}

void TStatusBar::Paint(HDC Dc)
{
    RECT Rect = ClientRect();
    FillRect(Dc, &Rect, GetSysColorBrush(COLOR_BTNFACE));
    SetTextColor(Dc, GetSysColor(COLOR_BTNTEXT));
    if (FIsSimple) {
        PaintPart(Dc, FSimple, SB_SIMPLEID, {0, Gap, Rect.right, Rect.bottom});
    } else {
        for (std::size_t Index = 0; Index < FParts.size(); ++Index)
            PaintPart(Dc, FParts[Index], Index, RectOf(Index));
    }
    if (Style() & SBARS_SIZEGRIP)
        DrawFrameControl(Dc, &Rect, DFC_SCROLL, DFCS_SCROLLSIZEGRIP);
}

void TStatusBar::PaintPart(HDC Dc, const TPart& Part, std::size_t Index, RECT Rect)
{
    if (Rect.right <= Rect.left)
        return;
    if (!(Part.Type & SBT_NOBORDERS))
        DrawEdge(Dc, &Rect, Part.Type & SBT_POPOUT ? BDR_RAISEDINNER : BDR_SUNKENOUTER, BF_RECT | BF_ADJUST);
    if (Part.Type & SBT_OWNERDRAW) {
        DRAWITEMSTRUCT Item{};
        Item.CtlID = static_cast<UINT>(Id());
        Item.itemID = static_cast<UINT>(Index);
        Item.hwndItem = Window();
        Item.hDC = Dc;
        Item.rcItem = Rect;
        Item.itemData = static_cast<ULONG_PTR>(Part.Data);
        SendMessageA(GetParent(Window()), WM_DRAWITEM, Item.CtlID, reinterpret_cast<LPARAM>(&Item));
        return;
    }
    InflateRect(&Rect, -2, 0);
    // One leading tab centers the text, two push it to the right.
    const std::size_t Tabs = std::min<std::size_t>(Part.Text.find_first_not_of('\t'), 2);
    const UINT Align = Part.Text.empty() || Tabs == 0 ? DT_LEFT : Tabs == 1 ? DT_CENTER : DT_RIGHT;
    const std::string Shown = Part.Text.substr(std::min(Tabs, Part.Text.size()));
    const UINT Reading = Part.Type & SBT_RTLREADING ? DT_RTLREADING : 0u;
    DrawItemText(Dc, Shown, Rect, Align | Reading | DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
}
} // namespace

void RegisterSystemStatusBars()
{
    RegisterControl<TStatusBar>(STATUSCLASSNAMEA);
}
