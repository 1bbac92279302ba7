#include <algorithm>
#include <utility>
#include <vector>

#include "platform/portable/Control.h"

namespace {
constexpr int SeparatorWidth = 8;

struct TToolButton {
    TBBUTTON Data{};
    std::string Text;
    int Width = 0; // 0: from the text
};

class TToolBar final : public TSystemControl {
public:
    using TSystemControl::TSystemControl;
    LRESULT Handle(UINT Message, WPARAM WParam, LPARAM LParam) override;

protected:
    void Paint(HDC Dc) override;

private:
    bool Valid(int Index) const { return Index >= 0 && Index < static_cast<int>(FButtons.size()); }
    TToolButton& At(int Index) { return FButtons[static_cast<std::size_t>(Index)]; }
    int IndexOf(WPARAM Command) const;
    LRESULT HandleState(UINT Message, WPARAM WParam, LPARAM LParam);
    LRESULT HandleLayout(UINT Message, WPARAM WParam, LPARAM LParam);
    LRESULT Insert(int Index, int Count, const TBBUTTON* Buttons);
    LRESULT AddStrings(const char* Texts);
    LRESULT GetInfo(TBBUTTONINFOA& Info, int Index);
    LRESULT SetInfo(const TBBUTTONINFOA& Info, int Index);
    void SetState(int Index, BYTE Bit, bool On);
    void UncheckGroup(int Index);
    void Click(int Index);
    bool IsSeparator(const TToolButton& Button) const { return (Button.Data.fsStyle & BTNS_SEP) != 0; }
    bool ListStyle() const { return (Style() & TBSTYLE_LIST) != 0; }
    int ButtonHeight() const;
    int WidthOfButton(const TToolButton& Button) const;
    RECT RectOf(int Index);
    int ButtonAt(POINT Point);
    void PaintButton(HDC Dc, int Index);

    std::vector<TToolButton> FButtons;
    std::vector<std::string> FStrings;
    HIMAGELIST FImages = nullptr;
    SIZE FBitmap = {16, 15};
    SIZE FSize{}; // least size of a button; 0: 24 by 22
    int FPressed = -1;
    int FIndent = 0;
    DWORD FExtended = 0;
};

LRESULT TToolBar::Handle(UINT Message, WPARAM WParam, LPARAM LParam)
{
    if (Message >= TB_ENABLEBUTTON && Message <= WM_USER + 0x80)
        return HandleState(Message, WParam, LParam);
    switch (Message) {
    case WM_ERASEBKGND:
        return TRUE;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK: {
        const int Index = ButtonAt(PointOf(LParam));
        if (Valid(Index) && (At(Index).Data.fsState & TBSTATE_ENABLED) && !IsSeparator(At(Index))) {
            FPressed = Index;
            SetCapture(Window());
            Invalidate();
        }
        return 0;
    }
    case WM_LBUTTONUP: {
        const int Index = std::exchange(FPressed, -1);
        if (Index < 0)
            return 0;
        ReleaseCapture();
        Invalidate();
        if (Alive() && ButtonAt(PointOf(LParam)) == Index)
            Click(Index);
        return 0;
    }
    default:
        return TSystemControl::Handle(Message, WParam, LParam);
    }
}

LRESULT TToolBar::HandleState(UINT Message, WPARAM WParam, LPARAM LParam)
{
    static constexpr struct {
        UINT Set, Ask;
        BYTE Bit;
    } Bits[] = {
        {TB_ENABLEBUTTON, TB_ISBUTTONENABLED, TBSTATE_ENABLED},
        {TB_CHECKBUTTON, TB_ISBUTTONCHECKED, TBSTATE_CHECKED},
        {TB_PRESSBUTTON, TB_ISBUTTONPRESSED, TBSTATE_PRESSED},
        {TB_HIDEBUTTON, TB_ISBUTTONHIDDEN, TBSTATE_HIDDEN},
        {TB_INDETERMINATE, TB_ISBUTTONINDETERMINATE, TBSTATE_INDETERMINATE},
        {TB_MARKBUTTON, TB_ISBUTTONHIGHLIGHTED, TBSTATE_MARKED},
    };
    const int Index = IndexOf(WParam);
    for (const auto& Row : Bits) {
        if (Message == Row.Ask)
            return Valid(Index) ? (At(Index).Data.fsState & Row.Bit) != 0 : -1;
        if (Message == Row.Set) {
            if (!Valid(Index))
                return FALSE;
            SetState(Index, Row.Bit, LOWORD(LParam) != 0);
            return TRUE;
        }
    }
    switch (Message) {
    case TB_GETSTATE:
        return Valid(Index) ? At(Index).Data.fsState : -1;
    case TB_SETSTATE:
        if (!Valid(Index))
            return FALSE;
        At(Index).Data.fsState = static_cast<BYTE>(LOWORD(LParam));
        Invalidate();
        return TRUE;
    case TB_COMMANDTOINDEX:
        return Index;
    case TB_GETBUTTONTEXTA:
        if (!Valid(Index))
            return -1;
        if (LParam)
            CopyText(At(Index).Text, reinterpret_cast<LPSTR>(LParam),
                     static_cast<int>(At(Index).Text.size()) + 1);
        return static_cast<LRESULT>(At(Index).Text.size());
    case TB_GETBUTTONINFOA: {
        auto& Info = Structure<TBBUTTONINFOA>(LParam);
        return GetInfo(Info, Info.dwMask & TBIF_BYINDEX ? static_cast<int>(WParam) : Index);
    }
    case TB_SETBUTTONINFOA: {
        const auto& Info = Structure<TBBUTTONINFOA>(LParam);
        return SetInfo(Info, Info.dwMask & TBIF_BYINDEX ? static_cast<int>(WParam) : Index);
    }
    case TB_CHANGEBITMAP:
        if (Valid(Index))
            At(Index).Data.iBitmap = LOWORD(LParam);
        Invalidate();
        return Valid(Index);
    case TB_SETCMDID:
        if (!Valid(static_cast<int>(WParam)))
            return FALSE;
        At(static_cast<int>(WParam)).Data.idCommand = static_cast<int>(LParam);
        return TRUE;
    default:
        return HandleLayout(Message, WParam, LParam);
    }
}

LRESULT TToolBar::HandleLayout(UINT Message, WPARAM WParam, LPARAM LParam)
{
    const int Index = static_cast<int>(WParam);
    switch (Message) {
    case TB_BUTTONSTRUCTSIZE:
        return 0;
    case TB_ADDBUTTONSA:
        return Insert(static_cast<int>(FButtons.size()), Index, reinterpret_cast<const TBBUTTON*>(LParam));
    case TB_INSERTBUTTONA:
        return Insert(std::clamp(Index, 0, static_cast<int>(FButtons.size())), 1,
                      reinterpret_cast<const TBBUTTON*>(LParam));
    case TB_DELETEBUTTON:
        if (!Valid(Index))
            return FALSE;
        FButtons.erase(FButtons.begin() + Index);
        Invalidate();
        return TRUE;
    case TB_GETBUTTON:
        if (!Valid(Index))
            return FALSE;
        Structure<TBBUTTON>(LParam) = At(Index).Data;
        return TRUE;
    case TB_BUTTONCOUNT:
        return static_cast<LRESULT>(FButtons.size());
    case TB_ADDSTRINGA:
        return AddStrings(reinterpret_cast<const char*>(LParam));
    case TB_GETITEMRECT:
    case TB_GETRECT: {
        const int Item = Message == TB_GETRECT ? IndexOf(WParam) : Index;
        if (!Valid(Item) || (At(Item).Data.fsState & TBSTATE_HIDDEN))
            return FALSE;
        Structure<RECT>(LParam) = RectOf(Item);
        return TRUE;
    }
    case TB_SETBUTTONSIZE:
        FSize = {LOWORD(LParam), HIWORD(LParam)};
        Invalidate();
        return TRUE;
    case TB_GETBUTTONSIZE: {
        int Widest = FSize.cx ? FSize.cx : 24;
        for (const auto& Button : FButtons)
            if (!IsSeparator(Button))
                Widest = std::max(Widest, WidthOfButton(Button));
        return MAKELONG(Widest, ButtonHeight());
    }
    case TB_SETBITMAPSIZE:
        FBitmap = {LOWORD(LParam), HIWORD(LParam)};
        return TRUE;
    case TB_SETIMAGELIST:
        Invalidate();
        return reinterpret_cast<LRESULT>(std::exchange(FImages, reinterpret_cast<HIMAGELIST>(LParam)));
    case TB_GETIMAGELIST:
        return reinterpret_cast<LRESULT>(FImages);
    case TB_SETINDENT:
        FIndent = Index;
        Invalidate();
        return TRUE;
    case TB_AUTOSIZE: {
        if (Style() & CCS_NORESIZE)
            return 0;
        RECT Parent{};
        GetClientRect(GetParent(Window()), &Parent);
        SetWindowPos(Window(), nullptr, 0, 0, Parent.right, ButtonHeight() + 6,
                     SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOMOVE);
        return 0;
    }
    case TB_SETEXTENDEDSTYLE:
        return static_cast<LRESULT>(std::exchange(FExtended, static_cast<DWORD>(LParam)));
    case TB_GETEXTENDEDSTYLE:
        return FExtended;
    case TB_SETSTYLE:
        SetWindowLongA(Window(), GWL_STYLE, static_cast<LONG>(LParam));
        return 0;
    case TB_GETSTYLE:
        return Style();
    case TB_GETROWS:
        return 1;
    case TB_HITTEST:
        return ButtonAt(Structure<POINT>(LParam));
    case TB_SETMAXTEXTROWS:
        return TRUE;
    default:
        return Default(Message, WParam, LParam);
    }
}

int TToolBar::IndexOf(WPARAM Command) const
{
    for (std::size_t Index = 0; Index < FButtons.size(); ++Index)
        if (FButtons[Index].Data.idCommand == static_cast<int>(Command))
            return static_cast<int>(Index);
    return -1;
}

LRESULT TToolBar::Insert(int Index, int Count, const TBBUTTON* Buttons)
{
    for (int Each = 0; Each < Count; ++Each) {
        TToolButton Button;
        Button.Data = Buttons[Each];
        const auto String = Buttons[Each].iString;
        if (String >= 0 && String < 0x10000)
            Button.Text = String < static_cast<INT_PTR>(FStrings.size())
                              ? FStrings[static_cast<std::size_t>(String)]
                              : "";
        else if (String != -1)
            Button.Text = reinterpret_cast<LPCSTR>(String);
        FButtons.insert(FButtons.begin() + Index + Each, std::move(Button));
    }
    Invalidate();
    return TRUE;
}

// Each text ends with a zero, the last one with two.
LRESULT TToolBar::AddStrings(const char* Texts)
{
    const auto First = FStrings.size();
    while (Texts && *Texts) {
        FStrings.emplace_back(Texts);
        Texts += FStrings.back().size() + 1;
    }
    return static_cast<LRESULT>(First);
}

LRESULT TToolBar::GetInfo(TBBUTTONINFOA& Info, int Index)
{
    if (!Valid(Index))
        return -1;
    const auto& Button = At(Index);
    if (Info.dwMask & TBIF_COMMAND)
        Info.idCommand = Button.Data.idCommand;
    if (Info.dwMask & TBIF_IMAGE)
        Info.iImage = Button.Data.iBitmap;
    if (Info.dwMask & TBIF_STATE)
        Info.fsState = Button.Data.fsState;
    if (Info.dwMask & TBIF_STYLE)
        Info.fsStyle = Button.Data.fsStyle;
    if (Info.dwMask & TBIF_LPARAM)
        Info.lParam = Button.Data.dwData;
    if (Info.dwMask & TBIF_SIZE)
        Info.cx = static_cast<WORD>(WidthOfButton(Button));
    if ((Info.dwMask & TBIF_TEXT) && Info.pszText)
        CopyText(Button.Text, Info.pszText, Info.cchText);
    return Index;
}

LRESULT TToolBar::SetInfo(const TBBUTTONINFOA& Info, int Index)
{
    if (!Valid(Index))
        return FALSE;
    auto& Button = At(Index);
    if (Info.dwMask & TBIF_COMMAND)
        Button.Data.idCommand = Info.idCommand;
    if (Info.dwMask & TBIF_IMAGE)
        Button.Data.iBitmap = Info.iImage;
    if (Info.dwMask & TBIF_STATE)
        Button.Data.fsState = Info.fsState;
    if (Info.dwMask & TBIF_STYLE)
        Button.Data.fsStyle = Info.fsStyle;
    if (Info.dwMask & TBIF_LPARAM)
        Button.Data.dwData = Info.lParam;
    if (Info.dwMask & TBIF_SIZE)
        Button.Width = Info.cx;
    if ((Info.dwMask & TBIF_TEXT) && Info.pszText)
        Button.Text = Info.pszText;
    Invalidate();
    return TRUE;
}

void TToolBar::SetState(int Index, BYTE Bit, bool On)
{
    auto& State = At(Index).Data.fsState;
    State = static_cast<BYTE>(On ? State | Bit : State & ~Bit);
    if (On && Bit == TBSTATE_CHECKED && (At(Index).Data.fsStyle & BTNS_GROUP))
        UncheckGroup(Index);
    Invalidate();
}

void TToolBar::UncheckGroup(int Index)
{
    const auto Clear = [&](int Each) {
        if (!Valid(Each) || !(At(Each).Data.fsStyle & BTNS_GROUP))
            return false;
        At(Each).Data.fsState = static_cast<BYTE>(At(Each).Data.fsState & ~TBSTATE_CHECKED);
        return true;
    };
    for (int Each = Index - 1; Clear(Each); --Each) {
    }
    for (int Each = Index + 1; Clear(Each); ++Each) {
    }
}

void TToolBar::Click(int Index)
{
    auto& Data = At(Index).Data;
    const int Code = Data.idCommand;
    if (Data.fsStyle & BTNS_CHECK)
        SetState(Index, TBSTATE_CHECKED, (Data.fsStyle & BTNS_GROUP) || !(Data.fsState & TBSTATE_CHECKED));
    SendMessageA(GetParent(Window()), WM_COMMAND, MAKEWPARAM(Code, 0), reinterpret_cast<LPARAM>(Window()));
    if (Alive())
        Notify(NM_CLICK);
}

int TToolBar::ButtonHeight() const
{
    const bool Texts =
        std::any_of(FButtons.begin(), FButtons.end(), [](const TToolButton& B) { return !B.Text.empty(); });
    int Height = FBitmap.cy + 7;
    if (Texts)
        Height = ListStyle() ? std::max(Height, LineHeight() + 8) : Height + LineHeight();
    return std::max<int>(Height, FSize.cy);
}

int TToolBar::WidthOfButton(const TToolButton& Button) const
{
    if (IsSeparator(Button))
        return Button.Data.iBitmap > 0 ? Button.Data.iBitmap : SeparatorWidth;
    if (Button.Width)
        return Button.Width;
    int Width = FBitmap.cx + 8;
    if (!Button.Text.empty())
        Width = ListStyle() ? Width + MnemonicWidthOf(Button.Text) + 4
                            : std::max(Width, MnemonicWidthOf(Button.Text) + 10);
    if (Button.Data.fsStyle & BTNS_DROPDOWN)
        Width += 12;
    return std::max<int>(Width, FSize.cx);
}

RECT TToolBar::RectOf(int Index)
{
    int Left = FIndent;
    for (int Each = 0; Each < Index; ++Each)
        if (!(At(Each).Data.fsState & TBSTATE_HIDDEN))
            Left += WidthOfButton(At(Each));
    RECT Rect = {Left, 2, Left + WidthOfButton(At(Index)), 2 + ButtonHeight()};
    if (ExStyle() & WS_EX_LAYOUTRTL)
        Rect = {ClientRect().right - Rect.right, Rect.top, ClientRect().right - Rect.left, Rect.bottom};
    return Rect;
}

int TToolBar::ButtonAt(POINT Point)
{
    for (int Index = 0; Valid(Index); ++Index)
        if (const RECT Rect = RectOf(Index);
            !(At(Index).Data.fsState & TBSTATE_HIDDEN) && PtInRect(&Rect, Point))
            return Index;
    return -1;
}

void TToolBar::Paint(HDC Dc)
{
    RECT Rect = ClientRect();
    FillRect(Dc, &Rect, GetSysColorBrush(COLOR_BTNFACE));
    if (!(Style() & CCS_NODIVIDER))
        DrawEdge(Dc, &Rect, EDGE_ETCHED, BF_TOP);
    for (int Index = 0; Valid(Index); ++Index)
        if (!(At(Index).Data.fsState & TBSTATE_HIDDEN))
            PaintButton(Dc, Index);
}

void TToolBar::PaintButton(HDC Dc, int Index)
{
    const auto& Button = At(Index);
    RECT Rect = RectOf(Index);
    if (IsSeparator(Button)) {
        RECT Line = {(Rect.left + Rect.right) / 2 - 1, Rect.top + 2, (Rect.left + Rect.right) / 2 + 1,
                     Rect.bottom - 2};
        DrawEdge(Dc, &Line, EDGE_ETCHED, BF_LEFT);
        return;
    }
    const bool Down = Index == FPressed || (Button.Data.fsState & (TBSTATE_PRESSED | TBSTATE_CHECKED));
    if (Down)
        DrawEdge(Dc, &Rect, BDR_SUNKENOUTER, BF_RECT);
    else if (!(Style() & TBSTYLE_FLAT))
        DrawEdge(Dc, &Rect, EDGE_RAISED, BF_RECT | BF_SOFT);
    if (Down)
        OffsetRect(&Rect, 1, 1);
    const bool On = (Button.Data.fsState & TBSTATE_ENABLED) != 0;
    RECT Label = Rect;
    const bool Image =
        FImages && Button.Data.iBitmap >= 0 && Button.Data.iBitmap < ImageList_GetImageCount(FImages);
    if (Image) {
        const int X =
            ListStyle() && !Button.Text.empty() ? Rect.left + 4 : (Rect.left + Rect.right - FBitmap.cx) / 2;
        const int Y =
            ListStyle() || Button.Text.empty() ? (Rect.top + Rect.bottom - FBitmap.cy) / 2 : Rect.top + 3;
        ImageList_Draw(FImages, Button.Data.iBitmap, Dc, X, Y,
                       On ? ILD_TRANSPARENT : ILD_TRANSPARENT | ILD_BLEND50);
        if (ListStyle())
            Label.left = X + FBitmap.cx;
        else
            Label.top = Y + FBitmap.cy;
    }
    SetTextColor(Dc, GetSysColor(On ? COLOR_BTNTEXT : COLOR_GRAYTEXT));
    DrawItemText(Dc, Button.Text, Label, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}
} // namespace

void RegisterSystemToolBars()
{
    RegisterControl<TToolBar>(TOOLBARCLASSNAMEA);
}
